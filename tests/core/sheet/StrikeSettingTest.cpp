// F7 on the sheet: the strike setting dialog and the ladder widened at both ends. The expected
// ladders are worked out by hand from the saved sheet (960 to 1040 by 20, two strikes each side).
#include "SheetDesk.h"
#include "sheet/FrmSettingStrike.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct StockSheet : test::LiveSheetDesk {
    // F7 with the dialog answered by typing the counts and pressing a button.
    void pressF7(const std::string& above, const std::string& below, const char* button = "Command1") {
        ui.setModalRunner([=, this](Form& dialog) {
            labels = dialog.text("Label1") + "|" + dialog.text("Label2");
            dialog.setText("TxtAbove", above);
            dialog.setText("TxtBelowe", below);
            dialog.fire(button, EventType::Click);
        });
        test::pressKey(s, RiskSheet::kLadder, keys::F7);
    }
    std::string labels; // as the dialog came up
    std::string column(int col) {
        std::string all;
        for (int row = 2; row <= s.va1().dataRowCount(); ++row)
            all += s.va1().text(row, col) + " ";
        return all;
    }
};

} // namespace

TEST(StrikeSetting, WidensTheLadderAtBothEnds) {
    StockSheet d;
    const int rows = d.s.va1().maxRows();
    d.pressF7("1", "2");
    EXPECT_EQ(d.labels, "2 Number Of Strike Above  |2 Number Of Strike Below   ");
    EXPECT_EQ(d.column(1), "920 920 940 940 960 960 980 980 1000 1000 1020 1020 1040 1040 1060 1060 ");
    EXPECT_EQ(d.column(2), "C P C P C P C P C P C P C P C P ");
    // The positions moved down with their rows; the new rows hold none.
    EXPECT_EQ(d.column(3), "0 0 0 0 0 -6 15 0 0 -8 0 0 0 0 0 0 ");
    EXPECT_EQ(d.s.va1().maxRows(), rows + 6);
    // The refresh priced the new rows at the sheet's volatilities.
    EXPECT_EQ(d.s.va1().text(2, 6), "30");
    EXPECT_EQ(d.s.va1().text(17, 6), "32");
    EXPECT_FALSE(d.s.va1().text(2, 5).empty());
    for (int row : {2, 16}) {
        EXPECT_EQ(d.s.va1().cell(row, 1).fore, RiskSheet::kCallText);
        EXPECT_EQ(d.s.va1().cell(row + 1, 1).fore, RiskSheet::kPutText);
        EXPECT_EQ(d.s.va1().cell(row, 4).back, RiskSheet::kGround);
    }
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
}

TEST(StrikeSetting, CancelledOrRefusedEntriesLeaveTheLadder) {
    struct Case {
        const char *above, *below, *button;
        const char* box; // the refusal shown, if any
    } cases[] = {
        {"2", "1", "Command2", nullptr},
        {"abc", "1", "Command1", " Please Enter Numeric Value For Number Of Strike Above ..."},
        {"1", "x", "Command1", " Please Enter Numeric Value For Number Of Strike Below ..."},
        // The ladder is bounded a side, and in all: nothing changes beyond.
        {"1001", "1", "Command1", " The ladder takes at most 1000 strikes above ..."},
        {"1", "1073741824", "Command1", " The ladder takes at most 1000 strikes below ..."},
        {"1000", "997", "Command1",
         "The ladder takes at most 2001 strikes and holds 5 now: no strikes were added."},
        // Both counts 0: the dialog stays open; here nobody answers again, so it is left as is.
        {"0", "0", "Command1", nullptr},
    };
    for (const Case& c : cases) {
        StockSheet d;
        const std::string before = d.column(1);
        d.pressF7(c.above, c.below, c.button);
        EXPECT_EQ(d.column(1), before) << c.above << " " << c.below;
        EXPECT_EQ(d.boxLines(),
                  c.box ? std::vector<std::string>{std::string("Wrong Input |") + c.box + "|critical"}
                        : std::vector<std::string>{});
    }
}

TEST(StrikeSetting, TheDialogOnItsOwn) {
    test::Desk d;
    FrmSettingStrike& f = d.app.screens().get<FrmSettingStrike>();
    f.showCurrent(3, 2);
    EXPECT_EQ(f.text("Label1"), "3 Number Of Strike Above  ");
    EXPECT_EQ(f.text("Label2"), "2 Number Of Strike Below   ");
    f.show();

    f.setText("TxtAbove", "0");
    f.setText("TxtBelowe", "0");
    f.fire("Command1", EventType::Click);
    EXPECT_FALSE(f.Accepted);
    EXPECT_TRUE(f.visible()) << "nothing to add keeps the dialog up";

    f.setText("TxtAbove", "zz");
    f.fire("Command1", EventType::Click);
    EXPECT_EQ(f.text("TxtAbove"), "0") << "a refused count is reset";
    EXPECT_TRUE(f.visible());

    f.setText("TxtBelowe", "4");
    f.fire("Command1", EventType::Click);
    EXPECT_TRUE(f.Accepted);
    EXPECT_EQ(f.NumAbove, 0);
    EXPECT_EQ(f.NumBelow, 4);
    EXPECT_FALSE(f.visible());

    f.show();
    test::pressKey(f, "TxtAbove", keys::Escape);
    EXPECT_FALSE(f.Accepted);
    EXPECT_EQ(f.NumBelow, 0) << "Esc clears both counts";
    EXPECT_FALSE(f.visible());
}

TEST(StrikeSetting, StrikesBelowZeroAndTheSixteenBitLimit) {
    {
        // Lowest 10, step 20: the strike below is -10 and is not refused.
        StockSheet d;
        d.s.AddStrikesInGrid(0, 1, 10, 1040, 20);
        EXPECT_EQ(d.s.va1().text(2, 1), "-10");
        EXPECT_EQ(d.s.va1().text(3, 2), "P");
    }
    {
        // A lowest strike past 32767 overflows before the dialog comes up.
        StockSheet d;
        d.s.va1().setText(2, 1, "40000");
        bool shown = false;
        d.ui.setModalRunner([&](Form&) { shown = true; });
        test::pressKey(d.s, RiskSheet::kLadder, keys::F7);
        EXPECT_FALSE(shown);
        ASSERT_EQ(d.ui.boxes().size(), 1u);
        EXPECT_EQ(d.ui.boxes()[0].box.text.rfind("Error in Form_KeyDown Procedure: ", 0), 0u)
            << d.ui.boxes()[0].box.text;
    }
}
