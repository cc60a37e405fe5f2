#pragma once
// Hand entry of one option trade on the active ladder row. The sheet presets the series, its
// last premium and volatility, shows the dialog modally and reads the results once it is hidden;
// the dialog only collects and checks.
#include "tracker/TradeEntryDialog.h"

namespace tallimark {

class FrmOption : public TradeEntryDialog {
public:
    static constexpr const char* kName = "FrmOption";
    static constexpr const char* kCaption = "Option.....Tallimark";
    explicit FrmOption(App& app);

    // CCur of TxtImpVolF at OK. The sheet itself records the field's text with the trade.
    double ImpVolF = 0;

private:
    void okClick();
};

} // namespace tallimark
