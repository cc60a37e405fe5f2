#pragma once
// The day's charges of the current sheet: contract, turnover and DP charges, stamp duty,
// interest, and the chain of balances from the opening balance to the net balance, stored in
// Closing and printed as the expenses statement. One screen in two editions: FrmNewCharges opened
// by the stock sheet's "Cash", FrmChargesExl by the index sheet's. Their differences stand in
// the table of EditionRules, so one look finds them.
#include "frame/Form.h"

#include <functional>
#include <string>

namespace tallimark {

class Recordset;

enum class ChargesEdition { Day, Sheet }; // FrmNewCharges, FrmChargesExl

struct EditionRules {
    const char* name;
    const char* caption;
    bool clearsFieldsOnLoad;      // DoInit starts from zeros; the other keeps the texts
    bool warnsWithoutClosingRow;  // "Closing Rate Not Entered." before taking the master's rates
    bool stockRateFromMarket;     // a stock closing rate of 0 takes the market price
    bool openingFromLastClosing;  // else the sum of all earlier days' charges
    bool stampDutyOnTickedOnly;   // options' stamp duty sum A3 counts ticked rows only
    bool closingRatesGateButtons; // Save and Print only with both closing rates
    bool stampDutyInTotal;        // the closing of RefreshData: stamp duty inside TxtTotal
    const char* connect;
    int printedSlots; // the formula slots PrintRecords fills
};

const EditionRules& rulesOf(ChargesEdition edition);

class ChargesSheet : public Form {
public:
    static constexpr const char* kDayName = "FrmNewCharges";
    static constexpr const char* kSheetName = "FrmChargesExl";
    static constexpr const char* kGrid = "va1";

    ChargesSheet(App& app, ChargesEdition edition);

    // "Stk" from the stock sheet, "Index" from the index sheet: which load step a date change runs.
    std::string SheetKind;
    // The load steps: DoInit reads the stock sheet FrmPort5, DoInit1 the index sheet.
    void DoInit() { load("DoInit", "FrmPort5"); }
    void DoInit1() { load("DoInit1", "FrmPortfolioIndex"); }
    void RefreshData();
    void RefreshData1();
    void UpdateExpenses();
    void PrintRecords();
    // The closing entry hands its rates over before the load step reads the day's row.
    void handOver(double tover, double conCh, double other, double dpCh, double stkInt) {
        TOver = tover;
        ConCh = conCh;
        Other = other;
        DpCh = dpCh;
        StkInt = stkInt;
    }

private:
    // Rates and the figures between steps, as the screen's members.
    double TOver = 0, ConCh = 0, ConChP = 0, ConChF = 0, DpCh = 0, StkInt = 0, Other = 0, StDuty = 0;
    double ClMtmRate = 0, ClStkRate = 0, Prem = 0;
    int Mode = 0; // 1 the day's row exists (Save updates), 2 it does not (Save inserts)

    void addFields();
    void addEvents();
    void load(const char* procedure, const char* sheet);
    void readRates(const Recordset& closing);
    void openingBalance();
    void recalc(bool afterTick);
    void balanceStep(); // step B
    void rateLeft(const std::string& field);
    void tickClicked(const Event& e);
    void trapped(const char* procedure, const std::function<void()>& body);
    double field(const char* name) const;

    // Where the day's statements put the sheet and the date.
    std::string symbol();
    std::string descr();
    std::string dayText() const; // DTPicker1 as DD-MM-YYYY

    const EditionRules& rules_;
    // The shown futures and cash blocks: the place of a block appended past the row count.
    int futStart_ = 0, cashStart_ = 0;
};

// The risk sheets' "Cash": the stock sheet opens FrmNewCharges with DoInit, the index sheet
// FrmChargesExl with DoInit1, each on the sheet's date, shown without blocking the sheet.
void Expenses(App& app, Form& sheet, bool indexSheet);

} // namespace tallimark
