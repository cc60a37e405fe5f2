#include "reports/SheetExport.h"

#include "frame/App.h"
#include "frame/Form.h"
#include "frame/VbNumber.h"

#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <map>

namespace tallimark {

namespace {

// A figure as the spreadsheet should read it: "1,23,456.50" is 123456.50; "" when not a figure.
std::string asNumber(const std::string& shown) {
    std::string t;
    for (char c : Trim(shown))
        if (c != ',') t += c;
    if (t.empty()) return {};
    char* end = nullptr;
    std::strtod(t.c_str(), &end);
    return *end == '\0' ? t : std::string();
}

std::string csvCell(const std::string& shown) {
    const std::string number = asNumber(shown);
    if (!number.empty()) return number;
    std::string out = "\"";
    for (char c : shown)
        out += c == '"' ? std::string("\"\"") : std::string(1, c);
    return out + "\"";
}

std::string csvLine(const std::vector<std::string>& cells) {
    std::string line;
    for (size_t i = 0; i < cells.size(); ++i)
        line += (i ? "," : "") + csvCell(cells[i]);
    return line + "\r\n";
}

// The sheet's figures that stand in tables on the screen, where a column's caption alone ("$ Value",
// "(U)") or no caption names them, take their row and column in the spreadsheet: "Delta $ Value".
const std::map<std::string, std::string>& tableCaptions() {
    static const std::map<std::string, std::string> captions = [] {
        std::map<std::string, std::string> names{{"TxtContract", "Lot"},
                                                 {"TxtPremium", "Premium"},
                                                 {"TxtComm", "Comm"},
                                                 {"TxtEquity", "Equity"},
                                                 {"TxtBalance", "Balance"}};
        using Names = std::initializer_list<const char*>;
        auto table = [&names](Names rows, Names cols, std::initializer_list<Names> fields) {
            auto row = rows.begin();
            for (const Names& line : fields) {
                auto col = cols.begin();
                for (const char* field : line)
                    names[field] = std::string(*row) + " " + *col++;
                ++row;
            }
        };
        table({"Future", "Cash", "Net"}, {"Lots", "Trade"},
              {{"TxtFutLots", "TxtFutTrade"},
               {"TxtCashLots", "TxtCashTrade"},
               {"TxtFut_trdNF", "TxtFut_trdAmt"}});
        table({"Delta", "Gamma", "Vega", "Theta"}, {"$ Value", "Contracts", "Hedge", "Points"},
              {{"TxtDelVal", "TxtDelCon", "TxtDelHed", "TxtDelPts"},
               {"TxtGamVal", "TxtGamCon", "TxtGamHed", "TxtGamPts"},
               {"TxtVegaVal", "TxtVegaConn", "TxtVegaHed", "TxtVegaPts"},
               {"TxtTheVal", "TxtThetaCon", "TxtTheHed", "TxtThePts"}});
        table({"Cash", "Future", "Option"}, {"(U)", "(R)"},
              {{"TxtCashU", "TxtCashR"}, {"TxtFutU", "TxtFutR"}, {"TxtOptU", "TxtOptR"}});
        table({"Sheet", "Call", "Put"}, {"Delta", "Gamma", "Vega", "Theta"},
              {{"TxtTotDel", "TxtTotGamma", "TxtTotVega", "TxtTotTheta"},
               {"TxtCallDelta", "TxtCallGamma", "TxtCallVega", "TxtCallTheta"},
               {"TxtPutDelta", "TxtPutGamma", "TxtPutVega", "TxtPutTheta"}});
        return names;
    }();
    return captions;
}

} // namespace

std::string sheetCsv(Form& sheet) {
    std::string out = csvLine({sheet.caption()});
    for (const std::string& name : sheet.controlOrder()) {
        if (!sheet.hasControl(name)) continue; // a grid in the tab order
        const Control& c = sheet.control(name);
        if (c.kind != ControlKind::TextBox || !c.visible) continue;
        const std::string label = "Label_" + name;
        const auto named = tableCaptions().find(name);
        out += csvLine({named != tableCaptions().end() ? named->second
                        : sheet.hasControl(label)      ? Trim(sheet.text(label))
                                                       : name,
                        c.text});
    }
    for (const std::string& gridName : sheet.gridNames()) {
        const Grid& g = sheet.grid(gridName);
        std::vector<int> shown;
        std::vector<std::string> headings;
        for (int col = 1; col <= g.maxCols(); ++col)
            if (!g.column(col).hidden) {
                shown.push_back(col);
                headings.push_back(g.column(col).heading);
            }
        out += "\r\n" + csvLine(headings);
        for (int row = 1; row <= g.dataRowCount(); ++row) {
            std::vector<std::string> cells;
            bool any = false;
            for (int col : shown) {
                cells.push_back(g.text(row, col));
                any = any || !Trim(cells.back()).empty();
            }
            if (any) out += csvLine(cells);
        }
    }
    return out;
}

void exportSheet(Form& sheet, const std::string& suggestedName) {
    Ui& ui = sheet.ui();
    FileDialog dialog;
    dialog.save = true;
    dialog.title = "Export the sheet";
    dialog.filter = "CSV files (*.csv)|*.csv";
    dialog.fileName = suggestedName;
    const auto path = ui.fileDialog(dialog);
    if (!path) return;
    const std::string csv = sheetCsv(sheet);
    std::ofstream file(*path, std::ios::binary);
    file << csv;
    file.close();
    if (!file) {
        ui.msgBox(
            {"The sheet could not be written to " + *path, kAppTitle, MsgButtons::Ok, MsgIcon::Critical});
        return;
    }
    ui.msgBox({"The sheet was exported to " + *path});
}

} // namespace tallimark
