#include "pricing/IndexEngine.h"
#include "frame/VbError.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tallimark::pricing {
namespace {

// The polynomial is good to 7.5e-8 of the true distribution; the index pi moves it by less.
TEST(IndexEngineCumNormal, MatchesTheNormalDistribution) {
    EXPECT_NEAR(IndexEngine::CumNormal(0), 0.5, 1e-9);
    for (double x = -6; x <= 6; x += 0.05)
        EXPECT_NEAR(IndexEngine::CumNormal(x), 0.5 * std::erfc(-x / std::sqrt(2.0)), 7.6e-8) << x;
    // 1/sqrt(2*3.14159265), worked by hand
    EXPECT_NEAR(IndexEngine::NormDensityIndex(0), 0.39894228, 1e-8);
}

// Expected figures from the same formulas worked in Python with the same polynomial and pi; the
// prices also agree with exact Black-Scholes (0.76750 and 5.16512; 326.44494 and 85.52765).
TEST(IndexEngineRow, MatchesAnIndependentWorking) {
    struct Case {
        IndexInputs in;
        double d[2];       // d1, d2
        double figures[8]; // call, put, delta of the call and the put, gamma, vega, theta of both
    };
    const Case cases[] = {
        {{100, 105, 0.07, 0.2, 30},
         {-0.7219077502862588, -0.7792459681943583},
         {0.767, 5.165, 0.235, -0.765, 0.054, 0.088, -0.034, -0.014}},
        {{18000, 17800, 0.07, 0.14, 12},
         {0.5435107039290205, 0.5181259927499695},
         {326.445, 85.528, 0.707, -0.293, 0.001, 11.233, -8.929, -5.523}},
    };
    for (const Case& c : cases) {
        IndexEngine e;
        e.CalcD1Index(c.in);
        e.CalcD2Index(c.in);
        EXPECT_DOUBLE_EQ(e.d1(), c.d[0]);
        EXPECT_DOUBLE_EQ(e.d2(), c.d[1]);
        const double got[] = {e.PriceCallIndex(c.in), e.PricePutIndex(c.in), e.DeltaCallIndex(c.in),
                              e.DeltaPutIndex(c.in),  e.GammaIndex(c.in),    e.VegaIndex(c.in),
                              e.ThetaCallIndex(c.in), e.ThetaPutIndex(c.in)};
        for (int k = 0; k < 8; ++k)
            EXPECT_EQ(got[k], c.figures[k]) << "figure " << k << " of S " << c.in.S;
    }
}

TEST(IndexEngineRow, ExpiryKeepsD1D2AndPricesIntrinsically) {
    IndexEngine e;
    e.CalcD1Index({100, 105, 0.07, 0.2, 30});
    e.CalcD2Index({100, 105, 0.07, 0.2, 30});
    const double d1 = e.d1(), d2 = e.d2();
    struct Case {
        double S, K, call, put, deltaC, deltaP;
    };
    const Case cases[] = {
        {110, 100, 10, 0, 1, 0},
        {90, 100, 0, 10, 0, -1},
        {100, 100, 0, 0, 0.5, -0.5},
    };
    for (const Case& c : cases) {
        const IndexInputs in{c.S, c.K, 0.07, 0.3, 0};
        e.CalcD1Index(in);
        e.CalcD2Index(in);
        EXPECT_EQ(e.d1(), d1);
        EXPECT_EQ(e.d2(), d2);
        EXPECT_EQ(e.PriceCallIndex(in), c.call);
        EXPECT_EQ(e.PricePutIndex(in), c.put);
        EXPECT_EQ(e.DeltaCallIndex(in), c.deltaC);
        EXPECT_EQ(e.DeltaPutIndex(in), c.deltaP);
        EXPECT_EQ(e.GammaIndex(in), 0);
        EXPECT_EQ(e.VegaIndex(in), 0);
        EXPECT_EQ(e.ThetaCallIndex(in), 0);
        EXPECT_EQ(e.ThetaPutIndex(in), 0);
    }
}

TEST(IndexEngineRow, FaultsRaiseTheDesksErrors) {
    IndexEngine e;
    const auto error = [&](const IndexInputs& in) {
        try {
            e.CalcD1Index(in);
        } catch (const VbError& err) {
            return err.number();
        }
        return 0L;
    };
    EXPECT_EQ(error({100, 105, 0.07, 0, 30}), vberr::DivisionByZero); // sigma 0
    EXPECT_EQ(error({-100, 105, 0.07, 0.2, 30}), vberr::InvalidCall); // ln of a negative
    EXPECT_EQ(error({100, 0, 0.07, 0.2, 30}), vberr::DivisionByZero); // S/0
}

} // namespace
} // namespace tallimark::pricing
