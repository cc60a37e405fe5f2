#include "margin/PositionFile.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"
#include "margin/MarginXml.h"
#include "margin/TextFiles.h"

namespace tallimark {

namespace {

// A position as the calculator aligns it: two decimals, right-aligned in 11 characters, a longer
// figure written whole.
std::string NetText(double units) {
    return Format(Format(units, "0.00"), "@@@@@@@@@@@");
}

std::string ScriptName(Store& store, const std::string& Symbol) {
    Recordset rs = store.query("Select * From scriptMast where  ScrCode =  " + q(Symbol.substr(0, 3)));
    return rs.eof() ? std::string() : rs["ScrName"].textOrEmpty();
}

// Committed futures of the sheet, from the ledger rather than the saved ladder.
double FuturesNet(Store& store, const std::string& Symbol, const std::string& Descr) {
    Recordset rs =
        store.query("select sum(units) as TotUnits from Tracker where symbol = " + q(Trim(Symbol)) +
                    " and indesc = " + q(Trim(Descr)) + " and CP = 'S' and CashType='F' and units <> 0");
    return rs.eof() ? 0.0 : rs["TotUnits"].numberOrZero();
}

} // namespace

std::string MyStrike(App& app, const std::string& Symbol, const std::string& Descr) {
    Store& store = app.store();
    const Session& s = app.session();
    const std::string ScrName = ScriptName(store, Symbol);
    const double NetUnits = FuturesNet(store, Symbol, Descr);
    // The contract month is the clock's, not the picked day's nor the contract's own expiry.
    const std::string pe = Format(app.clock().today(), "yyyymm");

    std::string x = StartEnd_Tag("portfolio", true);
    x += Element("firm", Symbol + "-" + Descr);
    x += Element("acctId", s.g_UserName);
    x += Element("acctType", "S");
    x += Element("isCust", "1");
    x += Element("seg", "N/A");
    x += Element("isNew", "1");
    x += Element("pclient", "1");
    x += Element("currency", "INR");
    x += Element("ledgerBal", "0.00");
    x += Element("ote", "0.00");
    x += Element("securities", "0.00");
    x += StartEnd_Tag("ecPort", true);
    x += Element("ec", "NSCCL");
    x += StartEnd_Tag("ccPort", true);
    x += Element("cc", ScrName);
    x += Element("r", "1");
    x += Element("currency", "INR");
    x += Element("pss", "0");

    // The futures position stands even when it is nil.
    x += StartEnd_Tag("np", true);
    x += Element("exch", "NSE");
    x += Element("pfCode", ScrName);
    x += Element("pfType", "FUT");
    x += Element("pe", pe);
    x += Element("net", NetText(NetUnits));
    x += StartEnd_Tag("np", false);

    // Deliberately the current sheet's saved ladder, not this portfolio's: the calculator has
    // always been fed so.
    Recordset rows =
        store.query("    Select Strike, CP, Units From PortfolioDet  Where Symbol = " + q(s.g_strSymbol) +
                    "  And Descr = " + q(s.g_strDesc) + "  And units <> 0 Order By CP, Strike ");
    for (; !rows.eof(); rows.moveNext()) {
        x += StartEnd_Tag("np", true);
        x += Element("exch", "NSE");
        x += Element("pfCode", ScrName);
        x += Element("pfType", "OOP");
        x += Element("pe", pe);
        x += Element("undPe", "000000");
        x += Element("o", rows["CP"].text());
        x += Element("k", Format(rows["Strike"].number(), "0.00"));
        x += Element("net", NetText(rows["Units"].number()));
        x += StartEnd_Tag("np", false);
    }
    x += StartEnd_Tag("ccPort", false);
    x += StartEnd_Tag("ecPort", false);
    x += StartEnd_Tag("portfolio", false);
    return x;
}

std::string PositionDocument(App& app, const VbDate& created) {
    const Session& s = app.session();
    std::string doc = kXmlHead;
    doc += StartEnd_Tag("posFile", true);
    doc += Element("fileformat", "4.00");
    doc += Element("created", Format(created, "yyyymmdd"));
    doc += StartEnd_Tag("pointInTime", true);
    doc += Element("date", Format(created, "yyyymmdd"));
    doc += Element("isSetl", "1");
    doc += Element("setlQualifier", "final");
    doc += Element("time", Format(app.clock().now(), "hh:mm"));
    doc += Element("run", "0");
    // The arrays hold the ticked sheets at 0 to N-1 and two spare places; arrays the main screen
    // never filled have no bounds at all.
    if (s.gPonSymbols.empty() || s.gPonDescs.size() < s.gPonSymbols.size())
        throw VbError(vberr::SubscriptOutOfRange, "Subscript out of range");
    for (size_t i = 0; i + 2 < s.gPonSymbols.size(); ++i)
        doc += MyStrike(app, s.gPonSymbols[i], s.gPonDescs[i]);
    doc += StartEnd_Tag("pointInTime", false);
    doc += StartEnd_Tag("posFile", false);
    return doc;
}

} // namespace tallimark
