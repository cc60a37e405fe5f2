#include "frame/VbError.h"
#include "frame/VbNumber.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

using namespace tallimark;

namespace {

long errorNumber(auto&& f) {
    try {
        f();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

} // namespace

TEST(NumberRules, RoundGoesHalfToEvenOnTheScaledDouble) {
    struct Case {
        double x;
        int n;
        double expected;
    } cases[] = {
        {2.5, 0, 2},
        {3.5, 0, 4},
        {-2.5, 0, -2},
        {0.5, 0, 0},
        {2.125, 2, 2.12}, // 212.5 is a true tie: to the even 212
        {2.135, 2, 2.13}, // 2.135 * 100 is 213.49999999999997 in double, so it rounds down
        {1.005, 2, 1},    // likewise 100.49999999999999
        {12.3456, 3, 12.346},
        {-0.0005, 3, -0.0},
        {99999.995, 2, 100000}, // the product rounds to 9999999.5
                                // in double, a tie to the even
                                // 10000000
        {1e307, 2, 1e307},      // too large to scale: already whole
    };
    for (const auto& c : cases)
        EXPECT_EQ(Round(c.x, c.n), c.expected) << c.x << " to " << c.n;
}

TEST(NumberRules, ValReadsTheLeadingNumberAndSkipsBlanks) {
    EXPECT_EQ(Val("12.5abc"), 12.5);
    EXPECT_EQ(Val("  -3"), -3);
    EXPECT_EQ(Val("1 2 3"), 123);
    EXPECT_EQ(Val("1,000"), 1);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("10.00%"), 10);
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("2d2"), 200);
    EXPECT_EQ(Val(".5"), 0.5);
}

TEST(NumberRules, ConversionsRefuseTextThatIsNoNumber) {
    EXPECT_EQ(CDbl(" 12.5 "), 12.5);
    EXPECT_EQ(CDbl("1,234.5"), 1234.5);
    EXPECT_EQ(errorNumber([] { CDbl(""); }), vberr::TypeMismatch);
    EXPECT_EQ(errorNumber([] { CDbl("12abc"); }), vberr::TypeMismatch);
    EXPECT_EQ(errorNumber([] { CDbl("1e999"); }), vberr::Overflow);

    EXPECT_EQ(CLng("2.5"), 2);
    EXPECT_EQ(CLng("3.5"), 4);
    EXPECT_EQ(CLng(-2.5), -2);
    EXPECT_EQ(errorNumber([] { CLng(""); }), vberr::TypeMismatch);
    EXPECT_EQ(errorNumber([] { CLng(2147483648.0); }), vberr::Overflow);
    EXPECT_EQ(CInt("32767"), 32767);
    EXPECT_EQ(errorNumber([] { CInt(32767.5); }), vberr::Overflow);
}

TEST(NumberRules, DefaultTextHasFifteenDigitsAndExponentOnlyAtTheEnds) {
    EXPECT_EQ(NumText(0.0), "0");
    EXPECT_EQ(NumText(-0.0), "0");
    EXPECT_EQ(NumText(12.5), "12.5");
    EXPECT_EQ(NumText(-3.0), "-3");
    EXPECT_EQ(NumText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumText(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(NumText(123456789012345.0), "123456789012345");
    EXPECT_EQ(NumText(1234567890123456.0), "1.23456789012346E+15");
    EXPECT_EQ(NumText(0.0001), "0.0001");
    EXPECT_EQ(NumText(0.00001), "1E-05");
    EXPECT_EQ(errorNumber([] { NumText(std::numeric_limits<double>::infinity()); }), vberr::Overflow);
    EXPECT_EQ(Str(5), " 5");
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(-5), "-5");
}

// The fast writer must agree with printf's "%.15G" on every double, the halfway cases of the
// fifteenth digit and the edges of the exponent form included.
TEST(NumberRules, DefaultTextIsPrintfsGeneralForm) {
    std::mt19937_64 rng(2026);
    std::uniform_int_distribution<int> exponent(-330, 330);
    auto printfText = [](double x) {
        char buf[40];
        std::snprintf(buf, sizeof buf, "%.15G", x);
        return std::string(buf);
    };
    auto check = [&](double x) {
        if (x == 0.0 || !std::isfinite(x)) return;
        ASSERT_EQ(NumText(x), printfText(x)) << std::hexfloat << x;
    };
    for (int i = 0; i < 200000; ++i) {
        uint64_t bits = rng();
        double any;
        std::memcpy(&any, &bits, sizeof any);
        check(any);
        // Figures of the desk's size, and decimals cut at fifteen and sixteen digits.
        const double scaled = std::ldexp(static_cast<double>(rng() >> 11), exponent(rng) / 10 - 53);
        check(scaled);
        check(std::nextafter(scaled, 0.0));
        check(static_cast<double>(static_cast<int64_t>(rng() % 2000000000000000)) / 100.0);
        check(1e-5 * (1 + static_cast<int>(rng() % 1000)) + 0.5e-20);
    }
    for (double edge :
         {1e15, 999999999999999.5, 1e-4, 9.99999999999999e-5, 0.5, 5e-324, 1.7976931348623157e308})
        check(edge);
}

TEST(NumberRules, FormulaFaultsAreRunTimeErrors) {
    EXPECT_EQ(errorNumber([] { vb::div(1, 0); }), vberr::DivisionByZero);
    EXPECT_EQ(errorNumber([] { vb::div(0, 0); }), vberr::Overflow);
    EXPECT_EQ(errorNumber([] { vb::log(0); }), vberr::InvalidCall);
    EXPECT_EQ(errorNumber([] { vb::log(-1); }), vberr::InvalidCall);
    EXPECT_EQ(errorNumber([] { vb::sqr(-1); }), vberr::InvalidCall);
    EXPECT_EQ(errorNumber([] { vb::exp(1000); }), vberr::Overflow);
    EXPECT_EQ(errorNumber([] { vb::checked(std::numeric_limits<double>::quiet_NaN()); }), vberr::Overflow);
    EXPECT_EQ(errorNumber([] { vb::pow(-8, 1.0 / 3.0); }), vberr::InvalidCall);
    EXPECT_EQ(vb::pow(-2, 3), -8);
}
