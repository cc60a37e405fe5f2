#pragma once
// The trade trail: the chooser FrmTradeTracker (which kind of trades: the option series of the
// sheet's active row, the futures or the cash of the underlying) and FrmTrail, the list of those
// trades in the working ledger, where marked ones are deleted or all of them written again as
// corrected. The sheet follows each change; it still has to be saved.
#include "frame/Form.h"
#include "sheet/RiskSheet.h"

#include <string>

namespace tallimark {

class FrmTrail : public Form {
public:
    static constexpr const char* kName = "FrmTrail";
    static constexpr const char* kGrid = "va1";
    static constexpr int kDateCol = 5;
    static constexpr int kMarkCol = 7; // "1" marks a row for Delete; a click turns it over
    explicit FrmTrail(App& app);

    // Set by the opener.
    std::string Strike, CP, Symbol, InDesc, CashType;
    SheetKind Sheet = SheetKind::Stock;

    void Command1_Click(); // Delete
    void Command3_Click(); // Update

private:
    bool isOption() const { return CP != "S"; }
    // Turns the Delete mark of a row over; any other cell is left alone.
    void turnMark(int row, int col);
    std::string seriesWhere() const;
    void fill();
    void sheetFollows();
};

class FrmTradeTracker : public Form {
public:
    static constexpr const char* kName = "FrmTradeTracker";
    explicit FrmTradeTracker(App& app);

private:
    void okClick();
};

} // namespace tallimark
