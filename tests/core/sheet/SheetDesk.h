#pragma once
// A desk with sheets in its store: the rows a new-sheet screen and a save would have written,
// put in directly, and the sheet screens opened on them.
#include "SheetScenarios.h"
#include "TestDesk.h"

#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <string>
#include <utility>
#include <vector>

namespace tallimark::test {

// Columns and their values as a statement writes them ("'text'", "12.5", "cdate('...')").
using Columns = std::vector<std::pair<std::string, std::string>>;

struct SheetDesk : Desk {
    void insert(const std::string& table, const Columns& columns) {
        std::string names, values;
        for (const auto& [n, v] : columns) {
            names += (names.empty() ? "" : ", ") + n;
            values += (values.empty() ? "" : ", ") + v;
        }
        app.store().execute("insert into " + table + " (" + names + ") values (" + values + ")");
    }

    // The Trans row of a sheet: middle strike, strikes above and below, step and rate.
    void addTrans(const std::string& symbol, const std::string& desc, const std::string& type, double mid,
                  int above, int below, double step, double rate,
                  const std::string& created = "01-Nov-2026") {
        insert("Trans", {{"InSymbol", q(symbol)},
                         {"InDesc", q(desc)},
                         {"InType", q(type)},
                         {"MidStrike", NumText(mid)},
                         {"AStrike", NumText(static_cast<double>(above))},
                         {"BStrike", NumText(static_cast<double>(below))},
                         {"UComm", NumText(step)},
                         {"DIntRate", NumText(rate)},
                         {"Transdt", "cdate(" + q(created) + ")"}});
    }

    // A script with its lot (ScriptMast.Field2) and exposure margin percent (Field1); an empty
    // text leaves the column null.
    void addScript(const std::string& code, const std::string& lot, const std::string& exMargin) {
        Columns c{{"ScrCode", q(code)}, {"ScrName", q(code + " LTD")}};
        if (!lot.empty()) c.emplace_back("Field2", lot);
        if (!exMargin.empty()) c.emplace_back("Field1", q(exMargin));
        insert("ScriptMast", c);
    }

    // A ledger row: the sheet, the series and the trade, plus any further columns.
    void addTrade(const std::string& table, const std::string& symbol, const std::string& desc,
                  const std::string& strike, const std::string& cp, int units, double traded,
                  Columns more = {}) {
        Columns c{{"Symbol", q(symbol)},
                  {"InDesc", q(desc)},
                  {"CP", q(cp)},
                  {"Units", std::to_string(units)},
                  {"Traded", NumText(traded)}};
        if (!strike.empty()) c.emplace_back("Strike", strike);
        c.insert(c.end(), more.begin(), more.end());
        insert(table, c);
    }

    // A new sheet, TCSK2026 "FRESH" round a middle strike of 1000, never saved.
    RiskSheet& openFresh(SheetKind kind = SheetKind::Stock, int above = 1, int below = 1, double step = 20) {
        addTrans("TCSK2026", "FRESH", kind == SheetKind::Stock ? "S" : "F", 1000, above, below, step, 6);
        return open(kind, "TCSK2026", "FRESH");
    }

    RiskSheet& open(SheetKind kind, const std::string& symbol, const std::string& desc) {
        return openSheet(app, kind, symbol, desc);
    }

    double number(const std::string& sql) {
        Recordset rs = app.store().query(sql);
        return rs.at(0).numberOrZero();
    }
};

// A ladder row's cells 1 to 16 as text.
inline std::vector<std::string> rowCells(RiskSheet& sheet, int row) {
    std::vector<std::string> cells;
    for (int c = 1; c <= RiskSheet::kLadderCols; ++c)
        cells.push_back(sheet.va1().text(row, c));
    return cells;
}

// A desk with the live stock or index sheet of SheetScenarios.h open.
struct LiveSheetDesk : SheetDesk {
    RiskSheet& s;
    explicit LiveSheetDesk(SheetKind kind = SheetKind::Stock) : s(openSavedScenario(*this, kind)) {}
};

} // namespace tallimark::test
