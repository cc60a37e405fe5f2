#include "scenario/FrmTwoContract.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"
#include "scenario/SimulationFill.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

namespace {

const char* const kPicture = "PicScore";
const int kWidth = 760, kHeight = 420;
// The head's figures in the order DoInit reads them.
const char* const kHeadColumns[] = {"TotDelta", "TotGamma", "TotVega", "TotTheta", "Premium", "Balance"};
// The Greek rows: this screen's field stem and the sheet's field.
const std::pair<const char*, const char*> kGreeks[] = {{"TxtDelVal", "TxtDelVal"},
                                                       {"TxtGamVal", "TxtGamVal"},
                                                       {"TxtVegaVal", "TxtVegaVal"},
                                                       {"TxtTheVal", "TxtTheVal"}};

std::string k1(const char* stem, int k) {
    return stem + std::to_string(k);
}

// The program's current sheet, put back as it was when the scope ends.
class CurrentSheetScope {
public:
    CurrentSheetScope(Session& s, const std::string& symbol, const std::string& desc)
        : s_(s), symbol_(s.g_strSymbol), desc_(s.g_strDesc) {
        s.g_strSymbol = symbol;
        s.g_strDesc = desc;
    }
    ~CurrentSheetScope() {
        s_.g_strSymbol = symbol_;
        s_.g_strDesc = desc_;
    }
    CurrentSheetScope(const CurrentSheetScope&) = delete;
    CurrentSheetScope& operator=(const CurrentSheetScope&) = delete;

private:
    Session& s_;
    std::string symbol_, desc_;
};

} // namespace

FrmTwoContract::FrmTwoContract(App& app)
    : TwoContractScreen(app, kName, "Two Contract Strategy Program"),
      canvas_(app.makeCanvas(kWidth, kHeight)) {
    addFields();
    canvas_->Cls();
    on("CmdCalculate", EventType::Click, [this](Event&) { CmdCalculate(); });
    on("cmdGraph", EventType::Click, [this](Event&) { cmdGraph(); });
    on("TxtMktPrice", EventType::LostFocus, [this](Event&) { validateMarket(); });
    for (int k = 1; k <= 2; ++k)
        for (const char* stem : {"txtDays", "TxtVolaC", "TxtVolaP"}) {
            const std::string field = k1(stem, k);
            on(field, EventType::GotFocus, [this, field](Event&) { SelectAll(*this, field); });
        }
    for (const std::string& name : controlOrder())
        on(name, EventType::KeyDown, [this, name](Event& e) {
            if (e.keyCode == keys::Escape) {
                e.keyCode = 0;
                hide();
            } else if (e.keyCode == keys::Enter && name == "TxtMktPrice") {
                e.keyCode = 0;
                focusNext();
            }
        });
}

FrmTwoContract::~FrmTwoContract() = default;

void FrmTwoContract::addFields() {
    addControl(ControlKind::Label, "Label_TxtMktPrice", "Market Price");
    addControl(ControlKind::TextBox, "TxtMktPrice");
    for (int k = 1; k <= 2; ++k) {
        addControl(ControlKind::Label, k1("Label_txtDays", k), "Days");
        addControl(ControlKind::TextBox, k1("txtDays", k));
        addControl(ControlKind::Label, k1("Label_TxtVolaC", k), "Imp Vol Call");
        addControl(ControlKind::TextBox, k1("TxtVolaC", k));
        addControl(ControlKind::Label, k1("Label_TxtVolaP", k), "Imp Vol Put");
        addControl(ControlKind::TextBox, k1("TxtVolaP", k));
    }
    for (const char* head : {"Delta", "Gamma", "Vega", "Theta"})
        addControl(ControlKind::Label, std::string("Label_") + head, head);
    for (const char* row : {"First", "Second", "Total"})
        addControl(ControlKind::Label, std::string("Label_") + row, row);
    // Contracts of delta and gamma stand on the screen and are never filled.
    for (const char* stem : {"TxtDelVal", "TxtGamVal", "TxtVegaVal", "TxtTheVal", "TxtDelCon", "TxtGamCon"})
        for (const char* end : {"1", "2", "Tot"})
            addControl(ControlKind::TextBox, std::string(stem) + end);
    const std::pair<const char*, const char*> neutral[] = {{"txtdeltaneutral1", "First Delta Neutral"},
                                                           {"txtdeltaneutral2", "Second Delta Neutral"},
                                                           {"txtdelneutral", "Total Delta Neutral"},
                                                           {"TxtPremium", "Premium"},
                                                           {"TxtBal", "Balance"}};
    for (const auto& [field, label] : neutral) {
        addControl(ControlKind::Label, std::string("Label_") + field, label);
        addControl(ControlKind::TextBox, field);
    }
    addControl(ControlKind::Button, "CmdCalculate", "&Calculate");
    addControl(ControlKind::Button, "cmdGraph", "&Graph");
    addControl(ControlKind::Picture, kPicture).visible = false;
    for (const char* list : {"ListView1", "ListView2", "ListView3"})
        addSimulationColumns(addGrid(list, 3));
}

void FrmTwoContract::DoInit() {
    std::array<double, 6> first{}, second{};
    double neutral1 = 0, neutral2 = 0;
    initSheet(1, Symbol1, Descr1, RefreshDt1, first, neutral1);
    initSheet(2, Symbol2, Descr2, RefreshDt2, second, neutral2);
    setText("txtdelneutral", NumText(neutral1 + neutral2));
    for (size_t g = 0; g < std::size(kGreeks); ++g) {
        const char* stem = kGreeks[g].first;
        setText(k1(stem, 1), NumText(first[g]));
        setText(k1(stem, 2), NumText(second[g]));
        setText(std::string(stem) + "Tot", NumText(first[g] + second[g]));
    }
    setText("TxtPremium", NumText(first[4] + second[4]));
    setText("TxtBal", NumText(first[5] + second[5]));
}

void FrmTwoContract::initSheet(int k, const std::string& symbol, const std::string& descr,
                               const std::string& refreshDt, std::array<double, 6>& figures,
                               double& neutral) {
    Recordset rs = app().store().query("Select * From PortFolioMast where symbol = " + q(symbol) +
                                       " and descr = " + q(descr) + " ");
    if (rs.eof()) return;
    for (size_t i = 0; i < figures.size(); ++i)
        figures[i] = rs[kHeadColumns[i]].numberOrZero();
    const Value& delneutral = rs["delneutral"];
    neutral = delneutral.numberOrZero();
    setText(k1("txtdeltaneutral", k), delneutral.isNull() ? "0" : Str(neutral));
    // A sheet refreshed before today counts its days afresh to expiry.
    const VbDate today = app().session().g_Today;
    const auto refreshed = parseDate(refreshDt);
    const bool sameDay = refreshed && refreshed->dayNumber() == today.dayNumber();
    const double days =
        sameDay ? rs["days"].numberOrZero() : static_cast<double>(DateDiffDays(today, rs["expdt"].date()));
    setText(k1("txtDays", k), NumText(days));
    setText(k1("TxtVolaC", k), rs["ImpVol"].textOrEmpty());
    setText(k1("TxtVolaP", k), rs["ImpVolP"].textOrEmpty());
    if (k == 1) setText("TxtMktPrice", rs["MktPrice"].textOrEmpty());
}

void FrmTwoContract::loadHidden(int k, const std::function<void(RiskSheet&)>& work) {
    std::unique_ptr<RiskSheet>& slot = hidden_[static_cast<size_t>(k - 1)];
    if (!slot) slot = std::make_unique<RiskSheet>(app(), SheetKind::Stock);
    RiskSheet& sheet = *slot;
    // The hidden sheet is the program's current sheet while it loads and works; an open sheet
    // is the current one again afterwards, so that its own save keeps its key.
    const CurrentSheetScope current(app().session(), k == 1 ? Symbol1 : Symbol2, k == 1 ? Descr1 : Descr2);
    sheet.load();
    sheet.DoInit();
    sheet.setText("TxtDays", text(k1("txtDays", k)));
    sheet.setText("TxtMktPrice", text("TxtMktPrice"));
    sheet.setText("TxtImpVol", text(k1("TxtVolaC", k)));
    sheet.setText("TxtImpVolP", text(k1("TxtVolaP", k)));
    work(sheet);
}

void FrmTwoContract::errorBox(const char* title, const std::exception& e) {
    const auto* vb = dynamic_cast<const VbError*>(&e);
    ui().msgBox({"Error No.: " + std::to_string(vb ? vb->number() : 0) + "\r\n" + e.what(), title,
                 MsgButtons::Ok, MsgIcon::Critical});
}

void FrmTwoContract::CmdCalculate() {
    BusyScope busy(ui());
    try {
        double balance = 0, premium = 0;
        // The second sheet first, then the first: each finishes its load before the next starts.
        for (int k : {2, 1})
            loadHidden(k, [&](RiskSheet& sheet) {
                sheet.RefreshData(13);
                balance += Val(sheet.text("TxtBalance"));
                premium += Val(sheet.text("TxtPremium"));
                for (const auto& [stem, field] : kGreeks)
                    setText(k1(stem, k), sheet.text(field));
                setText(k1("txtdeltaneutral", k), sheet.text("txtdelneutral"));
            });
        setText("TxtBal", NumText(balance));
        setText("TxtPremium", NumText(premium));
        setText("txtdelneutral", NumText(Val(text("txtdeltaneutral1")) + Val(text("txtdeltaneutral2"))));
        for (const auto& [stem, field] : kGreeks)
            setText(std::string(stem) + "Tot", NumText(Val(text(k1(stem, 1))) + Val(text(k1(stem, 2)))));
    } catch (const std::exception& e) {
        errorBox("Error While Calculating ...", e);
    }
}

void FrmTwoContract::DointGraph() {
    Grid& first = grid("ListView1");
    Grid& sum = grid("ListView2");
    Grid& second = grid("ListView3");
    for (Grid* g : {&first, &sum, &second})
        g->setMaxRows(0);
    auto report = [this](const char* procedure, const std::exception& e) { failureBox(procedure, e); };
    loadHidden(
        1, [&](RiskSheet& sheet) { SimulationFill(sheet, sheetMarket(sheet), report).appendRows(first); });
    // Both sheets at the first sheet's strikes.
    loadHidden(2, [&](RiskSheet& sheet) {
        SimulationFill fill(sheet, sheetMarket(sheet), report);
        for (int row = 1; row <= first.maxRows(); ++row) {
            const std::string& market = first.text(row, 1);
            const SimulationFill::Totals t = fill.totalsAt(Val(market));
            for (Grid* g : {&sum, &second})
                g->setMaxRows(row);
            second.setText(row, 1, market);
            second.setText(row, 2, Str(t.timeLeft));
            second.setText(row, 3, Str(t.atExpiry));
            sum.setText(row, 1, market);
            sum.setText(row, 2, Str(Val(first.text(row, 2)) + t.timeLeft));
            sum.setText(row, 3, Str(Val(first.text(row, 3)) + t.atExpiry));
        }
    });
    // The lines are the first sheet's alone; the sum stands in its list.
    const int GraphCount = sum.maxRows();
    const GraphPlot plot{first,
                         GraphCount,
                         CalcGraphRange(first, GraphCount),
                         {{2, kTimeLeftLine()}, {3, kExpiryLine()}},
                         Val(text("TxtMktPrice"))};
    canvas_->Cls();
    markChanged(kPicture);
    plot.draw(*canvas_);
}

void FrmTwoContract::cmdGraph() {
    if (text("cmdGraph") == "&Graph") {
        setText("cmdGraph", "&Hide Graph");
        setEnabled("CmdCalculate", false);
        try {
            DointGraph();
        } catch (const std::exception& e) {
            errorBox("Error While Showing Graph ...", e);
        }
        setVisible(kPicture, true);
    } else {
        setText("cmdGraph", "&Graph");
        setEnabled("CmdCalculate", true);
        setVisible(kPicture, false);
    }
}

void FrmTwoContract::validateMarket() {
    const std::string t = text("TxtMktPrice");
    if (t.empty() || IsNumeric(t)) return;
    ui().msgBox({"Only Numeric Values allowed here", "Invalid Entry", MsgButtons::Ok, MsgIcon::Critical});
    setText("TxtMktPrice", "");
}

} // namespace tallimark
