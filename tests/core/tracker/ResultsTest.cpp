// Positions, averages and results from the working ledger. Every expected figure is a net sum
// worked out by hand from the trades listed in the case.
#include "sheet/SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;
using test::Columns;

namespace {

struct Trade {
    const char* strike; // "" for the underlying
    const char* cp;
    int units;
    double traded;
    Columns more = {};
};

// A fresh stock or index sheet on 1000 with the 1000 strike on rows 4 (call) and 5 (put), and
// the trades of the case in its working ledger.
struct LedgerDesk : test::SheetDesk {
    RiskSheet& s;
    explicit LedgerDesk(const std::vector<Trade>& trades, SheetKind kind = SheetKind::Stock)
        : s(openFresh(kind)) {
        for (const Trade& t : trades)
            addTrade("DummyTracker", "TCSK2026", "FRESH", t.strike, t.cp, t.units, t.traded, t.more);
    }
};

const Rgb kRed = RGB(255, 0, 0), kCyan = RGB(0, 255, 255);

} // namespace

TEST(Results, ASeriesShowsItsNetUnitsAtTheNetMoneyAverage) {
    struct Case {
        std::vector<Trade> trades;
        const char* shown; // the units and the average
        std::optional<Rgb> colour;
    } cases[] = {
        {{{"1000", "C", 10, 100}, {"1000", "C", 10, 110}}, "20 105", kCyan},
        // The sold units stay in the average: (1000 - 1000) / 50.
        {{{"1000", "C", 100, 10}, {"1000", "C", -50, 20}}, "50 0", kCyan},
        {{{"1000", "C", -3, 7}, {"1000", "C", -5, 9}}, "-8 8.25", kRed},
        {{{"1000", "C", 8, 2.125}}, "8 2.12", kCyan}, // 17 / 8 = 2.125, a tie to even
        {{{"1000", "C", -10, 5}, {"1000", "C", 10, 7}}, " ", std::nullopt},
        // The put of the same strike and another sheet's rows are other series.
        {{{"1000", "P", 4, 3}}, " ", std::nullopt},
    };
    for (const Case& c : cases) {
        LedgerDesk d(c.trades);
        d.addTrade("DummyTracker", "TCSK2026", "OTHER", "1000", "C", 7, 1);
        d.s.va1().setText(4, 3, "99");
        d.s.va1().setText(4, 4, "99");
        d.s.va1().activeRow = 4;
        d.s.CalcAvgOption();
        EXPECT_EQ(d.s.va1().text(4, 3) + " " + d.s.va1().text(4, 4), c.shown);
        EXPECT_EQ(c.colour ? d.s.va1().cell(4, 3).fore : c.colour, c.colour) << c.shown;
    }
}

TEST(Results, TheUnderlyingInTotalAndByCashType) {
    const Columns futures{{"CashType", "'F'"}}, equity{{"CashType", "'Q'"}};
    struct Case {
        std::vector<Trade> trades;
        const char* shown; // futures lots and average, then futures and cash lots and averages by type
    } cases[] = {
        {{}, "0 0 kept kept kept kept"},
        {{{"", "S", 3, 995, futures}, {"", "S", 2, 990, equity}}, "5 993 3 995 2 990"},
        // Bought dearer than partly sold at a profit: a negative net average, shown absolute by type.
        {{{"", "S", 10, 100, futures}, {"", "S", -8, 130, futures}}, "2 -20 2 20 kept kept"},
        // Flat futures with money left, and a row of no cash type counted as cash.
        {{{"", "S", 4, 100, futures}, {"", "S", -4, 110, futures}, {"", "S", 6, 50}}, "6 43.33 0 0 6 50"},
    };
    for (const Case& c : cases) {
        LedgerDesk d(c.trades);
        for (const char* f : {"TxtFut_trdNF", "TxtFut_trdAmt", "TxtCashLots", "TxtCashTrade"})
            d.s.setText(f, "kept");
        d.s.CalcAvgStock();
        std::string shown;
        for (const char* f :
             {"TxtFutLots", "TxtFutTrade", "TxtFut_trdNF", "TxtFut_trdAmt", "TxtCashLots", "TxtCashTrade"})
            shown += (shown.empty() ? "" : " ") + d.s.text(f);
        EXPECT_EQ(shown, c.shown);
    }
}

// The options' realised and open results, and the underlying's realised one, from the same ledger.
TEST(Results, OnlyFlatSeriesAreRealisedTheUnderlyingsByKindOfSheet) {
    // Bought 5 at 100 when the market stood at 98, sold 5 at 104 when it stood at 103.
    const std::vector<Trade> flat = {{"", "S", 5, 100, {{"MktPrice", "98"}, {"CashType", "'F'"}}},
                                     {"", "S", -5, 104, {{"MktPrice", "103"}, {"CashType", "'F'"}}}};
    struct Case {
        std::vector<Trade> trades;
        const char* shown; // TxtOptR, TxtOptU, TxtFutR
        SheetKind kind = SheetKind::Stock;
    } cases[] = {
        {{}, "0 0 0"},
        // Sold 10 at 5, bought back at 7: -20, whatever the rows' last.
        {{{"1000", "C", -10, 5, {{"Last", "6"}}}, {"1000", "C", 10, 7, {{"Last", "6"}}}}, "-20 0 0"},
        // The open put of the same strike stays out of the realised result.
        {{{"1000", "C", -10, 5, {{"Last", "6"}}},
          {"1000", "C", 10, 7, {{"Last", "6"}}},
          {"1000", "P", 3, 4, {{"Last", "4.5"}}}},
         "-20 14 0"},
        // Rows of one flat series with different lasts: the formula keeps them, not the cash
        // result of 4. (2*5 - 2*6) + (-2*9 + 2*8) = -4; the value 2*5 - 2*9 = -8.
        {{{"1020", "P", 2, 6, {{"Last", "5"}}}, {"1020", "P", -2, 8, {{"Last", "9"}}}}, "-4 -8 0"},
        {flat, "0 0 20"},                   // the cash result: -(500 - 520)
        {flat, "0 0 -5", SheetKind::Index}, // from the market price: (490 - 500) + (-515 + 520)
        {{flat[0]}, "0 0 0"},               // open: nothing realised
    };
    for (const Case& c : cases) {
        LedgerDesk d(c.trades, c.kind);
        d.s.CalcROption();
        d.s.CalcOptionR();
        d.s.CalcRStock();
        EXPECT_EQ(d.s.text("TxtOptR") + " " + d.s.text("TxtOptU") + " " + d.s.text("TxtFutR"), c.shown);
        EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    }
}

TEST(Results, TheOpenUnderlyingAtTheMarket) {
    struct Case {
        const char *lots, *trade, *market;
        const char* shown; // TxtFutU, then the lots and trade after
    } cases[] = {
        {"5", "993.8", "1010", "81 5 993.8"},
        {"", "", "1010", "0 0 0"},
        {"-3", "1012.5", "1010", "8 -3 1012.5"}, // (1010 - 1012.5) * -3 = 7.5, to even 8
        {"2.5", "100", "101", "2 2.5 100"},      // CLng(2.5) = 2
    };
    for (const Case& c : cases) {
        LedgerDesk d({});
        d.s.setText("TxtFutLots", c.lots);
        d.s.setText("TxtFutTrade", c.trade);
        d.s.setText("TxtMktPrice", c.market);
        d.s.CalcFutureR();
        EXPECT_EQ(d.s.text("TxtFutU") + " " + d.s.text("TxtFutLots") + " " + d.s.text("TxtFutTrade"),
                  c.shown);
    }
}

TEST(Results, FailuresNameTheirProcedure) {
    LedgerDesk d({});
    d.s.setText("TxtMktPrice", "n/a");
    d.s.CalcFutureR();
    // The working ledger in memory, then the file's table behind it.
    d.app.store().executeNative("drop table DummyTracker; drop table DummyTracker");
    d.s.CalcROption();
    d.s.CalcOptionR();
    EXPECT_EQ(d.boxTexts(), (std::vector<std::string>{
                                "Error in CalcFutureR Procedure: Type mismatch and No: 13",
                                "Error in CalcROption Procedure: no such table: dummytracker And No: 1",
                                "Error in CalcOptionR Procedure: no such table: dummytracker and No: 1"}));
}
