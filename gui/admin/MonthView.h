#pragma once
// The month master's view: the grid of month codes and nothing else.
#include <QWidget>

namespace tallimark {

class MonthView : public QWidget {
public:
    MonthView();
};

} // namespace tallimark
