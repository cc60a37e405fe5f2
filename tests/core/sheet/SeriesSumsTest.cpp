// The ledger's sums read in shared walks, against the statements the results, the delta neutral
// and tomorrow's balance write for each, bit for bit, on random ledgers holding what a store can
// hold: strikes beyond 15 digits, no strike, a lower-case side, empty units and prices.
#include "SheetDesk.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>

using namespace tallimark;

namespace {

const std::string kKey = "symbol = 'TCSK2026' and indesc = 'FRESH'";

void fillRandomLedger(test::SheetDesk& d, unsigned seed) {
    const char* const strikes[] = {"Null", "1000", "1020.5", "0.1+0.2", "1e-7", "123456.78901234567"};
    const char* const sides[] = {"'C'", "'P'", "'c'", "'S'", "Null"};
    std::mt19937 rng(seed);
    auto figure = [&] { return rng() % 9 == 0 ? std::string("Null") : NumText((rng() % 200000) / 7.0); };
    for (int i = 0; i < 300; ++i)
        d.app.store().execute("insert into DummyTracker (Symbol, InDesc, Strike, CP, Units, Traded, Last, "
                              "DumThVal, Delta) values ('TCSK2026', 'FRESH', " +
                              std::string(strikes[rng() % 6]) + ", " + sides[rng() % 5] + ", " +
                              (rng() % 9 ? std::to_string(static_cast<int>(rng() % 7) - 3) : "Null") + ", " +
                              figure() + ", " + figure() + ", " + figure() + ", " + figure() + ")");
}

bool sameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

TEST(LedgerSums, SharedWalksSumAsTheirOwnStatements) {
    struct Case {
        RiskSheet::SeriesAmount amount;
        bool optionsOnly;
        const char* sum;
        const char* where;
    };
    const Case cases[] = {
        {RiskSheet::SeriesAmount::AtLast, true, "units*last-units*traded", " and CP <>'S'"},
        {RiskSheet::SeriesAmount::AtNextDay, false, "units*DumThVal-units*traded", ""},
    };
    for (unsigned seed = 1; seed <= 12; ++seed) {
        test::SheetDesk d;
        RiskSheet& s = d.openFresh();
        fillRandomLedger(d, seed);
        for (const Case& c : cases) {
            double written = 0, shared = 0;
            Recordset series =
                d.app.store().query("select distinct strike, CP from dummytracker where " + kKey + c.where);
            for (; !series.eof(); series.moveNext()) {
                const std::string one =
                    kKey + c.where + " and strike = " +
                    (series["strike"].isNull() ? "Null" : NumText(series["strike"].number())) +
                    " and CP =" + q(series["CP"].textOrEmpty());
                if (d.number("select sum(units) from dummytracker where " + one) == 0)
                    written +=
                        d.number("select sum(" + std::string(c.sum) + ") from dummytracker where " + one);
            }
            s.seriesSums(kKey, c.amount, c.optionsOnly, [&](double units, double sum) {
                if (units == 0) shared += sum;
            });
            EXPECT_TRUE(sameBits(shared, written))
                << seed << " " << c.sum << ": " << shared << " against " << written;
        }
        const RiskSheet::OptionTotals& totals = s.optionTotals(kKey);
        const std::pair<double, const char*> options[] = {{totals.last, "units*last"},
                                                          {totals.nextDay, "units*DumThVal"},
                                                          {totals.delta, "-units*delta/100"}};
        for (const auto& [shared, sum] : options) {
            const double written = d.number("select sum(" + std::string(sum) + ") from dummytracker where " +
                                            kKey + " and CP <> 'S'");
            EXPECT_TRUE(sameBits(shared, written))
                << seed << " " << sum << ": " << shared << " against " << written;
        }
    }
}
