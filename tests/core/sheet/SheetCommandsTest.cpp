// The sheet's toolbar, menus and keys, the two trade entries on a saved sheet and the close of
// the screen with its question.
#include "SheetDesk.h"

#include "frame/Screens.h"
#include "tracker/FrmOption.h"
#include "tracker/FrmUnderlying.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

const Rgb kRed = RGB(255, 0, 0), kCyan = RGB(0, 255, 255);

struct CommandDesk : test::SheetDesk {
    RiskSheet& stock() { return test::openSavedScenario(*this, SheetKind::Stock); }
    RiskSheet& index() { return test::openSavedScenario(*this, SheetKind::Index); }

    static void key(Form& form, int keyCode, int shift = 0) {
        test::pressKey(form, "TxtNet", keyCode, shift);
    }
    // The entry dialog takes these texts and the button pressed; the fields it came up with are kept.
    void answerEntry(std::map<std::string, std::string> texts, const char* button = "Cmd(0)") {
        ui.setModalRunner([this, texts, button](Form& dialog) {
            shown.clear();
            for (const std::string& name : dialog.controlOrder())
                shown[name] = dialog.text(name);
            for (const auto& [field, text] : texts)
                dialog.setText(field, text);
            dialog.fire(button, EventType::Click);
        });
    }
    double ledger(const std::string& where) {
        return number("select count(*) from DummyTracker where " + where);
    }

    std::map<std::string, std::string> shown;
};

bool shownScreen(App& app, const char* name) {
    Form* f = app.screens().find(name);
    return f && f->visible();
}

} // namespace

TEST(SheetCommands, AltLettersOpenTheScreensOfTheirSheetKind) {
    struct Case {
        char letter;
        const char* stockScreen;
        const char* indexScreen;
    } cases[] = {
        {'R', "FrmNewCharges", "FrmChargesExl"}, {'T', "FrmTradeTracker", "FrmTradeTracker"},
        {'L', "FrmUpload", "FrmUploadFut"},      {'S', "FrmSimulation", "FrmSimulation"},
        {'G', "FrmListGraph", "FrmListGraph"},   {'P', "FrmPrintOption", "FrmPrintOption"},
    };
    for (const Case& c : cases)
        for (bool onIndex : {false, true}) {
            CommandDesk d;
            RiskSheet& s = onIndex ? d.index() : d.stock();
            d.app.session().g_strSymbol = "OTHER"; // a click on the main screen's list meanwhile
            CommandDesk::key(s, c.letter, keys::AltMask);
            EXPECT_TRUE(shownScreen(d.app, onIndex ? c.indexScreen : c.stockScreen)) << c.letter << onIndex;
            EXPECT_EQ(d.app.session().g_strSymbol, s.OwnSymbol) << "the screen opens on its own sheet";
            d.app.session().g_strSymbol = "OTHER";
            s.fire("Form", EventType::Activate);
            EXPECT_EQ(d.app.session().g_strSymbol, s.OwnSymbol) << "and is current again when active";
        }
}

TEST(SheetCommands, KeysMoveTheFocus) {
    struct Case {
        int key, shift;
        const char* focus;
    } cases[] = {{'D', keys::AltMask, "TxtDays"},   {'M', keys::AltMask, "TxtMktPrice"},
                 {'C', keys::AltMask, "TxtImpVol"}, {'V', keys::AltMask, "TxtImpVolP"},
                 {'E', keys::AltMask, "va1"},       {keys::F3, 0, "va1"}};
    for (const Case& c : cases) {
        CommandDesk d;
        RiskSheet& s = d.stock();
        s.moveFocus("TxtNet");
        CommandDesk::key(s, c.key, c.shift);
        EXPECT_EQ(s.focused(), c.focus) << c.key;
    }
}

TEST(SheetCommands, OptionOnABlankRowIsRefused) {
    CommandDesk d;
    RiskSheet& s = d.stock();
    s.va1().activeRow = 1; // the heading row holds no strike
    CommandDesk::key(s, keys::F1);
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Error|Pls Select the Call/Put Value|critical"});
    EXPECT_FALSE(shownScreen(d.app, "FrmOption"));
}

TEST(SheetCommands, AnOptionTradeNetsIntoItsRowAndGoesToTheLedger) {
    // Row 4 of the saved stock sheet is 980 C holding 15 at 21 (SheetScenarios.h).
    struct Case {
        const char* units;
        const char* traded;
        const char* unitsCell; // column 3 after the trade
        const char* tradedCell;
        std::optional<Rgb> fore;
    } cases[] = {
        // The averages by hand from the ledger's 10 at 20 and 5 at 23: (200 + 115 + 112.5) / 20 and
        // (200 + 115 - 380) / -5.
        {"5", "22.5", "20", "21.38", kCyan},
        {"-20", "19", "-5", "13", kRed},
        {"-15", "18", "0", "", std::nullopt}, // closed out: the trade is kept
    };
    for (const Case& c : cases) {
        CommandDesk d;
        RiskSheet& s = d.stock();
        const double before = d.ledger("Strike = 980 and CP = 'C'");
        s.va1().activeRow = 4;
        d.answerEntry({{"TxtUnits", c.units}, {"TxtTraded", c.traded}});
        s.fire("Toolbar1(2)", EventType::Click);
        EXPECT_EQ(d.shown["lblStrike"], "980.00 C");
        EXPECT_EQ(d.shown["TxtImpVolF"], s.va1().text(4, 6)) << "the row's volatility";
        EXPECT_EQ(s.va1().text(4, 3), c.unitsCell) << c.units;
        EXPECT_EQ(s.va1().text(4, 4), c.tradedCell);
        if (c.fore) {
            EXPECT_EQ(s.va1().cell(4, 3).fore, c.fore);
        }
        EXPECT_EQ(d.ledger("Strike = 980 and CP = 'C'"), before + 1);
        EXPECT_EQ(d.ledger("Strike = 980 and CP = 'C' and Units = " + std::string(c.units) +
                           " and Traded = " + c.traded),
                  1);
        EXPECT_FALSE(d.app.screens().get<FrmOption>().OK) << "the sheet clears the flag it took";
    }
}

TEST(SheetCommands, ACancelledEntryLeavesTheSheetAsItStood) {
    CommandDesk d;
    RiskSheet& s = d.stock();
    s.va1().activeRow = 4;
    const double before = d.ledger("1 = 1");
    d.answerEntry({{"TxtUnits", "7"}}, "Cmd(1)");
    s.fire("Toolbar1(2)", EventType::Click);
    d.answerEntry({{"TxtUnits", "7"}}, "Cmd(1)");
    s.fire("Toolbar1(3)", EventType::Click);
    EXPECT_EQ(s.va1().text(4, 3), "15");
    EXPECT_EQ(d.ledger("1 = 1"), before);
}

TEST(SheetCommands, TheIndexSheetPresetsTheSideVolatility) {
    // The saved index sheet's volatilities: 20 for calls, 22 for puts; rows 2 and 3 are 5800 C and P.
    for (int row : {2, 3}) {
        CommandDesk d;
        RiskSheet& s = d.index();
        s.va1().activeRow = row;
        d.answerEntry({{"TxtUnits", "10"}, {"TxtTraded", "40"}});
        s.fire("Toolbar1(2)", EventType::Click);
        EXPECT_EQ(d.shown["TxtImpVolF"], row == 2 ? "20" : "22");
        EXPECT_EQ(s.va1().text(row, 3), "10");
        EXPECT_EQ(d.ledger("Strike = 5800 and Units = 10"), 1);
    }
}

TEST(SheetCommands, AnUnderlyingTradeSetsThePositionFieldsAndTheLedger) {
    for (bool onIndex : {false, true}) {
        CommandDesk d;
        RiskSheet& s = onIndex ? d.index() : d.stock();
        const std::string price = s.text("TxtMktPrice");
        d.answerEntry({{"TxtUnits", "4"}, {"TxtTraded", "1001.234"}});
        CommandDesk::key(s, keys::F2);
        EXPECT_EQ(d.shown["TxtTraded"], price) << "preset with the market price";
        EXPECT_EQ(s.CashTypeNow, "Q") << "equity is the default kind";
        EXPECT_EQ(d.ledger("CP = 'S' and Units = 4 and Traded = 1001.23 and CashType = 'Q'"), 1) << onIndex;
        EXPECT_FALSE(d.app.screens().get<FrmUnderlying>().OK);
    }
}

TEST(SheetCommands, TheCloseAsksOnlyWhenBothFiguresMoved) {
    struct Case {
        bool neutralMoved, balanceMoved;
        std::optional<MsgAnswer> answer; // nothing: no question
        bool stays;                      // the screen is kept loaded (hidden unless cancelled)
        bool visible;
        bool saved;
    } cases[] = {
        {true, true, MsgAnswer::Yes, true, false, true},    {true, true, MsgAnswer::No, true, false, false},
        {true, true, MsgAnswer::Cancel, true, true, false}, {true, false, std::nullopt, false, false, false},
        {false, true, std::nullopt, false, false, false},
    };
    for (const Case& c : cases) {
        CommandDesk d;
        RiskSheet& s = d.stock();
        d.app.store().execute("delete from PortfolioDet");
        s.SavedDelNeutral = c.neutralMoved ? "different" : Trim(s.text("txtdelneutral"));
        s.SavedBalance = c.balanceMoved ? "different" : Trim(s.text("TxtBalance"));
        if (c.answer) d.ui.queueAnswer(*c.answer);
        s.fire("Toolbar1(10)", EventType::Click);
        ASSERT_EQ(d.ui.boxes().size(), c.answer ? 1u : 0u);
        if (c.answer) {
            EXPECT_EQ(d.ui.boxes()[0].box.text, "Do you wish to Save the Changes?");
            EXPECT_EQ(d.ui.boxes()[0].box.title, "Exit");
            EXPECT_EQ(d.ui.boxes()[0].box.buttons, MsgButtons::YesNoCancel);
            EXPECT_EQ(d.ui.boxes()[0].box.icon, MsgIcon::Question);
        }
        Form* still = d.app.screens().find(RiskSheet::kStockName);
        EXPECT_EQ(still != nullptr, c.stays);
        if (still) {
            EXPECT_EQ(still->visible(), c.visible);
        }
        EXPECT_EQ(d.number("select count(*) from PortfolioDet") > 0, c.saved);
        EXPECT_EQ(d.ui.busyDepth(), 0);
    }
}

TEST(SheetCommands, EscAndTheCloseBoxRunTheSameCloseAsExit) {
    for (bool byEsc : {true, false}) {
        CommandDesk d;
        RiskSheet& s = d.stock();
        s.SavedDelNeutral = s.SavedBalance = "different";
        d.ui.queueAnswer(MsgAnswer::Cancel);
        if (byEsc)
            CommandDesk::key(s, keys::Escape);
        else
            EXPECT_FALSE(s.requestClose());
        EXPECT_EQ(d.boxTexts(), std::vector<std::string>{"Do you wish to Save the Changes?"});
        EXPECT_TRUE(s.visible());
    }
}

TEST(SheetCommands, NoOnANewSheetDropsItsRows) {
    CommandDesk d;
    d.app.session().g_ExpiryDate = VbDate::fromYmd(2026, 12, 10);
    RiskSheet& s = d.openFresh();
    d.app.store().execute("update Trans set InType = 'S'"); // the sheet is listed as it was made
    s.va1().activeRow = 2;
    s.setText("TxtImpVol", "30");
    s.setText("TxtImpVolP", "30");
    s.RefreshData(13); // as leaving the volatility field prices the new ladder
    d.answerEntry({{"TxtUnits", "2"}, {"TxtTraded", "12"}});
    s.fire("Toolbar1(2)", EventType::Click);
    ASSERT_EQ(d.ledger("symbol = 'TCSK2026'"), 1) << ::testing::PrintToString(d.boxTexts());
    s.SavedDelNeutral = s.SavedBalance = "different";
    d.ui.queueAnswer(MsgAnswer::No);
    s.fire("mnuexit", EventType::Click);
    EXPECT_EQ(d.number("select count(*) from Trans where InSymbol = 'TCSK2026'"), 0);
    EXPECT_EQ(d.ledger("symbol = 'TCSK2026'"), 0);
    EXPECT_EQ(d.number("select count(*) from PortfolioMast"), 0);
    EXPECT_FALSE(s.visible());
}

TEST(SheetCommands, TheLadderDigitKeys) {
    CommandDesk d;
    RiskSheet& s = d.stock();
    s.moveFocus("TxtNet");
    s.va1().activeRow = 4;
    s.va1().activeCol = 1;
    test::typeChar(s, "va1", '9');
    EXPECT_EQ(s.va1().activeCol, 2);
    EXPECT_EQ(s.focused(), "va1");
    // "4" runs the click of the active cell, which writes the hedges.
    s.setText("TxtDelHed", "");
    test::typeChar(s, "va1", '4');
    EXPECT_FALSE(s.text("TxtDelHed").empty());
    s.setText("TxtDelHed", "");
    test::typeChar(s, "va1", '5');
    EXPECT_TRUE(s.text("TxtDelHed").empty()) << "other characters are only typed";
}
