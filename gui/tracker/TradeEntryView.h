#pragma once
// The trade entry dialogs FrmOption, FrmUnderlying, FrmOption_New and FrmUnderlying_New: each
// caption label beside its field, the option buttons of one choice on one line, the time, and
// OK and Cancel underneath. Laid out from the model's own controls; the keys are the model's.
#include <QWidget>

namespace tallimark {

class Form;

class TradeEntryView : public QWidget {
public:
    explicit TradeEntryView(Form& form);
};

} // namespace tallimark
