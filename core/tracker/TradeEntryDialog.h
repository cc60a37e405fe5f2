#pragma once
// What the trade entry dialogs share: the results an opener reads once a dialog is hidden, the
// clock time stamped as it comes up, the checks of typed figures with their boxes, and the keys
// and close box that end a dialog.
#include "frame/Form.h"
#include "frame/Ui.h"

#include <functional>
#include <string>

namespace tallimark {

class TradeEntryDialog : public Form {
public:
    // Left for the opener and read after the dialog is hidden. OK is set by an accepted entry
    // only, never cleared here: the opener clears it once it has taken the trade.
    std::string Units;
    std::string Traded;
    std::string TradeTime;
    bool OK = false;

protected:
    enum class EnterKey { PressesOk, ActsAsTab };

    TradeEntryDialog(App& app, const char* name, const char* caption, std::string okButton,
                     std::string cancelButton);

    // A caption label ("Label_" + field) followed by its field.
    Control& addField(ControlKind kind, const std::string& field, const char* label);
    // LblTime and its caption.
    void addTimeLabel();
    // LblTime := the present clock time, shown at once.
    void stampTime();
    void selectAllOnEntry(const std::string& field);
    // Puts the focus on a field at once without checking the field it leaves: as the dialog
    // comes up (that figure belongs to the last entry) and when a check sends the person back
    // (the field passed through was never really entered; checking it would bounce for ever).
    void takeFocus(const std::string& field);
    // A check run as the focus leaves a field, except when it goes to the cancel button: a
    // figure being abandoned must not hold the dialog open.
    void checkOnLeaving(const std::string& field, std::function<void()> check);
    // The field must read as a number, else the box, the field cleared and the focus kept there.
    bool numericOrRefuse(const std::string& field, const MsgBox& refusal);
    // A blank figure becomes "0"; any other must read as a number ("Invalid Entry" box).
    void zeroOrNumeric(const std::string& field);
    // Call once every control is added. Esc and the close box press the cancel button; Enter on
    // a button presses that button, elsewhere it presses the OK button or acts as Tab.
    void wireKeys(EnterKey enter);

private:
    const std::string okButton_;
    const std::string cancelButton_;
    bool quiet_ = false;
};

} // namespace tallimark
