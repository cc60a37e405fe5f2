#pragma once
// A screen that a command of the risk sheet's toolbar opens on the sheet in hand ("Simulate",
// "Graph"): it reads the open sheet, so the sheet hands itself over rather than the screen
// finding it.
namespace tallimark {

class RiskSheet;

class SheetCommandScreen {
public:
    virtual ~SheetCommandScreen() = default;
    virtual void openFrom(RiskSheet& sheet) = 0;
};

} // namespace tallimark
