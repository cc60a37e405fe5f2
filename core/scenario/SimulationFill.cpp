#include "scenario/SimulationFill.h"

#include "frame/VbError.h"
#include "frame/VbNumber.h"
#include "scenario/SimulationPricing.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

using pricing::OptionSide;

namespace {

bool zeroOrEmpty(const std::string& text) {
    const std::string t = Trim(text);
    return t.empty() || t == "0";
}

void setIfChanged(Grid& g, int row, int col, const std::string& text) {
    if (g.text(row, col) != text) g.setText(row, col, text);
}

} // namespace

MarketTexts sheetMarket(const RiskSheet& sheet) {
    return {sheet.text("TxtMktPrice"), sheet.text("TxtDays"), sheet.text("TxtImpVol"),
            sheet.text("TxtImpVolP")};
}

void addSimulationColumns(Grid& list) {
    const char* const headings[] = {kMarketColumn, kIntrinsicColumn, kSimulationColumn};
    for (int c = 1; c <= 3; ++c) {
        list.column(c).heading = headings[c - 1];
        list.column(c).width = 14;
    }
}

SimulationFill::SimulationFill(RiskSheet& sheet, MarketTexts market, FillReport report)
    : sheet_(sheet), market_(std::move(market)), report_(std::move(report)), index_(sheet.isIndex()) {}

void SimulationFill::appendRows(Grid& list) {
    Grid& ladder = sheet_.va1();
    const int last = CInt(static_cast<double>(ladder.dataRowCount()));
    for (int row = 2; row <= last; row += 2) {
        const std::string market = Trim(ladder.text(row, 1));
        const int item = list.maxRows() + 1;
        list.setMaxRows(item);
        list.setText(item, 1, market);
        const Totals t = totalsAt(CDbl(market));
        list.setText(item, 2, Str(t.timeLeft));
        list.setText(item, 3, Str(t.atExpiry));
    }
}

SimulationFill::Totals SimulationFill::totalsAt(double SimPrice) {
    const double FutTrade = Val(sheet_.text("TxtFutTrade"));
    const double FutLots = Val(sheet_.text("TxtFutLots"));
    // The stock sheet's futures result is in whole rupees, the index sheet's is not rounded.
    const double FutureResult =
        index_ ? FutLots * (SimPrice - FutTrade) : Round(vb::checked((SimPrice - FutTrade) * FutLots), 0);
    const double fixed = Val(sheet_.text("TxtPremium"));
    auto SimTotal = [&](double OptionTotal) {
        const double sum = fixed + OptionTotal + Val(sheet_.text("TxtComm")) + Val(sheet_.text("TxtOptR")) +
                           Val(sheet_.text("TxtFutR")) + FutureResult;
        return Round(vb::checked(sum), index_ ? 2 : 0);
    };
    Totals t;
    t.timeLeft = SimTotal(optionTotal(SimPrice, false));
    t.atExpiry = SimTotal(optionTotal(SimPrice, true));
    return t;
}

bool SimulationFill::inputsMissing() const {
    // The put volatility is not tested: an empty one prices puts at 0.
    return zeroOrEmpty(market_.MktPrice) || Trim(market_.Days).empty() || zeroOrEmpty(market_.VolC);
}

double SimulationFill::optionTotal(double SimPrice, bool atExpiry) {
    static const char* const kNames[2][2] = {{"FillLViewData", "FillLViewData1"},
                                             {"FillLViewDataIndex", "FillLViewDataIndex1"}};
    double OptionTotal = 0;
    try {
        if (inputsMissing()) return 0;
        SimRate = sheet_.IntRate;
        CallVol = PutVol = 0;
        if (index_)
            indexRows(SimPrice, atExpiry, OptionTotal);
        else
            stockRows(SimPrice, atExpiry, OptionTotal);
    } catch (const std::exception& e) {
        report_(kNames[index_][atExpiry], e);
    }
    return OptionTotal;
}

double SimulationFill::rowUnits(int row) {
    Grid& ladder = sheet_.va1();
    if (ladder.text(row, 3).empty()) ladder.setText(row, 3, "0");
    return CDbl(ladder.text(row, 3));
}

bool SimulationFill::takeRowVolatility(int row) {
    Grid& ladder = sheet_.va1();
    const bool call = ladder.text(row, 2) == "C";
    const std::string& field = call ? market_.VolC : market_.VolP;
    (call ? CallVol : PutVol) = Val(field) / 100;
    setIfChanged(ladder, row, 6, Trim(field));
    return call;
}

void SimulationFill::stockRows(double SimPrice, bool atExpiry, double& OptionTotal) {
    Grid& ladder = sheet_.va1();
    const int last = CInt(static_cast<double>(ladder.dataRowCount()));
    const double days = CDbl(market_.Days);
    for (int row = 2; row <= last; ++row) {
        const double SimStrike = CDbl(ladder.text(row, 1));
        const double Units = rowUnits(row);
        takeRowVolatility(row);
        // Unlike the ladder's clock, a volatility of exactly 50% still counts on 180.
        double T = 0;
        if (!atExpiry)
            T = SimStrike <= SimPrice && CallVol <= 0.5 && PutVol <= 0.5 ? days * 0.5 / 180
                                                                         : days * 0.5 / 183.2;
        const std::string& CP = ladder.text(row, 2);
        if (Units == 0) continue;
        // The carry is 0.1 whatever the sheet's rate.
        if (CP == "C")
            OptionTotal +=
                Units * BinomialValue(SimPrice, SimStrike, T, SimRate, CallVol, 0.1, 100, OptionSide::Call);
        else if (CP == "P")
            OptionTotal +=
                Units * BinomialValue(SimPrice, SimStrike, T, SimRate, PutVol, 0.1, 100, OptionSide::Put);
    }
}

void SimulationFill::indexRows(double SimPrice, bool atExpiry, double& OptionTotal) {
    scenario::SimClosedForm& closed = closed_;
    Grid& ladder = sheet_.va1();
    const int last = CInt(static_cast<double>(ladder.dataRowCount()));
    for (int row = 2; row <= last; ++row) {
        const double SimStrike = CDbl(ladder.text(row, 1));
        const double SimDays = atExpiry ? 0 : CDbl(market_.Days);
        const double Units = rowUnits(row);
        const double SimVol = takeRowVolatility(row) ? CallVol : PutVol;
        // The tree's clock is worked out and dropped: the closed formula counts SimDays/365. A
        // days text that is no number still stops the row here.
        (void)(CDbl(market_.Days) * 0.5 / 180);
        closed.SimCalcD1(SimPrice, SimStrike, SimRate, SimVol, SimDays);
        closed.SimCalcD2(SimVol, SimDays);
        const std::string& CP = ladder.text(row, 2);
        double value = 0;
        if (CP == "C")
            value = closed.SimCallValue(SimPrice, SimStrike, SimRate, SimDays);
        else if (CP == "P")
            value = closed.SimPutValue(SimPrice, SimStrike, SimRate, SimDays);
        else
            continue;
        OptionTotal += Units * Round(value, 2);
    }
}

} // namespace tallimark
