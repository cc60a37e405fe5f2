#pragma once
// The stand-alone calculator: European Black-Scholes prices and sensitivities from five typed
// inputs. It is the textbook sibling of the sheet's pricing and deliberately keeps its own
// distribution (a coarse midpoint sum), its own pi and its four-decimal rounding.
#include "frame/Form.h"

namespace tallimark {

class FrmCalc : public Form {
public:
    static constexpr const char* kName = "FrmCalc";
    explicit FrmCalc(App& app);

    // The cumulative normal distribution by a midpoint sum, in spite of its name.
    double erf(double x) const;
    double B_S_call(double S, double K, double T, double v, double r) const;
    double B_S_put(double S, double K, double T, double v, double r) const;
    static double roundToPennies(double x);
    void compute_derivatives();

private:
    double pi = 0;
};

} // namespace tallimark
