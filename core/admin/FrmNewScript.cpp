#include "admin/FrmNewScript.h"

#include "access/FindDialogs.h"
#include "admin/FrmNewMainScreen.h"
#include "admin/SheetOpening.h"
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/DeskDate.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/FrmSettingStrike.h"

#include <algorithm>

namespace tallimark {

namespace {

const char* const kMonths[] = {"JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
                               "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};

// The fields in tab order with their captions; the script's search button and list stand beside
// its name.
struct Field {
    const char* name;
    ControlKind kind;
    const char* label; // nullptr: no caption label of its own
    const char* caption = "";
};
const Field kFields[] = {{"TxtScriptNM", ControlKind::TextBox, "Script Name"},
                         {"cmdScriptNm", ControlKind::Button, nullptr, "..."},
                         {"DataCombo1", ControlKind::ComboBox, nullptr},
                         {"Combo1", ControlKind::ComboBox, "Month"},
                         {"TxtYear", ControlKind::TextBox, "Year"},
                         {"TxtInSymbol", ControlKind::TextBox, "Symbol"},
                         {"TxtDesc", ControlKind::TextBox, "Description"},
                         {"TxtMStrike", ControlKind::TextBox, "Mid Strike"},
                         {"TxtAStrike", ControlKind::TextBox, "Strikes Above"},
                         {"TxtBStrike", ControlKind::TextBox, "Strikes Below"},
                         {"TxtRateDiff", ControlKind::TextBox, "Rate Diff"},
                         {"TxtDRate", ControlKind::TextBox, "Interest Rate"},
                         {"DTPicker1", ControlKind::DatePicker, "Expiry Date"}};

// The entry fields, each selecting its text on entry.
const char* const kTextFields[] = {"TxtScriptNM", "TxtYear",    "TxtInSymbol", "TxtDesc", "TxtMStrike",
                                   "TxtAStrike",  "TxtBStrike", "TxtRateDiff", "TxtDRate"};

// What a save clears once the new sheet is open.
const char* const kClearedAfterSave[] = {"TxtScriptNM", "TxtMonth",   "TxtInSymbol", "TxtDesc",
                                         "TxtRateDiff", "TxtMStrike", "TxtAStrike",  "TxtBStrike"};

std::string Right(const std::string& s, size_t n) {
    return s.substr(s.size() - std::min(n, s.size()));
}

// The sheet's row of Trans as the save gathers it; the columns left empty or 0 belong to
// entries this screen does not offer.
struct TransRow {
    double DIntRate = 0, FIntRate = 0, MidStrike = 0, OptComm = 0, UComm = 0;
    int32_t Iterations = 0, AStrike = 0, BStrike = 0;
    std::string InDesc, InSymbol, InType, KeySpread, KeySymbol, KeyType, OptModel, PSource;
};

} // namespace

FrmNewScript::FrmNewScript(App& app) : Form(app, kName, "New Sheet Detail.........By Tallimark") {
    addControl(ControlKind::Frame, "Frame1", "Type");
    addControl(ControlKind::OptionButton, "OptInType(0)", "Futures");
    addControl(ControlKind::OptionButton, "OptInType(1)", "Stock");
    for (const Field& f : kFields) {
        if (f.label) addControl(ControlKind::Label, std::string("Label_") + f.name, f.label);
        addControl(f.kind, f.name, f.caption);
    }
    control("Combo1").items.assign(std::begin(kMonths), std::end(kMonths));
    addControl(ControlKind::TextBox, "TxtMonth").visible = false;
    addControl(ControlKind::Button, "CmdOk", "&Ok");
    addControl(ControlKind::Button, "CmdCancel", "&Cancel");

    on("Form", EventType::Load, [this](Event&) {
        setValue("OptInType(1)", true);
        const VbDate today = this->app().clock().today();
        setText("TxtYear", std::to_string(today.year()));
        setText("TxtAStrike", "5");
        setText("TxtBStrike", "5");
        setText("TxtDRate", Format(10.0, "0.00") + "%");
        // The picker always holds a date: today until a month is chosen.
        setText("DTPicker1", Format(today, "DD-MMM-YY"));
    });
    on("Form", EventType::Activate, [this](Event&) { fillScripts(); });
    on("cmdScriptNm", EventType::Click, [this](Event&) { cmdScript_Click(); });
    on("DataCombo1", EventType::Change, [this](Event&) { scriptChosen(); });
    on("Combo1", EventType::LostFocus, [this](Event&) { monthLeft(); });
    on("TxtDRate", EventType::LostFocus, [this](Event&) { rateLeft(); });
    on("TxtMStrike", EventType::LostFocus, [this](Event&) { midStrikeLeft(); });
    on("TxtInSymbol", EventType::KeyPress, [](Event& e) {
        if (e.keyAscii >= 'a' && e.keyAscii <= 'z') e.keyAscii = e.keyAscii - 'a' + 'A';
    });
    for (const char* field : kTextFields)
        on(field, EventType::GotFocus, [this, field](Event&) { SelectAll(*this, field); });
    on("CmdOk", EventType::Click, [this](Event&) { CmdOk_Click(); });
    on("CmdCancel", EventType::Click, [this](Event&) { requestClose(); });
    for (const std::string& name : controlOrder())
        on(name, EventType::KeyDown, [this, name](Event& e) { keyDown(name, e); });
}

void FrmNewScript::fillScripts() {
    std::vector<std::string> names;
    Recordset rs = app().store().query("select ScrName from ScriptMast order by ScrName");
    for (; !rs.eof(); rs.moveNext())
        names.push_back(rs["ScrName"].textOrEmpty());
    setItems("DataCombo1", std::move(names));
}

void FrmNewScript::keyDown(const std::string& control, Event& e) {
    const bool alt = (e.shift & keys::AltMask) != 0;
    if (alt && (e.keyCode == 'F' || e.keyCode == 'S')) {
        setValue(e.keyCode == 'F' ? "OptInType(0)" : "OptInType(1)", true);
        e.keyCode = 0;
    } else if (e.keyCode == keys::Escape) {
        e.keyCode = 0;
        requestClose();
    } else if (e.keyCode == keys::Enter && this->control(control).kind != ControlKind::Button) {
        e.keyCode = 0;
        EnterAsTab(*this, keys::Enter);
    }
}

std::string FrmNewScript::typeWord() {
    return control("OptInType(0)").value ? text("OptInType(0)") : text("OptInType(1)");
}

void FrmNewScript::cmdScript_Click() {
    try {
        const std::vector<std::string> picked = search_call(
            app(), "SELECT ScrName AS Name, ScrCode AS CODE From ScriptMast ORDER BY ScrName asc");
        if (picked.empty()) {
            setText("TxtScriptNM", "");
            ScrCode.clear();
        } else {
            setText("TxtScriptNM", picked.at(0));
            ScrCode = picked.at(1);
        }
    } catch (const std::exception& e) {
        failureBox("cmdScript_Click", e);
    }
}

void FrmNewScript::scriptChosen() {
    const std::string name = Trim(text("DataCombo1"));
    if (name.empty()) {
        ui().msgBox({"Pls Select the Script Name", "Script Select"});
        return;
    }
    Recordset rs = app().store().query("select * from ScriptMast where SCRNAME = " + q(name));
    if (!rs.eof()) {
        ScrCode = Trim(rs["SCRCODE"].textOrEmpty());
        setText("TxtRateDiff", NumText(rs["RateDiff"].numberOrZero()));
    } else {
        setText("TxtScriptNM", "");
        ScrCode.clear();
    }
}

void FrmNewScript::monthLeft() {
    if (Trim(text("Combo1")).empty()) {
        ui().msgBox({"Pls Select the Month", "Month Select"});
        return;
    }
    cmdMth_Click();
    ExpiryDate();
}

void FrmNewScript::cmdMth_Click() {
    try {
        const std::string month = Trim(text("Combo1"));
        Recordset rs = app().store().query("Select * From MonthCheck where MonthCheck.Mnth = " + q(month));
        if (!rs.eof()) MonthCode = rs[control("OptInType(0)").value ? "FCode" : "SCode"].textOrEmpty();
        if (!month.empty()) {
            setText("TxtInSymbol", Trim(ScrCode) + Trim(MonthCode) + Trim(text("TxtYear")));
            setText("TxtDesc", Trim(text("TxtScriptNM")) + month + " For ");
        } else {
            setFocus("Combo1");
        }
    } catch (const std::exception& e) {
        failureBox("ErrProccmdMth_Click", e);
    }
}

void FrmNewScript::ExpiryDate() {
    try {
        const std::string symbol = Trim(text("TxtInSymbol"));
        const std::string T = Right(symbol, 5);
        const std::string Y = Right(symbol, 4);
        const std::string L = Trim(T).substr(0, 1);
        const bool stock = typeWord() == "Stock";

        // The month of the letter, as the store's month table has it; with no such letter the
        // texts stay empty and the date below cannot be read.
        std::string Mnth, Days;
        Recordset rs = app().store().query("select * from MonthCheck");
        for (; !rs.eof(); rs.moveNext()) {
            if (rs[stock ? "SCode" : "FCode"].textOrEmpty() == L) {
                Mnth = rs["Mnth"].textOrEmpty();
                Days = rs["Days"].textOrEmpty();
                break;
            }
        }
        // February's letters are fixed; every fourth year is a leap year, the century years
        // included.
        if (L == (stock ? "B" : "G") && CLng(Y) % 4 == 0)
            Days = NumText(static_cast<int64_t>(CLng(Days) + 1));
        const VbDate lastDay = CDate(Days + "-" + Mnth + "-" + Y);

        // Back from the month's last day to its last Thursday, by weekday with Sunday as 1.
        static const int back[] = {3, 4, 5, 6, 0, 1, 2};
        const int32_t expiryDay = CLng(Days) - back[lastDay.weekday() - 1];

        Session& s = app().session();
        s.g_ExpiryDate = CDate(std::to_string(expiryDay) + "-" + Mnth + "-" + Y);
        setText("DTPicker1", Format(s.g_ExpiryDate, "DD-MMM-YY"));
    } catch (const std::exception& e) {
        failureBox("ExpiryDate", e);
    }
}

bool FrmNewScript::MonthCheck() {
    try {
        const std::string L = Trim(Right(Trim(text("TxtInSymbol")), 5)).substr(0, 1);
        const char* column = typeWord() == "Futures" ? "FCode" : "SCode";
        Recordset rs = app().store().query(std::string("Select * From MonthCheck where MonthCheck.") +
                                           column + " = " + q(Trim(L)));
        return rs.eof();
    } catch (const std::exception& e) {
        failureBox("MonthCheck", e);
        return false;
    }
}

int FrmNewScript::SymbolCheck() {
    setText("TxtInSymbol", UCase(text("TxtInSymbol")));
    const std::string symbol = Trim(text("TxtInSymbol"));
    const std::string Y = Right(symbol, 4);
    const char* refusal = nullptr;
    if (symbol.size() > 8 || Trim(Y).size() != 4 || !IsNumeric(Y))
        refusal = "Symbol not in correct format";
    else if (MonthCheck())
        refusal = "Code for month in Instrument symbol is incorrect, Please enter correct code";
    if (!refusal) return 0;
    ui().msgBox({refusal, "Entry Error", MsgButtons::Ok, MsgIcon::Critical});
    setText("TxtInSymbol", "");
    setFocus("Combo1");
    return 1;
}

void FrmNewScript::CmdOk_Click() {
    if (SymbolCheck() == 1) return;
    if (CheckUniqueScript()) {
        ui().msgBox({"Script Already Exists, Please Change the description", "Duplicate Entries",
                     MsgButtons::Ok, MsgIcon::Critical});
        setFocus("TxtDesc");
        return;
    }

    // The ladder's bound holds for a new sheet as for F7 on an open one.
    for (const char* field : {"TxtAStrike", "TxtBStrike"})
        if (IsNumeric(text(field)) && CDbl(text(field)) > FrmSettingStrike::kMaxStrikesASide) {
            ui().msgBox({"The ladder takes at most " + std::to_string(FrmSettingStrike::kMaxStrikesASide) +
                             " strikes above and below the middle strike.",
                         "Wrong Input ", MsgButtons::Ok, MsgIcon::Critical});
            setFocus(field);
            return;
        }

    // The expiry is read after the sheet's row is written: a date that cannot be read is refused
    // here, while nothing is written yet.
    if (!deskDate(Trim(text("DTPicker1")))) {
        ui().msgBox({kDeskDateForms, "Entry Error", MsgButtons::Ok, MsgIcon::Critical});
        setFocus("DTPicker1");
        return;
    }

    Session& s = app().session();
    const VbDate today = app().clock().today();
    TransRow row;
    bool added = false;
    try {
        row.InType = typeWord().substr(0, 1);
        const std::string rate = text("TxtDRate");
        if (rate.empty()) vberr::raise(vberr::InvalidCall); // no "%" to take off
        row.DIntRate = CDbl(rate.substr(0, rate.size() - 1));
        row.InDesc = Trim(text("TxtDesc"));
        row.InSymbol = Trim(text("TxtInSymbol"));
        row.MidStrike = CDbl(text("TxtMStrike"));
        row.AStrike = CLng(text("TxtAStrike"));
        row.BStrike = CLng(text("TxtBStrike"));
        // The rate difference travels in UComm, where the sheet reads it.
        row.UComm = CDbl(text("TxtRateDiff"));
        app().store().execute(
            "INSERT INTO TRANS(DIntRate, FIntRate, InDesc, InSymbol, InType, Iterations, KeySpread, "
            "KeySymbol, "
            "KeyType, MidStrike, OptComm, OptModel, PSource, AStrike, BStrike, UComm, Transdt) VALUES(" +
            NumText(row.DIntRate) + ", " + NumText(row.FIntRate) + ", " + q(row.InDesc) + ", " +
            q(row.InSymbol) + ", " + q(row.InType) + ", " + NumText(int64_t{row.Iterations}) + ", " +
            q(row.KeySpread) + ", " + q(row.KeySymbol) + ", " + q(row.KeyType) + ", " +
            NumText(row.MidStrike) + ", " + NumText(row.OptComm) + ", " + q(row.OptModel) + ", " +
            q(row.PSource) + ", " + NumText(int64_t{row.AStrike}) + ", " + NumText(int64_t{row.BStrike}) +
            ", " + NumText(row.UComm) + ", cdate(" + q(DateText(today)) + "))");
        added = true;
    } catch (const std::exception&) {
        added = false;
    }
    s.g_strSymbol = row.InSymbol;
    s.g_strDesc = row.InDesc;
    if (!added) {
        ui().msgBox({"Failed in Adding Record", "Error", MsgButtons::Ok, MsgIcon::Critical});
        return;
    }

    app().screens().get<FrmNewMainScreen>().PopulateLView();
    hide();
    s.gOpenMode = 2;
    const auto type = SheetType(app(), s.g_strSymbol, s.g_strDesc);
    if (!type) return;
    s.g_ExpiryDate = CDate(Format(CDate(text("DTPicker1")), "dd-mmm-yyyy"));
    OpenSheetScreen(app(), *type);
    for (const char* field : kClearedAfterSave)
        setText(field, "");
}

bool FrmNewScript::CheckUniqueScript() {
    try {
        Recordset rs =
            app().store().query("select * from trans where InSymbol = " + q(Trim(text("TxtInSymbol"))) +
                                " and InDesc = " + q(Trim(text("TxtDesc"))));
        if (!rs.eof()) {
            setText("TxtDesc", "");
            return true;
        }
    } catch (const std::exception& e) {
        failureBox("CheckUniqueScript", e);
    }
    return false;
}

void FrmNewScript::rateLeft() {
    std::string rate = Trim(text("TxtDRate"));
    if (rate.empty()) {
        setText("TxtDRate", "0.00%");
        return;
    }
    // A rate that already shows its "%" is formatted from its number, so leaving the field
    // again does not add a second sign.
    if (rate.back() == '%') rate.pop_back();
    setText("TxtDRate", Format(std::string_view(rate), "0.00") + "%");
}

void FrmNewScript::midStrikeLeft() {
    const std::string strike = text("TxtMStrike");
    const char* refusal = Trim(strike).empty() ? "Blank not acceptable here"
                          : !IsNumeric(strike) ? "Only Numeric values allowed here"
                                               : nullptr;
    if (!refusal) {
        setText("TxtMStrike", Format(std::string_view(strike), "0.00"));
        return;
    }
    ui().msgBox({refusal, "Entry Error"});
    setText("TxtMStrike", "");
    setFocus("TxtMStrike");
}

} // namespace tallimark
