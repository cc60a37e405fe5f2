#include "charges/FrmCashFlow.h"

#include "admin/FrmNewMainScreen.h"
#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "reports/ReportRun.h"

#include <cmath>

namespace tallimark {

namespace {

constexpr const char* kGrid = "va1";

int columnOf(const Grid& g, const std::string& heading) {
    for (int c = 1; c <= g.maxCols(); ++c)
        if (g.column(c).heading == heading) return c;
    throw VbError(vberr::InvalidCall, "No column " + heading);
}

} // namespace

FrmCashFlow::FrmCashFlow(App& app) : Form(app, kName, "Cash Flow....Tallimark") {
    Grid& g = addGrid(kGrid, 11);
    const char* heads[] = {"Date",    "Op Bal",  "Op Prem",  "Eq Amt",     "Tot Amt", "Int",
                           "Mtm Int", "Dp Chgs", "Con Chgs", "TOver Chgs", "SDuty"};
    for (int c = 1; c <= 11; ++c) {
        g.column(c).heading = heads[c - 1];
        g.column(c).width = c == 1 ? 13 : 11; // the date whole
    }
    addControl(ControlKind::Button, "Cmd(0)", "&Print");
    on("Cmd", EventType::Click, [this](Event& e) {
        if (e.index == 0) PrintRecords();
    });
    // Each opening adds up the sheets ticked on the main screen at that moment.
    on("Form", EventType::Activate, [this](Event&) { DoInit(); });
}

void FrmCashFlow::DoInit() {
    try {
        Grid& g = grid(kGrid);
        g.setMaxRows(0);
        const Grid& list = app().screens().get(FrmNewMainScreen::kName).grid("ListView1");
        const int symbolCol = columnOf(list, "Symbol"), descCol = columnOf(list, "Description");
        std::string symbols, descs;
        for (int r = 1; r <= list.maxRows(); ++r) {
            if (!list.checked(r)) continue;
            symbols += q(Trim(list.text(r, symbolCol))) + ", ";
            descs += q(Trim(list.text(r, descCol))) + ", ";
        }
        if (symbols.empty()) {
            ui().msgBox(
                {"Atleast One Script should be selected", "Error", MsgButtons::Ok, MsgIcon::Information});
            return;
        }
        Recordset rs = app().store().query(
            "select cdate(Dt) as cDt, StkInt, Sum(Prem) as TotPrem , sum((CashUnits*CashTraded)) as "
            "TotEquity, "
            "sum(CashDpAmt) as DpAmt, sum(CpConAmt+ConChPval+MtmChFval) as ConAmt, sum(CashTOverAmt) as "
            "TOverAmt, "
            "sum(ShBal*Field2/100000) as SDuty, sum(MtmIntAmt) as MtmAmt from Closing where Symbol in ( " +
            symbols.substr(0, symbols.size() - 2) + " ) and descr in ( " + descs.substr(0, descs.size() - 2) +
            " ) group by CDATE(Dt), StkInt order by CDATE(Dt)");
        // The running balance: each row opens with the total of the row before, even when that
        // total was negative and earned no interest.
        double O = 0;
        for (int r = 1; !rs.eof(); rs.moveNext(), ++r) {
            g.setMaxRows(r);
            const double TotPrem = rs["TotPrem"].number(), TotEquity = rs["TotEquity"].number();
            const double T = O + TotPrem + TotEquity;
            const double cells[] = {O,
                                    TotPrem,
                                    TotEquity,
                                    T,
                                    T < 0 ? 0 : std::abs(Round(rs["StkInt"].number() * T / 36500, 2)),
                                    rs["MtmAmt"].number(),
                                    rs["DpAmt"].number(),
                                    Round(rs["ConAmt"].number(), 2),
                                    Round(rs["TOverAmt"].number(), 2),
                                    std::abs(Round(rs["SDuty"].number(), 2))};
            g.setText(r, 1, DateText(CDate(rs["cDt"].text())));
            for (int c = 0; c < 10; ++c)
                g.setText(r, c + 2, NumText(cells[c]));
            O = T;
        }
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        const auto* vb = dynamic_cast<const VbError*>(&e);
        ui().msgBox({std::string("Error in DoInit Proceudre: ") + e.what() +
                     " And No: " + std::to_string(vb ? vb->number() : 0)});
    }
}

void FrmCashFlow::InsertRecords() {
    try {
        Store& store = app().store();
        store.execute("Delete From ExpTemp");
        const Grid& g = grid(kGrid);
        WriteGroup group(store);
        for (int r = 1; r <= g.dataRowCount(); ++r) {
            // Grid column 6, the interest, goes to StkInt and column 7, the mark-to-market
            // interest, to MtmInt, with 8 to DpAmt and 9 to ConAmt.
            std::string values = "cdate(" + q(Format(CDate(g.text(r, 1)), "DD-MMM-YYYY")) + ")";
            int n = 0;
            for (int c : {2, 3, 4, 5, 6, 8, 9, 7, 10, 11})
                values += (++n < 7 ? ", " : " , ") + NumText(g.text(r, c).empty() ? 0.0 : CDbl(g.text(r, c)));
            store.execute(
                "Insert into ExpTemp(Dt, Opbal, Prem, EqAmt, TotAmt, StkInt, DpAmt, ConAmt, MtmInt, "
                "TOverAmt, SDuty) values(" +
                values + " )");
        }
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        failureBox("InsertRecords", e);
    }
}

void FrmCashFlow::PrintRecords() {
    try {
        InsertRecords();
        ReportRun run;
        run.reportFile = app().dataDir().parent_path().string() + "\\CashFlow.rpt";
        run.connect = "DSN=SHARES";
        runReport(app(), run);
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        failureBox("PrintRecords", e);
    }
}

} // namespace tallimark
