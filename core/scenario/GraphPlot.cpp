#include "scenario/GraphPlot.h"

#include "frame/Canvas.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"

#include <algorithm>
#include <cmath>

namespace tallimark {

namespace {

constexpr double kTickFrom = 0.8; // the short tick left of the axis runs from here to x = 1

// The list's rows 1 to GraphCount of a column, read with Val. An empty list has no first row.
std::vector<double> columnValues(const Grid& list, int col, int GraphCount) {
    if (GraphCount < 1 || GraphCount > list.maxRows()) vberr::raise(vberr::SubscriptOutOfRange);
    std::vector<double> v;
    v.reserve(static_cast<size_t>(GraphCount));
    for (int i = 1; i <= GraphCount; ++i)
        v.push_back(Val(list.text(i, col)));
    return v;
}

GraphRange symmetric(GraphRange r) {
    if (-r.GraphMax >= r.GraphMin)
        r.GraphMax = -r.GraphMin;
    else
        r.GraphMin = -r.GraphMax;
    return r;
}

} // namespace

Rgb kTimeLeftLine() {
    return QBColor(12);
}

Rgb kExpiryLine() {
    return QBColor(1);
}

GraphRange CalcGraphRange(const Grid& list, int GraphCount) {
    const auto [minI, maxI] = std::ranges::minmax(columnValues(list, 2, GraphCount));
    const auto [minS, maxS] = std::ranges::minmax(columnValues(list, 3, GraphCount));
    return symmetric({Round(std::min(minI, minS) - 1, 0), Round(std::max(maxI, maxS) + 1, 0)});
}

GraphRange CalcGreekRange(const Grid& list, int col, int GraphCount) {
    const auto [low, high] = std::ranges::minmax(columnValues(list, col, GraphCount));
    return symmetric({low - 1, high + 1});
}

double GraphPlot::First() const {
    return Val(list.text(1, 1));
}

double GraphPlot::Last() const {
    return Val(list.text(GraphCount, 1));
}

void GraphPlot::draw(Canvas& c) const {
    const double GraphMin = range.GraphMin, GraphMax = range.GraphMax;
    // Each drawing starts with a fresh pen: the wide one of the last drawing's lines would turn
    // the next frame and grid thick and solid.
    c.drawWidth = 1;
    c.drawStyle = DrawStyle::Solid;
    c.Scale(-5, 110, GraphCount + 1, -10);
    double H = c.TextHeight("X");
    const Rgb black = QBColor(0), grey = QBColor(8);

    c.Line(1, 100, 1, 0);
    c.Line(1, 0, GraphCount, 0);

    const double Step = Round((GraphMax - GraphMin) / 10, 0);
    auto Y = [&](double V) { return vb::div((V - GraphMin) * 10, Step); };
    auto label = [&](double x, double y, const std::string& text) {
        c.Print(x - c.TextWidth(text), y, text);
    };
    auto gridLine = [&](double V) {
        c.drawStyle = DrawStyle::Dot;
        c.Line(1, Y(V), GraphCount, Y(V), grey);
        c.drawStyle = DrawStyle::Solid;
        c.Line(kTickFrom, Y(V), 1, Y(V), black);
    };

    const double zero = Y(0);
    c.Line(1, 100, 1, zero);
    c.Line(1, zero, GraphCount, zero);
    label(-1.0 / 4 + 1, zero - H / 2, "0");
    label(-6.0 / 4 + 1, -H / 2, NumText(Round(GraphMin, 0)));

    int16_t LabelY = 10;
    for (double V = Round(GraphMin + Step, 0); V <= GraphMax; V += Step) {
        gridLine(V);
        label(-6.0 / 4 + 1, LabelY - H / 2, NumText(V));
        LabelY = static_cast<int16_t>(LabelY + 10);
    }
    if (std::fmod(std::floor(GraphMax - GraphMin), 10) != 0) {
        gridLine(GraphMax);
        label(-6.0 / 4 + 1, Y(GraphMax) - H / 2, NumText(Round(GraphMax, 0)));
    }

    // The first column along the bottom; odd rows a third of a line lower, so that neighbours
    // do not run into each other.
    H = H * 1.2;
    c.drawStyle = DrawStyle::Dot;
    for (int i = 1; i <= GraphCount; ++i) {
        c.Line(i, 0, i, 100, grey);
        const std::string& text = list.text(i, 1);
        c.Print(i - c.TextWidth(text) / 2, i % 2 ? H / 3 : 0, text);
    }
    c.drawStyle = DrawStyle::Solid;

    if (market) {
        // The fraction is not multiplied by the count of intervals: the marker stays between
        // the first two rows, as the desk has always seen it.
        const double X = vb::div(*market - First(), Last() - First()) + 1;
        c.Line(X, 0, X, 100, QBColor(2));
    }

    c.drawWidth = 2;
    for (const PlotLine& line : lines) {
        const std::vector<double> v = columnValues(list, line.col, GraphCount);
        for (int i = 2; i <= GraphCount; ++i)
            c.Line(i - 1, Y(v[i - 2]), i, Y(v[i - 1]), line.color);
    }
}

double GraphPlot::XVal(double x) const {
    return vb::div((x - 1) * (Last() - First()), GraphCount - 1) + First();
}

double GraphPlot::YVal(double y) const {
    return y * (range.GraphMax - range.GraphMin) / 100 + range.GraphMin;
}

} // namespace tallimark
