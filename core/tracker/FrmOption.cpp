#include "tracker/FrmOption.h"

#include "frame/VbNumber.h"

namespace tallimark {

FrmOption::FrmOption(App& app) : TradeEntryDialog(app, kName, kCaption, "Cmd(0)", "Cmd(1)") {
    addField(ControlKind::Label, "lblStrike", "Strike:");
    addField(ControlKind::TextBox, "TxtUnits", "Units:");
    addField(ControlKind::TextBox, "TxtTraded", "Traded:");
    addField(ControlKind::TextBox, "TxtImpVolF", "Implied Volatility");
    addTimeLabel();
    addControl(ControlKind::Button, "Cmd(0)", "OK");
    addControl(ControlKind::Button, "Cmd(1)", "Cancel");

    on("Form", EventType::Activate, [this](Event&) {
        stampTime();
        takeFocus("TxtUnits");
    });
    // Units are signed and go unchecked: a sale is typed with a minus.
    for (const char* field : {"TxtTraded", "TxtImpVolF"}) {
        selectAllOnEntry(field);
        checkOnLeaving(field, [this, field] { zeroOrNumeric(field); });
    }
    on("Cmd", EventType::Click, [this](Event& e) {
        if (e.index == 0) okClick();
        hide(); // Cancel leaves OK as the opener left it
    });
    wireKeys(EnterKey::PressesOk);
}

void FrmOption::okClick() {
    Units = text("TxtUnits");
    Traded = text("TxtTraded");
    // Enter presses OK before the field is left and checked: a volatility that is no number
    // fails here and the dialog stays up.
    ImpVolF = CCur(text("TxtImpVolF"));
    OK = true;
    TradeTime = text("LblTime");
}

} // namespace tallimark
