#pragma once
// The stand-alone trade entry dialogs: the series is chosen on the dialog itself and the trade is
// written to the sheet's working ledger (DummyTracker) by the dialog, leaving the rest of the row
// (type, market price, volatility, sensitivities) empty.
//
// An opener sets Symbol and Descr (or leaves both blank for the current sheet), shows the dialog
// modally and, when OK is true, finds the trade in DummyTracker and its figures on the object.
#include "tracker/TradeEntryDialog.h"

#include <utility>
#include <vector>

namespace tallimark {

class LedgerEntryDialog : public TradeEntryDialog {
public:
    std::string Symbol;
    std::string Descr;

protected:
    struct Wording {
        const char* numericTitle;  // of "Only numeric values are accepted."
        const char* doneText;      // after the insert
        const char* insertFailure; // the trap's box; nullptr: no trap, the run-time error box
    };

    // combos: the choices that must hold a value, in the order they are checked.
    LedgerEntryDialog(App& app, const char* name, const char* caption, std::vector<std::string> combos,
                      Wording wording);

    // Adds the two figures, the time and the buttons after the screen's own choices.
    void addFiguresAndButtons();
    // The sheet the trade goes to: the opener's, or the current one when it gave none.
    std::pair<std::string, std::string> sheet();
    // The day of the trade as the statements write it.
    std::string today();

    virtual void comingUp() = 0;
    virtual std::string insertStatement() = 0;
    // The figures kept on the object once the row is written.
    virtual void keepResults();

private:
    MsgBox numericRefusal() const;
    bool allChecked();
    void okClick();

    const std::vector<std::string> combos_;
    const Wording wording_;
};

} // namespace tallimark
