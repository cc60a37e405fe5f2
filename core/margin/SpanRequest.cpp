#include "margin/SpanRequest.h"

#include "frame/App.h"
#include "frame/VbFormat.h"
#include "margin/MarginXml.h"
#include "margin/TextFiles.h"

namespace tallimark {

namespace {

struct CurrencyDef {
    const char *currency, *symbol, *name, *decimalPos;
};
// INR and ITL share the symbol I in the calculator's own table.
const CurrencyDef kCurrencies[] = {
    {"AUD", "A", "AUSTRALIAN DOLLAR", "2"},
    {"B", "B", "B", "2"},
    {"CAD", "C", "CANADIAN DOLLAR", "2"},
    {"CHF", "S", "SWISS FRANC", "2"},
    {"DEM", "D", "DEUTSCHE MARK", "2"},
    {"ESP", "T", "SPANISH PESETA", "2"},
    {"EUR", "E", "EURO", "2"},
    {"FRF", "F", "FRENCH FRANC", "2"},
    {"GBP", "L", "BRITISH POUND", "2"},
    {"HKD", "H", "HONG KONG DOLLAR", "2"},
    {"HUF", "U", "HUNGARIAN FORINT", "0"},
    {"INR", "I", "Indian Rupee", "2"},
    {"ITL", "I", "ITALIAN LIRA", "2"},
    {"JPY", "Y", "JAPANESE YEN", "2"},
    {"MXN", "P", "MEXICAN PESO", "2"},
    {"NOK", "N", "NORWEGIAN KRONER", "2"},
    {"NTD", "W", "NEW TAIWAN DOLLAR", "2"},
    {"NZD", "Z", "NEW ZEALAND $", "2"},
    {"SEK", "K", "SWEDISH KRONA", "2"},
    {"SGD", "G", "SINGAPOREAN DOLLAR", "2"},
    {"USD", "$", "US DOLLARS", "2"},
    {"ZAR", "R", "S.A. RAND", "2"},
};

struct AcctTypeDef {
    const char *isCust, *acctType, *name, *isNetMargin, *priority;
};
const AcctTypeDef kAccountTypes[] = {
    {"1", "H", "Hedge", "1", "20"},
    {"1", "M", "Member", "1", "30"},
    {"0", "M", "Member", "1", "10"},
    {"0", "N", "Normal", "0", "1"},
    {"1", "O", "Omnibus/Speculator", "0", "45"},
    {"1", "Q", "Omnibus/Hedge", "0", "25"},
    {"1", "S", "Speculator", "1", "40"},
};

struct PbRateDef {
    const char *r, *isCust, *acctType, *isM, *pbc;
};
const PbRateDef kRates[] = {
    {"1", "1", "H", "1", "CORE"},  {"4", "1", "H", "0", "CORE"},  {"11", "1", "H", "1", "RESRV"},
    {"0", "1", "M", "1", "CORE"},  {"3", "1", "M", "0", "CORE"},  {"20", "1", "O", "1", "CORE"},
    {"22", "1", "O", "0", "CORE"}, {"24", "1", "Q", "1", "CORE"}, {"26", "1", "Q", "0", "CORE"},
    {"2", "1", "S", "1", "CORE"},  {"5", "1", "S", "0", "CORE"},
};

// A move of the price by mult price-scan ranges (numerator / denominator), of the volatility by
// mult volatility-scan ranges, and the weight of that scenario.
struct ScanDef {
    const char *mult, *numerator, *denominator;
};
struct ScanPoint {
    const char* point;
    ScanDef price, vol;
    const char *weight, *pairedPoint;
};
const ScanDef kVolUp{"1.000000", "1.000000", "1.000000"};
const ScanDef kVolDown{"-1.000000", "-1.000000", "1.000000"};
const ScanDef kVolNil{"0.000000", "0.000000", "1.000000"};
const ScanPoint kPoint4{"4", {"0.333333", "1.000000", "3.000000"}, kVolDown, "1.000000", "3"};
// Point 4 stands again behind each of the points 5 to 11, and point 12 pairs a rising
// volatility with a fraction of -1 over -1: the calculator's table as it has always been sent.
const ScanPoint kScanPoints[] = {
    {"1", {"0.000000", "0.000000", "3.000000"}, kVolUp, "1.000000", "2"},
    {"2", {"0.000000", "0.000000", "3.000000"}, kVolDown, "1.000000", "1"},
    {"3", {"0.333333", "1.000000", "3.000000"}, kVolUp, "1.000000", "4"},
    kPoint4,
    {"5", {"-0.333333", "-1.000000", "3.000000"}, kVolUp, "1.000000", "6"},
    kPoint4,
    {"6", {"-0.333333", "-1.000000", "3.000000"}, kVolDown, "1.000000", "5"},
    kPoint4,
    {"7", {"0.666667", "2.000000", "3.000000"}, kVolUp, "1.000000", "8"},
    kPoint4,
    {"8", {"0.666667", "2.000000", "3.000000"}, kVolDown, "1.000000", "7"},
    kPoint4,
    {"9", {"-0.666667", "-2.000000", "3.000000"}, kVolUp, "1.000000", "10"},
    kPoint4,
    {"10", {"-0.666667", "-2.000000", "3.000000"}, kVolDown, "1.000000", "9"},
    kPoint4,
    {"11", {"1.000000", "3.000000", "3.000000"}, kVolUp, "1.000000", "12"},
    kPoint4,
    {"12", {"1.000000", "3.000000", "3.000000"}, {"1.000000", "-1.000000", "-1.000000"}, "1.000000", "11"},
    {"13", {"-1.000000", "-3.000000", "3.000000"}, kVolUp, "1.000000", "14"},
    {"14", {"-1.000000", "-3.000000", "3.000000"}, kVolDown, "1.000000", "13"},
    // The extreme moves, three ranges either way, count for 30 % and pair with themselves.
    {"15", {"3.000000", "3.000000", "1.000000"}, kVolNil, "0.300000", "15"},
    {"16", {"-3.000000", "-3.000000", "1.000000"}, kVolNil, "0.300000", "16"},
};
// The delta points spread the price range in sevenths; their weights sum to 1.
const ScanPoint kDeltaPoints[] = {
    {"1", {"-1.000000", "-3.000000", "3.000000"}, kVolNil, "0.037000", nullptr},
    {"2", {"-0.666667", "-2.000000", "3.000000"}, kVolNil, "0.111000", nullptr},
    {"3", {"-0.333333", "-1.000000", "3.000000"}, kVolNil, "0.217000", nullptr},
    {"4", {"0.000000", "0.000000", "3.000000"}, kVolNil, "0.270000", nullptr},
    {"5", {"0.333333", "1.000000", "3.000000"}, kVolNil, "0.217000", nullptr},
    {"6", {"0.666667", "2.000000", "3.000000"}, kVolNil, "0.111000", nullptr},
    {"7", {"1.000000", "3.000000", "3.000000"}, kVolNil, "0.037000", nullptr},
};

std::string Scan(const char* tag, const ScanDef& d) {
    return StartEnd_Tag(tag, true) + Element("mult", d.mult) + Element("numerator", d.numerator) +
           Element("denominator", d.denominator) + StartEnd_Tag(tag, false);
}

std::string Point(const char* tag, const ScanPoint& p) {
    std::string s = StartEnd_Tag(tag, true) + Element("point", p.point) + Scan("priceScanDef", p.price) +
                    Scan("volScanDef", p.vol) + Element("weight", p.weight);
    if (p.pairedPoint) s += Element("pairedPoint", p.pairedPoint);
    return s + StartEnd_Tag(tag, false);
}

std::string Definitions() {
    std::string s = StartEnd_Tag("definitions", true);
    for (const CurrencyDef& c : kCurrencies)
        s += StartEnd_Tag("currencyDef", true) + Element("currency", c.currency) +
             Element("symbol", c.symbol) + Element("name", c.name) + Element("decimalPos", c.decimalPos) +
             StartEnd_Tag("currencyDef", false);
    for (const AcctTypeDef& a : kAccountTypes)
        s += StartEnd_Tag("acctTypeDef", true) + Element("isCust", a.isCust) +
             Element("acctType", a.acctType) + Element("name", a.name) +
             Element("isNetMargin", a.isNetMargin) + Element("priority", a.priority) +
             StartEnd_Tag("acctTypeDef", false);
    s += StartEnd_Tag("groupTypeDef", true) + Element("id", "1") + Element("name", "REPORT") +
         StartEnd_Tag("groupTypeDef", false);
    return s + StartEnd_Tag("definitions", false);
}

std::string ClearingOrg() {
    std::string s = StartEnd_Tag("clearingOrg", true);
    s += Element("ec", "NSCCL");
    s += Element("name", "National Securities Clearing Corporation");
    s += Element("isContractScale", "1");
    s += Element("isMargin", "0");
    s += Element("finalizeMeth", "BY");
    s += Element("oopDeltaMeth", "PERIOD");
    s += Element("capAnov", "0");               // the available net option value is not capped
    s += Element("lookAheadYears", "0.002739"); // one day: 1/365 cut to six decimals
    s += StartEnd_Tag("curConv", true) + Element("fromCur", "INR") + Element("toCur", "USD") +
         Element("factor", "0.020670") + StartEnd_Tag("curConv", false);
    for (const PbRateDef& r : kRates)
        s += StartEnd_Tag("pbRateDef", true) + Element("r", r.r) + Element("isCust", r.isCust) +
             Element("acctType", r.acctType) + Element("isM", r.isM) + Element("pbc", r.pbc) +
             StartEnd_Tag("pbRateDef", false);
    s += StartEnd_Tag("pointDef", true) + Element("r", "1");
    for (const ScanPoint& p : kScanPoints)
        s += Point("scanPointDef", p);
    for (const ScanPoint& p : kDeltaPoints)
        s += Point("deltaPointDef", p);
    s += StartEnd_Tag("pointDef", false);
    s += StartEnd_Tag("exchange", true) + Element("exch", "NSE") +
         Element("name", "National Stock Exchange of India") + StartEnd_Tag("exchange", false);
    return s + StartEnd_Tag("clearingOrg", false);
}

} // namespace

std::string SpanRequestDocument(const VbDate& today) {
    std::string doc = kXmlHead;
    doc += StartEnd_Tag("spanFile", true);
    doc += Element("fileFormat", "4.00");
    doc += Element("created", "200212191710");
    doc += Definitions();
    doc += StartEnd_Tag("pointInTime", true);
    // Day before month, unlike the position file's date: the calculator's request reads it so.
    doc += Element("date", Format(today, "yyyyddmm"));
    doc += Element("isSet1", "1");
    doc += Element("set1Qualifier", "final");
    doc += ClearingOrg();
    doc += StartEnd_Tag("pointInTime", false);
    doc += StartEnd_Tag("spanFile", false);
    return doc;
}

std::filesystem::path SpanRequestFolder(App& app) {
    // The desk kept the request in a fixed folder of its own; here it has its place beside the store.
    return app.dataDir() / "Span Files";
}

void WriteSpanRequest(App& app) {
    const VbDate today = app.clock().today();
    const std::filesystem::path file = SpanRequestFolder(app) / ("span" + Format(today, "ddmm") + ".spn");
    const std::string doc = SpanRequestDocument(today);
    if (FileExists(file)) DeleteFile(file);
    WriteTextLine(file, doc);
}

} // namespace tallimark
