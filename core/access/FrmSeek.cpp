#include "access/FrmSeek.h"

#include "frame/App.h"
#include "frame/ComProc.h"

namespace tallimark {

namespace {
const char* const kGrid = "MSHFlexGrid1";
// The grid's width in characters: the first of two columns takes a third, the second the rest.
constexpr double kGridChars = 60;
} // namespace

FrmSeek::FrmSeek(App& app) : Form(app, kName, "Find") {
    addGrid(kGrid, 0);

    on("Form", EventType::Load, [this](Event&) { refresh(); });
    on("Form", EventType::Activate, [this](Event&) {
        NormalCursor(ui()); // the caller showed the busy cursor while the rows were read
        setCaption(seekCaption);
        fitGrid();
    });
    on(kGrid, EventType::DblClick, [this](Event&) { pick(); });
    on(kGrid, EventType::KeyDown, [this](Event& e) {
        if (e.keyCode == keys::Enter)
            pick();
        else if (e.keyCode == keys::Escape)
            this->app().screens().unload(kName);
    });
}

void FrmSeek::setStatement(const std::string& statement) {
    statement_ = statement;
    *seekResult = "";
    refresh();
}

void FrmSeek::refresh() {
    if (statement_.empty()) return;
    Recordset rs = app().store().query(statement_);
    Grid& g = grid(kGrid);
    g.setMaxRows(0);
    g.setMaxCols(static_cast<int>(rs.fieldCount()));
    for (size_t c = 0; c < rs.fieldCount(); ++c)
        g.column(static_cast<int>(c) + 1).heading = rs.fieldName(c);
    g.setMaxRows(static_cast<int>(rs.recordCount()));
    for (size_t r = 0; r < rs.recordCount(); ++r)
        for (size_t c = 0; c < rs.fieldCount(); ++c)
            g.setText(static_cast<int>(r) + 1, static_cast<int>(c) + 1, rs.cell(r, c).textOrEmpty());
    g.activeRow = g.maxRows() > 0 ? 1 : 0;
    g.activeCol = 1;
}

void FrmSeek::fitGrid() {
    Grid& g = grid(kGrid);
    if (g.maxCols() >= 2) {
        g.column(1).width = kGridChars * 0.33;
        g.column(2).width = kGridChars * 0.67;
    } else if (g.maxCols() == 1) {
        g.column(1).width = kGridChars;
    }
    markChanged(kGrid);
}

void FrmSeek::pick() {
    const Grid& g = grid(kGrid);
    if (g.maxRows() > 0) {
        const int row = g.activeRow >= 1 && g.activeRow <= g.maxRows() ? g.activeRow : 1;
        *seekResult = g.text(row, 1);
    }
    hide();
}

} // namespace tallimark
