#pragma once
// The position file the clearing house's margin calculator reads: the desk's futures and option
// positions of the ticked sheets, as an XML text. Its spellings and quirks are the calculator's
// contract and stay as they are.
#include "frame/VbDate.h"

#include <string>

namespace tallimark {

class App;

// The whole document for the sheets of gPonSymbols and gPonDescs; `created` is the day the
// user picked, the time and the contract month come from the clock.
std::string PositionDocument(App& app, const VbDate& created);

// One sheet's portfolio element. Its futures net is the sheet's own; its option rows are those of
// the program-wide current sheet, whichever sheet the element is for.
std::string MyStrike(App& app, const std::string& Symbol, const std::string& Descr);

} // namespace tallimark
