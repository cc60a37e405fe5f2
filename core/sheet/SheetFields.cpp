// The sheet's fields with their captions, the ladder va1 and the events that tie them together.
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

namespace {

struct SheetField {
    const char* name;
    const char* caption; // nullptr: the field has no caption of its own
    bool onIndex;        // the index sheet has the field too
};

// In tab order: the market inputs first, then the position, the greeks and the results.
const SheetField kFields[] = {
    {"TxtSymbol", "Symbol", true},
    {"TxtMktPrice", "Market", true},
    {"TxtDays", "Days", true},
    {"TxtImpVol", "+/- (C)", true},
    {"TxtImpVolP", "(P)", true},
    {"TxtExpDt", "Expire", true},
    {"TxtCurDt", "Today", true},
    {"TxtNet", "Net", true},
    {"TxtVol", "AIV", true},
    {"TxtKeyOff", "Key Off", true},
    {"TxtSpread", "Spread", true},
    {"TxtContract", nullptr, false},
    {"TxtMargin", "Int. Margin", false},
    {"TxtEx_Magin", "Margin (Ex)", false},
    {"TxtFutLots", "Lots", true},
    {"TxtFutTrade", "Trade", true},
    {"TxtCashLots", "Lots", true},
    {"TxtCashTrade", "Trade", true},
    {"TxtFut_trdNF", "Lots", false},
    {"TxtFut_trdAmt", "Avg  :", false},
    {"TxtBasis", "Basis", true},
    {"TxtDelVal", "$ Value", true},
    {"TxtGamVal", "$ Value", true},
    {"TxtVegaVal", "$ Value", true},
    {"TxtTheVal", "$ Value", true},
    {"TxtDelCon", "Contracts", true},
    {"TxtGamCon", "Contracts", true},
    {"TxtVegaConn", "Contracts", false},
    {"TxtThetaCon", "Contracts", false},
    {"TxtDelHed", "Hedge", true},
    {"TxtGamHed", "Hedge", true},
    {"TxtVegaHed", "Hedge", true},
    {"TxtTheHed", "Hedge", true},
    {"TxtDelPts", "Points", true},
    {"TxtGamPts", "Points", true},
    {"TxtVegaPts", "Points", true},
    {"TxtThePts", "Points", true},
    {"txtdelneutral", "DELTA NEUTRAL", true},
    {"TxtAvgVol", "Avg. Vol", false},
    {"TxtPremium", nullptr, true},
    {"TxtComm", nullptr, true},
    {"TxtCashU", "(U)", true},
    {"TxtCashR", nullptr, true},
    {"TxtFutU", "(U)", true},
    {"TxtFutR", nullptr, true},
    {"TxtOptU", "(U)", true},
    {"TxtOptR", nullptr, true},
    {"TxtEquity", nullptr, true},
    {"TxtBalance", nullptr, true},
    {"TxtTotComm", "Tot Commission", true},
    {"TxtTotDel", "Delta", false},
    {"TxtTotGamma", "Gamma", false},
    {"TxtTotVega", "Vega", false},
    {"TxtTotTheta", "Theta", false},
    {"TxtCallDelta", nullptr, false},
    {"TxtCallGamma", nullptr, false},
    {"TxtCallVega", nullptr, false},
    {"TxtCallTheta", nullptr, false},
    {"TxtPutDelta", nullptr, false},
    {"TxtPutGamma", nullptr, false},
    {"TxtPutVega", nullptr, false},
    {"TxtPutTheta", nullptr, false},
};

// The index sheet words a few captions its own way.
const char* indexCaption(const std::string& field, const char* caption) {
    if (field == "TxtImpVol") return "IV +/- (C)";
    if (field == "TxtImpVolP") return "+/- (P)";
    if (field == "txtdelneutral") return "To be DELTA NEUTRAL";
    return caption;
}

// Amount fields show their sign by their text colour.
const char* const kSignedFields[] = {"TxtBalance", "TxtCashR",  "TxtCashU",  "TxtComm", "TxtEquity",
                                     "TxtFutLots", "TxtFutR",   "TxtFutU",   "TxtOptR", "TxtOptU",
                                     "TxtPremium", "TxtTheVal", "TxtTotComm"};

struct LadderColumn {
    const char* heading;
    double width;
    bool editable;
    int maxLength;
    bool hidden;
};

const LadderColumn kLadderColumns[RiskSheet::kLadderCols] = {
    {"Strikes", 6, true, 10, false}, {"C/P", 2.5, false, 2, false},       {"Units", 6, false, 10, false},
    {"Traded", 6, false, 10, false}, {"Last", 6, false, 10, false},       {"lv", 4, true, 10, false},
    {"Delta", 6, false, 10, false},  {"", 5.5, false, 0, true},           {"Del Val", 5.5, false, 0, false},
    {"Theta", 5.5, false, 0, false}, {"Theta Val", 5.5, false, 0, false}, {"Vega", 5.5, false, 0, false},
    {"VgVal", 5.5, false, 0, false}, {"Gamma", 5.5, false, 0, false},     {"GmVal", 5.5, false, 0, false},
    {"", 5.5, false, 0, true},
};

} // namespace

RiskSheet::RiskSheet(App& app, SheetKind kind)
    : SheetScreen(app, kind == SheetKind::Stock ? kStockName : kIndexName,
                  "Risk Management Sheet .....Tallimark "),
      kind_(kind) {
    addFields();
    addLadder();
    wireEvents();
    addCommands();
}

void RiskSheet::addField(const std::string& field, const char* caption) {
    if (caption) addControl(ControlKind::Label, "Label_" + field, caption);
    addControl(ControlKind::TextBox, field);
}

void RiskSheet::addFields() {
    for (const SheetField& f : kFields) {
        if (isIndex() && !f.onIndex) continue;
        addField(f.name, isIndex() ? indexCaption(f.name, f.caption) : f.caption);
        // The valuation date has its calendar beside it on the stock sheet.
        if (!isIndex() && std::string(f.name) == "TxtCurDt") addControl(ControlKind::DatePicker, "DTPicker1");
    }
    addControl(ControlKind::Frame, "FraPosition", isIndex() ? "Future/stock/Cash" : "Future/Stock");
    if (isIndex()) addControl(ControlKind::Button, "cmdExl", "Excel");
}

void RiskSheet::addLadder() {
    Grid& g = addGrid(kLadder, kLadderCols);
    for (int c = 1; c <= kLadderCols; ++c) {
        const LadderColumn& layout = kLadderColumns[c - 1];
        GridColumn& col = g.column(c);
        col.heading = layout.heading;
        col.width = layout.width;
        col.editable = layout.editable;
        col.maxLength = layout.maxLength;
        col.hidden = layout.hidden;
    }
    g.backColor = kGround;
    g.setMaxRows(kDesignRows);
}

void RiskSheet::colourBySign(const std::string& field) {
    on(field, EventType::Change, [this, field](Event&) {
        const double v = Val(Trim(text(field)));
        if (v < 0)
            setForeColor(field, kShortText);
        else if (v > 0)
            setForeColor(field, kLongText);
    });
}

void RiskSheet::wireEvents() {
    for (const char* f : kSignedFields)
        colourBySign(f);
    on("Form", EventType::Activate, [this](Event&) {
        makeCurrentSheet();
        PrevMktPrice = text("TxtMktPrice");
        PrevDays = text("TxtDays");
    });
    for (const char* f : {"TxtMktPrice", "TxtDays", "TxtImpVol", "TxtImpVolP", "TxtCurDt", "TxtVol"})
        on(f, EventType::GotFocus, [this, f](Event&) { SelectAll(*this, f); });
    on("TxtMktPrice", EventType::LostFocus, [this](Event&) { TxtMktPrice_LostFocus(); });
    on("TxtDays", EventType::LostFocus, [this](Event&) { TxtDays_LostFocus(); });
    on("TxtImpVol", EventType::LostFocus, [this](Event&) { TxtImpVol_LostFocus(); });
    on("TxtImpVolP", EventType::LostFocus, [this](Event&) { TxtImpVolP_LostFocus(); });
    if (!isIndex()) on("DTPicker1", EventType::Change, [this](Event&) { DTPicker1_Change(); });
    on(kLadder, EventType::Click, [this](Event& e) { va1_Click(e.col, e.row); });
}

RiskSheet& riskSheet(App& app, SheetKind kind) {
    return static_cast<RiskSheet&>(
        app.screens().get(kind == SheetKind::Stock ? RiskSheet::kStockName : RiskSheet::kIndexName));
}

} // namespace tallimark
