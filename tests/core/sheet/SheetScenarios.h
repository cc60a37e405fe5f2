#pragma once
// Two saved sheets as a desk leaves them in the store, the same that sheet_figures.py works out:
// a stock sheet RILK2026 "NOV SHEET" and an index sheet NIFX2026 "NIFTY NOV". Each holds trades
// bought, sold and closed out, calls and puts, and the underlying (futures and, on the stock
// sheet, equity). The price and expiry are the test's: the sheets open on 23-Nov-2026.
#include "SheetFigures.h"
#include "frame/App.h"
#include "frame/Store.h"
#include "sheet/RiskSheet.h"

#include <iterator>
#include <string>

namespace tallimark::test {

inline constexpr const char* kStockSymbol = "RILK2026";
inline constexpr const char* kStockDesc = "NOV SHEET";
inline constexpr const char* kIndexSymbol = "NIFX2026";
inline constexpr const char* kIndexDesc = "NIFTY NOV";

namespace scenario {

// A ledger row of Tracker: the series, the trade and the values of its last refresh.
inline void trade(Store& store, const char* symbol, const char* desc, const char* type, const char* strike,
                  const char* cp, int units, double traded, const char* last, const char* delta,
                  const char* dumThVal, const char* vol, const char* cashType = nullptr) {
    store.execute(
        std::string("insert into Tracker (InType, InDesc, MktPrice, Units, Traded, Symbol, Strike, "
                    "TradeDt, Vol, CP, Delta, Last, Days, DumThVal, CashType, Field2, Field3) values (") +
        q(type) + ", " + q(desc) + ", 1000, " + std::to_string(units) + ", " + std::to_string(traded) + ", " +
        q(symbol) + ", " + strike + ", cdate('20-Nov-2026'), 30, " + q(cp) + ", " + delta + ", " + last +
        ", 20, " + dumThVal + ", " + (cashType ? q(cashType) : "Null") + ", " + vol + ", '10:15:00')");
}

// The saved ladder: five strikes round the middle, call and put, with the positions held.
inline void ladder(Store& store, const char* symbol, const char* desc, int low, int step, const char* vol,
                   const std::string& held) {
    for (int k = 0; k < 5; ++k)
        for (const char* cp : {"C", "P"}) {
            const std::string strike = std::to_string(low + k * step);
            // held lists "strike cp units traded;" for the rows with a position.
            std::string units = "0", traded = "0";
            const std::string tag = strike + " " + cp + " ";
            if (const size_t at = held.find(tag); at != std::string::npos) {
                const size_t from = at + tag.size(), space = held.find(' ', from), end = held.find(';', from);
                units = held.substr(from, space - from);
                traded = held.substr(space + 1, end - space - 1);
            }
            store.execute(
                std::string("insert into PortfolioDet (Symbol, Descr, Strike, CP, Units, Traded, Last, "
                            "Vol, Delta, Dt, DumThVal) values (") +
                q(symbol) + ", " + q(desc) + ", " + strike + ", " + q(cp) + ", " + units + ", " + traded +
                ", 1, " + vol + ", 50, cdate('20-Nov-2026'), 0.9)");
        }
}

} // namespace scenario

// The stock sheet at a saved market price, expiring on the given day ("10-Dec-2026"), with its
// put volatility and any rows held beside the three below ("960 C 4 50;").
inline void saveStockSheet(Store& store, const std::string& price, const std::string& expiry,
                           const std::string& putVol = "32", const std::string& moreHeld = "") {
    const char *S = kStockSymbol, *D = kStockDesc;
    WriteGroup group(store);
    store.execute(
        "insert into ScriptMast (ScrCode, ScrName, Field2, Field1) values ('RIL', 'RELIANCE', 250, '5')");
    store.execute(
        "insert into Trans (InSymbol, InDesc, InType, MidStrike, AStrike, BStrike, UComm, DIntRate, "
        "Transdt) values ('RILK2026', 'NOV SHEET', 'S', 1000, 2, 2, 20, 7, cdate('01-Nov-2026'))");
    store.execute(
        "insert into PortfolioMast (Symbol, Descr, MktPrice, Days, Net, ImpVol, ImpVolP, AvgVol, KeyOff, "
        "Spread, Premium, Comm, CashU, CashR, FutureU, FutureR, OptionU, OptionR, Equity, Balance, "
        "TotComm, FutLots, FutTrade, CashLots, CashTrade, DelNeutral, DelPts, GamPts, Dt, ExpDt, Field2, "
        "Field1) values ('RILK2026', 'NOV SHEET', " +
        price + ", 20, 7, 30, " + putVol +
        ", 31, 'K1', 'SP', 111, -150, 40, -25, 9, 0, 8, 7, 5, 0, 12, 5, 993.8, 2, "
        "990, 3, 44.44, 11.11, cdate('20-Nov-2026'), cdate(" +
        q(expiry) + "), 50000, '1234.5')");
    scenario::ladder(store, S, D, 960, 20, "25", "960 P -6 2.83;980 C 15 21;1000 P -8 15;" + moreHeld);
    scenario::trade(store, S, D, "S", "960", "P", -4, 3, "2", "-20", "1.9", "33");
    scenario::trade(store, S, D, "S", "960", "P", -2, 2.5, "2", "-20", "1.9", "33");
    scenario::trade(store, S, D, "S", "980", "C", 10, 20, "18", "60", "17", "29");
    scenario::trade(store, S, D, "S", "980", "C", 5, 23, "18", "60", "17", "31");
    scenario::trade(store, S, D, "S", "1000", "P", -8, 15, "14", "-45", "13.2", "32");
    scenario::trade(store, S, D, "S", "1020", "C", 6, 5, "7", "30", "6.5", "30");
    scenario::trade(store, S, D, "S", "1020", "C", -6, 9, "7", "30", "6.5", "30");
    scenario::trade(store, S, D, "S", "Null", "S", 3, 995, "Null", "Null", "Null", "Null", "F");
    scenario::trade(store, S, D, "S", "Null", "S", 2, 990, "Null", "Null", "Null", "Null", "Q");
}

inline void saveIndexSheet(Store& store, const std::string& price, const std::string& expiry) {
    const char *S = kIndexSymbol, *D = kIndexDesc;
    WriteGroup group(store);
    store.execute(
        "insert into Trans (InSymbol, InDesc, InType, MidStrike, AStrike, BStrike, UComm, DIntRate, "
        "Transdt) values ('NIFX2026', 'NIFTY NOV', 'F', 6000, 2, 2, 100, 8, cdate('01-Nov-2026'))");
    store.execute(
        "insert into PortfolioMast (Symbol, Descr, MktPrice, Days, ImpVol, ImpVolP, Premium, Comm, CashU, "
        "CashR, FutureR, OptionR, FutLots, FutTrade, DelNeutral, DelPts, GamPts, Dt, ExpDt) values "
        "('NIFX2026', 'NIFTY NOV', " +
        price + ", 20, 20, 22, 0, -80, 0, 0, 0, 0, 2, 6010, -4, 44.44, 11.11, cdate('20-Nov-2026'), cdate(" +
        q(expiry) + "))");
    scenario::ladder(store, S, D, 5800, 100, "20", "5900 P -25 60;6000 C 50 120;");
    scenario::trade(store, S, D, "F", "5900", "P", -25, 60, "55", "-30", "54", "22");
    scenario::trade(store, S, D, "F", "6000", "C", 50, 120, "110", "55", "108", "20");
    scenario::trade(store, S, D, "F", "6100", "C", 10, 80, "70", "40", "69", "20");
    scenario::trade(store, S, D, "F", "6100", "C", -10, 95, "70", "40", "69", "20");
    scenario::trade(store, S, D, "F", "Null", "S", 2, 6010, "Null", "Null", "Null", "Null", "F");
}

// A saved sheet of the tests with the figures sheet_figures.py expects of it.
struct SavedSheet {
    const char* name;
    SheetKind kind;
    const char* price;
    const char* expiry;
    const std::pair<const char*, const char*>* fields;
    size_t fieldCount;
    const char* const (*ladder)[16];
    const double* upPrices;
    const double* upBalances;
    const char* putVol = "32";
    const char* moreHeld = "";

    bool stock() const { return kind == SheetKind::Stock; }
    const char* symbol() const { return stock() ? kStockSymbol : kIndexSymbol; }
    const char* desc() const { return stock() ? kStockDesc : kIndexDesc; }
    void save(Store& store) const {
        if (stock())
            saveStockSheet(store, price, expiry, putVol, moreHeld);
        else
            saveIndexSheet(store, price, expiry);
    }
};

#define TALLIMARK_SAVED_SHEET(name, kind, price, expiry, ...)                                                \
    SavedSheet {                                                                                             \
#name, kind, price, expiry, figures::k##name##Fields, std::size(figures::k##name##Fields),           \
            figures::k##name##Ladder, figures::k##name##UpPrices, figures::k##name##UpBalances, __VA_ARGS__  \
    }

// Live (17 days to run) and on the expiry day, stock and index; and a live stock sheet whose put
// volatility is above 50 % with a call held on the lowest strike.
inline const SavedSheet kSavedSheets[] = {
    TALLIMARK_SAVED_SHEET(StockLive, SheetKind::Stock, "1010", "10-Dec-2026", "32"),
    TALLIMARK_SAVED_SHEET(StockExpiry, SheetKind::Stock, "1000", "23-Nov-2026", "32"),
    TALLIMARK_SAVED_SHEET(IndexLive, SheetKind::Index, "6050", "10-Dec-2026", "32"),
    TALLIMARK_SAVED_SHEET(IndexExpiry, SheetKind::Index, "6100", "23-Nov-2026", "32"),
    TALLIMARK_SAVED_SHEET(StockHighPutVol, SheetKind::Stock, "1070", "10-Dec-2026", "55", "960 C 40 50;"),
};

#undef TALLIMARK_SAVED_SHEET

// Opens a sheet as the list of sheets does: the current sheet named, loaded and shown (the
// activation notes the market inputs).
inline RiskSheet& openSheet(App& app, SheetKind kind, const std::string& symbol, const std::string& desc) {
    app.session().g_strSymbol = symbol;
    app.session().g_strDesc = desc;
    RiskSheet& sheet = riskSheet(app, kind);
    sheet.DoInit();
    sheet.show();
    return sheet;
}

// Writes a saved sheet and opens it on the desk.
template <class Desk> RiskSheet& openSaved(Desk& desk, const SavedSheet& sheet) {
    sheet.save(desk.app.store());
    return desk.open(sheet.kind, sheet.symbol(), sheet.desc());
}

// The live stock sheet (market 1010) or index sheet (market 6050), both expiring 10-Dec-2026.
template <class Desk> RiskSheet& openSavedScenario(Desk& desk, SheetKind kind) {
    return openSaved(desk, kSavedSheets[kind == SheetKind::Stock ? 0 : 2]);
}

} // namespace tallimark::test
