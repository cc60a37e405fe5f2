#include "frame/RecordScreen.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/Ui.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"

namespace tallimark {

RecordScreen::RecordScreen(App& app, const char* name, const char* caption, std::string buttonArray)
    : Form(app, name, caption), buttonArray_(std::move(buttonArray)) {
    on(buttonArray_, EventType::Click, [this](Event& e) {
        try {
            onButton(e.index);
        } catch (const std::exception& err) {
            failureBox("cmd_Click", err, " and Err Number: ");
        }
    });
}

void RecordScreen::addButtons() {
    const char* const captions[] = {"&New", "&Modify", "&Delete", "&Undo", "&Save", "&Find", "E&xit"};
    for (int i = 0; i < 7; ++i)
        addControl(ControlKind::Button, buttonArray_ + "(" + std::to_string(i) + ")", captions[i]);
}

bool RecordScreen::sharedButton(int index, const RecordSteps& steps) {
    switch (index) {
    case Delete:
        if (confirmDelete() && !steps.remove()) failedBox(Failure::Deleting);
        steps.reset();
        return true;
    case Undo:
        steps.reset();
        return true;
    case Save:
        if (mode == Adding && !steps.add()) failedBox(Failure::Adding);
        if (mode == Modifying && !steps.update()) failedBox(Failure::Updating);
        mode = Idle;
        steps.reset();
        return true;
    case Exit:
        hide();
        return true;
    default:
        return false;
    }
}

void RecordScreen::beginModify(const char* key, const char* first) {
    SetLocked(*this, false);
    if (key) setEnabled(key, false);
    setFocus(first);
    setMask("0001101");
    mode = Modifying;
}

void RecordScreen::setMask(const std::string& mask) {
    SetButtonMask(*this, buttonArray_, mask);
}

bool RecordScreen::confirmDelete() {
    return ui().msgBox({"Do you wish to delete this record?", "Delete Item", MsgButtons::YesNo,
                        MsgIcon::Question}) == MsgAnswer::Yes;
}

void RecordScreen::failedBox(Failure failure) {
    const char* text = failure == Failure::Adding     ? "Failed in adding record"
                       : failure == Failure::Updating ? "Failed in updating record"
                                                      : "Failed in deleting record";
    ui().msgBox({text, "Error", MsgButtons::Ok, MsgIcon::Critical});
}

bool RecordScreen::runStatement(const std::function<std::string()>& build, const char* procedure) {
    try {
        lastStatement.clear();
        lastStatement = build();
        app().store().execute(lastStatement);
        return true;
    } catch (const std::exception& e) {
        if (procedure) failureBox(procedure, e, " No: ");
        return false;
    }
}

void RecordScreen::addField(const std::string& field, std::string caption) {
    addControl(ControlKind::Label, "Lbl" + field.substr(3), std::move(caption));
    addControl(ControlKind::TextBox, field).locked = true;
}

void RecordScreen::addFieldKeys() {
    std::string lastField;
    for (const std::string& name : controlOrder())
        if (hasControl(name) && control(name).kind == ControlKind::TextBox) lastField = name;
    const std::string save = buttonArray_ + "(" + std::to_string(Save) + ")";
    for (const std::string& name : controlOrder()) {
        if (!hasControl(name)) continue;
        const ControlKind kind = control(name).kind;
        if (kind != ControlKind::TextBox && kind != ControlKind::Button) continue;
        const bool textBox = kind == ControlKind::TextBox;
        if (textBox) on(name, EventType::GotFocus, [this, name](Event&) { SelectAll(*this, name); });
        // Enter after the last field goes to Save, what the record was typed for, not to the
        // first button that happens to be enabled (Undo would throw the typing away).
        const bool last = name == lastField;
        on(name, EventType::KeyDown, [this, textBox, last, save](Event& e) {
            if (e.keyCode == keys::Escape)
                hide();
            else if (last && e.keyCode == keys::Enter && hasControl(save) && control(save).enabled)
                setFocus(save);
            else if (textBox)
                EnterAsTab(*this, e.keyCode);
        });
    }
}

void RecordScreen::procedureBox(const std::string& procedure, const std::exception& error) {
    const auto* vb = dynamic_cast<const VbError*>(&error);
    ui().msgBox({"Error in " + procedure + " procedure: " + error.what() +
                 " No: " + std::to_string(vb ? vb->number() : 0)});
}

bool RecordScreen::seekRow(Recordset& rows, const std::string& column, const std::string& text) {
    const std::string wanted = UCase(text);
    for (rows.moveFirst(); !rows.eof(); rows.moveNext()) {
        const Value& v = rows[column];
        if (!v.isNull() && UCase(v.text()) == wanted) return true;
    }
    return false;
}

} // namespace tallimark
