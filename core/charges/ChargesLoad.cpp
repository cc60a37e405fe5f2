// The load steps of the charges sheet: the rates of the day (the day's Closing row, else the
// charge master), the sheet's market price and balance, and the opening balance.
#include "charges/ChargesSheet.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

namespace tallimark {

void ChargesSheet::load(const char* procedure, const char* sheetName) {
    trapped(procedure, [&] {
        if (rules_.clearsFieldsOnLoad)
            for (const char* f :
                 {"TxtOpBal", "TxtCashTOver", "TxtTotalTurnCharges", "TxtStDutyDel", "TxtFutureOptionSDuty",
                  "TxtStDutyNDel", "TxtStDuty", "TxtDpChgs", "TxtTotExpense", "TxtTotal"})
                setText(f, "0");
        Mode = 0;
        Form& sheet = app().screens().get(sheetName);
        setText("TxtMkt", sheet.text("TxtMktPrice"));
        setText("TxtSheetBal", sheet.text("TxtBalance"));

        const Recordset day =
            app().store().query("select * from Closing where symbol = " + q(Trim(symbol())) +
                                " and descr = " + q(Trim(descr())) + " and Dt=" + q(dayText()));
        readRates(day);
        if (rules_.stockRateFromMarket && ClStkRate == 0) ClStkRate = CDbl(text("TxtMkt"));
        const std::pair<const char*, double> shown[] = {{"TxtTOverChgs", TOver}, {"TxtConChgs", ConCh},
                                                        {"TxtConChF", ConChF},   {"TxtConChP", ConChP},
                                                        {"TxtDPRate", DpCh},     {"TxtIntRate", StkInt},
                                                        {"TxtOtherChgs", Other}, {"TxtClMtm", ClMtmRate},
                                                        {"TxtClStk", ClStkRate}, {"TxtStDutyChgs", StDuty}};
        for (const auto& [f, v] : shown)
            setText(f, NumText(v));
        // A first figure of the stamp duty: the recalculation replaces it.
        setText("TxtStDuty", NumText(std::abs(Round(Val(text("TxtSheetBal")) * StDuty / 100000, 2))));
        openingBalance();
        RefreshData();
    });
}

void ChargesSheet::readRates(const Recordset& day) {
    if (day.eof()) {
        Mode = 2;
        if (rules_.warnsWithoutClosingRow)
            ui().msgBox({"Closing Rate Not Entered.", "Invalid Entry", MsgButtons::Ok, MsgIcon::Information});
        const Recordset master = app().store().query("SELECT * FROM CHARGES");
        if (!master.eof()) {
            TOver = master["TurnOverCh"].numberOrZero();
            ConCh = master["ConCh"].numberOrZero();
            ConChP = master["ConChP"].numberOrZero();
            ConChF = master["ConChF"].numberOrZero();
            DpCh = master["DpCh"].numberOrZero();
            StkInt = master["StkInt"].numberOrZero();
            Other = master["OtherChgs"].numberOrZero();
            StDuty = master["StDuty"].numberOrZero();
        }
        ClMtmRate = 0;
        ClStkRate = 0;
        return;
    }
    Mode = 1;
    TOver = day["TOverChgs"].number();
    ConCh = day["ConChgs"].number();
    // The row the closing entry makes holds no amount of other charges yet: it reads as none,
    // so the load the entry hands on to fills the screen instead of ending in a box.
    Other = day["OtherChgsAmt"].numberOrZero();
    DpCh = day["DpChgs"].number();
    StkInt = day["StkInt"].number();
    ClMtmRate = day["ClMtm"].number();
    ClStkRate = day["ClStk"].number();
    StDuty = day["Field2"].numberOrZero();
    setText("TxtClMtm", day["ClMtm"].text());
    setText("TxtClStk", day["ClStk"].text());
    setText("DTPicker1", day["Dt"].text());
    ConChP = day["ConChP"].numberOrZero();
    ConChF = day["ConChf"].numberOrZero();
}

void ChargesSheet::openingBalance() {
    const std::string earlier = " From Closing WHERE symbol=" + q(symbol()) + " AND DESCR=" + q(descr()) +
                                " AND cdate(DT) < CDATE(" + q(dayText()) + ")";
    if (rules_.openingFromLastClosing) {
        // Dt is text: the statement orders by its text, so the later day of the month wins over
        // the later date. The chain of days is read as the desk's statement reads it.
        const Recordset last = app().store().query("SELECT clBal AS OpBal" + earlier + " order by Dt Desc");
        if (!last.eof()) setText("TxtOpBal", last["OpBal"].isNull() ? "0" : last["OpBal"].text());
        return;
    }
    const Recordset sum = app().store().query(
        "SELECT sum(Closing.CashTOverAmt+ Closing.FutConAmt+ Closing.CashDpAmt+ Closing.CpConAmt+ "
        "Closing.CpPreAmt+ Closing.MtmIntAmt+ Closing.CashIntAmt+ Closing.OtherChgsAmt + CLosing.OpbalInt) "
        "AS OpBal" +
        earlier);
    setText("TxtOpBal", sum.eof() || sum["OpBal"].isNull() ? "0" : sum["OpBal"].text());
}

void Expenses(App& app, Form& sheet, bool indexSheet) {
    auto& byIndex = static_cast<ChargesSheet&>(app.screens().get(ChargesSheet::kSheetName));
    byIndex.SheetKind = indexSheet ? "Index" : "Stk";
    auto& charges =
        indexSheet ? byIndex : static_cast<ChargesSheet&>(app.screens().get(ChargesSheet::kDayName));
    // The date is placed before the load step runs, so its change does not load the day twice.
    charges.control("DTPicker1").text = DateText(CDate(sheet.text("TxtCurDt")));
    charges.markChanged("DTPicker1");
    if (indexSheet)
        charges.DoInit1();
    else
        charges.DoInit();
    charges.show();
}

} // namespace tallimark
