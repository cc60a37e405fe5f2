// Every statement a sheet's opening and refresh run finds its rows by an index: a working ledger
// of many sheets is never read whole to refresh one of them.
#include "SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

TEST(SheetQueryPlans, NoStatementOfARefreshReadsAWholeTable) {
    test::SheetDesk d;
    const std::string key = "symbol = 'RILK2026' and indesc = 'NOV SHEET'";
    const std::string series = key + " and strike = 980 and CP ='C'";
    const std::string statements[] = {
        // Opening.
        "select InType, InDesc, InSymbol, MidStrike, Transdt, AStrike, BStrike, UComm,DIntRate from trans "
        "where "
        "InSymbol = 'RILK2026' and InDesc = 'NOV SHEET'",
        "select * From ScriptMast where ScriptMast.scrCode = 'RIL'",
        "select * from portfoliomast where Symbol = 'RILK2026' and Descr = 'NOV SHEET'",
        "select * from portfoliodet where Symbol = 'RILK2026' and Descr = 'NOV SHEET' ORDER BY STRIKE, CP",
        "delete from dummytracker where " + key,
        "insert into dummytracker select * from tracker where " + key,
        "insert into DumUploadFile select * from UploadFile where " + key,
        // The refresh.
        "Select Round(Avg(field2),2) as avgVol From DummyTracker where " + key +
            " and strike = 980 and cp = 'C' ",
        "update dummytracker set [last] =46.83, [vol] = 30, [delta] = 71.566 , [DumThVal] = 45.98 where "
        "[symbol] = "
        "'RILK2026' and [indesc] = 'NOV SHEET' and [strike] = 980 and [CP] = 'C'",
        "select distinct strike, CP from dummytracker where " + key + " and CP <>'S'",
        "select distinct strike, CP from dummytracker where " + key,
        "select sum(units) as TotUnits from dummytracker where " + series,
        "select sum(units) as TotUnits from dummytracker where " + key + " and strike = Null and CP ='S'",
        "select sum(units*last-units*traded) as TotAmt from dummytracker where " + series,
        "select sum(units*DumThVal-units*traded) as TotAmt from dummytracker where " + series,
        "select sum(-units*delta/100) as TotDelta from dummytracker where " + key + " and CP <> 'S'",
        "select sum(units) as TotStocks from dummytracker where " + key + " and CP = 'S'",
        "select sum(units*last) as TotLast from dummytracker where " + key + " and CP <> 'S'",
        "select sum(units*DumThVal) as TotLast from dummytracker where " + key + " and CP <> 'S'",
        "select sum(units) as TotUnits, sum(units*Traded) as TotTrade from dummytracker where " + key +
            " and CP = 'S' and CashType='F'",
        // Trades and the commit.
        "select sum(units) as TotUnits, sum(units*Traded) as TotTrade, CashType from dummytracker where " +
            key + " and CP = 'S' Group By CashType ",
        "select sum(units) as TotUnits, sum(units*Traded) as TotTrade from dummytracker where " + key +
            " and strike = 980 and CP = 'C'",
        "delete from tracker where " + key,
        "insert into tracker select * from dummytracker where " + key,
    };
    for (const std::string& sql : statements) {
        Recordset plan = d.app.store().query("EXPLAIN QUERY PLAN " + sql);
        ASSERT_FALSE(plan.eof()) << sql;
        for (; !plan.eof(); plan.moveNext()) {
            const std::string detail = plan["detail"].text();
            EXPECT_NE(detail.rfind("SCAN", 0), 0u) << sql << "\n  " << detail;
        }
    }
}
