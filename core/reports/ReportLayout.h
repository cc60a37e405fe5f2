#pragma once
// What a report looks like, said as data: where its rows come from, the headings above them, a
// table of columns with totals (banded by a column when asked), and a statement of labelled
// figures per row. layOut() turns a layout and the rows of one run into pages.
//
// A source names where a figure comes from: "ClBal" is a column of the rows, "@clBal" the formula
// value of that name handed to the run. In headings and labels, {ClBal} and {@clBal} put the same
// figures into text (a column from the first row).
#include "frame/Value.h"
#include "reports/ReportDocument.h"

#include <map>
#include <string>
#include <vector>

namespace tallimark {

// How a figure is written: kText as it stands, kMoney and kUnits as numbers with Indian grouping
// (12,34,567.50), or a date pattern such as "DD-MM-YYYY".
namespace figure {
inline constexpr const char* kText = "";
inline constexpr const char* kMoney = "#,##0.00";
inline constexpr const char* kUnits = "#,##0";
} // namespace figure

struct ReportColumn {
    std::string caption;
    std::string source;
    double width = 25; // mm
    Align align = Align::Right;
    std::string format = figure::kMoney;
    bool total = false; // summed on the total line (and on each band's subtotal)
};

// One line of a statement: a label and its figure; a line without a source is a section heading,
// a total line is bold with a rule above.
struct StatementLine {
    std::string label;
    std::string source;
    std::string format = figure::kMoney;
    bool total = false;
    std::string missing = {}; // written in place of an empty figure ("not set")
};

struct ReportLayout {
    std::string title;
    Orientation orientation = Orientation::Portrait;
    // The statement whose rows the selection filters, without WHERE: "select * from Closing", or a
    // join when the selection names two tables. orderBy follows the WHERE clause.
    std::string rows;
    std::string orderBy;
    std::vector<std::string> headings; // under the title, on every page
    std::vector<ReportColumn> columns; // the table; empty for a report of statements only
    std::string bandBy;                // a source: a band heading and subtotals where it changes
    std::string totalCaption = "Total";
    std::vector<StatementLine> statement; // repeated for every row
    // Once, after the table and its totals: figures of the first row and the formula values.
    std::vector<StatementLine> summary;
    std::string emptyText = "No rows were selected."; // what a run without rows says
    // When the selection gives no row: the table whose row of the run's sheet (its Symbol and
    // Descr values) gives the headings and the summary their figures all the same.
    std::string sheetTable;
};

// What a run hands to its layout: the selected rows and the named formula values.
struct ReportData {
    std::string name;
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;
    std::map<std::string, std::string> values; // keys in lower case
    std::vector<std::string> sheetColumns;     // the sheet's row, read when no row was selected
    std::vector<Value> sheetRow;
    std::string printed; // the date of printing, shown in the footer
};

// A number in the grouped form of a figure format ("#,##0.00"): lakhs and crores.
std::string groupedFigure(double number, const std::string& format);

ReportDocument layOut(const ReportLayout& layout, const ReportData& data);

} // namespace tallimark
