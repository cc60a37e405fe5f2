// Opening a sheet: a new one built round its market price, a saved one from its head and
// ladder, the working copy of the ledger, and dropping a sheet that was never saved.
#include "SheetDesk.h"

#include "admin/FrmNewMainScreen.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

const Rgb kRed = RGB(255, 0, 0), kCyan = RGB(0, 255, 255), kYellow = RGB(255, 255, 0),
          kGreen = RGB(0, 255, 0);

struct NewSheetDesk : test::SheetDesk {
    RiskSheet& openNew(int above, int below, double step = 20, SheetKind kind = SheetKind::Stock) {
        app.session().g_ExpiryDate = VbDate::fromYmd(2026, 11, 26);
        return openFresh(kind, above, below, step);
    }
};

std::vector<std::string> ladderText(RiskSheet& s) {
    std::vector<std::string> rows;
    for (int r = 1; r <= s.va1().dataRowCount(); ++r)
        rows.push_back(s.va1().text(r, 1) + s.va1().text(r, 2));
    return rows;
}

} // namespace

TEST(SheetLoad, ANewLadderIsBuiltRoundTheMarketPrice) {
    struct Case {
        int above, below;
        std::vector<std::string> rows; // strike and side of rows 1 to the last
        SheetKind kind = SheetKind::Stock;
    } cases[] = {
        {1, 1, {"", "980C", "980P", "1000C", "1000P", "1020C", "1020P"}, SheetKind::Index},
        {2, 2, {"", "960C", "960P", "980C", "980P", "1000C", "1000P", "1020C", "1020P", "1040C", "1040P"}},
        {0, 3, {"", "940C", "940P", "960C", "960P", "980C", "980P", "1000C", "1000P"}},
        // Nothing below: no middle strike, and the first row above lands on the heading row.
        {2, 0, {"1020C", "1020P", "1040C", "1040P"}},
        {0, 0, {}},
    };
    for (const Case& c : cases) {
        NewSheetDesk d;
        RiskSheet& s = d.openNew(c.above, c.below, 20, c.kind);
        EXPECT_EQ(ladderText(s), c.rows) << c.above << " above, " << c.below << " below";
        EXPECT_TRUE(d.ui.boxes().empty());
    }
}

TEST(SheetLoad, ANewSheetIsPaintedInPairsAndDatedToday) {
    NewSheetDesk d;
    RiskSheet& s = d.openNew(1, 1, 12.5);
    EXPECT_EQ(ladderText(s),
              (std::vector<std::string>{"", "987.5C", "987.5P", "1000C", "1000P", "1012.5C", "1012.5P"}));
    for (int row = 2; row <= 7; ++row) {
        EXPECT_EQ(s.va1().cell(row, 3).back, RGB(0, 0, 0));
        EXPECT_EQ(s.va1().cell(row, 16).fore, row % 2 == 0 ? kYellow : kGreen) << row;
    }
    EXPECT_EQ(s.text("TxtCurDt"), "23-11-2026");
    EXPECT_EQ(s.text("TxtExpDt"), "26-11-2026");
    EXPECT_EQ(s.text("TxtDays"), "3");
    EXPECT_EQ(s.text("TxtMktPrice"), "1000");
    EXPECT_EQ(s.text("TxtSymbol"), "TCSK2026");
    EXPECT_EQ(s.caption(), "Risk Management Sheet for  FRESH   01-11-2026 .....Tallimark ");
    EXPECT_EQ(s.IntRate, 0.06);
    EXPECT_EQ(s.StrikeStep, 12.5);
    EXPECT_EQ(s.va1().text(2, 5), "") << "a new sheet is not priced until a refresh";
}

TEST(SheetLoad, TheScriptGivesLotAndExposureMarginWithNullsAsZero) {
    struct Case {
        const char* lot;
        const char* margin;
        double contract;
        const char* contractText;
        double pct;
    } cases[] = {{"250", "5", 250, "250", 5}, {"", "", 0, "0", 0}, {"75", "2.5 pct", 75, "75", 2.5}};
    for (const Case& c : cases) {
        NewSheetDesk d;
        d.addScript("TCS", c.lot, c.margin);
        RiskSheet& s = d.openNew(1, 1);
        EXPECT_EQ(s.ContractSize, c.contract);
        EXPECT_EQ(s.text("TxtContract"), c.contractText);
        EXPECT_EQ(s.ExMarginPct, c.pct);
    }
}

TEST(SheetLoad, ASavedSheetComesBackFromItsHeadAndLadder) {
    test::SheetDesk d;
    RiskSheet& s = test::openSavedScenario(d, SheetKind::Stock);
    const std::pair<const char*, const char*> fields[] = {
        {"TxtSymbol", "RILK2026"},
        {"TxtMktPrice", "1010"},
        {"TxtDays", "17"},
        {"TxtExpDt", "10-12-2026"},
        {"TxtCurDt", "23-11-2026"},
        {"DTPicker1", "23-Nov-26"},
        {"TxtNet", "7"},
        {"TxtVol", "31"},
        {"TxtKeyOff", "K1"},
        {"TxtSpread", "SP"},
        {"TxtMargin", "50000"},
        {"TxtCashLots", "2"},
        {"TxtCashTrade", "990"},
        {"TxtFut_trdNF", "3"},
        {"TxtFut_trdAmt", "996.33"},
        {"TxtEquity", "5"},
        {"TxtTotComm", "12"},
        {"TxtContract", "250"},
    };
    for (const auto& [field, value] : fields)
        EXPECT_EQ(s.text(field), value) << field;
    EXPECT_EQ(s.caption(), "Risk Management Sheet for  NOV SHEET   20-11-2026 .....Tallimark ");
    EXPECT_EQ(s.va1().cell(3, 3).fore, kRed) << "960 P, sold";
    EXPECT_EQ(s.va1().cell(4, 3).fore, kCyan) << "980 C, bought";
    EXPECT_EQ(s.va1().cell(2, 3).fore, kYellow) << "nothing held";
    EXPECT_EQ(s.text("TxtCashU"), "40");
    EXPECT_EQ(s.control("TxtCashR").foreColor, kRed);
}

TEST(SheetLoad, ASavedSheetPastItsExpiryKeepsItsDaysAndItsExposureMargin) {
    test::SheetDesk d;
    test::saveStockSheet(d.app.store(), "1010", "20-Nov-2026");
    d.app.store().execute("update PortfolioMast set Days = Null");
    RiskSheet& s = d.open(SheetKind::Stock, test::kStockSymbol, test::kStockDesc);
    EXPECT_EQ(s.text("TxtDays"), "") << "days below 0 write nothing, so nothing refreshes";
    EXPECT_EQ(s.text("TxtEx_Magin"), "1234.5");
    EXPECT_EQ(s.va1().text(2, 5), "1") << "the saved ladder stands";

    d.app.store().execute("update PortfolioMast set Days = 4, Field1 = Null");
    s.DoInit();
    EXPECT_EQ(s.text("TxtDays"), "4");
    EXPECT_EQ(s.text("TxtCurDt"), "16-11-2026") << "the expiry less the days kept";
}

TEST(SheetLoad, TheSavedDeltaNeutralAndBalanceSurviveALoad) {
    test::SheetDesk d;
    RiskSheet& s = riskSheet(d.app, SheetKind::Stock);
    s.SavedDelNeutral = "3";
    s.SavedBalance = "273";
    test::openSavedScenario(d, SheetKind::Stock);
    EXPECT_EQ(s.SavedDelNeutral, "3");
    EXPECT_EQ(s.SavedBalance, "273");
}

TEST(SheetLoad, TheWorkingLedgerIsCopiedAfreshForTheSheetOrForTheWholeDesk) {
    struct Case {
        SheetKind kind;
        double otherRowsLeft;
    } cases[] = {{SheetKind::Stock, 1}, {SheetKind::Index, 0}};
    for (const Case& c : cases) {
        test::SheetDesk d;
        test::saveStockSheet(d.app.store(), "1010", "10-Dec-2026");
        test::saveIndexSheet(d.app.store(), "6050", "10-Dec-2026");
        const bool stock = c.kind == SheetKind::Stock;
        const std::string symbol = stock ? test::kStockSymbol : test::kIndexSymbol;
        const std::string desc = stock ? test::kStockDesc : test::kIndexDesc;
        d.addTrade("DummyTracker", "ACCX2026", "OTHER", "500", "C", 1, 5);
        d.addTrade("DummyTracker", symbol, desc, "500", "C", 99, 5); // unsaved: replaced on opening
        d.insert("UploadFile", {{"Symbol", q(symbol)}, {"InDesc", q(desc)}, {"futstk", "'F1.txt'"}});
        d.insert("DumUploadFile", {{"Symbol", "'ACCX2026'"}, {"InDesc", "'OTHER'"}, {"futstk", "'F0.txt'"}});
        d.open(c.kind, symbol, desc);
        EXPECT_EQ(d.number("select count(*) from DummyTracker where Symbol = 'ACCX2026'"), c.otherRowsLeft);
        EXPECT_EQ(d.number("select count(*) from DummyTracker where Symbol = " + q(symbol)),
                  d.number("select count(*) from Tracker where Symbol = " + q(symbol)));
        EXPECT_EQ(d.number("select count(*) from DummyTracker where Units = 99"), 0);
        EXPECT_EQ(d.number("select count(*) from DumUploadFile"), 1);
        EXPECT_EQ(d.number("select count(*) from DumUploadFile where futstk = 'F1.txt'"), 1);
    }
}

TEST(SheetLoad, ASheetWhoseTransRowIsGoneOpensEmpty) {
    test::SheetDesk d;
    RiskSheet& s = d.open(SheetKind::Stock, "GONEK2026", "NONE");
    EXPECT_EQ(s.text("TxtSymbol"), "");
    EXPECT_EQ(s.text("TxtContract"), "");
    EXPECT_EQ(s.va1().dataRowCount(), 0);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
}

TEST(SheetLoad, DroppingASheetThatWasNeverSaved) {
    struct Case {
        SheetKind kind;
        bool saved;
        double sheetRows, otherRows, transRows;
    } cases[] = {
        {SheetKind::Stock, false, 0, 1, 0},
        {SheetKind::Stock, true, 1, 1, 1},
        {SheetKind::Index, false, 0, 0, 0},
    };
    for (const Case& c : cases) {
        test::SheetDesk d;
        if (c.saved) d.insert("PortfolioMast", {{"Symbol", "'TCSK2026'"}, {"Descr", "'FRESH'"}});
        RiskSheet& s = d.openFresh(c.kind);
        FrmNewMainScreen& list = d.app.screens().get<FrmNewMainScreen>();
        ASSERT_EQ(list.grid("ListView1").maxRows(), 1);
        d.addTrade("DummyTracker", "TCSK2026", "FRESH", "1000", "C", 1, 5);
        d.addTrade("DummyTracker", "ACCX2026", "OTHER", "500", "C", 1, 5);
        d.insert("DumUploadFile", {{"Symbol", "'TCSK2026'"}, {"InDesc", "'FRESH'"}});
        s.CancelData();
        EXPECT_EQ(d.number("select count(*) from Trans"), c.transRows);
        EXPECT_EQ(d.number("select count(*) from DummyTracker where Symbol = 'TCSK2026'"), c.sheetRows);
        EXPECT_EQ(d.number("select count(*) from DummyTracker where Symbol = 'ACCX2026'"), c.otherRows);
        EXPECT_EQ(d.number("select count(*) from DumUploadFile"), c.saved ? 1 : 0);
        EXPECT_EQ(list.grid("ListView1").maxRows(), c.transRows) << "the list of sheets is drawn again";
    }
}
