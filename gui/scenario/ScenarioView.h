#pragma once
// The views of the scenario screens (the simulation table, the graph launcher, both graphs and
// the two-contract comparison), built from the controls each model has: its fields with their
// captions, its labels, its buttons and options, its drawing surface and its lists.
#include <QWidget>

class QLayout;

namespace tallimark {

class Form;

class ScenarioView : public QWidget {
public:
    explicit ScenarioView(Form& form);

protected:
    // Lists beside one another, or one above the next beside the graph (three lists beside the
    // graph are wider than a 1920 pixel screen).
    enum class Lists { Beside, Stacked };
    // A screen whose fields read better laid out in a table of their own.
    ScenarioView(Form& form, QLayout* fields, Lists lists);
};

// The two-contract comparison: the inputs and Greeks of the first and second sheet and their
// totals in one table, as the desk reads them across.
class TwoContractView : public ScenarioView {
public:
    explicit TwoContractView(Form& form);
};

} // namespace tallimark
