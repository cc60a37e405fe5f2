#include "sheet/FrmSettingStrike.h"

#include "frame/ComProc.h"
#include "frame/Ui.h"
#include "frame/VbNumber.h"

namespace tallimark {

FrmSettingStrike::FrmSettingStrike(App& app) : Form(app, kName, "Strike Setting") {
    addControl(ControlKind::Label, "Label1");
    addControl(ControlKind::TextBox, "TxtAbove", "0");
    addControl(ControlKind::Label, "Label2");
    addControl(ControlKind::TextBox, "TxtBelowe", "0");
    addControl(ControlKind::Button, "Command1", "&Ok");
    addControl(ControlKind::Button, "Command2", "&Cancel");

    on("Command1", EventType::Click, [this](Event&) { command1Click(); });
    on("Command2", EventType::Click, [this](Event&) { cancel(); });
    // Esc anywhere in the dialog, and its close box, leave as Cancel does.
    for (const std::string& name : controlOrder())
        on(name, EventType::KeyDown, [this](Event& e) {
            if (e.keyCode != keys::Escape) return;
            e.keyCode = 0;
            cancel();
        });
    on("Form", EventType::QueryUnload, [this](Event& e) {
        e.cancel = true;
        cancel();
    });
}

void FrmSettingStrike::showCurrent(int16_t above, int16_t below) {
    CurAbove = above;
    CurBelow = below;
    Accepted = false;
    setText("Label1", std::to_string(CurAbove) + " Number Of Strike Above  ");
    setText("Label2", std::to_string(CurBelow) + " Number Of Strike Below   ");
}

bool FrmSettingStrike::countOrRefuse(const std::string& field, const char* message, const char* side) {
    std::string refusal;
    if (!IsNumeric(text(field)))
        refusal = message;
    else if (CDbl(text(field)) > kMaxStrikesASide)
        refusal =
            " The ladder takes at most " + std::to_string(kMaxStrikesASide) + " strikes " + side + " ...";
    if (refusal.empty()) return true;
    ui().msgBox({refusal, "Wrong Input ", MsgButtons::Ok, MsgIcon::Critical});
    setText(field, "0");
    setFocus(field);
    SelectAll(*this, field);
    return false;
}

void FrmSettingStrike::ValidateForm(bool& valid) {
    valid =
        countOrRefuse("TxtAbove", " Please Enter Numeric Value For Number Of Strike Above ...", "above") &&
        countOrRefuse("TxtBelowe", " Please Enter Numeric Value For Number Of Strike Below ...", "below");
}

void FrmSettingStrike::command1Click() {
    bool valid = false;
    ValidateForm(valid);
    if (!valid) return;
    if (Val(text("TxtAbove")) > 0) NumAbove = CLng(text("TxtAbove"));
    if (Val(text("TxtBelowe")) > 0) NumBelow = CLng(text("TxtBelowe"));
    // Nothing to add keeps the dialog up: the user either gives a count or cancels.
    Accepted = Val(text("TxtAbove")) > 0 || Val(text("TxtBelowe")) > 0;
    if (Accepted) hide();
}

void FrmSettingStrike::cancel() {
    NumAbove = NumBelow = 0;
    Accepted = false;
    hide();
}

} // namespace tallimark
