#include "tracker/FrmOption_New.h"

#include "frame/App.h"
#include "frame/VbNumber.h"
#include "tracker/FrmOption.h"

#include <algorithm>

namespace tallimark {

FrmOption_New::FrmOption_New(App& app)
    : LedgerEntryDialog(app, kName, FrmOption::kCaption, {"CmbStrike", "CmbC_P"},
                        {"Data Type Error", "Insert completed", "Error in inserting"}) {
    addField(ControlKind::ComboBox, "CmbStrike", "Strike:");
    addField(ControlKind::ComboBox, "CmbC_P", "Call/Put:");
    addFiguresAndButtons();

    on("Form", EventType::Load, [this](Event&) {
        for (const char* field : {"CmbStrike", "CmbC_P", "TxtUnits", "TxtTraded"})
            setText(field, "");
        setItems("CmbC_P", {"C", "P"});
    });
}

void FrmOption_New::comingUp() {
    // The strikes are read each time the dialog comes up: the opener names the sheet after the
    // dialog is loaded, and the ladder may have gained strikes since the last trade.
    try {
        const auto [symbol, descr] = sheet();
        Recordset rs =
            app().store().query("Select Distinct Strike from PortfolioDet where Symbol =" + q(symbol) +
                                " and Descr =" + q(descr));
        std::vector<double> strikes;
        for (; !rs.eof(); rs.moveNext())
            if (!rs["Strike"].isNull()) strikes.push_back(rs["Strike"].number());
        std::sort(strikes.begin(), strikes.end());
        std::vector<std::string> items;
        for (double k : strikes)
            items.push_back(NumText(k));
        setItems("CmbStrike", std::move(items));
    } catch (const VbError& e) {
        ui().msgBox({"Error in form load\n" + e.text()});
    }
    takeFocus("CmbStrike");
}

std::string FrmOption_New::insertStatement() {
    const auto [symbol, descr] = sheet();
    return "Insert into DummyTracker (Symbol, InDesc, Strike, CP, Units, Traded, Field3, TradeDt) Values (" +
           q(symbol) + ", " + q(descr) + ", " + NumText(Val(text("CmbStrike"))) + ", " + q(text("CmbC_P")) +
           ", " + NumText(Val(text("TxtUnits"))) + ", " + NumText(Val(text("TxtTraded"))) + ", " +
           q(text("LblTime")) + ", cdate(" + q(today()) + "))";
}

} // namespace tallimark
