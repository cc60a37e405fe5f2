// Saved sheets opened through the real batch executable: the desk logs in, opens the list of
// sheets, picks the sheet and opens it; the dump of the risk sheet must hold every figure that
// sheet_figures.py works out for it (tests/core/sheet/SheetFigures.h), field by field and cell
// by cell, for a live sheet and one on its expiry day, stock and index.
#include "BatchFixture.h"
#include "core/sheet/SheetScenarios.h"

using tallimark::test::contains;
using tallimark::test::Outcome;
using tallimark::test::SavedSheet;

namespace {

// The texts of the painted cells of the ladder in a dump, row by row, 16 to a row: the rows of
// the sheet. The heading row has no colours and dumps its cells as bare texts.
std::vector<std::string> ladderTexts(const std::string& dump) {
    std::vector<std::string> texts;
    const size_t from = dump.find(R"("va1":{"rows":[)");
    const size_t to = dump.find(R"("activeRow")", from);
    const std::string mark = R"("text":")";
    for (size_t at = dump.find(mark, from); at != std::string::npos && at < to; at = dump.find(mark, at)) {
        at += mark.size();
        texts.push_back(dump.substr(at, dump.find('"', at) - at));
    }
    return texts;
}

class SheetBatch : public tallimark::test::BatchFixture {
protected:
    void openAndCheck(const SavedSheet& sheet) {
        sheet.save(*store());
        const std::string screen = sheet.stock() ? "FrmPort5" : "FrmPortfolioIndex";
        const Outcome r = script("login ADMIN tallimark\n"
                                 "menu MDIForm1.munopen\n"
                                 "gridclick FrmNewMainScreen.ListView1 1 1\n"
                                 "click FrmNewMainScreen.Cmd(1)\n"
                                 "dump " +
                                 screen + "\n");
        ASSERT_EQ(r.exitCode, 0) << r.all();
        ASSERT_EQ(r.lines.size(), 1u) << "no box on the way: " << r.all();
        const std::string dump = r.dump(screen);
        EXPECT_TRUE(contains(dump, R"("visible":true)"));
        EXPECT_TRUE(contains(dump, std::string(R"("caption":"Risk Management Sheet for  )") + sheet.desc() +
                                       "   20-11-2026 .....Tallimark \""))
            << dump.substr(0, 200);
        for (size_t i = 0; i < sheet.fieldCount; ++i) {
            const std::string field =
                std::string("\"") + sheet.fields[i].first + R"(":{"text":")" + sheet.fields[i].second + "\"";
            EXPECT_TRUE(contains(dump, field)) << field;
        }
        const std::vector<std::string> cells = ladderTexts(dump);
        ASSERT_EQ(cells.size(), 10u * 16u) << "ten ladder rows";
        for (int row = 2; row <= 11; ++row)
            for (int col = 1; col <= 16; ++col)
                EXPECT_EQ(cells[(row - 2) * 16 + col - 1], sheet.ladder[row - 2][col - 1])
                    << "row " << row << " col " << col;
    }
};

} // namespace

TEST_F(SheetBatch, AStockSheetWithTimeToRun) {
    openAndCheck(tallimark::test::kSavedSheets[0]);
}

TEST_F(SheetBatch, AStockSheetOnItsExpiryDay) {
    openAndCheck(tallimark::test::kSavedSheets[1]);
}

TEST_F(SheetBatch, AnIndexSheetWithTimeToRun) {
    openAndCheck(tallimark::test::kSavedSheets[2]);
}

TEST_F(SheetBatch, AnIndexSheetOnItsExpiryDay) {
    openAndCheck(tallimark::test::kSavedSheets[3]);
}
