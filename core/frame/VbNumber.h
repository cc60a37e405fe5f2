#pragma once
// The number rules every screen shares: conversions of field text, rounding, and the
// checked arithmetic by which a formula fault becomes a run-time error, never a NaN in a field.
#include <cstdint>
#include <string>
#include <string_view>

namespace tallimark {

// Round(x, n): n > 0 scales by 10^n, rounds half to even and scales back, all in double;
// n = 0 rounds half to even.
double Round(double x, int n = 0);

// Val: the leading number of a text, 0 when there is none. Blanks inside are skipped.
double Val(std::string_view text);

// CDbl, CLng, CInt: raise Type mismatch on text that is no number; CLng and CInt round ties
// to even and raise Overflow out of range.
double CDbl(std::string_view text);
int32_t CLng(std::string_view text);
int32_t CLng(double x);
int16_t CInt(std::string_view text);
int16_t CInt(double x);
// CCur: an amount of four decimals, ties to even; Type mismatch on text that is no number,
// Overflow past the currency range.
double CCur(std::string_view text);
// IsNumeric: true when CDbl would read the text.
bool IsNumeric(std::string_view text);

// The default text of a double: at most 15 significant digits, exponent form only for very
// small or very large magnitudes ("1E-05", "1.23456789012346E+15"), "0" for either zero. An
// infinity or NaN raises Overflow.
std::string NumText(double x);
std::string NumText(int64_t x);
// Str: the default text with a leading blank for a number that is not negative.
std::string Str(double x);

// Trim: leading and trailing blanks removed.
std::string Trim(std::string_view text);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);
// Mid(text, start, length) with 1-based columns; a negative length is an invalid call.
std::string Mid(std::string_view text, size_t start, long long length);

// Checked arithmetic for the formulas: the faults the desk's run-time raised.
namespace vb {
double checked(double result);  // Overflow on an infinity or NaN
double div(double a, double b); // Division by zero; 0/0 is Overflow
double log(double x);           // Invalid procedure call for x <= 0
double sqr(double x);           // Invalid procedure call for x < 0
double exp(double x);           // Overflow past the range of a double
double pow(double x, double y); // x^y: Invalid procedure call for a negative base and a fractional power
} // namespace vb

} // namespace tallimark
