#include "frame/VbDate.h"

#include "frame/VbError.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <vector>

namespace tallimark {

namespace {

// Days from 1-Jan-1970 of a proleptic Gregorian date (H. Hinnant's algorithm).
long daysFromCivil(long y, unsigned m, unsigned d) {
    y -= m <= 2;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<long>(doe) - 719468;
}

struct Civil {
    long y;
    unsigned m, d;
};

Civil civilFromDays(long z) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long y = static_cast<long>(yoe) + era * 400;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    const unsigned d = doy - (153 * mp + 2) / 5 + 1;
    const unsigned m = mp < 10 ? mp + 3 : mp - 9;
    return {y + (m <= 2), m, d};
}

constexpr long kSerialOf1970 = 25569; // 1-Jan-1970 as a day serial from 30-Dec-1899

const std::array<const char*, 12> kMonthNames = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                 "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                 "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};

int monthFromName(std::string_view word) {
    std::string up;
    for (char c : word)
        up.push_back(static_cast<char>(std::toupper(static_cast<unsigned char>(c))));
    if (up.size() < 3) return 0;
    for (int i = 0; i < 12; ++i) {
        const std::string full = kMonthNames[i];
        if (up == full || up == full.substr(0, 3) || (up == "SEPT" && i == 8)) return i + 1;
    }
    return 0;
}

int secondsOfDay(double serial) {
    const double frac = serial - std::floor(serial);
    return static_cast<int>(std::nearbyint(frac * 86400.0)) % 86400;
}

bool allDigits(std::string_view s) {
    if (s.empty()) return false;
    for (char c : s)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}

// Digits as a number, held at a million: no part of a date runs that far, and a long run of
// typed digits must not overflow.
int toInt(std::string_view s) {
    int v = 0;
    for (char c : s)
        v = std::min(v * 10 + (c - '0'), 1000000);
    return v;
}

bool validDay(int y, int m, int d) {
    if (m < 1 || m > 12 || d < 1) return false;
    static const int len[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
    return d <= len[m - 1] + (m == 2 && leap ? 1 : 0);
}

// Two-digit years take the window of the desk's run-time: 00-29 this century, 30-99 the last.
int widenYear(std::string_view digits) {
    const int y = toInt(digits);
    if (digits.size() > 2) return y;
    return y < 30 ? 2000 + y : 1900 + y;
}

std::optional<int> parseTime(std::string_view t) {
    std::vector<std::string_view> parts;
    size_t start = 0;
    for (size_t i = 0; i <= t.size(); ++i) {
        if (i == t.size() || t[i] == ':') {
            parts.push_back(t.substr(start, i - start));
            start = i + 1;
        }
    }
    if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
    for (auto p : parts)
        if (!allDigits(p) || p.size() > 2) return std::nullopt;
    const int h = toInt(parts[0]), m = toInt(parts[1]), s = parts.size() == 3 ? toInt(parts[2]) : 0;
    if (h > 23 || m > 59 || s > 59) return std::nullopt;
    return h * 3600 + m * 60 + s;
}

} // namespace

VbDate::VbDate(double serial) : serial_(serial) {
    constexpr double kFirst = -657434; // 1-Jan-100
    constexpr double kEnd = 2958466;   // 1-Jan-10000
    if (!(serial >= kFirst && serial < kEnd)) vberr::raise(vberr::Overflow);
}

VbDate VbDate::fromYmd(int year, int month, int day) {
    // DateSerial lets months and days run over into the next or previous ones.
    long y = year + (month - 1) / 12;
    int m = (month - 1) % 12;
    if (m < 0) {
        m += 12;
        --y;
    }
    const long days = daysFromCivil(y, static_cast<unsigned>(m + 1), 1) + (day - 1);
    return VbDate(static_cast<double>(days + kSerialOf1970));
}

VbDate VbDate::fromYmdHms(int year, int month, int day, int hour, int minute, int second) {
    return VbDate(fromYmd(year, month, day).serial_ + (hour * 3600 + minute * 60 + second) / 86400.0);
}

long VbDate::dayNumber() const {
    return static_cast<long>(std::floor(serial_));
}
int VbDate::year() const {
    return static_cast<int>(civilFromDays(dayNumber() - kSerialOf1970).y);
}
int VbDate::month() const {
    return static_cast<int>(civilFromDays(dayNumber() - kSerialOf1970).m);
}
int VbDate::day() const {
    return static_cast<int>(civilFromDays(dayNumber() - kSerialOf1970).d);
}
int VbDate::hour() const {
    return secondsOfDay(serial_) / 3600;
}
int VbDate::minute() const {
    return secondsOfDay(serial_) / 60 % 60;
}
int VbDate::second() const {
    return secondsOfDay(serial_) % 60;
}
bool VbDate::hasTime() const {
    return secondsOfDay(serial_) != 0;
}
VbDate VbDate::dateOnly() const {
    return VbDate(static_cast<double>(dayNumber()));
}

int VbDate::weekday() const {
    // 30-Dec-1899 (serial 0) was a Saturday, weekday 7.
    const long w = (dayNumber() + 6) % 7;
    return static_cast<int>(w < 0 ? w + 7 : w) + 1;
}

namespace {

// "23 NOV 2026" (the exchange's trade files) as "23-NOV-2026", any time after it kept: a day,
// a month named in letters and a year, each after one blank. Other texts come back as they stand.
std::string spacedDate(std::string_view s) {
    const size_t first = s.find(' ');
    if (first == std::string_view::npos) return std::string(s);
    const size_t second = s.find(' ', first + 1);
    if (second == std::string_view::npos) return std::string(s);
    const std::string_view day = s.substr(0, first), month = s.substr(first + 1, second - first - 1);
    const size_t end = std::min(s.find(' ', second + 1), s.size());
    const std::string_view year = s.substr(second + 1, end - second - 1);
    if (!allDigits(day) || monthFromName(month) == 0 || !allDigits(year)) return std::string(s);
    std::string dashed(s);
    dashed[first] = '-';
    dashed[second] = '-';
    return dashed;
}

} // namespace

std::optional<VbDate> parseDate(std::string_view text) {
    size_t b = 0, e = text.size();
    while (b < e && text[b] == ' ')
        ++b;
    while (e > b && text[e - 1] == ' ')
        --e;
    const std::string dashed = spacedDate(text.substr(b, e - b));
    std::string_view s = dashed;

    int seconds = 0;
    if (const size_t space = s.find(' '); space != std::string_view::npos) {
        auto t = parseTime(s.substr(space + 1));
        if (!t) return std::nullopt;
        seconds = *t;
        s = s.substr(0, space);
    }

    std::vector<std::string_view> parts;
    size_t start = 0;
    for (size_t i = 0; i <= s.size(); ++i) {
        if (i == s.size() || s[i] == '-' || s[i] == '/') {
            parts.push_back(s.substr(start, i - start));
            start = i + 1;
        }
    }
    if (parts.size() != 3) return std::nullopt;

    int y = 0, m = 0, d = 0;
    if (allDigits(parts[0]) && parts[0].size() == 4 && allDigits(parts[1]) && allDigits(parts[2])) {
        y = toInt(parts[0]), m = toInt(parts[1]), d = toInt(parts[2]); // ISO, as the store keeps it
    } else if (allDigits(parts[0]) && allDigits(parts[2]) && parts[2].size() != 3) {
        d = toInt(parts[0]);
        m = allDigits(parts[1]) ? toInt(parts[1]) : monthFromName(parts[1]);
        y = widenYear(parts[2]);
    } else {
        return std::nullopt;
    }
    if (y < 100 || y > 9999 || !validDay(y, m, d)) return std::nullopt;
    return VbDate(VbDate::fromYmd(y, m, d).serial() + seconds / 86400.0);
}

VbDate CDate(std::string_view text) {
    auto d = parseDate(text);
    if (!d) vberr::raise(vberr::TypeMismatch);
    return *d;
}

bool IsDate(std::string_view text) {
    return parseDate(text).has_value();
}

long DateDiffDays(const VbDate& a, const VbDate& b) {
    return b.dayNumber() - a.dayNumber();
}

std::string DateText(const VbDate& d) {
    char buf[32];
    if (d.hasTime())
        std::snprintf(buf, sizeof buf, "%02d-%02d-%04d %02d:%02d:%02d", d.day(), d.month(), d.year(),
                      d.hour(), d.minute(), d.second());
    else
        std::snprintf(buf, sizeof buf, "%02d-%02d-%04d", d.day(), d.month(), d.year());
    return buf;
}

std::string IsoText(const VbDate& d) {
    char buf[32];
    if (d.hasTime())
        std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d:%02d", d.year(), d.month(), d.day(),
                      d.hour(), d.minute(), d.second());
    else
        std::snprintf(buf, sizeof buf, "%04d-%02d-%02d", d.year(), d.month(), d.day());
    return buf;
}

} // namespace tallimark
