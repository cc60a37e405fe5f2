#include "reports/FrmPrintOption.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "reports/ReportRun.h"

#include <cmath>

namespace tallimark {

namespace {

void clearSlots(ReportRun& run, size_t from, size_t to) {
    for (size_t slot = from; slot <= to; ++slot)
        run.setFormula(slot, "");
}

} // namespace

FrmPrintOption::FrmPrintOption(App& app) : Form(app, kName, "Different Print Options....Tallimark") {
    addControl(ControlKind::Frame, "Frame2", "Print");
    addControl(ControlKind::OptionButton, "Option2(0)", "Call / Put");
    addControl(ControlKind::OptionButton, "Option2(1)", "Fut / Stk");
    addControl(ControlKind::OptionButton, "Option2(2)", "Full Sheet");
    addControl(ControlKind::Frame, "Frame1", "Type");
    addControl(ControlKind::OptionButton, "Option1(0)", "Summary");
    addControl(ControlKind::OptionButton, "Option1(1)", "Detailed");
    addControl(ControlKind::CheckBox, "Check1", "As On Date");
    addControl(ControlKind::Label, "Label1", "From Date:");
    addControl(ControlKind::DatePicker, "DTPicker1");
    addControl(ControlKind::Label, "Label2", "To Date:");
    addControl(ControlKind::DatePicker, "DTPicker2");
    addControl(ControlKind::Button, "Cmd(0)", "&Print");
    addControl(ControlKind::Button, "Cmd(1)", "Cancel");

    on("Form", EventType::Load, [this](Event&) {
        setValue("Option1(0)", true);
        setValue("Option2(0)", true);
        setValue("Check1", true);
        const std::string today = Format(this->app().clock().today(), "DD-MMM-YYYY");
        setText("DTPicker1", today);
        setText("DTPicker2", today);
    });
    on("Option1", EventType::Click, [this](Event& e) { setValue("Check1", e.index == 0); });
    on("Cmd", EventType::Click, [this](Event& e) {
        if (e.index == 0)
            Cmd_Click();
        else
            hide();
    });
}

void FrmPrintOption::Cmd_Click() {
    const bool summary = control("Option1(0)").value;
    if (control("Option2(2)").value)
        trapped(1, &FrmPrintOption::PrintRecords1);
    else if (control("Option2(0)").value && summary && !control("Check1").value)
        trapped(2, &FrmPrintOption::PrintRecords2);
    else if (control("Option2(0)").value && summary)
        trapped(6, &FrmPrintOption::PrintRecords6);
    else if (control("Option2(0)").value)
        trapped(3, &FrmPrintOption::PrintRecords3);
    else if (control("Option2(1)").value && summary)
        trapped(4, &FrmPrintOption::PrintRecords4);
    else if (control("Option2(1)").value)
        trapped(5, &FrmPrintOption::PrintRecords5);
}

void FrmPrintOption::trapped(int number, void (FrmPrintOption::*run)()) {
    try {
        BusyScope busy(ui());
        (this->*run)();
    } catch (const std::exception& e) {
        const auto* vb = dynamic_cast<const VbError*>(&e);
        ui().msgBox({"Error in PrintRecords" + std::to_string(number) + " procedure: " + e.what() +
                     "and No: " + std::to_string(vb ? vb->number() : 0)});
    }
}

std::string FrmPrintOption::reportFile(const char* name) {
    return app().dataDir().string() + name;
}

void FrmPrintOption::nameSheet(ReportRun& run) {
    const Session& s = app().session();
    run.setFormula(11, "Symbol='" + s.g_strSymbol + "'");
    run.setFormula(12, "Descr='" + s.g_strDesc + "'");
}

void FrmPrintOption::GetscriptNm() {
    // The screen stays loaded between prints, so a script without a row must not inherit the
    // limits of the script printed before it.
    limit.clear();
    firstGamma.clear();
    secondGamma.clear();
    lastGamma.clear();
    try {
        Store& store = app().store();
        Recordset rs = store.query(
            "Select * from ScriptMast where scrCode=" + q(Mid(app().session().g_strSymbol, 1, 3)) + " ");
        if (rs.eof()) return;
        limit = rs["limit_cr"].textOrEmpty();
        const Value& first = rs["first_gamma"];
        if (!first.isNull()) {
            firstGamma = Mid(first.text(), 1, 3);
            secondGamma = Mid(first.text(), 5, 3);
        }
        lastGamma = rs["week_gamma"].textOrEmpty();
    } catch (const std::exception& e) {
        const auto* vb = dynamic_cast<const VbError*>(&e);
        ui().msgBox({std::string("Error in GetscriptNm procedure: ") + e.what() +
                     "and No: " + std::to_string(vb ? vb->number() : 0)});
    }
}

void FrmPrintOption::PrintRecords1() {
    Store& store = app().store();
    const std::string sym = q(app().session().g_strSymbol), desc = q(app().session().g_strDesc);
    Recordset mast = store.query("Select * from PortfolioMast where Symbol=" + sym + " and Descr=" + desc);
    const VbDate D(mast["ExpDt"].date().serial() - Val(mast["Days"].textOrEmpty()));
    Recordset closing = store.query("Select * from Closing where Symbol=" + sym + " and Descr=" + desc +
                                    " and Dt = " + q(Format(D, "DD-MM-YYYY")));
    double ClBal = 0, OpBal = 0;
    if (!closing.eof()) {
        ClBal = closing["ClBal"].numberOrZero();
        OpBal = closing["OpBal"].numberOrZero();
    }
    auto sums = [&](const char* cashType, double& units, double& trade) {
        Recordset rs = store.query(
            "select sum(units) as TotUnits, sum(units*Traded) as TotTrade from dummytracker where symbol = " +
            sym + " and indesc = " + desc + " and CP = 'S' and CashType=" + q(cashType));
        units = rs["TotUnits"].numberOrZero();
        trade = rs["TotTrade"].numberOrZero();
    };
    double FU = 0, FT = 0, EU = 0, ET = 0, FP = 0, EP = 0;
    sums("F", FU, FT);
    const double FM = std::abs(FT) * 12.5 / 100;
    sums("Q", EU, ET);
    if (FU != 0) FP = FT / FU;
    if (EU != 0) EP = ET / EU;
    GetscriptNm();

    ReportRun run;
    run.reportFile = reportFile("\\rptport.rpt");
    run.connect = "DSN=TALLI";
    clearSlots(run, 0, 10);
    run.selection = "{Portfoliomast.Symbol} = " + sym + " and {Portfoliomast.Descr} = " + desc;
    run.selection += " AND {Portfoliodet.Units} <> 0 ";
    run.selection += " and {Portfoliodet.Descr} = " + desc;
    const std::string slots[] = {
        "Exp=" + NumText(ClBal),  "Exp1=" + NumText(ClBal - OpBal), "FUnits=" + NumText(FU),
        "FTrade=" + NumText(FP),  "EUnits=" + NumText(EU),          "ETrade=" + NumText(EP),
        "Limit_Cr=" + limit,      "First_Gamma=" + firstGamma,      "Last_Gamma=" + lastGamma,
        "FMargin=" + NumText(FM), "F_Gamma1=" + secondGamma};
    for (size_t slot = 0; slot < std::size(slots); ++slot)
        run.setFormula(slot, slots[slot]);
    nameSheet(run);
    runReport(app(), run);
}

void FrmPrintOption::printTrades(const char* file, const char* connect, const char* rowFilter) {
    const VbDate from = CDate(text("DTPicker1")), to = CDate(text("DTPicker2"));
    ReportRun run;
    run.reportFile = reportFile(file);
    run.connect = connect;
    run.setFormula(0, "FDt = '" + Format(from, "DD-MMM-YYYY") + "'");
    run.setFormula(1, "TDt = '" + Format(to, "DD-MMM-YYYY") + "'");
    clearSlots(run, 2, 10);
    run.selection = "{Tracker.Symbol} = " + q(app().session().g_strSymbol) +
                    " and {Tracker.InDesc} = " + q(app().session().g_strDesc);
    run.selection += rowFilter;
    run.selection += " AND {Tracker.TradeDt} in date (" + Format(from, "yyyy,mm,dd") + ") to date(" +
                     Format(to, "yyyy,mm,dd") + ")";
    nameSheet(run);
    runReport(app(), run);
}

void FrmPrintOption::PrintRecords2() {
    printTrades("\\CallSummary1.rpt", "DSN=Talli", " AND {Tracker.CP} <> 'S'");
}
void FrmPrintOption::PrintRecords3() {
    printTrades("\\Call1.rpt", "DSN=talli", " AND {Tracker.CP} <> 'S'");
}
void FrmPrintOption::PrintRecords4() {
    printTrades("\\FutStkSum.rpt", "DSN=talli", " AND {Tracker.CP} = 'S'");
}
void FrmPrintOption::PrintRecords5() {
    printTrades("\\FutStkDet.rpt", "DSN=talli", " AND {Tracker.CP} = 'S'");
}

void FrmPrintOption::PrintRecords6() {
    ReportRun run;
    run.reportFile = reportFile("\\CallSummary2.rpt");
    run.connect = "DSN=talli";
    clearSlots(run, 0, 10);
    run.selection = "{Tracker.Symbol} = " + q(app().session().g_strSymbol) +
                    " and {Tracker.InDesc} = " + q(app().session().g_strDesc) + " AND {Tracker.CP} <> 'S'";
    nameSheet(run);
    runReport(app(), run);
}

} // namespace tallimark
