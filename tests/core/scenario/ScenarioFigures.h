#pragma once
// The expected simulation tables of the scenario tests, printed by scenario_figures.py:
//     python3 tests/core/scenario/scenario_figures.py > tests/core/scenario/ScenarioFigures.h
// For each saved sheet of SheetScenarios.h as it opens: Market, Intrinsic and Simulation.

namespace tallimark::test::figures {

inline const char* const kStockLiveSimulation[5][3] = {
    {"960", "-743", "-793"},  {"980", "-346", "-533"},  {"1000", " 57", " 27"},
    {"1020", " 460", " 427"}, {"1040", " 868", " 827"},
};

inline const char* const kStockExpirySimulation[5][3] = {
    {"960", "-793", "-793"},  {"980", "-533", "-533"},  {"1000", " 27", " 27"},
    {"1020", " 427", " 427"}, {"1040", " 827", " 827"},
};

inline const char* const kIndexLiveSimulation[5][3] = {
    {"5800", "-6881.25", "-7350"}, {"5900", "-3769.25", "-4650"}, {"6000", "-263.75", "-4450"},
    {"6100", " 3685.25", " 750"},  {"6200", " 8051.5", " 5950"},
};

inline const char* const kIndexExpirySimulation[5][3] = {
    {"5800", "-7350", "-7350"}, {"5900", "-4650", "-4650"}, {"6000", "-4450", "-4450"},
    {"6100", " 750", " 750"},   {"6200", " 5950", " 5950"},
};

} // namespace tallimark::test::figures
