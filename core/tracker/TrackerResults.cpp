// Positions, averages and results summed anew from the working ledger. A series is netted by
// its signed units and signed money; it counts as realised only while its units are exactly 0.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <cmath>

namespace tallimark {

namespace {

// Net units (through a long) and net money of some ledger rows; nulls count 0.
struct Net {
    int32_t units = 0;
    double money = 0;
};

Net netOf(Store& store, const std::string& where) {
    Recordset rs = store.query(
        "select sum(units) as TotUnits, sum(units*Traded) as TotTrade from dummytracker where " + where);
    if (rs.eof()) return {};
    return {CLng(rs["TotUnits"].numberOrZero()), rs["TotTrade"].numberOrZero()};
}

std::string unitsText(int32_t units) {
    return NumText(static_cast<int64_t>(units));
}

} // namespace

void RiskSheet::CalcAvgOption() {
    trapped("CalcAvgOption", [this] {
        const int row = va1().activeRow;
        const Net net =
            netOf(app().store(), trimmedLedgerKey() + " and strike = " + NumText(CDbl(cell(row, 1))) +
                                     " and CP = " + q(Trim(cell(row, 2))));
        if (net.units != 0) {
            // The net money over the net units: sold units stay in the average.
            setCell(row, 3, unitsText(net.units));
            markUnits(row, net.units);
            setCell(row, 4, NumText(Round(net.money / net.units, 2)));
        } else {
            setCell(row, 3, "");
            setCell(row, 4, "");
        }
    });
}

void RiskSheet::CalcAvgStock() {
    trapped("CalcAvgStock", [this] {
        Store& store = app().store();
        const std::string key = trimmedLedgerKey();
        const Net net = netOf(store, key + " and CP = 'S'");
        if (net.units != 0) {
            setText("TxtFutLots", unitsText(net.units));
            set("TxtFutTrade", Round(net.money / net.units, 2));
        } else {
            setText("TxtFutLots", "0");
            setText("TxtFutTrade", "0");
        }
        if (isIndex()) return;
        // Futures and cash apart, each at the absolute of its average. A cash type without rows
        // any more leaves its pair as it stood.
        Recordset rs =
            store.query("select sum(units) as TotUnits, sum(units*Traded) as TotTrade, CashType from "
                        "dummytracker where " +
                        key + " and CP = 'S' Group By CashType ");
        for (; !rs.eof(); rs.moveNext()) {
            const Value& units = rs["TotUnits"];
            const Value& money = rs["TotTrade"];
            const double u = units.numberOrZero();
            const bool futures = rs["CashType"].textOrEmpty() == "F";
            const char* lots = futures ? "TxtFut_trdNF" : "TxtCashLots";
            const char* average = futures ? "TxtFut_trdAmt" : "TxtCashTrade";
            setText(lots, units.isNull() ? "0" : unitsText(CLng(u)));
            if (money.isNull())
                setText(average, "0");
            else if (u != 0)
                set(average, std::abs(Round(money.number() / u, 2)));
            else if (!futures)
                setText(average, "0");
            if (futures && CDbl(text("TxtFut_trdNF")) == 0) setText("TxtFut_trdAmt", "0");
        }
    });
}

void RiskSheet::CalcROption() {
    trapped(
        "CalcROption",
        [this] {
            double acc = 0;
            // Flat series only: the model value of their rows cancels, leaving the cash result.
            seriesSums(trimmedLedgerKey(), SeriesAmount::AtLast, true, [&](double units, double amount) {
                if (CLng(units) == 0) acc += amount;
            });
            set("TxtOptR", Round(acc, 0));
        },
        " And No: ");
}

void RiskSheet::CalcRStock() {
    trapped(
        "CalcRStock",
        [this] {
            const std::string key = trimmedLedgerKey();
            double acc = 0;
            if (sumOrZero("select sum(units) as TotUnits from dummytracker where " + key + " and CP ='S'",
                          "TotUnits") == 0)
                // The index sheet counts a flat underlying from the rows' market price.
                acc += sumOrZero(std::string(isIndex() ? "select sum(units*MktPrice-units*traded) as TotAmt"
                                                       : "select -sum(units*traded) as TotAmt") +
                                     " from dummytracker where " + key + " and CP ='S'",
                                 "TotAmt");
            set("TxtFutR", Round(acc, 0));
        },
        " And No: ");
}

void RiskSheet::CalcOptionR() {
    trapped("CalcOptionR", [this] {
        // The present value of every option row, flat series included.
        set("TxtOptU", Round(optionTotals(trimmedLedgerKey()).last, 0));
    });
}

void RiskSheet::CalcFutureR() {
    trapped("CalcFutureR", [this] {
        if (Trim(text("TxtFutLots")).empty()) setText("TxtFutLots", "0");
        if (Trim(text("TxtFutTrade")).empty()) setText("TxtFutTrade", "0");
        set("TxtFutU",
            Round((CDbl(text("TxtMktPrice")) - CDbl(text("TxtFutTrade"))) * CLng(text("TxtFutLots")), 0));
    });
}

} // namespace tallimark
