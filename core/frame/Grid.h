#pragma once
// A grid of cells as the screens use it: 1-based rows and columns, text with fore and back
// colours, optional check boxes, column headings, widths and hidden columns.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tallimark {

// Colours as the screens write them: RGB(r, g, b) packed red-first as the desk's run-time does.
using Rgb = uint32_t;
constexpr Rgb RGB(int r, int g, int b) {
    return static_cast<Rgb>(r) | (static_cast<Rgb>(g) << 8) | (static_cast<Rgb>(b) << 16);
}
std::string colorText(Rgb c); // "#RRGGBB"

struct Cell {
    std::string text;
    std::optional<Rgb> fore;
    std::optional<Rgb> back;
    bool checked = false;
};

struct GridColumn {
    std::string heading;
    double width = 8;
    bool hidden = false;
    bool editable = false;
    int maxLength = 0;
    // The cells hold "1" or "0" and the window shows them as tick boxes; turning one over is a
    // click on the cell, for the screen to answer.
    bool tickMark = false;
};

class Grid {
public:
    Grid(std::string name, int cols, std::function<void()> changed);

    const std::string& name() const { return name_; }
    int maxRows() const { return static_cast<int>(rows_.size()); }
    int maxCols() const { return static_cast<int>(columns_.size()); }
    // Raising the row count keeps the cells; lowering it drops the rows past it.
    void setMaxRows(int rows);
    void setMaxCols(int cols);
    GridColumn& column(int col);
    const GridColumn& column(int col) const;

    const Cell& cell(int row, int col) const;
    const std::string& text(int row, int col) const { return cell(row, col).text; }
    void setText(int row, int col, std::string text);
    void setFore(int row, int col, Rgb color);
    void setBack(int row, int col, Rgb color);
    void setChecked(int row, bool checked);
    bool checked(int row) const;
    // Block clear: every cell's text emptied, colours kept.
    void clearText();
    // Count of rows up to the last one holding any text.
    int dataRowCount() const;

    bool checkBoxes = false; // a list with a check box in front of each row
    bool visible = true;
    int activeRow = 0;
    int activeCol = 0;
    std::optional<Rgb> backColor; // ground of the whole grid

private:
    Cell& at(int row, int col);
    std::string name_;
    std::vector<GridColumn> columns_;
    std::vector<std::vector<Cell>> rows_;
    std::function<void()> changed_;
};

} // namespace tallimark
