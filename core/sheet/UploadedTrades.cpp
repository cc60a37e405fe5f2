// Trades of an uploaded file taken from UploadTracker into the working ledger: option lines one
// by one through the ladder, each on the row of its series with that row's figures; underlying
// lines as one block. Also the recalculation after trades were taken out of the ledger again.
#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace tallimark {

namespace {

std::string number(const std::string& text) {
    return NumText(CDbl(text));
}

std::string whole(const std::string& text) {
    return NumText(static_cast<int64_t>(CLng(text)));
}

bool sameText(const std::string& a, const std::string& b) {
    return UCase(a) == UCase(b);
}

} // namespace

std::vector<RiskSheet::StagedOption> RiskSheet::stagedOptions() {
    const Session& s = app().session();
    Recordset rs = app().store().query("select * from UploadTracker where Symbol = " + q(s.g_strSymbol) +
                                       " AND INDESC=" + q(s.g_strDesc));
    std::vector<StagedOption> lines;
    for (; !rs.eof(); rs.moveNext()) {
        if (rs["CP"].textOrEmpty() == "S") continue;
        lines.push_back({rs["Strike"].numberOrZero(), CLng(rs["Units"].numberOrZero()),
                         rs["Traded"].numberOrZero(), rs["CP"].textOrEmpty(),
                         Trim(rs["Field1"].textOrEmpty()), Trim(rs["Field3"].textOrEmpty())});
    }
    return lines;
}

bool RiskSheet::AddTrailUpload(const StagedOption& line, const std::string& tradeDate) {
    bool added = false;
    trapped(isIndex() ? "AddTrailUpload" : "AddTrail", [&] {
        const int row = va1().activeRow;
        const std::string head =
            q(SheetType.substr(0, 1)) + ", " + q(SheetDesc) + ", " + number(text("TxtMktPrice")) + ", " +
            NumText(static_cast<int64_t>(line.units)) + ", " + NumText(line.traded) + ", " +
            q(Trim(text("TxtSymbol"))) + ", " + number(cell(row, 1)) + ", cdate(" + q(tradeDate) + "), " +
            number(text("TxtImpVol")) + ", " + q(cell(row, 2)) + ", ";
        if (!isIndex()) {
            app().store().execute(
                "insert into dummyTracker (InType,InDesc,MktPrice,Units,Traded,Symbol,Strike,"
                "TradeDt,Vol,CP,delta,last,Days, DumThVal,Field1, field3) values(" +
                head + number(cell(row, 7)) + ", " + number(cell(row, 5)) + ", " + whole(text("TxtDays")) +
                ", " + number(cell(row, 8)) + ", " + q(line.field1) + ", " + q(line.field3) + ")");
        } else {
            // The index row carries its sensitivities, worked out for this trade's units, as a
            // trade keyed in by hand does; the file's time is not kept.
            auto zeroIfBlank = [&](int col) {
                return cell(row, col).empty() ? std::string("0") : cell(row, col);
            };
            const std::string delta = zeroIfBlank(7), theta = zeroIfBlank(10), vega = zeroIfBlank(12),
                              gamma = zeroIfBlank(14);
            const double units = line.units;
            app().store().execute(
                "insert into dummyTracker "
                "(InType,InDesc,MktPrice,Units,Traded,Symbol,Strike,TradeDt,Vol,CP,delta,"
                "last,Days, DumThVal,DeltaVal,Theta,ThetaVal,Vega,VegaVal,Gamma,GammaVal,Field2,Field1) "
                "values(" +
                head + number(delta) + ", " + number(cell(row, 5)) + ", " + whole(text("TxtDays")) + ", " +
                number(cell(row, 8)) + ", " + NumText(Val(delta) / 100 * units) + ", " + number(theta) +
                ", " + NumText(units * Val(theta)) + ", " + number(vega) + ", " + NumText(units * Val(vega)) +
                ", " + number(gamma) + ", " + NumText(units * Val(gamma)) + ", " + number(text("TxtImpVol")) +
                ", " + q(line.field1) + ")");
        }
        added = true;
    });
    return added;
}

bool RiskSheet::takeStagedOption(int row, const StagedOption& line, const std::string& tradeDate) {
    va1().activeRow = row;
    va1().activeCol = 1;
    // Shown for a moment only: the average of the series replaces them.
    setCell(row, 3, NumText(static_cast<int64_t>(line.units)));
    setCell(row, 4, NumText(line.traded));
    return AddTrailUpload(line, tradeDate);
}

void RiskSheet::optionRecalculation() {
    CalcAvgOption();
    CalcROption();
    CalcDeltaNeutral1();
    CalcOptionR();
    CalcSheetGreeks();
    ErrProcCalcBalance();
    ThetaBal();
}

void RiskSheet::PutOptionDataLineByLine(const std::string& tradeDate) {
    trapped("PutOptionData", [&] {
        for (const StagedOption& line : stagedOptions()) {
            const int last = lastLadderRow();
            for (int row = 2; row <= last; ++row) {
                if (Val(cell(row, 1)) != line.strike || Trim(cell(row, 2)) != Trim(line.cp)) continue;
                takeStagedOption(row, line, tradeDate);
                CalcPremium();
                optionRecalculation();
            }
        }
    });
}

// The same walk as PutOptionDataLineByLine with the sums run once at the end. Every sum reads the
// final ledger and ladder, so only what the walk leaves on the way has to be kept: a series that
// ends flat keeps the side colour of its last open position, and the premium is summed while the
// last row taken still shows the raw units and price of its line.
void RiskSheet::PutOptionData(const std::string& tradeDate) {
    trapped("PutOptionData", [&] {
        const std::vector<StagedOption> lines = stagedOptions();
        if (lines.empty()) return;
        std::map<std::pair<double, std::string>, std::vector<int>> rowsOf;
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row)
            rowsOf[{Val(cell(row, 1)), Trim(cell(row, 2))}].push_back(row);

        // Net units of each series as CalcAvgOption would find them after every trade.
        const bool rowsInSeries = sameText(SheetDesc, Trim(app().session().g_strDesc));
        std::map<std::pair<std::string, std::string>, int64_t> net;
        std::map<int, int64_t> lastOpen; // the last net a row showed that was not flat
        std::vector<int> taken;          // rows in the order first taken
        int final = 0;
        const StagedOption* lastLine = nullptr;
        {
            WriteGroup group(app().store(), WriteGroup::Rows::Working);
            for (const StagedOption& line : lines) {
                auto rows = rowsOf.find({line.strike, Trim(line.cp)});
                if (rows == rowsOf.end()) continue;
                for (int row : rows->second) {
                    const std::pair<std::string, std::string> series{NumText(CDbl(cell(row, 1))),
                                                                     Trim(cell(row, 2))};
                    auto held = net.find(series);
                    if (held == net.end())
                        held =
                            net.emplace(series, static_cast<int64_t>(sumOrZero(
                                                    "select sum(units) as TotUnits from dummytracker where " +
                                                        trimmedLedgerKey() + " and strike = " + series.first +
                                                        " and CP = " + q(series.second),
                                                    "TotUnits")))
                                .first;
                    // A trade that fails to go in leaves the series as it was.
                    if (takeStagedOption(row, line, tradeDate) && rowsInSeries) held->second += line.units;
                    if (held->second != 0) lastOpen[row] = held->second;
                    if (std::find(taken.begin(), taken.end(), row) == taken.end()) taken.push_back(row);
                    final = row;
                    lastLine = &line;
                }
            }
        }
        if (!lastLine) return;
        for (int row : taken) {
            if (row == final) continue;
            if (auto open = lastOpen.find(row); open != lastOpen.end())
                markUnits(row, static_cast<double>(open->second));
            va1().activeRow = row;
            CalcAvgOption();
        }
        if (auto open = lastOpen.find(final); open != lastOpen.end())
            markUnits(final, static_cast<double>(open->second));
        setCell(final, 3, NumText(static_cast<int64_t>(lastLine->units)));
        setCell(final, 4, NumText(lastLine->traded));
        va1().activeRow = final;
        CalcPremium();
        optionRecalculation();
    });
}

void RiskSheet::PutStockData() {
    trapped("PutStockData", [this] {
        const Session& s = app().session();
        app().store().execute("insert into dummytracker select * from UploadTracker where symbol = " +
                              q(s.g_strSymbol) + " and indesc = " + q(s.g_strDesc) + " and CP='S'");
        PutStockData1();
    });
}

void RiskSheet::PutOptionData1() {
    trapped("PutOptionData1", [this] {
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row) {
            if (Val(cell(row, 4)) == 0) continue;
            va1().activeRow = row;
            va1().activeCol = 1;
            CalcPremium();
            CalcAvgOption();
            CalcROption();
            CalcOptionR();
            CalcSheetGreeks();
            ErrProcCalcBalance();
            ThetaBal();
        }
        FillLViewData();
        Event enter{EventType::KeyDown};
        enter.keyCode = keys::Enter;
        fire(kLadder, enter);
    });
}

void RiskSheet::PutStockData1() {
    trapped("PutStockData1", [this] {
        CalcAvgStock();
        CalcRStock();
        CalcDeltaNeutral1();
        CalcFutureR();
        ErrProcCalcBalance();
        ThetaBal();
    });
}

} // namespace tallimark
