// The sheet's toolbar, its menu and keys, the two trade entries and the close of the screen.
#include "charges/ChargesSheet.h"
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "reports/SheetExport.h"
#include "sheet/RiskSheet.h"
#include "sheet/SheetCommandScreen.h"
#include "tracker/FrmOption.h"
#include "tracker/FrmUnderlying.h"

#include <optional>

namespace tallimark {

namespace {

struct Command {
    const char* key;     // the button's caption, by which the command is chosen
    const char* menu;    // the menu entry that presses the button; nullptr for none
    const char* caption; // the menu entry's caption
    char altLetter;      // Alt + this letter presses the button; 0 for none
};

const Command kCommands[] = {
    {"Save", "mnSave", "&Save          ", 0},
    {"Option", "mnuoption", "&Option              ALT+O", 'O'},
    {"UnderLying", "mnuunder", "&Underlying       ALT+U", 'U'},
    {"Cash", nullptr, nullptr, 'R'},
    {"Trade Tracker", "mnulst", "&Listing              ALT+T", 'T'},
    {"Upload", "mnuupload", "&Data Upload   ALT+U", 'L'},
    {"Simulate", "mnusimu", "&Simulation     ALT+S", 'S'},
    {"Graph", "mnuGraph1", "&Graphs          ALT+G", 'G'},
    {"Print", "mnuprint", "&Print                ALT+P", 'P'},
    {"Exit", "mnuexit", "E&xit", 'X'},
};

std::string button(int index) {
    return "Toolbar1(" + std::to_string(index) + ")";
}

// Alt + letter moves the focus straight to the figures a dealer retypes most.
const std::pair<char, const char*> kAltFocus[] = {{'D', "TxtDays"},
                                                  {'M', "TxtMktPrice"},
                                                  {'C', "TxtImpVol"},
                                                  {'V', "TxtImpVolP"},
                                                  {'E', RiskSheet::kLadder}};

} // namespace

void RiskSheet::addCommands() {
    for (int i = 1; i <= static_cast<int>(std::size(kCommands)); ++i) {
        addControl(ControlKind::Button, button(i), kCommands[i - 1].key);
        if (const char* menu = kCommands[i - 1].menu) {
            addControl(ControlKind::Menu, menu, kCommands[i - 1].caption);
            on(menu, EventType::Click, [this, i](Event&) { fire(button(i), EventType::Click); });
        }
    }
    on("Toolbar1", EventType::Click, [this](Event& e) { Toolbar1_ButtonClick(Trim(text(button(e.index)))); });
    // A desk's numbers go on to its spreadsheet: both sheets export from the menu, the index sheet
    // from its "Excel" button too.
    addControl(ControlKind::Menu, "mnuExport", "E&xport to Excel");
    const auto exportCsv = [this](Event&) {
        exportSheet(*this, app().session().g_strSymbol + " " + app().session().g_strDesc + ".csv");
    };
    on("mnuExport", EventType::Click, exportCsv);
    if (isIndex()) on("cmdExl", EventType::Click, exportCsv);
    // The screen reads every key before its controls do.
    on("Form", EventType::KeyDown, [this](Event& e) { keyPreview(e); });
    for (const std::string& name : controlOrder())
        if (hasControl(name) && control(name).kind == ControlKind::TextBox)
            on(name, EventType::KeyDown, [this](Event& e) { keyPreview(e); });
    on(kLadder, EventType::KeyDown, [this](Event& e) {
        keyPreview(e);
        if (e.keyCode == keys::Tab || e.keyCode == keys::Enter) RepriceRow();
    });
    // The ladder's own keys are three digit characters: "9" steps right, "4" and "3" recompute
    // the active cell's figures.
    on(kLadder, EventType::KeyPress, [this](Event& e) {
        Grid& g = va1();
        if (e.keyAscii == '9') {
            ++g.activeCol;
            setFocus(kLadder);
        } else if (e.keyAscii == '4' || e.keyAscii == '3') {
            va1_Click(g.activeCol, g.activeRow);
        }
    });
    on("Form", EventType::QueryUnload, [this](Event& e) { e.cancel = closeRefused(); });
}

void RiskSheet::keyPreview(Event& e) {
    if (focused() != kLadder) EnterAsTab(*this, e.keyCode);
    auto press = [&](int index) {
        e.keyCode = 0;
        fire(button(index), EventType::Click);
    };
    if (e.shift & keys::AltMask) {
        for (int i = 1; i <= static_cast<int>(std::size(kCommands)); ++i)
            if (kCommands[i - 1].altLetter != 0 && e.keyCode == kCommands[i - 1].altLetter) return press(i);
        for (const auto& [letter, field] : kAltFocus)
            if (e.keyCode == letter) {
                e.keyCode = 0;
                return setFocus(field);
            }
        return;
    }
    if ((e.shift & keys::CtrlMask) && e.keyCode == 'S') return press(1);
    if (e.keyCode == keys::F1) return press(2);
    if (e.keyCode == keys::F2) return press(3);
    if (e.keyCode == keys::F3) return setFocus(kLadder);
    if (e.keyCode == keys::F7) return trapped("Form_KeyDown", [this] { SetStrikes(); });
    if (e.keyCode == keys::Escape) {
        e.keyCode = 0;
        requestClose();
    }
}

void RiskSheet::Toolbar1_ButtonClick(const std::string& key) {
    // The screens a command opens read the program-wide current sheet: this one, whatever row of
    // the main screen's list was clicked since it opened.
    makeCurrentSheet();
    if (key == "Save")
        SaveData();
    else if (key == "Option")
        optionTrade();
    else if (key == "UnderLying")
        underlyingTrade();
    else if (key == "Exit")
        requestClose();
    else if (key == "Upload")
        uploadTrades();
    else if (key == "Trade Tracker")
        tradeTrail();
    else
        openCommandScreen(key);
}

void RiskSheet::optionTrade() {
    const int row = va1().activeRow;
    const std::string Strike = Trim(Format(cell(row, 1), "0.00"));
    const std::string CP = Trim(cell(row, 2));
    const std::string OldUnits = cell(row, 3), Last = cell(row, 5), Vol = cell(row, 6);
    if (Strike.empty()) {
        ui().msgBox({"Pls Select the Call/Put Value", "Error", MsgButtons::Ok, MsgIcon::Critical});
        return;
    }
    FrmOption& entry = app().screens().get<FrmOption>();
    entry.load();
    entry.setText("lblStrike", Strike + " " + CP);
    // The index sheet prices each side at its own field's volatility.
    entry.setText("TxtImpVolF", !isIndex()               ? Vol
                                : CP.substr(0, 1) == "C" ? text("TxtImpVol")
                                                         : text("TxtImpVolP"));
    entry.setText("TxtUnits", "");
    entry.setText("TxtTraded", Last);
    entry.showModal();
    if (!entry.OK) return;
    entry.OK = false;

    const std::string Units = entry.Units;
    const double Sum = Val(Units) + Val(OldUnits);
    if (Sum == 0) {
        setCell(row, 3, "");
        setCell(row, 4, "");
    } else {
        setCell(row, 3, NumText(Sum));
        markUnits(row, Sum);
        setCell(row, 4, entry.Traded);
    }
    CalcPremium();
    if (isIndex())
        AddTrail(Units, entry.Traded);
    else
        AddTrail(Units, entry.Traded, entry.TradeTime, entry.text("TxtImpVolF"));
    optionRecalculation();
    BusyScope busy(ui());
    RefreshData(13);
}

void RiskSheet::underlyingTrade() {
    // A sheet with no underlying yet holds a blank trade price: taken as none rather than refused.
    const std::string before = Trim(text("TxtFutTrade"));
    FutTradeBefore = before.empty() ? 0 : CDbl(before);
    FrmUnderlying& entry = app().screens().get<FrmUnderlying>();
    entry.load();
    entry.setText("TxtUnits", "");
    entry.setText("TxtTraded", text("TxtMktPrice"));
    entry.setValue("Option1(1)", true);
    entry.showModal();
    if (!entry.OK) return;
    setText("TxtFutLots", entry.Units);
    setText("TxtFutTrade", entry.Traded);
    CashTypeNow = entry.CashType;
    entry.OK = false;
    if (isIndex()) {
        AddStock(entry.Units, entry.Traded, CashTypeNow);
        CalcAvgStock();
        CalcRStock();
        CalcDeltaNeutral1();
        CalcFutureR();
        ErrProcCalcBalance();
    } else {
        AddStock(entry.Units, entry.Traded, CashTypeNow, entry.TradeTime);
        CalcAvgStock();
        CalcRStock();
    }
    BusyScope busy(ui());
    RefreshData(13);
}

void RiskSheet::openCommandScreen(const std::string& key) {
    if (key == "Cash") {
        BusyScope busy(ui());
        Expenses(app(), *this, isIndex());
        return;
    }
    const char* screen = nullptr;
    if (key == "Simulate")
        screen = "FrmSimulation";
    else if (key == "Graph")
        screen = "FrmListGraph";
    else if (key == "Print")
        screen = "FrmPrintOption";
    if (!screen) return;
    BusyScope busy(ui());
    Form& target = app().screens().get(screen);
    if (auto* command = dynamic_cast<SheetCommandScreen*>(&target))
        command->openFrom(*this);
    else
        target.show();
}

bool RiskSheet::closeRefused() {
    if (!loadFinished_) {
        // Nothing to ask: the sheet cannot be saved, and nothing of it is touched on the way out.
        ui().msgBox({"This sheet did not finish loading and was not saved.", "Exit", MsgButtons::Ok,
                     MsgIcon::Information});
        hide();
        return true;
    }
    BusyScope busy(ui());
    std::optional<MsgAnswer> answer;
    // Only a sheet whose delta-neutral figure and balance both moved since the save is asked about.
    if (Trim(text("txtdelneutral")) != SavedDelNeutral && Trim(text("TxtBalance")) != SavedBalance) {
        answer = ui().msgBox(
            {"Do you wish to Save the Changes?", "Exit", MsgButtons::YesNoCancel, MsgIcon::Question});
        if (answer == MsgAnswer::Yes) SaveData();
    }
    if (answer == MsgAnswer::Cancel) return true;
    if (!answer) return false;
    // The screen stays loaded, hidden, for the next sheet.
    CancelData();
    hide();
    return true;
}

} // namespace tallimark
