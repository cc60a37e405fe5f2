#pragma once
// The expected figures of the sheet tests, printed by sheet_figures.py beside this file:
//     python3 tests/core/sheet/sheet_figures.py > tests/core/sheet/SheetFigures.h
// For each saved sheet of SheetScenarios.h, after the opening refresh: the fields, the ladder
// rows 2 to 11 (columns 1 to 16), and the four scenario prices and balances of a save.
#include <utility>

namespace tallimark::test::figures {

inline const std::pair<const char*, const char*> kStockLiveFields[] = {
    {"TxtDays", "17"},
    {"TxtImpVolP", "32"},
    {"TxtTotDel", "-15.2"},
    {"TxtTotGamma", "0"},
    {"TxtTotVega", "0.7"},
    {"TxtTotTheta", "-3.7"},
    {"TxtCallDelta", "-10.7349"},
    {"TxtCallGamma", "0.075"},
    {"TxtCallVega", "11.22"},
    {"TxtCallTheta", "-12.8"},
    {"TxtPutDelta", "-4.51436"},
    {"TxtPutGamma", "-0.072"},
    {"TxtPutVega", "-10.508"},
    {"TxtPutTheta", "9.1"},
    {"TxtDelPts", "81.324"},
    {"TxtDelCon", "-203.31"},
    {"TxtThetaCon", "-193.5"},
    {"TxtVegaConn", "149"},
    {"TxtGamCon", "1"},
    {"TxtDelHed", "BUY  3.69"},
    {"TxtGamPts", "0.004"},
    {"TxtGamHed", "BUY  7.5"},
    {"TxtVegaPts", "0.596"},
    {"TxtVegaHed", "BUY  0.05"},
    {"TxtThePts", "-0.671"},
    {"TxtTheHed", "BUY  -0.04"},
    {"TxtAvgVol", "0"},
    {"txtdelneutral", "-20.25"},
    {"TxtPremium", "-178"},
    {"TxtOptU", "481"},
    {"TxtOptR", "24"},
    {"TxtFutU", "81"},
    {"TxtDelVal", "15.2"},
    {"TxtGamVal", "0"},
    {"TxtVegaVal", "0.7"},
    {"TxtTheVal", "-3.72"},
    {"TxtBalance", "273"},
    {"TxtEx_Magin", "858.5"},
};
inline const char* const kStockLiveLadder[10][16] = {
    {"960", "C", "0", "0", "61.62", "30", "81.324", "60.846", "0", "0.774", "0", "0.596", "0", "0.004", "0",
     "0"},
    {"960", "P", "-6", "2.83", "8.37", "32", "-20.534", "7.811", "-1.2", "0.559", "3.4", "0.622", "-3.7",
     "0.004", "0", ""},
    {"980", "C", "15", "21", "46.83", "30", "71.566", "45.98", "-10.7", "0.85", "-12.8", "0.748", "11.2",
     "0.005", "0.1", ""},
    {"980", "P", "0", "0", "13.79", "32", "-30.04", "13.155", "0", "0.635", "0", "0.76", "0", "0.005", "0",
     ""},
    {"1000", "C", "0", "0", "34.16", "30", "60.243", "33.233", "0", "0.927", "0", "0.845", "0", "0.006", "0",
     ""},
    {"1000", "P", "-8", "15", "21.41", "32", "-41.029", "20.694", "-3.3", "0.716", "5.7", "0.847", "-6.8",
     "0.006", "0", ""},
    {"1020", "C", "0", "0", "23.61", "30", "48.113", "22.695", "0", "0.915", "0", "0.867", "0", "0.006", "0",
     ""},
    {"1020", "P", "0", "0", "31.07", "32", "-52.73", "30.362", "0", "0.708", "0", "0.868", "0", "0.006", "0",
     ""},
    {"1040", "C", "0", "0", "15.7", "30", "36.39", "14.89", "0", "0.81", "0", "0.812", "0", "0.006", "0", ""},
    {"1040", "P", "0", "0", "43.22", "32", "-64.236", "42.602", "0", "0.618", "0", "0.82", "0", "0.005", "0",
     ""},
};
inline const double kStockLiveUpPrices[4] = {1111, 1212, 909, 808};
inline const double kStockLiveUpBalances[4] = {2311, 4341, -1736, -3681};

inline const std::pair<const char*, const char*> kStockExpiryFields[] = {
    {"TxtDays", "0"},       {"TxtImpVolP", "32"},   {"TxtTotDel", "-15"},    {"TxtTotGamma", "0"},
    {"TxtTotVega", "0"},    {"TxtTotTheta", "0"},   {"TxtCallDelta", "-15"}, {"TxtCallGamma", "0"},
    {"TxtCallVega", "0"},   {"TxtCallTheta", "0"},  {"TxtPutDelta", "0"},    {"TxtPutGamma", "0"},
    {"TxtPutVega", "0"},    {"TxtPutTheta", "0"},   {"TxtDelPts", "100"},    {"TxtDelCon", "-250"},
    {"TxtThetaCon", "0"},   {"TxtVegaConn", "0"},   {"TxtGamCon", "0"},      {"TxtDelHed", "BUY  3"},
    {"TxtGamPts", "0"},     {"TxtGamHed", " "},     {"TxtVegaPts", "0"},     {"TxtVegaHed", " "},
    {"TxtThePts", "0"},     {"TxtTheHed", " "},     {"TxtAvgVol", "0"},      {"txtdelneutral", "-20"},
    {"TxtPremium", "-178"}, {"TxtOptU", "300"},     {"TxtOptR", "24"},       {"TxtFutU", "31"},
    {"TxtDelVal", "19"},    {"TxtGamVal", "0"},     {"TxtVegaVal", "0"},     {"TxtTheVal", "0"},
    {"TxtBalance", "42"},   {"TxtEx_Magin", "850"},
};
inline const char* const kStockExpiryLadder[10][16] = {
    {"960", "C", "0", "0", "40", "30", "100", "0.9", "0", "0", "0", "0", "0", "0", "0", "0"},
    {"960", "P", "-6", "2.83", "0", "32", "0", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"980", "C", "15", "21", "20", "30", "100", "0.9", "-15", "0", "0", "0", "0", "0", "0", ""},
    {"980", "P", "0", "0", "0", "32", "0", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"1000", "C", "0", "0", "0", "30", "50", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"1000", "P", "-8", "15", "0", "32", "-50", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"1020", "C", "0", "0", "0", "30", "0", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"1020", "P", "0", "0", "20", "32", "-100", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"1040", "C", "0", "0", "0", "30", "0", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
    {"1040", "P", "0", "0", "40", "32", "-100", "0.9", "0", "0", "0", "0", "0", "0", "0", ""},
};
inline const double kStockExpiryUpPrices[4] = {1100, 1200, 900, 800};
inline const double kStockExpiryUpBalances[4] = {227, 727, -773, -1273};

inline const std::pair<const char*, const char*> kIndexLiveFields[] = {
    {"TxtDays", "17"},          {"TxtImpVolP", "22"},
    {"TxtDelPts", "86.1"},      {"TxtDelCon", "0"},
    {"TxtGamCon", "0.02"},      {"TxtDelHed", "SELL  -4.65"},
    {"TxtGamPts", "0.001"},     {"TxtGamHed", "SELL  -40"},
    {"TxtVegaPts", "2.89"},     {"TxtVegaHed", "SELL  -0.01"},
    {"TxtThePts", "-2.778"},    {"TxtTheHed", "SELL  0.01"},
    {"txtdelneutral", "-39.5"}, {"TxtPremium", "-4500"},
    {"TxtOptU", "6005"},        {"TxtOptR", "150"},
    {"TxtFutU", "80"},          {"TxtDelVal", "0"},
    {"TxtGamVal", "0"},         {"TxtVegaVal", "72.25"},
    {"TxtTheVal", "-98.8"},     {"TxtBalance", "1655"},
};
inline const char* const kIndexLiveLadder[10][16] = {
    {"5800", "C", "0", "0", "290.36", "20", "86.1", "0", "0", "-2.778", "0", "2.89", "0", "0.001", "0", ""},
    {"5800", "P", "0", "0", "24.88", "22", "-16.1", "0", "0", "-3.11", "0", "3.188", "0", "0.001", "0", ""},
    {"5900", "C", "0", "0", "210.75", "20", "75.5", "0", "0", "-3.37", "0", "4.107", "0", "0.001", "0", ""},
    {"5900", "P", "-25", "60", "47.19", "22", "-26.4", "0", "6.6", "-3.69", "92.25", "4.269", "-106.725",
     "0.001", "-0.025", ""},
    {"6000", "C", "50", "120", "143.7", "20", "61.8", "0", "30.9", "-3.717", "-185.85", "4.979", "248.95",
     "0.001", "0.05", ""},
    {"6000", "P", "0", "0", "81.38", "22", "-39.1", "0", "0", "-4.018", "0", "5.013", "0", "0.001", "0", ""},
    {"6100", "C", "0", "0", "91.32", "20", "46.7", "0", "0", "-3.653", "0", "5.191", "0", "0.002", "0", ""},
    {"6100", "P", "0", "0", "129.02", "22", "-52.8", "0", "0", "-3.965", "0", "5.196", "0", "0.001", "0", ""},
    {"6200", "C", "0", "0", "53.74", "20", "32.3", "0", "0", "-3.173", "0", "4.687", "0", "0.001", "0", ""},
    {"6200", "P", "0", "0", "190.16", "22", "-66", "0", "0", "-3.531", "0", "4.782", "0", "0.001", "0", ""},
};
inline const double kIndexLiveUpPrices[4] = {6655, 7260, 5445, 4840};
inline const double kIndexLiveUpBalances[4] = {30744, 62186, -16471, -32722};

inline const std::pair<const char*, const char*> kIndexExpiryFields[] = {
    {"TxtDays", "0"},         {"TxtImpVolP", "22"},      {"TxtDelPts", "100"}, {"TxtDelCon", "50"},
    {"TxtGamCon", "0"},       {"TxtDelHed", "SELL  -4"}, {"TxtGamPts", "0"},   {"TxtGamHed", " "},
    {"TxtVegaPts", "0"},      {"TxtVegaHed", " "},       {"TxtThePts", "0"},   {"TxtTheHed", " "},
    {"txtdelneutral", "-52"}, {"TxtPremium", "-4500"},   {"TxtOptU", "5000"},  {"TxtOptR", "150"},
    {"TxtFutU", "180"},       {"TxtDelVal", "50"},       {"TxtGamVal", "0"},   {"TxtVegaVal", "0"},
    {"TxtTheVal", "0"},       {"TxtBalance", "750"},
};
inline const char* const kIndexExpiryLadder[10][16] = {
    {"5800", "C", "0", "0", "300", "20", "100", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"5800", "P", "0", "0", "0", "22", "0", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"5900", "C", "0", "0", "200", "20", "100", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"5900", "P", "-25", "60", "0", "22", "0", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"6000", "C", "50", "120", "100", "20", "100", "0", "50", "0", "0", "0", "0", "0", "0", ""},
    {"6000", "P", "0", "0", "0", "22", "0", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"6100", "C", "0", "0", "0", "20", "50", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"6100", "P", "0", "0", "0", "22", "-50", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"6200", "C", "0", "0", "0", "20", "0", "0", "0", "0", "0", "0", "0", "0", "0", ""},
    {"6200", "P", "0", "0", "100", "22", "-100", "0", "0", "0", "0", "0", "0", "0", "0", ""},
};
inline const double kIndexExpiryUpPrices[4] = {6710, 7320, 5490, 4880};
inline const double kIndexExpiryUpBalances[4] = {-3030, -1810, -5470, -6690};

} // namespace tallimark::test::figures
