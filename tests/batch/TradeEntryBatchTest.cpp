// The trade entry dialogs through the real batch executable: scripts of keys, clicks and sets,
// the boxes and dumps they print, and the rows the stand-alone pair leaves in the store.
#include "BatchFixture.h"

#include "frame/Store.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {

class TradeEntryBatch : public tallimark::test::BatchFixture {
protected:
    Outcome entry(const std::string& text) { return script("login ADMIN tallimark\n" + text); }

    tallimark::Recordset ledger() {
        auto store = tallimark::Store::open(storeFile());
        return store->query("select * from DummyTracker");
    }
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

TEST_F(TradeEntryBatch, UnderlyingDialogComesUpOnEquityAndEscCancels) {
    const Outcome r = entry("open FrmUnderlying\n"
                            "dump FrmUnderlying\n"
                            "focus FrmUnderlying.TxtUnits\n"
                            "set FrmUnderlying.TxtUnits \"\"\n"
                            "focus FrmUnderlying.TxtTraded\n"
                            "check FrmUnderlying.Option1(0) 1\n"
                            "dump FrmUnderlying\n"
                            "key FrmUnderlying.TxtTraded 27\n"
                            "dump FrmUnderlying\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 3u) << r.all();
    EXPECT_TRUE(contains(r.lines[0], R"("caption":"Stock Trade","visible":true)")) << r.lines[0];
    EXPECT_TRUE(contains(r.lines[0], R"("TxtUnits":{"text":"0"})"));
    EXPECT_TRUE(contains(r.lines[0], R"x("Option1(0)":{"text":"&Fut/Stk","value":false})x"));
    EXPECT_TRUE(contains(r.lines[0], R"x("Option1(1)":{"text":"&Equity","value":true})x"));
    EXPECT_TRUE(contains(r.lines[1], R"("TxtUnits":{"text":"0"})")) << "blank units become 0 on leaving";
    EXPECT_TRUE(contains(r.lines[1], R"x("Option1(1)":{"text":"&Equity","value":false})x"));
    EXPECT_TRUE(contains(r.lines[2], R"("visible":false)"));
}

TEST_F(TradeEntryBatch, OptionNewChecksThenWritesTheTradeToTheLedger) {
    const Outcome r = entry("open FrmOption_New\n"
                            "click FrmOption_New.CmdOk\n"
                            "set FrmOption_New.CmbStrike 17000\n"
                            "set FrmOption_New.CmbC_P C\n"
                            "set FrmOption_New.TxtUnits abc\n"
                            "click FrmOption_New.CmdOk\n"
                            "dump FrmOption_New\n"
                            "set FrmOption_New.TxtUnits 10\n"
                            "set FrmOption_New.TxtTraded 5.5\n"
                            "click FrmOption_New.CmdOk\n"
                            "dump FrmOption_New\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 5u) << r.all();
    EXPECT_TRUE(
        contains(r.lines[0], R"("title":"Data Error","text":"Please select a value from the combo.")"))
        << r.lines[0];
    EXPECT_TRUE(
        contains(r.lines[1], R"("title":"Data Type Error","text":"Only numeric values are accepted.")"))
        << r.lines[1];
    EXPECT_TRUE(contains(r.lines[2], R"("CmbStrike":{"text":"17000"})")) << r.lines[2];
    EXPECT_TRUE(contains(r.lines[2], R"("TxtUnits":{"text":""})"));
    EXPECT_TRUE(contains(r.lines[3], R"("text":"Insert completed")")) << r.lines[3];
    EXPECT_TRUE(contains(r.lines[4], R"("visible":false)"));

    tallimark::Recordset rs = ledger();
    ASSERT_EQ(rs.recordCount(), 1u);
    EXPECT_EQ(rs["Strike"].number(), 17000);
    EXPECT_EQ(rs["CP"].text(), "C");
    EXPECT_EQ(rs["Units"].number(), 10);
    EXPECT_EQ(rs["Traded"].number(), 5.5);
    EXPECT_EQ(rs["TradeDt"].date(), tallimark::VbDate::fromYmd(2026, 11, 23));
    EXPECT_EQ(rs["Field3"].text().size(), 8u) << "hh:mm:ss";
}

TEST_F(TradeEntryBatch, AQuoteInTheSeriesStopsTheWrite) {
    const Outcome r = entry("open FrmOption_New\n"
                            "set FrmOption_New.CmbStrike 17000\n"
                            "set FrmOption_New.CmbC_P C'\n"
                            "set FrmOption_New.TxtUnits 1\n"
                            "set FrmOption_New.TxtTraded 1\n"
                            "click FrmOption_New.CmdOk\n"
                            "dump FrmOption_New\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 2u) << r.all();
    EXPECT_TRUE(contains(r.lines[0], R"("text":"Error in inserting\nSyntax error in string)")) << r.lines[0];
    EXPECT_TRUE(contains(r.lines[1], R"("visible":true)")) << "the dialog stays open";
    EXPECT_EQ(ledger().recordCount(), 0u);
}

TEST_F(TradeEntryBatch, UnderlyingNewWritesAFuturesRow) {
    const Outcome r = entry("open FrmUnderlying_New\n"
                            "dump FrmUnderlying_New\n"
                            "set FrmUnderlying_New.TxtUnits -7\n"
                            "set FrmUnderlying_New.TxtTraded 99.999\n"
                            "click FrmUnderlying_New.CmdOk\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 2u) << r.all();
    EXPECT_TRUE(contains(r.lines[0], R"("CmbType":{"text":"Future"})")) << r.lines[0];
    EXPECT_TRUE(contains(r.lines[1], R"("text":"Insert Complete")")) << r.lines[1];

    tallimark::Recordset rs = ledger();
    ASSERT_EQ(rs.recordCount(), 1u);
    EXPECT_EQ(rs["CP"].text(), "S");
    EXPECT_EQ(rs["CashType"].text(), "F");
    EXPECT_EQ(rs["Units"].number(), -7);
    EXPECT_EQ(rs["Traded"].number(), 99.999);
    EXPECT_TRUE(rs["Strike"].isNull());
}
