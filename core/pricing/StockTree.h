#pragma once
// The American Cox-Ross-Rubinstein tree that prices every row of a stock or futures ladder.
// Two builds of one formula: plainTree walks it as written, with both powers at every node, and
// is the reference; FastTree shares the powers between trees and lets the node loop vectorise.
// Both give the same bits, zero signs included, for every input: a desk's figures may not depend
// on which one ran.
#include <cstddef>
#include <vector>

namespace tallimark::pricing {

enum class OptionSide { Call, Put };

// The larger of two figures; b on a tie or when either is not a number.
inline double MaxOf(double a, double b) {
    return a > b ? a : b;
}

// The simulation's larger of two figures: a on a tie, b when either is not a number.
inline double BinomialMax(double a, double b) {
    return a >= b ? a : b;
}

struct TreeArgs {
    double S = 0;     // price of the underlying
    double K = 0;     // strike
    double T = 0;     // years to expiry, on the ladder's clock
    double r = 0;     // interest rate, fraction
    double sigma = 0; // volatility, fraction
    double b = 0;     // carry; the sheet always passes 0.1
    int n = 0;        // steps; the sheet always passes 100
    OptionSide side = OptionSide::Call;
    // The simulation's nodes keep the exercise value where it ties with holding on (BinomialMax);
    // the sheet's keep the continuation (MaxOf). Only the sign of a zero can tell them apart.
    bool exerciseOnTie = false;
};

struct TreeResult {
    double value = 0; // V(0): the option's price today
    double down = 0;  // D(0) and D(1): the two nodes one step in, from which the delta is read
    double up = 0;
    double u = 0; // the tree's up and down factors
    double d = 0;
};

// Raises the desk's run-time errors: Invalid procedure call for T < 0, Division by zero when
// sigma is 0 and T > 0, Overflow when any node overflows. Steps n must be at least 1. The sheet's
// tie rule only: the simulation keeps its own plain walk beside its formula.
TreeResult plainTree(const TreeArgs& a);

// The tree's delta. At T > 0 the slope one step in, (D(1) - D(0))/(S*u - S*d); at expiry the
// intrinsic one: z*0.5 at the money, else 1 in the money and 0 out of it, for puts as for calls.
// A put's +1 is the tree's own figure; the ladder turns it to -1.
double treeDelta(const TreeArgs& a, const TreeResult& t);

// pow(u, i) and pow(d, k) for 0..n: the factors the nodes of a tree multiply by, worked out once
// for every tree with the same u. A ladder meets only a few u: two volatilities, two clocks, two
// day-count bases.
class TreePowers {
public:
    TreePowers(double u, double d, int n);
    double u() const { return u_; }
    int n() const { return n_; }
    const double* up() const { return up_.data(); } // up()[i] = pow(u, i)
    // down()[k] = pow(d, n - k): reversed, so that a row of the tree reads it forwards.
    const double* down() const { return down_.data(); }

private:
    double u_;
    int n_;
    std::vector<double> up_, down_;
};

// The fast build: keeps the powers of the last few u it met, and its work arrays, between
// trees. One per sheet or simulation; not to be shared between threads.
class FastTree {
public:
    FastTree();
    TreeResult operator()(const TreeArgs& a);

private:
    const TreePowers& powers(double u, double d, int n);

    static constexpr size_t kSlots = 16;
    std::vector<TreePowers> powers_;
    size_t oldest_ = 0;
    std::vector<double> spot_, ping_, pong_;
};

} // namespace tallimark::pricing
