#pragma once
// The printed reports of a risk sheet: the full sheet (head, the ladder's open positions with
// their greeks, balances, scenarios and the script's gamma limits), and the sheet's trades, options
// and futures/stock apart, in summary and in detail.
#include "reports/ReportLayout.h"

namespace tallimark {

// The sheet as saved: PortfolioMast joined to its PortfolioDet rows.
ReportLayout fullSheetLayout();
// Option trades by trade date, strike and call/put over a date range.
ReportLayout callPutSummaryLayout();
// Option trades by strike and call/put, all dates: the position as on today.
ReportLayout callPutPositionLayout();
// Every option trade, grouped by trade date.
ReportLayout callPutDetailLayout();
// Futures and stock units and amounts by trade date.
ReportLayout futStkSummaryLayout();
// Every futures and stock trade, grouped by trade date.
ReportLayout futStkDetailLayout();

// The report data screen's reports: the sheet's summary with its margins and exposure, and the
// work tables CallSummary1, Call1 and FutStkSumDet banded by trade date.
ReportLayout sheetSummaryLayout();
ReportLayout callSummaryDataLayout(const char* title, const char* table);
ReportLayout futStkDataLayout(bool detail);

} // namespace tallimark
