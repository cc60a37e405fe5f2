#pragma once
// Run-time errors as the desk's screens report them: a number and a text. A procedure's trap
// catches VbError and shows its failure box; where there is no trap the run-time error box shows it.
#include <stdexcept>
#include <string>

namespace tallimark {

class VbError : public std::runtime_error {
public:
    VbError(long number, const std::string& text) : std::runtime_error(text), number_(number) {}
    long number() const { return number_; }
    std::string text() const { return what(); }

private:
    long number_;
};

// The run-time error numbers the formulas and conversions raise.
namespace vberr {
inline constexpr long InvalidCall = 5;
inline constexpr long Overflow = 6;
inline constexpr long SubscriptOutOfRange = 9;
inline constexpr long DivisionByZero = 11;
inline constexpr long TypeMismatch = 13;
inline constexpr long InvalidUseOfNull = 94;

[[noreturn]] void raise(long number);
} // namespace vberr

} // namespace tallimark
