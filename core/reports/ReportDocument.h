#pragma once
// A report laid out and cut into pages, ready to draw: every line knows its place on the page in
// millimetres and every cell its text and alignment, so the painter only paints and the tests
// read the figures as the desk will see them.
#include <string>
#include <vector>

namespace tallimark {

enum class Orientation { Portrait, Landscape };
enum class Align { Left, Right, Center };

// How a line is drawn: a title in large type, headings and totals in bold, column heads with a
// rule beneath, totals with a rule above.
enum class LineStyle { Title, Heading, Text, ColumnHeads, Row, Subtotal, Total };

struct ReportCell {
    std::string text;
    double x = 0;     // left edge, mm from the left margin
    double width = 0; // mm
    Align align = Align::Left;
};

struct ReportLine {
    LineStyle style = LineStyle::Row;
    double y = 0;      // top, mm from the top margin
    double height = 5; // mm
    std::vector<ReportCell> cells;
};

struct ReportPage {
    std::vector<ReportLine> lines;
    std::string footer; // "Page 2 of 3" and the like
};

struct ReportDocument {
    std::string name;    // the report run's name, "Expenses"
    std::string title;   // the window's and the PDF's title
    std::string printed; // the day of printing, shown beside the page number
    Orientation orientation = Orientation::Portrait;
    std::vector<ReportPage> pages;

    // The printable area of an A4 page in this orientation, inside margins of 15 mm.
    static constexpr double kMargin = 15;
    double pageWidth() const { return orientation == Orientation::Portrait ? 180 : 267; }
    double pageHeight() const { return orientation == Orientation::Portrait ? 267 : 180; }
};

} // namespace tallimark
