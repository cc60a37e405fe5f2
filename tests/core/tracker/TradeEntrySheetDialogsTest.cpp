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
        dlg.showModal();
    }
};

// A figure typed and left, and the text it is left with; "!": refused with the "Invalid Entry"
// box, the field cleared and the focus kept.
const std::pair<const char*, const char*> kFigureCases[] = {
    {"", "0"},          {"   ", "0"},   {"12.5", "12.5"}, {" 7 ", " 7 "}, {"-3", "-3"},
    {"1,000", "1,000"}, {"1e3", "1e3"}, {"abc", "!"},     {"12abc", "!"}, {"1.2.3", "!"},
};

template <class D> void expectFigureChecks(const std::string& field, const std::string& next) {
    for (const auto& [typed, after] : kFigureCases) {
        D d;
        d.typeAndLeave(d.dlg, field, typed, next);
        EXPECT_EQ(d.fieldState(d.dlg, field),
                  *after == '!' ? field + " '' Invalid Entry|Only Numeric Values allowed here|critical"
                                : next + " '" + after + "'")
            << field << " typed as '" << typed << "'";
    }
}

} // namespace

TEST(TradeEntryFigures, EachDialogChecksItsPricesOnLeavingButNotTheOptionUnits) {
    expectFigureChecks<OptionDesk>("TxtTraded", "TxtImpVolF");
    expectFigureChecks<OptionDesk>("TxtImpVolF", "Cmd(0)");
    expectFigureChecks<UnderlyingDesk>("TxtUnits", "TxtTraded");
    expectFigureChecks<UnderlyingDesk>("TxtTraded", "Option1(0)");

    OptionDesk d;
    d.typeAndLeave(d.dlg, "TxtUnits", "ten", "TxtTraded");
    EXPECT_EQ(d.fieldState(d.dlg, "TxtUnits"), "TxtTraded 'ten'");
}

TEST(TradeEntryOption, OkOrEnterHandsOnTheTextsBeforeAnyCheckAndEveryCancelLeavesTheResultsAlone) {
    // A key in a control, a click (no key) or the close box (no control). Enter presses OK before
    // the premium it stands in is left, so "x" passes unchecked; a premium abandoned for Cancel is
    // not checked either. Nothing rounds the premium; the volatility goes on as currency: four
    // decimals with ties to even, on ties exact in binary (33/32, 35/32).
    const struct {
        const char* control;
        int key;
        bool ok;
        const char *traded, *vol;
        double impVolF;
    } cases[] = {
        {"Cmd(0)", 0, true, "12.346", "18.123456", 18.1235},
        {"TxtUnits", Enter, true, "x", "1.03125", 1.0312},
        {"TxtTraded", Enter, true, "x", "1.09375", 1.0938},
        {"TxtImpVolF", Enter, true, "x", " -18.123456 ", -18.1235},
        {"Cmd(0)", Enter, true, "x", "0", 0},
        {"Cmd(1)", 0, false, "abc", "1", 0},
        {"TxtTraded", Escape, false, "abc", "1", 0},
        {"Cmd(0)", Escape, false, "abc", "1", 0},
        {"Cmd(1)", Enter, false, "abc", "1", 0},
        {"", 0, false, "abc", "1", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.control) + " key " + std::to_string(c.key));
        OptionDesk d;
        EXPECT_EQ(d.dlg.focused(), "TxtUnits");
        d.expectClockTime(d.dlg.text("LblTime"));
        EXPECT_EQ(d.dlg.text("lblStrike"), "17000.00 C") << "the caller's series stays as it was set";
        d.dlg.setText("TxtUnits", "-50");
        d.dlg.moveFocus("TxtTraded");
        const Control& traded = d.dlg.control("TxtTraded");
        EXPECT_EQ(std::pair(traded.selStart, traded.selLength), std::pair(0, 6)) << "\"101.25\" selected";
        d.dlg.setText("TxtTraded", c.traded);
        d.dlg.setText("TxtImpVolF", c.vol);
        if (!c.ok) d.dlg.moveFocus("Cmd(1)");
        if (!*c.control)
            EXPECT_FALSE(d.dlg.requestClose());
        else if (c.key)
            d.key(d.dlg, c.control, c.key);
        else
            d.dlg.fire(c.control, EventType::Click);
        EXPECT_EQ(d.handedBack(d.dlg),
                  c.ok ? "hidden OK units '-50' traded '" + std::string(c.traded) + "' at the time shown"
                       : "hidden units '' traded ''");
        EXPECT_DOUBLE_EQ(d.dlg.ImpVolF, c.impVolF);
        EXPECT_EQ(d.app.screens().find(FrmOption::kName), &d.dlg) << "kept loaded for the next trade";
    }
}

TEST(TradeEntryOption, EnterWithAVolatilityThatIsNoCurrencyFailsAtTheConversion) {
    for (const auto& [vol, box] : {std::pair{"high", "Run-time error '13':\n\nType mismatch"},
                                   {"", "Run-time error '13':\n\nType mismatch"},
                                   {"1e16", "Run-time error '6':\n\nOverflow"}}) {
        OptionDesk d;
        d.dlg.moveFocus("TxtImpVolF");
        EXPECT_EQ(d.dlg.control("TxtImpVolF").selLength, 4) << "\"18.5\" selected on entry";
        d.dlg.setText("TxtImpVolF", vol);
        d.key(d.dlg, "TxtImpVolF", Enter);
        EXPECT_EQ(d.boxTexts(), std::vector<std::string>{box}) << vol;
        EXPECT_TRUE(d.dlg.visible() && !d.dlg.OK) << "the dialog stays up for a better figure";
    }
}

TEST(TradeEntryUnderlying, ComesUpAfreshEachTimeAndEnterHandsOnThePriceToThePaisaAndTheKindEscNothing) {
    // Worked by hand: two decimals, halves away from zero on the decimal text. A price that is no
    // number passes as it stands: Enter presses OK before the field is left and checked.
    const struct {
        const char *typed, *passed; // nullptr: nothing handed back
        bool futures;
        int key;
    } cases[] = {
        {"12.346", "12.35", false, Enter},   {"12.344", "12.34", true, Enter},
        {"2.675", "2.68", false, Enter},     {"-3.005", "-3.01", false, Enter},
        {"100", "100.00", false, Enter},     {" 7.1 ", "7.10", false, Enter},
        {"1,234.5", "1234.50", true, Enter}, {"0", "0.00", false, Enter},
        {"abc", "abc", true, Enter},         {"12.346", nullptr, true, Escape},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        UnderlyingDesk d;
        const auto expectAfresh = [&d] { // equity offered and a 0 to type over, whatever went before
            EXPECT_TRUE(d.dlg.control("Option1(1)").value && !d.dlg.control("Option1(0)").value);
            EXPECT_EQ(d.fieldState(d.dlg, "TxtUnits"), "TxtUnits '0'");
            EXPECT_EQ(d.dlg.control("TxtUnits").selLength, 1);
            d.expectClockTime(d.dlg.text("LblTime"));
        };
        expectAfresh();
        if (c.futures) d.dlg.setValue("Option1(0)", true);
        d.dlg.setText("TxtUnits", "-4");
        d.dlg.control("TxtUnits").selLength = 0;
        // Esc leaves the focus in the units: shown again, they are entered afresh where they stand.
        if (c.passed) d.dlg.moveFocus("TxtTraded");
        d.dlg.setText("TxtTraded", c.typed);
        d.key(d.dlg, "TxtTraded", c.key);
        EXPECT_EQ(d.handedBack(d.dlg) + " " + d.dlg.CashType,
                  c.passed ? "hidden OK units '-4' traded '" + std::string(c.passed) +
                                 "' at the time shown " + (c.futures ? "F" : "Q")
                           : "hidden units '' traded '' ");
        d.dlg.showModal();
        expectAfresh();
    }
}
