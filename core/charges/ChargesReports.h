#pragma once
// The printed statements of the charges subsystem: the day's expenses of a sheet and the cash
// flow of the ticked sheets.
#include "reports/ReportLayout.h"

namespace tallimark {

// One statement per selected row of Closing.
ReportLayout expensesLayout();
// The rows of ExpTemp by date, with totals.
ReportLayout cashFlowLayout();

} // namespace tallimark
