#include "TestDesk.h"

#include "pricing/FrmCalc.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

const char* const kOutputs[] = {"Text6",  "Text7",  "Text8",  "Text9",  "Text10",
                                "Text11", "Text12", "Text13", "Text14", "Text15"};

std::vector<std::string> outputs(FrmCalc& calc) {
    std::vector<std::string> v;
    for (const char* f : kOutputs)
        v.push_back(calc.text(f));
    return v;
}

} // namespace

TEST(Calculator, FiguresOfTypedInputs) {
    // Expected figures worked out by a separate Python calculation of the same formulas (the
    // midpoint-sum distribution with step 0.099 from -5, pi 3.14285714285714, four decimals).
    struct Case {
        const char *strike, *price, *days, *vol, *rate;
        std::vector<std::string> expected; // Text6 .. Text15
    } cases[] = {
        {"90",
         "100",
         "90",
         "20",
         "10",
         {"12.5941", "0.4069", "0.9091", "-0.0909", "-0.0302", "-0.0062", "0.0787", "0.1931", "-0.0233",
          "0.016"}},
    };
    for (const auto& c : cases) {
        test::Desk desk(false);
        FrmCalc& calc = desk.app.screens().get<FrmCalc>();
        calc.setText("Text1", c.strike);
        calc.setText("Text2", c.price);
        calc.setText("Text3", c.days);
        calc.setText("Text4", c.vol);
        calc.setText("Text5", c.rate);
        calc.fire("Command1", EventType::Click);
        EXPECT_EQ(outputs(calc), c.expected);
        EXPECT_TRUE(desk.ui.boxes().empty());
    }
}

TEST(Calculator, DistributionIsACoarseCappedSum) {
    test::Desk desk(false);
    FrmCalc& calc = desk.app.screens().get<FrmCalc>();
    EXPECT_EQ(calc.erf(0), 0.5194); // the sum stops at -0.0495, with 22/7 as pi
    EXPECT_EQ(calc.erf(10), calc.erf(4));
    EXPECT_EQ(calc.erf(4), 0.9998);
    EXPECT_EQ(calc.erf(-4.9506), 0);
    EXPECT_EQ(FrmCalc::roundToPennies(0.123456), 0.1235);
    EXPECT_EQ(FrmCalc::roundToPennies(0.00005), 0); // a tie goes to even
}

TEST(Calculator, BadInputShowsTheRunTimeBoxAndKeepsTheOutputs) {
    struct Case {
        const char* field;
        const char* value;
        const char* box;
    } cases[] = {
        {"Text3", "0", "Run-time error '11':\n\nDivision by zero"},
        {"Text4", "0", "Run-time error '11':\n\nDivision by zero"},
        {"Text3", "ninety", "Run-time error '13':\n\nType mismatch"},
        {"Text1", "", "Run-time error '13':\n\nType mismatch"},
        {"Text2", "-100", "Run-time error '5':\n\nInvalid procedure call or argument"},
        {"Text1", "0", "Run-time error '11':\n\nDivision by zero"},
        // The outputs change together: a figure too large to write changes none of them.
        {"Text1", "1e305", "Run-time error '6':\n\nOverflow"},
    };
    for (const auto& c : cases) {
        test::Desk desk(false);
        FrmCalc& calc = desk.app.screens().get<FrmCalc>();
        calc.fire("Command1", EventType::Click);
        const auto before = outputs(calc);
        calc.setText(c.field, c.value);
        calc.fire("Command1", EventType::Click);
        ASSERT_EQ(desk.boxTexts(), std::vector<std::string>{c.box}) << c.field << "=" << c.value;
        EXPECT_EQ(outputs(calc), before);
    }
}
