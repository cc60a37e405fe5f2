// The ledger's sums read in shared walks, against the statements the results, the delta neutral
// and tomorrow's balance write for each, bit for bit, on random ledgers holding what a store can
// hold: strikes beyond 15 digits, no strike, a lower-case side, empty units and prices.
#include "SheetDesk.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

using namespace tallimark;

namespace {

const std::string kKey = "symbol = 'TCSK2026' and indesc = 'FRESH'";

void fillRandomLedger(test::SheetDesk& d, unsigned seed) {
    const char* const strikes[] = {"Null", "1000", "1020.5", "0.1+0.2", "1e-7", "123456.78901234567"};
    const char* const sides[] = {"'C'", "'P'", "'c'", "'S'", "Null"};
    std::mt19937 rng(seed);
    auto figure = [&] { return rng() % 9 == 0 ? std::string("Null") : NumText((rng() % 200000) / 7.0); };
    for (int i = 0; i < 300; ++i)
        d.app.store().execute(
            "insert into DummyTracker (Symbol, InDesc, Strike, CP, Units, Traded, Last, "
            "DumThVal, Delta) values ('TCSK2026', 'FRESH', " +
            std::string(strikes[rng() % 6]) + ", " + sides[rng() % 5] + ", " +
            (rng() % 9 ? rng() % 13 ? std::to_string(static_cast<int>(rng() % 7) - 3) : std::string("2.5")
                       : "Null") +
            ", " + figure() + ", " + figure() + ", " + figure() + ", " + figure() + ")");
}

bool sameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// The sums the sheet gives under `key`, then the statements' own, bit for bit.
void expectStatementSums(test::SheetDesk& d, RiskSheet& s, const std::string& key, const std::string& label) {
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
    // Every series' units and amount, in the order the distinct series come, to the last bit.
    auto bits = [](double units, double amount) {
        std::ostringstream out;
        out << std::hexfloat << units << " " << amount << "; ";
        return out.str();
    };
    std::string shared[2];
    for (int i = 0; i < 2; ++i)
        s.seriesSums(key, cases[i].amount, cases[i].optionsOnly,
                     [&](double units, double sum) { shared[i] += bits(units, sum); });
    const RiskSheet::OptionTotals totals = s.optionTotals(key);
    for (int i = 0; i < 2; ++i) {
        const Case& c = cases[i];
        std::string written;
        Recordset series =
            d.app.store().query("select distinct strike, CP from dummytracker where " + key + c.where);
        for (; !series.eof(); series.moveNext()) {
            const std::string one =
                key + c.where +
                " and strike = " + (series["strike"].isNull() ? "Null" : NumText(series["strike"].number())) +
                " and CP =" + q(series["CP"].textOrEmpty());
            written +=
                bits(d.number("select sum(units) from dummytracker where " + one),
                     d.number("select sum(" + std::string(c.sum) + ") from dummytracker where " + one));
        }
        EXPECT_EQ(shared[i], written) << label << " " << c.sum;
    }
    const std::pair<double, const char*> options[] = {
        {totals.last, "units*last"}, {totals.nextDay, "units*DumThVal"}, {totals.delta, "-units*delta/100"}};
    for (const auto& [mine, sum] : options) {
        const double written = d.number("select sum(" + std::string(sum) + ") from dummytracker where " +
                                        key + " and CP <> 'S'");
        EXPECT_TRUE(sameBits(mine, written)) << label << " " << sum << ": " << mine << " against " << written;
    }
}

} // namespace

// Series without a side, or with a strike whose text names another (0.1+0.2, beyond 15 digits),
// are summed by their own statements; once none is left, by the mirror.
TEST(LedgerSums, SharedWalksSumAsTheirOwnStatements) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        test::SheetDesk d;
        RiskSheet& s = d.openFresh();
        fillRandomLedger(d, seed);
        expectStatementSums(d, s, kKey, std::to_string(seed));
        d.app.store().execute("delete from dummytracker where CP is null or strike > 100000 or strike < 1");
        expectStatementSums(d, s, kKey, std::to_string(seed) + " in the mirror");
    }
}

// A refresh's writes wait in the mirror: its sums are those of the rows once written.
TEST(LedgerSums, WaitingWritesSumAsWritten) {
    for (const char* market : {"1010", "1033.5", "987.25"}) {
        test::LiveSheetDesk d;
        d.s.setText("TxtMktPrice", market);
        d.s.RefreshData(13);
        expectStatementSums(d, d.s, "symbol = 'RILK2026' and indesc = 'NOV SHEET'", market);
    }
}
