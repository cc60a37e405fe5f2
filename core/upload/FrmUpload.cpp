#include "upload/FrmUpload.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <vector>

namespace tallimark {

namespace {

// Where the two editions of the screen differ.
struct Variant {
    SheetKind sheet;
    bool checksUpload;       // UploadCheck before the upload
    bool zeroesOptR;         // the sheet's TxtOptR := "0" at upload; else the program-wide flag
    const char* knownDayIn;  // AddFilenm's test whether the day is known
    const char* dateOfSheet; // the sheet's field that gives the day at load
};
constexpr Variant kStock{SheetKind::Stock, true, true, "DumUploadfile", "DTPicker1"};
constexpr Variant kIndex{SheetKind::Index, false, false, "DummyTracker", "TxtCurDt"};

const Variant& variantOf(SheetKind kind) {
    return kind == SheetKind::Stock ? kStock : kIndex;
}

} // namespace

FrmUpload::FrmUpload(App& app, SheetKind kind)
    : Form(app, kind == SheetKind::Stock ? kStockName : kIndexName, kCaption), kind_(kind) {
    for (const char* field : {"TxtSymbol", "TxtDesc", "TxtMktPrice", "TxtExpDtN", "TxtFileNm"})
        addControl(ControlKind::TextBox, field);
    addControl(ControlKind::Button, "Command1", "...");
    addControl(ControlKind::DatePicker, "DTPicker1");
    addControl(ControlKind::OptionButton, "Option1(0)", "&Fut/Stk");
    addControl(ControlKind::OptionButton, "Option1(1)", "&Equity");
    addControl(ControlKind::Label, "LblLines");
    addControl(ControlKind::Button, "CmdUpload", "&Upload");
    addControl(ControlKind::Button, "CmdDelete", "&Delete");
    addControl(ControlKind::Button, "Command2", "&Cancel");

    on("Form", EventType::Load, [this](Event&) {
        // A stock sheet whose picker was never set gives its day field's date.
        RiskSheet& risk = sheet();
        const std::string day = risk.text(variantOf(kind_).dateOfSheet);
        setText("DTPicker1", DateText(CDate(IsDate(day) ? day : risk.text("TxtCurDt"))));
    });
    on("TxtSymbol", EventType::LostFocus, [this](Event&) { TxtSymbol_LostFocus(); });
    on("Command1", EventType::Click, [this](Event&) {
        FileDialog dialog;
        dialog.title = "Open";
        dialog.filter = kFileFilter;
        if (auto path = ui().fileDialog(dialog)) setText("TxtFileNm", *path);
    });
    on("CmdUpload", EventType::Click, [this](Event&) { CmdUpload_Click(); });
    on("CmdDelete", EventType::Click, [this](Event&) {
        DeleteUpload();
        this->app().screens().unload(name());
    });
    on("Command2", EventType::Click, [this](Event&) { this->app().screens().unload(name()); });
    for (const std::string& control : controlOrder())
        on(control, EventType::KeyDown, [this](Event& e) {
            if (e.keyCode == keys::Escape) {
                fire("Command2", EventType::Click);
                return;
            }
            if (focused() != "TxtFileNm" || e.keyCode == keys::Enter) EnterAsTab(*this, e.keyCode);
        });
}

RiskSheet& FrmUpload::sheet() {
    return riskSheet(app(), kind_);
}

TradeLayout FrmUpload::layout() const {
    return control("Option1(1)").value ? TradeLayout::Equity : TradeLayout::FutStk;
}

std::string FrmUpload::day(const char* pattern) const {
    return Format(text("DTPicker1"), pattern);
}

void FrmUpload::TxtSymbol_LostFocus() {
    const std::string symbol = text("TxtSymbol");
    std::string code;
    if (symbol.size() == 7) code = Trim(symbol.substr(0, 2));
    if (symbol.size() == 8) code = Trim(symbol.substr(0, 3));
    Recordset rs = app().store().query("select * from ScriptMast where ScrCode = " + q(UCase(Trim(code))));
    if (!rs.eof() && !rs["ScrName"].isNull()) ScrNameNow = Trim(rs["ScrName"].text());
}

void FrmUpload::CmdUpload_Click() {
    if (Trim(text("TxtFileNm")).empty()) {
        ui().msgBox({"Pls Select the Traded File for Upload", "Error"});
        setFocus("TxtFileNm");
        return;
    }
    BusyScope busy(ui());
    TxtSymbol_LostFocus();
    const Variant& variant = variantOf(kind_);
    if (variant.checksUpload && UploadCheck()) return;
    AddFilenm();
    if (variant.zeroesOptR)
        sheet().setText("TxtOptR", "0");
    else
        app().session().gUploadedIndex = true;
    AppendProc();
}

void FrmUpload::AppendProc() {
    try {
        readFile();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        const auto* vb = dynamic_cast<const VbError*>(&e);
        if (vb && vb->number() == kFieldTooWide)
            ui().msgBox({"File does not contain Fut/Stock or Equity Data", "Error", MsgButtons::Ok,
                         MsgIcon::Information});
        else
            ui().msgBox({std::string("Error in AppendProc Procedure: ") + e.what() +
                         " and No: " + std::to_string(vb ? vb->number() : 0)});
        return;
    }
    // Shown once the file is read: the trades are taken into the sheet after it.
    ui().msgBox({"Uploading in progress"});
    RiskSheet& risk = sheet();
    if (layout() == TradeLayout::FutStk) risk.PutOptionData(day("DD-MMM-YYYY"));
    risk.PutStockData();
    app().screens().unload(name());
}

void FrmUpload::readFile() {
    Store& store = app().store();
    store.execute(layout() == TradeLayout::FutStk ? "delete * from FutOpt" : "delete * from Eq");
    store.execute("delete * from UploadTracker");

    const std::filesystem::path path = text("TxtFileNm");
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) throw VbError(53, "File not found");
    std::ifstream in(path, std::ios::binary);
    if (!in || std::filesystem::is_directory(path, ec)) throw VbError(75, "Path/File access error");

    const Session& s = app().session();
    const SheetFilter filter{ScrNameNow, UCase(Format(text("TxtExpDtN"), "DDMMMYYYY")), day("DD-MMM-YYYY"),
                             text("TxtMktPrice")};
    // The trade numbers the sheet's ledger already holds for the day: a number found there is
    // never taken twice, so a growing file can be uploaded again. The ledger does not change
    // while the file is read, so it is asked once.
    std::set<std::string> known;
    Recordset rs = store.query("Select Field1 from DummyTracker where Symbol=" + q(Trim(s.g_strSymbol)) +
                               " and inDesc=" + q(Trim(s.g_strDesc)) + " and TradeDt=cdate(" +
                               q(day("dd-mm-yyyy")) + ")");
    for (; !rs.eof(); rs.moveNext())
        known.insert(UCase(rs["Field1"].textOrEmpty()));

    const TradeLayout kind = layout();
    TradeRow row;
    TradeLine line;
    long lines = 0;
    WriteGroup group(store);
    showLinesRead(0);
    // Read in blocks, each up to its last line feed, so the count moves from the start.
    std::string text, rest;
    std::vector<char> block(kReadBlock);
    // A line that stops the upload leaves the count at the lines read up to it.
    try {
        while (in) {
            in.read(block.data(), static_cast<std::streamsize>(block.size()));
            rest.append(block.data(), static_cast<size_t>(in.gcount()));
            const size_t cut = in ? rest.rfind('\n') : rest.size() - 1;
            if (rest.empty() || cut == std::string::npos) continue;
            text.assign(rest, 0, cut + 1);
            rest.erase(0, cut + 1);
            forEachTextLine(text, [&](std::string_view one) {
                splitTradeLine(one, kind, row);
                interpretTradeRow(row, kind, filter, line);
                if (++lines % kProgressStep == 0) showLinesRead(lines);
                if (!line.belongs || known.count(UCase(Trim(row[1])))) return;
                storeLine(row, line);
                stageLine(row, line);
            });
        }
    } catch (...) {
        showLinesRead(lines);
        throw;
    }
    if (in.bad()) throw VbError(57, "Device I/O error");
    showLinesRead(lines);
}

void FrmUpload::showLinesRead(long lines) {
    setText("LblLines", std::to_string(lines) + " lines read");
    flush();
    ui().showProgress();
}

void FrmUpload::storeLine(const TradeRow& row, const TradeLine& line) {
    // A figure of the file that is no number fails the insert, as a statement would.
    auto number = [](std::string_view field) { return num(Trim(field)); };
    const std::string tail = q(Trim(text("TxtSymbol"))) + ", " + q(Trim(text("TxtDesc"))) + ", " +
                             q(Trim(text("TxtFileNm"))) + ", " + number(text("TxtMktPrice")) + ", ";
    if (layout() == TradeLayout::FutStk)
        app().store().execute(
            "INSERT INTO "
            "FUTOPT(Field1,Type,Name,ExpDt,Strike,CP,BS,Qty,Premium,Symbol,Descr,FileName,MktPrice,"
            "Field22,Field23)VALUES(" +
            number(row[1]) + ", " + q(Trim(row[3])) + ", " + q(Trim(row[4])) + ", " + q(Trim(row[5])) + ", " +
            q(Trim(row[6])) + ", " + q(Trim(row[7])) + ", " + number(row[14]) + ", " + number(row[15]) +
            ", " + number(row[16]) + ", " + tail + q(Trim(line.TrdDate)) + ", " + q(Trim(line.Date2)) + ")");
    else
        app().store().execute(
            "INSERT INTO "
            "EQ(Field1,Name,Type,BS,Qty,Premium,Symbol,Descr,FileName,MktPrice,Field20,Field21)VALUES(" +
            number(row[1]) + ", " + q(Trim(row[3])) + ", " + q(Trim(row[4])) + ", " + number(row[11]) + ", " +
            number(row[12]) + ", " + number(row[13]) + ",  " + tail + q(line.TrdDate) + ", " + q(line.Date2) +
            ")");
}

void FrmUpload::stageLine(const TradeRow& row, const TradeLine& line) {
    app().store().execute("INSERT INTO UploadTracker "
                          "(InType,InDesc,MktPrice,Units,Traded,Symbol,Strike,TradeDt,Vol,CP,delta,last,"
                          "DumThVal,Days,CashType,Field1,field3)VALUES('S', " +
                          q(Trim(text("TxtDesc"))) + ", " + NumText(line.MktPrice) + ", " +
                          NumText(static_cast<int64_t>(line.Units)) + ", " + NumText(line.Traded) + ", " +
                          q(Trim(text("TxtSymbol"))) + ", " + NumText(line.Strike) + ", " + q(line.TrdDate) +
                          ", 0, " + q(line.CP) + ", 0,0,0,0 ," + q(line.CashType) + "," + q(Trim(row[1])) +
                          "," + q(Trim(line.TrdTime)) + ")");
}

} // namespace tallimark
