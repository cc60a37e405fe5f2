// The sheet's reports through the batch executable: the desk opens a saved sheet, presses
// "Print", chooses a report and prints it to a PDF; a 100-strike ladder runs over pages.
#include "BatchFixture.h"
#include "core/sheet/SheetScenarios.h"

using tallimark::test::contains;
using tallimark::test::expectPdf;
using tallimark::test::Outcome;
using tallimark::test::printLine;

namespace {

class ReportsBatch : public tallimark::test::BatchFixture {};

TEST_F(ReportsBatch, TheSheetsPrintCommandPrintsTheFullSheetAndTheTradesToPdf) {
    const auto& sheet = tallimark::test::kSavedSheets[0];
    {
        auto s = store();
        sheet.save(*s);
        for (int i = 0; i < 100; ++i)
            s->execute("insert into PortfolioDet(Symbol, Descr, Strike, CP, Units, DeltaVal) values (" +
                       tallimark::q(sheet.symbol()) + ", " + tallimark::q(sheet.desc()) + ", " +
                       std::to_string(500 + 10 * i) + ", 'C', 1, 1)");
    }
    const auto full = dir_ / "full.pdf", trades = dir_ / "trades.pdf";
    const Outcome r = script("login ADMIN tallimark\n"
                             "menu MDIForm1.munopen\n"
                             "gridclick FrmNewMainScreen.ListView1 1 1\n"
                             "click FrmNewMainScreen.Cmd(1)\n"
                             "menu FrmPort5.mnuprint\n"
                             "check FrmPrintOption.Option2(2) 1\n" +
                             printLine(full) +
                             "click FrmPrintOption.Cmd(0)\n"
                             "check FrmPrintOption.Option2(0) 1\n"
                             "check FrmPrintOption.Option1(1) 1\n"
                             "set FrmPrintOption.DTPicker1 01-Nov-2026\n" +
                             printLine(trades) + "click FrmPrintOption.Cmd(0)\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    std::vector<std::string> reports;
    for (const auto& line : r.lines)
        if (line.rfind(R"({"report":)", 0) == 0) reports.push_back(line);
    ASSERT_EQ(reports.size(), 2u) << r.all();
    EXPECT_TRUE(contains(reports[0], R"({"report":"rptport")"));
    // The last of the 100 strikes and the ladder's total come after a page break.
    const size_t secondPage = reports[0].find("]],[[");
    EXPECT_NE(secondPage, std::string::npos);
    EXPECT_GT(reports[0].find(R"(["1,490.00","C","1",)"), secondPage);
    EXPECT_GT(reports[0].find(R"(["Total","",)"), secondPage);
    EXPECT_TRUE(contains(reports[1], R"({"report":"Call1")"));
    expectPdf(full);
    expectPdf(trades);
}

} // namespace
