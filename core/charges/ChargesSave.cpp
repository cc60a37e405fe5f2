// Save and Print of the charges sheet: the day's row of Closing, which carries the balance to
// the next day, and the expenses statement of that row.
#include "charges/ChargesSheet.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "reports/ReportRun.h"

#include <utility>
#include <vector>

namespace tallimark {

void ChargesSheet::UpdateExpenses() {
    trapped("UpdateExpenses", [this] {
        for (const char* f : {"TxtCashTraded", "TxtFutTraded"})
            if (text(f).empty()) setText(f, "0");
        auto v = [this](const char* f) { return NumText(CDbl(text(f))); };
        // Every figure is read before anything is written or Mode moves: a field that is no
        // number stops the save whole, and the corrected Save still stores.
        const std::vector<std::pair<const char*, std::string>> columns = {
            {"ClMtM", v("TxtClMtm")},
            {"ClStk", v("TxtClStk")},
            {"DPChgs", v("TxtDPRate")},
            {"ConChgs", v("TxtConChgs")},
            {"TOverChgs", v("TxtTOverChgs")},
            {"StkInt", v("TxtIntRate")},
            {"OtherChgs", v("TxtOtherChgs")},
            {"OpBal", v("TxtOpBal")},
            {"ClBal", v("TxtTotal")},
            {"MktPrice", v("TxtMkt")},
            {"FutUnits", v("TxtFut")},
            {"CashUnits", v("TxtCash")},
            {"CashTOverAmt", v("TxtCashTOver")},
            {"FutConAmt", v("TxtFutConChgs")},
            {"CashDpAmt", v("TxtDpChgs")},
            {"CpConAmt", v("TxtTotConChgs")},
            {"CpPreAmt", v("TxtTotPremInt")},
            {"MtmIntAmt", v("TxtMrkInt")},
            {"CashIntAmt", v("TxtCashInt")},
            {"OtherChgsAmt", v("TxtOtherChgs")},
            {"OpBalInt", v("TxtOpBalInt")},
            {"ShBal", v("TxtSheetBal")},
            {"NetBal", v("TxtNetBal")},
            {"Field2", NumText(StDuty)},
            {"ConChF", NumText(ConChF)},
            {"ConChP", NumText(ConChP)},
            {"ConChPval", v("TxtStDutyNDel")},
            {"MtmChFval", v("TxtStDutyDel")},
            {"Prem", NumText(Prem)},
            {"FutTraded", v("TxtFutTraded")},
            {"CashTraded", v("TxtCashTraded")},
        };
        const std::string day = dayText();
        if (Mode == 1) {
            Mode = 0;
            // The update leaves OtherChgs, the rate of other charges, as the row had it.
            std::string set;
            for (const auto& [column, value] : columns)
                if (std::string(column) != "OtherChgs")
                    set += (set.empty() ? "" : ", ") + std::string(column) + " = " + value;
            app().store().execute("Update Closing set " + set + " where Symbol=" + q(Trim(symbol())) +
                                  " and Descr=" + q(Trim(descr())) + " and Dt=" + q(day));
        } else if (Mode == 2) {
            Mode = 0;
            std::string names = "Symbol,Descr,Dt", values = q(symbol()) + "," + q(descr()) + "," + q(day);
            for (const auto& [column, value] : columns) {
                names += std::string(",") + column;
                values += ", " + value;
            }
            app().store().execute("Insert into Closing(" + names + ")values(" + values + ")");
        }
        // Once stored, a further Save of the same load stores nothing and still says so.
        ui().msgBox({"Successfully Saved"});
    });
}

void ChargesSheet::PrintRecords() {
    trapped("PrintRecords", [this] {
        const bool all = rules_.printedSlots > 2;
        const std::vector<const char*> zeros = all ? std::vector<const char*>{"TxtSDutyFut",
                                                                              "TxtSDutyOpt",
                                                                              "TxtCashTOver",
                                                                              "TxtTotalTurnCharges",
                                                                              "TxtFutureOptionCharges",
                                                                              "TxtFutureOptionSDuty",
                                                                              "TxtStDutyDel",
                                                                              "TxtStDuty"}
                                                   : std::vector<const char*>{"TxtSDutyFut", "TxtSDutyOpt"};
        for (const char* f : zeros)
            if (text(f).empty()) setText(f, "0");
        const VbDate date = CDate(text("DTPicker1"));
        ReportRun run;
        run.reportFile = app().dataDir().parent_path().string() + "\\Expenses.rpt";
        run.connect = rules_.connect;
        for (int slot = 0; slot <= (all ? 16 : 1); ++slot)
            run.setFormula(slot, "");
        run.selection =
            "{Closing.Symbol} = '" + Trim(symbol()) + "' and {Closing.Descr} = '" + Trim(descr()) + "'";
        run.selection += " AND DATE(TONUMBER({Closing.Dt}[7 TO 10]),TONUMBER({Closing.Dt}[4 TO 5]),"
                         "TONUMBER({Closing.Dt}[1 TO 2])) = date(" +
                         Format(date, "yyyy,mm,dd") + ")";
        run.setFormula(0, "StDutyOpt=" + text("TxtSDutyOpt"));
        run.setFormula(1, "StDutyFut=" + text("TxtSDutyFut"));
        if (all) {
            const std::pair<const char*, const char*> slots[] = {
                {"Equity_ToT=", "TxtCashTOver"},
                {"Fo_ToT=", "TxtFutureOptionCharges"},
                {"TurnOver=", "TxtTotalTurnCharges"},
                // Deliberately the same field as Fo_ToT, not a stamp duty.
                {"StDuty_DEq=", "TxtFutureOptionCharges"},
                {"StDuty_DFo=", "TxtFutureOptionSDuty"},
                {"StDuty_NEq=", "TxtStDutyNDel"},
                {"Tot_Stamp=", "TxtStDuty"},
                {"Dp_Chgs=", "TxtDpChgs"},
                {"clBal=", "TxtTotal"},
                {"OPBal=", "TxtOpBal"}};
            int slot = 2;
            for (const auto& [name, f] : slots)
                run.setFormula(slot++, name + text(f));
            run.setFormula(12, "symbol='" + symbol() + "'");
            run.setFormula(13, "g_strDesc= '" + descr() + "'");
            run.setFormula(14, "SheetBalance= '" + text("TxtSheetBal") + "'");
            run.setFormula(15, "dt1= '" + Format(date, "DD-MMM-YY") + "'");
        }
        runReport(app(), run);
    });
}

} // namespace tallimark
