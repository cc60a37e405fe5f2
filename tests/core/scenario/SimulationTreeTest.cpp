// The simulation's fast tree gives the bits of its plain formula, faults included, on random
// trees round the money, at expiry and on exact ties between exercise and holding on.
#include "frame/VbError.h"
#include "scenario/SimulationPricing.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <random>
#include <string>

namespace {

using tallimark::VbError;
using namespace tallimark::scenario;
using tallimark::pricing::OptionSide;

// The value's bits, or the number of the error it raised.
std::string outcome(const auto& price) {
    try {
        return std::to_string(std::bit_cast<uint64_t>(price()));
    } catch (const VbError& e) {
        return "error " + std::to_string(e.number());
    }
}

TEST(SimulationTree, FastGivesThePlainBitsOnTenThousandRandomTrees) {
    std::mt19937_64 rng(20261123);
    auto uniform = [&](double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(rng); };
    SimulationTree fast;
    for (int k = 0; k < 12000; ++k) {
        const double S = std::round(uniform(50, 2000));
        // Strikes on the price itself, on a 10-rupee grid round it, and anywhere.
        const double K = k % 5 == 0  ? S
                         : k % 5 < 3 ? S + 10 * std::round(uniform(-30, 30))
                                     : uniform(1, 3000);
        const double days = std::round(uniform(-0.4, 60));
        const double T = k % 4 == 0 ? 0 : days * 0.5 / (k % 2 ? 180 : 183.2);
        const double r = uniform(0, 0.15);
        // A few trees without volatility: with time left they divide by zero.
        const double v = k % 97 == 0 ? 0 : uniform(0.05, 0.9);
        const int n = k % 50 == 0 ? 1 + static_cast<int>(rng() % 150) : 100;
        const OptionSide cp = rng() % 2 ? OptionSide::Call : OptionSide::Put;
        ASSERT_EQ(outcome([&] { return fast(S, K, T, r, v, 0.1, n, cp); }),
                  outcome([&] { return BinomialValue(S, K, T, r, v, 0.1, n, cp); }))
            << "S=" << S << " K=" << K << " T=" << T << " r=" << r << " v=" << v << " n=" << n;
    }
}

} // namespace
