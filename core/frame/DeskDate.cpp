#include "frame/DeskDate.h"

#include <regex>
#include <string>

namespace tallimark {

std::optional<VbDate> deskDate(std::string_view text) {
    static const std::regex numeric(R"((\d{1,2})([-/])(\d{1,2})\2(\d{4}))");
    static const std::regex named(R"((\d{1,2})-([A-Za-z]{3})-(\d{2}|\d{4}))");
    const std::string t(text);
    std::smatch m;
    const bool byNumber = std::regex_match(t, m, numeric);
    if (!byNumber && !std::regex_match(t, m, named)) return std::nullopt;
    const std::optional<VbDate> date = parseDate(t);
    if (!date || date->day() != std::stoi(m[1].str())) return std::nullopt;
    // The store's reading rolls 31-11 over into December; a dealer meant no such day.
    if (byNumber && date->month() != std::stoi(m[3].str())) return std::nullopt;
    return date;
}

} // namespace tallimark
