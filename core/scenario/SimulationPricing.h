#pragma once
// The simulation's own valuation of one option: its binomial tree (BinomialValue) for stock and
// futures sheets and its closed formula (SimCallValue, SimPutValue) for index sheets. Both stand
// apart from the sheet's engines on purpose: the tree keeps the exercise value on a tie and
// rounds to 2 decimals, the closed formula rounds to 3 and has its own normal curve.
#include "pricing/StockTree.h"

namespace tallimark::scenario {

// The tree as written: both powers at every node. The reference for SimulationTree.
double BinomialValue(double S, double K, double T, double r, double v, double b, int n,
                     pricing::OptionSide CP);

// The same tree, fast: powers shared between trees, the node loop vectorised, and a tree with
// no time left read off its leaf, since then every node holds the intrinsic value. Same bits as
// BinomialValue for every input, faults included. One per fill; not for several threads.
class SimulationTree {
public:
    double operator()(double S, double K, double T, double r, double v, double b, int n,
                      pricing::OptionSide CP);

private:
    pricing::FastTree tree_;
};

// Cumulative normal: the polynomial of the index engine, with 6.283185308 under the root.
double SimNormal(double x);

// The closed formula on a SimDays/365 clock. SimD1 and SimD2 live from row to row: a row with
// no time left leaves them as the row before set them.
struct SimClosedForm {
    double SimD1 = 0, SimD2 = 0;
    void SimCalcD1(double S, double K, double r, double vol, double days);
    void SimCalcD2(double vol, double days);
    // Rounded to 3 decimals; with no days left the intrinsic value, unrounded.
    double SimCallValue(double S, double K, double r, double days) const;
    double SimPutValue(double S, double K, double r, double days) const;
};

} // namespace tallimark::scenario
