#include "scenario/FrmListGraph.h"

#include "frame/App.h"
#include "scenario/FrmNewGraph.h"
#include "scenario/FrmNewGraphGreek.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

FrmListGraph::FrmListGraph(App& app) : Form(app, kName, "Graphical Analysis.......By Tallimark") {
    addControl(ControlKind::OptionButton, "Option1", "&Profit Analysis ").value = true;
    addControl(ControlKind::OptionButton, "Option2", "&Greek Analysis ");
    addControl(ControlKind::Button, "CmdRun", "&Run");
    addControl(ControlKind::Button, "CmdExit", "&Cancel");
    // The two kinds share one frame of the screen, so choosing one clears the other, though they
    // are not one array of buttons.
    on("Option1", EventType::Click, [this](Event&) { setValue("Option2", false); });
    on("Option2", EventType::Click, [this](Event&) { setValue("Option1", false); });
    on("CmdRun", EventType::Click, [this](Event&) { CmdRun(); });
    on("CmdExit", EventType::Click, [this](Event&) { requestClose(); });
    for (const std::string& name : {std::string("Form"), std::string("Option1"), std::string("Option2"),
                                    std::string("CmdRun"), std::string("CmdExit")})
        on(name, EventType::KeyDown, [this, name](Event& e) {
            // Enter on a kind runs it, as Run does: the launcher is worked from the keyboard too.
            const bool run = e.keyCode == keys::Enter && name.rfind("Option", 0) == 0;
            if (e.keyCode != keys::Escape && !run) return;
            e.keyCode = 0;
            if (run)
                CmdRun();
            else
                requestClose();
        });
}

void FrmListGraph::openFrom(RiskSheet& sheet) {
    GraphSource = sheet.isIndex() ? "Index" : "Stk";
    show();
}

void FrmListGraph::CmdRun() {
    BusyScope busy(ui());
    RiskSheet& source = riskSheet(app(), GraphSource == "Index" ? SheetKind::Index : SheetKind::Stock);
    GraphScreen& target = control("Option2").value
                              ? static_cast<GraphScreen&>(app().screens().get<FrmNewGraphGreek>())
                              : app().screens().get<FrmNewGraph>();
    target.load();
    target.launch(source, GraphSource);
    target.show();
}

} // namespace tallimark
