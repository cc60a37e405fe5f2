#pragma once
// The index sheet's pricing: closed-form Black-Scholes on a Days/365 clock. D1 and D2 are members
// that live from row to row: a row with no time left prices with those of the row before it.
// Faults raise VbError, to be caught by the caller's trap.

namespace tallimark::pricing {

// The sheet's figures for the row in hand.
struct IndexInputs {
    double S = 0;     // market price of the index
    double K = 0;     // CurStrike
    double r = 0;     // interest rate, fraction
    double sigma = 0; // CurVol: the row's own volatility, fraction
    double days = 0;  // CurDays
};

class IndexEngine {
public:
    // Set D1 and D2 when time is left; otherwise leave them as the last row left them.
    void CalcD1Index(const IndexInputs& in);
    void CalcD2Index(const IndexInputs& in);
    double d1() const { return d1_; }
    double d2() const { return d2_; }

    // Abramowitz and Stegun 26.2.17, good to about 7.5e-8.
    static double CumNormal(double x);
    // Standard normal density, with the index sheet's pi of 3.14159265.
    static double NormDensityIndex(double x);

    // Rounded to 3 decimals. With no days left: the intrinsic value, unrounded.
    double PriceCallIndex(const IndexInputs& in) const;
    double PricePutIndex(const IndexInputs& in) const;
    // Rounded to 3 decimals. With no days left: 1 or 0 (call), 0 or -1 (put), half at the money.
    double DeltaCallIndex(const IndexInputs& in) const;
    double DeltaPutIndex(const IndexInputs& in) const;
    // Rounded to 3 decimals; 0 with no time left. Theta is per calendar day.
    double GammaIndex(const IndexInputs& in) const;
    double VegaIndex(const IndexInputs& in) const;
    double ThetaCallIndex(const IndexInputs& in) const;
    double ThetaPutIndex(const IndexInputs& in) const;

private:
    double d1_ = 0;
    double d2_ = 0;
};

} // namespace tallimark::pricing
