#pragma once
// What the two graphs opened from the launcher share: the market fields copied from the sheet
// and the last values accepted in them, the events that recompute when one of them changes, the
// drawing surface PicScore with the pointer's read-out as its tool tip, and Esc to unload.
#include "frame/Canvas.h"
#include "frame/Form.h"
#include "scenario/GraphPlot.h"
#include "scenario/SimulationFill.h"

#include <memory>
#include <optional>
#include <string>

namespace tallimark {

class RiskSheet;

class GraphScreen : public Form, public PictureScreen {
public:
    static constexpr const char* kPicture = "PicScore";
    static constexpr const char* kList = "ListView1";
    static constexpr int kPictureWidth = 760, kPictureHeight = 420;

    // "Stk" or "Index": the sheet screen the graph reads.
    std::string GraphType;
    double LastDays = 0, LastVolC = 0, LastVolP = 0, LastMkt = 0;

    // The launcher's run: the sheet's market fields copied, the Last values taken, the entry
    // run; the caller shows the screen.
    void launch(RiskSheet& sheet, const std::string& graphType);
    // Fills the list and draws, for GraphType.
    virtual void entry() = 0;

    Canvas& picture() override { return *canvas_; }

protected:
    GraphScreen(App& app, const char* name, const char* caption);
    // The open sheet of GraphType.
    RiskSheet& sourceSheet();
    // The market fields as the fill reads them in place of the sheet's.
    MarketTexts market() const;
    // A new market price: the range and the drawing again, the figures as they were.
    virtual void marketMoved() = 0;
    // The tool tip for the pointer at a user point over a pixel of that colour; empty off the
    // lines.
    virtual std::string readOut(Rgb color, double x, double y) = 0;
    // Enter in a market field runs its leave action, Esc anywhere unloads the screen: wired once
    // every control is there.
    void wireKeys();
    double firstListValue();
    // The list row count, the range and the drawing kept for the read-out.
    void plot(GraphPlot p);
    std::optional<GraphPlot> plot_;
    int GraphCount = 0;

private:
    void leave(const std::string& field);
    std::unique_ptr<Canvas> canvas_;
};

} // namespace tallimark
