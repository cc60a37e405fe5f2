// The sheet's own balances: the scenario balances a save stores, tomorrow's balance with its
// closed series, the exposure margin and the sum of the result fields.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

TEST(SheetBalances, TheScenarioBalancesTenAndTwentyPercentEitherWay) {
    // Expected: sheet_figures.py, the opening refresh and then the four scenario prices.
    for (const test::SavedSheet& c : test::kSavedSheets) {
        SCOPED_TRACE(c.name);
        test::SheetDesk d;
        RiskSheet& s = test::openSaved(d, c);
        const double lastTree = s.OptionValue();
        s.PrevMktPrice = "";
        s.CalcUpDnBal();
        EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(NumText(s.UpMktPrice[i]), NumText(c.upPrices[i])) << i;
            EXPECT_EQ(s.UpBal[i], c.upBalances[i]) << i;
        }
        EXPECT_EQ(s.PrevMktPrice, c.price);
        EXPECT_EQ(s.OptionValue(), lastTree) << "the scenario trees leave OptionValue alone";
    }
}

TEST(SheetBalances, ScenariosStopWhereAFaultStands) {
    test::SheetDesk d;
    RiskSheet& s = test::openSavedScenario(d, SheetKind::Stock);
    s.va1().setText(2, 1, "x");
    s.UpBal = {1, 1, 1, 1};
    s.CalcUpDnBal();
    ASSERT_EQ(d.boxTexts().size(), 4u) << "one box for each scenario price";
    EXPECT_EQ(d.boxTexts()[0], "Error in GetUpDnData Procedure: Type mismatch and No: 13");
    // Without the options a balance is premium, commission, realised results and the futures:
    // -178 - 150 + 24 + 0 + Round((1111 - 993.8) * 5) = -304 + 586.
    EXPECT_EQ(s.UpBal[0], 282);

    s.setText("TxtMktPrice", "abc");
    s.CalcUpDnBal();
    EXPECT_EQ(d.boxTexts().back(), "Error in CalcUpDnBal Procedure: Type mismatch and No: 13");
}

TEST(SheetBalances, TomorrowsBalanceCountsAClosedSeriesAtItsNextDayValue) {
    // By hand: the option rows a day on sum to 2*9 - 2*9 = 0; the closed series adds
    // (2*9 - 2*10) + (-2*9 + 2*12) = 4; so tomorrow is 4 against a balance of 10.
    struct Case {
        const char* days;
        const char* theVal;
    } cases[] = {{"5", "-6"}, {"0", "0"}};
    for (const Case& c : cases) {
        test::SheetDesk d;
        RiskSheet& s = d.openFresh();
        d.addTrade("DummyTracker", "TCSK2026", "FRESH", "1000", "C", 2, 10, {{"DumThVal", "9"}});
        d.addTrade("DummyTracker", "TCSK2026", "FRESH", "1000", "C", -2, 12, {{"DumThVal", "9"}});
        d.addTrade("DummyTracker", "TCSK2026", "FRESH", "", "S", 4, 990, {{"CashType", "'F'"}});
        s.setText("TxtDays", c.days);
        s.setText("TxtBalance", "10");
        s.ThetaBal();
        EXPECT_EQ(s.text("TxtTheVal"), c.theVal) << c.days;
        EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    }
}

TEST(SheetBalances, TheBalanceSumsTheResultFields) {
    struct Case {
        std::vector<std::pair<const char*, const char*>> fields;
        const char* balance;
        const char* box;
    } cases[] = {
        {{{"TxtPremium", "2.5"}}, "2", nullptr}, // ties to even
        {{{"TxtPremium", "3.5"}}, "4", nullptr},
        {{{"TxtPremium", "-100"},
          {"TxtComm", " -20 "},
          {"TxtCashU", "7"},
          {"TxtCashR", "1"},
          {"TxtFutU", "50"},
          {"TxtFutR", "-3"},
          {"TxtOptU", "900"},
          {"TxtOptR", "15.4"}},
         "850",
         nullptr},
        {{{"TxtPremium", "5"}, {"TxtComm", "1O"}},
         "kept",
         "Error in ErrProcCalcBalance Procedure: Type mismatch and No: 13"},
    };
    for (const Case& c : cases) {
        test::SheetDesk d;
        RiskSheet& s = riskSheet(d.app, SheetKind::Stock);
        s.setText("TxtBalance", "kept");
        for (const auto& [f, v] : c.fields)
            s.setText(f, v);
        s.ErrProcCalcBalance();
        EXPECT_EQ(s.text("TxtBalance"), c.balance);
        EXPECT_EQ(d.boxTexts(), c.box ? std::vector<std::string>{c.box} : std::vector<std::string>{});
    }
}

TEST(SheetBalances, TheExposureMarginOfShortOptionsAndFutures) {
    // (sold option units + |net futures units|) * price * margin percent / 100, by hand.
    struct Case {
        const char* margin; // ScriptMast.Field1
        const char* result;
    } cases[] = {{"5", "858.5"}, {"", "0"}};
    for (const Case& c : cases) {
        test::SheetDesk d;
        test::saveStockSheet(d.app.store(), "1010", "10-Dec-2026");
        d.app.store().execute(std::string("update ScriptMast set Field1 = ") +
                              (*c.margin ? q(c.margin) : "Null"));
        RiskSheet& s = d.open(SheetKind::Stock, test::kStockSymbol, test::kStockDesc);
        EXPECT_EQ(s.text("TxtEx_Magin"), c.result) << "(6 + 8 + 3) * 1010 * 5%";
    }
}
