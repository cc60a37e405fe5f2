#pragma once
// The views of the scenario screens (the simulation table, the graph launcher, both graphs and
// the two-contract comparison), built from the controls each model has: its fields with their
// captions, its labels, its buttons and options, its drawing surface and its lists.
#include <QWidget>

namespace tallimark {

class Form;

class ScenarioView : public QWidget {
public:
    explicit ScenarioView(Form& form);
};

} // namespace tallimark
