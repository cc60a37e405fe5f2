#include "reports/ReportRun.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "reports/SelectionFormula.h"

#include <cctype>

namespace tallimark {

std::string ReportRun::name() const {
    const size_t slash = reportFile.find_last_of("\\/");
    std::string base = slash == std::string::npos ? reportFile : reportFile.substr(slash + 1);
    const size_t dot = base.rfind('.');
    if (dot != std::string::npos && LCase(base.substr(dot)) == ".rpt") base.erase(dot);
    return base;
}

void ReportRun::setFormula(size_t slot, std::string text) {
    if (formulas.size() <= slot) formulas.resize(slot + 1);
    formulas[slot] = std::move(text);
}

std::map<std::string, std::string> ReportRun::values() const {
    std::map<std::string, std::string> out;
    for (const auto& f : formulas) {
        const size_t eq = f.find('=');
        if (eq == std::string::npos) continue;
        std::string value = Trim(f.substr(eq + 1));
        // A text value is written in quotes ("dt1= '23-Nov-26'"); a number is not.
        if (value.size() >= 2 && (value.front() == '\'' || value.front() == '"') &&
            value.back() == value.front())
            value = value.substr(1, value.size() - 2);
        out[LCase(Trim(f.substr(0, eq)))] = value;
    }
    return out;
}

ReportData reportData(Store& store, const ReportLayout& layout, const ReportRun& run) {
    const SelectionSql sel = translateSelection(run.selection);
    std::string sql = layout.rows;
    if (!sel.where.empty()) sql += " where " + sel.where;
    if (!layout.orderBy.empty()) sql += " " + layout.orderBy;
    Recordset rs = store.query(sql);
    ReportData data;
    data.name = run.name();
    for (size_t c = 0; c < rs.fieldCount(); ++c)
        data.columns.push_back(rs.fieldName(c));
    for (size_t r = 0; r < rs.recordCount(); ++r) {
        std::vector<Value> row;
        for (size_t c = 0; c < rs.fieldCount(); ++c)
            row.push_back(rs.cell(r, c));
        data.rows.push_back(std::move(row));
    }
    data.values = run.values();
    if (data.rows.empty() && !layout.sheetTable.empty()) {
        Recordset sheet =
            store.query("select * from " + layout.sheetTable + " where Symbol = " + q(data.values["symbol"]) +
                        " and Descr = " + q(data.values["descr"]));
        if (!sheet.eof())
            for (size_t c = 0; c < sheet.fieldCount(); ++c) {
                data.sheetColumns.push_back(sheet.fieldName(c));
                data.sheetRow.push_back(sheet.cell(0, c));
            }
    }
    return data;
}

ReportDocument reportDocument(App& app, const ReportRun& run) {
    const ReportLayout* layout = findReportLayout(run.name());
    if (!layout) throw VbError(vberr::InvalidCall, "No layout for the report " + run.name());
    ReportData data = reportData(app.store(), *layout, run);
    data.printed = Format(app.clock().today(), "DD-MMM-YYYY");
    return layOut(*layout, data);
}

void runReport(App& app, const ReportRun& run) {
    const ReportDocument doc = reportDocument(app, run);
    app.ui().showReport(doc);
}

} // namespace tallimark
