// The trade entry dialogs through the real batch executable: scripts of keys, clicks and sets,
// the boxes and dumps they print, and the rows the stand-alone dialog leaves in the store.
#include "BatchFixture.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {

class TradeEntryBatch : public tallimark::test::BatchFixture {
protected:
    Outcome entry(const std::string& text) { return script("login ADMIN tallimark\n" + text); }

    tallimark::Recordset ledger() { return store()->query("select * from DummyTracker"); }
};

} // namespace

TEST_F(TradeEntryBatch, OptionDialogRefusesABadPremiumAndEnterPressesOk) {
    const Outcome r = entry("open FrmOption\n"
                            "set FrmOption.TxtUnits -50\n"
                            "focus FrmOption.TxtTraded\n"
                            "set FrmOption.TxtTraded abc\n"
                            "focus FrmOption.TxtImpVolF\n"
                            "dump FrmOption\n"
                            "set FrmOption.TxtTraded 12.346\n"
                            "set FrmOption.TxtImpVolF 18\n"
                            "key FrmOption.TxtImpVolF 13\n"
                            "dump FrmOption\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 3u) << r.all();
    EXPECT_EQ(r.lines[0], R"({"msgbox":{"title":"Invalid Entry","text":"Only Numeric Values allowed here",)"
                          R"("icon":"critical","buttons":"OK","answer":"OK"}})");
    EXPECT_TRUE(contains(r.lines[1], R"("caption":"Option.....Tallimark","visible":true)")) << r.lines[1];
    EXPECT_TRUE(contains(r.lines[1], R"("TxtUnits":{"text":"-50"})"));
    EXPECT_TRUE(contains(r.lines[1], R"("TxtTraded":{"text":""})")) << "the refused premium is cleared";
    EXPECT_TRUE(contains(r.lines[1], R"("Label_TxtImpVolF":{"text":"Implied Volatility"})"));
    EXPECT_TRUE(contains(r.lines[2], R"("visible":false)")) << r.lines[2];
}

TEST_F(TradeEntryBatch, OptionNewStopsAtAQuoteInTheSeriesThenWritesTheTrade) {
    const Outcome r = entry("open FrmOption_New\n"
                            "set FrmOption_New.CmbStrike 17000\n"
                            "set FrmOption_New.CmbC_P C'\n"
                            "set FrmOption_New.TxtUnits 10\n"
                            "set FrmOption_New.TxtTraded 5.5\n"
                            "click FrmOption_New.CmdOk\n"
                            "dump FrmOption_New\n"
                            "set FrmOption_New.CmbC_P C\n"
                            "set FrmOption_New.TxtUnits 10\n"
                            "set FrmOption_New.TxtTraded 5.5\n"
                            "click FrmOption_New.CmdOk\n"
                            "dump FrmOption_New\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 4u) << r.all();
    EXPECT_TRUE(contains(r.lines[0], R"("text":"Error in inserting\nSyntax error in string)")) << r.lines[0];
    EXPECT_TRUE(contains(r.lines[1], R"("visible":true)")) << "the dialog stays open";
    EXPECT_TRUE(contains(r.lines[2], R"("text":"Insert completed")")) << r.lines[2];
    EXPECT_TRUE(contains(r.lines[3], R"("visible":false)"));

    tallimark::Recordset rs = ledger();
    ASSERT_EQ(rs.recordCount(), 1u) << "the statement the quote broke wrote nothing";
    EXPECT_EQ(rs["Strike"].number(), 17000);
    EXPECT_EQ(rs["CP"].text(), "C");
    EXPECT_EQ(rs["Units"].number(), 10);
    EXPECT_EQ(rs["Traded"].number(), 5.5);
    EXPECT_EQ(rs["TradeDt"].date(), tallimark::VbDate::fromYmd(2026, 11, 23));
    EXPECT_EQ(rs["Field3"].text().size(), 8u) << "hh:mm:ss";
}
