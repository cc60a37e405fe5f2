#pragma once
// The launcher of the two graphs, opened by "Graph" on a sheet's toolbar: profit analysis (the
// net balance graph) or Greek analysis (the Greek graph) of the sheet in hand.
#include "frame/Form.h"
#include "sheet/SheetCommandScreen.h"

#include <string>

namespace tallimark {

class FrmListGraph : public Form, public SheetCommandScreen {
public:
    static constexpr const char* kName = "FrmListGraph";
    explicit FrmListGraph(App& app);

    // "Stk" from a stock sheet, "Index" from an index sheet: the sheet the graphs read.
    std::string GraphSource;

    void openFrom(RiskSheet& sheet) override;
    void CmdRun();
};

} // namespace tallimark
