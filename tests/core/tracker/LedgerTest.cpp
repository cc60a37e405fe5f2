// The working ledger: trades appended from the sheet, held series kept current, and the commit
// of a sheet's rows to Tracker, for the stock sheet and the index sheet's whole-table ways.
#include "sheet/SheetDesk.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct OpenSheet : test::LiveSheetDesk {
    using LiveSheetDesk::LiveSheetDesk;
    // The columns of the one ledger row a condition picks, as text.
    std::string row(const std::string& where, const std::vector<const char*>& columns) {
        Recordset rs = app.store().query("select * from DummyTracker where " + where);
        EXPECT_EQ(rs.recordCount(), 1u) << where;
        std::string out;
        for (const char* c : columns)
            out += std::string(out.empty() ? "" : " ") + c + "=" +
                   (rs.eof()         ? "?"
                    : rs[c].isNull() ? "null"
                                     : rs[c].text());
        return out;
    }
};

} // namespace

TEST(Ledger, AnOptionTradeTakesTheRowsFiguresForItsOwnUnits) {
    OpenSheet d;
    d.s.va1().activeRow =
        4; // 980 C: delta 71.566, last 46.83, next day 45.98, theta 0.85, vega 0.748, gamma 0.005
    d.s.AddTrail("2.5", "24.5", "10:30:00", "29.5");
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
    // Units go through CLng, ties to even; the values are the row's times the trade's units.
    EXPECT_EQ(
        d.row("Field3 = '10:30:00'",
              {"InType",   "InDesc", "MktPrice", "Units", "Traded",   "Symbol",   "Strike",   "TradeDt",
               "Vol",      "CP",     "Delta",    "Last",  "Days",     "DumThVal", "DeltaVal", "Theta",
               "ThetaVal", "Vega",   "VegaVal",  "Gamma", "GammaVal", "Field2",   "CashType"}),
        "InType=S InDesc=NOV SHEET MktPrice=1010 Units=2 Traded=24.5 Symbol=RILK2026 Strike=980 "
        "TradeDt=23-11-2026 Vol=30 CP=C Delta=71.566 Last=46.83 Days=17 DumThVal=45.98 DeltaVal=1.78915 "
        "Theta=0.85 ThetaVal=2.125 Vega=0.748 VegaVal=1.87 Gamma=0.005 GammaVal=0.0125 Field2=29.5 "
        "CashType=null");
}

TEST(Ledger, TheIndexSheetTakesItsCallVolatilityAndNoTime) {
    OpenSheet d(SheetKind::Index);
    d.s.va1().activeRow = 6; // 6000 C
    d.s.AddTrail("3", "150", "10:30:00", "99");
    EXPECT_EQ(d.row("Units = 3", {"InType", "Strike", "CP", "Last", "Delta", "DumThVal", "Field2", "Field3"}),
              "InType=F Strike=6000 CP=C Last=143.7 Delta=61.8 DumThVal=0 Field2=20 Field3=null");
}

TEST(Ledger, ARowThatCannotBeReadStoresNoTrade) {
    OpenSheet d;
    const double before = d.number("select count(*) from DummyTracker");
    d.s.va1().activeRow = 4;
    d.s.va1().setText(4, 5, "");
    d.s.AddTrail("1", "20", "10:00:00", "30");
    EXPECT_EQ(d.boxTexts(),
              std::vector<std::string>{"Error in AddTrail Procedure: Type mismatch and No: 13"});
    EXPECT_EQ(d.number("select count(*) from DummyTracker"), before);
}

TEST(Ledger, AnUnderlyingTradeHasNoSeries) {
    struct Case {
        SheetKind kind;
        const char* expected;
    } cases[] = {
        {SheetKind::Stock, "InType=S MktPrice=1010 Units=-2 Traded=1012.5 Strike=null CP=S Days=17 Vol=30 "
                           "CashType=F Field3=11:00:00 Delta=null"},
        {SheetKind::Index, "InType=F MktPrice=6050 Units=-2 Traded=1012.5 Strike=null CP=S Days=17 Vol=20 "
                           "CashType=F Field3=null Delta=null"},
    };
    for (const Case& c : cases) {
        OpenSheet d(c.kind);
        d.s.AddStock("-2", "1012.5", " F ", "11:00:00");
        EXPECT_EQ(d.row("Traded = 1012.5", {"InType", "MktPrice", "Units", "Traded", "Strike", "CP", "Days",
                                            "Vol", "CashType", "Field3", "Delta"}),
                  c.expected);
    }
}

TEST(Ledger, HeldSeriesTakeTheLaddersValuesAndFlatOnesStayFrozen) {
    OpenSheet d;
    d.addTrade("DummyTracker", test::kStockSymbol, "OTHER DESC", "980", "C", 1, 20, {{"Last", "1"}});
    d.s.UpdateTracker();
    const std::string sheet = "Symbol = 'RILK2026' and InDesc = 'NOV SHEET'";
    EXPECT_EQ(
        d.number("select count(*) from DummyTracker where " + sheet +
                 " and Strike = 980 and Last = 46.83 and Vol = 30 and Delta = 71.566 and DumThVal = 45.98"),
        2);
    EXPECT_EQ(d.number("select count(*) from DummyTracker where " + sheet +
                       " and Strike = 1000 and CP = 'P' and Last = 21.41 and Vol = 32"),
              1);
    EXPECT_EQ(
        d.number("select count(*) from DummyTracker where " + sheet + " and Strike = 1020 and Last = 7"), 2)
        << "the closed series keeps the values of its last open moment";
    EXPECT_EQ(d.number("select Last from DummyTracker where InDesc = 'OTHER DESC'"), 1);
    // A held series written before is written again once its rows have changed, by a statement
    // or by a step undone.
    const std::string held = sheet + " and Strike = 980 and CP = 'C'";
    d.app.store().execute("update DummyTracker set Last = 1 where " + held);
    d.s.UpdateTracker();
    EXPECT_EQ(d.number("select min(Last) from DummyTracker where " + held), 46.83);
    d.app.store().execute("update DummyTracker set Last = 1 where " + held);
    {
        AllOrNothing undone(d.app.store());
        d.s.UpdateTracker();
    }
    EXPECT_EQ(d.number("select min(Last) from DummyTracker where " + held), 1);
    d.s.UpdateTracker();
    EXPECT_EQ(d.number("select min(Last) from DummyTracker where " + held), 46.83);
}

TEST(Ledger, CommittingReplacesTheSheetsTrades) {
    struct Case {
        SheetKind kind;
        double otherSheetRowsInTracker;
    } cases[] = {{SheetKind::Stock, 1}, {SheetKind::Index, 2}};
    for (const Case& c : cases) {
        OpenSheet d(c.kind);
        const std::string symbol = c.kind == SheetKind::Stock ? test::kStockSymbol : test::kIndexSymbol;
        d.addTrade("Tracker", "ACCX2026", "OTHER", "500", "C", 1, 5);
        // After the opening: rows of another sheet left in the working ledger.
        d.addTrade("DummyTracker", "ACCX2026", "OTHER", "500", "C", 1, 5);
        d.app.store().execute("delete from DummyTracker where Symbol = " + q(symbol) + " and Units < 0");
        d.s.ErrProcAddTracker();
        EXPECT_TRUE(d.ui.boxes().empty());
        EXPECT_EQ(d.number("select count(*) from Tracker where Symbol = " + q(symbol)),
                  d.number("select count(*) from DummyTracker where Symbol = " + q(symbol)));
        EXPECT_EQ(d.number("select count(*) from Tracker where Units < 0 and Symbol = " + q(symbol)), 0);
        // The index sheet commits whatever the working ledger holds, the other sheet's rows too.
        EXPECT_EQ(d.number("select count(*) from Tracker where Symbol = 'ACCX2026'"),
                  c.otherSheetRowsInTracker);
    }
}

TEST(Ledger, AFailedCommitSaysSoInItsOwnWords) {
    OpenSheet d;
    d.app.store().executeNative("drop table Tracker");
    d.s.ErrProcAddTracker();
    EXPECT_EQ(d.boxTexts(), std::vector<std::string>{
                                "Error in ErrProcAddTracker procedure: no such table: tracker and No: 1"});
}
