// The sheet's working ledger in DummyTracker: trades appended by hand, the model values of held
// series pushed into their rows, and the commit of the sheet's rows to Tracker.
#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

namespace {

std::string whole(const std::string& text) {
    return NumText(static_cast<int64_t>(CLng(text)));
}

std::string number(const std::string& text) {
    return NumText(CDbl(text));
}

} // namespace

void RiskSheet::AddTrail(const std::string& Units, const std::string& Traded, const std::string& TradeTime,
                         const std::string& TradeVol) {
    trapped("AddTrail", [&] {
        const int row = va1().activeRow;
        auto zeroIfBlank = [&](int col) {
            return cell(row, col).empty() ? std::string("0") : cell(row, col);
        };
        const std::string delta = zeroIfBlank(7), theta = zeroIfBlank(10), vega = zeroIfBlank(12),
                          gamma = zeroIfBlank(14);
        // The row's value columns are worked out anew for this trade's units.
        const std::string values =
            q(SheetType.substr(0, 1)) + ", " + q(SheetDesc) + ", " + number(text("TxtMktPrice")) + ", " +
            whole(Units) + ", " + number(Traded) + ", " + q(Trim(text("TxtSymbol"))) + ", " +
            number(cell(row, 1)) + ", cdate(" + q(Format(text("TxtCurDt"), "DD-MMM-YYYY")) + "), " +
            number(text("TxtImpVol")) + ", " + q(cell(row, 2)) + ", " + number(delta) + ", " +
            number(cell(row, 5)) + ", " + whole(text("TxtDays")) + ", " + number(cell(row, 8)) + ", " +
            NumText(Val(delta) / 100 * Val(Units)) + ", " + number(theta) + ", " +
            NumText(Val(Units) * Val(theta)) + ", " + number(vega) + ", " + NumText(Val(Units) * Val(vega)) +
            ", " + number(gamma) + ", " + NumText(Val(Units) * Val(gamma));
        const char* const columns =
            "insert into dummyTracker (InType,InDesc,MktPrice,Units,Traded,Symbol,Strike,"
            "TradeDt,Vol,CP,delta,last,Days, DumThVal,DeltaVal,Theta,ThetaVal,Vega,"
            "VegaVal,Gamma,GammaVal,";
        // The index sheet keeps no time, and the sheet's call volatility stands for the trade's.
        app().store().execute(isIndex() ? std::string(columns) + "Field2) values(" + values + ", " +
                                              number(text("TxtImpVol")) + ")"
                                        : std::string(columns) + "Field3,field2) values(" + values + ", " +
                                              q(TradeTime) + ", " + number(TradeVol) + ")");
    });
}

void RiskSheet::AddStock(const std::string& Units, const std::string& Traded, const std::string& CashType,
                         const std::string& TradeTime) {
    trapped("AddStock", [&] {
        const std::string values =
            q(SheetType.substr(0, 1)) + ", " + q(SheetDesc) + ", " + number(text("TxtMktPrice")) + ", " +
            whole(Units) + ", " + number(Traded) + ", " + q(Trim(text("TxtSymbol"))) + ", cdate(" +
            q(Format(text("TxtCurDt"), "DD-MMM-YYYY")) + "), " + number(text("TxtImpVol")) + ", 'S', " +
            whole(text("TxtDays")) + ", " + q(Trim(CashType));
        app().store().execute(
            isIndex()
                ? "insert into dummyTracker (InType,InDesc,MktPrice,Units,Traded,Symbol,TradeDt,Vol,CP,days,"
                  "CashType) values(" +
                      values + ")"
                : "insert into dummyTracker (InType,InDesc,MktPrice,Units,Traded,Symbol,TradeDt,Vol,CP,days,"
                  "Cashtype, field3) values(" +
                      values + ", " + q(TradeTime) + " )");
    });
}

namespace {

const char* const kSeriesUpdate =
    "update dummytracker set [last] =?, [vol] = ?, [delta] = ? , [DumThVal] = ? where "
    "[symbol] = ? and [indesc] = ? and [strike] = ? and [CP] = ?";

} // namespace

void RiskSheet::UpdateTracker() {
    trapped("UpdateTracker", [this] {
        Store& store = app().store();
        const std::string symbol = Trim(OwnSymbol);
        // A text the statement could not hold fails as it would.
        (void)q(symbol);
        (void)q(OwnDesc);
        // The writes wait while the mirror holds the rows they reach; the sums read the mirror.
        WaitingSeries& w = *waiting_;
        const std::optional<std::string> key = mirroredKey();
        const bool wait = key && mirrorOf(*key);
        WriteGroup group(store, WriteGroup::Rows::Working);
        // While no row has changed since the last of these writes, a series whose figures stand
        // as then written would be written again to the same values: it is left as it is.
        if (written_.stamp != store.stamp()) written_.texts.clear();
        written_.stamp.reset();
        // A flat series is left out: its rows keep the values of its last open moment, from
        // which its realised result is worked out.
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row) {
            if (Trim(cell(row, 3)).empty() || CLng(cell(row, 3)) == 0) continue;
            (void)q(cell(row, 2));
            // The figures go in as the statement's own texts would: prepared once, not per refresh.
            std::vector<std::string> texts{number(cell(row, 5)),
                                           number(cell(row, 6)),
                                           number(cell(row, 7)),
                                           number(cell(row, 8)),
                                           symbol,
                                           OwnDesc,
                                           number(cell(row, 1)),
                                           cell(row, 2)};
            // Keyed as the statement finds rows: the side compares without regard to (ASCII) case.
            std::string series = texts[6] + '\0' + texts[7];
            for (char& c : series)
                if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
            std::vector<std::string>& before = written_.texts[series];
            if (before == texts) continue;
            before.clear();
            if (wait) {
                // A later update of a series replaces its waiting one: it would overwrite it.
                w.mirror.setSeries(store, texts);
                if (auto it = w.sequenceOf.find(series); it != w.sequenceOf.end())
                    w.updates.erase(it->second);
                w.sequenceOf[series] = w.next;
                w.updates[w.next++] = texts;
            } else {
                store.execute(kSeriesUpdate, texts);
            }
            before = std::move(texts);
        }
        if (wait && !w.waiting && !w.updates.empty()) {
            w.waiting = true;
            store.deferLedgerWrites([&store, state = waiting_](bool write) {
                state->waiting = false;
                const auto updates = std::move(state->updates);
                state->updates.clear();
                state->sequenceOf.clear();
                if (!write) return; // undone: the mirror no longer holds the store's rows anyway
                WriteGroup writes(store, WriteGroup::Rows::Working);
                for (const auto& [order, texts] : updates)
                    store.execute(kSeriesUpdate, texts);
                state->mirror.keep(store);
            });
        }
        written_.stamp = store.stamp();
        totals_.clear(); // waiting writes change no stamp: the sums are read anew from the mirror
    });
}

void RiskSheet::ErrProcAddTracker() {
    try {
        Store& store = app().store();
        const std::string key = sheetLedgerKey();
        // The committed trades go only if their replacement is written.
        AllOrNothing step(store);
        store.execute("delete from tracker where " + key);
        // The index sheet commits whatever the working ledger holds: it keeps one sheet's rows.
        store.execute(isIndex() ? "insert into tracker select * from dummytracker"
                                : "insert into tracker select * from dummytracker where " + key);
        step.done();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        errorBox("Error in ErrProcAddTracker procedure: ", e, " and No: ");
    }
}

} // namespace tallimark
