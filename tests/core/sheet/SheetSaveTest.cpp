// Saving a sheet: the head and ladder rows as stored, the steps that go on past a failure, the
// upload bookkeeping, and a saved sheet that reopens as it was.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct SaveDesk : test::SheetDesk {
    RiskSheet& openStock() { return test::openSavedScenario(*this, SheetKind::Stock); }
    Recordset head() { return app.store().query("select * from PortfolioMast"); }
};

// The position and results a reopen must show as saved, and the ladder's series and holdings.
// The greeks of the sheet follow the clicked row and the last walk, so they are left out.
std::vector<std::string> screenTexts(RiskSheet& s) {
    std::vector<std::string> t;
    for (const char* name : {"TxtMktPrice", "TxtDays", "TxtFutLots", "TxtFutTrade", "TxtPremium", "TxtComm",
                             "TxtFutU", "TxtFutR", "TxtOptU", "TxtOptR", "TxtBalance", "txtdelneutral"})
        t.push_back(std::string(name) + "=" + s.text(name));
    for (int row = 1; row <= s.va1().dataRowCount(); ++row)
        for (int col = 1; col <= 4; ++col)
            t.push_back(s.va1().text(row, col));
    return t;
}

} // namespace

TEST(SheetSave, TheHeadTakesTheFieldsBlankFiguresAsZero) {
    SaveDesk d;
    RiskSheet& s = d.openStock();
    s.setText("TxtKeyOff", "K9");
    s.setText("TxtNet", "");
    s.setText("TxtDelHed", "BUY  12");
    s.setText("TxtMargin", "1500.5x"); // Val reads the leading figure
    s.setText("TxtEx_Magin", "77");
    s.fire("Toolbar1(1)", EventType::Click);
    EXPECT_TRUE(d.ui.boxes().empty());
    Recordset h = d.head();
    ASSERT_FALSE(h.eof());
    EXPECT_EQ(h["Symbol"].text(), "RILK2026");
    EXPECT_EQ(h["Descr"].text(), "NOV SHEET");
    EXPECT_EQ(h["KeyOff"].text(), "K9");
    EXPECT_EQ(h["Net"].number(), 0);
    EXPECT_EQ(h["DelHedge"].text(), "BUY  12");
    EXPECT_EQ(h["Field2"].number(), 1500.5);
    EXPECT_EQ(h["Field1"].text(), "77");
    EXPECT_EQ(h["Balance"].number(), Val(s.text("TxtBalance")));
    EXPECT_EQ(h["Up1MktPrice"].number(), s.UpMktPrice[0]);
    EXPECT_EQ(h["Dn2Bal"].number(), s.UpBal[3]);
    EXPECT_EQ(s.SavedBalance, Trim(s.text("TxtBalance")));
    EXPECT_EQ(s.SavedDelNeutral, Trim(s.text("txtdelneutral")));
}

TEST(SheetSave, EveryLadderRowIsStoredAndHeldRowsAreMarked) {
    // Five strikes, call and put: ten rows; positions stand at 960 P, 980 C and 1000 P, the
    // 1020 C trades net to nothing (SheetScenarios.h).
    SaveDesk d;
    RiskSheet& s = d.openStock();
    s.SaveData();
    EXPECT_EQ(d.number("select count(*) from PortfolioDet"), 10);
    EXPECT_EQ(d.number("select count(*) from PortfolioDet where Field2 <> 0"), 3);
    EXPECT_EQ(d.number("select Units from PortfolioDet where Strike = 980 and CP = 'C'"), 15);
    EXPECT_EQ(d.number("select Units from PortfolioDet where Strike = 1040 and CP = 'P'"), 0);
    EXPECT_EQ(d.number("select count(*) from PortfolioDet where Field1 = '0'"), 10);
}

TEST(SheetSave, AFailedStepKeepsItsRowsAndTheOtherStepsRun) {
    // Each step's insert is made to fail; its delete is undone with it, and the head (KeyOff K9
    // when written, K1 as saved) shows that the other steps went on, under the sheet's own key
    // though the main screen's list points at another sheet.
    struct Case {
        const char* table;
        const char* box;
        double rows;
        const char* keyOff;
    } cases[] = {{"PortfolioMast", "Error in AddMaster Procedure: ", 1, "K1"},
                 {"PortfolioDet", "Error in AddDetail Procedure: ", 10, "K9"},
                 {"Tracker", "Error in ErrProcAddTracker procedure: ", 9, "K9"},
                 {"UploadFile", "Error in ErrProcAddUploadedFile procedure: ", 1, "K9"}};
    for (const Case& c : cases) {
        SaveDesk d;
        RiskSheet& s = d.openStock();
        Store& store = d.app.store();
        store.execute("insert into UploadFile (symbol, Indesc) values ('RILK2026', 'NOV SHEET')");
        store.execute("insert into DumUploadFile (symbol, Indesc) values ('RILK2026', 'NOV SHEET')");
        store.executeNative(std::string("CREATE TRIGGER full BEFORE INSERT ON ") + c.table +
                            " BEGIN SELECT RAISE(ABORT, 'disk full'); END");
        s.setText("TxtKeyOff", "K9");
        d.app.session().g_strDesc = "NIFTY NOV";
        s.SaveData();
        ASSERT_EQ(d.boxTexts().size(), 1u) << c.table;
        EXPECT_EQ(d.boxTexts()[0].rfind(c.box, 0), 0u) << d.boxTexts()[0];
        EXPECT_EQ(d.number(std::string("select count(*) from ") + c.table), c.rows) << c.table;
        EXPECT_EQ(d.head()["KeyOff"].text(), c.keyOff) << c.table;
        EXPECT_EQ(d.head().recordCount(), 1u) << "no head under the list's sheet";
        EXPECT_EQ(s.SavedBalance, Trim(s.text("TxtBalance")));
    }
}

TEST(SheetSave, ASheetWhoseLoadBrokeOffIsNeverSaved) {
    SaveDesk d;
    test::kSavedSheets[0].save(d.app.store());
    d.app.store().execute("drop table UploadFile"); // the working copy cannot be finished
    RiskSheet& s = d.open(SheetKind::Stock, test::kStockSymbol, test::kStockDesc);
    s.fire("Toolbar1(1)", EventType::Click);
    s.requestClose();
    const std::vector<std::string> boxes = d.boxTexts();
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[0].rfind("Error in DoInit Procedure: ", 0), 0u) << boxes[0];
    EXPECT_EQ(boxes[1].rfind("This sheet did not finish loading, so it cannot be saved", 0), 0u);
    EXPECT_EQ(boxes[2], "This sheet did not finish loading and was not saved.");
    EXPECT_EQ(d.number("select count(*) from Tracker"), 9) << "the committed trades stand";
    EXPECT_FALSE(s.visible());
}

TEST(SheetSave, TheUploadBookkeepingOfTheSheetIsReplaced) {
    SaveDesk d;
    RiskSheet& s = d.openStock();
    Store& store = d.app.store();
    store.execute("insert into UploadFile (tradedt, futstk, equity, symbol, Indesc) values "
                  "(cdate('20-Nov-2026'), 'old.txt', '', 'RILK2026', 'NOV SHEET')");
    store.execute("insert into UploadFile (tradedt, futstk, equity, symbol, Indesc) values "
                  "(cdate('20-Nov-2026'), 'other.txt', '', 'TCSK2026', 'OTHER')");
    store.execute("delete from DumUploadFile");
    store.execute("insert into DumUploadFile (tradedt, futstk, equity, symbol, Indesc) values "
                  "(cdate('21-Nov-2026'), 'fo21.txt', 'eq21.txt', 'RILK2026', 'NOV SHEET')");
    s.ErrProcAddUploadedFile();
    EXPECT_EQ(d.number("select count(*) from UploadFile where symbol = 'RILK2026'"), 1);
    EXPECT_EQ(d.number("select count(*) from UploadFile where futstk = 'fo21.txt' and equity = 'eq21.txt'"),
              1);
    EXPECT_EQ(d.number("select count(*) from UploadFile where symbol = 'TCSK2026'"), 1);
}

TEST(SheetSave, ASavedSheetReopensAsItWasSaved) {
    for (const test::SavedSheet& sheet : {test::kSavedSheets[0], test::kSavedSheets[2]}) {
        SaveDesk d;
        RiskSheet& s = test::openSaved(d, sheet);
        s.va1().activeRow = 4;
        d.ui.setModalRunner([](Form& dialog) {
            dialog.setText("TxtUnits", "3");
            dialog.setText("TxtTraded", "11");
            dialog.fire("Cmd(0)", EventType::Click);
        });
        s.fire("Toolbar1(2)", EventType::Click);
        s.fire("Toolbar1(1)", EventType::Click);
        const std::vector<std::string> saved = screenTexts(s);
        s.DoInit();
        EXPECT_EQ(screenTexts(s), saved) << sheet.name;
        EXPECT_TRUE(d.ui.boxes().empty()) << d.ui.boxes()[0].box.text;
        if (!sheet.stock()) {
            EXPECT_TRUE(d.app.store().query("select Field1 from PortfolioMast").at(0).isNull())
                << "the index head has no margin columns";
        }
    }
}
