#include "scenario/FrmNewGraphGreek.h"

#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

using pricing::OptionSide;

namespace {

const char* const kHeadings[] = {"Days", "Delta", "Theta", "Vega", "Gamma"};
const char* const kOptions[] = {"Option1", "Option2", "Option3", "Option4"};

bool zeroOrEmpty(const std::string& text) {
    const std::string t = Trim(text);
    return t.empty() || t == "0";
}

} // namespace

FrmNewGraphGreek::FrmNewGraphGreek(App& app)
    : GraphScreen(app, kName, "(Greek Values v/s Days Remaining)....By Tallimark") {
    const char* const captions[] = {"&Delta", "&Theta", "&Vega", "&Gamma"};
    for (int k = 0; k < 4; ++k) {
        addControl(ControlKind::OptionButton, kOptions[k], captions[k]);
        on(kOptions[k], EventType::Click, [this, k](Event&) {
            // The four options share one frame: the chosen one clears the others.
            for (int other = 0; other < 4; ++other)
                if (other != k) setValue(kOptions[other], false);
            greekChosen(k + 1);
        });
    }
    addControl(ControlKind::Button, "Command1", "Greek &Simulation");
    on("Command1", EventType::Click, [this](Event&) { showTable(); });
    for (const char* heading : kHeadings)
        addControl(ControlKind::Label, std::string("Label_") + heading, heading);
    Grid& list = addGrid(kList, 5);
    for (int c = 1; c <= 5; ++c) {
        list.column(c).heading = kHeadings[c - 1];
        list.column(c).width = 12;
    }
    wireKeys();
}

void FrmNewGraphGreek::entry() {
    RiskSheet& sheet = sourceSheet();
    GreekPrice = Val(text("TxtMktPrice"));
    Grid& list = grid(kList);
    list.setMaxRows(0);
    for (GreekDay = CInt(Val(text("TxtDays"))); GreekDay >= 0; --GreekDay) {
        const int row = list.maxRows() + 1;
        list.setMaxRows(row);
        list.setText(row, 1, NumText(static_cast<int64_t>(GreekDay)));
        FillLViewData(sheet);
        list.setText(row, 2, NumText(Round(DeltaTotal, 1)));
        list.setText(row, 3, NumText(Round(ThetaTotal, 1)));
        list.setText(row, 5, NumText(Round(GammaTotal, 1)));
        list.setText(row, 4, NumText(Round(VegaTotal, 1)));
    }
    GraphCount = list.maxRows();
    // Setting the first option runs its handler even where it was already the chosen one.
    const bool already = control(kOptions[0]).value;
    setValue(kOptions[0], true);
    if (already) greekChosen(1);
}

void FrmNewGraphGreek::FillLViewData(RiskSheet& sheet) {
    const bool index = GraphType == "Index";
    try {
        if (zeroOrEmpty(text("TxtMktPrice")) || Trim(text("TxtDays")).empty() ||
            zeroOrEmpty(text("TxtVolC")) || zeroOrEmpty(text("TxtVolP")))
            return;
        // Only the ladder counts: the futures position adds no delta and no gamma here.
        DeltaTotal = ThetaTotal = VegaTotal = GammaTotal = 0;
        const double sigmaC = CDbl(text("TxtVolC")) / 100;
        const double sigmaP = CDbl(text("TxtVolP")) / 100;
        const int last = CInt(static_cast<double>(sheet.va1().dataRowCount()));
        for (int row = 2; row <= last; ++row) {
            if (index)
                indexRow(sheet, row, sigmaC, sigmaP);
            else
                stockRow(sheet, row,
                         {GreekPrice, 0, sheet.IntRate, sigmaC, sigmaP, static_cast<double>(GreekDay)});
        }
    } catch (const std::exception& e) {
        failureBox(index ? "FillLViewDataIndex" : "FillLViewData", e);
    }
}

double FrmNewGraphGreek::rowUnits(RiskSheet& sheet, int row) const {
    const std::string& units = sheet.va1().text(row, 3);
    return units.empty() ? 0 : CDbl(units);
}

void FrmNewGraphGreek::stockRow(RiskSheet& sheet, int row, const pricing::StockInputs& sheetIn) {
    const Grid& ladder = sheet.va1();
    pricing::StockInputs in = sheetIn;
    in.K = CDbl(ladder.text(row, 1));
    const double Units = rowUnits(sheet, row);
    const bool call = ladder.text(row, 2) == "C";
    const double sigma = call ? in.sigmaC : in.sigmaP;
    const OptionSide side = call ? OptionSide::Call : OptionSide::Put;
    // The ladder's clock: both volatilities below 50% for 180.
    const auto [T, T1] = pricing::ladderClocks(in);
    const pricing::BinomialFigures today =
        stock_.CalcBinomial(in.S, in.K, T, in.r, sigma, kCarry, kSteps, side);
    // The closed-form theta runs for its faults alone; the row's theta is the two trees' difference.
    (void)(call ? stock_.ThetaCall(in) : stock_.ThetaPut(in));
    const double vega = call ? stock_.VegaCall(in) : stock_.VegaPut(in);
    const double gamma = call ? stock_.GammaCall(in) : stock_.GammaPut(in);
    double RowTheta = 0;
    if (T > 0)
        RowTheta = today.value - stock_.CalcBinomialNext(in.S, in.K, T1, in.r, sigma, kCarry, kSteps, side);
    if (call || T >= 0) DeltaTotal = DeltaTotal - Units * today.delta / 100;
    if (GreekDay > 0) ThetaTotal = ThetaTotal - Units * RowTheta;
    GammaTotal = GammaTotal + Units * gamma;
    VegaTotal = VegaTotal + Units * vega;
}

void FrmNewGraphGreek::indexRow(RiskSheet& sheet, int row, double sigmaC, double sigmaP) {
    const Grid& ladder = sheet.va1();
    const bool call = ladder.text(row, 2) == "C";
    const pricing::IndexInputs in{GreekPrice, CDbl(ladder.text(row, 1)), sheet.IntRate,
                                  call ? sigmaC : sigmaP, static_cast<double>(GreekDay)};
    const double Units = rowUnits(sheet, row);
    index_.CalcD1Index(in);
    index_.CalcD2Index(in);
    (void)(call ? index_.PriceCallIndex(in) : index_.PricePutIndex(in));
    // The delta in the ladder's hundreds, and each side's own theta.
    const double RowDelta =
        Round(vb::checked((call ? index_.DeltaCallIndex(in) : index_.DeltaPutIndex(in)) * 100), 3);
    const double RowTheta = call ? index_.ThetaCallIndex(in) : index_.ThetaPutIndex(in);
    DeltaTotal = DeltaTotal - Units * RowDelta / 100;
    if (GreekDay > 0) ThetaTotal = ThetaTotal - Units * RowTheta;
    GammaTotal = GammaTotal + Units * index_.GammaIndex(in);
    VegaTotal = VegaTotal + Units * index_.VegaIndex(in);
}

int FrmNewGraphGreek::chosenColumn() const {
    for (int k = 0; k < 4; ++k)
        if (control(kOptions[k]).value) return k + 2;
    return 2;
}

void FrmNewGraphGreek::greekChosen(int option) {
    grid(kList).visible = false;
    markChanged(kList);
    picture().Cls();
    setVisible(kPicture, true);
    GraphCount = grid(kList).maxRows();
    const int col = option + 1;
    plot({grid(kList),
          GraphCount,
          CalcGreekRange(grid(kList), col, GraphCount),
          {{col, kTimeLeftLine()}},
          {}});
}

void FrmNewGraphGreek::showTable() {
    grid(kList).visible = true;
    markChanged(kList);
    setVisible(kPicture, false);
}

void FrmNewGraphGreek::marketMoved() {
    // The figures stay: only the range and the drawing of the Greek chosen are done again.
    greekChosen(chosenColumn() - 1);
}

std::string FrmNewGraphGreek::readOut(Rgb color, double x, double y) {
    if (!plot_ || color != kTimeLeftLine()) return {};
    return "X = " + NumText(Round(plot_->XVal(x), 0)) + " " + "Y = " + NumText(Round(plot_->YVal(y), 3));
}

} // namespace tallimark
