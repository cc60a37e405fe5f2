#pragma once
// Two saved stock sheets side by side, typically two expiries of one script: their Greeks, hedge
// figures, premium and balance added up, each recalculated at an edited market price, days and
// volatilities, and a net balance graph. The sheets are worked on two hidden sheet screens of the
// comparison's own, so that an open sheet stays as it is.
#include "frame/Canvas.h"
#include "scenario/GraphPlot.h"
#include "scenario/TwoContractScreen.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace tallimark {

class RiskSheet;

class FrmTwoContract : public TwoContractScreen, public PictureScreen {
public:
    static constexpr const char* kName = "FrmTwoContract";
    explicit FrmTwoContract(App& app);
    ~FrmTwoContract() override;

    // The figures of both sheets from their saved heads.
    void DoInit() override;
    // Both sheets priced again at this screen's market price, days and volatilities.
    void CmdCalculate();
    // The three lists at the first sheet's strikes and the graph of the first sheet's.
    void DointGraph();

    Canvas& picture() override { return *canvas_; }

private:
    void addFields();
    void initSheet(int k, const std::string& symbol, const std::string& descr, const std::string& refreshDt,
                   std::array<double, 6>& figures, double& neutral);
    void cmdGraph();
    void validateMarket();
    // The hidden sheet of pass k (1 or 2), loaded as the program's current sheet for as long as
    // the work runs, with this screen's market inputs.
    void loadHidden(int k, const std::function<void(RiskSheet&)>& work);
    // The critical box of a failed command: its number, then its text.
    void errorBox(const char* title, const std::exception& e);

    std::array<std::unique_ptr<RiskSheet>, 2> hidden_;
    std::unique_ptr<Canvas> canvas_;
};

} // namespace tallimark
