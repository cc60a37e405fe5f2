// A click on a ladder row: one contract's greeks, the points and the hedges of the sheet's
// delta-neutral figure in that series.
#include "frame/App.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

// The click prices the row; the column clicked plays no part.
void RiskSheet::va1_Click(int /*col*/, int row) {
    trapped("va1_Click", [this, row] {
        if (clickInputsMissing()) return;
        Grid& g = va1();
        g.activeRow = row;
        CurStrike = CDbl(cell(row, 1));
        stock_.setOptionValue(CDbl(cell(row, 5)));
        setText("TxtDelPts", cell(row, 7));
        const bool callRow = isCallRow(row);
        const RowGreeks greeks = isIndex() ? clickIndex(callRow) : clickStock(row, callRow);
        writeHedges(row, callRow, greeks);
        if (isIndex()) return;
        setCell(row, 16, GetAvgVol());
        set("TxtGamPts", greeks.gamma);
        set("TxtVegaPts", greeks.vega);
        set("TxtThePts", greeks.theta);
    });
}

// The hedge text of a figure: on a call row a positive delta-neutral figure buys, on a put row
// it sells. H keeps its sign, so a "SELL  " beside a negative figure is what the desk reads.
void RiskSheet::hedge(const std::string& field, bool callRow, double H) {
    const bool buy = (Val(text("txtdelneutral")) > 0) == callRow;
    setText(field, (buy ? "BUY  " : "SELL  ") + NumText(H));
}

RiskSheet::RowGreeks RiskSheet::clickStock(int row, bool callRow) {
    const double C = Val(text("TxtContract"));
    set("TxtDelCon", -(Val(text("TxtDelPts")) * C / 100));
    set("TxtThetaCon", -(C * Val(cell(row, 10))));
    set("TxtVegaConn", C * Val(cell(row, 12)));
    set("TxtGamCon", C * Val(cell(row, 14)));
    // A put row takes the call's gamma and vega.
    const pricing::StockInputs in = stockInputs();
    const double Gamma = stock_.GammaCall(in);
    const double Vega = stock_.VegaCall(in);
    return {Gamma, Vega, callRow ? stock_.ThetaCall(in) : stock_.ThetaPut(in)};
}

RiskSheet::RowGreeks RiskSheet::clickIndex(bool callRow) {
    CurDays = CDbl(text("TxtDays"));
    CurVol = CDbl(text(callRow ? "TxtImpVol" : "TxtImpVolP")) / 100;
    const pricing::IndexInputs in{CDbl(text("TxtMktPrice")), CurStrike, IntRate, CurVol, CurDays};
    index_.CalcD1Index(in);
    index_.CalcD2Index(in);
    const double Gamma = index_.GammaIndex(in);
    const double Vega = index_.VegaIndex(in);
    return {Gamma, Vega, callRow ? index_.ThetaCallIndex(in) : index_.ThetaPutIndex(in)};
}

void RiskSheet::writeHedges(int row, bool callRow, const RowGreeks& greeks) {
    const double neutral = Val(text("txtdelneutral"));
    setText("TxtDelPts", Trim(cell(row, 7)));
    // No delta blanks the points on a call row and the hedge on a put row.
    if (Val(text("TxtDelPts")) == 0)
        setText(callRow ? "TxtDelPts" : "TxtDelHed", " ");
    else
        hedge("TxtDelHed", callRow, Round(neutral / (Val(text("TxtDelPts")) / 100), 2));
    const std::pair<const char*, double> figures[] = {
        {"Gam", greeks.gamma}, {"Vega", greeks.vega}, {"The", greeks.theta}};
    for (const auto& [name, figure] : figures) {
        set(std::string("Txt") + name + "Pts", figure);
        const std::string hedged = std::string("Txt") + name + "Hed";
        if (figure == 0)
            setText(hedged, " ");
        else
            hedge(hedged, callRow, Round(neutral / figure / 100, 2));
    }
}

std::string RiskSheet::GetAvgVol() {
    Recordset rs = app().store().query("Select Round(Avg(field2),2) as avgVol From DummyTracker where " +
                                       sheetLedgerKey() + " and strike = " + NumText(CurStrike) +
                                       " and cp = " + q(cell(va1().activeRow, 2)) + " ");
    const Value& avg = rs["avgVol"];
    if (avg.isNull()) {
        setText("TxtAvgVol", "0");
    } else {
        setText("TxtAvgVol", avg.text());
        setForeColor("TxtAvgVol", kLongText);
    }
    return Trim(text("TxtAvgVol"));
}

} // namespace tallimark
