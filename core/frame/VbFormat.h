#pragma once
// Format with the patterns the screens use: dates ("DD-MMM-YYYY", "yyyymmdd", "hh:mm",
// "yyyy,mm,dd", ...), numbers ("0.00") and right-aligned text ("@@@@@@@@@@@").
#include "frame/VbDate.h"

#include <string>
#include <string_view>

namespace tallimark {

std::string Format(const VbDate& date, std::string_view pattern);
std::string Format(double number, std::string_view pattern);
// A field's text: a date pattern formats a text that reads as a date, a number pattern one that
// reads as a number, "@" pads; any other text comes back as it stands.
std::string Format(std::string_view text, std::string_view pattern);

} // namespace tallimark
