#include "pricing/IndexEngine.h"

#include "frame/VbNumber.h"

#include <cmath>

namespace tallimark::pricing {
namespace {

constexpr double kPi = 3.14159265;

double years(const IndexInputs& in) {
    return vb::div(in.days, 365);
}

// Per-day theta; the put adds the carry term where the call takes it off.
double theta(const IndexInputs& in, double d1, double d2, bool call) {
    const double T = years(in);
    if (T <= 0) return 0;
    const double decay = vb::div(-in.S * IndexEngine::NormDensityIndex(d1) * in.sigma, 2 * vb::sqr(T));
    const double rate = in.K * in.r * vb::exp(-in.r * T);
    const double perYear =
        call ? decay - rate * IndexEngine::CumNormal(d2) : decay + rate * IndexEngine::CumNormal(-d2);
    return Round(vb::checked(perYear / 365), 3);
}

} // namespace

void IndexEngine::CalcD1Index(const IndexInputs& in) {
    const double T = years(in);
    if (T > 0)
        d1_ = vb::div(vb::log(vb::div(in.S, in.K)) + (in.r + vb::pow(in.sigma, 2) / 2) * T,
                      vb::sqr(T) * in.sigma);
}

void IndexEngine::CalcD2Index(const IndexInputs& in) {
    const double T = years(in);
    if (T > 0) d2_ = d1_ - vb::sqr(T) * in.sigma;
}

double IndexEngine::CumNormal(double x) {
    const double k = vb::div(1, 1 + 0.2316419 * std::abs(x));
    const double poly = 0.31938153 * k - 0.356563782 * vb::pow(k, 2) + 1.781477937 * vb::pow(k, 3) -
                        1.821255978 * vb::pow(k, 4) + 1.330274429 * vb::pow(k, 5);
    const double q = 1 - NormDensityIndex(x) * poly;
    return x >= 0 ? q : 1 - q;
}

double IndexEngine::NormDensityIndex(double x) {
    return vb::div(vb::exp(-vb::pow(x, 2) / 2), vb::sqr(2 * kPi));
}

double IndexEngine::PriceCallIndex(const IndexInputs& in) const {
    if (in.days == 0) return in.S > in.K ? std::abs(in.S - in.K) : 0;
    const double T = years(in);
    return Round(vb::checked(in.S * CumNormal(d1_) - in.K * vb::exp(-in.r * T) * CumNormal(d2_)), 3);
}

double IndexEngine::PricePutIndex(const IndexInputs& in) const {
    if (in.days == 0) return in.S < in.K ? std::abs(in.K - in.S) : 0;
    const double T = years(in);
    return Round(vb::checked(vb::exp(-in.r * T) * in.K * CumNormal(-d2_) - in.S * CumNormal(-d1_)), 3);
}

double IndexEngine::DeltaCallIndex(const IndexInputs& in) const {
    if (in.days == 0) return in.S > in.K ? 1 : in.S < in.K ? 0 : 0.5;
    return Round(CumNormal(d1_), 3);
}

double IndexEngine::DeltaPutIndex(const IndexInputs& in) const {
    if (in.days == 0) return in.S > in.K ? 0 : in.S < in.K ? -1 : -0.5;
    return Round(CumNormal(d1_) - 1, 3);
}

double IndexEngine::GammaIndex(const IndexInputs& in) const {
    const double T = years(in);
    if (T <= 0) return 0;
    return Round(vb::div(NormDensityIndex(d1_), in.S * in.sigma * vb::sqr(T)), 3);
}

double IndexEngine::VegaIndex(const IndexInputs& in) const {
    const double T = years(in);
    if (T <= 0) return 0;
    return Round(vb::checked(vb::sqr(T) * in.S * NormDensityIndex(d1_) / 100), 3);
}

double IndexEngine::ThetaCallIndex(const IndexInputs& in) const {
    return theta(in, d1_, d2_, true);
}
double IndexEngine::ThetaPutIndex(const IndexInputs& in) const {
    return theta(in, d1_, d2_, false);
}

} // namespace tallimark::pricing
