#include "margin/MarginFileScreen.h"

#include "frame/App.h"
#include "frame/VbFormat.h"

namespace tallimark {

MarginFileScreen::MarginFileScreen(App& app, const char* name, const char* caption,
                                   const MarginFileKind& kind)
    : Form(app, name, caption), kind_(kind) {
    addControl(ControlKind::Label, "Label1", "Select Folder:");
    addControl(ControlKind::Label, "LblFolder_Name");
    addControl(ControlKind::Button, "CmdSelect", "...");
    on("CmdSelect", EventType::Click, [this](Event&) { CmdSelect_Click(); });
    on("CmdClose", EventType::Click, [this](Event&) { this->app().screens().unload(this->name()); });
}

std::string MarginFileScreen::defaultPath() {
    return (app().dataDir() / (Format(app().clock().today(), "yyyymmdd") + kind_.extension)).string();
}

void MarginFileScreen::CmdSelect_Click() {
    const std::string ext = kind_.extension;
    FileDialog dialog;
    dialog.save = kind_.save;
    dialog.title = kind_.dialogTitle;
    dialog.filter = ext + "|*" + ext + "|All Files *.*| *.*";
    dialog.initialDir = app().dataDir().string();
    dialog.fileName = Format(app().clock().today(), "yyyymmdd");
    dialog.defaultExt = ext.substr(1);
    dialog.confirmOverwrite = false; // the position file asks its own question
    const std::optional<std::string> chosen = ui().fileDialog(dialog);
    // A cancelled dialog puts the default back, without a word.
    if (!chosen) {
        setText("LblFolder_Name", defaultPath());
        return;
    }
    // The test is on the last four characters as they stand: ".PON" is no position file.
    if (chosen->size() < 4 || chosen->compare(chosen->size() - 4, 4, ext) != 0) {
        ui().msgBox({kind_.wrongKindText, "Error", MsgButtons::Ok, MsgIcon::Information});
        return;
    }
    setText("LblFolder_Name", *chosen);
}

} // namespace tallimark
