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
const std::string kFigure = " Data Type Error|Only numeric values are accepted.|none";

// A sheet's ladder (a call and a put row per strike, and a row of another sheet) and the current
// sheet, for a dialog whose opener names none; then the dialog, shown for the opener's sheet.
template <class F> struct LedgerDesk : test::EntryDesk {
    F& dlg = app.screens().get<F>();
    explicit LedgerDesk(const char* symbol = kSymbol, const char* desc = kDesc) {
        for (const char* row : {"'Nov hedge', 17100, 'C'", "'Nov hedge', 17100, 'P'",
                                "'Nov hedge', 16900, 'C'", "'Nov hedge', 16900, 'P'",
                                "'Nov hedge', 17000, 'C'", "'Nov hedge', 17000, 'P'", "'Other', 99999, 'C'"})
            app.store().execute("insert into PortfolioDet (Symbol, Descr, Strike, CP) values ('NIFX2026', " +
                                std::string(row) + ")");
        app.session().g_strSymbol = kSymbol;
        app.session().g_strDesc = kDesc;
        dlg.Symbol = symbol;
        dlg.Descr = desc;
        dlg.showModal();
    }
    void fill(const char* strike, const char* cp, const char* units, const char* traded) {
        dlg.setText("CmbStrike", strike);
        dlg.setText("CmbC_P", cp);
        dlg.setText("TxtUnits", units);
        dlg.setText("TxtTraded", traded);
    }
    // The ledger's rows, one a line, each as the given fields "|"-joined, a null as "null".
    std::string ledger(std::initializer_list<const char*> fields = {"Symbol"}) {
        std::string s;
        for (Recordset rs = app.store().query("select * from DummyTracker"); !rs.eof(); rs.moveNext())
            for (const char* f : fields)
                s += (rs[f].isNull() ? "null" : rs[f].text()) + (f == *(fields.end() - 1) ? "\n" : "|");
        return s;
    }
};
using OptionNewDesk = LedgerDesk<FrmOption_New>;
using UnderlyingNewDesk = LedgerDesk<FrmUnderlying_New>;

} // namespace

TEST(TradeEntryOptionNew, ComesUpWithTheCurrentSheetsStrikesAndOkWritesTheSeriesWithItsTime) {
    OptionNewDesk d("", ""); // the opener names no sheet: the current one is used
    EXPECT_EQ(d.dlg.control("CmbStrike").items, (std::vector<std::string>{"16900", "17000", "17100"}));
    EXPECT_EQ(d.dlg.control("CmbC_P").items, (std::vector<std::string>{"C", "P"}));
    EXPECT_EQ(d.dlg.text("CmbStrike"), "");
    EXPECT_EQ(d.dlg.focused(), "CmbStrike");
    d.expectClockTime(d.dlg.text("LblTime"));

    d.fill("17000", "P", " -25 ", "101.5");
    d.dlg.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.handedBack(d.dlg),
              "hidden OK units ' -25 ' traded '101.5' at the time shown Tallimark|Insert completed|none");
    EXPECT_EQ(d.ledger({"Symbol", "InDesc", "Strike", "CP", "Units", "Traded", "Field3", "TradeDt", "InType",
                        "MktPrice", "Vol", "Delta", "Last", "Days", "CashType", "Field2"}),
              "NIFX2026|Nov hedge|17000|P|-25|101.5|" + d.dlg.TradeTime +
                  "|23-11-2026|null|null|null|null|null|null|null|null\n");
}

TEST(TradeEntryOptionNew, OkChecksTheChoicesThenTheFiguresAndWritesNothingUntilAllPass) {
    const std::string combo = " Data Error|Please select a value from the combo.|none";
    const struct {
        const char *strike, *cp, *units, *traded;
        std::string refused; // the field refused, its text and the box
    } cases[] = {
        {"", "C", "10", "5", "CmbStrike ''" + combo},
        {"17000", " ", "10", "5", "CmbC_P ' '" + combo},
        {"17000", "C", "ten", "5", "TxtUnits ''" + kFigure},
        {"17000", "C", "  ", "5", "TxtUnits ''" + kFigure},
        {"17000", "C", "10", "5x", "TxtTraded ''" + kFigure},
        {"17000", "C", "10", "", "TxtTraded ''" + kFigure},
    };
    for (const auto& c : cases) {
        OptionNewDesk d;
        d.fill(c.strike, c.cp, c.units, c.traded);
        d.dlg.fire("CmdOk", EventType::Click);
        EXPECT_EQ(d.fieldState(d.dlg, d.dlg.focused()), c.refused) << c.units << "|" << c.traded;
        EXPECT_EQ(d.ledger(), "");
        EXPECT_TRUE(d.dlg.visible() && !d.dlg.OK) << "the dialog stays up";
    }
}

TEST(TradeEntryOptionNew, EnterMovesOnCheckingTheFigureLeftAndEscCancelsWithoutChecking) {
    OptionNewDesk d;
    d.dlg.moveFocus("CmbC_P");
    d.key(d.dlg, "CmbC_P", Enter);
    EXPECT_EQ(d.dlg.focused(), "TxtUnits");
    d.dlg.setText("TxtUnits", "abc");
    d.key(d.dlg, "TxtUnits", Enter);
    EXPECT_EQ(d.fieldState(d.dlg, "TxtUnits"), "TxtUnits ''" + kFigure);
    d.dlg.setText("TxtUnits", " -5 ");
    d.key(d.dlg, "TxtUnits", Enter);
    EXPECT_EQ(d.fieldState(d.dlg, "TxtUnits"), "TxtTraded ' -5 '" + kFigure) << "a trimmed number passes";
    d.typeAndLeave(d.dlg, "TxtTraded", "", "CmdCancel"); // a figure abandoned is not checked
    d.key(d.dlg, "CmdCancel", Escape);
    EXPECT_EQ(d.handedBack(d.dlg), "hidden units '' traded ''" + kFigure);
    EXPECT_EQ(d.ledger(), "");
    d.dlg.showModal(); // the abandoned blank price is not held against the next trade
    EXPECT_EQ(d.fieldState(d.dlg, "CmbStrike"), "CmbStrike ''" + kFigure);
}

TEST(TradeEntryOptionNew, AQuoteInTheOpenersSheetBreaksTheStatementsAndNothingIsWritten) {
    OptionNewDesk d(kSymbol, "Nov's hedge");
    EXPECT_TRUE(d.dlg.control("CmbStrike").items.empty());
    d.fill("17000", "C", "10", "5");
    d.dlg.fire("CmdOk", EventType::Click);
    const std::string broken = "Syntax error in string in query expression ''Nov's hedge'.|none";
    EXPECT_EQ(d.handedBack(d.dlg), "shown units '' traded '' Tallimark|Error in form load\n" + broken +
                                       " Tallimark|Error in inserting\n" + broken);
    EXPECT_EQ(d.ledger(), "");
}

TEST(TradeEntryUnderlyingNew, ComesUpOfferingFuturesAndOkWritesARowOfTheChosenKind) {
    for (const auto& [type, cash] : {std::pair{"Future", "F"}, {" equity ", "Q"}}) {
        SCOPED_TRACE(type);
        UnderlyingNewDesk d;
        EXPECT_EQ(d.dlg.text("CmbType"), "Future");
        EXPECT_EQ(d.dlg.focused(), "TxtUnits");
        d.expectClockTime(d.dlg.text("LblTime"));
        d.dlg.setText("CmbType", type);
        d.dlg.setText("TxtUnits", "50");
        d.dlg.setText("TxtTraded", "12.346");
        d.dlg.fire("CmdOk", EventType::Click);
        EXPECT_EQ(d.handedBack(d.dlg) + " " + d.dlg.CashType,
                  "hidden OK units '50' traded '12.35' at the time shown Tallimark|Insert Complete|none " +
                      std::string(cash));
        // The object keeps the price to the paisa, the ledger takes it as typed.
        EXPECT_EQ(d.ledger({"Symbol", "InDesc", "CP", "CashType", "Units", "Traded", "Field3", "TradeDt",
                            "Strike", "InType", "MktPrice", "Vol", "Delta", "Last"}),
                  "NIFX2026|Nov hedge|S|" + std::string(cash) + "|50|12.346|" + d.dlg.TradeTime +
                      "|23-11-2026|null|null|null|null|null|null\n");
    }
}

TEST(TradeEntryUnderlyingNew, ChecksCarryTheirOwnTitlesAndAQuoteInTheSymbolStopsTheWrite) {
    UnderlyingNewDesk d("NIF'X", kDesc);
    d.dlg.setText("TxtUnits", "x");
    d.dlg.fire("CmdOk", EventType::Click);
    d.dlg.setText("CmbType", "");
    d.dlg.fire("CmdOk", EventType::Click);
    EXPECT_EQ(d.fieldState(d.dlg, "CmbType"),
              "CmbType '' Data Type Error.|Only numeric values are accepted.|none "
              "Data Error|Please select a value from the combo.|none");

    d.dlg.setText("CmbType", "Equity");
    d.dlg.setText("TxtUnits", "5");
    d.dlg.setText("TxtTraded", "100");
    d.dlg.fire("CmdOk", EventType::Click); // no trap here: the run-time error box
    EXPECT_EQ(d.boxTexts().back(),
              "Run-time error '1':\n\nSyntax error in string in query expression ''NIF'X'.");
    EXPECT_EQ(d.ledger(), "");
    EXPECT_TRUE(d.dlg.visible() && !d.dlg.OK) << "the dialog stays up";
}
