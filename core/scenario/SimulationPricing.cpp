#include "scenario/SimulationPricing.h"

#include "frame/VbError.h"
#include "frame/VbNumber.h"

#include <cfenv>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace tallimark::scenario {

using pricing::BinomialMax;
using pricing::OptionSide;

double BinomialValue(double S, double K, double T, double r, double v, double b, int n, OptionSide CP) {
    // The run-time stopped at the first overflow; plain IEEE arithmetic runs on and the sticky
    // flags tell afterwards whether any node would have stopped it.
    std::feclearexcept(FE_OVERFLOW | FE_INVALID);
    const double dt = vb::div(T, n);
    const double u = vb::exp(vb::sqr(dt) * v);
    const double d = vb::div(1, u);
    const double p = T <= 0 ? 0 : vb::div(vb::exp(b * dt) - d, u - d);
    const double Df = vb::exp(-r * dt);
    const double z = CP == OptionSide::Call ? 1 : -1;
    std::vector<double> V(static_cast<size_t>(n) + 1);
    for (int i = 0; i <= n; ++i)
        V[i] = BinomialMax(z * (S * vb::pow(u, i) * vb::pow(d, n - i) - K), 0);
    for (int j = n - 1; j >= 0; --j)
        for (int i = 0; i <= j; ++i)
            V[i] = BinomialMax(z * (S * vb::pow(u, i) * vb::pow(d, std::abs(i - j)) - K),
                               ((1 - p) * V[i] + p * V[i + 1]) * Df);
    if (std::fetestexcept(FE_OVERFLOW | FE_INVALID)) vberr::raise(vberr::Overflow);
    return Round(vb::checked(V[0]), 2);
}

double SimulationTree::operator()(double S, double K, double T, double r, double v, double b, int n,
                                  OptionSide CP) {
    // With no time left u = d = 1, p = 0 and Df = 1, so every node holds BinomialMax(z*(S - K), 0),
    // the leaf, down to the sign of a zero. Inputs that could fault take the whole walk.
    if (T == 0 && n >= 1 && std::isfinite(r) && std::isfinite(v) && std::isfinite(b)) {
        const double z = CP == OptionSide::Call ? 1 : -1;
        return Round(vb::checked(BinomialMax(z * (S - K), 0)), 2);
    }
    pricing::TreeArgs a{S, K, T, r, v, b, n, CP};
    a.exerciseOnTie = true;
    return Round(tree_(a).value, 2);
}

double SimNormal(double x) {
    const double t = vb::div(1, 1 + 0.2316419 * std::abs(x));
    const double poly = 0.31938153 * t - 0.356563782 * vb::pow(t, 2) + 1.781477937 * vb::pow(t, 3) -
                        1.821255978 * vb::pow(t, 4) + 1.330274429 * vb::pow(t, 5);
    const double q = 1 - vb::div(vb::exp(-vb::pow(x, 2) / 2), vb::sqr(6.283185308)) * poly;
    return x >= 0 ? q : 1 - q;
}

void SimClosedForm::SimCalcD1(double S, double K, double r, double vol, double days) {
    const double Y = days / 365;
    if (Y <= 0) return;
    SimD1 = vb::div(vb::log(vb::div(S, K)) + (r + vol * vol / 2) * Y, vol * vb::sqr(Y));
}

void SimClosedForm::SimCalcD2(double vol, double days) {
    const double Y = days / 365;
    if (Y <= 0) return;
    SimD2 = SimD1 - vb::sqr(Y) * vol;
}

double SimClosedForm::SimCallValue(double S, double K, double r, double days) const {
    if (days == 0) return S > K ? S - K : 0;
    const double Y = days / 365;
    return Round(vb::checked(S * SimNormal(SimD1) - vb::exp(-r * Y) * K * SimNormal(SimD2)), 3);
}

double SimClosedForm::SimPutValue(double S, double K, double r, double days) const {
    if (days == 0) return S < K ? K - S : 0;
    const double Y = days / 365;
    return Round(vb::checked(vb::exp(-r * Y) * K * SimNormal(-SimD2) - S * SimNormal(-SimD1)), 3);
}

} // namespace tallimark::scenario
