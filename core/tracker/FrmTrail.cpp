#include "tracker/FrmTrail.h"

#include "frame/App.h"
#include "frame/VbNumber.h"

#include <vector>

namespace tallimark {

namespace {

const char* const kHeadings[] = {"Units", "Traded", "MktPrice", "Vol", "TradeDt", "Time", "Delete"};

// A grid row read for its statements, every conversion done before the ledger is touched.
struct TrailRow {
    double units, traded, price;
    int16_t vol;
    VbDate date;
    std::string time;
};

} // namespace

FrmTrail::FrmTrail(App& app) : Form(app, kName, "Trail Track....Tallimark") {
    Grid& g = addGrid(kGrid, 7);
    for (int c = 1; c <= 7; ++c) {
        g.column(c).heading = kHeadings[c - 1];
        g.column(c).editable = c < kMarkCol;
    }
    g.column(kDateCol).width = 11; // a whole date, DD-MM-YYYY, not cut at the column's edge
    g.column(kMarkCol).tickMark = true;
    addControl(ControlKind::Button, "Command1", "&Delete");
    addControl(ControlKind::Button, "Command3", "&Update");
    addControl(ControlKind::Button, "Command2", "&CLose");
    // The opener sets the series once the screen is loaded: the list is read as it comes up.
    on("Form", EventType::Activate, [this](Event&) { fill(); });
    on(kGrid, EventType::Click, [this](Event& e) { turnMark(e.row, e.col); });
    on("Command1", EventType::Click, [this](Event&) { Command1_Click(); });
    on("Command3", EventType::Click, [this](Event&) { Command3_Click(); });
    on("Command2", EventType::Click, [this](Event&) { this->app().screens().unload(name()); });
}

void FrmTrail::turnMark(int row, int col) {
    Grid& g = grid(kGrid);
    if (col == kMarkCol && row >= 1 && row <= g.maxRows())
        g.setText(row, kMarkCol, g.text(row, kMarkCol) == "1" ? "0" : "1");
}

std::string FrmTrail::seriesWhere() const {
    return " where Symbol = " + q(Symbol) + " and InDesc = " + q(InDesc) +
           " and Strike = " + NumText(CDbl(Strike)) + " and CP = " + q(CP);
}

void FrmTrail::fill() {
    if (CP == "C" || CP == "P")
        setCaption("Trail Track for " + Strike + (CP == "C" ? " Call" : " Put") + "....Tallimark");
    else if (CashType == "F")
        setCaption("Trail Track for Underlying Stock (Fut/Stk)....Tallimark");
    else if (CashType == "Q")
        setCaption("Trail Track for Underlying Stock (Cash)....Tallimark");
    const std::string sql = isOption() ? "select * from dummyTracker" + seriesWhere() + " order by TradeDt"
                                       : "select * from dummyTracker where Symbol = " + q(Symbol) +
                                             " and InDesc = " + q(InDesc) + " and  CP = " + q(CP) +
                                             " and  CashType = " + q(CashType) + " order by TradeDt";
    Recordset rs = app().store().query(sql);
    Grid& g = grid(kGrid);
    // The list has its first row before it is filled: an empty one shows a blank row.
    g.setMaxRows(std::max<int>(1, static_cast<int>(rs.recordCount())));
    for (int row = 1; !rs.eof(); rs.moveNext(), ++row) {
        g.setText(row, 1, rs["Units"].textOrEmpty());
        g.setText(row, 2, rs["Traded"].textOrEmpty());
        g.setText(row, 3, rs["MktPrice"].textOrEmpty());
        g.setText(row, 4, rs["Field2"].textOrEmpty());
        g.setText(row, 5, rs["TradeDt"].textOrEmpty());
        g.setText(row, 6, rs["Field3"].textOrEmpty());
        g.setText(row, kMarkCol, "0");
    }
}

void FrmTrail::Command1_Click() {
    if (ui().msgBox({"Are you sure to Delete the Records", kAppTitle, MsgButtons::YesNo,
                     MsgIcon::Question}) != MsgAnswer::Yes)
        return;
    Grid& g = grid(kGrid);
    for (int row = 1; row <= g.maxRows(); ++row) {
        if (g.text(row, kMarkCol) != "1") continue;
        const std::string units = NumText(Val(g.text(row, 1))), traded = NumText(Val(g.text(row, 2))),
                          price = NumText(Val(g.text(row, 3)));
        const std::string date = DateText(CDate(g.text(row, 5)));
        const std::string time = g.text(row, 6);
        // Rows are known by their values: two trades alike in all of them go together.
        const std::string which = isOption() ? " and Strike = " + NumText(CDbl(Strike)) + " and CP = " + q(CP)
                                             : " and CashType = " + q(CashType) + " and CP = " + q(CP);
        app().store().execute("DELETE * from dummyTracker where Symbol = " + q(Symbol) +
                              " and InDesc = " + q(InDesc) + which + " AND units = " + units +
                              " and traded = " + traded + " and MktPrice = " + price +
                              " and field3 = " + q(Trim(time)) + "  and  tradeDt = CDate(" + q(date) + ")");
        sheetFollows();
        riskSheet(app(), Sheet).RefreshData(13);
        ui().msgBox({"Successfully Deleted"});
    }
    app().screens().unload(name());
}

void FrmTrail::Command3_Click() {
    Grid& g = grid(kGrid);
    // Every row is read before the series is taken out: a row that does not read (a date that is
    // no date, a volatility that is no number) shows its box and leaves the ledger as it was.
    std::vector<TrailRow> rows;
    for (int row = 1; row <= g.maxRows(); ++row)
        rows.push_back({Val(g.text(row, 1)), Val(g.text(row, 2)), Val(g.text(row, 3)), CInt(g.text(row, 4)),
                        CDate(g.text(row, 5)), g.text(row, 6)});
    Store& store = app().store();
    {
        WriteGroup group(store, WriteGroup::Rows::Working);
        store.execute("DELETE * from dummyTracker" + seriesWhere());
        // The volatility goes through a 16-bit whole number: its decimals are lost here.
        for (const TrailRow& r : rows)
            store.execute(
                "INSERT into DummyTracker (Units, Traded, MktPrice, Field2, TradeDt, Field3, Symbol, "
                "InDesc, Strike, CP) values (" +
                NumText(r.units) + ", " + NumText(r.traded) + ", " + NumText(r.price) + ", " +
                q(NumText(static_cast<int64_t>(r.vol))) + ", cdate(" + q(DateText(r.date)) + "), " +
                q(r.time) + ", " + q(Symbol) + ", " + q(InDesc) + ", " + q(Strike) + ", " + q(CP) + ")");
    }
    sheetFollows();
    ui().msgBox({"Update Complete", "Talli Mark Update"});
}

void FrmTrail::sheetFollows() {
    RiskSheet& sheet = riskSheet(app(), Sheet);
    sheet.PutOptionData1();
    sheet.PutStockData1();
}

FrmTradeTracker::FrmTradeTracker(App& app) : Form(app, kName, "Trade Trail....Tallimark") {
    addControl(ControlKind::OptionButton, "Option1(0)", "Option");
    addControl(ControlKind::OptionButton, "Option1(1)", "Future/Stock");
    addControl(ControlKind::OptionButton, "Option1(2)", "Cash");
    addControl(ControlKind::Button, "Cmd(0)", "OK");
    addControl(ControlKind::Button, "Cmd(1)", "Cancel");
    on("Form", EventType::Activate, [this](Event&) { setValue("Option1(0)", true); });
    on("Cmd", EventType::Click, [this](Event& e) {
        hide();
        if (e.index == 0) okClick();
    });
    for (const std::string& control : controlOrder())
        on(control, EventType::KeyDown, [this, control](Event& e) {
            if (e.keyCode == keys::Escape) fire("Cmd(1)", EventType::Click);
            // Enter on a kind takes it, as OK does: the chooser is worked from the keyboard too.
            if (e.keyCode == keys::Enter && control.rfind("Option1", 0) == 0) {
                e.keyCode = 0;
                fire("Cmd(0)", EventType::Click);
            }
        });
}

void FrmTradeTracker::okClick() {
    FrmTrail& trail = app().screens().get<FrmTrail>();
    if (control("Option1(1)").value) {
        trail.CP = "S";
        trail.CashType = "F";
    } else if (control("Option1(2)").value) {
        trail.CP = "S";
        trail.CashType = "Q";
    }
    trail.showModal();
}

} // namespace tallimark
