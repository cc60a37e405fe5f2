#pragma once
// The views of the day's closing: the charges sheet (both editions), the closing entry and the
// cash flow. Each lays out the model's fields by name; the figures are all the model's.
#include <QWidget>

namespace tallimark {

class Form;

class ChargesSheetView : public QWidget {
public:
    explicit ChargesSheetView(Form& form);
};

class ClosingView : public QWidget {
public:
    explicit ClosingView(Form& form);
};

class CashFlowView : public QWidget {
public:
    explicit CashFlowView(Form& form);
};

} // namespace tallimark
