#pragma once
// The printing screen FrmPrintOption: the report's kind and depth, "As On Date", the date range,
// and the print and cancel buttons.
#include <QWidget>

namespace tallimark {

class PrintOptionView : public QWidget {
public:
    PrintOptionView();
};

} // namespace tallimark
