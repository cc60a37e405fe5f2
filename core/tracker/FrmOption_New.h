#pragma once
// Stand-alone option trade entry: any series of the sheet's ladder, written straight to the
// working ledger.
#include "tracker/LedgerEntryDialog.h"

namespace tallimark {

class FrmOption_New : public LedgerEntryDialog {
public:
    static constexpr const char* kName = "FrmOption_New";
    explicit FrmOption_New(App& app);

private:
    void comingUp() override;
    std::string insertStatement() override;
};

} // namespace tallimark
