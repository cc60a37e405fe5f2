#pragma once
// The Greek graph: the sheet's total Delta, Theta, Vega and Gamma for every day from the days that
// remain down to expiry, as a table ("Greek &Simulation") and as one red line of the Greek chosen.
#include "pricing/IndexEngine.h"
#include "pricing/StockEngine.h"
#include "scenario/GraphScreen.h"

namespace tallimark {

class FrmNewGraphGreek : public GraphScreen {
public:
    static constexpr const char* kName = "FrmNewGraphGreek";
    explicit FrmNewGraphGreek(App& app);

    // The list from TxtDays down to day 0, then Delta chosen and drawn.
    void entry() override;

    // The day's totals, as the list shows them once rounded to 1 decimal.
    double DeltaTotal = 0, ThetaTotal = 0, VegaTotal = 0, GammaTotal = 0;

protected:
    void marketMoved() override;
    std::string readOut(Rgb color, double x, double y) override;

private:
    // FillLViewData and FillLViewDataIndex: the totals for GreekDay; a failure shows its box and
    // leaves the totals where they got to.
    void FillLViewData(RiskSheet& sheet);
    void stockRow(RiskSheet& sheet, int row, const pricing::StockInputs& sheetIn);
    void indexRow(RiskSheet& sheet, int row, double sigmaC, double sigmaP);
    double rowUnits(RiskSheet& sheet, int row) const;
    // The option chosen: the list hidden, the surface cleared and shown, range and drawing.
    void greekChosen(int option);
    // Greek Simulation: the list back, the surface hidden.
    void showTable();
    int chosenColumn() const;

    int GreekDay = 0;
    double GreekPrice = 0;
    pricing::StockEngine stock_;
    pricing::IndexEngine index_;
};

} // namespace tallimark
