// Tab or Enter on the ladder: the active row repriced with the volatility typed in its column 6.
// Expected figures come from the tree and index formulas of sheet_figures.py, run by hand for
// these rows (S 1010 / 6050, 17 days, rates 7% / 8%), not from the code under test.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct OpenSheet : test::LiveSheetDesk {
    using LiveSheetDesk::LiveSheetDesk;
    const std::string& cell(int row, int col) { return s.va1().text(row, col); }
    // Types a volatility into a row and presses a key on the ladder.
    void reprice(int row, const std::string& vol, int key = keys::Tab) {
        s.va1().activeRow = row;
        s.va1().activeCol = 6;
        s.va1().setText(row, 6, vol);
        test::pressKey(s, RiskSheet::kLadder, key);
    }
};

} // namespace

TEST(RowRepricing, TheRowTakesItsOwnVolatility) {
    struct Case {
        SheetKind kind;
        int row;
        const char* vol;
        int key;
        const char *price, *delta, *next; // columns 5, 7 and 8
    } cases[] = {
        // 1040 C out of the money at 40%: both volatilities below 50% count on 180.
        {SheetKind::Stock, 10, "40", keys::Tab, "24.39", "40.599", "23.253"},
        // 980 P at 28%, Enter as well as Tab; the call side keeps the fill's 30%.
        {SheetKind::Stock, 5, "28", keys::Enter, "10.84", "-27.811", "10.291"},
        // 1020 C at 60%: a volatility of 50% or more counts on 183.2.
        {SheetKind::Stock, 8, "60", keys::Tab, "49.76", "51.039", "48.073"},
        // Index rows use the closed forms and leave column 8 at "0".
        {SheetKind::Index, 9, "25", keys::Tab, "144.61", "-52.3", "0"},
        {SheetKind::Index, 6, "18", keys::Enter, "133.78", "62.9", "0"},
    };
    for (const Case& c : cases) {
        OpenSheet d(c.kind);
        d.reprice(c.row, c.vol, c.key);
        EXPECT_EQ(d.cell(c.row, 5), c.price) << c.row << " " << c.vol;
        EXPECT_EQ(d.cell(c.row, 7), c.delta) << c.row << " " << c.vol;
        EXPECT_EQ(d.cell(c.row, 8), c.next) << c.row << " " << c.vol;
        EXPECT_EQ(d.cell(c.row, 6), c.vol);
        EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    }
}

TEST(RowRepricing, OmitsTheStrikeTestOfTheFullRefresh) {
    // 1040 C at the sheet's own 30%: the refresh counts this out-of-the-money row on 183.2, the
    // repricing on 180, so the same volatility gives a different price.
    OpenSheet d(SheetKind::Stock);
    EXPECT_EQ(d.cell(10, 5), "15.7");
    EXPECT_EQ(d.cell(10, 8), "14.89");
    d.reprice(10, "30");
    EXPECT_EQ(d.cell(10, 5), "15.95");
    EXPECT_EQ(d.cell(10, 7), "36.572");
    EXPECT_EQ(d.cell(10, 8), "15.124");
}

TEST(RowRepricing, TheClickRunsFirstAndTheNextRefreshRestoresTheField) {
    OpenSheet d(SheetKind::Stock);
    const std::string before = d.cell(10, 7);
    d.reprice(10, "40");
    // The click read the row before it was repriced.
    EXPECT_EQ(d.s.text("TxtDelPts"), before);
    EXPECT_EQ(d.cell(10, 7), "40.599");
    d.s.RefreshData(13);
    EXPECT_EQ(d.cell(10, 6), "30");
    EXPECT_EQ(d.cell(10, 5), "15.7");
}

TEST(RowRepricing, OtherKeysAndAnEmptyStrikeRow) {
    OpenSheet d(SheetKind::Stock);
    const std::string price = d.cell(10, 5);
    d.reprice(10, "40", keys::Down);
    EXPECT_EQ(d.cell(10, 5), price) << "only Tab and Enter reprice";

    // A row past the ladder has no strike: the click fails on it under its own trap, then the
    // strike is written 0 and, the row being no call, so is the volatility, which the tree cannot
    // divide by: the run-time box, with what was written left standing.
    const int row = d.s.va1().dataRowCount() + 1;
    d.reprice(row, "");
    EXPECT_EQ(d.cell(row, 1), "0");
    EXPECT_EQ(d.cell(row, 6), "0");
    ASSERT_EQ(d.ui.boxes().size(), 2u);
    EXPECT_EQ(d.boxTexts()[0], "Error in va1_Click Procedure: Type mismatch and No: 13");
    EXPECT_EQ(d.boxTexts()[1].rfind("Run-time error '11':", 0), 0u) << d.boxTexts()[1];
}
