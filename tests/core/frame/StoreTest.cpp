#include "TestDesk.h"

#include "frame/Schema.h"
#include "frame/Store.h"
#include "frame/VbNumber.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

using namespace tallimark;

namespace {

std::vector<std::string> columnsOf(Store& store, const std::string& table) {
    Recordset rs = store.query("select * from " + table);
    std::vector<std::string> names;
    for (size_t i = 0; i < rs.fieldCount(); ++i)
        names.push_back(rs.fieldName(i));
    return names;
}

long long count(Store& store, const std::string& sql) {
    return store.query(sql).at(0).number();
}

// The first row of a query as one line, its fields joined by '|', a null shown as "null".
std::string firstRow(Store& store, const std::string& sql) {
    Recordset rs = store.query(sql);
    std::string line;
    for (size_t i = 0; i < rs.fieldCount(); ++i)
        line += (i ? "|" : "") + (rs.at(i).isNull() ? "null" : rs.at(i).text());
    return line;
}

// The engine's code and text of the StoreError the action raises, or "" when it raises none.
std::string failure(const std::function<void()>& action) {
    try {
        action();
    } catch (const StoreError& e) {
        return std::to_string(e.number()) + " " + e.what();
    }
    return "";
}

} // namespace

// The tracker tables share one shape so that rows copy between them by position.
TEST(ReadyStore, HoldsEveryTableTheMonthsOneUserAndTrackerTablesOfOneShapeWithoutDateHandling) {
    test::Desk desk;
    Store& store = desk.app.store();
    for (const auto& [table, width] :
         {std::pair{"PortfolioMast", 56u}, {"PortfolioDet", 20u}, {"Closing", 35u}})
        EXPECT_EQ(columnsOf(store, table).size(), width) << table;
    EXPECT_EQ(columnsOf(store, "PortfolioMast").back(), "Field1");
    EXPECT_EQ(firstRow(store, "Select FCode, SCode, Days From MonthCheck where MonthCheck.Mnth = 'FEBRUARY'"),
              "G|B|28");
    EXPECT_EQ(store.query("select UserNm from Users")["UserNm"].text(), schema::kFirstUserName);
    // Every table is there, empty but for the months and the first user.
    for (const std::string table :
         {"ScriptMast", "MonthCheck", "Trans", "PortfolioMast", "PortfolioDet", "Tracker", "DummyTracker",
          "UploadTracker", "FutOpt", "Eq", "UploadFile", "DumUploadFile", "Charges", "Closing", "Users",
          "ExpTemp", "CallSummary1", "Call1", "FutStkSumDet"})
        EXPECT_EQ(count(store, "select count(*) from " + table),
                  table == "MonthCheck" ? 12 : table == "Users")
            << table;

    EXPECT_EQ(columnsOf(store, "Tracker"), columnsOf(store, "DummyTracker"));
    EXPECT_EQ(columnsOf(store, "Tracker"), columnsOf(store, "UploadTracker"));
    EXPECT_EQ(columnsOf(store, "UploadFile"), columnsOf(store, "DumUploadFile"));
    store.execute(
        "insert into Tracker (InType, InDesc, Symbol, Units, Traded, Strike, CP, TradeDt, Field3) values "
        "('S', 'Desc', 'ACCK2026', -50, 12.5, 300, 'C', cdate('23-Nov-2026'), '10:15')");
    store.execute("insert into dummytracker select * from tracker where symbol = 'ACCK2026'");
    store.execute("insert into UploadTracker select * from dummytracker");
    EXPECT_EQ(firstRow(store, "select count(*), Units, Traded, CP, Field3 from UploadTracker"),
              "1|-50|12.5|C|10:15");
    EXPECT_EQ(store.query("select TradeDt from UploadTracker")["TradeDt"].date(),
              VbDate::fromYmd(2026, 11, 23));

    // The committed ledger is filled by copies of working rows alone, whose dates are kept already: a
    // store made with date handling on it loses that handling as it opens.
    const std::string triggers = "select count(*) from sqlite_master where type = 'trigger' and tbl_name = ";
    EXPECT_EQ(count(store, triggers + "'Tracker'"), 0);
    EXPECT_EQ(count(store, triggers + "'DummyTracker'"), 2);
    store.executeNative("CREATE TRIGGER Tracker_TradeDt_ins AFTER INSERT ON Tracker BEGIN SELECT 1; END");
    desk.app.closeStore();
    desk.app.openStore();
    EXPECT_EQ(count(desk.app.store(), triggers + "'Tracker'"), 0);
}

TEST(StoreDialect, TheDesksSqlAndDatesWhateverTextTheyGotRunOnTheStore) {
    test::Desk desk;
    Store& store = desk.app.store();
    for (const char* sql :
         {"insert into ScriptMast (ScrCode, ScrName, Field2) values ('ACC', 'ACC LTD', 250)",
          "insert into DummyTracker (Symbol, InDesc, Field2) values ('X', 'D', 2.5)",
          "insert into DummyTracker (Symbol, InDesc, Field2) values ('X', 'D', 2.25)",
          // A plain date text, with the blank that one insert leaves inside the quotes.
          "INSERT INTO DumUploadfile (tradedt,futstk,equity,symbol,Indesc)VALUES( '23-Nov-2026 ', 'f.txt','',"
          "'ACCK2026','D')",
          "insert into DumUploadFile (TradeDt, Symbol, InDesc) values ('24-11-2026', 'ACCK2026', 'D')",
          "insert into Closing (Symbol, Descr, Dt, ClBal) values ('S', 'D', '30-10-2026', 1)",
          "insert into Closing (Symbol, Descr, Dt, ClBal) values ('S', 'D', '02-11-2026', 2)"})
        store.execute(sql);
    const std::pair<const char*, const char*> answers[] = {
        // Mid, bracketed names and text compared without regard to case.
        {"select ScrName as [NAME] from ScriptMast where ScrCode = Mid('acck2026', 1, 3)", "ACC LTD"},
        {"select left(ScrName, 3) as L, Right (ScrName,3) as R from ScriptMast where ScrName = 'acc ltd'",
         "ACC|LTD"},
        {"select count(*) from ScriptMast where left(ScrCode,2 )='AC'", "1"},
        // Round goes to even, also inside SQL; Avg of no rows is null.
        {"select round(2.5) as r", "2"},
        {"select avg(field2) as a from DummyTracker where symbol = 'none'", "null"},
        {"select count(*) as Cnt from DumUploadfile where symbol ='ACCK2026' and tradedt= "
         "CDate('23-Nov-2026')",
         "1"},
        {"select count(*) from DumUploadFile where TradeDt > cdate('23-11-2026')", "1"},
        {"select TradeDt from DumUploadFile order by TradeDt desc", "24-11-2026"},
        // Closing.Dt is text and compares as text; cdate(Dt) orders by the date.
        {"select Dt from Closing order by Dt desc", "30-10-2026"},
        {"SELECT clBal AS OpBal From Closing WHERE cdate(DT) < CDATE('03-11-2026') order by cdate(Dt) desc",
         "2"},
    };
    for (const auto& [sql, row] : answers)
        EXPECT_EQ(firstRow(store, sql), row) << sql;
    EXPECT_EQ(store.query("select ScrName as [NAME] from ScriptMast")["name"].text(), "ACC LTD");
    EXPECT_EQ(store.query("Select Round(Avg(field2),2) as avgVol From DummyTracker")["avgVol"].number(),
              2.38);
    EXPECT_EQ(store.query("select TradeDt from DumUploadFile order by TradeDt desc")["TradeDt"].date(),
              VbDate::fromYmd(2026, 11, 24));
    store.execute("delete * from DummyTracker where Symbol = 'X'");
    EXPECT_EQ(count(store, "select count(*) from DummyTracker"), 0);
}

TEST(StoreDialect, AQuoteBreaksOnlyItsOwnStatementAndErrorsKeepTheEnginesCodeAndText) {
    test::Desk desk;
    Store& store = desk.app.store();
    EXPECT_NE(failure([&] {
                  store.execute("insert into Users (UserCd, UserNm, Pwd) values ('2', " + q("O'BRIEN") +
                                ", 'x')");
              }).find("O'BRIEN"),
              std::string::npos)
        << "a quoted text with a quote must not reach the store";
    // Nothing that a text holds can change what a statement means.
    EXPECT_THROW(store.query("select * from Users where UserNm = " + q("x' or '1'='1")), StoreError);
    EXPECT_EQ(count(store, "select count(*) from Users"), 1);
    EXPECT_EQ(q("NIFTY"), "'NIFTY'");

    const std::string missing = failure([&] { store.execute("insert into NoSuchTable values (1)"); });
    EXPECT_EQ(missing.rfind("1 ", 0), 0u) << missing; // SQLITE_ERROR
    EXPECT_NE(missing.find("NoSuchTable"), std::string::npos);
    EXPECT_THROW(store.execute("insert into Users (UserCd) values ('1')"), StoreError); // the key
    EXPECT_THROW(Store::open(desk.dir.path() / "missing.db"), StoreError);
}

TEST(StoreDialect, ANumberReachesAStatementOnlyAsItsOwnText) {
    const std::pair<const char*, const char*> taken[] = {
        {"12", "12"}, {" 1,000.50 ", "1000.5"}, {"-0", "0"}, {"1e5", "100000"}, {"2.5D-3", "0.0025"}};
    for (const auto& [typed, written] : taken)
        EXPECT_EQ(num(typed), written) << typed;
    for (const char* hostile : {"", "abc", "1 2", "0, SCRNAME = 'PWNED' --", "(select Pwd from Users)", "1/*",
                                "1e400", "0x10", "1;", "--1"}) {
        const std::string f = failure([&] { num(hostile); });
        EXPECT_EQ(f.rfind("1 ", 0), 0u) << hostile;
        EXPECT_NE(f.find(hostile, 2), std::string::npos) << hostile;
    }
}

TEST(Store, AFigureInPlaceOfAMarkIsStoredAsItsTextInTheStatementWouldBe) {
    // The refresh writes held series through "?" marks: every double stored must be the bits that
    // the statement holding the figure's own text would store. Figures of every size and sign.
    test::Desk desk;
    Store& store = desk.app.store();
    store.executeNative("create table F (k DOUBLE, x DOUBLE, y DOUBLE, i INTEGER, j INTEGER)");
    std::mt19937_64 rng(11);
    WriteGroup group(store);
    for (int i = 0; i < 20000; ++i) {
        const double v = std::ldexp(static_cast<double>(rng() >> 11), static_cast<int>(rng() % 90) - 95);
        const std::string t = NumText(i % 2 ? -v : v), k = NumText(i / 7.0);
        store.execute("insert into F (k) values (" + k + ")");
        store.execute("update F set x = " + t + " where k = " + k);
        store.execute("update F set y = ? where k = ?", {t, k});
        const std::string units = NumText(static_cast<double>(static_cast<int32_t>(rng())));
        store.execute("update F set i = " + units + ", j = ? where k = ?", {units, k});
    }
    EXPECT_EQ(count(store, "select count(*) from F where x = y and typeof(x) = typeof(y) and i = j and "
                           "typeof(i) = typeof(j)"),
              20000);
}
