#include "pricing/StockEngine.h"

#include "frame/VbError.h"
#include "frame/VbNumber.h"

namespace tallimark::pricing {
namespace {

// The stock sheet's pi, 22/7, as the desk has always priced with it.
constexpr double kPi = 22.0 / 7.0;

// Density at d1; d1 loses its division by sqrt(T)*sigma when no time is left.
double density(const StockInputs& in, double sigma) {
    const double T = treeYears(in.days, kHalfYear366);
    const double x = vb::log(vb::div(in.S, in.K)) + (in.r + vb::pow(sigma, 2) / 2) * T;
    const double d1 = T > 0 ? vb::div(x, vb::sqr(T) * sigma) : x;
    return vb::div(vb::exp(-vb::pow(d1, 2) / 2), vb::sqr(2 * kPi));
}

double gamma(const StockInputs& in, double sigma) {
    const double T = vb::div(in.days, 365);
    if (T == 0) return 0;
    const double dens = density(in, sigma);
    return Round(vb::div(dens, in.S * sigma * vb::sqr(T)), 3);
}

double vega(const StockInputs& in, double sigma) {
    const double root = vb::sqr(vb::div(in.days, 365));
    const double dens = density(in, sigma);
    return Round(vb::checked(root * in.S * dens / 100), 3);
}

// Both sides take sigma C and the call density; only the clock and the sign of the carry differ.
// With one day left the clock is 0.5/halfYear, which days*0.5/halfYear gives at days = 1.
double theta(const StockInputs& in, OptionSide side, double optionValue) {
    const bool call = side == OptionSide::Call;
    if (!(in.days > 1)) {
        if (in.days != 1) return 0;
        if (call ? in.S <= in.K : in.S >= in.K) return Round(optionValue, 3);
    }
    const double halfYear = call ? kHalfYear366 : kHalfYear360;
    const double T = treeYears(in.days, halfYear);
    const double sigma = in.sigmaC;
    const double root = vb::sqr(T);
    const double d1 =
        vb::div(vb::log(vb::div(in.S, in.K)) + (in.r + vb::pow(sigma, 2) / 2) * T, sigma * root);
    const double d2 = d1 - sigma * root;
    const double dens = density(in, sigma);
    const double decay = vb::div(-in.S * dens * sigma, 2 * root);
    const double carry = in.K * in.r * vb::exp(-in.r * T) * CalcD1(call ? d2 : -d2);
    return Round(vb::checked((call ? decay - carry : decay + carry) * 0.5 / halfYear), 3);
}

} // namespace

double treeYears(double days, double halfYear) {
    return days * 0.5 / halfYear;
}

TreeClocks ladderClocks(const StockInputs& in) {
    const bool on360 = in.K <= in.S && in.sigmaC < 0.5 && in.sigmaP < 0.5;
    const double halfYear = on360 ? kHalfYear360 : kHalfYear366;
    return {treeYears(in.days, halfYear), treeYears(in.days - 1, halfYear)};
}

double CalcD1(double x) {
    const double h = 0.099;
    double sum = 0;
    double t = h / 2 - 5;
    while (t < x && t < 4) {
        sum = sum + vb::exp(-t * t / 2) * h;
        t = t + h;
    }
    return Round(vb::div(sum, vb::sqr(2 * kPi)), 4);
}

BinomialFigures StockEngine::CalcBinomial(double S, double K, double T, double r, double sigma, double b,
                                          int n, OptionSide cp) {
    const TreeArgs a{S, K, T, r, sigma, b, n, cp};
    const TreeResult t = tree_(a);
    optionValue_ = t.value;
    const double value = Round(t.value, 2);
    return {value, Round(vb::checked(treeDelta(a, t) * 100), 3)};
}

double StockEngine::CalcBinomialNext(double S, double K, double T1, double r, double sigma, double b, int n,
                                     OptionSide cp) {
    const TreeResult t = tree_(TreeArgs{S, K, T1, r, sigma, b, n, cp});
    optionValue_ = t.value;
    return Round(t.value, 3);
}

double StockEngine::NormDensityC(const StockInputs& in) const {
    return density(in, in.sigmaC);
}
double StockEngine::NormDensityP(const StockInputs& in) const {
    return density(in, in.sigmaP);
}
double StockEngine::GammaCall(const StockInputs& in) const {
    return gamma(in, in.sigmaC);
}
double StockEngine::GammaPut(const StockInputs& in) const {
    return gamma(in, in.sigmaP);
}
double StockEngine::VegaCall(const StockInputs& in) const {
    return vega(in, in.sigmaC);
}
double StockEngine::VegaPut(const StockInputs& in) const {
    return vega(in, in.sigmaP);
}
double StockEngine::ThetaCall(const StockInputs& in) const {
    return theta(in, OptionSide::Call, optionValue_);
}
double StockEngine::ThetaPut(const StockInputs& in) const {
    return theta(in, OptionSide::Put, optionValue_);
}

} // namespace tallimark::pricing
