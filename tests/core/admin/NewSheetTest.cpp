// The new-sheet screen: the symbol built and checked, the sheet's row of Trans, and the sheet
// opened on the screen of its type.
#include "AdminDesk.h"
#include "frame/DeskDate.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct NewSheetDesk : test::AdminDesk {
    FrmNewScript& f = newSheet();

    // Script by the combo, month by leaving the month box, as at the desk.
    void choose(const std::string& script, const std::string& month, bool futures = false) {
        f.setValue(futures ? "OptInType(0)" : "OptInType(1)", true);
        f.setText("DataCombo1", script);
        f.moveFocus("Combo1");
        f.setText("Combo1", month);
        f.moveFocus("TxtYear");
    }
    void fill(const std::string& desc, const std::string& midStrike) {
        f.setText("TxtDesc", desc);
        f.moveFocus("TxtMStrike");
        f.setText("TxtMStrike", midStrike);
    }
    // A save clears the strikes and the rate difference; the next sheet types them again.
    void refill() {
        f.setText("TxtAStrike", "5");
        f.setText("TxtBStrike", "5");
        f.setText("TxtRateDiff", "2.5");
    }
    // Pressing the button takes the focus to it first.
    void save() {
        f.moveFocus("CmdOk");
        f.fire("CmdOk", EventType::Click);
    }
    std::string transText(const std::string& column, const std::string& desc) {
        return app.store()
            .query("select " + column + " from Trans where InDesc = " + q(desc))[column]
            .textOrEmpty();
    }
};

} // namespace

TEST(NewSheet, ScriptAndMonthBuildTheSymbolTheDescriptionAndTheExpiry) {
    NewSheetDesk d;
    d.choose("RELIANCE", "NOVEMBER");
    EXPECT_EQ(d.f.ScrCode, "RIL");
    EXPECT_EQ(d.f.text("TxtRateDiff"), "2.5");
    EXPECT_EQ(d.f.MonthCode, "K");
    EXPECT_EQ(d.f.text("TxtInSymbol"), "RILK2026");
    EXPECT_EQ(d.f.text("TxtDesc"), "NOVEMBER For "); // the combo leaves the name field as it was
    EXPECT_EQ(d.f.text("DTPicker1"), "26-Nov-26");

    d.choose("STATE BANK", "DECEMBER", true);
    EXPECT_EQ(d.f.text("TxtInSymbol"), "SBIZ2026");
    EXPECT_EQ(d.f.text("TxtRateDiff"), "0") << "a null rate difference reads as 0";
    EXPECT_EQ(d.f.text("DTPicker1"), "31-Dec-26");
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(NewSheet, TheSearchDialogGivesNameAndCodeOrClearsBoth) {
    NewSheetDesk d;
    // The dialog lists the scripts by name: RELIANCE, then STATE BANK.
    d.ui.setModalRunner([](Form& dialog) {
        dialog.grid("DB1").activeRow = 2;
        dialog.fire("cmd_ok", EventType::Click);
    });
    d.f.fire("cmdScriptNm", EventType::Click);
    EXPECT_EQ(d.f.text("TxtScriptNM"), "STATE BANK");
    EXPECT_EQ(d.f.ScrCode, "SBI");
    d.f.moveFocus("Combo1");
    d.f.setText("Combo1", "JANUARY");
    d.f.moveFocus("TxtYear");
    EXPECT_EQ(d.f.text("TxtInSymbol"), "SBIA2026");
    EXPECT_EQ(d.f.text("TxtDesc"), "STATE BANKJANUARY For ");

    d.ui.setModalRunner([](Form& dialog) { test::pressKey(dialog, "cmd_ok", keys::Escape); });
    d.f.fire("cmdScriptNm", EventType::Click);
    EXPECT_EQ(d.f.text("TxtScriptNM"), "");
    EXPECT_EQ(d.f.ScrCode, "");
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(NewSheet, AnExpiryThatIsNoDateIsRefusedBeforeTheSheetIsWritten) {
    NewSheetDesk d;
    d.choose("RELIANCE", "NOVEMBER");
    d.fill("NOVEMBER For A", "2500");
    d.refill();
    d.f.setText("DTPicker1", "31-11-2026");
    d.save();
    EXPECT_EQ(d.boxLines(),
              std::vector<std::string>{"Entry Error|" + std::string(kDeskDateForms) + "|critical"});
    EXPECT_TRUE(
        d.app.store().query("select InSymbol from Trans where InDesc = " + q("NOVEMBER For A")).eof());
    EXPECT_EQ(d.f.focused(), "DTPicker1");
}

TEST(NewSheet, BlankOrUnknownChoicesAreNamed) {
    NewSheetDesk d;
    d.f.setText("DataCombo1", "RELIANCE");
    d.f.setText("TxtScriptNM", "RELIANCE");
    d.f.setText("DataCombo1", "NO SUCH SCRIPT");
    EXPECT_EQ(d.f.ScrCode, "");
    EXPECT_EQ(d.f.text("TxtScriptNM"), "");
    d.f.setText("DataCombo1", "");
    d.f.moveFocus("Combo1");
    d.f.moveFocus("TxtYear");
    EXPECT_EQ(d.boxLines(), (std::vector<std::string>{"Script Select|Pls Select the Script Name|none",
                                                      "Month Select|Pls Select the Month|none"}));
}

TEST(NewSheet, SavingAStockSheetStoresItsRowAndOpensIt) {
    NewSheetDesk d;
    d.choose("RELIANCE", "NOVEMBER");
    d.fill("NOVEMBER For hedge", "2500");
    d.f.moveFocus("TxtAStrike");
    EXPECT_EQ(d.f.text("TxtMStrike"), "2500.00");
    d.save();

    ASSERT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    Recordset rs = d.app.store().query("select * from Trans");
    ASSERT_FALSE(rs.eof());
    const std::pair<const char*, const char*> expected[] = {
        {"DIntRate", "10"},       {"FIntRate", "0"},        {"InDesc", "NOVEMBER For hedge"},
        {"InSymbol", "RILK2026"}, {"InType", "S"},          {"Iterations", "0"},
        {"KeySpread", ""},        {"KeySymbol", ""},        {"KeyType", ""},
        {"MidStrike", "2500"},    {"OptComm", "0"},         {"OptModel", ""},
        {"PSource", ""},          {"AStrike", "5"},         {"BStrike", "5"},
        {"UComm", "2.5"},         {"Transdt", "23-11-2026"}};
    for (const auto& [column, value] : expected)
        EXPECT_EQ(rs[column].textOrEmpty(), value) << column;
    rs.moveNext();
    EXPECT_TRUE(rs.eof());

    const Session& s = d.app.session();
    EXPECT_EQ(s.g_strSymbol, "RILK2026");
    EXPECT_EQ(s.g_strDesc, "NOVEMBER For hedge");
    EXPECT_EQ(s.gOpenMode, 2);
    EXPECT_EQ(DateText(s.g_ExpiryDate), "26-11-2026");
    EXPECT_EQ(d.stock.loads, std::vector<std::string>{"RILK2026|NOVEMBER For hedge"});
    EXPECT_TRUE(d.stock.visible());
    EXPECT_EQ(d.stock.focused(), "TxtDays");
    EXPECT_TRUE(d.index.loads.empty());
    EXPECT_FALSE(d.f.visible());
    for (const char* cleared :
         {"TxtScriptNM", "TxtInSymbol", "TxtDesc", "TxtRateDiff", "TxtMStrike", "TxtAStrike", "TxtBStrike"})
        EXPECT_EQ(d.f.text(cleared), "") << cleared;

    Grid& list = d.mainScreen().grid("ListView1");
    ASSERT_EQ(list.maxRows(), 1);
    EXPECT_EQ(list.text(1, 1), "RILK2026");
    EXPECT_EQ(list.text(1, 3), "23-11-2026");
}

TEST(NewSheet, AFuturesSheetOpensOnTheIndexScreen) {
    NewSheetDesk d;
    d.choose("RELIANCE", "MARCH", true);
    d.fill("MARCH For spread", "2400");
    d.f.setText("TxtDRate", "8.5%");
    d.save();
    EXPECT_EQ(d.transText("InType", "MARCH For spread"), "F");
    EXPECT_EQ(d.transText("InSymbol", "MARCH For spread"), "RILH2026");
    EXPECT_EQ(d.transText("DIntRate", "MARCH For spread"), "8.5");
    EXPECT_EQ(DateText(d.app.session().g_ExpiryDate), "26-03-2026");
    EXPECT_EQ(d.index.loads, std::vector<std::string>{"RILH2026|MARCH For spread"});
    EXPECT_EQ(d.index.focused(), "TxtSymbol");
}

TEST(NewSheet, TwoSheetsMayShareASymbolWithDifferentDescriptions) {
    NewSheetDesk d;
    for (const char* desc : {"NOVEMBER For book A", "NOVEMBER For book B"}) {
        d.f.show();
        d.choose("RELIANCE", "NOVEMBER");
        d.fill(desc, "2500");
        d.refill();
        d.save();
    }
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    EXPECT_EQ(d.count("select count(*) from Trans where InSymbol = 'RILK2026'"), 2);
    EXPECT_EQ(d.mainScreen().grid("ListView1").maxRows(), 2);
}

TEST(NewSheet, RefusalsNameTheFaultAndLeaveTheStoreAsItWas) {
    struct Case {
        const char* name;
        const char* symbol;
        const char* desc;
        const char* aStrike;
        const char* box;
        const char* title;
        const char* focus;
    } cases[] = {
        {"nine characters", "RILXK2026", "NEW For a", "5", "Symbol not in correct format", "Entry Error",
         "Combo1"},
        {"year not numeric", "RILK20X6", "NEW For a", "5", "Symbol not in correct format", "Entry Error",
         "Combo1"},
        {"too short for a year", "K26", "NEW For a", "5", "Symbol not in correct format", "Entry Error",
         "Combo1"},
        {"futures letter on a stock sheet", "RILX2026", "NEW For a", "5",
         "Code for month in Instrument symbol is incorrect, Please enter correct code", "Entry Error",
         "Combo1"},
        {"description taken", "RILK2026", "TAKEN", "5",
         "Script Already Exists, Please Change the description", "Duplicate Entries", "TxtDesc"},
        {"no strikes above", "RILK2026", "NEW For a", "", "Failed in Adding Record", "Error", nullptr},
        {"three million strikes", "RILK2026", "NEW For a", "3000000",
         "The ladder takes at most 1000 strikes above and below the middle strike.", "Wrong Input ",
         "TxtAStrike"},
    };
    for (const Case& c : cases) {
        NewSheetDesk d;
        d.addSheet("RILK2026", "TAKEN", "S", "01-11-2026");
        d.f.setText("TxtInSymbol", c.symbol);
        d.fill(c.desc, "2500");
        d.f.setText("TxtRateDiff", "2.5");
        d.f.setText("TxtAStrike", c.aStrike);
        d.save();
        EXPECT_EQ(d.boxLines(), std::vector<std::string>{std::string(c.title) + "|" + c.box + "|critical"})
            << c.name;
        EXPECT_EQ(d.transRows(), 1) << c.name;
        EXPECT_TRUE(d.stock.loads.empty()) << c.name;
        EXPECT_TRUE(d.f.visible()) << c.name;
        if (c.focus) {
            EXPECT_EQ(d.f.focused(), c.focus) << c.name;
        }
        if (std::string(c.title) == "Entry Error") {
            EXPECT_EQ(d.f.text("TxtInSymbol"), "") << c.name;
        }
        if (std::string(c.title) == "Duplicate Entries") {
            EXPECT_EQ(d.f.text("TxtDesc"), "") << c.name;
        }
    }
}

TEST(NewSheet, FieldsCheckAndFormatWhenLeft) {
    NewSheetDesk d;
    struct Case {
        const char* field;
        const char* typed;
        const char* shown;
        const char* box; // nullptr: no box
    } cases[] = {
        {"TxtDRate", "12", "12.00%", nullptr},
        {"TxtDRate", "", "0.00%", nullptr},
        {"TxtDRate", "9.5%", "9.50%", nullptr},
        {"TxtMStrike", "1234.5", "1234.50", nullptr},
        {"TxtMStrike", "", "", "Blank not acceptable here"},
        {"TxtMStrike", "12a", "", "Only Numeric values allowed here"},
    };
    for (const Case& c : cases) {
        d.ui.clearBoxes();
        d.f.moveFocus(c.field);
        d.f.setText(c.field, c.typed);
        d.f.moveFocus("TxtBStrike");
        EXPECT_EQ(d.f.text(c.field), c.shown) << c.field << " " << c.typed;
        EXPECT_EQ(d.boxTexts(), c.box ? std::vector<std::string>{c.box} : std::vector<std::string>{});
        if (c.box) {
            EXPECT_EQ(d.ui.boxes()[0].box.title, "Entry Error");
            EXPECT_EQ(d.f.focused(), c.field) << "the focus stays";
        }
    }
}

TEST(NewSheet, AltKeysChooseTheTypeAndEscCloses) {
    NewSheetDesk d;
    EXPECT_EQ(test::pressKey(d.f, "TxtDesc", 'F', keys::AltMask).keyCode, 0);
    EXPECT_TRUE(d.f.control("OptInType(0)").value);
    test::pressKey(d.f, "Combo1", 'S', keys::AltMask);
    EXPECT_TRUE(d.f.control("OptInType(1)").value);
    EXPECT_FALSE(d.f.control("OptInType(0)").value);

    d.f.setText("TxtDesc", "abc");
    d.f.moveFocus("TxtDesc");
    EXPECT_EQ(d.f.control("TxtDesc").selLength, 3);

    test::pressKey(d.f, "TxtYear", keys::Escape);
    EXPECT_EQ(d.app.screens().find(FrmNewScript::kName), nullptr);
}

namespace {
// An index screen that is no sheet screen, standing where the sheet would open.
struct PlainIndex : Form {
    static constexpr const char* kName = "FrmPortfolioIndex";
    explicit PlainIndex(App& app) : Form(app, kName, kName) {}
};
} // namespace

TEST(NewSheet, AScreenThatCannotTakeASheetIsNamed) {
    test::Desk d;
    d.app.screens().get<PlainIndex>();
    d.app.store().execute("insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('NIF', 'NIFTY', 0)");
    FrmNewScript& f = d.app.screens().get<FrmNewScript>();
    f.show();
    f.setValue("OptInType(0)", true);
    f.setText("TxtInSymbol", "NIFX2026");
    f.setText("TxtDesc", "INDEX For a");
    f.setText("TxtMStrike", "20000");
    f.setText("TxtRateDiff", "0");
    f.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.boxTexts(), std::vector<std::string>{"The risk sheet screen FrmPortfolioIndex is not "
                                                     "available, so the sheet cannot be opened."});
    EXPECT_EQ(d.app.store().query("select count(*) from Trans").at(0).number(), 1) << "the sheet is stored";
}
