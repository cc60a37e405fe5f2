#include "tracker/FrmUnderlying_New.h"

#include "frame/Store.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "tracker/FrmUnderlying.h"

namespace tallimark {

FrmUnderlying_New::FrmUnderlying_New(App& app)
    : LedgerEntryDialog(app, kName, FrmUnderlying::kCaption, {"CmbType"},
                        {"Data Type Error.", "Insert Complete", nullptr}) {
    addField(ControlKind::ComboBox, "CmbType", "Type:").items = {"Future", "Equity"};
    addFiguresAndButtons();
}

void FrmUnderlying_New::comingUp() {
    // Unlike the sheet's own dialog this one offers futures first.
    setText("CmbType", "Future");
    takeFocus("TxtUnits");
}

std::string FrmUnderlying_New::insertStatement() {
    const std::string type = Trim(UCase(text("CmbType")));
    cashType_ = type == "FUTURE" ? "F" : type == "EQUITY" ? "Q" : "";
    const auto [symbol, descr] = sheet();
    return "Insert into DummyTracker (Symbol, InDesc, CP, CashType, Units, Traded, Field3, TradeDt) Values "
           "(" +
           q(symbol) + ", " + q(descr) + ", " + q("S") + ", " + q(cashType_) + ", " +
           NumText(Val(text("TxtUnits"))) + ", " + NumText(Val(text("TxtTraded"))) + ", " +
           q(text("LblTime")) + ", cDate(" + q(today()) + "))";
}

void FrmUnderlying_New::keepResults() {
    LedgerEntryDialog::keepResults();
    Traded = Format(text("TxtTraded"), "0.00");
    CashType = cashType_;
}

} // namespace tallimark
