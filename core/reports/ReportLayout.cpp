#include "reports/ReportLayout.h"

#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>

namespace tallimark {

namespace {

// Line heights in mm, sized for the painter's type: 14 pt title, 9 pt text.
double heightOf(LineStyle s) {
    switch (s) {
    case LineStyle::Title:
        return 9;
    case LineStyle::ColumnHeads:
    case LineStyle::Subtotal:
    case LineStyle::Total:
        return 6.5;
    case LineStyle::Heading:
    case LineStyle::Text:
    case LineStyle::Row:
        return 5;
    }
    return 5;
}
constexpr double kFooterSpace = 10; // the footer stands below the body
constexpr double kGap = 3;          // between statements, and under the headings

bool isNumberFormat(const std::string& f) {
    return !f.empty() && (f[0] == '#' || f[0] == '0');
}

// A figure's number when its text reads wholly as one.
bool readNumber(const std::string& text, double& out) {
    const std::string t = Trim(text);
    if (t.empty()) return false;
    char* end = nullptr;
    out = std::strtod(t.c_str(), &end);
    return end && *end == '\0';
}

ReportLine make(LineStyle style, std::vector<ReportCell> cells) {
    ReportLine line;
    line.style = style;
    line.cells = std::move(cells);
    return line;
}

class Writer {
public:
    Writer(const ReportLayout& layout, const ReportData& data) : layout_(layout), data_(data) {
        doc_.name = data.name;
        doc_.orientation = layout.orientation;
        doc_.title = fill(layout.title, 0);
        doc_.printed = data.printed;
        double total = 0;
        for (const auto& c : layout.columns)
            total += c.width;
        // Columns wider than the page are narrowed together, keeping their proportions.
        scale_ = total > doc_.pageWidth() ? doc_.pageWidth() / total : 1.0;
    }

    ReportDocument run() {
        for (size_t r = 0; r < data_.rows.size(); ++r) {
            band(r);
            if (!layout_.columns.empty()) row(r);
            statement(layout_.statement, r);
        }
        if (!data_.rows.empty()) closeBand();
        if (hasTotals() && !data_.rows.empty())
            put(totalLine(LineStyle::Total, layout_.totalCaption, grand_));
        if (data_.rows.empty()) put(make(LineStyle::Text, {{layout_.emptyText, 0, doc_.pageWidth()}}));
        tableDone_ = true; // pages of the closing statement carry no column heads
        if (!layout_.summary.empty()) y_ += kGap;
        statement(layout_.summary, 0);
        const size_t n = doc_.pages.size();
        for (size_t i = 0; i < n; ++i)
            doc_.pages[i].footer = "Page " + std::to_string(i + 1) + " of " + std::to_string(n);
        return std::move(doc_);
    }

private:
    std::string source(const std::string& src, size_t row) const {
        if (src.empty()) return {};
        if (src[0] == '@') {
            const auto it = data_.values.find(LCase(src.substr(1)));
            return it == data_.values.end() ? std::string() : it->second;
        }
        if (data_.rows.empty()) {
            for (size_t c = 0; c < data_.sheetColumns.size(); ++c)
                if (LCase(data_.sheetColumns[c]) == LCase(src)) return data_.sheetRow[c].textOrEmpty();
            return {};
        }
        if (row >= data_.rows.size()) return {};
        for (size_t c = 0; c < data_.columns.size(); ++c)
            if (LCase(data_.columns[c]) == LCase(src)) return data_.rows[row][c].textOrEmpty();
        return {};
    }
    std::string figureText(const std::string& text, const std::string& format) const {
        double v = 0;
        if (isNumberFormat(format)) return readNumber(text, v) ? groupedFigure(v, format) : text;
        return format.empty() ? text : Format(std::string_view(text), format);
    }
    // "{Source}" in a text becomes the source's text.
    std::string fill(const std::string& text, size_t row) const {
        std::string out;
        for (size_t i = 0; i < text.size(); ++i) {
            const size_t end = text[i] == '{' ? text.find('}', i) : std::string::npos;
            if (end == std::string::npos) {
                out += text[i];
                continue;
            }
            out += source(text.substr(i + 1, end - i - 1), row);
            i = end;
        }
        return out;
    }

    bool hasTotals() const {
        return std::any_of(layout_.columns.begin(), layout_.columns.end(),
                           [](const auto& c) { return c.total; });
    }
    ReportLine cellsLine(LineStyle style, const std::vector<std::string>& texts) const {
        ReportLine line = make(style, {});
        double x = 0;
        for (size_t c = 0; c < layout_.columns.size(); ++c) {
            const auto& col = layout_.columns[c];
            const double w = col.width * scale_;
            line.cells.push_back({texts[c], x, w, col.align});
            x += w;
        }
        return line;
    }
    ReportLine totalLine(LineStyle style, const std::string& caption, const std::vector<double>& sums) const {
        std::vector<std::string> texts(layout_.columns.size());
        for (size_t c = 0; c < texts.size(); ++c) {
            const auto& col = layout_.columns[c];
            if (col.total)
                texts[c] = groupedFigure(sums[c], isNumberFormat(col.format) ? col.format : figure::kMoney);
        }
        if (texts.empty() || !texts[0].empty()) return cellsLine(style, texts);
        texts[0] = caption;
        // The caption ("Total 18-11-2026") stretches over the empty cells after it, so it is not cut
        // short; the cells stay, each column keeping its place.
        ReportLine line = cellsLine(style, texts);
        auto& cells = line.cells;
        for (size_t c = 1; c < cells.size() && texts[c].empty(); ++c)
            cells[0].width += cells[c].width;
        cells[0].align = Align::Left;
        return line;
    }

    void band(size_t r) {
        if (layout_.bandBy.empty()) return;
        const std::string key = source(layout_.bandBy, r);
        if (r > 0 && key == bandKey_) return;
        if (r > 0) closeBand();
        bandKey_ = key;
        bandSums_.assign(layout_.columns.size(), 0.0);
        put(make(LineStyle::Heading, {{key, 0, doc_.pageWidth()}}));
    }
    void closeBand() {
        if (layout_.bandBy.empty() || !hasTotals()) return;
        put(totalLine(LineStyle::Subtotal, "Total " + bandKey_, bandSums_));
    }
    void row(size_t r) {
        std::vector<std::string> texts;
        grand_.resize(layout_.columns.size(), 0.0);
        bandSums_.resize(layout_.columns.size(), 0.0);
        for (size_t c = 0; c < layout_.columns.size(); ++c) {
            const auto& col = layout_.columns[c];
            const std::string raw = source(col.source, r);
            double v = 0;
            if (col.total && readNumber(raw, v)) {
                grand_[c] += v;
                bandSums_[c] += v;
            }
            texts.push_back(figureText(raw, col.format));
        }
        put(cellsLine(LineStyle::Row, texts));
    }
    void statement(const std::vector<StatementLine>& lines, size_t r) {
        if (lines.empty()) return;
        if (r > 0) y_ += kGap;
        const double labelW = doc_.pageWidth() * 0.55, valueW = doc_.pageWidth() * 0.25;
        for (const auto& s : lines) {
            if (s.source.empty()) {
                // A section's heading goes to the next page with its first line rather than alone.
                if (y_ + heightOf(LineStyle::Heading) + heightOf(LineStyle::Text) >
                    doc_.pageHeight() - kFooterSpace)
                    newPage();
                put(make(LineStyle::Heading, {{fill(s.label, r), 0, doc_.pageWidth()}}));
                continue;
            }
            const std::string figure = source(s.source, r);
            put(make(s.total ? LineStyle::Total : LineStyle::Text,
                     {{fill(s.label, r), 0, labelW},
                      {unset(s, figure) ? s.missing : figureText(figure, s.format), labelW, valueW,
                       Align::Right}}));
        }
    }

    // A figure that may be missing is missing when empty or zero: the script master keeps a limit
    // left blank as 0.
    static bool unset(const StatementLine& s, const std::string& figure) {
        double v = 0;
        return figure.empty() || (!s.missing.empty() && readNumber(figure, v) && v == 0);
    }

    // Places a line, starting a page with its headings when the line would not fit.
    void put(ReportLine line) {
        const double h = heightOf(line.style);
        if (doc_.pages.empty() || y_ + h > doc_.pageHeight() - kFooterSpace) newPage();
        line.y = y_;
        line.height = h;
        y_ += h;
        doc_.pages.back().lines.push_back(std::move(line));
    }
    void newPage() {
        doc_.pages.emplace_back();
        y_ = 0;
        auto& lines = doc_.pages.back().lines;
        auto head = [&](ReportLine l) {
            l.y = y_;
            l.height = heightOf(l.style);
            y_ += l.height;
            lines.push_back(std::move(l));
        };
        head(make(LineStyle::Title, {{doc_.title, 0, doc_.pageWidth(), Align::Center}}));
        for (const auto& h : layout_.headings)
            head(make(LineStyle::Heading, {{fill(h, 0), 0, doc_.pageWidth(), Align::Center}}));
        y_ += kGap;
        if (!layout_.columns.empty() && !tableDone_) {
            std::vector<std::string> caps;
            for (const auto& c : layout_.columns)
                caps.push_back(c.caption);
            head(cellsLine(LineStyle::ColumnHeads, caps));
        }
    }

    const ReportLayout& layout_;
    const ReportData& data_;
    ReportDocument doc_;
    double scale_ = 1;
    double y_ = 0;
    std::vector<double> grand_, bandSums_;
    std::string bandKey_;
    bool tableDone_ = false;
};

} // namespace

std::string groupedFigure(double number, const std::string& format) {
    const size_t point = format.find('.');
    const std::string plain = Format(number, point == std::string::npos ? "0" : "0" + format.substr(point));
    if (format.find(',') == std::string::npos) return plain;
    const bool negative = !plain.empty() && plain[0] == '-';
    const std::string body = negative ? plain.substr(1) : plain;
    const size_t dot = body.find('.');
    std::string whole = body.substr(0, dot), out;
    // The last three digits, then pairs: 12,34,567.
    const int n = static_cast<int>(whole.size());
    for (int i = 0; i < n; ++i) {
        const int left = n - i;
        if (i > 0 && (left == 3 || (left > 3 && (left - 3) % 2 == 0))) out += ',';
        out += whole[i];
    }
    if (dot != std::string::npos) out += body.substr(dot);
    return negative ? "-" + out : out;
}

ReportDocument layOut(const ReportLayout& layout, const ReportData& data) {
    return Writer(layout, data).run();
}

} // namespace tallimark
