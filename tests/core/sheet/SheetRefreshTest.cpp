// The refresh cycle and what starts it: the key test, the market inputs left with a new value,
// their checks, the calendar, and the click that works out one series' hedges.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct LiveSheet : test::LiveSheetDesk {
    using LiveSheetDesk::LiveSheetDesk;
    // Marks the valuation date; a refresh writes it again.
    void mark() { s.setText("TxtCurDt", "x"); }
    bool refreshed() { return s.text("TxtCurDt") != "x"; }
    // Types into a field and leaves it for another.
    void type(const std::string& field, const std::string& value, const std::string& next = "TxtNet") {
        s.moveFocus(field);
        s.setText(field, value);
        s.moveFocus(next);
    }
};

} // namespace

TEST(SheetRefresh, OnlyTheEnterKeyWithDaysFilledRefreshes) {
    LiveSheet d;
    d.mark();
    d.s.RefreshData(9);
    EXPECT_FALSE(d.refreshed());
    d.s.setText("TxtDays", " ");
    d.s.RefreshData(13);
    EXPECT_FALSE(d.refreshed());
    d.s.setText("TxtDays", "7");
    d.s.RefreshData(13);
    EXPECT_TRUE(d.refreshed());
    EXPECT_EQ(d.s.text("TxtCurDt"), "03-12-2026") << "the expiry less the days";
    EXPECT_EQ(d.s.text("DTPicker1"), "03-Dec-26");
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(SheetRefresh, LeavingAMarketInputRefreshesWhenItChanged) {
    struct Case {
        SheetKind kind;
        const char* field;
        const char* value;
        bool refresh;
        const char* after;
        const char* box = nullptr;
    } cases[] = {
        {SheetKind::Stock, "TxtMktPrice", "1010", false, "1010"},
        {SheetKind::Stock, "TxtMktPrice", " 1010 ", false, " 1010 "},
        {SheetKind::Stock, "TxtMktPrice", "1020", true, "1020"},
        // An empty price becomes 0: the ladder is left alone, and the sheet's greeks, which
        // have no trap of their own, fail on it inside the refresh.
        {SheetKind::Stock, "TxtMktPrice", "", true, "0",
         "Error in RefreshData Procedure: Invalid procedure call or argument and No: 5"},
        {SheetKind::Stock, "TxtDays", "17", false, "17"},
        {SheetKind::Stock, "TxtDays", "10", true, "10"},
        // The volatilities are not noted on activation: the first leave always refreshes.
        {SheetKind::Stock, "TxtImpVol", "30", true, "30"},
        {SheetKind::Stock, "TxtImpVolP", "32", true, "32"},
        {SheetKind::Index, "TxtMktPrice", "6100", true, "6100"},
        {SheetKind::Index, "TxtDays", "10", false, "10"},
        {SheetKind::Index, "TxtImpVol", "25", false, "25"},
    };
    for (const Case& c : cases) {
        LiveSheet d(c.kind);
        d.mark();
        d.type(c.field, c.value);
        EXPECT_EQ(d.refreshed(), c.refresh) << c.field << " '" << c.value << "'";
        EXPECT_EQ(d.s.text(c.field), c.after);
        EXPECT_EQ(d.boxTexts(), c.box ? std::vector<std::string>{c.box} : std::vector<std::string>{});
    }
}

TEST(SheetRefresh, TheValueSeenIsNotedSoASecondLeaveDoesNothing) {
    LiveSheet d;
    d.type("TxtImpVol", "30");
    EXPECT_EQ(d.s.PrevImpVol, "30");
    d.mark();
    d.type("TxtImpVol", "30");
    EXPECT_FALSE(d.refreshed());
    d.type("TxtMktPrice", "1015");
    EXPECT_EQ(d.s.PrevMktPrice, "1015");
}

TEST(SheetRefresh, AFigureThatIsNoNumberIsRefusedAndKeepsTheFocus) {
    for (const char* field : {"TxtMktPrice", "TxtDays", "TxtImpVol", "TxtImpVolP"}) {
        LiveSheet d;
        d.mark();
        d.type(field, "12x");
        EXPECT_EQ(d.boxLines(),
                  std::vector<std::string>{"Invalid Entry|Only Numeric Values allowed here|critical"})
            << field;
        EXPECT_EQ(d.s.text(field), "");
        EXPECT_EQ(d.s.focused(), field);
        EXPECT_FALSE(d.refreshed());
    }
}

TEST(SheetRefresh, ThePutVolatilityFollowsTheCallWhenEmpty) {
    LiveSheet d;
    d.s.setText("TxtImpVolP", "");
    d.type("TxtImpVol", "28");
    EXPECT_EQ(d.s.text("TxtImpVolP"), "28");
    d.s.setText("TxtImpVolP", "0");
    d.s.RefreshData(13);
    EXPECT_EQ(d.s.text("TxtImpVolP"), "28") << "a put volatility of 0 takes the call's";
    EXPECT_EQ(d.s.va1().text(3, 6), "28");
}

TEST(SheetRefresh, TheCalendarSetsTheDaysUpToTheExpiry) {
    LiveSheet d;
    d.mark();
    d.s.setText("DTPicker1", "30-Nov-26");
    EXPECT_EQ(d.s.text("TxtDays"), "10");
    EXPECT_TRUE(d.refreshed());
    EXPECT_EQ(d.s.text("TxtCurDt"), "30-11-2026");
    EXPECT_EQ(d.s.text("DTPicker1"), "30-Nov-26");

    d.s.setText("DTPicker1", "11-Dec-26");
    EXPECT_EQ(d.boxTexts(), std::vector<std::string>{"Pls Select the Date In Between Expiry Date "});
    EXPECT_EQ(d.s.text("TxtDays"), "10");
    EXPECT_EQ(d.s.focused(), "DTPicker1");
}

TEST(SheetRefresh, TheClickOnTheHeadingRowActsOnTheFirstRow) {
    LiveSheet d;
    d.s.va1().activeRow = 1;
    d.s.va1().activeCol = 3;
    d.s.setText("TxtDelPts", "");
    d.s.RefreshData(13);
    EXPECT_EQ(d.s.va1().activeRow, 2);
    EXPECT_EQ(d.s.text("TxtDelPts"), "81.324");
}

TEST(SheetRefresh, HedgeTextsByRowSideAndTheSignOfDeltaNeutral) {
    // H = Round(neutral / (delta / 100), 2), worked out by hand from the ladder's deltas:
    // 960 C 81.324, 960 P -20.534; the gamma of 960 is 0.004.
    struct Case {
        int row;
        const char* neutral;
        const char* delHed;
        const char* gamHed;
    } cases[] = {
        {2, "50", "BUY  61.48", "BUY  125"},
        {2, "-50", "SELL  -61.48", "SELL  -125"},
        {3, "50", "SELL  -243.5", "SELL  125"},
        {3, "-50", "BUY  243.5", "BUY  -125"},
    };
    for (const Case& c : cases) {
        LiveSheet d;
        d.s.setText("txtdelneutral", c.neutral);
        d.s.va1_Click(1, c.row);
        EXPECT_EQ(d.s.text("TxtDelHed"), c.delHed) << c.row << " " << c.neutral;
        EXPECT_EQ(d.s.text("TxtGamHed"), c.gamHed);
        EXPECT_EQ(d.s.va1().activeRow, c.row);
    }
}

TEST(SheetRefresh, NoDeltaBlanksThePointsOfACallAndTheHedgeOfAPut) {
    LiveSheet d;
    RiskSheet& s = d.s;
    s.setText("TxtDelHed", "kept");
    s.va1().setText(8, 7, "0"); // 1020 C with no delta
    s.va1_Click(1, 8);
    EXPECT_EQ(s.text("TxtDelPts"), " ");
    EXPECT_EQ(s.text("TxtDelHed"), "kept");
    s.va1().setText(3, 7, "0"); // 960 P
    s.va1_Click(1, 3);
    EXPECT_EQ(s.text("TxtDelPts"), "0");
    EXPECT_EQ(s.text("TxtDelHed"), " ");
}

TEST(SheetRefresh, TheClickShowsTheAverageVolatilityTradedInTheSeries) {
    LiveSheet d;
    d.s.va1_Click(1, 4); // 980 C: trades at 29 and 31
    EXPECT_EQ(d.s.text("TxtAvgVol"), "30");
    EXPECT_EQ(d.s.control("TxtAvgVol").foreColor, RGB(0, 255, 255));
    EXPECT_EQ(d.s.va1().text(4, 16), "30");
    d.s.va1_Click(1, 5); // 980 P: no trades
    EXPECT_EQ(d.s.text("TxtAvgVol"), "0");
    EXPECT_EQ(d.s.va1().text(5, 16), "0");
    EXPECT_EQ(d.s.text("TxtDelCon"), "75.1") << "-(-30.04 * 250 / 100)";
}

TEST(SheetRefresh, AFaultInTheWalkStopsItWhereItStands) {
    LiveSheet d;
    d.s.va1().setText(8, 1, "abc");
    d.s.va1().setText(7, 5, "x");
    d.s.va1().setText(9, 5, "x");
    d.s.RefreshData(13);
    ASSERT_FALSE(d.ui.boxes().empty());
    EXPECT_EQ(d.ui.boxes()[0].box.text, "Error in FillLViewData Procedure: Type mismatch and No: 13");
    EXPECT_EQ(d.s.va1().text(7, 5), "21.41") << "rows before the fault are priced";
    EXPECT_EQ(d.s.va1().text(9, 5), "x") << "rows after it are not";
}
