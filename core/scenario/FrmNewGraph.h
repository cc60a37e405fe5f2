#pragma once
// The net balance graph: the simulation's two columns as two lines against the market price, red
// with the days that remain and blue at expiry, over the list they come from. Days, volatilities
// and market price can be changed on the screen and the lines follow.
#include "scenario/GraphScreen.h"

namespace tallimark {

class FrmNewGraph : public GraphScreen {
public:
    static constexpr const char* kName = "FrmNewGraph";
    explicit FrmNewGraph(App& app);

    // The entry for GraphType (DoInit on a stock sheet, DoInit1 on an index sheet): the list
    // cleared and filled as the simulation fills its own, then the range and the drawing.
    void entry() override;

protected:
    void marketMoved() override;
    std::string readOut(Rgb color, double x, double y) override;

private:
    void rangeAndDraw();
};

} // namespace tallimark
