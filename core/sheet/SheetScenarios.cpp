// What the sheet would be worth if the underlying moved 10 and 20 percent either way, and the
// exposure margin of its short options and futures.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <cmath>

namespace tallimark {

void RiskSheet::CalcUpDnBal() {
    trapped("CalcUpDnBal", [this] {
        PrevMktPrice = Trim(text("TxtMktPrice"));
        const double S = CDbl(text("TxtMktPrice"));
        UpMktPrice = {S + S * 0.1, S + S * 0.2, S - S * 0.1, S - S * 0.2};
        for (size_t i = 0; i < UpMktPrice.size(); ++i) {
            ScenOptValue = 0;
            ScenPrice = UpMktPrice[i];
            ScenFutValue = Round((ScenPrice - Val(text("TxtFutTrade"))) * Val(text("TxtFutLots")), 0);
            GetUpDnData();
            UpBal[i] = Round(Val(text("TxtPremium")) + ScenOptValue + Val(text("TxtComm")) +
                                 Val(text("TxtOptR")) + Val(text("TxtFutR")) + ScenFutValue,
                             0);
        }
    });
}

void RiskSheet::GetUpDnData() {
    trapped("GetUpDnData", [this] {
        if (pricingInputsMissing()) return;
        // A walk of the ladder like the fill: the other side's sigma starts at 0, not at what the
        // last fill left, so a high volatility on one side does not move the first rows' clock.
        SigmaC = SigmaP = 0;
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row) {
            CurStrike = CDbl(cell(row, 1));
            const double Units = rowUnits(row);
            const bool call = takeRowVolatility(row);
            // At most 50 percent counts on 180 here, where the ladder asks for below: settled so.
            const double K = CurStrike, S = ScenPrice, days = CDbl(text("TxtDays"));
            const bool on360 = K <= S && SigmaC <= 0.5 && SigmaP <= 0.5;
            const double T = pricing::treeYears(days, on360 ? pricing::kHalfYear360 : pricing::kHalfYear366);
            if (T > 0) ScenOptValue += scenarioValue(T, call) * Units;
        }
    });
}

// A row's price at the scenario price: the tree's, to two decimals, on the stock sheet, leaving
// the last tree's OptionValue as it was; on the index sheet the closed form with its own
// rounding to three decimals, which stands in place of the tree and so takes none of its own.
double RiskSheet::scenarioValue(double T, bool call) {
    const double S = ScenPrice, K = CurStrike;
    if (!isIndex()) {
        const double kept = stock_.optionValue();
        const double value = stock_
                                 .CalcBinomial(S, K, T, IntRate, call ? SigmaC : SigmaP, 0.1, 100,
                                               call ? pricing::OptionSide::Call : pricing::OptionSide::Put)
                                 .value;
        stock_.setOptionValue(kept);
        return value;
    }
    CurDays = CDbl(text("TxtDays"));
    CurVol = call ? SigmaC : SigmaP;
    const pricing::IndexInputs in{S, K, IntRate, CurVol, CurDays};
    index_.CalcD1Index(in);
    index_.CalcD2Index(in);
    return call ? index_.PriceCallIndex(in) : index_.PricePutIndex(in);
}

void RiskSheet::TotExposure() {
    Recordset rs = app().store().query("select sum(units) as TotUnits, sum(units*Traded) as TotTrade from "
                                       "dummytracker where " +
                                       sheetLedgerKey() + " and CP = 'S' and CashType='F'");
    const double FutUnits = rs.eof() ? 0 : std::abs(rs["TotUnits"].numberOrZero());
    double ShortUnits = 0;
    const int last = lastLadderRow();
    for (int row = 2; row <= last; ++row)
        if (!cell(row, 3).empty() && Val(cell(row, 3)) < 0) ShortUnits += std::abs(Val(cell(row, 3)));
    set("TxtEx_Magin", Round((ShortUnits + FutUnits) * Val(text("TxtMktPrice")) * ExMarginPct / 100, 2));
}

} // namespace tallimark
