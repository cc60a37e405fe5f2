#include "reports/FrmReport.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "reports/ReportRun.h"

#include <cmath>

namespace tallimark {

namespace {

// A sum held in a 16-bit integer: more than 32,767 units overflow.
double int16(double units) {
    if (units < -32768 || units > 32767) throw VbError(6, "Overflow");
    return units;
}

const char* const kOptions1 = "AND (CP = 'C') AND (Symbol = ";
const char* const kOptions2 = "AND (CP = 'P') AND (Symbol = ";
const char* const kFutures = "AND (CP = 'S') AND (CashType = 'F') AND (Symbol = ";
const char* const kStock = "AND (CP = 'S') AND (CashType = 'Q') AND (Symbol = ";

} // namespace

FrmReport::FrmReport(App& app) : Form(app, kName, "Print Option") {
    addControl(ControlKind::Button, "Command1", "&Full Sheet Summary");
    addControl(ControlKind::Frame, "Frame1", "&Call Put");
    addControl(ControlKind::Button, "Command2", "&Summary");
    addControl(ControlKind::Button, "Command3", "&Detail");
    addControl(ControlKind::Frame, "Frame2", "&Future Stock");
    addControl(ControlKind::Button, "Command4", "S&ummary");
    addControl(ControlKind::Button, "Command5", "D&etail");
    addControl(ControlKind::Label, "Label1", "From Date:");
    addControl(ControlKind::DatePicker, "DTPicker1");
    addControl(ControlKind::Label, "Label2", "To Date:");
    addControl(ControlKind::DatePicker, "DTPicker2");

    on("Form", EventType::Load, [this](Event&) {
        const std::string today = Format(this->app().clock().today(), "DD-MMM-YYYY");
        setText("DTPicker1", today);
        setText("DTPicker2", today);
    });
    on("Command1", EventType::Click, [this](Event&) { Report(); });
    on("Command2", EventType::Click, [this](Event&) {
        fillAndShow("CallSummary1", "(Traded, Strike, TradeDt, CP, CUnits, Premium) ",
                    "(Traded, Strike, TradeDt, CP, PUnits, Premium) ",
                    "SELECT Traded, Strike, TradeDt, CP, Sum(Units), Sum(-(Units) * (Traded)) ",
                    "Group By TradeDt, Strike, Traded, CP Order By TradeDt", kOptions1, kOptions2,
                    "DataRptCallSummary1");
    });
    on("Command3", EventType::Click, [this](Event&) {
        fillAndShow("Call1", "(Traded, Strike, TradeDt, CP, CUnits, Premium) ",
                    "(Traded, Strike, TradeDt, CP, PUnits, Premium) ",
                    "SELECT Traded, Strike, TradeDt, CP, Units, (-(Units) * (Traded)) As Premium ",
                    "Order By TradeDt, Strike", kOptions1, kOptions2, "DataRptCall1");
    });
    on("Command4", EventType::Click, [this](Event&) {
        fillAndShow("FutStkSumDet", "(TradeDt, Funits) ", "(TradeDt, Sunits) ", "SELECT TradeDt, Sum(Units) ",
                    "Group By TradeDt Order By TradeDt", kFutures, kStock, "DataRptFutStkSum");
    });
    on("Command5", EventType::Click, [this](Event&) {
        fillAndShow("FutStkSumDet", "(TradeDt, Funits, Traded) ", "(TradeDt, Sunits, Traded) ",
                    "SELECT TradeDt, Units, Traded ", "Order By TradeDt", kFutures, kStock,
                    "DataRptFutStkDet");
    });
}

void FrmReport::fillAndShow(const char* table, const char* columns1, const char* columns2, const char* select,
                            const char* tail, const char* filter1, const char* filter2, const char* report) {
    Store& store = app().store();
    const std::string Symbol = app().session().g_strSymbol, Descr = app().session().g_strDesc;
    const std::string F = Format(CDate(text("DTPicker1")), "DD-MM-YYYY");
    const std::string T = Format(CDate(text("DTPicker2")), "DD-MM-YYYY");
    store.execute(std::string("Delete * From ") + table);
    for (const auto& [columns, filter] : {std::pair{columns1, filter1}, {columns2, filter2}})
        store.execute(std::string("INSERT INTO ") + table + columns + select + "From Tracker " +
                      "WHERE (TradeDt >= CDate(" + q(F) + ") AND TradeDt <= CDate(" + q(T) + ") " + filter +
                      q(Symbol) + ") AND (InDesc = " + q(Descr) + ")) " + tail);
    ReportRun run;
    run.reportFile = report;
    run.setFormula(0, "LblSymbol='" + Symbol + "'");
    run.setFormula(1, "LblFdate='" + F + "'");
    run.setFormula(2, "LblDescription='" + Descr + "'");
    run.setFormula(3, "LblTdate='" + T + "'");
    runReport(app(), run);
}

void FrmReport::Report() {
    try {
        Store& store = app().store();
        const std::string sym = q(app().session().g_strSymbol), desc = q(app().session().g_strDesc);
        Recordset mast = store.query("Select ExpDt, Days from PortfolioMast where Symbol = " + sym +
                                     " AND Descr = " + desc);
        const VbDate D(mast["ExpDt"].date().serial() - Val(mast["Days"].textOrEmpty()));
        Recordset closing = store.query("Select ClBal, OpBal from Closing where Symbol = " + sym +
                                        " AND Descr = " + desc + " AND Dt = " + q(Format(D, "DD-MM-YYYY")));
        const double ClBal = closing.eof() ? 0 : closing["ClBal"].numberOrZero();
        const double OpBal = closing.eof() ? 0 : closing["OpBal"].numberOrZero();
        const double E = ClBal - OpBal;
        Recordset eq =
            store.query("SELECT SUM(Units) AS Eq_Units, SUM(Units * Traded) AS Eq_Trade From DummyTracker "
                        "WHERE (Symbol = " +
                        sym + ") AND (InDesc = " + desc +
                        ") AND (CP = 'S') AND (CashType = 'Q') GROUP BY Symbol, InDesc");
        const double Eq_Units = eq.eof() ? 0 : int16(eq["Eq_Units"].numberOrZero());
        const double Eq_Trade = eq.eof() ? 0 : eq["Eq_Trade"].numberOrZero();
        Recordset fut = store.query(
            "SELECT SUM(DummyTracker.Units) AS Fut_Units, Sum(DummyTracker.units * DummyTracker.Traded) AS "
            "Fut_Trade, ((ABS(SUM(DummyTracker.Units)) * (PortfolioMast.MktPrice)) / 10000000) AS Exposure1 "
            "FROM DummyTracker INNER JOIN PortfolioMast ON DummyTracker.Symbol = PortfolioMast.Symbol AND "
            "DummyTracker.InDesc = PortfolioMast.Descr WHERE (DummyTracker.Symbol = " +
            sym + ") AND (DummyTracker.InDesc = " + desc +
            ") AND (DummyTracker.CP = 'S') AND (DummyTracker.CashType = 'F') GROUP BY DummyTracker.Symbol, "
            "DummyTracker.InDesc, PortfolioMast.MktPrice");
        const double Fut_Units = fut.eof() ? 0 : int16(fut["Fut_Units"].numberOrZero());
        const double Fut_Trade = fut.eof() ? 0 : fut["Fut_Trade"].numberOrZero();
        const double Exposure1 = fut.eof() ? 0 : fut["Exposure1"].numberOrZero();
        const double FM = std::abs(Fut_Trade) * 12.5 / 100;
        const double FA = Fut_Units != 0 ? Fut_Trade / Fut_Units : 0;
        const double EA = Eq_Units != 0 ? Eq_Trade / Eq_Units : 0;
        Recordset units =
            store.query("Select Sum(Abs(PD.Units)) As SumUnits from PortfolioMast As PM Inner Join "
                        "PortfolioDet As PD on PM.Symbol = PD.Symbol AND PM.Descr = PD.Descr "
                        "Where PM.Symbol = " +
                        sym + " AND PM.Descr = " + desc);
        // The units are added as they stand, though the label calls the sum crores.
        const double TE = (units.eof() ? 0 : units["SumUnits"].numberOrZero()) + Exposure1;
        Recordset shortRows = store.query("SELECT SUM(ABS(PortfolioDet.Units) * (PortfolioDet.strike) * "
                                          "0.08) AS sum_short From PortfolioDet "
                                          "Where (PortfolioDet.Symbol = " +
                                          sym + ") AND (PortfolioDet.Descr = " + desc +
                                          ") AND (PortfolioDet.units < 0) GROUP BY Symbol, Descr");
        const double sum_short = shortRows.eof() ? 0 : shortRows["sum_short"].numberOrZero();

        ReportRun run;
        run.reportFile = "DataRptMain";
        run.selection = "{PortfolioMast.Symbol} = " + sym + " and {PortfolioMast.Descr} = " + desc +
                        " and {PortfolioDet.Field2} <> 0";
        const std::pair<const char*, double> labels[] = {{"LblFuture_Stock", Fut_Units},
                                                         {"LblFut_Traded", FA},
                                                         {"LblEquity", Eq_Units},
                                                         {"LblEq_Traded", EA},
                                                         {"LblTExpenses", E},
                                                         {"LblExpenses", ClBal},
                                                         {"LblTot_Exposure", TE},
                                                         {"LblOption_Margin", sum_short},
                                                         {"LblFuture_Margin", FM}};
        for (size_t i = 0; i < std::size(labels); ++i)
            run.setFormula(i, std::string(labels[i].first) + "=" + NumText(labels[i].second));
        run.setFormula(std::size(labels), "Symbol=" + sym);
        run.setFormula(std::size(labels) + 1, "Descr=" + desc);
        runReport(app(), run);
    } catch (const std::exception& e) {
        ui().msgBox({std::string("Error in Report Generation") + "\n" + e.what()});
    }
}

} // namespace tallimark
