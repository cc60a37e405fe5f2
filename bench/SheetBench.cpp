// What one refresh of a risk sheet costs: a ladder of 100 strikes (200 rows) priced afresh, the
// ledger of 10,000 trades in DummyTracker summed, held series updated, balances worked out.
// The argument is how many of those trades are the open sheet's own; the rest are rows other
// sheets left in the working ledger, which the sheet's queries must step over by its index (an
// index sheet clears them as it opens, so its ledger holds its own trades alone). A save writes
// the sheet's head, ladder and committed trades.
#include "frame/App.h"
#include "frame/Schema.h"
#include "frame/ScriptedUi.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <random>
#include <string>

namespace {

using namespace tallimark;

constexpr int kStrikes = 100;
constexpr int kLedgerRows = 10000;

std::filesystem::path freshDir() {
    std::random_device rd;
    return std::filesystem::temp_directory_path() / ("tallimark-bench-" + std::to_string(rd()));
}

class SheetBenchDesk {
public:
    SheetBenchDesk(SheetKind kind, int ownTrades) {
        schema::createReadyStore(dir_ / "shares.db");
        clock_.setToday(VbDate::fromYmd(2026, 11, 23));
        app_.openStore();
        const bool stock = kind == SheetKind::Stock;
        const std::string symbol = stock ? "RILK2026" : "NIFX2026";
        Store& store = app_.store();
        {
            WriteGroup group(store);
            store.execute(
                "insert into ScriptMast (ScrCode, ScrName, Field2, Field1) values ('RIL', 'R', 250, '5')");
            store.execute("insert into Trans (InSymbol, InDesc, InType, MidStrike, AStrike, BStrike, UComm, "
                          "DIntRate, Transdt) values (" +
                          q(symbol) + ", 'BENCH', " + q(stock ? "S" : "F") +
                          ", 1000, 50, 49, 10, 7, cdate('01-Nov-2026'))");
            // The sheet's trades spread over every series of the ladder and the underlying; the
            // other sheets' rows stand in the working ledger beside them.
            std::mt19937 rng(7);
            for (int i = 0; i < kLedgerRows; ++i) {
                const bool own = i < ownTrades;
                const int series = i % (2 * kStrikes + 1);
                const std::string strike =
                    series == 2 * kStrikes ? "Null" : NumText(510.0 + 10 * (series / 2));
                const char* cp = series == 2 * kStrikes ? "S" : series % 2 ? "P" : "C";
                const int units = static_cast<int>(rng() % 21) - 10;
                store.execute(
                    std::string("insert into ") + (own ? "Tracker" : "DummyTracker") +
                    " (InType, InDesc, MktPrice, Units, Traded, Symbol, Strike, TradeDt, CP, Delta, Last, "
                    "DumThVal, CashType, Field2) values ('S', " +
                    q(own ? "BENCH" : "OTHER " + std::to_string(i % 40)) + ", 1000, " +
                    std::to_string(units == 0 ? 1 : units) + ", " + NumText(5.0 + rng() % 400 / 10.0) + ", " +
                    q(symbol) + ", " + strike + ", cdate('20-Nov-2026'), " + q(cp) +
                    ", 40, 12, 11, 'F', 30)");
            }
        }
        app_.session().g_strSymbol = symbol;
        app_.session().g_strDesc = "BENCH";
        app_.session().g_ExpiryDate = VbDate::fromYmd(2026, 12, 24);
        sheet_ = &riskSheet(app_, kind);
        sheet_->DoInit();
        sheet_->setText("TxtImpVol", "30");
        sheet_->setText("TxtImpVolP", "32");
        // Every row holds the net position its trades leave.
        Grid& g = sheet_->va1();
        for (int row = 2; row <= g.dataRowCount(); ++row) {
            g.activeRow = row;
            sheet_->CalcAvgOption();
        }
        g.activeRow = 2;
        sheet_->RefreshData(13);
    }
    ~SheetBenchDesk() {
        app_.closeStore();
        std::error_code ec;
        std::filesystem::remove_all(dir_, ec);
    }
    RiskSheet& sheet() { return *sheet_; }
    size_t boxes() const { return ui_.boxes().size(); }

private:
    std::filesystem::path dir_ = freshDir();
    ScriptedUi ui_;
    Clock clock_;
    App app_{ui_, clock_, dir_};
    RiskSheet* sheet_ = nullptr;
};

// The market moves between refreshes, so every held series takes new values as it would on
// the desk. With `save`, each refresh is saved: the writes it left waiting reach the store then.
void cycle(benchmark::State& state, SheetKind kind, bool refresh, bool save) {
    SheetBenchDesk desk(kind, static_cast<int>(state.range(0)));
    bool up = false;
    for (auto _ : state) {
        if (refresh) {
            desk.sheet().setText("TxtMktPrice", (up = !up) ? "1000.5" : "1000");
            desk.sheet().RefreshData(13);
        }
        if (save) desk.sheet().SaveData();
    }
    if (desk.boxes() != 0) state.SkipWithError("the sheet showed a box");
    state.counters["ladder_rows"] = desk.sheet().va1().dataRowCount() - 1;
}

// Refresh; save of the refreshed sheet (head with its four scenarios, ladder, committed
// trades); the desk's cycle of both; for either kind of sheet.
const bool kRegistered = [] {
    struct Measure {
        const char* name;
        bool refresh, save;
    };
    for (const Measure& m : {Measure{"Refresh", true, false}, Measure{"Save", false, true},
                             Measure{"RefreshAndSave", true, true}})
        for (const SheetKind kind : {SheetKind::Stock, SheetKind::Index}) {
            const std::string name =
                std::string("BM_") + (kind == SheetKind::Stock ? "Stock" : "Index") + "Sheet" + m.name;
            benchmark::RegisterBenchmark(name.c_str(), cycle, kind, m.refresh, m.save)
                ->Arg(400)
                ->Arg(1000)
                ->Arg(2000)
                ->Arg(kLedgerRows)
                ->Unit(benchmark::kMillisecond);
        }
    return true;
}();

} // namespace
