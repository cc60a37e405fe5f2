#pragma once
// The risk sheet: one screen model for one script and expiry, with the strike ladder va1, the
// sheet's fields and its members. FrmPort5 (stock and futures) and FrmPortfolioIndex (index) are
// two instances of this one class; the kind chooses the model (the 100-step tree or closed-form
// Black-Scholes) and the smaller field set of the index sheet. The live state is the text of the
// fields and cells: every procedure reads text, converts, computes and writes text back.
#include "frame/Store.h"
#include "pricing/IndexEngine.h"
#include "pricing/StockEngine.h"
#include "sheet/SheetScreen.h"
#include "tracker/LedgerMirror.h"

#include <array>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallimark {

class Grid;
class Value;
class VbDate;

enum class SheetKind { Stock, Index };

// The stock tree's carry b and its step count: fixed for every sheet, in the fill and the row
// repricing alike.
inline constexpr double kCarry = 0.1;
inline constexpr int kSteps = 100;

class RiskSheet : public SheetScreen {
public:
    static constexpr const char* kStockName = "FrmPort5";
    static constexpr const char* kIndexName = "FrmPortfolioIndex";
    // The ladder and its colours.
    static constexpr const char* kLadder = "va1";
    static constexpr int kLadderCols = 16;
    static constexpr int kDesignRows = 500; // rows the ladder has before a sheet sizes it
    static constexpr Rgb kGround = RGB(0, 0, 0);
    static constexpr Rgb kCallText = RGB(255, 255, 0);
    static constexpr Rgb kPutText = RGB(0, 255, 0);
    static constexpr Rgb kShortText = RGB(255, 0, 0);  // negative amounts and sold units
    static constexpr Rgb kLongText = RGB(0, 255, 255); // positive amounts and bought units

    RiskSheet(App& app, SheetKind kind);

    SheetKind kind() const { return kind_; }
    bool isIndex() const { return kind_ == SheetKind::Index; }
    Grid& va1();

    // Members of the sheet, as the other screens read them.
    double IntRate = 0;
    long AStrike = 0, BStrike = 0;
    double StrikeStep = 0;
    double ContractSize = 0;
    double ExMarginPct = 0;
    std::string SheetType, SheetDesc, SheetDate, ExpDtText;
    double CurStrike = 0;
    std::string SavedDelNeutral, SavedBalance;
    std::string PrevMktPrice, PrevDays, PrevImpVol, PrevImpVolP;
    std::array<double, 4> UpMktPrice{}, UpBal{}; // Up1, Up2, Dn1, Dn2
    double CallDelta = 0, CallVega = 0, CallTheta = 0, CallGamma = 0;
    double PutDelta = 0, PutVega = 0, PutTheta = 0, PutGamma = 0;
    double ScenPrice = 0, ScenOptValue = 0, ScenFutValue = 0;
    // The volatilities of the row in hand: a walk refreshes only the side of each row, so the
    // other side is what the row before left. The row repricing reads them as the last run left.
    double SigmaC = 0, SigmaP = 0;
    // The index model's inputs of the row in hand.
    double CurDays = 0, CurVol = 0;

    // The price of the last tree run; the stock thetas hand it back on the last day.
    double OptionValue() const { return stock_.optionValue(); }
    pricing::StockEngine& stockEngine() { return stock_; }
    pricing::IndexEngine& indexEngine() { return index_; }

    // Load (the opening of a sheet named by g_strSymbol and g_strDesc).
    void DoInit() override;
    // The sheet this screen opened, noted at its load: its own statements and its save use these,
    // whatever the main screen's list has made the program-wide current sheet since.
    std::string OwnSymbol, OwnDesc;
    // Points g_strSymbol and g_strDesc back at this sheet, for the screens that read the current
    // sheet: on activation and before a command opens another screen.
    void makeCurrentSheet();
    void LoadSheet();
    void PopulateLView1();
    // Drops a sheet that was never saved: its Trans row and working rows.
    void CancelData();

    // The refresh cycle: a full recompute when key is 13 and TxtDays is filled.
    void RefreshData(int key);
    void FillLViewData();
    void va1_Click(int col, int row);
    std::string GetAvgVol();
    void CalcPremium();
    void CalcSheetGreeks();
    void CalcDeltaNeutral1();
    void ErrProcCalcBalance();
    void ThetaBal();
    // Tab or Enter on the ladder: the active row priced at its own column 6 volatility.
    void RepriceRow();
    // F7: the strike setting dialog, then the ladder widened by the strikes it asked for.
    void SetStrikes();
    void AddStrikesInGrid(long NumAbove, long NumBelow, int Lowest, int Highest, int Step);

    // Scenarios and exposure.
    void CalcUpDnBal();
    void GetUpDnData();
    void TotExposure();

    // The ledger (DummyTracker) of the sheet. AddTrail stands on the active ladder row; the
    // index sheet takes only units and price, its volatility being TxtImpVol.
    void AddTrail(const std::string& Units, const std::string& Traded, const std::string& TradeTime = {},
                  const std::string& TradeVol = {});
    void AddStock(const std::string& Units, const std::string& Traded, const std::string& CashType,
                  const std::string& TradeTime = {});
    void UpdateTracker();
    void ErrProcAddTracker();
    // The series (strike, CP) of the ledger rows under `key`, in the order "select distinct
    // strike, CP" lists them, each with its summed units and amount as the statements
    // "select sum(units) ... where <key> and strike = <strike> and CP =<CP>" would give them:
    // AtLast sums units*last-units*traded, AtNextDay units*DumThVal-units*traded. With
    // optionsOnly, the series of "CP <> 'S'" alone.
    enum class SeriesAmount { AtLast, AtNextDay };
    void seriesSums(const std::string& key, SeriesAmount amount, bool optionsOnly,
                    const std::function<void(double units, double amount)>& add);
    // The option rows' sums of units*last, units*DumThVal and -units*delta/100 under `key`, as
    // "select sum(...) from dummytracker where <key> and CP <> 'S'" gives each; null counts 0.
    using OptionTotals = tallimark::OptionTotals;
    const OptionTotals& optionTotals(const std::string& key);

    // The commands of the toolbar, by the key of their button ("Save", "Option", ...).
    void Toolbar1_ButtonClick(const std::string& key);
    // Save: the head, the ladder, the ledger and the upload bookkeeping, each under its own trap.
    void SaveData();
    void AddMaster();
    void AddDetail();
    void ErrProcAddUploadedFile();
    // The close asked for by the close box, Esc or "Exit": true when the screen is to stay loaded.
    bool closeRefused();
    std::string CashTypeNow; // of the last underlying trade, "F" or "Q"
    double FutTradeBefore = 0;

    // Trades staged by a trade file upload, taken into the ledger (tradeDate: the upload's day as
    // DD-MMM-YYYY); PutOptionDataLineByLine runs every sum after every trade, PutOptionData
    // once at the end to the same rows and figures. The 1 editions recalculate after a removal.
    void PutOptionData(const std::string& tradeDate);
    void PutOptionDataLineByLine(const std::string& tradeDate);
    void PutStockData();
    void PutOptionData1();
    void PutStockData1();

    // Averages and results from the ledger.
    void CalcAvgOption();
    void CalcAvgStock();
    void CalcROption();
    void CalcRStock();
    void CalcOptionR();
    void CalcFutureR();

    // The field-change triggers: what leaving an input field does.
    void TxtMktPrice_LostFocus();
    void TxtDays_LostFocus();
    void TxtImpVol_LostFocus();
    void TxtImpVolP_LostFocus();
    void DTPicker1_Change();

protected:
    // Runs a procedure under its trap: a failure shows "Error in <name> Procedure: <text> and
    // No: <n>" and the procedure ends with what it had done left standing.
    void trapped(const char* procedure, const std::function<void()>& body,
                 const char* numberWords = " and No: ");
    // The same box with the words as given before the error text.
    void errorBox(const std::string& lead, const std::exception& error, const char* numberWords);

    // Cells of the ladder as text.
    const std::string& cell(int row, int col);
    void setCell(int row, int col, const std::string& text);
    // Rows of the ladder up to the last one with data; a 16-bit count, as the walks keep it.
    int lastLadderRow();
    // Paints rows from 2 in pairs: black ground, call text on the first, put text on the second.
    void paintLadder();
    // Units of a ladder row as its side colour shows them.
    void markUnits(int row, double units);
    bool isCallRow(int row) { return cell(row, 2) == "C"; }
    // The row's units, a blank cell first written as "0".
    double rowUnits(int row);
    // The ladder walks give only the row's own side its volatility from the sheet; the other side
    // keeps the last row's. Column 6 shows it. True on a call row.
    bool takeRowVolatility(int row);

    // Field text helpers.
    void set(const std::string& field, double value);
    // A market input that is "0" or empty leaves the pricing walks; the walks go on at "0" days.
    bool zeroOrEmpty(const std::string& field);
    bool pricingInputsMissing();
    bool clickInputsMissing();
    // The stock formulas' inputs from the fields, for the row strike in hand.
    pricing::StockInputs stockInputs();
    // The sheet key as the ledger statements write it.
    std::string ledgerKey(const std::string& symbol, const std::string& desc) const;
    std::string sheetLedgerKey();   // OwnSymbol, OwnDesc
    std::string trimmedLedgerKey(); // Trim(TxtSymbol), Trim(OwnDesc)
    // The first row's column of a query; 0 when there is no row or the value is null.
    double sumOrZero(const std::string& sql, const char* column);
    // A figure field read as money: an empty field counts 0.
    double amount(const std::string& field);
    // A column value as a number in a statement: "Null" where the ledger holds none.
    static std::string sqlNumber(const Value& value);

private:
    struct StagedOption {
        double strike;
        int32_t units;
        double traded;
        std::string cp, field1, field3;
    };
    std::vector<StagedOption> stagedOptions();
    // The upload's insert of one trade on the active row; false when it failed.
    bool AddTrailUpload(const StagedOption& line, const std::string& tradeDate);
    bool takeStagedOption(int row, const StagedOption& line, const std::string& tradeDate);
    // What follows an option trade on the active row: its average, the results, the greeks, the balance.
    void optionRecalculation();

    void addFields();
    void addLadder();
    void wireEvents();
    void addCommands();
    void keyPreview(Event& e);
    void optionTrade();
    void underlyingTrade();
    void uploadTrades();
    void tradeTrail();
    // The screens that the remaining commands open.
    void openCommandScreen(const std::string& key);
    void addField(const std::string& field, const char* caption);
    void colourBySign(const std::string& field);
    // Validation on leaving an input field; false when the entry was refused.
    bool validNumber(const std::string& field);
    // The common trigger: refresh when the field differs from the value last seen.
    void refreshOnChange(const std::string& field, std::string& previous);
    void setPicker(const std::string& text);

    // Fill steps.
    void fillStockRow(int row, double& TotDelta, double& TotTheta, double& TotVega, double& TotGamma);
    void fillIndexRow(int row);
    void repriceStockRow(int row, double S, double K, double r, double sigma, bool call);
    void repriceIndexRow(int row, double S, double K, double sigma, bool call);
    // A blank strike row of the widened ladder: no units, no average, painted for its side.
    void newStrikeRow(int row, double strike, bool call);
    void addDeltaTotals(int row, double T, double S, double K, double Units, double Delta, double& TotDelta);

    // The closed-form figures of the clicked row.
    struct RowGreeks {
        double gamma = 0, vega = 0, theta = 0;
    };
    void hedge(const std::string& field, bool callRow, double H);
    RowGreeks clickStock(int row, bool callRow);
    RowGreeks clickIndex(bool callRow);
    void writeHedges(int row, bool callRow, const RowGreeks& greeks);
    void sheetGreeksStock();
    void sheetGreeksIndex();
    double scenarioValue(double T, bool call);
    // Load steps.
    void loadTrans();
    void loadScript();
    bool loadHead(); // false for a sheet never saved
    void loadLadder();
    void showCaption();
    void setDaysToExpiry(const VbDate& today);
    void copyWorkingRows();

    // The ledger's sums as a refresh asks for them from several procedures: worked out in one
    // walk of the sheet's index per kind and kept, per key, while no row changes.
    struct LedgerTotals {
        std::optional<std::vector<LedgerSeries>> series;
        std::optional<OptionTotals> options;
    };
    LedgerTotals& ledgerTotals(const std::string& key);
    std::vector<LedgerSeries> readSeries(const std::string& key);
    // The mirror when `key` is the sheet's own and its rows can be held; else none.
    const LedgerMirror* mirrorOf(const std::string& key);
    // The key of the rows UpdateTracker writes, when every key of the sheet names them alike.
    std::optional<std::string> mirroredKey();

    // The refresh's writes to its held series, waiting in the store while the mirror holds the
    // rows as they will be. Shared with the waiting writes, which outlive nothing they need.
    struct WaitingSeries {
        std::map<std::string, uint64_t> sequenceOf; // per series, the place of its latest update
        std::map<uint64_t, std::vector<std::string>> updates;
        uint64_t next = 0;
        bool waiting = false;
        LedgerMirror mirror;
    };
    std::shared_ptr<WaitingSeries> waiting_ = std::make_shared<WaitingSeries>();

    // The statement texts UpdateTracker last wrote per series, and the store's change stamp
    // after them (none while a write is under way).
    struct WrittenSeries {
        std::optional<Store::Stamp> stamp;
        std::map<std::string, std::vector<std::string>> texts;
    };

    SheetKind kind_;
    WrittenSeries written_;
    std::map<std::string, LedgerTotals> totals_;
    std::optional<Store::Stamp> totalsStamp_;
    pricing::StockEngine stock_;
    pricing::IndexEngine index_;
    bool settingPicker_ = false;
    bool loadFinished_ = false; // the last DoInit ran to its end: only then may the sheet be saved
};

// The loaded screen of a kind, for the screens that work on the open sheet.
RiskSheet& riskSheet(App& app, SheetKind kind);

} // namespace tallimark
