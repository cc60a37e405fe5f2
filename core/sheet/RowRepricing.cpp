// Tab or Enter on the ladder reprices the active row with the volatility typed in its own
// column 6, then brings the sheet's positions and balances up to date. The typed volatility
// holds only until the next full refresh, which writes the sheet's field back over it.
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

using pricing::OptionSide;

void RiskSheet::RepriceRow() {
    Grid& g = va1();
    va1_Click(g.activeCol, g.activeRow);
    const int row = g.activeRow;
    if (cell(row, 1).empty()) setCell(row, 1, "0");
    const double K = CDbl(cell(row, 1));
    const double S = CDbl(text("TxtMktPrice"));
    const double r = IntRate;

    // A call row with no volatility of its own is not mended: CDbl refuses the blank.
    const bool call = isCallRow(row);
    if (!call && cell(row, 6).empty()) setCell(row, 6, "0");
    const double sigma = CDbl(cell(row, 6)) / 100;
    (call ? SigmaC : SigmaP) = sigma;

    if (isIndex())
        repriceIndexRow(row, S, K, sigma, call);
    else
        repriceStockRow(row, S, K, r, sigma, call);

    UpdateTracker();
    CalcDeltaNeutral1();
    CalcPremium();
    CalcOptionR();
    CalcSheetGreeks();
    ErrProcCalcBalance();
    ThetaBal();
}

void RiskSheet::repriceStockRow(int row, double S, double K, double r, double sigma, bool call) {
    // The clocks of the full fill without its strike test: a row out of the money also counts
    // on 180 when both volatilities are below 50%.
    const double halfYear = SigmaC < 0.5 && SigmaP < 0.5 ? pricing::kHalfYear360 : pricing::kHalfYear366;
    const double days = CDbl(text("TxtDays"));
    const double T = pricing::treeYears(days, halfYear);
    const double T1 = pricing::treeYears(days - 1, halfYear);
    const OptionSide side = call ? OptionSide::Call : OptionSide::Put;

    const pricing::BinomialFigures today = stock_.CalcBinomial(S, K, T, r, sigma, kCarry, kSteps, side);
    setCell(row, 5, NumText(today.value));
    setCell(row, 7, NumText(today.delta));
    setCell(row, 8, NumText(stock_.CalcBinomialNext(S, K, T1, r, sigma, kCarry, kSteps, side)));
}

void RiskSheet::repriceIndexRow(int row, double S, double K, double sigma, bool call) {
    CurDays = CDbl(text("TxtDays"));
    CurVol = sigma;
    const pricing::IndexInputs in{S, K, IntRate, CurVol, CurDays};
    index_.CalcD1Index(in);
    index_.CalcD2Index(in);
    const double price = call ? index_.PriceCallIndex(in) : index_.PricePutIndex(in);
    const double delta = call ? index_.DeltaCallIndex(in) : index_.DeltaPutIndex(in);
    setCell(row, 5, NumText(Round(price, 2)));
    setCell(row, 7, NumText(Round(vb::checked(delta * 100), 3)));
}

} // namespace tallimark
