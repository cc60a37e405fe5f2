// The refresh cycle in its fixed order, and the triggers that start it from the market inputs.
#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

void RiskSheet::RefreshData(int key) {
    if (Trim(text("TxtDays")).empty() || key != 13) return;
    trapped("RefreshData", [this] {
        // One write group for the store work of the whole cycle: a failing step still leaves
        // what the earlier steps wrote, as each statement would alone.
        WriteGroup group(app().store(), WriteGroup::Rows::Working);
        // The valuation date follows the days typed against the sheet's expiry.
        const VbDate today(CDate(text("TxtExpDt")).serial() - Val(Trim(text("TxtDays"))));
        setText("TxtCurDt", DateText(today));
        if (!isIndex()) setPicker(Format(today, "DD-MMM-YY"));

        FillLViewData();
        Grid& g = va1();
        va1_Click(g.activeCol, g.activeRow == 1 ? g.activeRow + 1 : g.activeRow);

        if (isIndex()) {
            CalcROption();
            UpdateTracker();
            CalcDeltaNeutral1();
            CalcPremium();
            CalcOptionR();
            CalcFutureR();
            CalcSheetGreeks();
            ErrProcCalcBalance();
            return;
        }
        UpdateTracker();
        CalcROption();
        CalcDeltaNeutral1();
        CalcPremium();
        CalcOptionR();
        CalcFutureR();
        CalcSheetGreeks();
        ErrProcCalcBalance();
        ThetaBal();
        TotExposure();
        // The ladder's own totals stand in for the gamma and vega that the greeks wrote.
        setText("TxtGamVal", text("TxtTotGamma"));
        setText("TxtVegaVal", text("TxtTotVega"));
    });
}

bool RiskSheet::validNumber(const std::string& field) {
    if (Trim(text(field)).empty()) {
        setText(field, "0");
        return true;
    }
    try {
        CDbl(text(field));
        return true;
    } catch (const VbError&) {
        ui().msgBox({"Only Numeric Values allowed here", "Invalid Entry", MsgButtons::Ok, MsgIcon::Critical});
        setText(field, "");
        setFocus(field);
        return false;
    }
}

void RiskSheet::refreshOnChange(const std::string& field, std::string& previous) {
    if (Trim(text(field)) == Trim(previous)) return;
    // Noted before the refresh, so that a second loss of focus during it refreshes nothing.
    previous = text(field);
    BusyScope busy(ui());
    RefreshData(13);
}

void RiskSheet::TxtMktPrice_LostFocus() {
    if (validNumber("TxtMktPrice")) refreshOnChange("TxtMktPrice", PrevMktPrice);
}

// The index sheet refreshes from the market price alone; its other inputs wait for it.
void RiskSheet::TxtDays_LostFocus() {
    if (validNumber("TxtDays") && !isIndex()) refreshOnChange("TxtDays", PrevDays);
}

void RiskSheet::TxtImpVol_LostFocus() {
    if (!validNumber("TxtImpVol")) return;
    if (text("TxtImpVolP").empty()) setText("TxtImpVolP", text("TxtImpVol"));
    if (!isIndex()) refreshOnChange("TxtImpVol", PrevImpVol);
}

void RiskSheet::TxtImpVolP_LostFocus() {
    if (validNumber("TxtImpVolP") && !isIndex()) refreshOnChange("TxtImpVolP", PrevImpVolP);
}

void RiskSheet::setPicker(const std::string& text) {
    // The program moving the calendar is no choice of the user's: no Change handling.
    settingPicker_ = true;
    setText("DTPicker1", text);
    settingPicker_ = false;
}

void RiskSheet::DTPicker1_Change() {
    if (settingPicker_) return;
    const VbDate chosen = CDate(Format(text("DTPicker1"), "DD-MMM-YY"));
    const VbDate expiry = CDate(text("TxtExpDt"));
    if (expiry >= chosen) {
        set("TxtDays", static_cast<double>(DateDiffDays(chosen, expiry)));
        refreshOnChange("TxtDays", PrevDays);
    } else {
        ui().msgBox({"Pls Select the Date In Between Expiry Date "});
        setFocus("DTPicker1");
    }
}

} // namespace tallimark
