#include "tracker/FrmUnderlying.h"

#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

namespace tallimark {

FrmUnderlying::FrmUnderlying(App& app) : TradeEntryDialog(app, kName, kCaption, "Cmd(0)", "Cmd(1)") {
    addField(ControlKind::TextBox, "TxtUnits", "Units:");
    addField(ControlKind::TextBox, "TxtTraded", "Trade Price:");
    addField(ControlKind::OptionButton, "Option1(0)", "Type:").text = "&Fut/Stk";
    addControl(ControlKind::OptionButton, "Option1(1)", "&Equity");
    addTimeLabel();
    addControl(ControlKind::Button, "Cmd(0)", "OK");
    addControl(ControlKind::Button, "Cmd(1)", "Cancel");

    // Equity is the kind offered each time; futures must be chosen.
    on("Form", EventType::Activate, [this](Event&) {
        setValue("Option1(1)", true);
        setText("TxtUnits", "0");
        takeFocus("TxtUnits");
        stampTime();
    });
    for (const char* field : {"TxtUnits", "TxtTraded"}) {
        selectAllOnEntry(field);
        checkOnLeaving(field, [this, field] { zeroOrNumeric(field); });
    }
    on("Cmd", EventType::Click, [this](Event& e) {
        if (e.index == 0) okClick();
        hide();
    });
    wireKeys(EnterKey::PressesOk);
}

void FrmUnderlying::okClick() {
    Units = text("TxtUnits");
    // The price goes on to the paisa: 12.346 becomes "12.35". A text that is no number (left by
    // Enter before its check) passes as it stands.
    Traded = Trim(Format(text("TxtTraded"), "0.00"));
    if (control("Option1(0)").value)
        CashType = "F";
    else if (control("Option1(1)").value)
        CashType = "Q";
    TradeTime = text("LblTime");
    OK = true;
}

} // namespace tallimark
