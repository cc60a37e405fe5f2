#include "pricing/StockEngine.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tallimark::pricing {
namespace {

// Hand-worked: the sum stops at t = 3.9595 whatever x is past it, and starts at -4.9505.
TEST(StockEngineCalcD1, HasACeilingAndAFloor) {
    EXPECT_EQ(CalcD1(4), 0.9998);
    EXPECT_EQ(CalcD1(3.99), 0.9998);
    EXPECT_EQ(CalcD1(1e6), 0.9998);
    EXPECT_EQ(CalcD1(-4.96), 0);
    EXPECT_EQ(CalcD1(-1e6), 0);
}

// Expected figures from the same midpoint sum run in Python. Each is also the normal
// distribution between -5 and the edge of the sum's last cell, scaled by sqrt(pi/(22/7)) for the
// desk's pi, within the sum's error and the rounding.
TEST(StockEngineCalcD1, FollowsTheNormalDistribution) {
    const double xs[] = {-2.2, -1, 0, 0.5, 1, 2.5};
    const double want[] = {0.0129, 0.149, 0.5194, 0.7067, 0.8505, 0.994};
    const auto normal = [](double x) { return 0.5 * std::erfc(-x / std::sqrt(2.0)); };
    for (int k = 0; k < 6; ++k) {
        EXPECT_EQ(CalcD1(xs[k]), want[k]) << xs[k];
        const double edge = -5 + std::ceil((xs[k] + 4.9505) / 0.099) * 0.099;
        const double scaled = (normal(edge) - normal(-5)) * std::sqrt(3.14159265358979 / (22.0 / 7));
        EXPECT_NEAR(CalcD1(xs[k]), scaled, 1.5e-4) << xs[k];
    }
}

TEST(StockEngineClocks, CountOn180OnlyForInTheMoneyCallsAtOrdinaryVolatility) {
    struct Case {
        double K, sigmaC, sigmaP, T, T1;
    };
    const Case cases[] = {
        {900, 0.3, 0.3, 15.0 / 180, 14.5 / 180},      // K < S
        {1000, 0.3, 0.49, 15.0 / 180, 14.5 / 180},    // K = S
        {1100, 0.3, 0.3, 15.0 / 183.2, 14.5 / 183.2}, // K > S
        {900, 0.5, 0.3, 15.0 / 183.2, 14.5 / 183.2},  // a volatility of 50% is not below it
        {900, 0.3, 0.5, 15.0 / 183.2, 14.5 / 183.2},
    };
    for (const Case& c : cases) {
        const TreeClocks t = ladderClocks({1000, c.K, 0.07, c.sigmaC, c.sigmaP, 30});
        EXPECT_DOUBLE_EQ(t.T, c.T) << c.K;
        EXPECT_DOUBLE_EQ(t.T1, c.T1) << c.K;
    }
}

// Expected figures from the formulas worked in Python, with pi = 22/7.
TEST(StockEngineGreeks, MatchAnIndependentWorking) {
    const StockEngine engine;
    const StockInputs near{100, 104, 0.07, 0.32, 0.35, 20};
    EXPECT_EQ(engine.GammaCall(near), 0.048);
    EXPECT_EQ(engine.GammaPut(near), 0.045);
    EXPECT_EQ(engine.VegaCall(near), 0.085);
    const StockInputs big{1000, 1040, 0.07, 0.32, 0.35, 20};
    EXPECT_DOUBLE_EQ(engine.NormDensityC(big), 0.36267938695815666);
    EXPECT_DOUBLE_EQ(engine.NormDensityP(big), 0.3693612674928246);
    EXPECT_EQ(engine.VegaCall(big), 0.849);
    EXPECT_EQ(engine.VegaPut(big), 0.865);
    EXPECT_EQ(engine.ThetaCall(big), -0.736);
    EXPECT_EQ(engine.ThetaPut(big), -0.542); // sigma C on the put too
    // No time left: no gamma, no vega, and d1 without its division: exp(-ln(100/104)^2/2)/sqrt(44/7).
    const StockInputs expired{100, 104, 0.07, 0.32, 0.35, 0};
    EXPECT_EQ(engine.GammaCall(expired), 0);
    EXPECT_EQ(engine.VegaCall(expired), 0);
    EXPECT_DOUBLE_EQ(engine.NormDensityC(expired), 0.3985553579455721);
}

TEST(StockEngineTheta, LastDayRules) {
    StockEngine engine;
    engine.setOptionValue(12.3456);
    const auto in = [](double S, double days) { return StockInputs{S, 1000, 0.07, 0.32, 0.6, days}; };
    // One day left, out of the money or at it: the last tree's price, to 3 decimals.
    EXPECT_EQ(engine.ThetaCall(in(1000, 1)), 12.346);
    EXPECT_EQ(engine.ThetaCall(in(950, 1)), 12.346);
    EXPECT_EQ(engine.ThetaPut(in(1000, 1)), 12.346);
    EXPECT_EQ(engine.ThetaPut(in(1050, 1)), 12.346);
    // One day left, in the money: the closed form on 0.5/183.2 and 0.5/180 (worked in Python).
    EXPECT_EQ(engine.ThetaCall(in(1050, 1)), -0.237);
    EXPECT_EQ(engine.ThetaPut(in(950, 1)), 0.163);
    // Expiry, a fraction of a day, or days past expiry: nothing.
    for (double days : {0.0, 0.5, -2.0}) {
        EXPECT_EQ(engine.ThetaCall(in(950, days)), 0);
        EXPECT_EQ(engine.ThetaPut(in(1050, days)), 0);
    }
}

// Theta reads whichever tree ran last: on the last day the next-day tree prices at T1 = 0.
TEST(StockEngineTheta, ReadsTheLastTreeRun) {
    StockEngine engine;
    const StockInputs in{990, 1000, 0.07, 0.3, 0.3, 1};
    const TreeClocks t = ladderClocks(in);
    const BinomialFigures today =
        engine.CalcBinomial(in.S, in.K, t.T, in.r, in.sigmaC, 0.1, 100, OptionSide::Call);
    EXPECT_GT(today.value, 0);
    EXPECT_EQ(engine.ThetaCall(in), Round(engine.optionValue(), 3));
    EXPECT_EQ(engine.CalcBinomialNext(in.S, in.K, t.T1, in.r, in.sigmaC, 0.1, 100, OptionSide::Call), 0);
    EXPECT_EQ(engine.ThetaCall(in), 0); // out of the money at expiry
}

TEST(StockEngineFaults, RaiseTheDesksErrors) {
    const StockEngine engine;
    using Greek = double (StockEngine::*)(const StockInputs&) const;
    struct Case {
        Greek greek;
        StockInputs in;
        long error;
    } cases[] = {
        {&StockEngine::GammaCall, {-100, 104, 0.07, 0.3, 0.3, 20}, vberr::InvalidCall}, // ln of S/K < 0
        {&StockEngine::VegaCall, {100, 0, 0.07, 0.3, 0.3, 20}, vberr::DivisionByZero},  // S/0
        {&StockEngine::GammaCall, {100, 104, 0.07, 0, 0.3, 20}, vberr::DivisionByZero}, // sigma 0
        {&StockEngine::VegaPut, {100, 104, 0.07, 0.3, 0.3, -3}, vberr::InvalidCall},    // sqrt of T < 0
        {&StockEngine::ThetaCall, {100, 104, 0.07, 0, 0.3, 20}, vberr::DivisionByZero},
    };
    for (const Case& c : cases) {
        long error = 0;
        try {
            (engine.*c.greek)(c.in);
        } catch (const VbError& e) {
            error = e.number();
        }
        EXPECT_EQ(error, c.error) << "S " << c.in.S << " K " << c.in.K << " days " << c.in.days;
    }
}

} // namespace
} // namespace tallimark::pricing
