#include "charges/FrmClosing.h"

#include "charges/ChargesSheet.h"
#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

#include <string>
#include <utility>

namespace tallimark {

namespace {

// The rate fields with the master's column each one shows, in the order DoInit fills them.
const std::pair<const char*, const char*> kRates[] = {
    {"TxtTurnOverCh", "TurnOverCh"}, {"TxtConch", "ConCh"},      {"TxtDpCh", "DpCh"},
    {"TxtStkInt", "StkInt"},         {"TxtMtmChg", "MtmChg"},    {"TxtConChF", "ConChf"},
    {"TxtConChP", "ConChP"},         {"TxtOthers", "OtherChgs"}, {"TxtStDuty", "stDuty"}};

const std::pair<const char*, const char*> kCaptions[] = {{"TxtClMtm", "Closing Rate (Mark To Mark)"},
                                                         {"TxtClStk", "Closing Rate (Stock)"},
                                                         {"TxtTurnOverCh", "TurnOver Charges"},
                                                         {"TxtConch", "On Option"},
                                                         {"TxtDpCh", "DP Charges"},
                                                         {"TxtStkInt", "Interest on Stock"},
                                                         {"TxtMtmChg", "MTM Charges"},
                                                         {"TxtConChF", "Future"},
                                                         {"TxtConChP", "Premium"},
                                                         {"TxtOthers", "OtherCharges"},
                                                         {"TxtStDuty", "Stamp Duty Charges (Per Lakh)"}};

} // namespace

FrmClosing::FrmClosing(App& app) : Form(app, kName, "Closing Rate") {
    addControl(ControlKind::Label, "LblSymbol");
    addControl(ControlKind::Label, "LblDesc");
    addControl(ControlKind::DatePicker, "DTPicker1", DateText(app.clock().today()));
    for (const auto& [f, caption] : kCaptions) {
        addControl(ControlKind::TextBox, f);
        addControl(ControlKind::Label, std::string("Lbl") + (f + 3), caption);
    }
    addControl(ControlKind::Button, "Command1", "&Save");
    on("Command1", EventType::Click, [this](Event&) { Command1_Click(); });
    // Opened from the frame's menu for the current sheet, with the master's rates.
    on("Form", EventType::Activate, [this](Event&) {
        const Session& s = this->app().session();
        if (s.g_strSymbol.empty()) {
            ui().msgBox({"Open a sheet first: the closing entry is made for the current sheet.",
                         "Closing Rate", MsgButtons::Ok, MsgIcon::Information});
            this->app().screens().unload(name());
            return;
        }
        setText("LblSymbol", s.g_strSymbol);
        setText("LblDesc", s.g_strDesc);
        DoInit();
    });
}

void FrmClosing::DoInit() {
    const Recordset master = app().store().query("SELECT * FROM CHARGES");
    if (master.eof()) return;
    for (const auto& [f, column] : kRates)
        setText(f, master[column].textOrEmpty());
}

void FrmClosing::Command1_Click() {
    try {
        for (const char* f : {"TxtClMtm", "TxtClStk", "TxtTurnOverCh", "TxtDpCh", "TxtConch", "TxtStkInt",
                              "TxtOthers", "TxtMtmChg", "TxtConChF", "TxtConChP"})
            if (text(f).empty()) setText(f, "0");
        const std::string symbol = Trim(text("LblSymbol")), desc = Trim(text("LblDesc"));
        const VbDate day = CDate(text("DTPicker1"));
        const std::string dayText = Format(day, "DD-MM-YYYY");
        // Every number is read before the row is made: a field that is no number stores nothing.
        std::string values;
        // The futures rate goes to both ConChF and ConChP; the premium rate is not stored.
        for (const char* f : {"TxtClMtm", "TxtClStk", "TxtDpCh", "TxtConch", "TxtTurnOverCh", "TxtStkInt",
                              "TxtOthers", "TxtConChF", "TxtConChF", "TxtMtmChg"})
            values += ", " + NumText(CDbl(text(f)));
        Store& store = app().store();
        store.execute("insert into Closing(Symbol,Descr,Dt,ClMtM,ClStk,DPChgs,ConChgs,TOverChgs,StkInt "
                      ",OtherChgs,ConChF, ConChP, MtmChg)values(" +
                      q(symbol) + ", " + q(desc) + ", " + q(dayText) + values + ")");
        // The calendar day before only: after a weekend the opening balance is 0.
        const Recordset prev =
            store.query("select * from Closing where Symbol=" + q(symbol) + " and Descr=" + q(desc) +
                        " and Dt=" + q(Format(day.addDays(-1), "DD-MM-YYYY")));
        const double PB = !prev.eof() && !prev["ClBal"].isNull() ? prev["ClBal"].number() : 0;
        store.execute("Update Closing set OpBal= " + NumText(PB) + " where Symbol=" + q(symbol) +
                      " and Descr=" + q(desc) + " and Dt=" + q(dayText));

        auto& charges = static_cast<ChargesSheet&>(app().screens().get(ChargesSheet::kSheetName));
        charges.handOver(CDbl(text("TxtTurnOverCh")), CDbl(text("TxtConch")), CDbl(text("TxtOthers")),
                         CDbl(text("TxtDpCh")), CDbl(text("TxtStkInt")));
        charges.setText("TxtClMtm", text("TxtClMtm"));
        charges.setText("TxtClStk", text("TxtClStk"));
        charges.setText("TxtOpBal", NumText(PB));
        charges.control("DTPicker1").text = DateText(day);
        charges.markChanged("DTPicker1");
        app().screens().unload(name());
        // The entry is made for the current sheet, so the load reads the sheet that is open: the
        // index sheet's load step when that is the one (DoInit would read an absent stock sheet
        // and leave the market and balance empty), and its date changes follow it.
        const Form* indexSheet = app().screens().find("FrmPortfolioIndex");
        charges.SheetKind = indexSheet && indexSheet->visible() ? "Index" : "Stk";
        if (charges.SheetKind == "Index")
            charges.DoInit1();
        else
            charges.DoInit();
        charges.show();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        failureBox("Command1_Click", e);
    }
}

} // namespace tallimark
