#pragma once
// Create Position File: writes the ticked sheets' positions into one ".pon" file for the margin
// calculator, and keeps the writer of the calculator's static span request behind a hidden
// button.
#include "margin/MarginFileScreen.h"

namespace tallimark {

class FrmCreatePon : public MarginFileScreen {
public:
    static constexpr const char* kName = "FrmCreatePon";
    explicit FrmCreatePon(App& app);

private:
    void CmdPon_File_Click();
    void Command1_Click();
};

} // namespace tallimark
