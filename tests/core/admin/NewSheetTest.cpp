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
};

} // namespace

TEST(NewSheet, TheSearchDialogGivesNameAndCodeOrClearsBothAndBlankChoicesAreNamed) {
    NewSheetDesk d;
    // The dialog lists the scripts by name: RELIANCE, then STATE BANK.
    d.ui.setModalRunner([](Form& dialog) {
        dialog.grid("DB1").activeRow = 2;
        dialog.fire("cmd_ok", EventType::Click);
    });
    d.f.fire("cmdScriptNm", EventType::Click);
    EXPECT_EQ(d.f.ScrCode, "SBI");
    d.f.moveFocus("Combo1");
    d.f.setText("Combo1", "JANUARY");
    d.f.moveFocus("TxtYear");
    EXPECT_EQ(d.f.text("TxtDesc"), "STATE BANKJANUARY For ");

    d.ui.setModalRunner([](Form& dialog) { test::pressKey(dialog, "cmd_ok", keys::Escape); });
    d.f.fire("cmdScriptNm", EventType::Click);
    EXPECT_EQ(d.f.text("TxtScriptNM"), "");
    EXPECT_EQ(d.f.ScrCode, "");
    EXPECT_TRUE(d.ui.boxes().empty());

    // An unknown script in the combo clears the choice; blank choices are named.
    d.f.setText("DataCombo1", "RELIANCE");
    d.f.setText("TxtScriptNM", "RELIANCE");
    d.f.setText("DataCombo1", "NO SUCH SCRIPT");
    EXPECT_EQ(d.f.ScrCode, "");
    EXPECT_EQ(d.f.text("TxtScriptNM"), "");
    d.f.setText("DataCombo1", "");
    d.f.moveFocus("Combo1");
    d.f.setText("Combo1", "");
    d.f.moveFocus("TxtYear");
    EXPECT_EQ(d.boxLines(), (std::vector<std::string>{"Script Select|Pls Select the Script Name|none",
                                                      "Month Select|Pls Select the Month|none"}));
}

// The save stores the sheet's row, opens it on the screen of its type and lists it; a second sheet
// may share the symbol under another description. (A futures sheet's way is the batch test's.)
TEST(NewSheet, SavingStoresTheRowAndOpensTheSheet) {
    NewSheetDesk d;
    d.choose("STATE BANK", "DECEMBER");
    d.fill("DECEMBER For hedge", "2500");
    d.save();
    ASSERT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    Recordset rs = d.app.store().query("select * from Trans");
    std::string row;
    for (const char* column :
         {"InType", "InSymbol", "InDesc", "MidStrike", "AStrike", "BStrike", "UComm", "DIntRate", "Transdt",
          "FIntRate", "Iterations", "OptComm", "KeySpread", "KeySymbol", "KeyType", "OptModel", "PSource"})
        row += "|" + rs[column].textOrEmpty();
    // A null rate difference reads as 0; the columns this screen does not offer are 0 or empty.
    EXPECT_EQ(row.substr(1), "S|SBIL2026|DECEMBER For hedge|2500|5|5|0|10|23-11-2026|0|0|0|||||");
    EXPECT_EQ(d.transRows(), 1);
    EXPECT_EQ(d.app.session().gOpenMode, 2);
    EXPECT_EQ(DateText(d.app.session().g_ExpiryDate), "31-12-2026");
    EXPECT_EQ(d.stock.loads, std::vector<std::string>{"SBIL2026|DECEMBER For hedge"});
    EXPECT_TRUE(d.index.loads.empty());
    EXPECT_FALSE(d.f.visible());
    for (const char* cleared :
         {"TxtScriptNM", "TxtInSymbol", "TxtDesc", "TxtRateDiff", "TxtMStrike", "TxtAStrike", "TxtBStrike"})
        EXPECT_EQ(d.f.text(cleared), "") << cleared;
    EXPECT_EQ(d.mainScreen().grid("ListView1").maxRows(), 1);

    d.f.show();
    d.choose("STATE BANK", "DECEMBER");
    d.fill("DECEMBER For book B", "2500");
    d.refill();
    d.save();
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    EXPECT_EQ(d.count("select count(*) from Trans where InSymbol = 'SBIL2026'"), 2);
    EXPECT_EQ(d.mainScreen().grid("ListView1").maxRows(), 2);
}

TEST(NewSheet, RefusalsNameTheFaultAndLeaveTheStoreAsItWas) {
    const char* const format = "Entry Error|Symbol not in correct format";
    const std::string noDate = std::string("Entry Error|") + kDeskDateForms;
    struct Case {
        const char *name, *symbol, *desc, *aStrike, *expiry, *box, *focus;
        const char* emptied; // nullptr: the symbol stays as typed
    } cases[] = {
        {"nine characters", "RILXK2026", "NEW", "5", nullptr, format, "Combo1", "TxtInSymbol"},
        {"year not numeric", "RILK20X6", "NEW", "5", nullptr, format, "Combo1", "TxtInSymbol"},
        {"too short for a year", "K26", "NEW", "5", nullptr, format, "Combo1", "TxtInSymbol"},
        {"futures letter on a stock sheet", "RILX2026", "NEW", "5", nullptr,
         "Entry Error|Code for month in Instrument symbol is incorrect, Please enter correct code", "Combo1",
         "TxtInSymbol"},
        {"description taken", "RILK2026", "TAKEN", "5", nullptr,
         "Duplicate Entries|Script Already Exists, Please Change the description", "TxtDesc", "TxtDesc"},
        {"no strikes above", "RILK2026", "NEW", "", nullptr, "Error|Failed in Adding Record", "CmdOk",
         nullptr},
        {"three million strikes", "RILK2026", "NEW", "3000000", nullptr,
         "Wrong Input |The ladder takes at most 1000 strikes above and below the middle strike.",
         "TxtAStrike", nullptr},
        {"an expiry that is no date", "RILK2026", "NEW", "5", "31-11-2026", noDate.c_str(), "DTPicker1",
         nullptr},
    };
    for (const Case& c : cases) {
        NewSheetDesk d;
        d.addSheet("RILK2026", "TAKEN", "S", "01-11-2026");
        d.f.setText("TxtInSymbol", c.symbol);
        d.fill(c.desc, "2500");
        d.refill();
        d.f.setText("TxtAStrike", c.aStrike);
        if (c.expiry) d.f.setText("DTPicker1", c.expiry);
        d.save();
        EXPECT_EQ(d.boxLines(), std::vector<std::string>{std::string(c.box) + "|critical"}) << c.name;
        EXPECT_EQ(d.transRows(), 1) << c.name;
        EXPECT_TRUE(d.f.visible()) << c.name;
        EXPECT_EQ(d.f.focused(), c.focus) << c.name;
        EXPECT_EQ(d.f.text(c.emptied ? c.emptied : "TxtInSymbol"), c.emptied ? "" : c.symbol) << c.name;
    }
}

TEST(NewSheet, FieldsCheckAndFormatWhenLeft) {
    NewSheetDesk d;
    struct Case {
        const char *field, *typed, *shown;
        const char* box; // nullptr: no box
    } cases[] = {
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
        EXPECT_EQ(d.boxLines(), c.box
                                    ? std::vector<std::string>{std::string("Entry Error|") + c.box + "|none"}
                                    : std::vector<std::string>{})
            << c.field << " " << c.typed;
        // The focus stays in a refused field.
        EXPECT_EQ(d.f.focused(), c.box ? c.field : "TxtBStrike") << c.field << " " << c.typed;
    }
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
    FrmNewScript& f = d.app.screens().get<FrmNewScript>();
    f.show();
    f.setValue("OptInType(0)", true);
    f.setText("TxtInSymbol", "NIFX2026");
    f.setText("TxtMStrike", "20000");
    f.setText("TxtRateDiff", "0");
    f.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.boxTexts(), std::vector<std::string>{"The risk sheet screen FrmPortfolioIndex is not "
                                                     "available, so the sheet cannot be opened."});
    EXPECT_EQ(d.app.store().query("select count(*) from Trans").at(0).number(), 1) << "the sheet is stored";
}
