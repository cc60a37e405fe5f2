// Every printed report's layout by report name. A new report adds its line here.
#include "charges/ChargesReports.h"
#include "reports/ReportRun.h"
#include "reports/SheetReports.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>

namespace tallimark {

namespace {

struct NoCase {
    bool operator()(const std::string& a, const std::string& b) const {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
            return std::tolower(static_cast<unsigned char>(x)) < std::tolower(static_cast<unsigned char>(y));
        });
    }
};

const std::map<std::string, ReportLayout, NoCase>& layouts() {
    static const std::map<std::string, ReportLayout, NoCase> all = {
        {"Expenses", expensesLayout()},
        {"CashFlow", cashFlowLayout()},
        {"rptport", fullSheetLayout()},
        {"CallSummary1", callPutSummaryLayout()},
        {"CallSummary2", callPutPositionLayout()},
        {"Call1", callPutDetailLayout()},
        {"FutStkSum", futStkSummaryLayout()},
        {"FutStkDet", futStkDetailLayout()},
        {"DataRptMain", sheetSummaryLayout()},
        {"DataRptCallSummary1", callSummaryDataLayout("Call / Put Summary", "CallSummary1")},
        {"DataRptCall1", callSummaryDataLayout("Call / Put Detail", "Call1")},
        {"DataRptFutStkSum", futStkDataLayout(false)},
        {"DataRptFutStkDet", futStkDataLayout(true)},
    };
    return all;
}

} // namespace

const ReportLayout* findReportLayout(const std::string& name) {
    const auto it = layouts().find(name);
    return it == layouts().end() ? nullptr : &it->second;
}

} // namespace tallimark
