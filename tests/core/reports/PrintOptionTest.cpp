// The sheet's printing screen: which run each choice makes, and the rows, totals and formula
// values each run hands to its report, read from the laid-out pages.
#include "TestDesk.h"

#include "frame/App.h"
#include "reports/FrmPrintOption.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

using namespace tallimark;

namespace {

// A sheet with option trades on three days, futures and stock, a closing and the script's limits;
// a trade of another sheet that no report may show.
void sheetWithTrades(Store& s) {
    s.execute("insert into ScriptMast(ScrCode, ScrName, Limit_Cr, First_Gamma, Week_Gamma) "
              "values ('NIF', 'NIFTY', 50, '0.5/0.8', '1.2')");
    s.execute("insert into PortfolioMast(Symbol, Descr, MktPrice, Days, ExpDt, Balance, Up1MktPrice, Up1Bal) "
              "values ('NIFX2026', 'NOV', 18000, 7, cdate('30-11-2026'), 1234.5, 19800, 500)");
    s.execute("insert into PortfolioDet(Symbol, Descr, Strike, CP, Units, DeltaVal, Field2) values "
              "('NIFX2026', 'NOV', 18000, 'C', 50, 25, 1), ('NIFX2026', 'NOV', 18100, 'P', -25, -10, 1), "
              "('NIFX2026', 'NOV', 18200, 'C', 0, 99, 0)");
    s.execute("insert into Closing(Symbol, Descr, Dt, ClBal, OpBal) values ('NIFX2026', 'NOV', '23-11-2026', "
              "900, 1000)");
    const char* trades = "('NIFX2026', 'NOV', cdate('20-11-2026'), 'C', 18000, 50, 100, ''), "
                         "('NIFX2026', 'NOV', cdate('20-11-2026'), 'P', 18100, -25, 80, ''), "
                         "('NIFX2026', 'NOV', cdate('21-11-2026'), 'C', 18000, 10, 120, ''), "
                         "('NIFX2026', 'NOV', cdate('23-11-2026'), 'P', 18100, 5, 90, ''), "
                         "('NIFX2026', 'NOV', cdate('20-11-2026'), 'S', 0, 50, 18000, 'F'), "
                         "('NIFX2026', 'NOV', cdate('21-11-2026'), 'S', 0, -20, 18100, 'F'), "
                         "('NIFX2026', 'NOV', cdate('23-11-2026'), 'S', 0, 10, 500, 'Q'), "
                         "('NIFX2026', 'DEC', cdate('21-11-2026'), 'C', 18000, 99, 1, '')";
    for (const char* table : {"Tracker", "DummyTracker"})
        s.execute(std::string("insert into ") + table +
                  "(Symbol, InDesc, TradeDt, CP, Strike, Units, Traded, CashType) values " + trades);
}

// Every line of the report as its cells' texts joined by "|".
std::vector<std::string> printed(const ReportDocument& doc) {
    std::vector<std::string> out;
    for (const auto& page : doc.pages)
        for (const auto& line : page.lines) {
            std::string t;
            for (size_t c = 0; c < line.cells.size(); ++c)
                t += (c ? "|" : "") + line.cells[c].text;
            out.push_back(t);
        }
    return out;
}

// A choice on the screen: print kind, depth, "as on date", the date range.
using Choice = std::tuple<int, int, bool, const char*, const char*>;
// Chooses on the screen as the desk does and prints; the boxes shown when nothing printed.
std::vector<std::string> print(test::Desk& desk, const Choice& choice) {
    const auto& [kind, depth, asOnDate, from, to] = choice;
    auto& form = desk.app.screens().get<FrmPrintOption>();
    form.show();
    form.setValue("Option2(" + std::to_string(kind) + ")", true);
    form.setValue("Option1(" + std::to_string(depth) + ")", true);
    form.setValue("Check1", asOnDate);
    form.setText("DTPicker1", from);
    form.setText("DTPicker2", to);
    const size_t before = desk.ui.reports().size();
    form.fire("Cmd(0)", EventType::Click);
    if (desk.ui.reports().size() == before) return desk.boxTexts();
    return printed(desk.ui.reports().back());
}

void expectInOrder(const std::vector<std::string>& got, const std::vector<std::string>& want) {
    auto at = got.begin();
    for (const auto& w : want) {
        at = std::find(at, got.end(), w);
        ASSERT_NE(at, got.end()) << "missing or out of order: " << w;
    }
}

TEST(PrintOption, EachChoiceRunsItsReportWithItsRowsTotalsAndValues) {
    test::Desk desk;
    sheetWithTrades(desk.app.store());
    desk.app.session().g_strSymbol = "NIFX2026";
    desk.app.session().g_strDesc = "NOV";
    const char *from = "20-Nov-2026", *to = "21-Nov-2026";
    // Each choice with the lines its report holds, in this order.
    const std::pair<Choice, std::vector<std::string>> cases[] = {
        // The full sheet: open positions only; the closing of the sheet's date (30-11 less 7 days).
        {{2, 1, false, from, to},
         {"Risk Management Sheet", "Sheet NIFX2026   NOV", "18,000.00|C|50|||||25.00||||||",
          "18,100.00|P|-25|||||-10.00||||||", "Total||25|||||15.00||0.00||0.00||0.00", "Balance|1,234.50",
          "10% up, at 19800|500.00",
          // Futures 50 at 18000 and -20 at 18100: 30 units, 538000 traded, margin 12.5% of it.
          "Future/Stock units|30", "Future/Stock average price|17,933.33", "Equity units|10",
          "Equity average price|500.00", "Future margin|67,250.00", "Today's expenses|-100.00",
          "Expenses|900.00", "Limit (crores)|50.00", "First gamma|0.5", "Second gamma|0.8",
          "Last gamma|1.2"}},
        {{0, 0, false, from, to},
         {"Call / Put Summary", "Trades from 20-Nov-2026 to 21-Nov-2026", "20-11-2026",
          "18,000.00|C|50|0|-5,000.00", "18,100.00|P|0|-25|2,000.00", "Total 20-11-2026||50|-25|-3,000.00",
          "21-11-2026", "18,000.00|C|10|0|-1,200.00", "Total||60|-25|-4,200.00"}},
        // As on date: every day, by strike.
        {{0, 0, true, from, to},
         {"Call / Put Summary as on Date", "18,000.00|C|60|0|-6,200.00", "18,100.00|P|0|-20|1,550.00",
          "Total||60|-20|-4,650.00"}},
        {{0, 1, false, from, to},
         {"Call / Put Detail", "20-11-2026", "18,000.00|C|50|100.00|-5,000.00",
          "18,100.00|P|-25|80.00|2,000.00", "Total 20-11-2026||||-3,000.00", "Total||||-4,200.00"}},
        {{1, 0, false, from, "23-Nov-2026"},
         {"Future / Stock Summary", "20-11-2026|50|0|-9,00,000.00", "21-11-2026|-20|0|3,62,000.00",
          "23-11-2026|0|10|-5,000.00", "Total|30|10|-5,43,000.00"}},
        {{1, 1, false, from, "23-Nov-2026"},
         {"Future / Stock Detail", "20-11-2026", "Future|50||18,000.00|-9,00,000.00",
          "Total 20-11-2026|50|0||-9,00,000.00", "Stock||10|500.00|-5,000.00", "Total|30|10||-5,43,000.00"}},
        // A range without trades, a sheet without positions, a script without limits.
        {{0, 1, false, "01-Nov-2026", "02-Nov-2026"},
         {"Call / Put Detail", "No option trades in this date range."}},
    };
    for (const auto& [choice, lines] : cases) {
        SCOPED_TRACE(lines[0]);
        expectInOrder(print(desk, choice), lines);
    }

    desk.app.store().execute("insert into PortfolioMast(Symbol, Descr, MktPrice, Days, ExpDt) "
                             "values ('ABCX2026', 'NOV', 10, 7, cdate('30-11-2026'))");
    desk.app.session().g_strSymbol = "ABCX2026";
    // Limits left blank in the script master are kept as 0.
    desk.app.store().execute("insert into ScriptMast(ScrCode, Limit_Cr, First_Gamma, Week_Gamma) "
                             "values ('ABC', 0, '0', '0')");
    expectInOrder(print(desk, Choice{2, 0, true, from, to}),
                  {"Sheet ABCX2026   NOV", "Market price 10   Days 7   Expiry 30-11-2026   Date ",
                   "The sheet holds no open positions.", "Future/Stock units|0",
                   "Limit (crores)|not set for this script", "Last gamma|not set for this script"});
    desk.app.session().g_strDesc = "DEC";
    EXPECT_EQ(print(desk, Choice{2, 0, true, from, to}).back().rfind("Error in PrintRecords1 procedure: ", 0),
              0u);
}

TEST(ReportData, TheButtonsFillTheWorkTablesAndShowTheirReports) {
    test::Desk desk;
    sheetWithTrades(desk.app.store());
    desk.app.session().g_strSymbol = "NIFX2026";
    desk.app.session().g_strDesc = "NOV";
    auto& form = desk.app.screens().get("FrmReport");
    form.show();
    auto report = [&](const char* button) {
        form.fire(button, EventType::Click);
        return printed(desk.ui.reports().back());
    };
    // Exposure: 75 option units plus 30 futures at 18000 in crores; margin 8% of 25 × 18100.
    expectInOrder(report("Command1"),
                  {"Risk Management Sheet ....", "18,000.00|C|50|||||25.00||||||", "Future/Stock:|30",
                   "Today's Expenses:|-100.00", "Total Exposure (in Corers):|75.05",
                   "Option Margin:|36,200.00", "Future Margin:|67,250.00", "Limit (crores)|50.00",
                   "First gamma|0.5/0.8"});
    form.setText("DTPicker1", "20-Nov-2026");
    form.setText("DTPicker2", "21-Nov-2026");
    expectInOrder(report("Command2"),
                  {"From 20-11-2026 to 21-11-2026", "20-11-2026", "18,000.00|C|100.00|50||-5,000.00",
                   "18,100.00|P|80.00||-25|2,000.00", "Total|||60|-25|-4,200.00"});
    expectInOrder(report("Command4"), {"20-11-2026|50|", "21-11-2026|-20|", "Total|30|0"});
    form.setText("DTPicker2", "19-Nov-2026");
    expectInOrder(report("Command5"), {"Future / Stock Detail", "No trades in this date range."});
}

TEST(PrintOption, LoadsWithSummaryCallPutAsOnDateAndTheDepthSetsTheTick) {
    test::Desk desk;
    auto& form = desk.app.screens().get<FrmPrintOption>();
    form.show();
    EXPECT_TRUE(form.control("Option1(0)").value && form.control("Option2(0)").value &&
                form.control("Check1").value);
    EXPECT_EQ(form.text("DTPicker1"), "23-Nov-2026");
    form.setValue("Option1(1)", true);
    EXPECT_FALSE(form.control("Check1").value);
    form.setValue("Option1(0)", true);
    EXPECT_TRUE(form.control("Check1").value);
}

} // namespace
