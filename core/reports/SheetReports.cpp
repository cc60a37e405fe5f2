#include "reports/SheetReports.h"

namespace tallimark {

namespace {

// Every sheet report names its sheet from the run's values, so a run without rows still does.
const char* const kSheetHeading = "Sheet {@Symbol}   {@Descr}";
const char* const kRangeHeading = "Trades from {@FDt} to {@TDt}";

ReportColumn money(const char* caption, const char* source, bool total = true) {
    return {caption, source, 24, Align::Right, figure::kMoney, total};
}
ReportColumn units(const char* caption, const char* source, bool total = true) {
    return {caption, source, 26, Align::Right, figure::kUnits, total};
}
ReportColumn plain(const char* caption, const char* source, double width,
                   const char* format = figure::kText) {
    return {caption, source, width, Align::Left, format, false};
}
StatementLine section(const char* label) {
    return {label, "", figure::kText};
}
StatementLine line(const char* label, const char* source, const char* format = figure::kMoney) {
    return {label, source, format};
}

// The trades of one sheet's options, one line per strike and call/put.
const char* const kOptionSums =
    "select TradeDt, Strike, CP, sum(case when CP = 'C' then Units else 0 end) as CUnits, "
    "sum(case when CP = 'P' then Units else 0 end) as PUnits, "
    "sum(-(Units) * (Traded)) as Premium from Tracker";

std::vector<ReportColumn> optionSumColumns() {
    return {money("Strike", "Strike", false), plain("C/P", "CP", 14), units("Call units", "CUnits"),
            units("Put units", "PUnits"), money("Premium", "Premium")};
}

// The sheet's balances and the balance at the four market prices of its scenarios.
std::vector<StatementLine> balancesAndScenarios() {
    return {
        section("Balances"),
        line("Delta neutral", "DelNeutral"),
        line("Premium", "Premium"),
        line("Fut/Stk (unrealised)", "FutureU"),
        line("Option (unrealised)", "OptionU"),
        line("Fut/Stk (realised)", "FutureR"),
        line("Option (realised)", "OptionR"),
        {"Balance", "Balance", figure::kMoney, true},
        section("Scenarios: balance at a market price"),
        line("10% up, at {Up1MktPrice}", "Up1Bal"),
        line("10% down, at {Dn1MktPrice}", "Dn1Bal"),
        line("20% up, at {Up2MktPrice}", "Up2Bal"),
        line("20% down, at {Dn2MktPrice}", "Dn2Bal"),
    };
}

// The script's gamma limits from four sources (second may be null), each saying when it is not set.
std::vector<StatementLine> gammaLimits(const char* limit, const char* first, const char* second,
                                       const char* last) {
    const char* missing = "not set for this script";
    std::vector<StatementLine> lines = {section("Gamma limits of the script"),
                                        {"Limit (crores)", limit, figure::kMoney, false, missing},
                                        {"First gamma", first, figure::kText, false, missing}};
    if (second) lines.push_back({"Second gamma", second, figure::kText, false, missing});
    lines.push_back({"Last gamma", last, figure::kText, false, missing});
    return lines;
}

ReportLayout workTableLayout(const char* title, const char* table, std::vector<ReportColumn> columns,
                             const char* band) {
    ReportLayout l;
    l.title = title;
    l.rows = std::string("select * from ") + table;
    l.orderBy = "order by TradeDt";
    l.headings = {"Sheet {@LblSymbol}   {@LblDescription}", "From {@LblFdate} to {@LblTdate}"};
    l.columns = std::move(columns);
    l.bandBy = band;
    l.emptyText = "No trades in this date range.";
    return l;
}

} // namespace

ReportLayout fullSheetLayout() {
    ReportLayout l;
    l.title = "Risk Management Sheet";
    l.orientation = Orientation::Landscape;
    // The sheet's own greek totals share names with the rows' values: the rows' are renamed.
    // The selection names both tables, so they keep their names here.
    l.rows = "select PortfolioMast.*, PortfolioDet.Strike, PortfolioDet.CP, PortfolioDet.Units, "
             "PortfolioDet.Traded, PortfolioDet.Last, PortfolioDet.Vol, PortfolioDet.Delta, "
             "PortfolioDet.DeltaVal as DDeltaVal, PortfolioDet.Theta, PortfolioDet.ThetaVal as DThetaVal, "
             "PortfolioDet.Gamma, PortfolioDet.GammaVal as DGammaVal, PortfolioDet.Vega, "
             "PortfolioDet.VegaVal as DVegaVal from PortfolioMast inner join PortfolioDet "
             "on PortfolioMast.Symbol = PortfolioDet.Symbol and PortfolioMast.Descr = PortfolioDet.Descr";
    l.orderBy = "order by PortfolioDet.Strike, PortfolioDet.CP";
    l.headings = {kSheetHeading, "Market price {MktPrice}   Days {Days}   Expiry {ExpDt}   Date {Dt}"};
    const char* greek = "0.0000";
    l.columns = {
        {"Strike", "Strike", 20, Align::Right, figure::kMoney},
        plain("C/P", "CP", 10),
        {"Units", "Units", 16, Align::Right, figure::kUnits, true},
        {"Traded", "Traded", 20, Align::Right, figure::kMoney},
        {"Last", "Last", 22, Align::Right, figure::kMoney},
        {"Vol", "Vol", 14, Align::Right, "0.00"},
        // A deep put's delta reaches -100.0000.
        {"Delta", "Delta", 22, Align::Right, greek},
        money("Delta val", "DDeltaVal"),
        {"Theta", "Theta", 18, Align::Right, greek},
        money("Theta val", "DThetaVal"),
        {"Gamma", "Gamma", 18, Align::Right, greek},
        money("Gamma val", "DGammaVal"),
        {"Vega", "Vega", 18, Align::Right, greek},
        money("Vega val", "DVegaVal"),
    };
    l.emptyText = "The sheet holds no open positions.";
    l.sheetTable = "PortfolioMast";
    l.summary = balancesAndScenarios();
    l.summary.insert(l.summary.end(), {
                                          section("Futures, stock and expenses"),
                                          line("Future/Stock units", "@FUnits", figure::kUnits),
                                          line("Future/Stock average price", "@FTrade"),
                                          line("Equity units", "@EUnits", figure::kUnits),
                                          line("Equity average price", "@ETrade"),
                                          line("Future margin", "@FMargin"),
                                          line("Today's expenses", "@Exp1"),
                                          line("Expenses", "@Exp"),
                                      });
    const auto limits = gammaLimits("@Limit_Cr", "@First_Gamma", "@F_Gamma1", "@Last_Gamma");
    l.summary.insert(l.summary.end(), limits.begin(), limits.end());
    return l;
}

ReportLayout callPutSummaryLayout() {
    ReportLayout l;
    l.title = "Call / Put Summary";
    l.rows = kOptionSums;
    l.orderBy = "group by TradeDt, Strike, CP order by TradeDt, Strike, CP";
    l.headings = {kSheetHeading, kRangeHeading};
    l.columns = optionSumColumns();
    l.bandBy = "TradeDt";
    l.emptyText = "No option trades in this date range.";
    return l;
}

ReportLayout callPutPositionLayout() {
    ReportLayout l;
    l.title = "Call / Put Summary as on Date";
    l.rows = kOptionSums;
    l.orderBy = "group by Strike, CP order by Strike, CP";
    l.headings = {kSheetHeading, "All option trades to date"};
    l.columns = optionSumColumns();
    l.emptyText = "The sheet has no option trades.";
    return l;
}

ReportLayout callPutDetailLayout() {
    ReportLayout l;
    l.title = "Call / Put Detail";
    l.rows = "select TradeDt, Strike, CP, Units, Traded, -(Units) * (Traded) as Premium from Tracker";
    l.orderBy = "order by TradeDt, Strike, CP";
    l.headings = {kSheetHeading, kRangeHeading};
    l.columns = {money("Strike", "Strike", false), plain("C/P", "CP", 14), units("Units", "Units", false),
                 money("Traded", "Traded", false), money("Premium", "Premium")};
    l.bandBy = "TradeDt";
    l.emptyText = "No option trades in this date range.";
    return l;
}

ReportLayout futStkSummaryLayout() {
    ReportLayout l;
    l.title = "Future / Stock Summary";
    l.rows = "select TradeDt, sum(case when CashType = 'F' then Units else 0 end) as Funits, "
             "sum(case when CashType = 'Q' then Units else 0 end) as Sunits, "
             "sum(-(Units) * (Traded)) as Amount from Tracker";
    l.orderBy = "group by TradeDt order by TradeDt";
    l.headings = {kSheetHeading, kRangeHeading};
    l.columns = {plain("Trade date", "TradeDt", 28, "DD-MM-YYYY"), units("Future units", "Funits"),
                 units("Stock units", "Sunits"), money("Amount", "Amount")};
    l.emptyText = "No futures or stock trades in this date range.";
    return l;
}

ReportLayout futStkDetailLayout() {
    ReportLayout l;
    l.title = "Future / Stock Detail";
    l.rows = "select TradeDt, case when CashType = 'F' then 'Future' else 'Stock' end as Kind, "
             "case when CashType = 'F' then Units end as Funits, "
             "case when CashType = 'Q' then Units end as Sunits, Traded, -(Units) * (Traded) as Amount "
             "from Tracker";
    l.orderBy = "order by TradeDt";
    l.headings = {kSheetHeading, kRangeHeading};
    l.columns = {plain("Kind", "Kind", 34), units("Future units", "Funits"), units("Stock units", "Sunits"),
                 money("Traded", "Traded", false), money("Amount", "Amount")};
    l.bandBy = "TradeDt";
    l.emptyText = "No futures or stock trades in this date range.";
    return l;
}

ReportLayout sheetSummaryLayout() {
    ReportLayout l = fullSheetLayout();
    l.title = "Risk Management Sheet ....";
    l.headings[0] = "Sheet {@Symbol}   {@Descr}";
    const std::string from = " from PortfolioMast";
    l.rows.replace(
        l.rows.find(from), from.size(),
        ", ScriptMast.First_Gamma as SFirst, ScriptMast.Week_Gamma as SWeek, ScriptMast.Limit_Cr as "
        "SLimit from PortfolioMast");
    l.rows += " left join ScriptMast on substr(PortfolioMast.Symbol, 1, 3) = ScriptMast.ScrCode";
    l.summary = balancesAndScenarios();
    l.summary.insert(l.summary.end(), {
                                          section("Futures, stock and expenses"),
                                          line("Future/Stock:", "@LblFuture_Stock", figure::kUnits),
                                          line("Future/Stock average price", "@LblFut_Traded"),
                                          line("Equity:", "@LblEquity", figure::kUnits),
                                          line("Equity average price", "@LblEq_Traded"),
                                          line("Today's Expenses:", "@LblTExpenses"),
                                          line("Expenses:", "@LblExpenses"),
                                          line("Total Exposure (in Corers):", "@LblTot_Exposure"),
                                          line("Option Margin:", "@LblOption_Margin"),
                                          line("Future Margin:", "@LblFuture_Margin"),
                                      });
    const auto limits = gammaLimits("SLimit", "SFirst", nullptr, "SWeek");
    l.summary.insert(l.summary.end(), limits.begin(), limits.end());
    return l;
}

ReportLayout callSummaryDataLayout(const char* title, const char* table) {
    return workTableLayout(title, table,
                           {money("Strike", "Strike", false), plain("C/P", "CP", 14),
                            money("Traded", "Traded", false), units("Call units", "CUnits"),
                            units("Put units", "PUnits"), money("Premium", "Premium")},
                           "TradeDt");
}

ReportLayout futStkDataLayout(bool detail) {
    std::vector<ReportColumn> columns = {units("Future units", "Funits"), units("Stock units", "Sunits")};
    if (detail) {
        // Room for the day total's caption, "Total 19-11-2026".
        columns.insert(columns.begin(), plain("", "", 34));
        columns.push_back(money("Traded", "Traded", false));
        return workTableLayout("Future / Stock Detail", "FutStkSumDet", columns, "TradeDt");
    }
    columns.insert(columns.begin(), plain("Trade date", "TradeDt", 28, "DD-MM-YYYY"));
    return workTableLayout("Future / Stock Summary", "FutStkSumDet", columns, "");
}

} // namespace tallimark
