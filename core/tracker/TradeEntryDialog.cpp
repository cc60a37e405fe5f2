#include "tracker/TradeEntryDialog.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

namespace tallimark {

TradeEntryDialog::TradeEntryDialog(App& app, const char* name, const char* caption, std::string okButton,
                                   std::string cancelButton)
    : Form(app, name, caption), okButton_(std::move(okButton)), cancelButton_(std::move(cancelButton)) {}

Control& TradeEntryDialog::addField(ControlKind kind, const std::string& field, const char* label) {
    addControl(ControlKind::Label, "Label_" + field, label);
    return addControl(kind, field);
}

void TradeEntryDialog::addTimeLabel() {
    addField(ControlKind::Label, "LblTime", "Time");
}

void TradeEntryDialog::stampTime() {
    // Seconds as the exchange's trade files give them, so that hand-keyed and uploaded trades
    // read alike in a series' trail.
    setText("LblTime", Format(app().clock().now(), "hh:mm:ss"));
    flush();
}

void TradeEntryDialog::selectAllOnEntry(const std::string& field) {
    on(field, EventType::GotFocus, [this, field](Event&) { SelectAll(*this, field); });
}

void TradeEntryDialog::takeFocus(const std::string& field) {
    quiet_ = true;
    if (focused() == field)
        fire(field, EventType::GotFocus); // entered afresh: its text is selected again
    else
        moveFocus(field);
    quiet_ = false;
}

void TradeEntryDialog::checkOnLeaving(const std::string& field, std::function<void()> check) {
    on(field, EventType::LostFocus, [this, check = std::move(check)](Event&) {
        // The focus has already moved: focused() is where it went.
        if (!quiet_ && focused() != cancelButton_) check();
    });
}

bool TradeEntryDialog::numericOrRefuse(const std::string& field, const MsgBox& refusal) {
    if (IsNumeric(text(field))) return true;
    ui().msgBox(refusal);
    setText(field, "");
    takeFocus(field);
    return false;
}

void TradeEntryDialog::zeroOrNumeric(const std::string& field) {
    if (Trim(text(field)).empty()) {
        setText(field, "0");
        return;
    }
    numericOrRefuse(field,
                    {"Only Numeric Values allowed here", "Invalid Entry", MsgButtons::Ok, MsgIcon::Critical});
}

void TradeEntryDialog::wireKeys(EnterKey enter) {
    for (const std::string& name : controlOrder()) {
        if (!hasControl(name)) continue;
        const ControlKind kind = control(name).kind;
        if (kind == ControlKind::Label || kind == ControlKind::Menu || kind == ControlKind::Frame) continue;
        const bool button = kind == ControlKind::Button;
        on(name, EventType::KeyDown, [this, name, button, enter](Event& e) {
            const int key = e.keyCode;
            if (key != keys::Enter && key != keys::Escape) return;
            e.keyCode = 0; // the dialog has acted on it
            if (key == keys::Escape)
                fire(cancelButton_, EventType::Click);
            else if (button)
                fire(name, EventType::Click);
            else if (enter == EnterKey::PressesOk)
                fire(okButton_, EventType::Click);
            else
                EnterAsTab(*this, key);
        });
    }
    // The close box cancels: the dialog stays loaded for its next use, as after Esc.
    on("Form", EventType::QueryUnload, [this](Event& e) {
        e.cancel = true;
        fire(cancelButton_, EventType::Click);
    });
}

} // namespace tallimark
