#include "scenario/FrmSimulation.h"

#include "frame/VbFormat.h"
#include "scenario/SimulationFill.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

namespace {
const char* const kList = "ListView1";
} // namespace

FrmSimulation::FrmSimulation(App& app) : Form(app, kName, "Simulation....Tallimark") {
    addControl(ControlKind::Label, "Label1", kMarketColumn);
    addControl(ControlKind::Label, "Label2", kIntrinsicColumn);
    addControl(ControlKind::Label, "Label3", kSimulationColumn);
    addControl(ControlKind::Label, "lblIntrinsic");
    addControl(ControlKind::Label, "lblSimulation");
    addSimulationColumns(addGrid(kList, 3));
    auto escape = [this](Event& e) {
        if (e.keyCode != keys::Escape) return;
        e.keyCode = 0;
        hide();
    };
    on("Form", EventType::KeyDown, escape);
    on(kList, EventType::KeyDown, escape);
}

void FrmSimulation::openFrom(RiskSheet& sheet) {
    if (sheet.isIndex())
        DoInit1(sheet);
    else
        DoInit(sheet);
    show();
}

void FrmSimulation::DoInit(RiskSheet& sheet) {
    fill(sheet);
}

void FrmSimulation::DoInit1(RiskSheet& sheet) {
    fill(sheet);
}

void FrmSimulation::fill(RiskSheet& sheet) {
    // The captions of the two columns' dates: today's figures and expiry's.
    setText("lblSimulation", Format(sheet.text("TxtExpDt"), "DD-MMM-YYYY"));
    setText("lblIntrinsic", Format(sheet.text("TxtCurDt"), "DD-MMM-YYYY"));
    SimulationFill run(sheet, sheetMarket(sheet),
                       [this](const char* procedure, const std::exception& e) { failureBox(procedure, e); });
    run.appendRows(grid(kList));
}

} // namespace tallimark
