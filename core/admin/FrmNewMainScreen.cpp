#include "admin/FrmNewMainScreen.h"

#include "admin/SheetOpening.h"
#include "frame/App.h"
#include "frame/MDIForm1.h"
#include "frame/VbNumber.h"
#include "scenario/TwoContractScreen.h"

#include <array>

namespace tallimark {

namespace {
const char* const kList = "ListView1";
const char* const kSymbol = "Symbol";
const char* const kDescription = "Description";
const char* const kRefreshDate = "Refresh Date";
} // namespace

FrmNewMainScreen::FrmNewMainScreen(App& app) : Form(app, kName, "Main Screen") {
    Grid& list = addGrid(kList, 3);
    list.checkBoxes = true;
    const char* const headings[] = {kSymbol, kDescription, kRefreshDate};
    const double widths[] = {16, 36, 12}; // the symbol beside its tick box
    for (int c = 1; c <= 3; ++c) {
        list.column(c).heading = headings[c - 1];
        list.column(c).width = widths[c - 1];
    }
    addControl(ControlKind::Button, "Cmd(1)", "&Open");
    addControl(ControlKind::Button, "Cmd(3)", "&Delete");
    addControl(ControlKind::Button, "Cmd(4)", "Quit");
    addControl(ControlKind::Button, "Command1", "E&xit");
    addControl(ControlKind::Button, "Command2", "Pos &File");
    addControl(ControlKind::Button, "Command3", "Load &Span");
    addControl(ControlKind::Button, "CmdTwoContract", "2-Con&tract");

    on("Form", EventType::Load, [this](Event&) {
        setEnabled("Cmd(1)", true);
        setEnabled("Cmd(3)", true);
        PopulateLView();
    });
    on("Form", EventType::QueryUnload, [this](Event&) { quit(); });
    on(kList, EventType::Click, [this](Event& e) { itemClick(e.row); });
    // Cmd(0) has no button: a double click or Enter in the list opens as Cmd(1) does, and
    // Cmd(2) shows the new-sheet screen.
    on(kList, EventType::DblClick, [this](Event&) { fire("Cmd(0)", EventType::Click); });
    on("Cmd", EventType::Click, [this](Event& e) {
        switch (e.index) {
        case 0:
        case 1:
            openSheet();
            break;
        case 2:
            this->app().screens().get("FrmNewScript").show();
            break;
        case 3:
            deleteSheet();
            break;
        case 4:
            quit();
            break;
        default:
            break;
        }
    });
    on("Command1", EventType::Click, [this](Event&) { hide(); });
    on("Command2", EventType::Click, [this](Event&) { positionFile(); });
    on("Command3", EventType::Click, [this](Event&) {
        hide();
        this->app().screens().get("FrmSpan_Load").show();
    });
    on("CmdTwoContract", EventType::Click, [this](Event&) { twoContract(); });
    // Esc anywhere on the screen quits; Enter in the list opens the sheet.
    for (const std::string& name : controlOrder())
        on(name, EventType::KeyDown, [this, name](Event& e) {
            if (e.keyCode == keys::Escape) {
                e.keyCode = 0;
                fire("Cmd(4)", EventType::Click);
            } else if (e.keyCode == keys::Enter && name == kList) {
                e.keyCode = 0;
                fire("Cmd(0)", EventType::Click);
            }
        });
}

int FrmNewMainScreen::column(const std::string& heading) {
    Grid& list = grid(kList);
    for (int c = 1; c <= list.maxCols(); ++c)
        if (list.column(c).heading == heading) return c;
    throw VbError(35601, "Element not found");
}

std::string FrmNewMainScreen::item(int row, const std::string& heading) {
    return grid(kList).text(row, column(heading));
}

void FrmNewMainScreen::PopulateLView() {
    Grid& list = grid(kList);
    try {
        list.setMaxRows(0);
        list.activeRow = 0;
        Recordset rs = app().store().query("select InType, InSymbol, InDesc, Transdt from trans");
        for (; !rs.eof(); rs.moveNext()) {
            const int row = list.maxRows() + 1;
            list.setMaxRows(row);
            list.setText(row, column(kSymbol), Trim(rs["InSymbol"].textOrEmpty()));
            list.setText(row, column(kDescription), rs["InDesc"].textOrEmpty());
            list.setText(row, column(kRefreshDate), Trim(rs["Transdt"].textOrEmpty()));
        }
        // The list selects its first item as it fills, as the desk's list control does.
        if (list.maxRows() > 0) {
            list.activeRow = 1;
            list.activeCol = 1;
        }
    } catch (const std::exception& e) {
        failureBox("PopulateLView", e);
    }
}

void FrmNewMainScreen::itemClick(int row) {
    Grid& list = grid(kList);
    if (row < 1 || row > list.maxRows()) return;
    list.activeRow = row;
    Session& s = app().session();
    s.g_strSymbol = item(row, kSymbol);
    s.g_strDesc = item(row, kDescription);
    s.gRefreshDate = item(row, kRefreshDate);
    setEnabled("Cmd(1)", true);
    setEnabled("Cmd(3)", true);
}

void FrmNewMainScreen::openSheet() {
    BusyScope busy(ui());
    Session& s = app().session();
    s.gOpenMode = 1;
    if (const auto type = SheetType(app(), s.g_strSymbol, s.g_strDesc)) OpenSheetScreen(app(), *type);
}

void FrmNewMainScreen::deleteSheet() {
    Grid& list = grid(kList);
    const int row = list.activeRow;
    if (row < 1 || row > list.maxRows()) return;
    if (ui().msgBox({"Are you sure you wish to delete record?", "Delete Record", MsgButtons::YesNo,
                     MsgIcon::Question}) != MsgAnswer::Yes)
        return;
    const std::string S = q(Trim(item(row, kSymbol)));
    const std::string D = q(Trim(item(row, kDescription)));
    const std::string R = q(item(row, kRefreshDate));
    // Every table that keys rows by the sheet, the sheet's own row first.
    Store& store = app().store();
    {
        WriteGroup group(store);
        store.execute("DELETE FROM TRANS WHERE INSYMBOL =" + S + " AND INDESC =" + D +
                      " AND TRANSDT = CDATE(" + R + ")");
        store.execute("DELETE FROM portfoliomast WHERE SYMBOL =" + S + " AND DESCR =" + D);
        store.execute("DELETE FROM portfoliodet WHERE SYMBOL =" + S + " AND DESCR =" + D);
        store.execute("DELETE FROM tracker WHERE SYMBOL =" + S + " AND INDESC =" + D);
        store.execute("DELETE FROM dummytracker WHERE SYMBOL =" + S + " AND INDESC =" + D);
        store.execute("DELETE FROM DumUploadFile WHERE SYMBOL =" + S + " AND INDESC =" + D);
        store.execute("DELETE FROM UploadFile WHERE SYMBOL =" + S + " AND INDESC =" + D);
        store.execute("DELETE FROM Closing WHERE SYMBOL =" + S + " AND DESCR =" + D);
    }
    removeItem(row);
}

void FrmNewMainScreen::removeItem(int row) {
    Grid& list = grid(kList);
    const int last = list.maxRows();
    for (int r = row; r < last; ++r) {
        for (int c = 1; c <= list.maxCols(); ++c)
            list.setText(r, c, list.text(r + 1, c));
        list.setChecked(r, list.checked(r + 1));
    }
    list.setMaxRows(last - 1);
    // The selection moves to the item before, or stays on the first.
    list.activeRow = list.maxRows() == 0 ? 0 : (row == 1 ? 1 : row - 1);
}

void FrmNewMainScreen::positionFile() {
    // The arrays keep the run-time's bounds: they start as indices 0 to 1 and grow by one per
    // ticked row, so N rows fill indices 0 to N-1 and the upper bound is N+1.
    Session& s = app().session();
    s.gPonSymbols.assign(2, "");
    s.gPonDescs.assign(2, "");
    Grid& list = grid(kList);
    size_t ticked = 0;
    for (int r = 1; r <= list.maxRows(); ++r) {
        if (!list.checked(r)) continue;
        s.gPonSymbols.emplace_back();
        s.gPonDescs.emplace_back();
        s.gPonSymbols[ticked] = item(r, kSymbol);
        s.gPonDescs[ticked] = item(r, kDescription);
        ++ticked;
    }
    if (ticked == 0) {
        ui().msgBox({"Please select the Scripts from the grid whose \"pon\" file is to be created.",
                     "Data Error", MsgButtons::Ok, MsgIcon::Information});
        setFocus(kList);
        return;
    }
    hide();
    app().screens().get("FrmCreatePon").show();
}

void FrmNewMainScreen::twoContract() {
    // Two places each: a third ticked row runs off the end, untrapped.
    std::array<std::string, 2> symbol, desc, refresh;
    size_t n = 0;
    Grid& list = grid(kList);
    for (int r = 1; r <= list.maxRows(); ++r) {
        if (!list.checked(r)) continue;
        if (n == symbol.size()) throw VbError(9, "Subscript out of range");
        symbol[n] = item(r, kSymbol);
        desc[n] = item(r, kDescription);
        refresh[n] = item(r, kRefreshDate);
        ++n;
    }
    // Fewer than two ticked rows would read the type of a sheet nobody chose and stop on the
    // empty answer; the desk is told what the comparison needs instead.
    if (n < symbol.size()) {
        ui().msgBox({"Please select two Scripts from the grid to compare.", "Data Error", MsgButtons::Ok,
                     MsgIcon::Information});
        setFocus(kList);
        return;
    }
    auto typeOf = [this, &symbol, &desc](size_t k) {
        Recordset rs = app().store().query("select InType from trans where inSymbol = " + q(symbol[k]) +
                                           " and InDesc = " + q(desc[k]));
        return rs["InType"].textOrEmpty();
    };
    const std::string first = typeOf(0);
    const std::string second = typeOf(1);
    if (first != second) {
        ui().msgBox({"Selected Types of Portfolios not same"});
        return;
    }
    // Only stock sheets are compared; the desk is told rather than left with nothing happening.
    if (first != "S") {
        ui().msgBox({"The 2-Contract comparison takes stock sheets only.", "Data Error", MsgButtons::Ok,
                     MsgIcon::Information});
        return;
    }
    Form& form = app().screens().get("FrmTwoContract");
    if (auto* comparison = dynamic_cast<TwoContractScreen*>(&form)) {
        comparison->Symbol1 = symbol[0];
        comparison->Descr1 = desc[0];
        comparison->RefreshDt1 = refresh[0];
        comparison->Symbol2 = symbol[1];
        comparison->Descr2 = desc[1];
        comparison->RefreshDt2 = refresh[1];
        comparison->DoInit();
    }
    form.show();
}

void FrmNewMainScreen::quit() {
    // The main screen ends the program as the main frame's close does.
    app().screens().get(MDIForm1::kName).requestClose();
}

} // namespace tallimark
