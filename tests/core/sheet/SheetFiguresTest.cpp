// The figures of whole sheets after their opening refresh, field by field and cell by cell,
// for a live sheet and for one on its expiry day, stock and index. The expected figures stand in
// SheetFigures.h, printed by sheet_figures.py beside this file: an independent rendering of the
// desk's formulas (the tree node by node with both powers, the midpoint normal sum, the index
// closed forms, half-even Round, the 15-digit number text) and of the refresh in its order.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

TEST(SheetFigures, EveryFieldAndCellAfterTheOpeningRefresh) {
    for (const test::SavedSheet& c : test::kSavedSheets) {
        SCOPED_TRACE(c.name);
        test::SheetDesk d;
        RiskSheet& s = test::openSaved(d, c);
        EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
        for (size_t i = 0; i < c.fieldCount; ++i)
            EXPECT_EQ(s.text(c.fields[i].first), c.fields[i].second) << c.fields[i].first;
        ASSERT_EQ(s.va1().dataRowCount(), 11);
        for (int row = 2; row <= 11; ++row)
            for (int col = 1; col <= 16; ++col)
                EXPECT_EQ(s.va1().text(row, col), c.ladder[row - 2][col - 1])
                    << "row " << row << " col " << col;
    }
}
