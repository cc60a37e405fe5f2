// The ladder walk beyond whole-sheet figures: what leaves it untouched, what it fills in, and the
// volatility of the other side that a row carries over from the row before.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

// A new stock sheet on 1000 with strikes 980, 1000, 1020 and seventeen days to run.
struct NewLadder : test::SheetDesk {
    RiskSheet& s;
    NewLadder() : s(openNew()) {}
    RiskSheet& openNew() {
        app.session().g_ExpiryDate = VbDate::fromYmd(2026, 12, 10);
        RiskSheet& sheet = openFresh();
        sheet.setText("TxtImpVol", "40");
        sheet.setText("TxtImpVolP", "55");
        return sheet;
    }
};

} // namespace

TEST(LadderFill, MissingMarketInputsLeaveTheLadderAsItStood) {
    struct Case {
        const char* field;
        const char* value;
    } cases[] = {
        {"TxtMktPrice", ""}, {"TxtMktPrice", "0"}, {"TxtDays", ""}, {"TxtImpVol", "0"}, {"TxtImpVol", ""}};
    for (const Case& c : cases) {
        NewLadder d;
        d.s.setText(c.field, c.value);
        d.s.FillLViewData();
        EXPECT_EQ(d.s.va1().text(2, 5), "") << c.field << " '" << c.value << "'";
        EXPECT_EQ(d.s.va1().text(2, 3), "");
        EXPECT_EQ(d.s.text("TxtTotDel"), "");
        EXPECT_TRUE(d.ui.boxes().empty());
    }
}

TEST(LadderFill, ARowWithoutUnitsIsGivenZeroAndPricedInFull) {
    NewLadder d;
    d.s.FillLViewData();
    for (int row = 2; row <= 7; ++row) {
        EXPECT_EQ(d.s.va1().text(row, 3), "0") << row;
        EXPECT_NE(d.s.va1().text(row, 5), "") << row;
        EXPECT_EQ(d.s.va1().text(row, 6), row % 2 == 0 ? "40" : "55")
            << "each row shows its side's volatility";
    }
    EXPECT_EQ(d.s.text("TxtTotDel"), "0");
    EXPECT_EQ(d.s.text("TxtCallVega"), "0");
}

TEST(LadderFill, TheOtherSidesVolatilityComesFromTheRowBefore) {
    // sheet_figures.py: a call in the money counts on 180 only while both volatilities are below
    // 50%. The first row of the walk has no put volatility yet (0), so 980 C counts on 180 and
    // shows 48.04 (47.71 on 183.2); 1000 C follows a put row at 55% and counts on 183.2: 36.63
    // (36.97 on 180).
    NewLadder d;
    d.s.FillLViewData();
    const char* const expected[][8] = {
        {"980", "C", "0", "", "48.04", "40", "63.054", "46.906"},
        {"980", "P", "0", "", "35.71", "55", "-39.787", "34.424"},
        {"1000", "C", "0", "", "36.63", "40", "53.95", "35.467"},
        {"1000", "P", "0", "", "45.13", "55", "-46.594", "43.841"},
        {"1020", "C", "0", "", "27.57", "40", "44.774", "26.449"},
        {"1020", "P", "0", "", "56.13", "55", "-53.376", "54.84"},
    };
    for (int row = 2; row <= 7; ++row)
        for (int col = 1; col <= 8; ++col)
            EXPECT_EQ(d.s.va1().text(row, col), expected[row - 2][col - 1]) << row << "," << col;
    EXPECT_EQ(d.s.SigmaC, 0.4);
    EXPECT_EQ(d.s.SigmaP, 0.55);
}
