#include "frame/MDIForm1.h"

#include "frame/App.h"

namespace tallimark {

namespace {
struct MenuEntry {
    const char* name;
    const char* caption;
    const char* parent; // "" for a menu head
    const char* screen; // the screen the entry shows, "" for none
};

const MenuEntry kMenus[] = {
    {"mnufile", "&File", "", ""},
    {"munsheet", "&New Sheet", "mnufile", "FrmNewScript"},
    {"munopen", "&Open Sheet", "mnufile", "FrmNewMainScreen"},
    // The day's closing of the current sheet, and the cash flow of the sheets ticked on the list.
    {"mnuclosing", "C&losing Entry\tCtrl+L", "mnufile", "FrmClosing"},
    {"mnucashflow", "Cas&h Flow\tCtrl+Shift+F", "mnufile", "FrmCashFlow"},
    {"mnuexit", "E&xit", "mnufile", ""},
    {"mnumaster", "&Master", "", ""},
    {"mnuscript", "&Script Master", "mnumaster", "FrmScriptMast"},
    {"mnucharge", "&Charges", "mnumaster", "FrmCharges"},
    {"mnuutility", "&Utility", "", ""},
    {"mnupass", "&New User", "mnuutility", "FrmUser"},
    {"mnucalc", "&Calculator", "mnuutility", "FrmCalc"},
    {"mnureport", "&Report Data", "mnuutility", "FrmReport"},
};

const char* const kUnloadOrder[] = {
    "FrmPort5",        "FrmScriptMast", "FrmNewScript", "FrmOption",     "FrmUnderlying", "FrmPortfolioIndex",
    "FrmTradeTracker", "FrmTrail",      "FrmUpload",    "FrmSimulation", "FrmCharges",    "FrmNewMainScreen"};
} // namespace

MDIForm1::MDIForm1(App& app) : Form(app, kName, "Tallimark") {
    for (const MenuEntry& m : kMenus) {
        addControl(ControlKind::Menu, m.name, m.caption).menuParent = m.parent;
        if (*m.screen) {
            const std::string screen = m.screen;
            on(m.name, EventType::Click,
               [this, screen](Event&) { this->app().screens().get(screen).show(); });
        }
    }
    on("mnuexit", EventType::Click, [this](Event&) { requestClose(); });
    on("Form", EventType::QueryUnload, [this](Event&) {
        // Process stop: busy cursor, the screens unloaded, the connection closed, End.
        ui().setBusy(true);
        UnloadForms();
        this->app().closeStore();
        this->app().end();
    });
}

void MDIForm1::UnloadForms() {
    try {
        for (const char* name : kUnloadOrder)
            app().screens().unload(name);
    } catch (const std::exception& e) {
        const auto* vb = dynamic_cast<const VbError*>(&e);
        ui().msgBox({std::string("Error in UnloadForms Procedure: ") + e.what() +
                     " and no: " + std::to_string(vb ? vb->number() : 0)});
    }
}

} // namespace tallimark
