#include "scenario/FrmNewGraph.h"

#include "frame/VbNumber.h"
#include "scenario/SimulationFill.h"

namespace tallimark {

FrmNewGraph::FrmNewGraph(App& app) : GraphScreen(app, kName, "Profit Analysis ...Tallimark") {
    addControl(ControlKind::Label, "lblCurrent", "Graph With respect to Current Date").foreColor =
        kTimeLeftLine();
    addControl(ControlKind::Label, "lblExpiry", "Graph with respect to Expiry Date").foreColor =
        kExpiryLine();
    addSimulationColumns(addGrid(kList, 3));
    wireKeys();
}

void FrmNewGraph::entry() {
    Grid& list = grid(kList);
    list.setMaxRows(0);
    SimulationFill(sourceSheet(), market(), [this](const char* procedure, const std::exception& e) {
        failureBox(procedure, e);
    }).appendRows(list);
    rangeAndDraw();
}

void FrmNewGraph::marketMoved() {
    rangeAndDraw();
}

void FrmNewGraph::rangeAndDraw() {
    GraphCount = grid(kList).maxRows();
    const GraphRange range = CalcGraphRange(grid(kList), GraphCount);
    plot({grid(kList),
          GraphCount,
          range,
          {{2, kTimeLeftLine()}, {3, kExpiryLine()}},
          Val(text("TxtMktPrice"))});
}

std::string FrmNewGraph::readOut(Rgb color, double x, double y) {
    if (!plot_ || (color != kTimeLeftLine() && color != kExpiryLine())) return {};
    return " " + NumText(Round(plot_->XVal(x), 0)) + "    " + NumText(Round(plot_->YVal(y), 0));
}

} // namespace tallimark
