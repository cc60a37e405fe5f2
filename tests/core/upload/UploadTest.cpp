// The trade file upload on the live stock sheet (RILK2026, strikes 960 to 1040, expiring
// 10-Dec-2026): lines split and read, the sheet's lines of the day taken, bad files
// refused with their box, the day undone, and the batched application against the one that
// sums after every trade.
#include "sheet/SheetDesk.h"
#include "upload/FrmUpload.h"
#include "upload/TradeFile.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tallimark::test {
namespace {

std::string line(const std::string& no, const std::string& type, const std::string& strike,
                 const std::string& cp, const std::string& bs, const std::string& qty,
                 const std::string& price, const std::string& day = "23 NOV 2026",
                 const std::string& name = "RELIANCE") {
    return no + ",NT," + type + "," + name + ",10DEC2026," + strike + "," + cp + ",\"RIL" + cp +
           "\",1,ABC,1,1," + "XX," + bs + "," + qty + "," + price + ",N,CLI,1,TM,BR," + day + " 10:15:32," +
           day + " 10:15:32,ORD,1234567";
}

TEST(TradeFile, LinesSplitAndReadAsTheUploadDoes) {
    TradeRow row;
    splitTradeLine(R"(1,"a,b",x)", TradeLayout::FutStk, row);
    // A comma inside quotes splits, the token losing its last character and its quote; a short line
    // repeats its last token.
    EXPECT_EQ(std::string(row[2]) + "|" + std::string(row[3]) + "|" + std::string(row[25]), "|b\"|x");
    EXPECT_THROW(splitTradeLine("12345678", TradeLayout::FutStk, row), VbError)
        << "trade number wider than 7";

    const SheetFilter filter{"RELIANCE", "10DEC2026", "23-Nov-2026", "1010"};
    TradeLine t;
    const struct {
        std::string text;
        const char* read; // units, call or put, cash type, and whether it belongs to the sheet
        double strike;
    } cases[] = {
        {line("1", "OPTSTK", "980.00", "CE", "2", "10", "5"), "-10 C  in", 980},
        {line("2", "OPTSTK", "1000", "PE", "3", "99", "5"), "-10 P  in", 1000}, // code 3 keeps the units
        {line("3", "FUTSTK", "", "XX", "1", "250", "1012.5"), "250 S F in", 0},
        {line("4", "OPTSTK", "980", "CE", "1", "5", "5", "24 NOV 2026"), "5 C F out", 980}, // cash type stays
        {line("5", "OPTSTK", "980", "CE", "1", "5", "5", "23 NOV 2026", "TCS"), "5 C F out", 980},
    };
    for (const auto& c : cases) {
        splitTradeLine(c.text, TradeLayout::FutStk, row);
        interpretTradeRow(row, TradeLayout::FutStk, filter, t);
        EXPECT_EQ(std::to_string(t.Units) + " " + t.CP + " " + t.CashType + (t.belongs ? " in" : " out"),
                  c.read)
            << c.text;
        EXPECT_EQ(t.Strike, c.strike) << c.text;
    }
    EXPECT_EQ(t.TrdDate + " " + t.TrdTime, "23-Nov-2026 10:15:32");
}

struct UploadDesk : LiveSheetDesk {
    std::string file(const std::string& name, const std::string& text) {
        const auto path = dir.path() / name;
        std::ofstream(path, std::ios::binary) << text;
        return path.string();
    }
    // The sheet's "Upload" with the file given to the dialog.
    void upload(const std::string& path) {
        ui.queueFile(path);
        ui.setModalRunner([&](Form& f) {
            f.fire("Command1", EventType::Click);
            f.fire("CmdUpload", EventType::Click);
            if (f.visible()) f.fire("Command2", EventType::Click);
        });
        s.Toolbar1_ButtonClick("Upload");
    }
    double count(const std::string& where) {
        return number("select count(*) from DummyTracker where " + where);
    }
};

const std::string kDay = line("11", "OPTSTK", "980", "CE", "2", "15", "21.5") + "\r\n" +
                         line("12", "OPTSTK", "1040", "PE", "1", "4", "30") + "\r\n" +
                         line("13", "FUTSTK", "", "XX", "1", "2", "1011") + "\r\n" +
                         line("14", "OPTSTK", "1500", "CE", "1", "1", "1") + "\r\n";

TEST(Upload, TheDayIsTakenAndUndoneByDelete) {
    UploadDesk d;
    const std::string path = d.file("fo.txt", kDay);
    d.upload(path);
    EXPECT_EQ(d.boxTexts(), (std::vector<std::string>{"Uploading in progress", "Uploading Complete"}));
    EXPECT_EQ(d.count("Field1 in ('11','12','13')"), 3) << "the strike outside the ladder is lost";
    EXPECT_EQ(d.s.va1().text(4, 3), "0") << "980 C sold flat";
    EXPECT_EQ(d.s.va1().cell(4, 3).fore, RiskSheet::kLongText) << "keeps the colour of its last position";
    // The file is recorded (that a second upload of it adds nothing is UploadBatch's to show).
    EXPECT_EQ(d.number("select count(*) from DumUploadFile where futstk = '" + path + "'"), 1);

    d.ui.setModalRunner([](Form& f) { f.fire("CmdDelete", EventType::Click); });
    d.s.Toolbar1_ButtonClick("Upload");
    EXPECT_EQ(d.count("TradeDt = cdate('23-11-2026')"), 0);
    EXPECT_EQ(d.number("select count(*) from DumUploadFile"), 0);
}

TEST(Upload, BadFilesMeetTheirBoxAndLeaveTheLedger) {
    const std::string good = line("21", "OPTSTK", "980", "CE", "1", "5", "20");
    const struct {
        const char* name;
        std::string text;
        const char* box;
        int taken;
    } cases[] = {
        {"header", "Trade No,Mkt\r\n" + good, "File does not contain Fut/Stock or Equity Data", 0},
        {"blank", good + "\n\n" + good, "Error in AppendProc Procedure: Type mismatch and No: 13", 0},
        {"other layout", "2000000000001,EQ,RELIANCE,EQ,X,,,,1,X,1,10,2449,N,C,1,N,T,B,23 NOV 2026 09:30:00",
         "File does not contain Fut/Stock or Equity Data", 0},
        {"binary", std::string("\x01\x00\xff,\x7f", 5),
         "Error in AppendProc Procedure: Type mismatch and No: 13", 0},
        {"no final line end", good + "\r\n" + line("22", "OPTSTK", "980", "CE", "1", "5", "20"),
         "Uploading in progress", 2},
        {"missing", "", "Error in AppendProc Procedure: File not found and No: 53", 0},
    };
    for (const auto& c : cases) {
        UploadDesk d;
        const double before = d.count("1=1");
        d.upload(c.name == std::string("missing") ? (d.dir.path() / "missing.txt").string()
                                                  : d.file("f.txt", c.text));
        EXPECT_EQ(d.boxTexts().front(), c.box) << c.name;
        EXPECT_EQ(d.count("1=1"), before + c.taken) << c.name;
    }
}

// Every ledger row, field and ladder cell the application leaves.
std::vector<std::string> sheetState(UploadDesk& d) {
    std::vector<std::string> all;
    for (auto rs = d.app.store().query("select * from DummyTracker order by rowid"); !rs.eof(); rs.moveNext())
        for (size_t c = 0; c < rs.fieldCount(); ++c)
            all.push_back(rs.at(c).textOrEmpty());
    for (const std::string& name : d.s.controlOrder())
        if (d.s.hasControl(name)) all.push_back(name + "=" + d.s.text(name));
    const Grid& g = d.s.va1();
    for (int r = 1; r <= g.maxRows(); ++r)
        for (int c = 1; c <= g.maxCols(); ++c)
            all.push_back(g.text(r, c) + "/" + std::to_string(g.cell(r, c).fore.value_or(0)));
    all.push_back(std::to_string(g.activeRow));
    return all;
}

TEST(Upload, BatchedApplicationLeavesWhatTradeByTradeLeaves) {
    // Closing and reopening series, a series flat at the end, one outside the ladder.
    const char* const staged[][3] = {{"980", "C", "-15"}, {"960", "P", "6"},   {"980", "C", "5"},
                                     {"1500", "C", "1"},  {"1000", "P", "8"},  {"1020", "C", "3"},
                                     {"980", "C", "-5"},  {"1040", "P", "-2"}, {"960", "C", "4"}};
    UploadDesk batched, byLine;
    for (UploadDesk* d : {&batched, &byLine})
        for (size_t i = 0; i < std::size(staged); ++i)
            d->insert("UploadTracker", {{"Symbol", "'RILK2026'"},
                                        {"InDesc", "'NOV SHEET'"},
                                        {"Strike", staged[i][0]},
                                        {"CP", q(staged[i][1])},
                                        {"Units", staged[i][2]},
                                        {"Traded", NumText(3.5 + static_cast<double>(i))},
                                        {"Field1", q(std::to_string(i))}});
    batched.s.PutOptionData("23-Nov-2026");
    byLine.s.PutOptionDataLineByLine("23-Nov-2026");
    EXPECT_EQ(sheetState(batched), sheetState(byLine));
    EXPECT_TRUE(batched.ui.boxes().empty());
}

} // namespace
} // namespace tallimark::test
