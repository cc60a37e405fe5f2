#include "frame/ComProc.h"

#include "frame/Form.h"
#include "frame/Ui.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"

namespace tallimark {

void BusyCursor(Ui& ui) {
    ui.setBusy(true);
}
void NormalCursor(Ui& ui) {
    ui.setBusy(false);
}

void EnterAsTab(Form& form, int keyCode) {
    if (keyCode == 13) form.focusNext();
}

void SelectAll(Form& form, const std::string& field) {
    Control& c = form.control(field);
    c.selStart = 0;
    c.selLength = static_cast<int>(c.text.size());
    form.markChanged(field);
}

namespace {
template <class F> void eachTextBox(Form& form, F f) {
    for (const std::string& name : form.controlOrder())
        if (form.hasControl(name) && form.control(name).kind == ControlKind::TextBox) f(name);
}
} // namespace

void SetLocked(Form& form, bool locked) {
    eachTextBox(form, [&](const std::string& n) { form.setLocked(n, locked); });
}

void SetEnabled(Form& form, bool enabled) {
    eachTextBox(form, [&](const std::string& n) { form.setEnabled(n, enabled); });
}

void ClearTextBoxes(Form& form) {
    eachTextBox(form, [&](const std::string& n) { form.setText(n, ""); });
}

void SetButtonMask(Form& form, const std::string& array, const std::string& mask) {
    const std::string m = Trim(mask);
    for (size_t i = 0; i < m.size(); ++i) {
        const std::string name = array + "(" + std::to_string(i) + ")";
        if (!form.hasControl(name))
            throw VbError(340, "Control array element '" + std::to_string(i) + "' doesn't exist");
        form.setEnabled(name, m[i] == '1');
    }
}

} // namespace tallimark
