#pragma once
// The open sheet's rows of the working ledger held in memory, in the order the sheet's index walks
// them, for the sums a refresh asks for again and again. Every term and every sum is worked out as
// the store's own arithmetic and sum() work it (whole numbers apart from doubles, a null for a
// null or a division by zero, the running double in the rows' order), so each figure is bit for
// bit the statement's. The refresh's writes to its held series go into the mirror at once and
// reach the store when a statement could see them (Store::deferLedgerWrites).
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tallimark {

class Store;

// A number as the store computes with it.
struct StoreNumber {
    enum class Kind : uint8_t { Null, Whole, Real } kind = Kind::Null;
    int64_t whole = 0;
    double real = 0;
    double orZero() const;
};

// One series (CP, strike) of the ledger, summed as "group by CP, strike" sums it.
struct LedgerSeries {
    double units, atLast, atNextDay;
    bool option; // "CP <> 'S'"
};

// The option rows' sums of units*last, units*DumThVal and -units*delta/100; null counts 0.
struct OptionTotals {
    double last, nextDay, delta;
};

class LedgerMirror {
public:
    // Holds the rows under `key` as the store has them now. False when a row holds what the
    // mirror does not reckon with (a text where a number belongs): the statements then run, and
    // the rows are not read again for the mirror until the ledger changes.
    bool load(Store& store, const std::string& key);
    // True while it holds the rows under `key` of this store as they stand.
    bool holds(const Store& store, const std::string& key) const;
    // The store's rows changed by this sheet's own writes, now run: the mirror still holds them.
    void keep(const Store& store);
    // The update of one held series from the texts of its statement (UpdateTracker's order:
    // last, vol, delta, DumThVal, symbol, indesc, strike, CP), each as the store converts it.
    void setSeries(Store& store, const std::vector<std::string>& texts);
    // The groups of "group by CP, strike", or none when one of them is summed by the per-series
    // statements instead (no side, or a strike whose number text names another strike).
    std::optional<std::vector<LedgerSeries>> series() const;
    OptionTotals optionTotals() const;

private:
    struct Row {
        std::optional<std::string> cp; // null as none
        StoreNumber strike, units, traded, last, nextDay, delta;
    };
    std::vector<Row> rows_;
    // Where each series' rows stand (the index keeps them together): by side in capitals, strike.
    std::map<std::pair<std::string, double>, std::pair<size_t, size_t>> seriesRows_;
    std::string key_;
    unsigned long long store_ = 0; // the store's serial; 0 while it holds nothing
    long long stamp_ = -1;
    std::pair<unsigned long long, long long> refused_{0, -1}; // the ledger as a load last refused it
    std::string refusedKey_;
};

} // namespace tallimark
