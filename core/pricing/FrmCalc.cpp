#include "pricing/FrmCalc.h"

#include "frame/ComProc.h"
#include "frame/VbNumber.h"

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace tallimark {

using vb::div;
using vb::sqr;

FrmCalc::FrmCalc(App& app) : Form(app, kName, "Calculator") {
    const char* const inputs[][3] = {{"Text1", "strike", "90"},
                                     {"Text2", "price", "100"},
                                     {"Text3", "Days", "90"},
                                     {"Text4", "Volatility", "20"},
                                     {"Text5", "Rate", "10"}};
    for (const auto& in : inputs) {
        addControl(ControlKind::Label, std::string("Label_") + in[0], in[1]);
        addControl(ControlKind::TextBox, in[0], in[2]);
    }
    addControl(ControlKind::Button, "Command1", "Calculate");
    for (const char* heading : {"price", "delta", "theta", "rho", "vega", "gama"})
        addControl(ControlKind::Label, std::string("Label_") + heading, heading);
    for (int i = 6; i <= 15; ++i)
        addControl(ControlKind::TextBox, "Text" + std::to_string(i)).locked = true;

    on("Form", EventType::Load, [this](Event&) { pi = 3.14285714285714; });
    on("Command1", EventType::Click, [this](Event&) { compute_derivatives(); });
    for (int i = 1; i <= 5; ++i) {
        const std::string field = "Text" + std::to_string(i);
        on(field, EventType::GotFocus, [this, field](Event&) { SelectAll(*this, field); });
        on(field, EventType::KeyDown, [this](Event& e) { EnterAsTab(*this, e.keyCode); });
    }
}

double FrmCalc::erf(double x) const {
    const double step = 0.099;
    double sum = 0;
    double z = -5 + step / 2;
    while (z < x && z < 4) {
        sum = sum + step * std::exp(-z * z / 2);
        z = z + step;
    }
    return Round(sum / sqr(2 * pi), 4);
}

double FrmCalc::B_S_call(double S, double K, double T, double v, double r) const {
    const double d1 = div(vb::log(div(S, K)) + T * (r + v * v / 2), v * sqr(T));
    const double d2 = d1 - v * sqr(T);
    return vb::checked(S * erf(d1) - K * vb::exp(-r * T) * erf(d2));
}

double FrmCalc::B_S_put(double S, double K, double T, double v, double r) const {
    const double d1 = div(vb::log(div(S, K)) + T * (r + v * v / 2), v * sqr(T));
    const double d2 = d1 - v * sqr(T);
    return vb::checked(K * vb::exp(-r * T) * erf(-d2) - S * erf(-d1));
}

double FrmCalc::roundToPennies(double x) {
    return Round(x * 10000, 0) / 10000;
}

void FrmCalc::compute_derivatives() {
    // The strike and price are taken as they stand and converted where they are used; the
    // other three are read as numbers at once. Every figure is worked out before any output
    // is written, so a failure leaves the outputs as they were.
    const std::string Ktext = text("Text1");
    const std::string Stext = text("Text2");
    const double T = CDbl(text("Text3")) / 365;
    const double v = CDbl(text("Text4")) / 100;
    const double r = CDbl(text("Text5")) / 100;
    const double S = CDbl(Stext);
    const double K = CDbl(Ktext);

    const double Call = B_S_call(S, K, T, v, r);
    const double Put = B_S_put(S, K, T, v, r);
    const double d1 = div(vb::log(div(S, K)) + T * (r + v * v / 2), v * sqr(T));
    const double d2 = d1 - v * sqr(T);
    const double nd1 = div(std::exp(-d1 * d1 / 2), sqr(2 * pi));
    const double callDelta = erf(d1);
    const double putDelta = callDelta - 1;
    const double callTheta =
        vb::checked(div(-S * nd1 * v, 2 * sqr(T)) - r * K * vb::exp(-r * T) * erf(d2)) / 365;
    const double putTheta =
        vb::checked(div(-S * nd1 * v, 2 * sqr(T)) + r * K * vb::exp(-r * T) * erf(-d2)) / 365;
    const double callRho = vb::checked(K * T * vb::exp(-r * T) * erf(d2) / 100);
    const double putRho = vb::checked(-K * T * vb::exp(-r * T) * erf(-d2) / 100);
    const double vega = vb::checked(S * sqr(T) * nd1 / 100);
    const double gamma = div(nd1, S * v * sqr(T));

    const std::pair<const char*, double> outputs[] = {
        {"Text6", Call},       {"Text7", Put},       {"Text8", callDelta}, {"Text9", putDelta},
        {"Text10", callTheta}, {"Text11", putTheta}, {"Text13", callRho},  {"Text14", putRho},
        {"Text12", vega},      {"Text15", gamma}};
    // The texts too: a figure too large to write fails before any output changes.
    std::vector<std::pair<const char*, std::string>> texts;
    for (const auto& [field, value] : outputs)
        texts.emplace_back(field, NumText(roundToPennies(value)));
    for (auto& [field, text] : texts)
        setText(field, std::move(text));
}

} // namespace tallimark
