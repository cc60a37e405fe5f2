// Saving a sheet: its head in PortfolioMast, every ladder row in PortfolioDet, the working
// ledger into Tracker and the day's upload bookkeeping into UploadFile.
#include "frame/App.h"
#include "frame/VbError.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

#include <utility>
#include <vector>

namespace tallimark {

namespace {

// A column and its value; a text value is quoted only as the statement is made, so a text the
// store refuses fails the insert itself.
struct Column {
    std::string name, value;
    bool text = false;
};
using Columns = std::vector<Column>;

std::string insertInto(const std::string& table, const Columns& columns) {
    std::string names, values;
    for (const Column& c : columns) {
        names += (names.empty() ? "" : ",") + c.name;
        values += (values.empty() ? "" : ",") + (c.text ? q(c.value) : c.value);
    }
    return "insert into " + table + " (" + names + ") values(" + values + ")";
}

// A figure as the head stores it: a blank text counts 0.
std::string figure(const std::string& text) {
    const std::string t = Trim(text);
    return t.empty() ? "0" : NumText(CDbl(t));
}

std::string dateValue(const std::string& text) {
    return "cdate(" + q(text) + ")";
}

// Head columns in the order stored, and the fields that fill them: figures (blank as 0) or the
// field's text as typed.
struct HeadColumn {
    const char* column;
    const char* field;
    bool asText;
};
const HeadColumn kHeadFields[] = {
    {"MktPrice", "TxtMktPrice", false},
    {"Days", "TxtDays", false},
    {"Net", "TxtNet", false},
    {"ImpVol", "TxtImpVol", false},
    {"ImpVolP", "TxtImpVolP", false},
    {"AvgVol", "TxtVol", false},
    {"KeyOff", "TxtKeyOff", true},
    {"Spread", "TxtSpread", true},
    {"Premium", "TxtPremium", false},
    {"Comm", "TxtComm", false},
    {"CashU", "TxtCashU", false},
    {"CashR", "TxtCashR", false},
    {"FutureU", "TxtFutU", false},
    {"FutureR", "TxtFutR", false},
    {"OptionU", "TxtOptU", false},
    {"OptionR", "TxtOptR", false},
    {"Equity", "TxtEquity", false},
    {"Balance", "TxtBalance", false},
    {"TotComm", "TxtTotComm", false},
    {"FutLots", "TxtFutLots", false},
    {"FutTrade", "TxtFutTrade", false},
    {"CashLots", "TxtCashLots", false},
    {"CashTrade", "TxtCashTrade", false},
    {"Delvalue", "TxtDelVal", false},
    {"GammaVal", "TxtGamVal", false},
    {"VegaVal", "TxtVegaVal", false},
    {"ThetaVal", "TxtTheVal", false},
    {"DelCont", "TxtDelCon", false},
    {"GamCont", "TxtGamCon", false},
    {"DelHedge", "TxtDelHed", true},
    {"GamHedge", "TxtGamHed", true},
    {"VegaHedge", "TxtVegaHed", true},
    {"ThetaHedge", "TxtTheHed", true},
    {"DelPts", "TxtDelPts", false},
    {"GamPts", "TxtGamPts", false},
    {"VegaPts", "TxtVegaPts", false},
    {"ThetaPts", "TxtThePts", false},
    {"DelNeutral", "txtdelneutral", false},
};
const HeadColumn kHeadTotals[] = {{"TotDelta", "TxtTotDel", false},
                                  {"TotGamma", "TxtTotGamma", false},
                                  {"TotVega", "TxtTotVega", false},
                                  {"TotTheta", "TxtTotTheta", false}};
const char* const kScenarioColumns[4][2] = {{"Up1MktPrice", "Up1Bal"},
                                            {"Up2MktPrice", "Up2Bal"},
                                            {"Dn1MktPrice", "Dn1Bal"},
                                            {"Dn2MktPrice", "Dn2Bal"}};

// Ladder columns 4 to 15 and where each is stored.
const char* const kDetailColumns[] = {"Traded", "Last",     "Vol",  "Delta",   "DumThVal", "DeltaVal",
                                      "Theta",  "ThetaVal", "Vega", "VegaVal", "Gamma",    "GammaVal"};

} // namespace

void RiskSheet::SaveData() {
    // A sheet whose load broke off holds a partial ledger and ladder: saving it would replace the
    // committed trades with what little was read.
    if (!loadFinished_) {
        ui().msgBox({"This sheet did not finish loading, so it cannot be saved: its trades and ladder may "
                     "be incomplete. Close it and open it again.",
                     "Save", MsgButtons::Ok, MsgIcon::Critical});
        return;
    }
    trapped("SaveData", [this] {
        const QuietSuccessNote saved(ui(), "Sheet saved");
        // Noted first: a save that fails part way no longer asks at close.
        SavedDelNeutral = Trim(text("txtdelneutral"));
        SavedBalance = Trim(text("TxtBalance"));
        WriteGroup group(app().store());
        AddMaster();
        AddDetail();
        ErrProcAddTracker();
        ErrProcAddUploadedFile();
    });
}

void RiskSheet::AddMaster() {
    trapped("AddMaster", [this] {
        const std::string Symbol = Trim(text("TxtSymbol"));
        Columns head{{"Symbol", Symbol, true}, {"Descr", OwnDesc, true}};
        auto add = [&](const HeadColumn& c) {
            // A field the sheet kind lacks (the index sheet has no totals) stores 0.
            const std::string t = hasControl(c.field) ? text(c.field) : std::string();
            head.push_back({c.column, c.asText ? t : figure(t), c.asText});
        };
        for (const HeadColumn& c : kHeadFields)
            add(c);
        // The header's own date, as the sheet was opened; a sheet without one takes today's.
        head.push_back({"Dt", dateValue(SheetDate.empty() ? text("TxtCurDt") : SheetDate)});
        head.push_back({"ExpDt", dateValue(DateText(CDate(text("TxtExpDt"))))});
        for (const HeadColumn& c : kHeadTotals)
            add(c);

        CalcUpDnBal();
        for (int i = 0; i < 4; ++i) {
            head.push_back({kScenarioColumns[i][0], NumText(UpMktPrice[i])});
            head.push_back({kScenarioColumns[i][1], NumText(UpBal[i])});
        }
        if (!isIndex()) {
            head.push_back({"field2", NumText(Val(text("TxtMargin")))});
            head.push_back({"field1", text("TxtEx_Magin"), true});
        }
        Store& store = app().store();
        // The old head goes only if the new one is written.
        AllOrNothing step(store);
        store.execute("Delete from PortfolioMast where Symbol = " + q(Symbol) +
                      " and Descr = " + q(Trim(OwnDesc)));
        store.execute(insertInto("PortfolioMast", head));
        step.done();
    });
}

void RiskSheet::AddDetail() {
    trapped("AddDetail", [this] {
        const std::string Symbol = Trim(text("TxtSymbol"));
        const std::string today = Format(app().clock().today(), "DD-MMM-YYYY");
        auto number = [this](int row, int col) {
            const std::string t = Trim(cell(row, col));
            return t.empty() ? std::string("0") : NumText(col == 3 ? CLng(CDbl(t)) : CDbl(t));
        };
        Store& store = app().store();
        AllOrNothing step(store);
        store.execute("Delete from PortfolioDet where Symbol = " + q(Symbol) +
                      " and Descr = " + q(Trim(OwnDesc)));
        // Each row's values go in through "?" marks, as their own texts in the statement would:
        // one prepared statement serves the whole ladder.
        std::string columns = "Symbol,Descr,Strike,CP,Units,Dt";
        for (const char* c : kDetailColumns)
            columns += std::string(",") + c;
        const std::string marks = "?,?,?,?,?,cdate(?),?,?,?,?,?,?,?,?,?,?,?,?";
        const int last = lastLadderRow();
        for (int row = 2; row <= last; ++row) {
            std::vector<std::string> values{Symbol,       OwnDesc,        number(row, 1),
                                            cell(row, 2), number(row, 3), today};
            for (int col = 4; col <= 15; ++col)
                values.push_back(number(row, col));
            for (int text : {0, 1, 3})
                (void)q(values[text]); // a text the store refuses fails the insert itself
            if (isIndex()) {
                store.execute("insert into PortfolioDet (" + columns + ") values(" + marks + ")", values);
                continue;
            }
            // Field2 marks a row that holds a position: its units wear a side colour.
            const auto fore = va1().cell(row, 3).fore;
            const bool held = fore == kShortText || fore == kLongText;
            const std::string mark = Trim(cell(row, 16));
            values.push_back(mark.empty() ? "0" : cell(row, 16));
            (void)q(values.back());
            store.execute("insert into PortfolioDet (" + columns + ",Field2,Field1) values(" + marks +
                              (held ? ",True,?)" : ",False,?)"),
                          values);
        }
        step.done();
    });
}

void RiskSheet::ErrProcAddUploadedFile() {
    try {
        Store& store = app().store();
        AllOrNothing step(store);
        store.execute("delete from UploadFile where " + sheetLedgerKey());
        store.execute("insert into UploadFile select * from DumUploadFile");
        step.done();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        errorBox("Error in ErrProcAddUploadedFile procedure: ", e, " and No: ");
    }
}

} // namespace tallimark
