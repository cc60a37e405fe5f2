#include "access/Search.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbNumber.h"

#include <algorithm>

namespace tallimark {

namespace {
const char* const kGrid = "DB1";
const char* const kText = "txt_search";
constexpr int kMaxColumnChars = 40; // a long description does not push the others out of sight
constexpr int kKeyN = 78, kKeyP = 80;
} // namespace

search::search(App& app) : Form(app, kName, "Search ...Tallimark") {
    addControl(ControlKind::ComboBox, "Combo1");
    addControl(ControlKind::TextBox, kText);
    addGrid(kGrid, 0);
    addControl(ControlKind::Button, "cmd_ok", "&Ok");

    on("Form", EventType::Activate, [this](Event&) { setFocus(kText); });
    on(kText, EventType::GotFocus, [this](Event&) {
        if (!data1_ || data1_->recordCount() == 0) {
            ui().msgBox({"No records found", "No Records", MsgButtons::Ok, MsgIcon::Information});
            this->app().screens().unload(kName);
            return;
        }
        SelectAll(*this, kText);
    });
    on(kText, EventType::Change, [this](Event&) {
        if (!showingRow_) FindFirst(text(kText));
    });
    on(kText, EventType::KeyDown, [this](Event& e) { searchKey(e); });
    on("Combo1", EventType::Click, [this](Event&) {
        setText(kText, "");
        setFocus(kText);
    });
    on(kGrid, EventType::Click, [this](Event& e) {
        moveTo(e.row);
        if (currentRow() == 0) return;
        showingRow_ = true;
        setText(kText, grid(kGrid).text(currentRow(), searchColumn() + 1));
        showingRow_ = false;
    });
    on(kGrid, EventType::DblClick, [this](Event&) { cmdOk(); });
    on("cmd_ok", EventType::Click, [this](Event&) { cmdOk(); });
    for (const char* name : {"Combo1", kGrid, "cmd_ok"})
        on(name, EventType::KeyDown, [this](Event& e) {
            if (e.keyCode == keys::Escape) this->app().screens().unload(kName);
        });
}

void search::bind(const std::string& statement) {
    data1_ = app().store().query(statement);
    const Recordset& rs = *data1_;
    Grid& g = grid(kGrid);
    g.setMaxRows(0);
    g.setMaxCols(static_cast<int>(rs.fieldCount()));
    std::vector<std::string> names;
    for (size_t c = 0; c < rs.fieldCount(); ++c) {
        names.push_back(rs.fieldName(c));
        g.column(static_cast<int>(c) + 1).heading = rs.fieldName(c);
    }
    g.setMaxRows(static_cast<int>(rs.recordCount()));
    for (size_t r = 0; r < rs.recordCount(); ++r)
        for (size_t c = 0; c < rs.fieldCount(); ++c)
            g.setText(static_cast<int>(r) + 1, static_cast<int>(c) + 1, rs.cell(r, c).textOrEmpty());
    sizeColumns();
    g.activeRow = rs.recordCount() > 0 ? 1 : 0;
    g.activeCol = 1;

    setItems("Combo1", names);
    setText("Combo1", names.empty() ? std::string() : names.front());
    showingRow_ = true;
    setText(kText, "");
    showingRow_ = false;
}

void search::sizeColumns() {
    // The store keeps no declared sizes: the widest text of a column stands for its size, so
    // that wider fields get wider columns.
    Grid& g = grid(kGrid);
    if (g.maxRows() == 0) return;
    for (int c = 1; c <= g.maxCols(); ++c) {
        size_t widest = g.column(c).heading.size();
        for (int r = 1; r <= g.maxRows(); ++r)
            widest = std::max(widest, g.text(r, c).size());
        g.column(c).width = std::min<double>(static_cast<double>(widest) + 2, kMaxColumnChars);
    }
    markChanged(kGrid);
}

int search::currentRow() {
    const Grid& g = grid(kGrid);
    return g.activeRow >= 1 && g.activeRow <= g.maxRows() ? g.activeRow : 0;
}

void search::moveTo(int row) {
    Grid& g = grid(kGrid);
    if (g.maxRows() == 0) return;
    g.activeRow = std::clamp(row, 1, g.maxRows());
    markChanged(kGrid);
}

int search::searchColumn() const {
    const std::string wanted = UCase(text("Combo1"));
    if (data1_)
        for (size_t c = 0; c < data1_->fieldCount(); ++c)
            if (UCase(data1_->fieldName(c)) == wanted) return static_cast<int>(c);
    throw StoreError(3070, "The search column '" + text("Combo1") + "' is not a field of the rows.");
}

bool search::matches(int row, int column, const std::string& prefix) const {
    const Value& v = data1_->cell(static_cast<size_t>(row - 1), static_cast<size_t>(column));
    return !v.isNull() && UCase(v.text().substr(0, prefix.size())) == UCase(prefix);
}

void search::find(const std::string& text, int from, int step) {
    (void)q(text); // a quote breaks the criteria as it breaks any statement
    if (!data1_) return;
    const int column = searchColumn();
    const int rows = static_cast<int>(data1_->recordCount());
    for (int r = from; r >= 1 && r <= rows; r += step)
        if (matches(r, column, text)) {
            moveTo(r);
            return;
        }
}

void search::FindFirst(const std::string& text) {
    find(text, 1, 1);
}

void search::FindNext(const std::string& text) {
    find(text, currentRow() + 1, 1);
}

void search::FindPrevious(const std::string& text) {
    find(text, currentRow() - 1, -1);
}

void search::searchKey(Event& e) {
    const int row = currentRow();
    const bool plain = e.shift == 0;
    switch (e.keyCode) {
    case keys::Enter:
        cmdOk();
        break;
    case keys::Down:
        moveTo(row + 1);
        break;
    case keys::Up:
        moveTo(row - 1);
        break;
    case keys::PageUp:
        moveTo(row - visibleRows);
        break;
    case keys::PageDown:
        moveTo(row + visibleRows);
        break;
    case keys::Escape:
        app().screens().unload(kName);
        break;
    case kKeyN:
    case kKeyP:
        if (!plain) return; // a capital is typed into the search text
        if (e.keyCode == kKeyN)
            FindNext(text(kText));
        else
            FindPrevious(text(kText));
        break;
    default:
        return;
    }
    e.keyCode = 0; // the key was a command, not typing
}

void search::cmdOk() {
    if (currentRow() > 0) {
        const Grid& g = grid(kGrid);
        for (int c = 1; c <= g.maxCols(); ++c)
            resultList->push_back(g.text(currentRow(), c));
    }
    app().screens().unload(kName);
}

} // namespace tallimark
