// Report runs: the selection formulas the screens write, read over the store's rows; the formula
// slots as named values; the laid-out pages with their figures, totals and page breaks.
#include "TestDesk.h"

#include "frame/VbFormat.h"
#include "reports/ReportRun.h"
#include "reports/SelectionFormula.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct Case {
    const char* formula;
    const char* rows; // the rowids of the sample rows that must be selected
};

// Two tables of sample rows, one per formula family: Closing's text dates, Tracker's dates.
void sampleRows(Store& s) {
    s.execute("insert into Closing(Symbol, Descr, Dt, ClBal) values "
              "('NIFX2026', 'A', '23-11-2026', 1), ('NIFX2026', 'A', '24-11-2026', 2), "
              "('NIFX2026', 'B', '23-11-2026', 3), ('NIFX2026', 'A', '2026-11-23', 4)");
    s.execute(
        "insert into Tracker(Symbol, InDesc, CP, Units, TradeDt) values "
        "('NIFX2026', 'A', 'C', 5, cdate('01-11-2026')), ('NIFX2026', 'A', 'S', 5, cdate('23-11-2026')), "
        "('NIFX2026', 'A', 'P', 5, cdate('23-11-2026')), ('NIFX2026', 'A', 'P', 5, cdate('24-11-2026'))");
}

std::string selected(Store& s, const char* table, const std::string& formula) {
    const SelectionSql sel = translateSelection(formula);
    std::string ids;
    for (Recordset rs =
             s.query(std::string("select rowid from ") + table + " where " + sel.where + " order by rowid");
         !rs.eof(); rs.moveNext())
        ids += (ids.empty() ? "" : ",") + rs.at(0).text();
    return ids;
}

TEST(ReportLayer, SelectionFormulasSelectTheRowsTheyName) {
    test::Desk desk;
    sampleRows(desk.app.store());
    const Case closing[] = {
        {"{Closing.Symbol} = 'NIFX2026' and {Closing.Descr} = 'A' AND DATE(TONUMBER({Closing.Dt}[7 TO 10]),"
         "TONUMBER({Closing.Dt}[4 TO 5]),TONUMBER({Closing.Dt}[1 TO 2])) = date(2026,11,23)",
         "1"},
        {"{Closing.Descr} = 'A' or not ({Closing.ClBal} <= 2)", "1,2,3,4"},
        {"{Closing.ClBal} <> 3 and {Closing.Descr} = \"B\"", ""},
    };
    for (const auto& c : closing)
        EXPECT_EQ(selected(desk.app.store(), "Closing", c.formula), c.rows) << c.formula;
    const Case tracker[] = {
        {"{Tracker.Symbol} = 'NIFX2026' and {Tracker.InDesc} = 'A' AND {Tracker.CP} <> 'S' AND "
         "{Tracker.TradeDt} in date (2026,11,01) to date(2026,11,23)",
         "1,3"},
        {"{Tracker.Symbol} = 'NIFX2026' and {Tracker.InDesc} = 'A' AND {Tracker.CP} = 'S'", "2"},
        {"{Tracker.TradeDt} = date(2026,11,24)", "4"},
    };
    for (const auto& c : tracker)
        EXPECT_EQ(selected(desk.app.store(), "Tracker", c.formula), c.rows) << c.formula;

    const auto join = translateSelection("{Portfoliomast.Symbol} = 'X' and {Portfoliomast.Descr} = 'Y' AND "
                                         "{Portfoliodet.Units} <> 0  and {Portfoliodet.Descr} = 'Y'");
    EXPECT_EQ(join.tables, (std::set<std::string>{"Portfoliodet", "Portfoliomast"}));
    EXPECT_TRUE(translateSelection("").where.empty());
    for (const char* bad :
         {"{Closing.Dt", "{Closing} = 1", "{A.B} = 'it''s'", "{A.B} = ", "{A.B} in 1", "{A.B} ;"})
        EXPECT_THROW(translateSelection(bad), VbError) << bad;
}

TEST(ReportLayer, FormulaSlotsBecomeNamedValues) {
    ReportRun run;
    run.reportFile = "C:\\desk\\Expenses.rpt";
    run.setFormula(3, "Fo_ToT=12.5");
    run.setFormula(12, "symbol='NIFX2026'");
    run.setFormula(15, "dt1= '23-Nov-26'");
    run.setFormula(16, "");
    EXPECT_EQ(run.name(), "Expenses");
    EXPECT_EQ(run.values(), (std::map<std::string, std::string>{
                                {"dt1", "23-Nov-26"}, {"fo_tot", "12.5"}, {"symbol", "NIFX2026"}}));
}

TEST(ReportLayer, CashFlowPagesCarryHeadsTotalsAndPageNumbers) {
    test::Desk desk;
    // 60 days of cash flow: more than one landscape page, so the heads repeat.
    for (int d = 1; d <= 60; ++d)
        desk.app.store().execute("insert into ExpTemp(Dt, Opbal, Prem, StkInt, SDuty) values (cdate('" +
                                 Format(VbDate::fromYmd(2026, 1, 1).addDays(d - 1), "DD-MM-YYYY") +
                                 "'), 0, " + std::to_string(d * 100000) + ".5, 0.25, -1)");
    ReportRun run;
    run.reportFile = "\\CashFlow.rpt";
    const ReportDocument doc = reportDocument(desk.app, run);
    ASSERT_EQ(doc.pages.size(), 3u);
    EXPECT_EQ(doc.orientation, Orientation::Landscape);
    EXPECT_EQ(doc.pages[1].footer, "Page 2 of 3");
    EXPECT_EQ(doc.pages[1].lines[2].cells[0].text, "Date");
    const auto& first = doc.pages[0].lines[3].cells;
    EXPECT_EQ(first[0].text, "01-01-2026");
    EXPECT_EQ(first[2].text, "1,00,000.50");
    const auto& total = doc.pages.back().lines.back().cells;
    // 100000 × (1 + … + 60) + 60 × 0.5; interest 60 × 0.25; stamp duty 60 × −1.
    EXPECT_EQ(total[0].text, "Total");
    EXPECT_EQ(total[2].text, "18,30,00,030.00");
    EXPECT_EQ(total[5].text, "15.00");
    EXPECT_EQ(total[10].text, "-60.00");
    for (const auto& page : doc.pages)
        for (const auto& line : page.lines)
            EXPECT_LE(line.y + line.height, doc.pageHeight());

    run.reportFile = "\\NoSuch.rpt";
    EXPECT_THROW(reportDocument(desk.app, run), VbError);
}

} // namespace
