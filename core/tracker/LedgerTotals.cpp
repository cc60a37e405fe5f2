// The working ledger's sums that one refresh asks for from several procedures. Each sum is an
// aggregate of its own in a statement that walks the rows as the statement written for it alone
// would (the same condition on the sheet's index, so the same rows in the same order), so every
// figure is bit for bit that statement's; the walks are fewer, not different.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

RiskSheet::LedgerTotals& RiskSheet::ledgerTotals(const std::string& key) {
    const Store::Stamp stamp = app().store().stamp();
    if (stamp != totalsStamp_) {
        totals_.clear();
        totalsStamp_ = stamp;
    }
    return totals_[key];
}

std::optional<std::string> RiskSheet::mirroredKey() {
    const std::string key = ledgerKey(Trim(OwnSymbol), OwnDesc);
    if (key != sheetLedgerKey() || key != trimmedLedgerKey()) return std::nullopt;
    return key;
}

const LedgerMirror* RiskSheet::mirrorOf(const std::string& key) {
    Store& store = app().store();
    LedgerMirror& mirror = waiting_->mirror;
    if (mirror.holds(store, key)) return &mirror;
    if (key != mirroredKey() || !mirror.load(store, key)) return nullptr;
    return &mirror;
}

std::vector<LedgerSeries> RiskSheet::readSeries(const std::string& key) {
    if (const LedgerMirror* mirror = mirrorOf(key))
        if (auto series = mirror->series()) return *series;
    // The index gives the groups in the order the distinct series come, and each group's rows in
    // the order its own statement sums them. "CP <> 'S'" holds for all of a group's rows or none.
    Recordset rs = app().store().query(
        "select strike, CP, CP <> 'S' as IsOption, sum(units) as TotUnits, sum(units*last-units*traded) as "
        "AtLast, sum(units*DumThVal-units*traded) as AtNextDay from dummytracker where " +
        key + " group by CP, strike");
    std::vector<LedgerSeries> series;
    for (; !rs.eof(); rs.moveNext()) {
        const Value& strike = rs["strike"];
        const bool option = rs["IsOption"].numberOrZero() != 0;
        if (strike.isNull()) {
            series.push_back({0, 0, 0, option}); // "strike = Null" matches no row
        } else if (!rs["CP"].isNull() && CDbl(sqlNumber(strike)) == strike.number()) {
            series.push_back({rs["TotUnits"].numberOrZero(), rs["AtLast"].numberOrZero(),
                              rs["AtNextDay"].numberOrZero(), option});
        } else {
            // A strike whose number text names another strike (beyond 15 digits), or a series
            // without a side, is summed by the per-series statements as written.
            const std::string one = " from dummytracker where " + key + " and strike = " + sqlNumber(strike) +
                                    " and CP =" + q(rs["CP"].textOrEmpty());
            series.push_back({sumOrZero("select sum(units) as TotUnits" + one, "TotUnits"),
                              sumOrZero("select sum(units*last-units*traded) as TotAmt" + one, "TotAmt"),
                              sumOrZero("select sum(units*DumThVal-units*traded) as TotAmt" + one, "TotAmt"),
                              option});
        }
    }
    return series;
}

void RiskSheet::seriesSums(const std::string& key, SeriesAmount amount, bool optionsOnly,
                           const std::function<void(double units, double amount)>& add) {
    LedgerTotals& totals = ledgerTotals(key);
    if (!totals.series) totals.series = readSeries(key);
    for (const LedgerSeries& s : *totals.series)
        if (s.option || !optionsOnly) add(s.units, amount == SeriesAmount::AtLast ? s.atLast : s.atNextDay);
}

const RiskSheet::OptionTotals& RiskSheet::optionTotals(const std::string& key) {
    LedgerTotals& totals = ledgerTotals(key);
    if (!totals.options) {
        if (const LedgerMirror* mirror = mirrorOf(key)) return *(totals.options = mirror->optionTotals());
        Recordset rs = app().store().query(
            "select sum(units*last) as TotLast, sum(units*DumThVal) as TotNextDay, sum(-units*delta/100) as "
            "TotDelta from dummytracker where " +
            key + " and CP <> 'S'");
        totals.options = rs.eof()
                             ? OptionTotals{0, 0, 0}
                             : OptionTotals{rs["TotLast"].numberOrZero(), rs["TotNextDay"].numberOrZero(),
                                            rs["TotDelta"].numberOrZero()};
    }
    return *totals.options;
}

} // namespace tallimark
