#include "frame/Schema.h"

#include "frame/Store.h"

namespace tallimark::schema {

namespace {

using T = ColumnType;

std::vector<Column> trackerColumns() {
    // One shape for Tracker, DummyTracker and UploadTracker: rows move between them with
    // "select *", so the order here is the order of all three.
    return {{"InType", T::Text},     {"InDesc", T::Text},     {"MktPrice", T::Double}, {"Units", T::Long},
            {"Traded", T::Double},   {"Symbol", T::Text},     {"Strike", T::Double},   {"TradeDt", T::Date},
            {"Vol", T::Double},      {"CP", T::Text},         {"Delta", T::Double},    {"Last", T::Double},
            {"Days", T::Long},       {"DumThVal", T::Double}, {"DeltaVal", T::Double}, {"Theta", T::Double},
            {"ThetaVal", T::Double}, {"Vega", T::Double},     {"VegaVal", T::Double},  {"Gamma", T::Double},
            {"GammaVal", T::Double}, {"CashType", T::Text},   {"RealFlag", T::Text},   {"Complete", T::Text},
            {"Field1", T::Text},     {"Field2", T::Double},   {"Field3", T::Text}};
}

std::vector<Column> uploadFileColumns() {
    return {{"TradeDt", T::Date},
            {"futstk", T::Text},
            {"equity", T::Text},
            {"Symbol", T::Text},
            {"InDesc", T::Text}};
}

std::vector<Column> doubles(std::initializer_list<const char*> names) {
    std::vector<Column> cols;
    for (const char* n : names)
        cols.push_back({n, T::Double});
    return cols;
}

std::vector<Column> concat(std::vector<Column> a, const std::vector<Column>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::vector<Table> makeTables() {
    std::vector<Table> t;
    t.push_back({"ScriptMast",
                 {{"ScrCode", T::Text},
                  {"ScrName", T::Text},
                  {"Descr", T::Text},
                  {"RateDiff", T::Double},
                  {"Limit_Cr", T::Double},
                  {"First_Gamma", T::Text},
                  {"Week_Gamma", T::Text},
                  {"Field2", T::Double},
                  {"Field1", T::Text}}});
    t.push_back(
        {"MonthCheck", {{"Mnth", T::Text}, {"Days", T::Long}, {"FCode", T::Text}, {"SCode", T::Text}}});
    t.push_back({"Trans",
                 {{"DIntRate", T::Double},
                  {"FIntRate", T::Double},
                  {"InDesc", T::Text},
                  {"InSymbol", T::Text},
                  {"InType", T::Text},
                  {"Iterations", T::Long},
                  {"KeySpread", T::Text},
                  {"KeySymbol", T::Text},
                  {"KeyType", T::Text},
                  {"MidStrike", T::Double},
                  {"OptComm", T::Double},
                  {"OptModel", T::Text},
                  {"PSource", T::Text},
                  {"AStrike", T::Double},
                  {"BStrike", T::Double},
                  {"UComm", T::Double},
                  {"Transdt", T::Date}}});
    t.push_back({"PortfolioMast",
                 concat(concat({{"Symbol", T::Text},
                                {"Descr", T::Text},
                                {"MktPrice", T::Double},
                                {"Days", T::Long},
                                {"Net", T::Double},
                                {"ImpVol", T::Double},
                                {"ImpVolP", T::Double},
                                {"AvgVol", T::Double},
                                {"KeyOff", T::Text},
                                {"Spread", T::Text}},
                               doubles({"Premium", "Comm", "CashU", "CashR", "FutureU", "FutureR", "OptionU",
                                        "OptionR", "Equity", "Balance", "TotComm"})),
                        concat({{"FutLots", T::Long},      {"FutTrade", T::Double}, {"CashLots", T::Long},
                                {"CashTrade", T::Double},  {"Delvalue", T::Double}, {"GammaVal", T::Double},
                                {"VegaVal", T::Double},    {"ThetaVal", T::Double}, {"DelCont", T::Double},
                                {"GamCont", T::Double},    {"DelHedge", T::Text},   {"GamHedge", T::Text},
                                {"VegaHedge", T::Text},    {"ThetaHedge", T::Text}, {"DelPts", T::Double},
                                {"GamPts", T::Double},     {"VegaPts", T::Double},  {"ThetaPts", T::Double},
                                {"DelNeutral", T::Double}, {"Dt", T::Date},         {"ExpDt", T::Date}},
                               concat(doubles({"TotDelta", "TotGamma", "TotVega", "TotTheta", "Up1MktPrice",
                                               "Up1Bal", "Up2MktPrice", "Up2Bal", "Dn1MktPrice", "Dn1Bal",
                                               "Dn2MktPrice", "Dn2Bal", "Field2"}),
                                      {{"Field1", T::Text}})))});
    t.push_back(
        {"PortfolioDet",
         {{"Symbol", T::Text},  {"Descr", T::Text},      {"Strike", T::Double},   {"CP", T::Text},
          {"Units", T::Long},   {"Traded", T::Double},   {"Last", T::Double},     {"Vol", T::Double},
          {"Delta", T::Double}, {"Dt", T::Date},         {"DumThVal", T::Double}, {"DeltaVal", T::Double},
          {"Theta", T::Double}, {"ThetaVal", T::Double}, {"Gamma", T::Double},    {"GammaVal", T::Double},
          {"Vega", T::Double},  {"VegaVal", T::Double},  {"Field2", T::Long},     {"Field1", T::Text}}});
    // The committed ledger takes its rows from the working ledger alone.
    t.push_back({"Tracker", trackerColumns(), true});
    t.push_back({"DummyTracker", trackerColumns()});
    t.push_back({"UploadTracker", trackerColumns()});
    t.push_back({"FutOpt",
                 {{"Field1", T::Long},
                  {"Type", T::Text},
                  {"Name", T::Text},
                  {"ExpDt", T::Text},
                  {"Strike", T::Text},
                  {"CP", T::Text},
                  {"BS", T::Long},
                  {"Qty", T::Long},
                  {"Premium", T::Double},
                  {"Symbol", T::Text},
                  {"Descr", T::Text},
                  {"FileName", T::Text},
                  {"MktPrice", T::Double},
                  {"Field22", T::Text},
                  {"Field23", T::Text}}});
    t.push_back({"Eq",
                 {{"Field1", T::Long},
                  {"Name", T::Text},
                  {"Type", T::Text},
                  {"BS", T::Long},
                  {"Qty", T::Long},
                  {"Premium", T::Double},
                  {"Symbol", T::Text},
                  {"Descr", T::Text},
                  {"FileName", T::Text},
                  {"MktPrice", T::Double},
                  {"Field20", T::Text},
                  {"Field21", T::Text}}});
    t.push_back({"UploadFile", uploadFileColumns()});
    t.push_back({"DumUploadFile", uploadFileColumns()});
    t.push_back({"Charges", doubles({"TurnOverCh", "ConCh", "DpCh", "StkInt", "OtherChgs", "StDuty", "ConChf",
                                     "MtmChg", "ConChP"})});
    t.push_back(
        {"Closing",
         concat({{"Symbol", T::Text}, {"Descr", T::Text}, {"Dt", T::Text}},
                doubles({"ClMtm",     "ClStk",      "DPChgs",    "ConChgs",      "TOverChgs",    "StkInt",
                         "OtherChgs", "ConChF",     "ConChP",    "MtmChg",       "OpBal",        "ClBal",
                         "OpBalInt",  "ShBal",      "NetBal",    "MktPrice",     "FutUnits",     "CashUnits",
                         "FutTraded", "CashTraded", "Prem",      "CashTOverAmt", "FutConAmt",    "CashDpAmt",
                         "CpConAmt",  "CpPreAmt",   "MtmIntAmt", "CashIntAmt",   "OtherChgsAmt", "ConChPval",
                         "MtmChFval", "Field2"}))});
    t.push_back({"Users", {{"UserCd", T::Text}, {"UserNm", T::Text}, {"Pwd", T::Text}}});
    t.push_back(
        {"ExpTemp", concat({{"Dt", T::Date}}, doubles({"Opbal", "Prem", "EqAmt", "TotAmt", "StkInt", "DpAmt",
                                                       "ConAmt", "MtmInt", "TOverAmt", "SDuty"}))});
    const std::vector<Column> callSummary = {
        {"Traded", T::Double}, {"Strike", T::Double}, {"TradeDt", T::Date},  {"CP", T::Text},
        {"CUnits", T::Long},   {"PUnits", T::Long},   {"Premium", T::Double}};
    t.push_back({"CallSummary1", callSummary});
    t.push_back({"Call1", callSummary});
    t.push_back({"FutStkSumDet",
                 {{"TradeDt", T::Date}, {"Funits", T::Long}, {"Sunits", T::Long}, {"Traded", T::Double}}});
    return t;
}

const char* typeName(ColumnType type) {
    switch (type) {
    case T::Text:
        return "TEXT COLLATE NOCASE"; // text compares without regard to case, as the desk's store does
    case T::Double:
        return "DOUBLE";
    case T::Long:
        return "INTEGER";
    case T::Date:
        return "DATE";
    }
    return "TEXT";
}

// The logical keys that the screens rely on the store to refuse twice.
const char* const kKeys[] = {
    "CREATE UNIQUE INDEX ScriptMast_Key ON ScriptMast(ScrCode)",
    "CREATE UNIQUE INDEX Users_Key ON Users(UserCd)",
    "CREATE UNIQUE INDEX Trans_Key ON Trans(InSymbol, InDesc)",
    "CREATE UNIQUE INDEX PortfolioMast_Key ON PortfolioMast(Symbol, Descr)",
};

// Every query of a sheet's rows names the sheet first.
const char* const kIndexes[] = {
    "CREATE INDEX Tracker_Sheet ON Tracker(Symbol, InDesc, CP, Strike)",
    "CREATE INDEX DummyTracker_Sheet ON DummyTracker(Symbol, InDesc, CP, Strike)",
    "CREATE INDEX UploadTracker_Sheet ON UploadTracker(Symbol, InDesc)",
    "CREATE INDEX PortfolioDet_Sheet ON PortfolioDet(Symbol, Descr)",
    "CREATE INDEX UploadFile_Sheet ON UploadFile(Symbol, InDesc)",
    "CREATE INDEX DumUploadFile_Sheet ON DumUploadFile(Symbol, InDesc)",
    "CREATE INDEX Closing_Sheet ON Closing(Symbol, Descr, Dt)",
};

// A date column may receive a plain date text ("23-11-2026", "23-Nov-2026 "); the store keeps
// every date as "YYYY-MM-DD" so that it reads, compares and sorts as that date.
std::string triggerName(const Table& t, const Column& c, const char* event) {
    return t.name + "_" + c.name + "_" + event;
}

std::string dateTriggers(const Table& t, const Column& c) {
    const std::string when = " WHEN NEW." + c.name + " IS NOT NULL AND NEW." + c.name +
                             " NOT GLOB '[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9]*'";
    const std::string body = " BEGIN UPDATE " + t.name + " SET " + c.name + " = cdate(NEW." + c.name +
                             ") WHERE rowid = NEW.rowid; END;";
    return "CREATE TRIGGER " + triggerName(t, c, "ins") + " AFTER INSERT ON " + t.name + when + body +
           "CREATE TRIGGER " + triggerName(t, c, "upd") + " AFTER UPDATE OF " + c.name + " ON " + t.name +
           when + body;
}

} // namespace

const std::vector<Table>& tables() {
    static const std::vector<Table> all = makeTables();
    return all;
}

// A table with its date handling; a temporary one lives in memory beside the file's, before it.
std::string tableDdl(const Table& t, bool temporary = false) {
    const std::string create = temporary ? "CREATE TEMP " : "CREATE ";
    std::string ddl = create + "TABLE " + t.name + " (";
    for (size_t i = 0; i < t.columns.size(); ++i)
        ddl += (i ? ", " : "") + t.columns[i].name + " " + typeName(t.columns[i].type);
    ddl += ");";
    for (const Column& c : t.columns)
        if (c.type == T::Date && !t.copiesOnly) {
            std::string triggers = dateTriggers(t, c);
            for (size_t at = 0; (at = triggers.find("CREATE TRIGGER", at)) != std::string::npos; at += 14)
                triggers.replace(at, 7, create);
            ddl += triggers;
        }
    return ddl;
}

void createTables(Store& store) {
    std::string ddl = "BEGIN;";
    for (const Table& t : tables())
        ddl += tableDdl(t);
    for (const char* k : kKeys)
        ddl += std::string(k) + ";";
    for (const char* i : kIndexes)
        ddl += std::string(i) + ";";
    ddl += "COMMIT;";
    store.executeNative(ddl);
}

void upgrade(Store& store) {
    for (const Table& t : tables())
        if (t.copiesOnly)
            for (const Column& c : t.columns)
                if (c.type == T::Date)
                    store.executeNative("DROP TRIGGER IF EXISTS " + triggerName(t, c, "ins") +
                                        ";DROP TRIGGER IF EXISTS " + triggerName(t, c, "upd"));
}

void keepWorkingLedgerInMemory(Store& store) {
    store.executeNative("PRAGMA temp_store=MEMORY");
    for (const Table& t : tables())
        if (t.name == "DummyTracker") {
            AllOrNothing step(store);
            store.executeNative(tableDdl(t, true) +
                                "CREATE INDEX temp.DummyTracker_Sheet ON DummyTracker(Symbol, InDesc, CP, "
                                "Strike);INSERT INTO temp.DummyTracker SELECT * FROM main.DummyTracker;");
            step.done();
        }
}

void saveWorkingLedger(Store& store) {
    AllOrNothing step(store);
    store.executeNative(
        "DELETE FROM main.DummyTracker;INSERT INTO main.DummyTracker SELECT * FROM temp.DummyTracker;");
    step.done();
}

void createReadyStore(const std::filesystem::path& file) {
    std::filesystem::create_directories(file.parent_path());
    auto store = Store::create(file);
    createTables(*store);
    // The month codes: futures letters of the exchange's month code, stock letters A to L.
    struct Month {
        const char* name;
        int days;
        const char* fcode;
        const char* scode;
    };
    const Month months[] = {
        {"JANUARY", 31, "F", "A"}, {"FEBRUARY", 28, "G", "B"}, {"MARCH", 31, "H", "C"},
        {"APRIL", 30, "J", "D"},   {"MAY", 31, "K", "E"},      {"JUNE", 30, "M", "F"},
        {"JULY", 31, "N", "G"},    {"AUGUST", 31, "Q", "H"},   {"SEPTEMBER", 30, "U", "I"},
        {"OCTOBER", 31, "V", "J"}, {"NOVEMBER", 30, "X", "K"}, {"DECEMBER", 31, "Z", "L"}};
    WriteGroup group(*store);
    for (const Month& m : months)
        store->execute("insert into MonthCheck (Mnth, Days, FCode, SCode) values (" + q(m.name) + ", " +
                       std::to_string(m.days) + ", " + q(m.fcode) + ", " + q(m.scode) + ")");
    store->execute(std::string("insert into Users (UserCd, UserNm, Pwd) values ('1', ") + q(kFirstUserName) +
                   ", " + q(kFirstUserPassword) + ")");
}

} // namespace tallimark::schema
