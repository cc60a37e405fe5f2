#pragma once
// The closing entry: a sheet's closing rates and the day's rates in one step, the day's row of
// Closing made with the opening balance of the calendar day before, then the charges sheet.
#include "frame/Form.h"

namespace tallimark {

class FrmClosing : public Form {
public:
    static constexpr const char* kName = "FrmClosing";
    explicit FrmClosing(App& app);

    // Fills the rates from the charge master.
    void DoInit();

private:
    void Command1_Click();
};

} // namespace tallimark
