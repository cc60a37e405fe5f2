#pragma once
// What the screens that open a risk sheet need of it: FrmPort5 (stock and futures) and
// FrmPortfolioIndex (index) both load the sheet named by g_strSymbol and g_strDesc.
#include "frame/Form.h"

namespace tallimark {

class SheetScreen : public Form {
public:
    using Form::Form;
    // Clears the screen and loads the current sheet from the store.
    virtual void DoInit() = 0;
};

} // namespace tallimark
