// The road of one trade through the real batch executable: a sheet opened from the list, a
// ladder row clicked, "Option" with the entry dialog taking the next lines, the close answered,
// and the sheet reopened with the same figures; Cancel keeps the sheet and writes nothing, and
// No drops a sheet that was never saved.
#include "BatchFixture.h"
#include "core/sheet/SheetScenarios.h"

using tallimark::test::contains;
using tallimark::test::dumpField;
using tallimark::test::Outcome;

namespace {

const char* const kResults[] = {"TxtBalance", "txtdelneutral", "TxtPremium",
                                "TxtOptU",    "TxtOptR",       "TxtFutLots"};

class SheetRoad : public tallimark::test::BatchFixture {
protected:
    double number(const std::string& sql) { return store()->query(sql).at(0).numberOrZero(); }
    static std::string openSheet() {
        return "menu MDIForm1.munopen\n"
               "gridclick FrmNewMainScreen.ListView1 1 1\n"
               "click FrmNewMainScreen.Cmd(1)\n";
    }
    static std::string optionTrade(const std::string& screen, int row, const char* units,
                                   const char* traded) {
        return "gridclick " + screen + ".va1 " + std::to_string(row) + " 1\n" + "click " + screen +
               ".Toolbar1(2)\n" + "set FrmOption.TxtUnits " + units + "\n" + "set FrmOption.TxtTraded " +
               traded + "\n" + "click FrmOption.Cmd(0)\n";
    }

    // One trade, Yes to the close question, the sheet reopened: the figures and the row as left.
    void tradeSaveAndReopen(const tallimark::test::SavedSheet& sheet, int row, const char* unitsAfter) {
        sheet.save(*store());
        const std::string screen = sheet.stock() ? "FrmPort5" : "FrmPortfolioIndex";
        const Outcome r =
            script("login ADMIN tallimark\n" + openSheet() + optionTrade(screen, row, "5", "22.5") + "dump " +
                   screen + "\n" + "answer Yes\n" + "click " + screen + ".Toolbar1(10)\n" + "dump " + screen +
                   "\n" + openSheet() + "dump " + screen + "\n");
        ASSERT_EQ(r.exitCode, 0) << r.all();
        ASSERT_EQ(r.lines.size(), 4u) << r.all();
        const std::string traded = r.lines[0], question = r.lines[1], closed = r.lines[2],
                          reopened = r.lines[3];
        EXPECT_EQ(question, R"({"msgbox":{"title":"Exit","text":"Do you wish to Save the Changes?",)"
                            R"("icon":"question","buttons":"YesNoCancel","answer":"Yes"}})");
        EXPECT_TRUE(contains(closed, R"("visible":false)")) << "hidden, kept for the next sheet";
        EXPECT_TRUE(contains(reopened, R"("visible":true)"));
        const std::string unitsCell = R"({"text":")" + std::string(unitsAfter) + R"(","fore":"#00FFFF")";
        EXPECT_TRUE(contains(traded, unitsCell)) << traded.substr(0, 400);
        EXPECT_TRUE(contains(reopened, unitsCell));
        for (const char* name : kResults)
            EXPECT_EQ(dumpField(reopened, name), dumpField(traded, name)) << name;
        EXPECT_EQ(number(std::string(
                             "select count(*) from Tracker where Units = 5 and Traded = 22.5 and symbol = ") +
                         "'" + sheet.symbol() + "'"),
                  1)
            << "the trade is committed";
    }
};

} // namespace

TEST_F(SheetRoad, AStockTradeIsSavedAtTheCloseAndReopens) {
    // 980 C held 15: five more make 20.
    tradeSaveAndReopen(tallimark::test::kSavedSheets[0], 4, "20");
}

TEST_F(SheetRoad, AnIndexTradeIsSavedAtTheCloseAndReopens) {
    // 5800 C held nothing: five bought.
    tradeSaveAndReopen(tallimark::test::kSavedSheets[2], 2, "5");
}

TEST_F(SheetRoad, CancelAtTheCloseKeepsTheSheetAndWritesNothing) {
    tallimark::test::kSavedSheets[0].save(*store());
    const Outcome r =
        script("login ADMIN tallimark\n" + openSheet() + optionTrade("FrmPort5", 4, "5", "22.5") +
               "answer Cancel\n"
               "key FrmPort5.TxtNet 27\n"
               "dump FrmPort5\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 2u) << r.all();
    EXPECT_TRUE(contains(r.lines[0], R"("answer":"Cancel")"));
    EXPECT_TRUE(contains(r.lines[1], R"("visible":true)"));
    EXPECT_EQ(number("select Units from PortfolioDet where Strike = 980 and CP = 'C'"), 15);
    EXPECT_EQ(number("select count(*) from Tracker where Traded = 22.5"), 0);
}

TEST_F(SheetRoad, NoDropsASheetThatWasNeverSaved) {
    store()->execute("insert into Trans (InSymbol, InDesc, InType, MidStrike, AStrike, BStrike, UComm, "
                     "DIntRate, Transdt) values ('TCSK2026', 'FRESH', 'S', 1000, 1, 1, 20, 6, "
                     "cdate('20-Nov-2026'))");
    const Outcome r = script("login ADMIN tallimark\n" + openSheet() +
                             "set FrmPort5.TxtExpDt 10-12-2026\n"
                             "set FrmPort5.TxtDays 17\n"
                             "focus FrmPort5.TxtImpVol\n"
                             "set FrmPort5.TxtImpVol 30\n"
                             "set FrmPort5.TxtImpVolP 30\n"
                             "focus FrmPort5.TxtNet\n" +
                             optionTrade("FrmPort5", 2, "2", "12") + "dump FrmPort5\n" +
                             "answer No\n"
                             "click FrmPort5.mnuexit\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    EXPECT_TRUE(contains(r.dump("FrmPort5"), R"({"text":"2","fore":"#00FFFF")"))
        << "the trade stood on the sheet";
    EXPECT_TRUE(contains(r.all(), R"("answer":"No")")) << r.all();
    EXPECT_EQ(number("select count(*) from Trans"), 0);
    EXPECT_EQ(number("select count(*) from DummyTracker"), 0);
    EXPECT_EQ(number("select count(*) from PortfolioMast"), 0);
}
