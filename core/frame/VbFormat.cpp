#include "frame/VbFormat.h"

#include "frame/VbNumber.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tallimark {

namespace {

const char* const kShortMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
const char* const kLongMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};

char lower(char c) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

size_t runLength(std::string_view p, size_t i) {
    size_t n = 1;
    while (i + n < p.size() && lower(p[i + n]) == lower(p[i]))
        ++n;
    return n;
}

std::string twoDigits(int v) {
    char buf[8];
    std::snprintf(buf, sizeof buf, "%02d", v);
    return buf;
}

bool isDatePattern(std::string_view p) {
    for (char c : p) {
        const char l = lower(c);
        if (l == 'd' || l == 'm' || l == 'y' || l == 'h' || l == 'n' || l == 's') return true;
    }
    return false;
}

bool isNumberPattern(std::string_view p) {
    return !p.empty() && (p[0] == '0' || p[0] == '#');
}

} // namespace

std::string Format(const VbDate& date, std::string_view p) {
    std::string out;
    bool afterHour = false; // "m" right after an hour reads as minutes, as in "hh:mm"
    for (size_t i = 0; i < p.size();) {
        const char c = lower(p[i]);
        const size_t n = runLength(p, i);
        if (c == 'd') {
            out += n == 1 ? std::to_string(date.day()) : twoDigits(date.day());
            afterHour = false;
        } else if (c == 'y') {
            out += n >= 3 ? std::to_string(date.year()) : twoDigits(date.year() % 100);
            afterHour = false;
        } else if (c == 'h') {
            out += n == 1 ? std::to_string(date.hour()) : twoDigits(date.hour());
            afterHour = true;
        } else if (c == 'n' || (c == 'm' && afterHour && n <= 2)) {
            out += n == 1 ? std::to_string(date.minute()) : twoDigits(date.minute());
            afterHour = false;
        } else if (c == 's') {
            out += n == 1 ? std::to_string(date.second()) : twoDigits(date.second());
        } else if (c == 'm') {
            const int m = date.month();
            out += n == 1   ? std::to_string(m)
                   : n == 2 ? twoDigits(m)
                   : n == 3 ? kShortMonths[m - 1]
                            : kLongMonths[m - 1];
        } else {
            out.append(n, p[i]);
        }
        i += n;
    }
    return out;
}

std::string Format(double number, std::string_view pattern) {
    // "0", "0.00", "0.0000": fixed decimals, rounded half away from zero on the number's
    // 15-digit decimal form, as the desk's run-time formats (2.675 gives "2.68").
    const size_t point = pattern.find('.');
    const int decimals = point == std::string_view::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
    char sci[64];
    std::snprintf(sci, sizeof sci, "%.14e", std::abs(number));
    std::string mant;
    for (const char* c = sci; *c && *c != 'e'; ++c)
        if (std::isdigit(static_cast<unsigned char>(*c))) mant.push_back(*c);
    const int exp10 = std::atoi(std::strchr(sci, 'e') + 1);
    // Lay the digits out as integer part and decimals, with zeros where the form has none.
    std::string intPart, frac;
    for (int pos = std::max(exp10, 0); pos >= 0; --pos) {
        const int idx = exp10 - pos;
        intPart.push_back(idx >= 0 && idx < static_cast<int>(mant.size()) ? mant[idx] : '0');
    }
    for (int k = 1; k <= decimals + 1; ++k) {
        const int idx = exp10 + k;
        frac.push_back(idx >= 0 && idx < static_cast<int>(mant.size()) ? mant[idx] : '0');
    }
    const bool roundUp = frac.back() >= '5';
    frac.pop_back();
    std::string all = intPart + frac;
    if (roundUp) {
        int i = static_cast<int>(all.size()) - 1;
        while (i >= 0 && all[i] == '9')
            all[i--] = '0';
        if (i >= 0)
            ++all[i];
        else
            all.insert(all.begin(), '1');
    }
    std::string whole = all.substr(0, all.size() - decimals);
    const size_t nz = whole.find_first_not_of('0');
    whole = nz == std::string::npos ? "0" : whole.substr(nz);
    std::string s = whole;
    if (decimals > 0) s += "." + all.substr(all.size() - decimals);
    if (number < 0 && s.find_first_not_of("0.") != std::string::npos) s.insert(s.begin(), '-');
    return s;
}

std::string Format(std::string_view text, std::string_view pattern) {
    if (!pattern.empty() && pattern.find_first_not_of('@') == std::string_view::npos) {
        std::string s(text);
        return s.size() >= pattern.size() ? s : std::string(pattern.size() - s.size(), ' ') + s;
    }
    if (isNumberPattern(pattern)) {
        const std::string t = Trim(text);
        try {
            return Format(CDbl(t), pattern);
        } catch (const std::exception&) {
            return std::string(text);
        }
    }
    if (isDatePattern(pattern)) {
        if (auto d = parseDate(text)) return Format(*d, pattern);
    }
    return std::string(text);
}

} // namespace tallimark
