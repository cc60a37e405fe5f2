// Which statements could see the working ledger's waiting writes, and which change its rows: a
// statement wrongly taken for a plain read would see rows without the refresh's figures.
#include "frame/LedgerStatements.h"

#include <gtest/gtest.h>

using namespace tallimark;

TEST(LedgerStatements, WaitingWritesRunBeforeEveryStatementThatCouldSeeThem) {
    struct Case {
        const char* sql;
        bool sees, writes;
    };
    const Case cases[] = {
        {"select sum(units) as TotStocks from dummytracker where symbol = 'X' and CP = 'S'", false, false},
        {"select sum(units*Traded) from DummyTracker where indesc = 'last delta'", false, false},
        {"Select Round(Avg(field2),2) as avgVol From DummyTracker where symbol = 'X'", false, false},
        {"select sum(units*last) as TotLast from dummytracker", true, false},
        {"select [DumThVal] from DummyTracker", true, false},
        {"select * from dummytracker where symbol = 'X'", true, false},
        {"select d.* from dummytracker d", true, false},
        {"insert into tracker select * from dummytracker where symbol = 'X'", true, false},
        {"insert into dummyTracker (Symbol, Units) values ('X', 1)", true, true},
        {"update dummytracker set Units = 1", true, true},
        {"delete * from dummytracker", true, true},
        {"DELETE FROM main.DummyTracker;INSERT INTO main.DummyTracker SELECT * FROM temp.DummyTracker", true,
         true},
        {"EXPLAIN QUERY PLAN select Units from dummytracker", true, true},
        {"select sum(last) from Tracker", false, false},
        {"insert into Trans (InDesc) values ('dummytracker')", false, false},
    };
    for (const Case& c : cases) {
        const LedgerUse use = ledgerUse(c.sql);
        EXPECT_EQ(use.seesWaitingWrites, c.sees) << c.sql;
        EXPECT_EQ(use.writes, c.writes) << c.sql;
    }
}
