// The stand-alone pair that writes a hand-keyed trade straight to the working ledger: the
// checks before the write, the row written, and a text that breaks the statement.
#include "TradeEntryDesk.h"

#include "tracker/FrmOption_New.h"
#include "tracker/FrmUnderlying_New.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

using keys::Enter;
using keys::Escape;

constexpr const char* kSymbol = "NIFX2026";
constexpr const char* kDesc = "Nov hedge";

struct LedgerDesk : test::EntryDesk {
    LedgerDesk() {
        // The ladder of the sheet (a call and a put row per strike) and one of another sheet.
        for (const char* strike : {"17100", "16900", "17000"})
            for (const char* cp : {"C", "P"})
                addLadderRow(kDesc, strike, cp);
        addLadderRow("Other", "99999", "C");
        // The current sheet, for a dialog whose opener names none.
        app.session().g_strSymbol = kSymbol;
        app.session().g_strDesc = kDesc;
    }
    void addLadderRow(const std::string& desc, const char* strike, const char* cp) {
        app.store().execute("insert into PortfolioDet (Symbol, Descr, Strike, CP) values (" + q(kSymbol) +
                            ", " + q(desc) + ", " + strike + ", " + q(cp) + ")");
    }
    int ledgerRows() {
        return static_cast<int>(app.store().query("select count(*) as n from DummyTracker")["n"].number());
    }
    Recordset ledger() { return app.store().query("select * from DummyTracker"); }
};

struct OptionNewDesk : LedgerDesk {
    FrmOption_New& dlg = app.screens().get<FrmOption_New>();
    // A null symbol leaves the sheet to the dialog.
    explicit OptionNewDesk(const char* symbol = kSymbol, const char* desc = kDesc) {
        if (symbol) {
            dlg.Symbol = symbol;
            dlg.Descr = desc;
        }
        dlg.showModal();
    }
    void fill(const char* strike, const char* cp, const char* units, const char* traded) {
        dlg.setText("CmbStrike", strike);
        dlg.setText("CmbC_P", cp);
        dlg.setText("TxtUnits", units);
        dlg.setText("TxtTraded", traded);
    }
};

struct UnderlyingNewDesk : LedgerDesk {
    FrmUnderlying_New& dlg = app.screens().get<FrmUnderlying_New>();
    explicit UnderlyingNewDesk(const char* symbol = kSymbol) {
        dlg.Symbol = symbol;
        dlg.Descr = kDesc;
        dlg.showModal();
    }
};

} // namespace

TEST(TradeEntryOptionNew, ComesUpWithTheSheetsStrikesAndBothSides) {
    OptionNewDesk d;
    EXPECT_EQ(d.dlg.control("CmbStrike").items, (std::vector<std::string>{"16900", "17000", "17100"}));
    EXPECT_EQ(d.dlg.control("CmbC_P").items, (std::vector<std::string>{"C", "P"}));
    EXPECT_EQ(d.dlg.text("CmbStrike"), "");
    EXPECT_EQ(d.dlg.focused(), "CmbStrike");
    d.expectClockTime(d.dlg.text("LblTime"));
    EXPECT_EQ(d.boxCount(), 0u);
}

TEST(TradeEntryOptionNew, OkChecksTheChoicesThenTheFiguresAndWritesNothingUntilAllPass) {
    struct Case {
        const char *strike, *cp, *units, *traded;
        const char *text, *title, *focus;
    } cases[] = {
        {"", "C", "10", "5", "Please select a value from the combo.", "Data Error", "CmbStrike"},
        {"17000", " ", "10", "5", "Please select a value from the combo.", "Data Error", "CmbC_P"},
        {"17000", "C", "ten", "5", "Only numeric values are accepted.", "Data Type Error", "TxtUnits"},
        {"17000", "C", "  ", "5", "Only numeric values are accepted.", "Data Type Error", "TxtUnits"},
        {"17000", "C", "10", "5x", "Only numeric values are accepted.", "Data Type Error", "TxtTraded"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.focus);
        OptionNewDesk d;
        d.fill(c.strike, c.cp, c.units, c.traded);
        d.dlg.fire("CmdOk", EventType::Click);
        ASSERT_EQ(d.boxCount(), 1u);
        EXPECT_EQ(d.lastBox().box.text, c.text);
        EXPECT_EQ(d.lastBox().box.title, c.title);
        EXPECT_EQ(d.dlg.focused(), c.focus);
        if (std::string(c.focus).rfind("Txt", 0) == 0) {
            EXPECT_EQ(d.dlg.text(c.focus), "") << "cleared";
        }
        EXPECT_EQ(d.ledgerRows(), 0);
        EXPECT_TRUE(d.dlg.visible());
        EXPECT_FALSE(d.dlg.OK);
    }
}

TEST(TradeEntryOptionNew, FiguresAreCheckedOnLeavingExceptTowardCancel) {
    OptionNewDesk d;
    d.typeAndLeave(d.dlg, "TxtUnits", "abc", "TxtTraded");
    ASSERT_EQ(d.boxCount(), 1u);
    EXPECT_EQ(d.lastBox().box.title, "Data Type Error");
    EXPECT_EQ(d.dlg.text("TxtUnits"), "");
    EXPECT_EQ(d.dlg.focused(), "TxtUnits");

    d.typeAndLeave(d.dlg, "TxtUnits", " -5 ", "TxtTraded");
    EXPECT_EQ(d.boxCount(), 1u) << "a trimmed number passes";

    d.typeAndLeave(d.dlg, "TxtTraded", "", "CmdCancel");
    EXPECT_EQ(d.boxCount(), 1u);
}

TEST(TradeEntryOptionNew, OkWritesTheSeriesWithItsTimeAndLeavesTheRestOfTheRowEmpty) {
    OptionNewDesk d;
    d.fill("17000", "P", " -25 ", "101.5");
    d.dlg.fire("CmdOk", EventType::Click);
    ASSERT_EQ(d.boxCount(), 1u);
    EXPECT_EQ(d.lastBox().box.text, "Insert completed");
    EXPECT_FALSE(d.dlg.visible());
    EXPECT_TRUE(d.dlg.OK);
    EXPECT_EQ(d.dlg.Units, " -25 ");
    EXPECT_EQ(d.dlg.Traded, "101.5");
    EXPECT_EQ(d.dlg.TradeTime, d.dlg.text("LblTime"));

    ASSERT_EQ(d.ledgerRows(), 1);
    Recordset rs = d.ledger();
    EXPECT_EQ(rs["Symbol"].text(), kSymbol);
    EXPECT_EQ(rs["InDesc"].text(), kDesc);
    EXPECT_EQ(rs["Strike"].number(), 17000);
    EXPECT_EQ(rs["CP"].text(), "P");
    EXPECT_EQ(rs["Units"].number(), -25);
    EXPECT_EQ(rs["Traded"].number(), 101.5);
    EXPECT_EQ(rs["Field3"].text(), d.dlg.TradeTime);
    EXPECT_EQ(rs["TradeDt"].date(), VbDate::fromYmd(2026, 11, 23));
    for (const char* empty : {"InType", "MktPrice", "Vol", "Delta", "Last", "Days", "CashType", "Field2"})
        EXPECT_TRUE(rs[empty].isNull()) << empty;
}

TEST(TradeEntryOptionNew, AQuoteInTheSheetBreaksTheStatementsAndNothingIsWritten) {
    OptionNewDesk d(kSymbol, "Nov's hedge");
    ASSERT_EQ(d.boxCount(), 1u);
    EXPECT_EQ(d.lastBox().box.text.rfind("Error in form load\n", 0), 0u) << d.lastBox().box.text;
    EXPECT_TRUE(d.dlg.control("CmbStrike").items.empty());

    d.fill("17000", "C", "10", "5");
    d.dlg.fire("CmdOk", EventType::Click);
    ASSERT_EQ(d.boxCount(), 2u);
    EXPECT_EQ(d.lastBox().box.text.rfind("Error in inserting\nSyntax error", 0), 0u) << d.lastBox().box.text;
    EXPECT_EQ(d.ledgerRows(), 0);
    EXPECT_TRUE(d.dlg.visible()) << "the dialog stays open";
    EXPECT_FALSE(d.dlg.OK);
}

TEST(TradeEntryOptionNew, WithoutASheetFromTheOpenerTheCurrentSheetIsUsed) {
    OptionNewDesk d(nullptr);
    EXPECT_EQ(d.dlg.control("CmbStrike").items.size(), 3u);
    d.fill("16900", "C", "1", "2");
    d.dlg.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.ledger()["Symbol"].text(), kSymbol);
    EXPECT_EQ(d.ledger()["InDesc"].text(), kDesc);
}

TEST(TradeEntryOptionNew, EnterMovesOnAndEscCancels) {
    OptionNewDesk d;
    d.dlg.moveFocus("CmbC_P");
    d.key(d.dlg, "CmbC_P", Enter);
    EXPECT_EQ(d.dlg.focused(), "TxtUnits");
    d.dlg.setText("TxtUnits", "12");
    d.key(d.dlg, "TxtUnits", Enter);
    EXPECT_EQ(d.dlg.focused(), "TxtTraded");
    EXPECT_EQ(d.boxCount(), 0u);
    d.key(d.dlg, "TxtTraded", Escape);
    EXPECT_FALSE(d.dlg.visible());
    EXPECT_FALSE(d.dlg.OK);
    EXPECT_EQ(d.ledgerRows(), 0);

    // Coming back does not hold the abandoned blank price against the next trade.
    d.dlg.showModal();
    EXPECT_EQ(d.boxCount(), 0u);
    EXPECT_EQ(d.dlg.focused(), "CmbStrike");
}

TEST(TradeEntryUnderlyingNew, ComesUpOfferingFuturesAndOkWritesARowOfTheChosenKind) {
    const std::tuple<const char*, const char*> kinds[] = {{"Future", "F"}, {" equity ", "Q"}};
    for (const auto& [type, cash] : kinds) {
        SCOPED_TRACE(type);
        UnderlyingNewDesk d;
        EXPECT_EQ(d.dlg.text("CmbType"), "Future");
        EXPECT_EQ(d.dlg.control("CmbType").items, (std::vector<std::string>{"Future", "Equity"}));
        EXPECT_EQ(d.dlg.focused(), "TxtUnits");
        d.expectClockTime(d.dlg.text("LblTime"));
        d.dlg.setText("CmbType", type);
        d.dlg.setText("TxtUnits", "50");
        d.dlg.setText("TxtTraded", "12.346");
        d.dlg.fire("CmdOk", EventType::Click);
        ASSERT_EQ(d.boxCount(), 1u);
        EXPECT_EQ(d.lastBox().box.text, "Insert Complete");
        EXPECT_TRUE(d.dlg.OK);
        EXPECT_EQ(d.dlg.CashType, cash);
        EXPECT_EQ(d.dlg.Traded, "12.35") << "the object keeps the price to the paisa";
        EXPECT_FALSE(d.dlg.visible());

        ASSERT_EQ(d.ledgerRows(), 1);
        Recordset rs = d.ledger();
        EXPECT_EQ(rs["CP"].text(), "S");
        EXPECT_EQ(rs["CashType"].text(), cash);
        EXPECT_EQ(rs["Units"].number(), 50);
        EXPECT_EQ(rs["Traded"].number(), 12.346) << "the ledger takes the price as typed";
        EXPECT_EQ(rs["Field3"].text(), d.dlg.TradeTime);
        EXPECT_EQ(rs["TradeDt"].date(), VbDate::fromYmd(2026, 11, 23));
        for (const char* empty : {"Strike", "InType", "MktPrice", "Vol", "Delta", "Last"})
            EXPECT_TRUE(rs[empty].isNull()) << empty;
    }
}

TEST(TradeEntryUnderlyingNew, ChecksCarryTheirOwnTitles) {
    UnderlyingNewDesk d;
    d.dlg.setText("TxtUnits", "x");
    d.dlg.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.lastBox().box.title, "Data Type Error.");
    EXPECT_EQ(d.lastBox().box.text, "Only numeric values are accepted.");

    d.dlg.setText("CmbType", "");
    d.dlg.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.lastBox().box.title, "Data Error");
    EXPECT_EQ(d.dlg.focused(), "CmbType");
    EXPECT_EQ(d.ledgerRows(), 0);
}

TEST(TradeEntryUnderlyingNew, AQuoteInTheSymbolStopsTheWriteWithTheRunTimeErrorBox) {
    UnderlyingNewDesk d("NIF'X");
    d.dlg.setText("TxtUnits", "5");
    d.dlg.setText("TxtTraded", "100");
    d.dlg.fire("CmdOk", EventType::Click);
    ASSERT_EQ(d.boxCount(), 1u);
    EXPECT_EQ(d.lastBox().box.text.rfind("Run-time error '1':\n\nSyntax error in string", 0), 0u)
        << d.lastBox().box.text;
    EXPECT_EQ(d.ledgerRows(), 0);
    EXPECT_TRUE(d.dlg.visible());
    EXPECT_FALSE(d.dlg.OK);
}
