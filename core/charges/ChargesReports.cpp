#include "charges/ChargesReports.h"

namespace tallimark {

ReportLayout expensesLayout() {
    ReportLayout l;
    l.title = "Expenses Statement";
    l.rows = "select * from Closing";
    l.orderBy = "order by cdate(Dt)";
    l.headings = {"Sheet {Symbol}   {Descr}", "Date {Dt}"};
    auto section = [](const char* label) { return StatementLine{label, "", figure::kText, false}; };
    auto line = [](const char* label, const char* source) {
        return StatementLine{label, source, figure::kMoney, false};
    };
    auto total = [](const char* label, const char* source) {
        return StatementLine{label, source, figure::kMoney, true};
    };
    // The stamp duty of options and futures is handed over in whole rupees; the rest is the row.
    l.statement = {
        section("Market and closing rates"),
        line("Market price", "MktPrice"),
        line("Closing rate (mark to market)", "ClMtm"),
        line("Closing rate (stock)", "ClStk"),
        section("Balances brought forward"),
        line("Opening balance", "OpBal"),
        line("Interest on opening balance", "OpBalInt"),
        line("Sheet balance", "ShBal"),
        section("Contract and turnover charges"),
        line("Options contract charges", "CpConAmt"),
        line("Futures contract charges", "FutConAmt"),
        line("Equity turnover charges", "CashTOverAmt"),
        section("Stamp duty"),
        line("On options", "@StDutyOpt"),
        line("On futures", "@StDutyFut"),
        line("On delivery", "MtmChFval"),
        line("On non-delivery", "ConChPval"),
        section("Interest and other charges"),
        line("Interest on option premium", "CpPreAmt"),
        line("Mark-to-market interest", "MtmIntAmt"),
        line("Interest on cash", "CashIntAmt"),
        line("DP charges", "CashDpAmt"),
        line("Other charges", "OtherChgsAmt"),
        total("Closing balance", "ClBal"),
        total("Net balance", "NetBal"),
    };
    return l;
}

ReportLayout cashFlowLayout() {
    ReportLayout l;
    l.title = "Cash Flow";
    l.orientation = Orientation::Landscape;
    l.rows = "select * from ExpTemp";
    l.orderBy = "order by Dt";
    l.headings = {"Running balance of the selected sheets by date"};
    auto money = [](const char* caption, const char* source, bool total) {
        return ReportColumn{caption, source, 24, Align::Right, figure::kMoney, total};
    };
    l.columns = {
        {"Date", "Dt", 25, Align::Left, "DD-MM-YYYY"},
        money("Op Bal", "Opbal", false),
        money("Op Prem", "Prem", true),
        money("Eq Amt", "EqAmt", true),
        money("Tot Amt", "TotAmt", false),
        money("Int", "StkInt", true),
        money("Mtm Int", "MtmInt", true),
        money("Dp Chgs", "DpAmt", true),
        money("Con Chgs", "ConAmt", true),
        money("TOver Chgs", "TOverAmt", true),
        money("SDuty", "SDuty", true),
    };
    return l;
}

} // namespace tallimark
