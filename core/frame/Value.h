#pragma once
// A column value as a recordset hands it over: null, a whole number, a double, a text or a date.
#include "frame/VbDate.h"

#include <cstdint>
#include <string>
#include <variant>

namespace tallimark {

class Value {
public:
    Value() = default;
    Value(int64_t v) : v_(v) {}
    Value(double v) : v_(v) {}
    Value(std::string v) : v_(std::move(v)) {}
    Value(VbDate v) : v_(v) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(v_); }
    bool isDate() const { return std::holds_alternative<VbDate>(v_); }
    // The store's own kinds of a number: a whole number or a double, as it handed them over.
    bool isInteger() const { return std::holds_alternative<int64_t>(v_); }
    bool isDouble() const { return std::holds_alternative<double>(v_); }
    int64_t integer() const { return std::get<int64_t>(v_); }
    double real() const { return std::get<double>(v_); }
    // The text a field shows of it; a null raises Invalid use of Null, as assigning it would.
    std::string text() const;
    // The text, or "" for a null: for the columns read with a null test first.
    std::string textOrEmpty() const { return isNull() ? std::string() : text(); }
    // The number of it: a text converts as CDbl does; a null raises Invalid use of Null.
    double number() const;
    double numberOrZero() const { return isNull() ? 0.0 : number(); }
    VbDate date() const;

private:
    std::variant<std::monostate, int64_t, double, std::string, VbDate> v_;
};

} // namespace tallimark
