#include "scenario/GraphScreen.h"

#include "frame/App.h"
#include "frame/VbDate.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"
#include "scenario/SimulationFill.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

namespace {

// The market fields in the order the screen shows them, each with its caption.
const std::pair<const char*, const char*> kFields[] = {
    {"TxtCurDt", "Current Date:"}, {"TxtMktPrice", "Market:"}, {"TxtExpDt", "Expiry Date:"},
    {"TxtDays", "Days:"},          {"TxtVolC", "Vol (C):"},    {"TxtVolP", "Vol (P):"}};

} // namespace

GraphScreen::GraphScreen(App& app, const char* name, const char* caption)
    : Form(app, name, caption), canvas_(app.makeCanvas(kPictureWidth, kPictureHeight)) {
    for (const auto& [field, label] : kFields) {
        addControl(ControlKind::Label, std::string("Label_") + field, label);
        addControl(ControlKind::TextBox, field);
    }
    addControl(ControlKind::Picture, kPicture);
    canvas_->Cls();

    for (const char* field : {"TxtDays", "TxtVolC", "TxtVolP", "TxtMktPrice"})
        on(field, EventType::LostFocus, [this, field](Event&) { leave(field); });
    on(kPicture, EventType::MouseMove, [this](Event& e) {
        const Rgb color = canvas_->pixelColor(static_cast<int>(e.x), static_cast<int>(e.y));
        setToolTip(kPicture, readOut(color, canvas_->userX(e.x), canvas_->userY(e.y)));
    });
}

void GraphScreen::wireKeys() {
    auto keyDown = [this](const std::string& name) {
        const bool field =
            name == "TxtDays" || name == "TxtVolC" || name == "TxtVolP" || name == "TxtMktPrice";
        on(name, EventType::KeyDown, [this, name, field](Event& e) {
            if (e.keyCode == keys::Escape) {
                e.keyCode = 0;
                requestClose();
            } else if (e.keyCode == keys::Enter && field) {
                leave(name);
            }
        });
    };
    keyDown("Form");
    for (const std::string& name : controlOrder())
        keyDown(name);
}

double GraphScreen::firstListValue() {
    return Val(grid(kList).text(1, 1));
}

RiskSheet& GraphScreen::sourceSheet() {
    return riskSheet(app(), GraphType == "Index" ? SheetKind::Index : SheetKind::Stock);
}

MarketTexts GraphScreen::market() const {
    return {text("TxtMktPrice"), text("TxtDays"), text("TxtVolC"), text("TxtVolP")};
}

void GraphScreen::launch(RiskSheet& sheet, const std::string& graphType) {
    setText("TxtCurDt", sheet.text("TxtCurDt"));
    setText("TxtExpDt", sheet.text("TxtExpDt"));
    setText("TxtDays", sheet.text("TxtDays"));
    setText("TxtVolC", sheet.text("TxtImpVol"));
    setText("TxtVolP", sheet.text("TxtImpVolP"));
    setText("TxtMktPrice", sheet.text("TxtMktPrice"));
    LastDays = Val(sheet.text("TxtDays"));
    LastVolC = Val(sheet.text("TxtImpVol"));
    LastVolP = Val(sheet.text("TxtImpVolP"));
    LastMkt = Val(sheet.text("TxtMktPrice"));
    GraphType = graphType;
    entry();
}

void GraphScreen::plot(GraphPlot p) {
    plot_.emplace(std::move(p));
    // The drawing has no trap: a range below 5 or a ladder of one strike stops it with the
    // run-time's box, and what was drawn by then stays.
    try {
        plot_->draw(*canvas_);
    } catch (const VbError& e) {
        runtimeErrorBox(e);
    }
    markChanged(kPicture);
}

void GraphScreen::leave(const std::string& field) {
    const double value = Val(text(field));
    auto recompute = [this] {
        canvas_->Cls();
        markChanged(kPicture);
        BusyScope busy(ui());
        entry();
    };
    if (field == "TxtDays" && value != LastDays) {
        LastDays = value;
        const VbDate expiry = CDate(text("TxtExpDt"));
        setText("TxtCurDt", DateText(VbDate(expiry.serial() - Val(Trim(text("TxtDays"))))));
        recompute();
    } else if (field == "TxtVolC" && value != LastVolC) {
        LastVolC = value;
        recompute();
    } else if (field == "TxtVolP" && value != LastVolP) {
        LastVolP = value;
        recompute();
    } else if (field == "TxtMktPrice" && value != LastMkt && !(value < firstListValue())) {
        // A price below the first row's is ignored, silently.
        LastMkt = value;
        canvas_->Cls();
        marketMoved();
    }
}

} // namespace tallimark
