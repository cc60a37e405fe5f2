// What the scenario screens cost on a full ladder: the simulation of a 100-strike sheet with
// units on every row (100 prices, each over 200 rows with two trees), the Greek graph of a sheet
// with 30 days to run (31 days over 200 rows with two trees and the closed forms), and the
// simulation's tree in its two builds.
#include "frame/App.h"
#include "frame/ScriptedUi.h"
#include "frame/VbNumber.h"
#include "scenario/FrmNewGraphGreek.h"
#include "scenario/SimulationFill.h"
#include "scenario/SimulationPricing.h"
#include "sheet/RiskSheet.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

using namespace tallimark;

constexpr int kStrikes = 100;

// A stock sheet on the desk with no store behind it: the fields and the ladder the scenario
// screens read, 100 strikes from 505 to 1495, a position on every call and put.
class ScenarioBenchDesk {
public:
    explicit ScenarioBenchDesk(const char* days) {
        RiskSheet& sheet = riskSheet(app_, SheetKind::Stock);
        sheet.IntRate = 0.07;
        for (const auto& [field, value] : {std::pair{"TxtMktPrice", "1000"},
                                           {"TxtDays", days},
                                           {"TxtImpVol", "30"},
                                           {"TxtImpVolP", "32"},
                                           {"TxtCurDt", "23-11-2026"},
                                           {"TxtExpDt", "23-12-2026"},
                                           {"TxtPremium", "-1500"},
                                           {"TxtFutLots", "-50"},
                                           {"TxtFutTrade", "990"}})
            sheet.setText(field, value);
        Grid& g = sheet.va1();
        g.setMaxRows(2 * kStrikes + 1);
        for (int k = 0; k < kStrikes; ++k)
            for (int side = 0; side < 2; ++side) {
                const int row = 2 + 2 * k + side;
                g.setText(row, 1, NumText(505.0 + 10 * k));
                g.setText(row, 2, side ? "P" : "C");
                g.setText(row, 3,
                          NumText(static_cast<double>(
                              (k * 7 + side * 3) % 21 - 10 == 0 ? 4 : (k * 7 + side * 3) % 21 - 10)));
            }
    }
    ~ScenarioBenchDesk() {
        std::error_code ec;
        std::filesystem::remove_all(dir_, ec);
    }
    RiskSheet& sheet() { return riskSheet(app_, SheetKind::Stock); }
    App& app() { return app_; }
    size_t boxes() const { return ui_.boxes().size(); }

private:
    std::filesystem::path dir_ = std::filesystem::temp_directory_path() / "tallimark-scenario-bench";
    ScriptedUi ui_;
    Clock clock_;
    App app_{ui_, clock_, dir_};
};

void BM_StockSimulation(benchmark::State& state) {
    ScenarioBenchDesk desk("20");
    Grid list("ListView1", 3, [] {});
    for (auto _ : state) {
        list.setMaxRows(0);
        SimulationFill(desk.sheet(), sheetMarket(desk.sheet()), [](const char*, const std::exception&) {
        }).appendRows(list);
    }
    if (desk.boxes() != 0 || list.maxRows() != kStrikes)
        state.SkipWithError("the simulation did not run whole");
}
BENCHMARK(BM_StockSimulation)->Unit(benchmark::kMillisecond);

void BM_StockGreekGraph(benchmark::State& state) {
    ScenarioBenchDesk desk("30");
    FrmNewGraphGreek& graph = desk.app().screens().get<FrmNewGraphGreek>();
    graph.launch(desk.sheet(), "Stk");
    for (auto _ : state)
        graph.entry();
    if (desk.boxes() != 0 || graph.grid("ListView1").maxRows() != 31)
        state.SkipWithError("the Greek graph did not run whole");
}
BENCHMARK(BM_StockGreekGraph)->Unit(benchmark::kMillisecond);

// A call at the money with twenty days to run, as a simulated price meets it.
void BM_SimulationTreePlain(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(scenario::BinomialValue(1000, 1000, 20 * 0.5 / 180, 0.07, 0.3, 0.1, 100,
                                                         pricing::OptionSide::Call));
}
BENCHMARK(BM_SimulationTreePlain)->Unit(benchmark::kMicrosecond);

void BM_SimulationTreeFast(benchmark::State& state) {
    scenario::SimulationTree tree;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            tree(1000, 1000, 20 * 0.5 / 180, 0.07, 0.3, 0.1, 100, pricing::OptionSide::Call));
}
BENCHMARK(BM_SimulationTreeFast)->Unit(benchmark::kMicrosecond);

} // namespace
