#include "frame/VbNumber.h"

#include "frame/VbError.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace tallimark {

double Round(double x, int n) {
    if (n <= 0) return std::nearbyint(x);
    const double scale = std::pow(10.0, n);
    const double scaled = x * scale;
    // A magnitude past 2^53 has no decimals to round; scaling it could only overflow.
    if (!std::isfinite(scaled)) return x;
    return std::nearbyint(scaled) / scale;
}

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Scans sign, digits, point, digits and an exponent from text (blanks already removed).
// Returns the number of characters that form the number; 0 when there is no digit.
size_t scanNumber(std::string_view s, bool allowThousands) {
    size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t digits = 0;
    while (i < s.size() && (std::isdigit(static_cast<unsigned char>(s[i])) ||
                            (allowThousands && s[i] == ',' && digits > 0))) {
        if (s[i] != ',') ++digits;
        ++i;
    }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) {
            ++digits;
            ++i;
        }
    }
    if (digits == 0) return 0;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
        size_t expDigits = 0;
        while (j < s.size() && std::isdigit(static_cast<unsigned char>(s[j]))) {
            ++expDigits;
            ++j;
        }
        if (expDigits > 0) i = j;
    }
    return i;
}

double parseScanned(std::string_view s) {
    std::string clean;
    clean.reserve(s.size());
    for (char c : s) {
        if (c == ',') continue;
        clean.push_back(c == 'd' || c == 'D' ? 'E' : c);
    }
    return std::strtod(clean.c_str(), nullptr);
}

} // namespace

double Val(std::string_view text) {
    std::string compact;
    for (char c : text)
        if (!isBlank(c)) compact.push_back(c);
    const size_t len = scanNumber(compact, false);
    if (len == 0) return 0.0;
    const double v = parseScanned(std::string_view(compact).substr(0, len));
    return std::isfinite(v) ? v : (vberr::raise(vberr::Overflow), 0.0);
}

double CDbl(std::string_view text) {
    const std::string t = Trim(text);
    const size_t len = scanNumber(t, true);
    if (len == 0 || len != t.size()) vberr::raise(vberr::TypeMismatch);
    const double v = parseScanned(t);
    if (!std::isfinite(v)) vberr::raise(vberr::Overflow);
    return v;
}

int32_t CLng(double x) {
    const double r = std::nearbyint(x);
    if (!(r >= -2147483648.0 && r <= 2147483647.0)) vberr::raise(vberr::Overflow);
    return static_cast<int32_t>(r);
}
int32_t CLng(std::string_view text) {
    return CLng(CDbl(text));
}

int16_t CInt(double x) {
    const double r = std::nearbyint(x);
    if (!(r >= -32768.0 && r <= 32767.0)) vberr::raise(vberr::Overflow);
    return static_cast<int16_t>(r);
}
int16_t CInt(std::string_view text) {
    return CInt(CDbl(text));
}

double CCur(std::string_view text) {
    const double v = CDbl(text);
    if (std::abs(v) > 922337203685477.5807) vberr::raise(vberr::Overflow);
    return Round(v, 4);
}

bool IsNumeric(std::string_view text) {
    try {
        CDbl(text);
        return true;
    } catch (const VbError&) {
        return false;
    }
}

std::string NumText(double x) {
    if (!std::isfinite(x))
        vberr::raise(vberr::Overflow); // a fault of the formula, never a figure on the screen
    if (x == 0.0) return "0";
    // Written as "%.15G" would write it (trailing zeros dropped, exponent as E+15, E-05), without
    // the cost of printf: the ladder writes thousands of these on every refresh.
    char buf[40];
    const auto end = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::general, 15).ptr;
    std::string s(buf, end);
    if (const size_t e = s.find('e'); e != std::string::npos) s[e] = 'E';
    return s;
}

std::string NumText(int64_t x) {
    return std::to_string(x);
}

std::string Str(double x) {
    std::string s = NumText(x);
    return s[0] == '-' ? s : " " + s;
}

std::string Trim(std::string_view text) {
    size_t b = 0, e = text.size();
    while (b < e && text[b] == ' ')
        ++b;
    while (e > b && text[e - 1] == ' ')
        --e;
    return std::string(text.substr(b, e - b));
}

std::string UCase(std::string_view text) {
    std::string s(text);
    for (char& c : s)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return s;
}

std::string LCase(std::string_view text) {
    std::string s(text);
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

std::string Mid(std::string_view text, size_t start, long long length) {
    if (length < 0) throw VbError(vberr::InvalidCall, "Invalid procedure call or argument");
    if (start > text.size()) return {};
    return std::string(text.substr(start - 1, static_cast<size_t>(length)));
}

namespace vb {

double checked(double result) {
    if (!std::isfinite(result)) vberr::raise(vberr::Overflow);
    return result;
}

double div(double a, double b) {
    if (b == 0.0) vberr::raise(a == 0.0 ? vberr::Overflow : vberr::DivisionByZero);
    return checked(a / b);
}

double log(double x) {
    if (!(x > 0.0)) vberr::raise(vberr::InvalidCall);
    return checked(std::log(x));
}

double sqr(double x) {
    if (x < 0.0 || std::isnan(x)) vberr::raise(vberr::InvalidCall);
    return checked(std::sqrt(x));
}

double exp(double x) {
    return checked(std::exp(checked(x)));
}

double pow(double x, double y) {
    if (x < 0.0 && y != std::floor(y)) vberr::raise(vberr::InvalidCall);
    if (x == 0.0 && y < 0.0) vberr::raise(vberr::DivisionByZero);
    return checked(std::pow(x, y));
}

} // namespace vb

} // namespace tallimark
