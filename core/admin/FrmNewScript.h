#pragma once
// The new-sheet screen: builds the instrument symbol from script, month and year, works out
// the expiry (the last Thursday of the month), stores the sheet's row in Trans and opens the
// sheet on its risk screen.
#include "frame/Form.h"

#include <string>

namespace tallimark {

class FrmNewScript : public Form {
public:
    static constexpr const char* kName = "FrmNewScript";
    explicit FrmNewScript(App& app);

    // Code of the chosen script and the month letter of the chosen month, by sheet type.
    std::string ScrCode;
    std::string MonthCode;

    // The expiry of the symbol's month into g_ExpiryDate and DTPicker1.
    void ExpiryDate();
    // Whether the sheet's key (symbol, description) is taken; a taken description is cleared.
    bool CheckUniqueScript();
    // Whether the symbol's month letter is unknown for the sheet type.
    bool MonthCheck();
    // The script from the search dialog.
    void cmdScript_Click();
    // The month's letter, then the symbol and the start of the description.
    void cmdMth_Click();

private:
    // The first step of a save: 1 when the symbol is refused.
    int SymbolCheck();
    void CmdOk_Click();
    void scriptChosen();
    void monthLeft();
    void rateLeft();
    void midStrikeLeft();
    void keyDown(const std::string& control, Event& e);
    // The caption of the chosen sheet type: "Futures" or "Stock".
    std::string typeWord();
    void fillScripts();
};

} // namespace tallimark
