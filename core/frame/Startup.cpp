#include "frame/Startup.h"

#include "access/FrmPwd.h"
#include "frame/App.h"
#include "frame/MDIForm1.h"

#include <filesystem>

namespace tallimark {

bool StartUp(App& app) {
    Ui& ui = app.ui();
    try {
        ui.setBusy(true);
        app.session().g_Today = app.clock().now();
        if (std::filesystem::exists(app.storeFile())) ui.setBusy(false);
        app.openStore();
    } catch (const VbError& e) {
        ui.setBusy(false);
        ui.msgBox({"Error in Main Procedure: " + e.text() + " and No: " + std::to_string(e.number())});
        return false;
    }

    app.screens().get<FrmPwd1>().showModal();
    if (app.session().g_UserName == "NONE") {
        ui.setBusy(true);
        app.screens().unload(FrmPwd::kName);
        app.closeStore();
        ui.setBusy(false);
        app.end();
    }
    app.screens().get<MDIForm1>().show();
    return true;
}

} // namespace tallimark
