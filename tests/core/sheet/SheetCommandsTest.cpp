// The sheet's toolbar, menus and keys, the two trade entries on a saved sheet and the close of
// the screen with its question.
#include "SheetDesk.h"

#include "frame/Screens.h"
#include "tracker/FrmOption.h"
#include "tracker/FrmUnderlying.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tallimark;

namespace {

const Rgb kRed = RGB(255, 0, 0), kCyan = RGB(0, 255, 255);

struct CommandDesk : test::SheetDesk {
    RiskSheet& sheet(SheetKind kind) { return test::openSavedScenario(*this, kind); }

    static void key(Form& form, int code, int shift = 0) { test::pressKey(form, "TxtNet", code, shift); }
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
    double ledger(const std::string& w) { return number("select count(*) from DummyTracker where " + w); }

    std::map<std::string, std::string> shown;
};

bool shownScreen(App& app, const char* name) {
    Form* f = app.screens().find(name);
    return f && f->visible();
}

} // namespace

TEST(SheetCommands, AltLettersOpenTheScreensOfTheirSheetKind) {
    const std::tuple<char, const char*, const char*> cases[] = {
        {'R', "FrmNewCharges", "FrmChargesExl"}, {'T', "FrmTradeTracker", "FrmTradeTracker"},
        {'L', "FrmUpload", "FrmUploadFut"},      {'S', "FrmSimulation", "FrmSimulation"},
        {'G', "FrmListGraph", "FrmListGraph"},   {'P', "FrmPrintOption", "FrmPrintOption"},
    };
    for (const auto& [letter, stockScreen, indexScreen] : cases)
        for (SheetKind kind : {SheetKind::Stock, SheetKind::Index}) {
            CommandDesk d;
            RiskSheet& s = d.sheet(kind);
            d.app.session().g_strSymbol = "OTHER"; // a click on the main screen's list meanwhile
            CommandDesk::key(s, letter, keys::AltMask);
            EXPECT_TRUE(shownScreen(d.app, kind == SheetKind::Index ? indexScreen : stockScreen)) << letter;
            EXPECT_EQ(d.app.session().g_strSymbol, s.OwnSymbol) << "the screen opens on its own sheet";
            d.app.session().g_strSymbol = "OTHER";
            s.fire("Form", EventType::Activate);
            EXPECT_EQ(d.app.session().g_strSymbol, s.OwnSymbol) << "and is current again when active";
        }
}

TEST(SheetCommands, KeysMoveTheFocus) {
    CommandDesk d;
    RiskSheet& s = d.sheet(SheetKind::Stock);
    const std::pair<int, const char*> cases[] = {{'D', "TxtDays"},   {'M', "TxtMktPrice"},
                                                 {'C', "TxtImpVol"}, {'V', "TxtImpVolP"},
                                                 {'E', "va1"},       {keys::F3, "va1"}};
    for (const auto& [key, focus] : cases) {
        s.moveFocus("TxtNet");
        CommandDesk::key(s, key, key == keys::F3 ? 0 : keys::AltMask); // F3 alone, the letters with Alt
        EXPECT_EQ(s.focused(), focus) << key;
    }
}

TEST(SheetCommands, OptionOnABlankRowIsRefusedAndACancelledEntryLeavesTheSheetAsItStood) {
    CommandDesk d;
    RiskSheet& s = d.sheet(SheetKind::Stock);
    s.va1().activeRow = 1; // the heading row holds no strike
    CommandDesk::key(s, keys::F1);
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Error|Pls Select the Call/Put Value|critical"});
    EXPECT_FALSE(shownScreen(d.app, "FrmOption"));

    s.va1().activeRow = 4;
    const double before = d.ledger("1 = 1");
    for (const char* entry : {"Toolbar1(2)", "Toolbar1(3)"}) {
        d.answerEntry({{"TxtUnits", "7"}}, "Cmd(1)");
        s.fire(entry, EventType::Click);
    }
    EXPECT_EQ(s.va1().text(4, 3), "15");
    EXPECT_EQ(d.ledger("1 = 1"), before);
}

TEST(SheetCommands, AnOptionTradeNetsIntoItsRowAndGoesToTheLedger) {
    // Row 4 of the saved stock sheet is 980 C holding 15 at 21, priced at 30 (SheetScenarios.h);
    // the saved index sheet prices calls at 20 and puts at 22, and its rows 2 and 3 hold nothing.
    struct Case {
        SheetKind kind;
        int row;
        const char *units, *traded;
        const char* dialog;   // the strike and the volatility the entry came up with
        const char* cells;    // columns 3 and 4 after the trade
        const char* strikeCp; // the ledger rows of the series
        std::optional<Rgb> fore;
    } cases[] = {
        // The averages by hand from the ledger's 10 at 20 and 5 at 23: (200 + 115 + 112.5) / 20 and
        // (200 + 115 - 380) / -5.
        {SheetKind::Stock, 4, "5", "22.5", "980.00 C|30", "20|21.38", "980 and CP = 'C'", kCyan},
        {SheetKind::Stock, 4, "-20", "19", "980.00 C|30", "-5|13", "980 and CP = 'C'", kRed},
        {SheetKind::Stock, 4, "-15", "18", "980.00 C|30", "0|", "980 and CP = 'C'", {}}, // closed out
        {SheetKind::Index, 2, "10", "40", "5800.00 C|20", "10|40", "5800 and CP = 'C'", kCyan},
        {SheetKind::Index, 3, "10", "40", "5800.00 P|22", "10|40", "5800 and CP = 'P'", kCyan},
    };
    for (const Case& c : cases) {
        CommandDesk d;
        RiskSheet& s = d.sheet(c.kind);
        SCOPED_TRACE(std::string(c.dialog) + " " + c.units);
        const std::string series = "Strike = " + std::string(c.strikeCp);
        const double before = d.ledger(series);
        s.va1().activeRow = c.row;
        d.answerEntry({{"TxtUnits", c.units}, {"TxtTraded", c.traded}});
        s.fire("Toolbar1(2)", EventType::Click);
        EXPECT_EQ(d.shown["lblStrike"] + "|" + d.shown["TxtImpVolF"], c.dialog);
        EXPECT_EQ(s.va1().text(c.row, 3) + "|" + s.va1().text(c.row, 4), c.cells);
        EXPECT_EQ(c.fore ? s.va1().cell(c.row, 3).fore : std::nullopt, c.fore) << "the position's colour";
        EXPECT_EQ(d.ledger(series), before + 1) << "the closing trade is kept too";
        EXPECT_EQ(d.ledger(series + " and Units = " + c.units + " and Traded = " + c.traded), 1);
        EXPECT_FALSE(d.app.screens().get<FrmOption>().OK) << "the sheet clears the flag it took";
    }
}

TEST(SheetCommands, AnUnderlyingTradeSetsThePositionFieldsAndTheLedger) {
    for (SheetKind kind : {SheetKind::Stock, SheetKind::Index}) {
        CommandDesk d;
        RiskSheet& s = d.sheet(kind);
        const std::string price = s.text("TxtMktPrice");
        d.answerEntry({{"TxtUnits", "4"}, {"TxtTraded", "1001.234"}});
        CommandDesk::key(s, keys::F2);
        EXPECT_EQ(d.shown["TxtTraded"], price) << "preset with the market price";
        EXPECT_EQ(s.CashTypeNow, "Q") << "equity is the default kind";
        EXPECT_EQ(d.ledger("CP = 'S' and Units = 4 and Traded = 1001.23 and CashType = 'Q'"), 1)
            << s.OwnSymbol;
        EXPECT_FALSE(d.app.screens().get<FrmUnderlying>().OK);
    }
}

TEST(SheetCommands, EveryCloseAsksOnlyWhenBothFiguresMoved) {
    // The toolbar's Exit, its menu entry, Esc and the window's close box run the one close. Asked,
    // Yes saves and Yes or No hide the screen for the next sheet; unasked, the screen goes.
    enum Route { Toolbar, Menu, Esc, CloseBox };
    // Whether the delta-neutral figure and the balance moved; the answer, or none when not asked.
    const std::tuple<bool, bool, std::optional<MsgAnswer>> cases[] = {
        {true, true, MsgAnswer::Yes}, {true, true, MsgAnswer::No}, {true, true, MsgAnswer::Cancel},
        {true, false, std::nullopt},  {false, true, std::nullopt},
    };
    const std::vector<std::string> question = {"Exit|Do you wish to Save the Changes?|question"};
    for (const auto& [neutralMoved, balanceMoved, answer] : cases)
        for (Route route : {Toolbar, Menu, Esc, CloseBox}) {
            SCOPED_TRACE("route " + std::to_string(route) + ", answer " +
                         std::to_string(answer ? static_cast<int>(*answer) : -1));
            CommandDesk d;
            RiskSheet& s = d.sheet(SheetKind::Stock);
            d.app.store().execute("delete from PortfolioDet");
            s.SavedDelNeutral = neutralMoved ? "different" : Trim(s.text("txtdelneutral"));
            s.SavedBalance = balanceMoved ? "different" : Trim(s.text("TxtBalance"));
            if (answer) d.ui.queueAnswer(*answer);
            bool closed = !answer; // only the close box reports whether the screen went
            if (route == Toolbar) s.fire("Toolbar1(10)", EventType::Click);
            if (route == Menu) s.fire("mnuexit", EventType::Click);
            if (route == Esc) CommandDesk::key(s, keys::Escape);
            if (route == CloseBox) closed = s.requestClose();
            EXPECT_EQ(closed, !answer);
            EXPECT_EQ(d.boxLines(), answer ? question : std::vector<std::string>{});
            Form* still = d.app.screens().find(RiskSheet::kStockName);
            EXPECT_EQ(still != nullptr, answer.has_value()) << "kept loaded";
            EXPECT_EQ(still && still->visible(), answer == MsgAnswer::Cancel);
            EXPECT_EQ(d.number("select count(*) from PortfolioDet") > 0, answer == MsgAnswer::Yes);
            EXPECT_EQ(d.ui.busyDepth(), 0);
        }
}

TEST(SheetCommands, TheLadderDigitKeys) {
    CommandDesk d;
    RiskSheet& s = d.sheet(SheetKind::Stock);
    s.moveFocus("TxtNet");
    s.va1().activeRow = 4;
    s.va1().activeCol = 1;
    test::typeChar(s, "va1", '9');
    EXPECT_EQ(s.va1().activeCol, 2);
    EXPECT_EQ(s.focused(), "va1");
    // "4" runs the click of the active cell, which writes the hedges; other characters are only typed.
    for (char typed : {'4', '5'}) {
        s.setText("TxtDelHed", "");
        test::typeChar(s, "va1", typed);
        EXPECT_EQ(s.text("TxtDelHed").empty(), typed == '5') << typed;
    }
}
