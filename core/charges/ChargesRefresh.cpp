// The recalculation of the day's charges: RefreshData after a load or a rate, RefreshData1 after
// a tick, and the balance step B. Each figure is the desk's formula in its written order,
// with Round to 2 decimals (ties to even) unless it says otherwise.
#include "charges/ChargesSheet.h"

#include "frame/App.h"
#include "frame/VbNumber.h"

#include <cmath>

namespace tallimark {

namespace {

// The sums a walk over the day's trades gathers.
struct Sums {
    double A1 = 0, A2 = 0, A3 = 0, A4 = 0, A5 = 0, A6 = 0, A7 = 0, A8 = 0;
    double CB = 0, CS = 0; // bought and sold cash quantity, ticked or not
};

} // namespace

void ChargesSheet::RefreshData() {
    trapped("RefreshData", [this] { recalc(false); });
}

void ChargesSheet::RefreshData1() {
    trapped("RefreshData1", [this] { recalc(true); });
}

void ChargesSheet::balanceStep() {
    setText("TxtTotal", NumText(Round(field("TxtOpBalInt") + field("TxtOpBal") + field("TxtTotConChgs") +
                                          field("TxtTotPremInt") + field("TxtMrkInt") + field("TxtCashInt") +
                                          field("TxtDpChgs") + field("TxtFutConChgs") +
                                          field("TxtCashTOver") + field("TxtOtherChgs"),
                                      2)));
    setText("TxtNetBal", NumText(Round(field("TxtSheetBal") - field("TxtStDuty") - field("TxtTotal"), 2)));
}

void ChargesSheet::recalc(bool afterTick) {
    Store& store = app().store();
    Grid& g = grid(kGrid);
    const std::string day = text("DTPicker1");
    const std::string sheet = "WHERE symbol = " + q(symbol()) + " and indesc =" + q(descr());
    // A tick recalculates as the sheet edition does, whichever edition shows it.
    const bool tickedOnlyA3 = afterTick || rules_.stampDutyOnTickedOnly;
    Sums s;
    Prem = 0;
    for (const char* f : {"TxtClMtm", "TxtClStk"})
        if (text(f).empty()) setText(f, "0");
    setText("TxtOpBalInt",
            field("TxtOpBal") > 0 ? NumText(Round(field("TxtOpBal") * StkInt / 36500, 2)) : "0");

    // Futures of the day, then the open futures of the calendar day before.
    Recordset fut =
        store.query("SELECT Sum(Units) as Totunits, sum(units*Traded) as TotTraded FROM dummytracker " +
                    sheet + " and CP ='S' and CashType='F' and TradeDt=cdate(" + q(day) + ")");
    setText("TxtFut", fut["TotUnits"].isNull() ? "0" : fut["TotUnits"].text());
    if (const double T = fut["TotTraded"].numberOrZero(); T != 0)
        setText("TxtFutTraded", NumText(Round(vb::div(T, field("TxtFut")), 2)));
    double PF = 0, PR = 0;
    Recordset prev = store.query("SELECT FutUnits, ClMtm FROM Closing WHERE symbol = " + q(symbol()) +
                                 " and descr =" + q(descr()) + " and cdate(Dt)=cdate(" +
                                 q(DateText(CDate(day).addDays(-1))) + ")");
    if (!prev.eof()) {
        PF = prev["FutUnits"].numberOrZero();
        PR = prev["ClMtm"].numberOrZero();
    }
    setText("TxtPrevStk", NumText(PF));
    setText("TxtPrevRate", NumText(PR));
    if (field("TxtFut") + PF != 0) {
        if (text("TxtFutTraded").empty()) setText("TxtFutTraded", "0");
        setText("TxtFutTraded", NumText(Round(vb::div(CDbl(text("TxtFutTraded")) * field("TxtFut") + PF * PR,
                                                      field("TxtFut") + PF),
                                              2)));
    }
    Recordset cash =
        store.query("SELECT Sum(Units) as Totunits, sum(units*Traded) as TotTraded FROM dummytracker " +
                    sheet + " and CP ='S' and CashType='Q'and TradeDt=cdate(" + q(day) + ")");
    setText("TxtCash", cash["TotUnits"].isNull() ? "0" : cash["TotUnits"].text());
    const double cashTraded = cash["TotTraded"].numberOrZero();
    setText("TxtCashTraded",
            cashTraded != 0 ? NumText(Round(vb::div(cashTraded, field("TxtCash")), 2)) : "0");

    if (!afterTick) {
        g.clearText();
        g.setMaxRows(0);
    }
    // A row of a block. After a tick the futures and cash blocks are appended past the last data
    // row, which is past the grid's row count: there the row of the same trade in the shown block
    // stands in, for its tick and its figures, so the desk's ticks keep their meaning.
    auto rowAt = [&](int r, int start, int shownStart) {
        if (!afterTick) {
            if (r > g.maxRows()) g.setMaxRows(r);
            return r;
        }
        const int row = r > g.maxRows() ? r - start + shownStart : r;
        if (row > g.maxRows()) g.setMaxRows(row);
        return row;
    };
    auto ticked = [&](int r) { return g.text(r, 8) != "0"; };
    auto trade = [&](int r, const Recordset& rs, const char* first) {
        g.setText(r, 1, rs[first].textOrEmpty());
        g.setText(r, 2, rs["CP"].textOrEmpty());
        g.setText(r, 3, rs["Units"].textOrEmpty());
        g.setText(r, 4, rs["Traded"].textOrEmpty());
        if (g.text(r, 8).empty()) g.setText(r, 8, "1");
    };

    int r = 1;
    for (Recordset rs = store.query("SELECT * FROM dummytracker " + sheet +
                                    " and CP <>'S'  and TradeDt=cdate(" + q(day) + ") ORDER BY STRIKE,CP");
         !rs.eof(); rs.moveNext(), ++r) {
        const int row = rowAt(r, 1, 1);
        const double Units = rs["Units"].number(), Traded = rs["Traded"].number();
        const double P = Round(-Units * Traded, 2);
        trade(row, rs, "Strike");
        g.setText(row, 5, NumText(P));
        const double charge = std::abs(Round(rs["Strike"].number() * Units * ConCh / 100000, 2));
        g.setText(row, 6, NumText(charge));
        if (ticked(row)) s.A1 += charge;
        const double premInt = Round(-P * StkInt / 36500, 2);
        g.setText(row, 7, NumText(premInt));
        if (ticked(row)) {
            Prem += P;
            s.A2 += premInt;
        }
        // The figure shown and the figure added differ on purpose.
        g.setText(row, 9, NumText(Round(std::abs(Units) * std::abs(P) * ConChF / 100000, 2)));
        if (!tickedOnlyA3 || ticked(row))
            s.A3 += Round(std::abs(Traded) * std::abs(Units) * ConChF / 100000, 2);
    }
    if (!afterTick) setText("TxtTotConChgs", NumText(Round(s.A1, 2)));
    setText("TxtTotPremInt", s.A2 > 0 ? NumText(Round(s.A2, 2)) : "0");

    const double clMtm = field("TxtClMtm");
    const int futStart = g.dataRowCount() + 2;
    r = futStart;
    for (Recordset rs = store.query("SELECT * FROM dummytracker " + sheet +
                                    " and CP ='S' and CashType='F' and TradeDt=cdate(" + q(day) + ")");
         !rs.eof(); rs.moveNext(), ++r) {
        const int row = rowAt(r, futStart, futStart_);
        const double Units = rs["Units"].number(), Traded = rs["Traded"].number();
        trade(row, rs, "MktPrice");
        if (ticked(row)) s.A4 += Round((clMtm - Traded) * Units * StkInt / 36500, 2);
        // After a tick the futures are charged at the closing rate instead of their traded price.
        const double V = afterTick ? clMtm : Val(rs["Traded"].text());
        g.setText(row, 5, "0");
        const double charge = std::abs(Round(V * Units * ConCh / 100000, 2));
        g.setText(row, 6, NumText(charge));
        if (ticked(row)) s.A5 += charge;
        g.setText(row, 9, NumText(std::abs(Round(clMtm * Units * ConChF / 100000, 2))));
        if (ticked(row)) s.A6 += std::abs(Round(V * Units * ConChF / 100000, 2));
        g.setText(row, 7, "0");
    }
    ++r;
    const int cashStart = r;
    for (Recordset rs = store.query("SELECT * FROM dummytracker " + sheet +
                                    " and CP ='S' and CashType='Q' and TradeDt=cdate(" + q(day) + ")");
         !rs.eof(); rs.moveNext(), ++r) {
        const int row = rowAt(r, cashStart, cashStart_);
        const double Units = rs["Units"].number(), Traded = rs["Traded"].number();
        trade(row, rs, "MktPrice");
        (Units < 0 ? s.CS : s.CB) += std::abs(Units);
        const double charge = Round(std::abs(Units) * Traded * TOver / 100000, 2);
        g.setText(row, 6, NumText(charge));
        if (ticked(row)) {
            s.A7 += charge;
            s.A8 += Round(Traded * Units * StkInt / 36500, 2);
        }
        g.setText(row, 5, "0");
        g.setText(row, 7, "0");
    }
    if (!afterTick) {
        futStart_ = futStart;
        cashStart_ = cashStart;
    }

    if (text("TxtOtherChgs").empty()) setText("TxtOtherChgs", "0");
    // A gain on the marked positions earns no interest.
    setText("TxtMrkInt", s.A4 < 0 ? NumText(Round(-s.A4, 2)) : "0");
    setText("TxtCashTOver", NumText(s.A7));
    // No per-lakh divisor here, by design.
    setText("TxtDpChgs", NumText(std::abs(Round(clMtm * field("TxtCash") * DpCh, 2))));
    setText("TxtFutConChgs", NumText(Round(s.A5, 2)));
    setText("TxtSDutyOpt", NumText(Round(s.A3, 0)));
    setText("TxtSDutyFut", NumText(Round(s.A6, 0)));
    setText("TxtStDutyDel",
            NumText(Round(std::abs(s.CB - s.CS) * field("TxtCashTraded") * StDuty / 100000, 2)));
    // The non-delivery quantity is twice the matched part of buys and sells.
    setText("TxtStDutyNDel",
            NumText(Round(((s.CB + s.CS) - std::abs(s.CB - s.CS)) * field("TxtCashTraded") * ConChP / 100000,
                          2)));
    const std::string cashInt = field("TxtCash") > 0 ? NumText(s.A8) : "0";

    if (!afterTick && rules_.stampDutyInTotal) {
        // The day edition: interest and other charges stay out of the total, and stamp duty comes
        // off the net balance twice, once itself and once inside the total.
        setText("TxtFutureOptionSDuty", NumText(Round(s.A3, 2) + Round(s.A6, 2)));
        setText("TxtFutureOptionCharges", NumText(field("TxtTotConChgs") + field("TxtFutConChgs")));
        setText("TxtStDuty",
                NumText(field("TxtStDutyDel") + field("TxtStDutyNDel") + CDbl(text("TxtFutureOptionSDuty"))));
        setText("TxtTotalTurnCharges",
                NumText(field("TxtTotConChgs") + field("TxtFutConChgs") + field("TxtCashTOver")));
        setText("TxtTotExpense",
                NumText(field("TxtTotalTurnCharges") + field("TxtStDuty") + field("TxtDpChgs")));
        setText("TxtCashInt", cashInt);
        setText("TxtTotal", NumText(field("TxtOpBal") + field("TxtTotExpense")));
        setText("TxtNetBal",
                NumText(Round(field("TxtSheetBal") - field("TxtStDuty") - field("TxtTotal"), 2)));
        return;
    }
    setText("TxtStDuty", NumText(field("TxtSDutyOpt") + field("TxtSDutyFut") + field("TxtStDutyDel") +
                                 field("TxtStDutyNDel")));
    if (afterTick) {
        setText("TxtCashInt", cashInt);
        balanceStep();
        return;
    }
    setText("TxtTotalTurnCharges",
            NumText(field("TxtTotConChgs") + field("TxtFutConChgs") + field("TxtCashTOver")));
    setText("TxtCashInt", cashInt);
    setText("TxtTotal",
            NumText(Round(field("TxtOpBalInt") + field("TxtOpBal") + field("TxtTotalTurnCharges") +
                              field("TxtMrkInt") + field("TxtCashInt") + field("TxtDpChgs") +
                              field("TxtOtherChgs") + field("TxtStDuty") + field("TxtTotPremInt"),
                          2)));
    setText("TxtNetBal", NumText(Round(field("TxtSheetBal") - field("TxtStDuty") - field("TxtTotal"), 2)));
}

} // namespace tallimark
