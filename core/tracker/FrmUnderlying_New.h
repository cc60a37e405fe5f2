#pragma once
// Stand-alone underlying trade entry: futures or equity cash, written straight to the working
// ledger.
#include "tracker/LedgerEntryDialog.h"

namespace tallimark {

class FrmUnderlying_New : public LedgerEntryDialog {
public:
    static constexpr const char* kName = "FrmUnderlying_New";
    explicit FrmUnderlying_New(App& app);

    // "F" futures, "Q" equity cash.
    std::string CashType;

private:
    void comingUp() override;
    std::string insertStatement() override;
    void keepResults() override;

    std::string cashType_; // of the trade being written
};

} // namespace tallimark
