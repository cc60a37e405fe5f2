#pragma once
// The calculator FrmCalc: the five inputs, Calculate, and the figures as a call column and a
// put column; vega and gamma are one figure each.
#include <QWidget>

namespace tallimark {

class CalcView : public QWidget {
public:
    CalcView();
};

} // namespace tallimark
