// Opening a sheet: a new one built round its market price, a saved one from its head and
// ladder, the working copy of the ledger, and dropping a sheet that was never saved.
#include "SheetDesk.h"

#include "admin/FrmNewMainScreen.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tallimark;

namespace {

const Rgb kRed = RGB(255, 0, 0), kYellow = RGB(255, 255, 0), kGreen = RGB(0, 255, 0);

struct NewSheetDesk : test::SheetDesk {
    RiskSheet& openNew(int above, int below, double step = 20, SheetKind kind = SheetKind::Stock) {
        app.session().g_ExpiryDate = VbDate::fromYmd(2026, 11, 26);
        return openFresh(kind, above, below, step);
    }
};

// Strike and side of each ladder row, each after a "|".
std::string ladderText(RiskSheet& s) {
    std::string rows;
    for (int r = 1; r <= s.va1().dataRowCount(); ++r)
        rows += "|" + s.va1().text(r, 1) + s.va1().text(r, 2);
    return rows;
}

// The texts of the fields, joined by "|".
std::string texts(Form& form, std::initializer_list<const char*> fields) {
    std::string t;
    for (const char* f : fields)
        t += "|" + form.text(f);
    return t.substr(1);
}

// The numbers of rows in the tables ("Trans", "DumUploadFile where ..."), joined by "|".
std::string rowCounts(test::SheetDesk& d, std::initializer_list<const char*> tables) {
    std::string t;
    for (const char* table : tables)
        t += "|" + NumText(d.number(std::string("select count(*) from ") + table));
    return t.substr(1);
}

} // namespace

TEST(SheetLoad, ANewLadderIsBuiltRoundTheMarketPrice) {
    const SheetKind stock = SheetKind::Stock, index = SheetKind::Index;
    // Strikes above and below the middle, the step, the kind of sheet and the ladder's rows.
    const std::tuple<int, int, double, SheetKind, const char*> cases[] = {
        {1, 1, 20, index, "||980C|980P|1000C|1000P|1020C|1020P"},
        {1, 1, 12.5, stock, "||987.5C|987.5P|1000C|1000P|1012.5C|1012.5P"},
        {2, 2, 20, stock, "||960C|960P|980C|980P|1000C|1000P|1020C|1020P|1040C|1040P"},
        {0, 3, 20, stock, "||940C|940P|960C|960P|980C|980P|1000C|1000P"},
        // Nothing below: no middle strike, and the first row above lands on the heading row.
        {2, 0, 20, stock, "|1020C|1020P|1040C|1040P"},
        {0, 0, 20, stock, ""},
    };
    for (const auto& [above, below, step, kind, rows] : cases) {
        NewSheetDesk d;
        RiskSheet& s = d.openNew(above, below, step, kind);
        EXPECT_EQ(ladderText(s), rows) << above << " above, " << below << " below";
        EXPECT_TRUE(d.ui.boxes().empty());
    }
}

TEST(SheetLoad, ANewSheetIsPaintedInPairsAndDatedToday) {
    NewSheetDesk d;
    RiskSheet& s = d.openNew(1, 1, 12.5);
    for (int row = 2; row <= 7; ++row) {
        EXPECT_EQ(s.va1().cell(row, 3).back, RGB(0, 0, 0));
        EXPECT_EQ(s.va1().cell(row, 16).fore, row % 2 == 0 ? kYellow : kGreen) << row;
    }
    EXPECT_EQ(texts(s, {"TxtCurDt", "TxtExpDt", "TxtDays", "TxtMktPrice", "TxtSymbol"}),
              "23-11-2026|26-11-2026|3|1000|TCSK2026");
    EXPECT_EQ(s.caption(), "Risk Management Sheet for  FRESH   01-11-2026 .....Tallimark ");
    EXPECT_EQ(NumText(s.IntRate) + "|" + NumText(s.StrikeStep), "0.06|12.5");
    EXPECT_EQ(s.va1().text(2, 5), "") << "a new sheet is not priced until a refresh";
}

TEST(SheetLoad, TheScriptGivesLotAndExposureMarginWithNullsAsZero) {
    struct Case {
        const char *lot, *margin;
        const char* got; // the contract size, its field and the margin percent
    } cases[] = {{"250", "5", "250|250|5"}, {"", "", "0|0|0"}, {"75", "2.5 pct", "75|75|2.5"}};
    for (const Case& c : cases) {
        NewSheetDesk d;
        d.addScript("TCS", c.lot, c.margin);
        RiskSheet& s = d.openNew(1, 1);
        EXPECT_EQ(NumText(s.ContractSize) + "|" + s.text("TxtContract") + "|" + NumText(s.ExMarginPct),
                  c.got);
    }
}

TEST(SheetLoad, ASavedSheetComesBackFromItsHeadAndLadder) {
    // The caption and the figures of the opening refresh: SheetFigures and SheetBatch; the
    // colours of the units held: SheetViewTest.
    test::SheetDesk d;
    RiskSheet& s = riskSheet(d.app, SheetKind::Stock);
    s.SavedDelNeutral = "3";
    s.SavedBalance = "273";
    test::openSavedScenario(d, SheetKind::Stock);
    EXPECT_EQ(texts(s, {"TxtSymbol", "TxtMktPrice", "TxtExpDt", "TxtCurDt", "DTPicker1", "TxtNet", "TxtVol",
                        "TxtKeyOff", "TxtSpread", "TxtMargin", "TxtCashLots", "TxtCashTrade", "TxtFut_trdNF",
                        "TxtFut_trdAmt", "TxtEquity", "TxtTotComm", "TxtContract", "TxtCashU"}),
              "RILK2026|1010|10-12-2026|23-11-2026|23-Nov-26|7|31|K1|SP|50000|2|990|3|996.33|5|12|250|40");
    EXPECT_EQ(s.va1().cell(2, 3).fore, kYellow) << "nothing held";
    EXPECT_EQ(s.control("TxtCashR").foreColor, kRed);
    EXPECT_EQ(s.SavedDelNeutral + "|" + s.SavedBalance, "3|273") << "the figures saved survive the load";
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
    EXPECT_EQ(s.text("TxtDays") + "|" + s.text("TxtCurDt"), "4|16-11-2026")
        << "the expiry less the days kept";
}

TEST(SheetLoad, TheWorkingLedgerIsCopiedAfreshForTheSheetOrForTheWholeDesk) {
    // Rows left of the sheet's ledger (its 9 or 5 trades in Tracker), another sheet's ledger, the
    // unsaved trade, the upload files and the sheet's own.
    const std::tuple<SheetKind, const char*, const char*, const char*> cases[] = {
        {SheetKind::Stock, test::kStockSymbol, test::kStockDesc, "9|1|0|1|1"},
        {SheetKind::Index, test::kIndexSymbol, test::kIndexDesc, "5|0|0|1|1"}};
    for (const auto& [kind, symbol, desc, left] : cases) {
        test::SheetDesk d;
        test::saveStockSheet(d.app.store(), "1010", "10-Dec-2026");
        test::saveIndexSheet(d.app.store(), "6050", "10-Dec-2026");
        d.addTrade("DummyTracker", "ACCX2026", "OTHER", "500", "C", 1, 5);
        d.addTrade("DummyTracker", symbol, desc, "500", "C", 99, 5); // unsaved: replaced on opening
        d.insert("UploadFile", {{"Symbol", q(symbol)}, {"InDesc", q(desc)}, {"futstk", "'F1.txt'"}});
        d.insert("DumUploadFile", {{"Symbol", "'ACCX2026'"}, {"InDesc", "'OTHER'"}, {"futstk", "'F0.txt'"}});
        d.open(kind, symbol, desc);
        const std::string sheetRows = "DummyTracker where Symbol = " + q(symbol);
        EXPECT_EQ(rowCounts(d, {sheetRows.c_str(), "DummyTracker where Symbol = 'ACCX2026'",
                                "DummyTracker where Units = 99", "DumUploadFile",
                                "DumUploadFile where futstk = 'F1.txt'"}),
                  left)
            << symbol;
    }
}

TEST(SheetLoad, ASheetWhoseTransRowIsGoneOpensEmpty) {
    test::SheetDesk d;
    RiskSheet& s = d.open(SheetKind::Stock, "GONEK2026", "NONE");
    EXPECT_EQ(texts(s, {"TxtSymbol", "TxtContract"}), "|");
    EXPECT_EQ(s.va1().dataRowCount(), 0);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
}

TEST(SheetLoad, DroppingASheetThatWasNeverSaved) {
    // Whether the head was saved; the rows left of Trans, of the sheet's and another sheet's
    // ledger, and of its upload files.
    const std::tuple<SheetKind, bool, const char*> cases[] = {{SheetKind::Stock, false, "0|0|1|0"},
                                                              {SheetKind::Stock, true, "1|1|1|1"},
                                                              {SheetKind::Index, false, "0|0|0|0"}};
    for (const auto& [kind, saved, left] : cases) {
        test::SheetDesk d;
        if (saved) d.insert("PortfolioMast", {{"Symbol", "'TCSK2026'"}, {"Descr", "'FRESH'"}});
        RiskSheet& s = d.openFresh(kind);
        Grid& list = d.app.screens().get<FrmNewMainScreen>().grid("ListView1");
        ASSERT_EQ(list.maxRows(), 1);
        d.addTrade("DummyTracker", "TCSK2026", "FRESH", "1000", "C", 1, 5);
        d.addTrade("DummyTracker", "ACCX2026", "OTHER", "500", "C", 1, 5);
        d.insert("DumUploadFile", {{"Symbol", "'TCSK2026'"}, {"InDesc", "'FRESH'"}});
        s.CancelData();
        EXPECT_EQ(rowCounts(d, {"Trans", "DummyTracker where Symbol = 'TCSK2026'",
                                "DummyTracker where Symbol = 'ACCX2026'", "DumUploadFile"}),
                  left);
        EXPECT_EQ(list.maxRows(), saved ? 1 : 0) << "the list of sheets is drawn again";
    }
}
