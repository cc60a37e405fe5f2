#include "frame/Grid.h"

#include "frame/VbError.h"

#include <cstdio>

namespace tallimark {

std::string colorText(Rgb c) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "#%02X%02X%02X", c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
    return buf;
}

Grid::Grid(std::string name, int cols, std::function<void()> changed)
    : name_(std::move(name)), columns_(static_cast<size_t>(cols)), changed_(std::move(changed)) {}

void Grid::setMaxRows(int rows) {
    rows_.resize(static_cast<size_t>(rows < 0 ? 0 : rows), std::vector<Cell>(columns_.size()));
    changed_();
}

void Grid::setMaxCols(int cols) {
    columns_.resize(static_cast<size_t>(cols));
    for (auto& r : rows_)
        r.resize(columns_.size());
    changed_();
}

GridColumn& Grid::column(int col) {
    if (col < 1 || col > maxCols()) vberr::raise(vberr::InvalidCall);
    return columns_[static_cast<size_t>(col - 1)];
}

const GridColumn& Grid::column(int col) const {
    return const_cast<Grid*>(this)->column(col);
}

Cell& Grid::at(int row, int col) {
    if (row < 1 || row > maxRows() || col < 1 || col > maxCols()) vberr::raise(vberr::InvalidCall);
    return rows_[static_cast<size_t>(row - 1)][static_cast<size_t>(col - 1)];
}

const Cell& Grid::cell(int row, int col) const {
    return const_cast<Grid*>(this)->at(row, col);
}

void Grid::setText(int row, int col, std::string text) {
    at(row, col).text = std::move(text);
    changed_();
}

void Grid::setFore(int row, int col, Rgb color) {
    at(row, col).fore = color;
    changed_();
}

void Grid::setBack(int row, int col, Rgb color) {
    at(row, col).back = color;
    changed_();
}

void Grid::setChecked(int row, bool checked) {
    at(row, 1).checked = checked;
    changed_();
}

bool Grid::checked(int row) const {
    return cell(row, 1).checked;
}

void Grid::clearText() {
    for (auto& r : rows_)
        for (auto& c : r)
            c.text.clear();
    changed_();
}

int Grid::dataRowCount() const {
    for (int r = maxRows(); r >= 1; --r)
        for (const Cell& c : rows_[static_cast<size_t>(r - 1)])
            if (!c.text.empty()) return r;
    return 0;
}

} // namespace tallimark
