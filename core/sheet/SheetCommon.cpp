// What the sheet's procedures share: traps, ladder cells, field reads and the ledger key.
#include "frame/App.h"
#include "frame/VbError.h"
#include "frame/VbNumber.h"
#include "sheet/RiskSheet.h"

namespace tallimark {

Grid& RiskSheet::va1() {
    return grid(kLadder);
}

void RiskSheet::trapped(const char* procedure, const std::function<void()>& body, const char* numberWords) {
    try {
        body();
    } catch (const ProgramEnd&) {
        throw;
    } catch (const std::exception& e) {
        failureBox(procedure, e, numberWords);
    }
}

void RiskSheet::errorBox(const std::string& lead, const std::exception& error, const char* numberWords) {
    const auto* vb = dynamic_cast<const VbError*>(&error);
    ui().msgBox({lead + error.what() + numberWords + std::to_string(vb ? vb->number() : 0)});
}

const std::string& RiskSheet::cell(int row, int col) {
    return va1().text(row, col);
}

void RiskSheet::setCell(int row, int col, const std::string& text) {
    Grid& g = va1();
    if (g.text(row, col) != text) g.setText(row, col, text);
}

int RiskSheet::lastLadderRow() {
    return CInt(static_cast<double>(va1().dataRowCount()));
}

void RiskSheet::paintLadder() {
    Grid& g = va1();
    for (int row = 2; row <= g.maxRows(); row += 2)
        for (int col = 1; col <= g.maxCols(); ++col) {
            g.setBack(row, col, kGround);
            g.setFore(row, col, kCallText);
            if (row + 1 > g.maxRows()) continue;
            g.setBack(row + 1, col, kGround);
            g.setFore(row + 1, col, kPutText);
        }
}

void RiskSheet::markUnits(int row, double units) {
    if (units > 0)
        va1().setFore(row, 3, kLongText);
    else if (units < 0)
        va1().setFore(row, 3, kShortText);
}

void RiskSheet::set(const std::string& field, double value) {
    setText(field, NumText(value));
}

bool RiskSheet::zeroOrEmpty(const std::string& field) {
    const std::string t = Trim(text(field));
    return t.empty() || t == "0";
}

bool RiskSheet::pricingInputsMissing() {
    return zeroOrEmpty("TxtMktPrice") || Trim(text("TxtDays")).empty() || zeroOrEmpty("TxtImpVol");
}

// The click asks more than the walks: "0" days leaves it too, so that an expiry-day load keeps
// the points and hedges the sheet was saved with instead of writing the last day's 100 and 0.
bool RiskSheet::clickInputsMissing() {
    return zeroOrEmpty("TxtMktPrice") || zeroOrEmpty("TxtDays") || zeroOrEmpty("TxtImpVol");
}

pricing::StockInputs RiskSheet::stockInputs() {
    // The closed forms read the call volatility from its field; the put's is what the last walk
    // left, and none of the formulas read here uses it.
    return {CDbl(text("TxtMktPrice")),     CurStrike, IntRate,
            CDbl(text("TxtImpVol")) / 100, SigmaP,    CDbl(text("TxtDays"))};
}

std::string RiskSheet::ledgerKey(const std::string& symbol, const std::string& desc) const {
    return "symbol = " + q(symbol) + " and indesc = " + q(desc);
}

std::string RiskSheet::sheetLedgerKey() {
    return ledgerKey(OwnSymbol, OwnDesc);
}

std::string RiskSheet::trimmedLedgerKey() {
    return ledgerKey(Trim(text("TxtSymbol")), Trim(OwnDesc));
}

void RiskSheet::makeCurrentSheet() {
    // A screen never loaded has no sheet of its own to point at.
    if (OwnSymbol.empty() && OwnDesc.empty()) return;
    Session& s = app().session();
    s.g_strSymbol = OwnSymbol;
    s.g_strDesc = OwnDesc;
}

std::string RiskSheet::sqlNumber(const Value& value) {
    return value.isNull() ? "Null" : NumText(value.number());
}

double RiskSheet::sumOrZero(const std::string& sql, const char* column) {
    Recordset rs = app().store().query(sql);
    return rs.eof() ? 0 : rs[column].numberOrZero();
}

double RiskSheet::rowUnits(int row) {
    if (cell(row, 3).empty()) setCell(row, 3, "0");
    return CDbl(cell(row, 3));
}

bool RiskSheet::takeRowVolatility(int row) {
    const bool call = isCallRow(row);
    const char* field = call ? "TxtImpVol" : "TxtImpVolP";
    (call ? SigmaC : SigmaP) = CDbl(text(field)) / 100;
    setCell(row, 6, Trim(text(field)));
    return call;
}

} // namespace tallimark
