#pragma once
// Printed reports. A screen prints by filling a ReportRun as it would brief a report engine (the
// report file, the connect string, the selection formula, the formula slots "Name=value") and
// calling runReport(): the selection is translated to SQL over the layout's rows
// (SelectionFormula.h), the rows and the formula values are laid out into pages
// (ReportLayout.h), and the Ui shows the document (a print preview in the window; in batch, a
// JSON line and, after `print PATH`, a PDF drawn by render/ReportPainter).
//
// Adding a report:
//   1. Write its layout as data: a function returning a ReportLayout, in the subsystem that
//      prints it (charges/ExpensesReport.cpp is an example): the rows' statement, headings with
//      {Column} and {@formula} places, the table's columns with widths and totals, or a statement
//      of labelled figures.
//   2. Name it in the table of core/reports/ReportLayouts.cpp under the report file's name
//      without folder and ".rpt" ("\CallSummary1.rpt" is "CallSummary1").
//   3. Test the data: reportDocument() gives the pages without drawing, so a test reads the
//      figures as printed. Nothing in render/ changes for a new report.
#include "reports/ReportDocument.h"
#include "reports/ReportLayout.h"

#include <map>
#include <string>
#include <vector>

namespace tallimark {

class App;
class Store;

struct ReportRun {
    std::string reportFile;            // "...\Expenses.rpt": the name picks the layout
    std::string connect;               // kept as the screens set it; there is one store
    std::string selection;             // in the report engine's syntax
    std::vector<std::string> formulas; // slot n holds "Name=value", or "" when cleared

    // The report's name: the file name without folder and extension.
    std::string name() const;
    void setFormula(size_t slot, std::string text);
    // The named formula values of the slots, keys in lower case, quotes round a text removed.
    std::map<std::string, std::string> values() const;
};

// The layouts by report name; nullptr for a name without one.
const ReportLayout* findReportLayout(const std::string& name);

// The rows the run selects, with its values: what the layout is given.
ReportData reportData(Store& store, const ReportLayout& layout, const ReportRun& run);
// The run laid out into pages. A missing layout or a selection that cannot be read raises a
// VbError, which the printing procedure's trap shows in its failure box.
ReportDocument reportDocument(App& app, const ReportRun& run);
// Lays the run out and shows it.
void runReport(App& app, const ReportRun& run);

} // namespace tallimark
