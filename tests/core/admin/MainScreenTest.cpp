// The main screen: the list of sheets with their refresh dates, the current sheet, opening on
// the screen of the sheet's type, the delete through every table, and the ticked rows.
#include "AdminDesk.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tallimark;

namespace {

// Every table that keeps rows of a sheet, with the sheet's key columns in it.
const std::tuple<const char*, const char*, const char*> kSheetTables[] = {
    {"Trans", "InSymbol", "InDesc"},      {"PortfolioMast", "Symbol", "Descr"},
    {"PortfolioDet", "Symbol", "Descr"},  {"Tracker", "Symbol", "InDesc"},
    {"DummyTracker", "Symbol", "InDesc"}, {"DumUploadFile", "Symbol", "InDesc"},
    {"UploadFile", "Symbol", "InDesc"},   {"Closing", "Symbol", "Descr"},
};

// Three sheets in the store before the main screen loads.
struct ThreeSheets : test::AdminDesk {
    ThreeSheets() {
        addSheet("RILK2026", "NOVEMBER For A", "S", "20-11-2026");
        addSheet("RILK2026", "NOVEMBER For B", "S", "21-11-2026");
        addSheet("NIFX2026", "NIFTY For C", "F", "22-11-2026");
    }
};

struct MainDesk : ThreeSheets {
    FrmNewMainScreen& m = mainScreen();
    Grid& list = m.grid("ListView1");

    void click(int row) {
        list.activeRow = row;
        Event e{EventType::Click};
        e.row = row;
        m.fire("ListView1", e);
    }
    // A row in each of the other seven tables for the sheet.
    void fillTables(const std::string& symbol, const std::string& desc) {
        for (const auto& [table, symbolColumn, descColumn] : kSheetTables)
            if (std::string(table) != "Trans")
                app.store().execute(std::string("insert into ") + table + " (" + symbolColumn + ", " +
                                    descColumn + ") values (" + q(symbol) + ", " + q(desc) + ")");
    }
    // The sheet's rows in each table, one digit a table.
    std::string rowsOf(const std::string& symbol, const std::string& desc) {
        std::string n;
        for (const auto& [table, symbolColumn, descColumn] : kSheetTables)
            n +=
                std::to_string(count(std::string("select count(*) from ") + table + " where " + symbolColumn +
                                     " = " + q(symbol) + " and " + descColumn + " = " + q(desc)));
        return n;
    }
    // The list's rows, each as "symbol|description|refresh date".
    std::vector<std::string> rows() {
        std::vector<std::string> s;
        for (int r = 1; r <= list.maxRows(); ++r)
            s.push_back(list.text(r, 1) + "|" + list.text(r, 2) + "|" + list.text(r, 3));
        return s;
    }
};

} // namespace

TEST(MainScreen, ListsEverySheetWithItsRefreshDate) {
    MainDesk d;
    d.addSheet("  ABK2026 ", "padded", "S", "2026-11-23");
    d.m.PopulateLView();
    EXPECT_EQ(d.rows(), (std::vector<std::string>{
                            "RILK2026|NOVEMBER For A|20-11-2026", "RILK2026|NOVEMBER For B|21-11-2026",
                            "NIFX2026|NIFTY For C|22-11-2026", "ABK2026|padded|23-11-2026"}));
    EXPECT_EQ(d.list.activeRow, 1);
}

TEST(MainScreen, AnEmptyStoreGivesAnEmptyList) {
    test::AdminDesk d;
    FrmNewMainScreen& m = d.mainScreen();
    EXPECT_EQ(std::tuple(m.grid("ListView1").maxRows(), m.grid("ListView1").activeRow), std::tuple(0, 0));
    m.fire("Cmd(3)", EventType::Click); // nothing to delete, nothing asked
    m.fire("Cmd(1)", EventType::Click); // no current sheet, nothing opens
    EXPECT_TRUE(d.ui.boxes().empty());
    EXPECT_TRUE(d.stock.loads.empty());
}

TEST(MainScreen, AClickMakesTheCurrentSheetAndOpenLoadsItOnItsTypesScreen) {
    MainDesk d;
    d.click(2);
    const Session& s = d.app.session();
    EXPECT_EQ(s.g_strSymbol + "|" + s.g_strDesc + "|" + s.gRefreshDate, "RILK2026|NOVEMBER For B|21-11-2026");

    d.m.fire("Cmd(1)", EventType::Click);
    EXPECT_EQ(s.gOpenMode, 1);
    EXPECT_EQ(d.stock.loads, std::vector<std::string>{"RILK2026|NOVEMBER For B"});
    EXPECT_TRUE(d.stock.visible());
    EXPECT_EQ(d.stock.focused(), "TxtDays");

    // A double click and Enter in the list open as the button does; any type but "S" is an
    // index sheet.
    d.addSheet("XYZA2026", "odd type", "Q", "23-11-2026");
    d.m.PopulateLView();
    d.click(3);
    d.m.fire("ListView1", EventType::DblClick);
    d.click(4);
    EXPECT_EQ(test::pressKey(d.m, "ListView1", keys::Enter).keyCode, 0);
    EXPECT_EQ(d.index.loads, (std::vector<std::string>{"NIFX2026|NIFTY For C", "XYZA2026|odd type"}));
    EXPECT_EQ(d.index.focused(), "TxtSymbol");
    EXPECT_EQ(d.stock.loads.size(), 1u);
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(MainScreen, DeleteAsksAndClearsEveryTableOfOneSheetOnlyAndTheListFollows) {
    MainDesk d;
    for (const char* desc : {"NOVEMBER For A", "NOVEMBER For B"})
        d.fillTables("RILK2026", desc);
    d.fillTables("NIFX2026", "NIFTY For C");
    ASSERT_EQ(d.rowsOf("RILK2026", "NOVEMBER For B"), "11111111");
    d.list.setChecked(3, true);

    d.click(2);
    d.ui.queueAnswer(MsgAnswer::No);
    d.m.fire("Cmd(3)", EventType::Click);
    EXPECT_EQ(d.boxLines(),
              std::vector<std::string>{"Delete Record|Are you sure you wish to delete record?|question"});
    EXPECT_EQ(d.ui.boxes()[0].box.buttons, MsgButtons::YesNo);
    EXPECT_EQ(d.rowsOf("RILK2026", "NOVEMBER For B"), "11111111");
    EXPECT_EQ(d.list.maxRows(), 3);

    d.m.fire("Cmd(3)", EventType::Click); // the first button, Yes, answers from here on
    EXPECT_EQ(d.rowsOf("RILK2026", "NOVEMBER For B"), "00000000");
    EXPECT_EQ(d.rowsOf("RILK2026", "NOVEMBER For A"), "11111111");
    EXPECT_EQ(d.rows(), (std::vector<std::string>{"RILK2026|NOVEMBER For A|20-11-2026",
                                                  "NIFX2026|NIFTY For C|22-11-2026"}));
    EXPECT_EQ(d.list.activeRow, 1) << "the item before the deleted one";
    EXPECT_TRUE(d.list.checked(2) && !d.list.checked(1)) << "a tick moves with its row";

    // A listed date that does not match the sheet's leaves its own row, and only that.
    d.list.setText(2, 3, "01-01-2020");
    d.click(2);
    d.m.fire("Cmd(3)", EventType::Click);
    EXPECT_EQ(d.rowsOf("NIFX2026", "NIFTY For C"), "10000000");
    EXPECT_EQ(d.list.maxRows(), 1) << "gone from the list until it is drawn again";
    d.m.PopulateLView();
    EXPECT_EQ(d.list.maxRows(), 2);

    // The first item deleted leaves the new first selected; the last empties the list.
    d.click(1);
    d.m.fire("Cmd(3)", EventType::Click);
    EXPECT_EQ(d.rows(), std::vector<std::string>{"NIFX2026|NIFTY For C|22-11-2026"});
    EXPECT_EQ(d.list.activeRow, 1);
    d.m.fire("Cmd(3)", EventType::Click);
    EXPECT_EQ(std::tuple(d.list.maxRows(), d.list.activeRow, d.transRows()), std::tuple(0, 0, 0LL));
}

TEST(MainScreen, PositionFileAndTwoContractTakeTheTickedRows) {
    // Two ticked sheets of different types: TwoContract.SheetsOfTwoTypesAreRefused.
    MainDesk d;
    auto& comparison = d.app.screens().get<test::TwoContractStandIn>();
    d.m.show();
    d.m.fire("Command2", EventType::Click);
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Data Error|Please select the Scripts from the grid "
                                                     "whose \"pon\" file is to be created.|information"});
    EXPECT_EQ(d.m.focused(), "ListView1");
    EXPECT_TRUE(d.m.visible());
    d.ui.clearBoxes();

    d.list.setChecked(1, true);
    d.m.fire("CmdTwoContract", EventType::Click);
    EXPECT_EQ(d.takeBoxes(), std::vector<std::string>{"Please select two Scripts from the grid to compare."});

    d.list.setChecked(3, true);
    d.m.fire("Command2", EventType::Click);
    // Indices 0 to N-1 hold the ticked rows; the upper bound is N+1.
    const Session& s = d.app.session();
    EXPECT_EQ(s.gPonSymbols, (std::vector<std::string>{"RILK2026", "NIFX2026", "", ""}));
    EXPECT_EQ(s.gPonDescs, (std::vector<std::string>{"NOVEMBER For A", "NIFTY For C", "", ""}));
    EXPECT_TRUE(!d.m.visible() && d.app.screens().find("FrmCreatePon")->visible()) << "handed over";

    d.list.setChecked(2, true);
    d.m.fire("CmdTwoContract", EventType::Click);
    EXPECT_EQ(d.takeBoxes(), std::vector<std::string>{"Run-time error '9':\n\nSubscript out of range"});
    EXPECT_EQ(comparison.inits, 0);
    d.list.setChecked(3, false);
    d.m.fire("CmdTwoContract", EventType::Click);
    EXPECT_TRUE(d.ui.boxes().empty());
    EXPECT_TRUE(comparison.inits == 1 && comparison.visible());
    EXPECT_EQ(comparison.Symbol1 + "|" + comparison.Descr1 + "|" + comparison.RefreshDt1 + "|" +
                  comparison.Symbol2 + "|" + comparison.Descr2 + "|" + comparison.RefreshDt2,
              "RILK2026|NOVEMBER For A|20-11-2026|RILK2026|NOVEMBER For B|21-11-2026");
}

TEST(MainScreen, ExitAndLoadSpanHideQuitOrEscEndsTheProgram) {
    MainDesk d;
    d.m.show();
    d.m.fire("Command1", EventType::Click);
    EXPECT_TRUE(!d.m.visible() && d.app.storeOpen()) << "Exit only hides";
    d.m.show();
    d.m.fire("Command3", EventType::Click);
    EXPECT_TRUE(!d.m.visible() && d.app.screens().find("FrmSpan_Load")->visible()) << "Load Span hands over";

    // Each ends the program through the main frame's close, whose unloading and closing of the
    // store StartUp.LoginThenTheMainFrameWhoseCloseEndsTheProgram checks.
    EXPECT_THROW(test::pressKey(d.m, "Cmd(1)", keys::Escape), ProgramEnd);
    MainDesk again;
    EXPECT_THROW(again.m.fire("Cmd(4)", EventType::Click), ProgramEnd);
    MainDesk closing;
    EXPECT_THROW(closing.m.requestClose(), ProgramEnd);
}
