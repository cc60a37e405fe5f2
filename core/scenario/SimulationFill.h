#pragma once
// What the sheet would show at each strike of its ladder: the net result with the days that
// remain ("Intrinsic", a caption the desk has always read that way) and at expiry
// ("Simulation"). Stock and futures sheets value every option by the simulation's tree, index
// sheets by its closed formula. Read from the open sheet's fields and ladder, never the store; the
// only lasting effects are on the ladder: a blank units cell becomes "0" and column 6 takes the
// volatility used.
#include "scenario/SimulationPricing.h"

#include <exception>
#include <functional>
#include <string>

namespace tallimark {

class Grid;
class RiskSheet;

// The four market texts a fill prices with: the sheet's own, or those a graph screen edits.
struct MarketTexts {
    std::string MktPrice, Days, VolC, VolP;
};
MarketTexts sheetMarket(const RiskSheet& sheet);

// The box of a failed fill procedure; the screen that runs the fill shows it.
using FillReport = std::function<void(const char* procedure, const std::exception& error)>;

// The list's columns, as the list and its captions name them.
inline constexpr const char* kMarketColumn = "Market";
inline constexpr const char* kIntrinsicColumn = "Intrinsic";
inline constexpr const char* kSimulationColumn = "Simulation";
// A list of those three columns.
void addSimulationColumns(Grid& list);

class SimulationFill {
public:
    SimulationFill(RiskSheet& sheet, MarketTexts market, FillReport report);

    // DoInit for a stock sheet, DoInit1 for an index sheet: a row for every strike of the ladder
    // (its call row), appended to the list, which is never cleared here.
    void appendRows(Grid& list);

    // The sheet's two totals were the underlying at SimPrice: each rounded, to whole rupees on
    // a stock sheet and to paise on an index sheet.
    struct Totals {
        double timeLeft = 0;
        double atExpiry = 0;
    };
    Totals totalsAt(double SimPrice);

private:
    // Sum of units times option value over the ladder: FillLViewData, FillLViewData1 and their
    // index editions. A failure shows its box and leaves the sum as far as it got.
    double optionTotal(double SimPrice, bool atExpiry);
    void stockRows(double SimPrice, bool atExpiry, double& OptionTotal);
    void indexRows(double SimPrice, bool atExpiry, double& OptionTotal);
    // A row's units (a blank cell first written "0") and the volatility of its side, which
    // column 6 then shows. The other side's keeps the last row's value.
    double rowUnits(int row);
    bool takeRowVolatility(int row);
    bool inputsMissing() const;

    RiskSheet& sheet_;
    MarketTexts market_;
    FillReport report_;
    bool index_;
    double SimRate = 0;
    double CallVol = 0, PutVol = 0;
    scenario::SimulationTree BinomialValue;
    scenario::SimClosedForm closed_;
};

} // namespace tallimark
