#pragma once
// The dates a dealer types into a date field: day first, as "23-11-2026", "23/11/2026" or
// "23-Nov-26" ("23-Nov-2026" too, the form the screens write themselves). Anything else, a date
// that does not exist included, is refused before any screen acts on it.
#include "frame/VbDate.h"

#include <optional>
#include <string_view>

namespace tallimark {

std::optional<VbDate> deskDate(std::string_view text);

// What a refused date field tells the dealer.
inline constexpr const char* kDeskDateForms = "Enter the date as 23-11-2026, 23-Nov-26 or 23/11/2026";

} // namespace tallimark
