#pragma once
// The main screen: the list of every sheet in the store, from which a sheet is opened, deleted
// or ticked for the position file and the two-contract comparison. The row clicked here becomes
// the program's current sheet.
#include "frame/Form.h"

#include <string>

namespace tallimark {

class FrmNewMainScreen : public Form {
public:
    static constexpr const char* kName = "FrmNewMainScreen";
    explicit FrmNewMainScreen(App& app);

    // Redraws the list from Trans; the new-sheet screen and a dropped new sheet call it.
    void PopulateLView();

private:
    // The list's columns are found by their heading, so their order is free.
    int column(const std::string& heading);
    std::string item(int row, const std::string& heading);
    void itemClick(int row);
    void openSheet();
    void deleteSheet();
    void removeItem(int row);
    void positionFile();
    void twoContract();
    void quit();
};

} // namespace tallimark
