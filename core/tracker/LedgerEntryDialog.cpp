#include "tracker/LedgerEntryDialog.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

namespace tallimark {

LedgerEntryDialog::LedgerEntryDialog(App& app, const char* name, const char* caption,
                                     std::vector<std::string> combos, Wording wording)
    : TradeEntryDialog(app, name, caption, "CmdOk", "CmdCancel"), combos_(std::move(combos)),
      wording_(wording) {
    on("Form", EventType::Activate, [this](Event&) {
        comingUp();
        stampTime();
    });
    on("CmdOk", EventType::Click, [this](Event&) { okClick(); });
    on("CmdCancel", EventType::Click, [this](Event&) { hide(); });
}

void LedgerEntryDialog::addFiguresAndButtons() {
    addField(ControlKind::TextBox, "TxtUnits", "Units:");
    addField(ControlKind::TextBox, "TxtTraded", "Trade Price:");
    addTimeLabel();
    addControl(ControlKind::Button, "CmdOk", "OK");
    addControl(ControlKind::Button, "CmdCancel", "Cancel");
    for (const char* field : {"TxtUnits", "TxtTraded"}) {
        selectAllOnEntry(field);
        checkOnLeaving(field, [this, field] { numericOrRefuse(field, numericRefusal()); });
    }
    wireKeys(EnterKey::ActsAsTab);
}

std::pair<std::string, std::string> LedgerEntryDialog::sheet() {
    if (Symbol.empty() && Descr.empty()) {
        const Session& s = app().session();
        return {s.g_strSymbol, s.g_strDesc};
    }
    return {Symbol, Descr};
}

std::string LedgerEntryDialog::today() {
    return Format(app().clock().today(), "DD-MMM-YYYY");
}

MsgBox LedgerEntryDialog::numericRefusal() const {
    return {"Only numeric values are accepted.", wording_.numericTitle};
}

bool LedgerEntryDialog::allChecked() {
    for (const std::string& combo : combos_)
        if (Trim(text(combo)).empty()) {
            ui().msgBox({"Please select a value from the combo.", "Data Error"});
            takeFocus(combo);
            return false;
        }
    return numericOrRefuse("TxtUnits", numericRefusal()) && numericOrRefuse("TxtTraded", numericRefusal());
}

void LedgerEntryDialog::keepResults() {
    Units = text("TxtUnits");
    Traded = text("TxtTraded");
    TradeTime = text("LblTime");
}

void LedgerEntryDialog::okClick() {
    if (!allChecked()) return;
    try {
        app().store().execute(insertStatement());
    } catch (const VbError& e) {
        if (!wording_.insertFailure) throw;
        ui().msgBox({std::string(wording_.insertFailure) + "\n" + e.text()});
        return;
    }
    keepResults();
    OK = true;
    ui().msgBox({wording_.doneText});
    hide();
}

} // namespace tallimark
