// Opening a sheet: the fields from Trans, ScriptMast and PortfolioMast, the ladder from
// PortfolioDet or built round the market price, and the working copy of the ledger.
#include "admin/FrmNewMainScreen.h"
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

namespace {

// The saved head's columns and the fields they fill.
const std::pair<const char*, const char*> kSavedFields[] = {
    {"TxtSymbol", "Symbol"},     {"TxtMktPrice", "MktPrice"}, {"TxtDays", "Days"},
    {"TxtNet", "Net"},           {"TxtImpVol", "ImpVol"},     {"TxtImpVolP", "ImpVolP"},
    {"TxtVol", "AvgVol"},        {"TxtKeyOff", "KeyOff"},     {"TxtSpread", "Spread"},
    {"TxtPremium", "Premium"},   {"TxtComm", "Comm"},         {"TxtCashU", "CashU"},
    {"TxtCashR", "CashR"},       {"TxtFutU", "FutureU"},      {"TxtFutR", "FutureR"},
    {"TxtOptU", "OptionU"},      {"TxtOptR", "OptionR"},      {"TxtEquity", "Equity"},
    {"TxtBalance", "Balance"},   {"TxtTotComm", "TotComm"},   {"TxtFutLots", "FutLots"},
    {"TxtFutTrade", "FutTrade"}, {"TxtCashLots", "CashLots"}, {"TxtCashTrade", "CashTrade"},
    {"TxtDelVal", "Delvalue"},   {"TxtGamVal", "GammaVal"},   {"TxtVegaVal", "VegaVal"},
    {"TxtTheVal", "ThetaVal"},   {"TxtDelCon", "DelCont"},    {"TxtGamCon", "GamCont"},
    {"TxtDelHed", "DelHedge"},   {"TxtGamHed", "GamHedge"},   {"TxtVegaHed", "VegaHedge"},
    {"TxtTheHed", "ThetaHedge"}, {"TxtDelPts", "DelPts"},     {"TxtGamPts", "GamPts"},
    {"TxtVegaPts", "VegaPts"},   {"TxtThePts", "ThetaPts"},   {"txtdelneutral", "DelNeutral"},
    {"TxtExpDt", "ExpDt"},       {"TxtTotDel", "TotDelta"},   {"TxtTotGamma", "TotGamma"},
    {"TxtTotVega", "TotVega"},   {"TxtTotTheta", "TotTheta"}, {"TxtMargin", "Field2"},
};

// The saved ladder's columns, into ladder columns 1 to 8.
const char* const kSavedLadder[] = {"Strike", "CP", "units", "Traded", "Last", "Vol", "Delta", "DumThVal"};

} // namespace

void RiskSheet::DoInit() {
    loadFinished_ = false;
    const Session& s = app().session();
    OwnSymbol = s.g_strSymbol;
    OwnDesc = s.g_strDesc;
    trapped("DoInit", [this] {
        ClearTextBoxes(*this);
        Grid& g = va1();
        g.clearText();
        paintLadder();
        g.activeRow = 2;
        g.activeCol = 1;
        LoadSheet();
        loadFinished_ = true;
    });
}

void RiskSheet::LoadSheet() {
    loadTrans();
    if (!isIndex() && !text("TxtSymbol").empty()) loadScript();
    const bool saved = loadHead();
    if (!isIndex()) {
        // The futures left after the cash, at the average that the two money sums leave.
        const double futLots = Val(text("TxtFutLots")), cashLots = Val(text("TxtCashLots"));
        set("TxtFut_trdNF", futLots - cashLots);
        if (futLots - cashLots != 0)
            set("TxtFut_trdAmt",
                Round((futLots * Val(text("TxtFutTrade")) - cashLots * Val(text("TxtCashTrade"))) /
                          (futLots - cashLots),
                      2));
    }
    showCaption();
    loadLadder();
    copyWorkingRows();

    const VbDate today = app().clock().today();
    if (saved) {
        if (!isIndex()) setPicker(Format(today, "DD-MMM-YY"));
        setDaysToExpiry(today);
        BusyScope busy(ui());
        RefreshData(13);
    } else {
        SavedDelNeutral.clear();
        SavedBalance.clear();
        setText("TxtCurDt", DateText(today));
        showCaption();
        setText("TxtExpDt", DateText(app().session().g_ExpiryDate));
        setDaysToExpiry(today);
        PopulateLView1();
    }
}

void RiskSheet::loadTrans() {
    // The index sheet reads its strike step as the stock sheet does: without it every strike of a
    // new index ladder would be the middle one.
    Recordset trans = app().store().query(
        "select InType, InDesc, InSymbol, MidStrike, Transdt, AStrike, BStrike, UComm,DIntRate from trans "
        "where InSymbol = " +
        q(OwnSymbol) + " and InDesc = " + q(OwnDesc));
    if (trans.eof()) return;
    setText("TxtSymbol", trans["InSymbol"].textOrEmpty());
    SheetDate = trans["Transdt"].textOrEmpty();
    setText("TxtMktPrice", trans["MidStrike"].textOrEmpty());
    AStrike = CLng(trans["AStrike"].numberOrZero());
    BStrike = CLng(trans["BStrike"].numberOrZero());
    IntRate = trans["DIntRate"].numberOrZero() / 100;
    SheetType = trans["InType"].textOrEmpty();
    SheetDesc = trans["InDesc"].textOrEmpty();
    StrikeStep = trans["UComm"].numberOrZero();
}

void RiskSheet::loadScript() {
    Recordset script = app().store().query("select * From ScriptMast where ScriptMast.scrCode = " +
                                           q(text("TxtSymbol").substr(0, 3)));
    if (script.eof()) return;
    const Value& lot = script["Field2"];
    ContractSize = lot.numberOrZero();
    setText("TxtContract", lot.isNull() ? "0" : lot.text());
    const Value& margin = script["Field1"];
    ExMarginPct = margin.isNull() ? 0 : Val(margin.text());
}

bool RiskSheet::loadHead() {
    Recordset head = app().store().query("select * from portfoliomast where Symbol = " + q(OwnSymbol) +
                                         " and Descr = " + q(OwnDesc));
    if (head.eof()) return false;
    for (const auto& [field, column] : kSavedFields)
        if (hasControl(field)) setText(field, head[column].textOrEmpty());
    SheetDesc = head["Descr"].textOrEmpty();
    SheetDate = head["Dt"].textOrEmpty();
    ExpDtText = head["ExpDt"].textOrEmpty();
    if (!isIndex()) {
        const std::string exMargin = head["Field1"].textOrEmpty();
        setText("TxtEx_Magin", exMargin.empty() ? "0" : exMargin);
    }
    return true;
}

void RiskSheet::loadLadder() {
    Grid& g = va1();
    Recordset det = app().store().query("select * from portfoliodet where Symbol = " + q(OwnSymbol) +
                                        " and Descr = " + q(OwnDesc) + " ORDER BY STRIKE, CP");
    // A ladder longer than the grid widens it, painted as the rest.
    if (static_cast<int>(det.recordCount()) + 1 > g.maxRows()) {
        g.setMaxRows(static_cast<int>(det.recordCount()) + 1);
        paintLadder();
    }
    for (int row = 2; !det.eof(); det.moveNext(), ++row) {
        for (int col = 1; col <= 8; ++col)
            setCell(row, col, det[kSavedLadder[col - 1]].textOrEmpty());
        markUnits(row, Val(cell(row, 3)));
    }
}

void RiskSheet::showCaption() {
    setCaption("Risk Management Sheet for  " + SheetDesc + "   " + SheetDate + " .....Tallimark ");
}

// Days from the present date to the expiry; an expiry already past leaves the days as they stand.
void RiskSheet::setDaysToExpiry(const VbDate& today) {
    const long days = DateDiffDays(today, CDate(text("TxtExpDt")));
    if (days >= 0) set("TxtDays", static_cast<double>(days));
}

void RiskSheet::copyWorkingRows() {
    Store& store = app().store();
    const std::string key = sheetLedgerKey();
    WriteGroup group(store, WriteGroup::Rows::Working);
    // The index sheet holds the working ledger as one sheet's alone: it clears every sheet's rows.
    store.execute(isIndex() ? "delete * from dummytracker" : "delete from dummytracker where " + key);
    store.execute("insert into dummytracker select * from tracker where " + key);
    store.execute("delete * from DumUploadFile");
    store.execute("insert into DumUploadFile select * from UploadFile where " + key);
}

void RiskSheet::PopulateLView1() {
    trapped("ErrProcPopulateLView1", [this] {
        Grid& g = va1();
        const double mid = Val(text("TxtMktPrice"));
        bool empty = true;
        // A row goes to the first free row, the grid growing by one; the very first row of the
        // ladder lands on row 2 below the middle strike, and on row 1 when there is none below.
        auto append = [&](double strike, const char* cp, int firstRow) {
            g.setMaxRows(empty ? firstRow : g.maxRows() + 1);
            empty = false;
            setCell(g.maxRows(), 1, NumText(strike));
            setCell(g.maxRows(), 2, cp);
        };
        for (long n = BStrike; n >= 1; --n) {
            const double strike = mid - static_cast<double>(n) * StrikeStep;
            append(strike, "C", 2);
            append(strike, "P", 2);
        }
        if (!empty) {
            append(mid, "C", 2);
            append(mid, "P", 2);
        }
        for (long n = 1; n <= AStrike; ++n) {
            const double strike = mid + static_cast<double>(n) * StrikeStep;
            append(strike, "C", 1);
            append(strike, "P", 1);
        }
        paintLadder();
    });
}

void RiskSheet::CancelData() {
    trapped("CancelData", [this] {
        Store& store = app().store();
        if (!store
                 .query("select * from portfoliomast where Symbol = " + q(OwnSymbol) +
                        " and Descr = " + q(OwnDesc))
                 .eof())
            return;
        {
            WriteGroup group(store);
            store.execute("DELETE FROM TRANS WHERE INSYMBOL =" + q(Trim(OwnSymbol)) +
                          " AND INDESC =" + q(Trim(OwnDesc)));
            store.execute(isIndex() ? "Delete from Dummytracker"
                                    : "Delete from Dummytracker where symbol = " + q(OwnSymbol) +
                                          " and indesc = " + q(OwnDesc));
            store.execute("Delete from DumUploadFile");
        }
        if (auto* list = dynamic_cast<FrmNewMainScreen*>(app().screens().find(FrmNewMainScreen::kName)))
            list->PopulateLView();
    });
}

} // namespace tallimark
