#pragma once
// Hand entry of one trade in the underlying: futures or equity cash. The sheet presets the
// price, shows the dialog modally and reads the results once it is hidden.
#include "tracker/TradeEntryDialog.h"

namespace tallimark {

class FrmUnderlying : public TradeEntryDialog {
public:
    static constexpr const char* kName = "FrmUnderlying";
    static constexpr const char* kCaption = "Stock Trade";
    explicit FrmUnderlying(App& app);

    // "F" futures, "Q" equity cash.
    std::string CashType;

private:
    void okClick();
};

} // namespace tallimark
