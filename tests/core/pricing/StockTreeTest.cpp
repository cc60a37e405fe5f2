#include "pricing/StockTree.h"
#include "frame/VbError.h"
#include "pricing/StockEngine.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <random>

namespace tallimark::pricing {
namespace {

bool sameBits(double a, double b) {
    return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b);
}

struct Outcome {
    TreeResult tree;
    double delta = 0;
    long error = 0;
};

template <typename Tree> Outcome run(Tree&& tree, const TreeArgs& a) {
    Outcome o;
    try {
        o.tree = tree(a);
        o.delta = treeDelta(a, o.tree);
    } catch (const VbError& e) {
        o.error = e.number();
    }
    return o;
}

// Rows a desk meets and rows it should not: strikes at, deep in and far out of the money, the
// last day, expiry and a day past it (T1 at Days = 0), low and very high volatilities.
TreeArgs randomRow(std::mt19937_64& g) {
    auto uni = [&](double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(g); };
    auto pick = [&](int k) { return std::uniform_int_distribution<int>(0, k - 1)(g); };
    TreeArgs a;
    a.S = uni(20, 30000);
    const double moneyness[] = {1, uni(0.2, 0.7), uni(1.4, 4), uni(0.8, 1.25)};
    a.K = a.S * moneyness[pick(4)];
    const double days[] = {0, 1, -1, double(pick(400)), uni(0, 90)};
    a.T = treeYears(days[pick(5)], pick(2) ? kHalfYear360 : kHalfYear366);
    a.sigma = pick(2) ? uni(0.001, 0.1) : uni(0.5, 2.5);
    a.r = uni(0, 0.15);
    a.b = 0.1;
    a.n = 100;
    a.side = pick(2) ? OptionSide::Call : OptionSide::Put;
    return a;
}

TEST(StockTree, FastBuildGivesThePlainBuildsBits) {
    std::mt19937_64 g(20240611);
    FastTree fast;
    int priced = 0;
    for (int k = 0; k < 10000; ++k) {
        const TreeArgs a = randomRow(g);
        const Outcome want = run(plainTree, a);
        const Outcome got = run(fast, a);
        ASSERT_EQ(want.error, got.error) << "tree " << k;
        if (want.error) continue;
        ++priced;
        ASSERT_TRUE(sameBits(want.tree.value, got.tree.value)) << "tree " << k;
        ASSERT_TRUE(sameBits(want.tree.down, got.tree.down)) << "tree " << k;
        ASSERT_TRUE(sameBits(want.tree.up, got.tree.up)) << "tree " << k;
        ASSERT_TRUE(sameBits(want.delta, got.delta)) << "tree " << k;
    }
    EXPECT_GT(priced, 8000);
}

// Expected figures from an independent walk of the same 100-step tree in Python (floats, the
// platform's pow), rounded half to even as the ladder rounds.
TEST(StockTree, HundredStepFiguresMatchAnIndependentWalk) {
    struct Case {
        double S, K, T, r, sigma;
        OptionSide side;
        double col5, col7, col8;
    };
    const Case cases[] = {
        {1000, 1000, 20 * 0.5 / 180, 0.07, 0.3, OptionSide::Call, 30.96, 54.614, 30.963},
        {1000, 1000, 20 * 0.5 / 180, 0.07, 0.3, OptionSide::Put, 25.85, -46.563, 25.848},
        {1000, 1100, 20 * 0.5 / 183.2, 0.07, 0.3, OptionSide::Call, 3.46, 10.567, 3.461},
        {1000, 1100, 20 * 0.5 / 183.2, 0.07, 0.3, OptionSide::Put, 100.57, -94.267, 100.566},
        {250, 200, 60 * 0.5 / 180, 0.09, 0.45, OptionSide::Call, 55.21, 92.1, 55.21},
        {250, 200, 60 * 0.5 / 180, 0.09, 0.45, OptionSide::Put, 1.84, -8.189, 1.839},
    };
    for (const Case& c : cases) {
        StockEngine engine;
        const BinomialFigures f = engine.CalcBinomial(c.S, c.K, c.T, c.r, c.sigma, 0.1, 100, c.side);
        EXPECT_EQ(f.value, c.col5) << c.S << " " << c.K;
        EXPECT_EQ(f.delta, c.col7) << c.S << " " << c.K;
        EXPECT_EQ(engine.CalcBinomialNext(c.S, c.K, c.T, c.r, c.sigma, 0.1, 100, c.side), c.col8);
    }
}

// At expiry the tree is the intrinsic value, and the delta the intrinsic rule: a put in the money
// shows +100, which the ladder negates.
TEST(StockTree, ExpiryGivesIntrinsicValueAndDelta) {
    struct Case {
        double S, K;
        OptionSide side;
        double col5, col7;
    };
    const Case cases[] = {
        {1050, 1000, OptionSide::Call, 50, 100}, {950, 1000, OptionSide::Call, 0, 0},
        {1000, 1000, OptionSide::Call, 0, 50},   {1050, 1000, OptionSide::Put, 0, 0},
        {950, 1000, OptionSide::Put, 50, 100},   {1000, 1000, OptionSide::Put, 0, -50},
    };
    for (const Case& c : cases) {
        StockEngine engine;
        const BinomialFigures f = engine.CalcBinomial(c.S, c.K, 0, 0.07, 0.3, 0.1, 100, c.side);
        EXPECT_EQ(f.value, c.col5) << c.S << (c.side == OptionSide::Call ? " C" : " P");
        EXPECT_EQ(f.delta, c.col7) << c.S << (c.side == OptionSide::Call ? " C" : " P");
    }
}

TEST(StockTree, FaultsRaiseTheDesksErrors) {
    struct Case {
        TreeArgs a;
        long error;
    };
    const Case cases[] = {
        {{1000, 1000, 0.05, 0.07, 0, 0.1, 100, OptionSide::Call}, vberr::DivisionByZero}, // u = d
        {{1000, 1000, -0.003, 0.07, 0.3, 0.1, 100, OptionSide::Put}, vberr::InvalidCall}, // sqrt of T < 0
        {{1000, 1000, 2, 0.07, 80, 0.1, 100, OptionSide::Call}, vberr::Overflow},         // u^100 overflows
        // S*u^100 overflows: a put's leaf would fall to 0 silently, the desk stopped there.
        {{1e306, 1e306, 1, 0.07, 1, 0.1, 100, OptionSide::Put}, vberr::Overflow},
    };
    FastTree fast;
    for (const Case& c : cases) {
        EXPECT_EQ(run(plainTree, c.a).error, c.error);
        EXPECT_EQ(run(fast, c.a).error, c.error);
    }
}

} // namespace
} // namespace tallimark::pricing
