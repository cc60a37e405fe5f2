#pragma once
// The simulation table: for every strike of the open sheet's ladder, the sheet's net result were
// the underlying to stand there, with the days that remain and at expiry. A second run on the
// same screen adds its rows below the first; Esc hides the screen.
#include "frame/Form.h"
#include "sheet/SheetCommandScreen.h"

namespace tallimark {

class FrmSimulation : public Form, public SheetCommandScreen {
public:
    static constexpr const char* kName = "FrmSimulation";
    explicit FrmSimulation(App& app);

    // "Simulate" on a sheet: DoInit for a stock sheet, DoInit1 for an index sheet, then shown.
    void openFrom(RiskSheet& sheet) override;
    void DoInit(RiskSheet& sheet);
    void DoInit1(RiskSheet& sheet);

private:
    void fill(RiskSheet& sheet);
};

} // namespace tallimark
