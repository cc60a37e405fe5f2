#pragma once
// The two look-up dialogs as their callers use them. Both run modally and read the store.
#include <string>
#include <vector>

namespace tallimark {

class App;

// FrmSeek: shows the rows of the statement under the caption and gives back the first column of
// the row picked, or "" when none was.
std::string SeekValue(App& app, const std::string& caption, const std::string& statement);

// search_call: shows the rows of the statement with incremental search and gives back every
// column of the row picked, in column order; empty when none was.
std::vector<std::string> search_call(App& app, const std::string& statement);

} // namespace tallimark
