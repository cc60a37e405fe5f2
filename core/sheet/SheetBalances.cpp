// The sheet's own sums: premium, greek values, the delta-neutral figure, the balance and what
// the balance would be a day on.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <cmath>

namespace tallimark {

double RiskSheet::amount(const std::string& field) {
    const std::string t = Trim(text(field));
    return t.empty() ? 0 : CDbl(t);
}

void RiskSheet::CalcPremium() {
    trapped("CalcPremium", [this] {
        double sum = 0;
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row) {
            if (cell(row, 3).empty()) continue;
            CurStrike = CDbl(cell(row, 1));
            sum = sum - Val(cell(row, 3)) * Val(cell(row, 4));
        }
        set("TxtPremium", Round(sum, 0));
    });
}

void RiskSheet::CalcSheetGreeks() {
    if (isIndex())
        sheetGreeksIndex();
    else
        sheetGreeksStock();
}

void RiskSheet::sheetGreeksStock() {
    double DelVal = 0, GamVal = 0, VegaVal = 0, TheVal = 0;
    const int last = lastLadderRow();
    for (int row = 2; row <= last; ++row) {
        CurStrike = CDbl(cell(row, 1));
        const double Units = cell(row, 3).empty() ? 0 : CDbl(cell(row, 3));
        if (Units == 0) continue;
        DelVal += Val(cell(row, 7)) * Units / 100;
        // The call's gamma and vega serve both kinds of rows.
        const pricing::StockInputs in = stockInputs();
        GamVal += stock_.GammaCall(in) * Units;
        VegaVal += stock_.VegaCall(in) * Units;
        const double Theta = isCallRow(row) ? stock_.ThetaCall(in) : stock_.ThetaPut(in);
        TheVal = TheVal - std::abs(Theta) * Units;
    }
    set("TxtDelVal", Round(DelVal, 1));
    set("TxtGamVal", Round(GamVal, 1));
    set("TxtVegaVal", Round(VegaVal, 3));
    set("TxtTheVal", Round(TheVal, 3));
}

// The index greeks price each held row on its own volatility, with D1 and D2 as the last
// pricing left them. A live index sheet's delta value stays 0: only an expired row counts.
void RiskSheet::sheetGreeksIndex() {
    double DelVal = 0, GamVal = 0, VegaVal = 0, TheVal = 0;
    const int last = lastLadderRow();
    for (int row = 2; row <= last; ++row) {
        const double Units = cell(row, 3).empty() ? 0 : CDbl(cell(row, 3));
        if (Units == 0) continue;
        CurStrike = CDbl(cell(row, 1));
        CurDays = CDbl(text("TxtDays"));
        CurVol = CDbl(cell(row, 6)) / 100;
        const double S = CDbl(text("TxtMktPrice"));
        if (Val(text("TxtDays")) == 0 && S != CurStrike) DelVal += Val(cell(row, 7)) * Units / 100;
        const pricing::IndexInputs in{S, CurStrike, IntRate, CurVol, CurDays};
        GamVal += index_.GammaIndex(in) * Units;
        VegaVal += index_.VegaIndex(in) * Units;
        const double Theta = isCallRow(row) ? index_.ThetaCallIndex(in) : index_.ThetaPutIndex(in);
        TheVal -= std::abs(Theta) * Units;
    }
    set("TxtDelVal", Round(DelVal, 1));
    set("TxtGamVal", Round(GamVal, 1));
    set("TxtVegaVal", Round(VegaVal, 3));
    set("TxtTheVal", Round(TheVal, 3));
    set("TxtDelCon", Round(DelVal, 2));
    set("TxtGamCon", Round(GamVal, 2));
}

void RiskSheet::CalcDeltaNeutral1() {
    trapped("CalcDeltaNeutral1", [this] {
        // Units of the underlying to buy (positive) or sell so that the book carries no delta.
        const std::string key = sheetLedgerKey();
        const double TotDelta = optionTotals(key).delta;
        const double TotStocks = sumOrZero(
            "select sum(units) as TotStocks from dummytracker where " + key + " and CP = 'S'", "TotStocks");
        // At expiry the stock sheet takes the ladder's own total, the tracker's deltas being stale.
        if (isIndex() || Val(text("TxtDays")) != 0)
            set("txtdelneutral", Round(TotDelta - TotStocks, 2));
        else
            set("txtdelneutral", Round(Val(text("TxtTotDel")) - Val(text("TxtFutLots")), 2));
    });
}

void RiskSheet::ErrProcCalcBalance() {
    trapped("ErrProcCalcBalance", [this] {
        double sum = 0;
        for (const char* f :
             {"TxtPremium", "TxtComm", "TxtCashU", "TxtCashR", "TxtFutU", "TxtFutR", "TxtOptU", "TxtOptR"})
            sum += amount(f);
        set("TxtBalance", Round(sum, 0));
    });
}

void RiskSheet::ThetaBal() {
    trapped("ThetaBal", [this] {
        const std::string key = trimmedLedgerKey();
        // The option rows valued a day on.
        const double TotLast = Round(optionTotals(key).nextDay, 2);
        // A closed series adds its result at the next day's value.
        double ClosedAmt = 0;
        seriesSums(key, SeriesAmount::AtNextDay, false, [&](double units, double amount) {
            if (units == 0) ClosedAmt += amount;
        });
        const double Tomorrow = amount("TxtComm") + amount("TxtPremium") + amount("TxtCashU") +
                                amount("TxtCashR") + amount("TxtFutU") + amount("TxtFutR") + TotLast +
                                ClosedAmt;
        if (Val(text("TxtDays")) > 0)
            set("TxtTheVal", -Round(Val(text("TxtBalance")) - Tomorrow, 2));
        else
            set("TxtTheVal", 0);
    });
}

} // namespace tallimark
