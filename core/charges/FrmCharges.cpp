#include "charges/FrmCharges.h"

#include "access/FindDialogs.h"
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbNumber.h"

namespace tallimark {

FrmCharges::FrmCharges(App& app) : RecordScreen(app, kName, "Charges.....Tallimark", "cmd") {
    addField("TxtTurnOverCh", "TurnOver Charges");
    addControl(ControlKind::Frame, "FraContract", "Contract  Charges");
    addField("TxtConch", "On Option");
    addField("TxtConChP", "Premium");
    addField("TxtConChF", "Future");
    addField("TxtDPRate", "DP Charges");
    addField("TxtStkInt", "Interest on Stock");
    addField("TxtOthers", "OtherCharges");
    addField("TxtStDuty", "Stamp Duty Charges (Per Lakh)");
    addField("TxtMtmChg", "MTM Charges");
    addButtons();
    addFieldKeys();

    on("Form", EventType::Load, [this](Event&) { refreshSource(); });
    on("Form", EventType::Activate, [this](Event&) { Reset(); });
}

void FrmCharges::refreshSource() {
    adoCharges_ = app().store().query("SELECT * FROM Charges");
}

void FrmCharges::Reset() {
    SetLocked(*this, true);
    refreshSource();
    // The table is one row of rates: New is offered only while it is empty.
    setMask(adoCharges_->recordCount() < 1 ? "1000011" : "0000011");
    ClearTextBoxes(*this);
}

void FrmCharges::onButton(int index) {
    if (sharedButton(index, {[this] { Reset(); }, [this] { return insertRates(); },
                             [this] { return updateRates(); }, [this] { return deleteRates(); }}))
        return;
    switch (index) {
    case New:
        setMask("0001101");
        SetLocked(*this, false);
        setFocus("TxtTurnOverCh");
        mode = Adding;
        break;
    case Modify:
        beginModify(nullptr, "TxtTurnOverCh");
        break;
    case Find:
        FindRecords();
        // Deliberately narrower than what FindRecords leaves: after a find only Modify is
        // offered, so Delete never shows on this screen.
        SetLocked(*this, true);
        setMask("0100011");
        break;
    }
}

std::string FrmCharges::rate(const char* field) const {
    return NumText(CDbl(text(field)));
}

bool FrmCharges::insertRates() {
    return runStatement([this] {
        return "INSERT INTO Charges(TurnOverCh, ConCh, DpCh, StkInt, OtherChgs,StDuty, ConChf, MtmChg, "
               "ConChP) "
               "VALUES(" +
               rate("TxtTurnOverCh") + ", " + rate("TxtConch") + ", " + rate("TxtDPRate") + ", " +
               rate("TxtStkInt") + ", " + rate("TxtOthers") + ", " + rate("TxtStDuty") + " , " +
               rate("TxtConChF") + ", " + rate("TxtMtmChg") + "," + rate("TxtConChP") + " )";
    });
}

bool FrmCharges::updateRates() {
    // No WHERE: the table holds the one row of rates, and this rewrites every row there is.
    return runStatement([this] {
        return "UPDATE Charges SET ConCh = " + rate("TxtConch") + ", DpCh = " + rate("TxtDPRate") +
               ", StkInt = " + rate("TxtStkInt") + ", TurnOverCh = " + rate("TxtTurnOverCh") +
               ", OtherChgs = " + rate("TxtOthers") + ", StDuty = " + rate("TxtStDuty") +
               ", ConChf =  " + rate("TxtConChF") + ", MtmChg = " + rate("TxtMtmChg") +
               ", ConChP = " + rate("TxtConChP");
    });
}

bool FrmCharges::deleteRates() {
    return runStatement([this] { return "DELETE FROM Charges WHERE TurnOverCh =" + rate("TxtTurnOverCh"); });
}

void FrmCharges::FindRecords() {
    try {
        BusyCursor(ui());
        // The look-up's caption reads "Script List" here too.
        const std::string picked =
            SeekValue(app(), "Script List", "SELECT TurnOverCh, ConCh FROM Charges ORDER BY TurnOverCh");
        refreshSource();
        if (!Trim(picked).empty()) {
            BusyCursor(ui());
            if (seekRow(*adoCharges_, "TurnOverCh", picked)) {
                const Recordset& rs = *adoCharges_;
                const char* const fill[][2] = {
                    {"TxtTurnOverCh", "TurnOverCh"}, {"TxtConch", "ConCh"},      {"TxtDPRate", "DpCh"},
                    {"TxtStkInt", "StkInt"},         {"TxtOthers", "OtherChgs"}, {"TxtStDuty", "StDuty"},
                    {"TxtConChF", "ConChf"},         {"TxtMtmChg", "MtmChg"},    {"TxtConChP", "ConChP"}};
                for (const auto& [field, column] : fill)
                    setText(field, rs[column].text());
            }
        }
        NormalCursor(ui());
        setMask("1110011");
    } catch (const std::exception& e) {
        NormalCursor(ui());
        procedureBox("FindRecords", e);
    }
}

} // namespace tallimark
