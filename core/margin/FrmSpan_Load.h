#pragma once
// Load Span File: reads the margin calculator's answer to a position file and stores each
// sheet's margin in field2 of its PortfolioMast row.
#include "margin/MarginFileScreen.h"

namespace tallimark {

class FrmSpan_Load : public MarginFileScreen {
public:
    static constexpr const char* kName = "FrmSpan_Load";
    explicit FrmSpan_Load(App& app);

private:
    void CmdSpn_File_Click();
    void LoadAnswer();
};

} // namespace tallimark
