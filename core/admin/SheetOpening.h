#pragma once
// Opening a sheet on its risk screen, shared by the list of sheets and the new-sheet screen.
#include <optional>
#include <string>

namespace tallimark {

class App;

// The sheet's type as Trans holds it, or nothing when the store has no such sheet.
std::optional<std::string> SheetType(App& app, const std::string& symbol, const std::string& desc);

// Loads the current sheet (g_strSymbol, g_strDesc) on the screen its type calls for and shows
// it: "S" is a stock or futures sheet on FrmPort5, any other type an index sheet on
// FrmPortfolioIndex. A screen that cannot take a sheet is named in a box instead.
void OpenSheetScreen(App& app, const std::string& inType);

} // namespace tallimark
