#pragma once
// The stock and futures sheet's pricing: the tree for the ladder's price, delta and next-day
// value, and closed forms for gamma, vega and theta. The sheet hands in its figures; the engine
// reads no field. Faults raise VbError, to be caught by the caller's trap.
#include "pricing/StockTree.h"

namespace tallimark::pricing {

// The sheet's figures as a formula reads them.
struct StockInputs {
    double S = 0;      // market price of the underlying
    double K = 0;      // strike of the row in hand
    double r = 0;      // interest rate, fraction
    double sigmaC = 0; // call volatility, fraction
    double sigmaP = 0; // put volatility, fraction
    double days = 0;   // days to expiry, as the field gives them
};

// Years on the tree's clock: days*0.5/halfYear, with half a 360-day year (180) or half a
// 366.4-day year (183.2).
inline constexpr double kHalfYear360 = 180;
inline constexpr double kHalfYear366 = 183.2;
double treeYears(double days, double halfYear);

// The two clocks of a ladder row: T for today's tree and T1, a day on, for the next-day tree.
// In-the-money calls (K <= S) on a sheet whose volatilities are both below 50% count on 180;
// every other row counts on 183.2.
struct TreeClocks {
    double T = 0;
    double T1 = 0;
};
TreeClocks ladderClocks(const StockInputs& in);

// Cumulative normal by a midpoint sum from -5 with step 0.099, rounded to 4 decimals. It tops out
// at 0.9998 from x = 4 and is 0 below -4.9505. The sheet's own trap turns a fault here into the
// box "Error in CalcD1 Procedure: " and a result of 0; this function only raises.
double CalcD1(double x);

// Column 5 and column 7 of a ladder row.
struct BinomialFigures {
    double value = 0; // Round(V(0), 2)
    double delta = 0; // Round(delta*100, 3)
};

class StockEngine {
public:
    // Today's tree. Sets OptionValue to V(0) before the delta is worked out.
    BinomialFigures CalcBinomial(double S, double K, double T, double r, double sigma, double b, int n,
                                 OptionSide cp);
    // The next day's tree: column 8, Round(V(0), 3). Sets OptionValue too.
    double CalcBinomialNext(double S, double K, double T1, double r, double sigma, double b, int n,
                            OptionSide cp);

    // The price of whichever tree ran last; on the last day the thetas hand it back.
    double optionValue() const { return optionValue_; }
    void setOptionValue(double v) { optionValue_ = v; }

    // Density at d1 on a Days*0.5/183.2 clock, with sigma C or sigma P.
    double NormDensityC(const StockInputs& in) const;
    double NormDensityP(const StockInputs& in) const;
    // On a Days/365 clock, rounded to 3 decimals.
    double GammaCall(const StockInputs& in) const;
    double GammaPut(const StockInputs& in) const;
    double VegaCall(const StockInputs& in) const;
    double VegaPut(const StockInputs& in) const;
    // Closed-form theta per day, rounded to 3 decimals. Both take sigma C and the call density;
    // the call counts on 183.2 and the put on 180. With one day left and the option out of the
    // money or at it, they return OptionValue: the order of calls in the fill decides its value.
    double ThetaCall(const StockInputs& in) const;
    double ThetaPut(const StockInputs& in) const;

private:
    FastTree tree_;
    double optionValue_ = 0;
};

} // namespace tallimark::pricing
