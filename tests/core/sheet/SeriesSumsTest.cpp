// The ledger's series summed in one grouped walk, against the per-series statements as the
// results and tomorrow's balance write them, bit for bit, on random ledgers holding what a store
// can hold: strikes beyond 15 digits, no strike, a lower-case side, empty units and prices.
#include "SheetDesk.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>

using namespace tallimark;

TEST(SeriesSums, OneGroupedWalkSumsAsThePerSeriesStatements) {
    const char* const strikes[] = {"Null", "1000", "1020.5", "0.1+0.2", "1e-7", "123456.78901234567"};
    const char* const sides[] = {"'C'", "'P'", "'c'", "'S'", "Null"};
    const std::string key = "symbol = 'TCSK2026' and indesc = 'FRESH'";
    for (unsigned seed = 1; seed <= 12; ++seed) {
        test::SheetDesk d;
        RiskSheet& s = d.openFresh();
        std::mt19937 rng(seed);
        auto figure = [&] { return rng() % 9 == 0 ? std::string("Null") : NumText((rng() % 200000) / 7.0); };
        for (int i = 0; i < 300; ++i)
            d.app.store().execute(
                "insert into DummyTracker (Symbol, InDesc, Strike, CP, Units, Traded, Last, DumThVal) values "
                "('TCSK2026', 'FRESH', " +
                std::string(strikes[rng() % 6]) + ", " + sides[rng() % 5] + ", " +
                (rng() % 9 ? std::to_string(static_cast<int>(rng() % 7) - 3) : "Null") + ", " + figure() +
                ", " + figure() + ", " + figure() + ")");
        for (const char* amount : {"units*last-units*traded", "units*DumThVal-units*traded"}) {
            double written = 0, grouped = 0;
            Recordset series =
                d.app.store().query("select distinct strike, CP from dummytracker where " + key);
            for (; !series.eof(); series.moveNext()) {
                const std::string one =
                    key + " and strike = " +
                    (series["strike"].isNull() ? "Null" : NumText(series["strike"].number())) +
                    " and CP =" + q(series["CP"].textOrEmpty());
                if (d.number("select sum(units) from dummytracker where " + one) == 0)
                    written +=
                        d.number("select sum(" + std::string(amount) + ") from dummytracker where " + one);
            }
            s.seriesSums(key, amount, [&](double units, double sum) {
                if (units == 0) grouped += sum;
            });
            EXPECT_EQ(std::memcmp(&grouped, &written, sizeof grouped), 0)
                << seed << " " << amount << ": " << grouped << " against " << written;
        }
    }
}
