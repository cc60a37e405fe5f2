// The two dialogs the sheet opens for a hand-keyed trade: what they check as fields are left,
// what they hand back on OK, and that a cancel hands back nothing.
#include "TradeEntryDesk.h"

#include "frame/VbNumber.h"
#include "tracker/FrmOption.h"
#include "tracker/FrmUnderlying.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

using keys::Enter;
using keys::Escape;

// The option dialog as the sheet prepares it for the call at 17000 of the active row.
struct OptionDesk : test::EntryDesk {
    FrmOption& dlg = app.screens().get<FrmOption>();
    OptionDesk() {
        dlg.setText("lblStrike", "17000.00 C");
        dlg.setText("TxtImpVolF", "18.5");
        dlg.setText("TxtUnits", "");
        dlg.setText("TxtTraded", "101.25");
        dlg.showModal(); // the scripted UI returns at once; the dialog stays up
    }
};

struct UnderlyingDesk : test::EntryDesk {
    FrmUnderlying& dlg = app.screens().get<FrmUnderlying>();
    UnderlyingDesk() {
        dlg.setText("TxtUnits", "");
        dlg.setText("TxtTraded", "17012.5");
        dlg.setValue("Option1(1)", true);
        dlg.showModal();
    }
};

struct FieldCase {
    const char* typed;
    const char* after; // the field's text once left
    bool refused;      // the "Invalid Entry" box and the focus kept
};

const FieldCase kFigureCases[] = {
    {"", "0", false},      {"   ", "0", false}, {"12.5", "12.5", false},
    {" 7 ", " 7 ", false}, {"-3", "-3", false}, {"1,000", "1,000", false},
    {"abc", "", true},     {"12abc", "", true}, {"1.2.3", "", true},
};

const std::vector<std::string> kRefusal{"Invalid Entry|Only Numeric Values allowed here|critical"};

template <class D> void expectFigureChecks(const char* field, const char* next) {
    for (const FieldCase& c : kFigureCases) {
        SCOPED_TRACE(std::string(field) + " typed as '" + c.typed + "'");
        D d;
        d.typeAndLeave(d.dlg, field, c.typed, next);
        EXPECT_EQ(d.dlg.text(field), c.after);
        EXPECT_EQ(d.boxLines(), c.refused ? kRefusal : std::vector<std::string>{});
        EXPECT_EQ(d.dlg.focused(), c.refused ? field : next);
    }
}

} // namespace

TEST(TradeEntryOption, ComesUpWithTheTimeAndTheFocusOnUnitsAndEnteringAFigureSelectsIt) {
    OptionDesk d;
    EXPECT_EQ(d.dlg.caption(), "Option.....Tallimark");
    EXPECT_TRUE(d.dlg.visible());
    EXPECT_EQ(d.dlg.focused(), "TxtUnits");
    d.expectClockTime(d.dlg.text("LblTime"));
    EXPECT_EQ(d.dlg.text("Label_TxtImpVolF"), "Implied Volatility");
    EXPECT_EQ(d.dlg.text("lblStrike"), "17000.00 C") << "the caller's series stays as it was set";
    // Entering a figure selects all of it.
    d.dlg.moveFocus("TxtTraded");
    EXPECT_EQ(d.dlg.control("TxtTraded").selStart, 0);
    EXPECT_EQ(d.dlg.control("TxtTraded").selLength, 6); // "101.25"
    d.dlg.moveFocus("TxtImpVolF");
    EXPECT_EQ(d.dlg.control("TxtImpVolF").selLength, 4); // "18.5"
}

TEST(TradeEntryOption, PremiumAndVolatilityAreCheckedOnLeavingUnitsAreNot) {
    expectFigureChecks<OptionDesk>("TxtTraded", "TxtImpVolF");
    expectFigureChecks<OptionDesk>("TxtImpVolF", "Cmd(0)");

    OptionDesk d;
    d.typeAndLeave(d.dlg, "TxtUnits", "ten", "TxtTraded");
    EXPECT_EQ(d.dlg.text("TxtUnits"), "ten");
    EXPECT_EQ(d.boxCount(), 0u);
}

TEST(TradeEntryOption, LeavingForCancelDoesNotCheckTheAbandonedFigure) {
    OptionDesk d;
    d.typeAndLeave(d.dlg, "TxtTraded", "abc", "Cmd(1)");
    EXPECT_EQ(d.boxCount(), 0u);
    d.dlg.fire("Cmd(1)", EventType::Click);
    EXPECT_FALSE(d.dlg.visible());
}

TEST(TradeEntryOption, OkHandsOnTheTextsAsTypedAndTheVolatilityAsCurrency) {
    OptionDesk d;
    d.dlg.setText("TxtUnits", "-50");
    d.dlg.setText("TxtTraded", "12.346");
    d.dlg.setText("TxtImpVolF", "18.123456");
    d.dlg.fire("Cmd(0)", EventType::Click);
    EXPECT_FALSE(d.dlg.visible());
    EXPECT_TRUE(d.dlg.OK);
    EXPECT_EQ(d.dlg.Units, "-50");
    EXPECT_EQ(d.dlg.Traded, "12.346") << "the option premium is passed unrounded";
    EXPECT_DOUBLE_EQ(d.dlg.ImpVolF, 18.1235); // four decimals, by hand: 18.12345|6 rounds up
    EXPECT_EQ(d.dlg.TradeTime, d.dlg.text("LblTime"));
    EXPECT_EQ(d.boxCount(), 0u);
}

TEST(TradeEntryOption, EveryWayOfCancellingLeavesTheResultsAlone) {
    const std::pair<const char*, std::function<void(OptionDesk&)>> ways[] = {
        {"Cancel button", [](OptionDesk& d) { d.dlg.fire("Cmd(1)", EventType::Click); }},
        {"Esc in a field", [](OptionDesk& d) { d.key(d.dlg, "TxtTraded", Escape); }},
        {"Esc on the OK button", [](OptionDesk& d) { d.key(d.dlg, "Cmd(0)", Escape); }},
        {"Enter on the Cancel button", [](OptionDesk& d) { d.key(d.dlg, "Cmd(1)", Enter); }},
        {"close box", [](OptionDesk& d) { EXPECT_FALSE(d.dlg.requestClose()); }},
    };
    for (const auto& [way, act] : ways) {
        SCOPED_TRACE(way);
        OptionDesk d;
        d.dlg.setText("TxtUnits", "25");
        act(d);
        EXPECT_FALSE(d.dlg.visible());
        EXPECT_FALSE(d.dlg.OK);
        EXPECT_EQ(d.dlg.Units, "");
        EXPECT_EQ(d.app.screens().find(FrmOption::kName), &d.dlg) << "kept loaded for the next trade";
    }
}

TEST(TradeEntryOption, EnterInAnyFieldPressesOkBeforeTheFieldIsChecked) {
    for (const char* field : {"TxtUnits", "TxtTraded", "TxtImpVolF", "Cmd(0)"}) {
        SCOPED_TRACE(field);
        OptionDesk d;
        d.dlg.setText("TxtUnits", "10");
        d.dlg.moveFocus("TxtTraded");
        d.dlg.setText("TxtTraded", "x"); // never left, so never checked
        d.key(d.dlg, field, Enter);
        EXPECT_TRUE(d.dlg.OK);
        EXPECT_EQ(d.dlg.Traded, "x");
        EXPECT_EQ(d.boxCount(), 0u);
    }
}

TEST(TradeEntryOption, EnterWithAVolatilityThatIsNoNumberFailsAtTheCurrencyConversion) {
    OptionDesk d;
    d.dlg.setText("TxtUnits", "10");
    d.dlg.moveFocus("TxtImpVolF");
    d.dlg.setText("TxtImpVolF", "high");
    d.key(d.dlg, "TxtImpVolF", Enter);
    ASSERT_EQ(d.boxCount(), 1u);
    EXPECT_EQ(d.lastBox().box.text, "Run-time error '13':\n\nType mismatch");
    EXPECT_FALSE(d.dlg.OK);
    EXPECT_TRUE(d.dlg.visible()) << "the dialog stays up for a better figure";
}

TEST(TradeEntryUnderlying, ComesUpOfferingEquityWithZeroUnits) {
    UnderlyingDesk d;
    EXPECT_EQ(d.dlg.caption(), "Stock Trade");
    EXPECT_TRUE(d.dlg.control("Option1(1)").value);
    EXPECT_FALSE(d.dlg.control("Option1(0)").value);
    EXPECT_EQ(d.dlg.text("Option1(0)") + d.dlg.text("Option1(1)"), "&Fut/Stk&Equity");
    EXPECT_EQ(d.dlg.text("TxtUnits"), "0");
    EXPECT_EQ(d.dlg.focused(), "TxtUnits");
    EXPECT_EQ(d.dlg.control("TxtUnits").selLength, 1);
    d.expectClockTime(d.dlg.text("LblTime"));

    // Futures and units typed last time are not remembered, and the 0 is there to type over.
    d.dlg.setValue("Option1(0)", true);
    d.dlg.setText("TxtUnits", "25");
    d.dlg.control("TxtUnits").selLength = 0;
    d.dlg.fire("Cmd(1)", EventType::Click);
    d.dlg.showModal();
    EXPECT_TRUE(d.dlg.control("Option1(1)").value);
    EXPECT_EQ(d.dlg.text("TxtUnits"), "0");
    EXPECT_EQ(d.dlg.control("TxtUnits").selLength, 1);
}

TEST(TradeEntryUnderlying, UnitsAndPriceAreCheckedOnLeaving) {
    expectFigureChecks<UnderlyingDesk>("TxtUnits", "TxtTraded");
    expectFigureChecks<UnderlyingDesk>("TxtTraded", "Option1(0)");
}

TEST(TradeEntryUnderlying, OkRoundsThePriceToThePaisa) {
    // Worked by hand: two decimals, halves away from zero on the decimal text.
    const std::pair<const char*, const char*> cases[] = {
        {"12.346", "12.35"}, {"12.344", "12.34"}, {"2.675", "2.68"},      {"-3.005", "-3.01"},
        {"100", "100.00"},   {" 7.1 ", "7.10"},   {"1,234.5", "1234.50"}, {"0", "0.00"},
    };
    for (const auto& [typed, passed] : cases) {
        SCOPED_TRACE(typed);
        UnderlyingDesk d;
        d.dlg.setText("TxtUnits", "-4");
        d.dlg.setText("TxtTraded", typed);
        d.dlg.fire("Cmd(0)", EventType::Click);
        EXPECT_TRUE(d.dlg.OK);
        EXPECT_EQ(d.dlg.Traded, passed);
        EXPECT_EQ(d.dlg.Units, "-4");
        EXPECT_FALSE(d.dlg.visible());
    }
}

TEST(TradeEntryUnderlying, OkNamesTheKindOfTheTrade) {
    UnderlyingDesk d;
    d.key(d.dlg, "Option1(1)", Enter);
    EXPECT_EQ(d.dlg.CashType, "Q");
    EXPECT_EQ(d.dlg.TradeTime, d.dlg.text("LblTime"));

    d.dlg.OK = false;
    d.dlg.showModal();
    d.dlg.setValue("Option1(0)", true);
    d.dlg.setText("TxtTraded", "abc"); // Enter comes before the check: the text passes as it is
    d.key(d.dlg, "TxtTraded", Enter);
    EXPECT_TRUE(d.dlg.OK);
    EXPECT_EQ(d.dlg.CashType, "F");
    EXPECT_EQ(d.dlg.Traded, "abc");
}

TEST(TradeEntryUnderlying, CancelLeavesOkFalseAndTheKindUntouched) {
    UnderlyingDesk d;
    d.dlg.setValue("Option1(0)", true);
    d.key(d.dlg, "TxtUnits", Escape);
    EXPECT_FALSE(d.dlg.visible());
    EXPECT_FALSE(d.dlg.OK);
    EXPECT_EQ(d.dlg.CashType, "");
    EXPECT_EQ(d.dlg.Traded, "");
}

TEST(TradeEntryFigures, NumericTestAndCurrencyConversion) {
    // IsNumeric accepts what CDbl reads; CCur keeps four decimals with ties to even. The ties
    // chosen are exact in binary (33/32, 35/32) so the rounding rule alone decides them.
    const std::pair<const char*, bool> numeric[] = {
        {"12", true}, {" 12.5 ", true}, {"-3", true},   {"1,000", true},  {"1e3", true},
        {"", false},  {"  ", false},    {"abc", false}, {"12abc", false}, {"1.2.3", false},
    };
    for (const auto& [text, expected] : numeric)
        EXPECT_EQ(IsNumeric(text), expected) << "'" << text << "'";

    EXPECT_DOUBLE_EQ(CCur("1.03125"), 1.0312);
    EXPECT_DOUBLE_EQ(CCur("1.09375"), 1.0938);
    EXPECT_DOUBLE_EQ(CCur(" -18.123456 "), -18.1235);
    auto errorOf = [](const char* text) {
        try {
            CCur(text);
        } catch (const VbError& e) {
            return e.number();
        }
        return 0L;
    };
    EXPECT_EQ(errorOf("abc"), vberr::TypeMismatch);
    EXPECT_EQ(errorOf(""), vberr::TypeMismatch);
    EXPECT_EQ(errorOf("1e16"), vberr::Overflow);
}
