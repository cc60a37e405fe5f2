#pragma once
// How the scenario graphs plot a list: the range of the net balance (or of a Greek), the frame,
// the zero line, a ten-step grid with its labels, the list's first column along the bottom, the
// market marker and the lines, on a scale of x from -5 to GraphCount + 1 and y from 110 at the
// top to -10 at the bottom. A value V stands at height (V - GraphMin) * 10 / Step, Step being a
// tenth of the range rounded: a range below 5 rounds Step to 0 and the plot stops on a division
// by zero, which no procedure here traps.
#include "frame/Grid.h"

#include <optional>
#include <string>
#include <vector>

namespace tallimark {

class Canvas;

struct GraphRange {
    double GraphMin = 0;
    double GraphMax = 0;
};

// The net balance graph's range over the Intrinsic and Simulation columns (2 and 3): one beyond
// the extremes, rounded, then made symmetric about zero.
GraphRange CalcGraphRange(const Grid& list, int GraphCount);
// The Greek graph's range over one column: one beyond the extremes, unrounded, made symmetric.
GraphRange CalcGreekRange(const Grid& list, int col, int GraphCount);

struct PlotLine {
    int col;   // the list column whose values the line joins
    Rgb color; // one of the colour table's
};

struct GraphPlot {
    const Grid& list;
    int GraphCount;
    GraphRange range;
    std::vector<PlotLine> lines;
    // The market price the green marker stands for; none on the Greek graph.
    std::optional<double> market;

    // DrawGraph: draws over what the surface holds, clearing nothing.
    void draw(Canvas& canvas) const;
    // The list value and the column-1 figure under a point of the surface, as the pointer's
    // read-out gives them: XVal along the first column's run, YVal on the range.
    double XVal(double x) const;
    double YVal(double y) const;

private:
    double First() const;
    double Last() const;
};

// The colours of the lines and the marker.
Rgb kTimeLeftLine();
Rgb kExpiryLine();

} // namespace tallimark
