// F7 on the sheet: the strike setting dialog and the widening of the ladder at either end.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "sheet/FrmSettingStrike.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

void RiskSheet::SetStrikes() {
    // The step is read from the first two calls, rows 2 and 4; an odd strike beyond the 16-bit
    // range stops here with the keys' failure box.
    const int Lowest = CInt(cell(2, 1));
    const int Step = CInt(Val(cell(4, 1)) - Lowest);
    const int Highest = CInt(cell(lastLadderRow(), 1));

    // A fresh dialog each time: counts left from an earlier setting must not be added again.
    Screens& screens = app().screens();
    FrmSettingStrike& dialog = screens.get<FrmSettingStrike>();
    dialog.showCurrent(CInt(static_cast<double>(AStrike)), CInt(static_cast<double>(BStrike)));
    dialog.showModal();
    const bool accepted = dialog.Accepted;
    const long NumAbove = dialog.NumAbove, NumBelow = dialog.NumBelow;
    screens.unload(FrmSettingStrike::kName);
    if (!accepted) return;
    const long strikes = (lastLadderRow() - 1) / 2, most = 2 * FrmSettingStrike::kMaxStrikesASide + 1;
    if (strikes + NumAbove + NumBelow > most) {
        ui().msgBox({"The ladder takes at most " + std::to_string(most) + " strikes and holds " +
                         std::to_string(strikes) + " now: no strikes were added.",
                     "Wrong Input ", MsgButtons::Ok, MsgIcon::Critical});
        return;
    }
    AddStrikesInGrid(NumAbove, NumBelow, Lowest, Highest, Step);
}

void RiskSheet::AddStrikesInGrid(long NumAbove, long NumBelow, int Lowest, int Highest, int Step) {
    Grid& g = va1();
    const int last = lastLadderRow();
    const int below = static_cast<int>(NumBelow) * 2, above = static_cast<int>(NumAbove) * 2;
    g.setMaxRows(g.maxRows() + below + above);
    // Blank rows at row 2 for the strikes below: everything from row 2 moves down.
    for (int row = last; below > 0 && row >= 2; --row)
        for (int col = 1; col <= g.maxCols(); ++col) {
            const Cell& from = g.cell(row, col);
            g.setText(row + below, col, from.text);
            if (from.fore) g.setFore(row + below, col, *from.fore);
            if (from.back) g.setBack(row + below, col, *from.back);
            g.setText(row, col, "");
        }

    // Filled from the bottom up so that the ladder still reads low to high from the top.
    int r = below + 1;
    for (long i = 1; i <= NumBelow; ++i) {
        const double strike = Lowest - i * Step;
        newStrikeRow(r, strike, false);
        newStrikeRow(r - 1, strike, true);
        r -= 2;
    }
    r = last + below + 1;
    for (long i = 1; i <= NumAbove; ++i) {
        const double strike = Highest + i * Step;
        newStrikeRow(r, strike, true);
        newStrikeRow(r + 1, strike, false);
        r += 2;
    }
    RefreshData(13);
}

void RiskSheet::newStrikeRow(int row, double strike, bool call) {
    setCell(row, 1, NumText(strike));
    setCell(row, 2, call ? "C" : "P");
    setCell(row, 3, "0");
    setCell(row, 4, "0");
    Grid& g = va1();
    for (int col = 1; col <= g.maxCols(); ++col) {
        g.setBack(row, col, kGround);
        g.setFore(row, col, call ? kCallText : kPutText);
    }
}

} // namespace tallimark
