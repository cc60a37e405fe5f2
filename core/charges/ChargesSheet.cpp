#include "charges/ChargesSheet.h"

#include "frame/App.h"
#include "frame/VbError.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

#include <algorithm>
#include <vector>

namespace tallimark {

namespace {

const EditionRules kDay = {
    "FrmNewCharges", "Charges For the Day", true, false, true, true, false, false, true, "DSN=TALLI", 16};
const EditionRules kSheet = {"FrmChargesExl",
                             "Charges Sheet....Tallimark",
                             false,
                             true,
                             false,
                             false,
                             true,
                             true,
                             false,
                             "DSN=SHARES",
                             2};

struct FieldDef {
    const char* name;
    const char* caption;
    bool dayOnly = false;
};

const FieldDef kFields[] = {
    {"TxtMkt", "Market"},
    {"TxtSheetBal", "Sheet Balance"},
    {"TxtClMtm", "Closing Rate (Mrk-To-Mrk)"},
    {"TxtClStk", "Closing Rate (Stock)"},
    {"TxtTOverChgs", "Turn Over"},
    {"TxtConChgs", "Equity"},
    {"TxtConChF", "F && O"},
    {"TxtConChP", "Stamp Duty Charges"},
    {"TxtDPRate", "DP. Chgs"},
    {"TxtIntRate", "Int. Rate"},
    {"TxtStDutyChgs", "Stamp Duty Charges"},
    {"TxtOtherChgs", "Other Chgs"},
    {"TxtOpBal", "Op.Balance"},
    {"TxtOpBalInt", "Int on OpBal"},
    {"TxtFut", "Fut/Stk"},
    {"TxtFutTraded", "Fut/Stk"},
    {"TxtPrevStk", "Op Fut/Stk"},
    {"TxtPrevRate", "Rate"},
    {"TxtCash", "Cash"},
    {"TxtCashTraded", "Cash"},
    {"TxtTotConChgs", "Total"},
    {"TxtTotPremInt", ""},
    {"TxtFutConChgs", " F And O"},
    {"TxtCashTOver", "T Chgs Equity"},
    {"TxtDpChgs", "DP Chgs"},
    {"TxtMrkInt", "Mrk-Mrk Int"},
    {"TxtCashInt", "Int on Cash"},
    {"TxtSDutyOpt", "S Duty On F & O"},
    {"TxtSDutyFut", ""},
    {"TxtStDutyDel", "S Duty On Delivery"},
    {"TxtStDutyNDel", "Non Delivery"},
    {"TxtStDuty", "Stamp Duty"},
    {"TxtTotalTurnCharges", "Total"},
    {"TxtFutureOptionCharges", "Turn Over Charges", true},
    {"TxtFutureOptionSDuty", "Stamp Duty Charges", true},
    {"TxtTotExpense", "Expense Detail", true},
    {"TxtTotal", "Cl.Balance"},
    {"TxtNetBal", "Net Balance"},
};

// The rate fields whose leaving recalculates, with the member each one sets.
const char* const kRateFields[] = {"TxtClMtm",  "TxtClStk",   "TxtConChF",     "TxtConChgs",
                                   "TxtDPRate", "TxtIntRate", "TxtStDutyChgs", "TxtTOverChgs"};
const char* const kEnterFields[] = {"TxtClMtm",  "TxtClStk",   "TxtConChgs",
                                    "TxtDPRate", "TxtIntRate", "TxtTOverChgs"};

} // namespace

const EditionRules& rulesOf(ChargesEdition edition) {
    return edition == ChargesEdition::Day ? kDay : kSheet;
}

ChargesSheet::ChargesSheet(App& app, ChargesEdition edition)
    : Form(app, rulesOf(edition).name, rulesOf(edition).caption), rules_(rulesOf(edition)) {
    addFields();
    addEvents();
}

void ChargesSheet::addFields() {
    addControl(ControlKind::DatePicker, "DTPicker1", DateText(app().clock().today()));
    addControl(ControlKind::Label, "LblDate", "Date");
    for (const FieldDef& f : kFields) {
        if (f.dayOnly && !rules_.clearsFieldsOnLoad) continue;
        addControl(ControlKind::TextBox, f.name, "0");
        if (*f.caption) addControl(ControlKind::Label, std::string("Lbl") + (f.name + 3), f.caption);
    }
    addControl(ControlKind::Button, "Cmd(0)", "&Save");
    addControl(ControlKind::Button, "Cmd(1)", "&Print");
    Grid& g = addGrid(kGrid, 9);
    const char* heads[] = {"Strike", "C/P", "Units", "Traded", "Premium", "TOver Chgs", "Prem Int", "", ""};
    for (int c = 1; c <= 9; ++c) {
        g.column(c).heading = heads[c - 1];
        g.column(c).width = 10;
    }
    // Column 8 holds the tick of each trade: "1" counts it, "0" leaves it out. A click turns it;
    // it takes no typing, so it holds nothing else.
    g.column(8).width = 3;
}

void ChargesSheet::addEvents() {
    for (const char* f : kRateFields)
        on(f, EventType::LostFocus, [this, f](Event&) { rateLeft(f); });
    // Deliberately the odd one: a new premium rate takes the value of the equity rate field.
    on("TxtConChP", EventType::LostFocus, [this](Event&) {
        double typed = 0, equity = 0;
        try {
            typed = CDbl(Trim(text("TxtConChP")));
            equity = CDbl(Trim(text("TxtConChgs")));
        } catch (const VbError&) {
            ui().msgBox({"Stamp Duty Charges and Equity take numbers.", "Invalid Entry", MsgButtons::Ok,
                         MsgIcon::Information});
            return;
        }
        if (typed == ConChP) return;
        ConChP = equity;
        RefreshData();
    });
    if (rules_.closingRatesGateButtons)
        for (const char* f : {"TxtClMtm", "TxtClStk"})
            on(f, EventType::Change, [this](Event&) {
                const bool rates = Val(text("TxtClMtm")) != 0 && Val(text("TxtClStk")) != 0;
                setEnabled("Cmd(0)", rates);
                setEnabled("Cmd(1)", rates);
            });
    on("TxtOtherChgs", EventType::Change, [this](Event&) { balanceStep(); });
    on("DTPicker1", EventType::Change, [this](Event&) {
        // A picker holds only dates: a script's text that is none loads nothing.
        if (!IsDate(text("DTPicker1"))) return;
        if (rules_.clearsFieldsOnLoad || SheetKind != "Index")
            DoInit();
        else
            DoInit1();
    });
    on(kGrid, EventType::Click, [this](Event& e) { tickClicked(e); });
    on("Cmd", EventType::Click, [this](Event& e) {
        UpdateExpenses();
        if (e.index == 1) PrintRecords();
    });
    // Esc closes the screen from any control; Enter in some rate fields recalculates.
    std::vector<std::string> keyed = controlOrder();
    keyed.push_back(kGrid);
    for (const std::string& name : keyed) {
        const bool enter =
            std::find(std::begin(kEnterFields), std::end(kEnterFields), name) != std::end(kEnterFields);
        on(name, EventType::KeyDown, [this, name, enter](Event& e) {
            if (e.keyCode == keys::Escape) app().screens().unload(this->name());
            if (enter && e.keyCode == keys::Enter) rateLeft(name);
        });
    }
}

void ChargesSheet::rateLeft(const std::string& name) {
    double* const members[] = {&ClMtmRate, &ClStkRate, &ConChF, &ConCh, &DpCh, &StkInt, &StDuty, &TOver};
    const auto at = std::find(std::begin(kRateFields), std::end(kRateFields), name) - std::begin(kRateFields);
    double typed = 0;
    try {
        typed = CDbl(Trim(text(name)));
    } catch (const VbError&) {
        // The rate stays as it was until a number stands in the field.
        ui().msgBox({"Enter a number for " + control("Lbl" + name.substr(3)).text + ".", "Invalid Entry",
                     MsgButtons::Ok, MsgIcon::Information});
        return;
    }
    if (typed == *members[at]) return;
    *members[at] = typed;
    RefreshData();
}

void ChargesSheet::tickClicked(const Event& e) {
    Grid& g = grid(kGrid);
    if (e.col != 8 || e.row < 1 || e.row > g.maxRows() || g.text(e.row, 1).empty()) return;
    g.setText(e.row, 8, g.text(e.row, 8) == "0" ? "1" : "0");
    if (e.col == g.activeCol) RefreshData1();
}

void ChargesSheet::trapped(const char* procedure, const std::function<void()>& body) {
    try {
        body();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        failureBox(procedure, e);
    }
}

double ChargesSheet::field(const char* name) const {
    return Val(text(name));
}

std::string ChargesSheet::symbol() {
    return app().session().g_strSymbol;
}

std::string ChargesSheet::descr() {
    return app().session().g_strDesc;
}

std::string ChargesSheet::dayText() const {
    return Format(CDate(text("DTPicker1")), "DD-MM-YYYY");
}

} // namespace tallimark
