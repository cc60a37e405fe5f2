// The walk over the ladder that prices every row and keeps the sheet's running totals.
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

using pricing::OptionSide;

namespace {} // namespace

void RiskSheet::FillLViewData() {
    trapped("FillLViewData", [this] {
        if (pricingInputsMissing()) return;
        if (zeroOrEmpty("TxtImpVolP")) setText("TxtImpVolP", text("TxtImpVol"));

        double TotDelta = 0, TotTheta = 0, TotVega = 0, TotGamma = 0;
        CallDelta = CallVega = CallTheta = CallGamma = 0;
        PutDelta = PutVega = PutTheta = PutGamma = 0;
        SigmaC = SigmaP = 0;
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row) {
            if (isIndex())
                fillIndexRow(row);
            else
                fillStockRow(row, TotDelta, TotTheta, TotVega, TotGamma);
        }
        if (isIndex()) return;
        set("TxtCallDelta", CallDelta);
        set("TxtCallGamma", CallGamma);
        set("TxtCallVega", CallVega);
        set("TxtCallTheta", CallTheta);
        set("TxtPutDelta", PutDelta);
        set("TxtPutGamma", PutGamma);
        set("TxtPutTheta", PutTheta);
        set("TxtPutVega", PutVega);
    });
}

void RiskSheet::fillStockRow(int row, double& TotDelta, double& TotTheta, double& TotVega, double& TotGamma) {
    CurStrike = CDbl(cell(row, 1));
    const double S = CDbl(text("TxtMktPrice"));
    const double K = CurStrike;
    const double r = IntRate;
    const double Units = rowUnits(row);

    const bool call = takeRowVolatility(row);
    const pricing::StockInputs in{S, K, r, SigmaC, SigmaP, CDbl(text("TxtDays"))};
    const auto [T, T1] = pricing::ladderClocks(in);
    const double sigma = call ? SigmaC : SigmaP;
    const OptionSide side = call ? OptionSide::Call : OptionSide::Put;

    const pricing::BinomialFigures today = stock_.CalcBinomial(S, K, T, r, sigma, kCarry, kSteps, side);
    setCell(row, 5, NumText(today.value));
    setCell(row, 7, NumText(today.delta));
    // The closed-form theta runs for its faults alone: the ladder's theta is the difference of
    // the two trees below.
    if (call)
        (void)stock_.ThetaCall(in);
    else
        (void)stock_.ThetaPut(in);
    const double Vega = call ? stock_.VegaCall(in) : stock_.VegaPut(in);
    const double Gamma = call ? stock_.GammaCall(in) : stock_.GammaPut(in);
    if (T > 0) setCell(row, 8, NumText(stock_.CalcBinomialNext(S, K, T1, r, sigma, kCarry, kSteps, side)));

    // The tree's +100 for a put in the money at expiry is shown as -100; the sums below take
    // the tree's sign and turn it themselves.
    const double Delta = CDbl(cell(row, 7));
    if (T == 0 && Trim(cell(row, 2)) == "P" && Val(text("TxtMktPrice")) < Val(cell(row, 1)))
        setCell(row, 7, NumText(-Val(cell(row, 7))));
    addDeltaTotals(row, T, S, K, Units, Delta, TotDelta);

    const double Theta = CDbl(cell(row, 5)) - CDbl(cell(row, 8));
    double& sideTheta = call ? CallTheta : PutTheta;
    if (Val(text("TxtDays")) > 0) {
        setCell(row, 10, NumText(Round(Theta, 3)));
        setCell(row, 11, NumText(-Round(Units * Theta, 1)));
        TotTheta = TotTheta - Units * Theta;
        set("TxtTotTheta", Round(TotTheta, 1));
        sideTheta += -Round(Units * Theta, 1);
    } else {
        setCell(row, 10, "0");
        setCell(row, 11, "0");
        set("TxtTotTheta", Round(TotTheta, 1));
        sideTheta += TotTheta;
    }

    setCell(row, 12, NumText(Vega));
    setCell(row, 13, NumText(Round(Units * Vega, 1)));
    TotVega += Units * Vega;
    set("TxtTotVega", Round(TotVega, 1));
    (call ? CallVega : PutVega) += Units * Vega;

    setCell(row, 14, NumText(Gamma));
    setCell(row, 15, NumText(Round(Units * Gamma, 1)));
    TotGamma += Units * Gamma;
    set("TxtTotGamma", Round(TotGamma, 1));
    (call ? CallGamma : PutGamma) += Units * Gamma;
}

// The row's hedge, -Units*Delta/100, into the totals and column 9. At expiry an at-the-money
// row hedges nothing, and a put in the money hedges with the tree's positive delta.
void RiskSheet::addDeltaTotals(int row, double T, double S, double K, double Units, double Delta,
                               double& TotDelta) {
    if (T < 0) return;
    const bool call = isCallRow(row);
    double amount = -Units * Delta / 100;
    bool moves = true;
    if (T == 0 && S == K)
        moves = false;
    else if (T == 0 && !call && S < K)
        amount = Units * Delta / 100;
    if (moves) {
        TotDelta += amount;
        (call ? CallDelta : PutDelta) += amount;
    }
    set("TxtTotDel", Round(TotDelta, 1));
    setCell(row, 9, moves ? NumText(Round(amount, 1)) : "0");
}

void RiskSheet::fillIndexRow(int row) {
    CurStrike = CDbl(cell(row, 1));
    const double S = CDbl(text("TxtMktPrice"));
    const double K = CurStrike;
    const double Units = rowUnits(row);

    const bool call = takeRowVolatility(row);
    CurDays = CDbl(text("TxtDays"));
    CurVol = call ? SigmaC : SigmaP;
    const pricing::IndexInputs in{S, K, IntRate, CurVol, CurDays};
    index_.CalcD1Index(in);
    index_.CalcD2Index(in);
    const double vega = index_.VegaIndex(in);
    const double gamma = index_.GammaIndex(in);
    const double price = call ? index_.PriceCallIndex(in) : index_.PricePutIndex(in);
    const double delta = call ? index_.DeltaCallIndex(in) : index_.DeltaPutIndex(in);
    // A put row takes the call's theta: the index ladder has always shown it so.
    const double theta = index_.ThetaCallIndex(in);

    setCell(row, 5, NumText(Round(price, 2)));
    setCell(row, 7, NumText(Round(vb::checked(delta * 100), 3)));
    setCell(row, 8, "0");
    setCell(row, 9, NumText(Round(delta * Units, 2)));
    setCell(row, 10, NumText(Round(theta, 3)));
    setCell(row, 11, NumText(Round(Units * theta, 2)));
    setCell(row, 12, NumText(Round(vega, 3)));
    setCell(row, 13, NumText(Round(Units * vega, 3)));
    setCell(row, 14, NumText(Round(gamma, 3)));
    setCell(row, 15, NumText(Round(Units * gamma, 3)));
}

} // namespace tallimark
