// What a sheet refresh costs: the tree in its two builds, a whole stock ladder, an index row.
#include "pricing/IndexEngine.h"
#include "pricing/StockEngine.h"
#include "pricing/StockTree.h"

#include <benchmark/benchmark.h>

namespace {

using namespace tallimark::pricing;

// An at-the-money call with twenty days to run.
TreeArgs typicalRow() {
    return {1000, 1000, treeYears(20, kHalfYear360), 0.07, 0.3, 0.1, 100, OptionSide::Call};
}

// Time per tree rather than per iteration.
void perTree(benchmark::State& state, double trees) {
    state.counters["per_tree"] = benchmark::Counter(trees, benchmark::Counter::kIsIterationInvariantRate |
                                                               benchmark::Counter::kInvert);
}

void BM_PlainTree(benchmark::State& state) {
    const TreeArgs a = typicalRow();
    for (auto _ : state)
        benchmark::DoNotOptimize(plainTree(a));
    perTree(state, 1);
}
BENCHMARK(BM_PlainTree)->Unit(benchmark::kMicrosecond);

// Every tree meets a new u, so its powers are worked out afresh.
void BM_FastTreeColdPowers(benchmark::State& state) {
    FastTree tree;
    TreeArgs a = typicalRow();
    int k = 0;
    for (auto _ : state) {
        a.sigma = 0.3 + 1e-6 * (k++ % 64);
        benchmark::DoNotOptimize(tree(a));
    }
    perTree(state, 1);
}
BENCHMARK(BM_FastTreeColdPowers)->Unit(benchmark::kMicrosecond);

void BM_FastTreeWarmPowers(benchmark::State& state) {
    FastTree tree;
    const TreeArgs a = typicalRow();
    for (auto _ : state)
        benchmark::DoNotOptimize(tree(a));
    perTree(state, 1);
}
BENCHMARK(BM_FastTreeWarmPowers)->Unit(benchmark::kMicrosecond);

// A refresh of the ladder's trees: 100 strikes round 1000, a call and a put row each, today's
// tree and the next day's, on the clocks the fill uses.
void BM_StockLadderTrees(benchmark::State& state) {
    StockEngine engine;
    StockInputs in{1000, 0, 0.07, 0.32, 0.35, 20};
    for (auto _ : state) {
        for (int k = 0; k < 100; ++k) {
            in.K = 500 + 10 * k;
            const TreeClocks c = ladderClocks(in);
            benchmark::DoNotOptimize(
                engine.CalcBinomial(in.S, in.K, c.T, in.r, in.sigmaC, 0.1, 100, OptionSide::Call));
            benchmark::DoNotOptimize(
                engine.CalcBinomialNext(in.S, in.K, c.T1, in.r, in.sigmaC, 0.1, 100, OptionSide::Call));
            benchmark::DoNotOptimize(
                engine.CalcBinomial(in.S, in.K, c.T, in.r, in.sigmaP, 0.1, 100, OptionSide::Put));
            benchmark::DoNotOptimize(
                engine.CalcBinomialNext(in.S, in.K, c.T1, in.r, in.sigmaP, 0.1, 100, OptionSide::Put));
        }
    }
    perTree(state, 400);
}
BENCHMARK(BM_StockLadderTrees)->Unit(benchmark::kMicrosecond);

// The closed forms a stock row adds to its trees.
void BM_StockRowClosedForms(benchmark::State& state) {
    StockEngine engine;
    const StockInputs in{1000, 1040, 0.07, 0.32, 0.35, 20};
    for (auto _ : state) {
        benchmark::DoNotOptimize(engine.ThetaCall(in));
        benchmark::DoNotOptimize(engine.VegaCall(in));
        benchmark::DoNotOptimize(engine.GammaCall(in));
    }
}
BENCHMARK(BM_StockRowClosedForms);

// One index row as the fill prices it.
void BM_IndexRow(benchmark::State& state) {
    IndexEngine engine;
    const IndexInputs in{18000, 18200, 0.07, 0.14, 20};
    for (auto _ : state) {
        engine.CalcD1Index(in);
        engine.CalcD2Index(in);
        benchmark::DoNotOptimize(engine.VegaIndex(in));
        benchmark::DoNotOptimize(engine.GammaIndex(in));
        benchmark::DoNotOptimize(engine.PriceCallIndex(in));
        benchmark::DoNotOptimize(engine.DeltaCallIndex(in));
        benchmark::DoNotOptimize(engine.ThetaCallIndex(in));
    }
}
BENCHMARK(BM_IndexRow);

} // namespace
