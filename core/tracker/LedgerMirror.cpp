#include "tracker/LedgerMirror.h"

#include "frame/Store.h"
#include "frame/VbNumber.h"

#include <climits>
#include <cmath>
#include <sqlite3.h>

namespace tallimark {

namespace {

using Kind = StoreNumber::Kind;

StoreNumber whole(int64_t v) {
    return {Kind::Whole, v, 0};
}

// A double result; NaN is stored as null.
StoreNumber real(double v) {
    return std::isnan(v) ? StoreNumber{} : StoreNumber{Kind::Real, 0, v};
}

double asReal(const StoreNumber& n) {
    return n.kind == Kind::Whole ? static_cast<double>(n.whole) : n.real;
}

enum class Op { Subtract, Multiply, Divide };

// left op right as the store's engine works it: whole numbers stay whole unless the result
// overflows; a null operand, a division by zero or NaN give null; otherwise doubles.
StoreNumber arithmetic(const StoreNumber& left, Op op, const StoreNumber& right) {
    if (left.kind == Kind::Whole && right.kind == Kind::Whole) {
        int64_t out = 0;
        switch (op) {
        case Op::Subtract:
            if (!__builtin_sub_overflow(left.whole, right.whole, &out)) return whole(out);
            break;
        case Op::Multiply:
            if (!__builtin_mul_overflow(left.whole, right.whole, &out)) return whole(out);
            break;
        case Op::Divide:
            if (right.whole == 0) return {};
            if (right.whole != -1 || left.whole != INT64_MIN) return whole(left.whole / right.whole);
            break;
        }
    } else if (left.kind == Kind::Null || right.kind == Kind::Null) {
        return {};
    }
    const double a = asReal(left), b = asReal(right);
    switch (op) {
    case Op::Subtract:
        return real(a - b);
    case Op::Multiply:
        return real(a * b);
    case Op::Divide:
        return b == 0 ? StoreNumber{} : real(a / b);
    }
    return {};
}

StoreNumber times(const StoreNumber& a, const StoreNumber& b) {
    return arithmetic(a, Op::Multiply, b);
}

StoreNumber minus(const StoreNumber& a, const StoreNumber& b) {
    return arithmetic(a, Op::Subtract, b);
}

// sum(): whole numbers add exactly until one overflows, and every value also adds into a running
// double, which is the result once any value was not whole.
class Sum {
public:
    void add(const StoreNumber& v) {
        if (v.kind == Kind::Null) return;
        ++count_;
        if (v.kind == Kind::Whole) {
            real_ += static_cast<double>(v.whole);
            if (!approx_ && __builtin_add_overflow(whole_, v.whole, &whole_)) approx_ = overflow_ = true;
        } else {
            real_ += v.real;
            approx_ = true;
        }
    }
    double orZero() const {
        if (count_ == 0) return 0;
        if (overflow_) throw StoreError(SQLITE_ERROR, "integer overflow");
        return approx_ ? real(real_).orZero() : static_cast<double>(whole_);
    }

private:
    int64_t count_ = 0, whole_ = 0;
    double real_ = 0;
    bool approx_ = false, overflow_ = false;
};

// Texts as the store's NOCASE collation compares them: ASCII letters without case.
std::string folded(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

bool sameWithoutCase(const std::string& a, const std::string& b) {
    return a.size() == b.size() && folded(a) == folded(b);
}

bool sameNumber(const StoreNumber& a, const StoreNumber& b) {
    if (a.kind == Kind::Null || b.kind == Kind::Null) return a.kind == b.kind;
    if (a.kind == Kind::Whole && b.kind == Kind::Whole) return a.whole == b.whole;
    return asReal(a) == asReal(b);
}

bool sameSide(const std::optional<std::string>& a, const std::optional<std::string>& b) {
    return a && b ? sameWithoutCase(*a, *b) : !a && !b;
}

bool isOption(const std::optional<std::string>& cp) {
    return cp && !sameWithoutCase(*cp, "S");
}

std::optional<StoreNumber> numberOf(const Value& v) {
    if (v.isNull()) return StoreNumber{};
    if (v.isInteger()) return whole(v.integer());
    if (v.isDouble()) return real(v.real());
    return std::nullopt; // a text or a date: not reckoned with here
}

} // namespace

double StoreNumber::orZero() const {
    return kind == Kind::Null ? 0 : asReal(*this);
}

bool LedgerMirror::load(Store& store, const std::string& key) {
    // Writes still waiting run first: they may end in keep(), which must not mark a half-read
    // mirror as whole.
    store.runDeferredWrites();
    const std::pair<unsigned long long, long long> now{store.serial(), store.ledgerStamp()};
    if (refused_ == now && refusedKey_ == key) return false;
    store_ = 0;
    refused_ = now;
    refusedKey_ = key;
    rows_.clear();
    Recordset rs =
        store.query("select CP, Strike, Units, Traded, Last, DumThVal, Delta from dummytracker where " + key);
    for (; !rs.eof(); rs.moveNext()) {
        Row row;
        const Value& cp = rs.at(0);
        if (!cp.isNull()) {
            if (cp.isInteger() || cp.isDouble() || cp.isDate()) return false;
            row.cp = cp.text();
        }
        StoreNumber* const numbers[] = {&row.strike, &row.units,   &row.traded,
                                        &row.last,   &row.nextDay, &row.delta};
        for (size_t i = 0; i < std::size(numbers); ++i) {
            const std::optional<StoreNumber> n = numberOf(rs.at(i + 1));
            if (!n) return false;
            *numbers[i] = *n;
        }
        rows_.push_back(std::move(row));
    }
    seriesRows_.clear();
    for (size_t first = 0, end = 0; first < rows_.size(); first = end) {
        end = first + 1;
        while (end < rows_.size() && sameSide(rows_[end].cp, rows_[first].cp) &&
               sameNumber(rows_[end].strike, rows_[first].strike))
            ++end;
        if (rows_[first].cp && rows_[first].strike.kind != Kind::Null)
            seriesRows_[{folded(*rows_[first].cp), asReal(rows_[first].strike)}] = {first, end};
    }
    key_ = key;
    refused_ = {};
    keep(store);
    return true;
}

bool LedgerMirror::holds(const Store& store, const std::string& key) const {
    return store_ == store.serial() && key_ == key && stamp_ == store.ledgerStamp();
}

void LedgerMirror::keep(const Store& store) {
    store_ = store.serial();
    stamp_ = store.ledgerStamp();
}

void LedgerMirror::setSeries(Store& store, const std::vector<std::string>& texts) {
    // The statement's "?" meets a column of numbers: its text converts as it would there.
    Recordset rs = store.query("select cast(? as numeric), cast(? as real), cast(? as real), cast(? as real)",
                               {texts[6], texts[0], texts[3], texts[2]});
    const std::optional<StoreNumber> strike = numberOf(rs.at(0)), last = numberOf(rs.at(1)),
                                     nextDay = numberOf(rs.at(2)), delta = numberOf(rs.at(3));
    if (!strike || strike->kind == Kind::Null) return;
    const auto found = seriesRows_.find({folded(texts[7]), asReal(*strike)});
    if (found == seriesRows_.end()) return;
    for (size_t i = found->second.first; i < found->second.second; ++i) {
        rows_[i].last = *last;
        rows_[i].nextDay = *nextDay;
        rows_[i].delta = *delta;
    }
}

std::optional<std::vector<LedgerSeries>> LedgerMirror::series() const {
    std::vector<LedgerSeries> groups;
    for (size_t first = 0; first < rows_.size();) {
        size_t end = first + 1;
        while (end < rows_.size() && sameSide(rows_[end].cp, rows_[first].cp) &&
               sameNumber(rows_[end].strike, rows_[first].strike))
            ++end;
        const Row& head = rows_[first];
        if (head.strike.kind == Kind::Null) {
            groups.push_back({0, 0, 0, isOption(head.cp)});
        } else {
            // As the statements would: a group they sum per series is left to them.
            if (!head.cp || CDbl(NumText(asReal(head.strike))) != asReal(head.strike)) return std::nullopt;
            Sum units, atLast, atNextDay;
            for (size_t i = first; i < end; ++i) {
                const Row& r = rows_[i];
                units.add(r.units);
                atLast.add(minus(times(r.units, r.last), times(r.units, r.traded)));
                atNextDay.add(minus(times(r.units, r.nextDay), times(r.units, r.traded)));
            }
            groups.push_back({units.orZero(), atLast.orZero(), atNextDay.orZero(), isOption(head.cp)});
        }
        first = end;
    }
    return groups;
}

OptionTotals LedgerMirror::optionTotals() const {
    Sum last, nextDay, delta;
    for (const Row& r : rows_) {
        if (!isOption(r.cp)) continue;
        last.add(times(r.units, r.last));
        nextDay.add(times(r.units, r.nextDay));
        // -units*delta/100: the minus is "0 - units".
        delta.add(arithmetic(times(minus(whole(0), r.units), r.delta), Op::Divide, whole(100)));
    }
    return {last.orZero(), nextDay.orZero(), delta.orZero()};
}

} // namespace tallimark
