// The position file as the margin calculator must receive it, worked out by hand line by line.
#include "admin/AdminDesk.h"
#include "frame/VbFormat.h"
#include "margin/FrmCreatePon.h"
#include "margin/SpanRequest.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace tallimark {
namespace {

std::string crlf(std::string s) { // "|" parts the lines of a hand-written expectation
    for (size_t k; (k = s.find('|')) != std::string::npos;)
        s.replace(k, 1, "\r\n");
    return s;
}

std::string readFile(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

struct PonDesk : test::AdminDesk {
    FrmNewMainScreen& m = mainScreen();
    std::filesystem::path file = dir.path() / "eod.pon";
    PonDesk() {
        clock.setToday(VbDate::fromYmd(2026, 12, 2));
        app.session().g_UserName = "ADMIN";
        addSheet("RILK2026", "NOVEMBER For A", "S", "21-11-2026");
        addSheet("NIFX2026", "NIFTY For B", "F", "21-11-2026");
        for (const char* row : {"2400, 'C', -150", "2300, 'P', 25", "2412.5, 'C', 0"})
            app.store().execute(
                std::string("insert into PortfolioDet (Symbol, Descr, Strike, CP, Units) values "
                            "('RILK2026', 'NOVEMBER For A', ") +
                row + ")");
        for (const char* row : {"'S', 'F', 30", "'S', 'F', 20", "'S', 'Q', 100", "'C', NULL, 7"})
            app.store().execute(
                std::string("insert into Tracker (Symbol, InDesc, CP, CashType, Units) values "
                            "('RILK2026', 'NOVEMBER For A', ") +
                row + ")");
        m.PopulateLView();
        m.show();
        Grid& list = m.grid("ListView1");
        list.setChecked(1, true);
        list.setChecked(2, true);
        Event click{EventType::Click};
        click.row = 1; // the sheet last clicked is the current sheet
        m.fire("ListView1", click);
        m.fire("Command2", EventType::Click);
    }
    Form& pon() { return *app.screens().find(FrmCreatePon::kName); }
    std::string create() {
        pon().setText("LblFolder_Name", file.string());
        const std::string before = Format(clock.now(), "hh:mm");
        pon().fire("CmdPon_File", EventType::Click);
        return before;
    }
};

TEST(PositionFile, TwoTickedSheetsAsTheCalculatorReadsThem) {
    PonDesk d;
    d.pon().setText("DTPDate", "28-Nov-2026");
    const std::string before = d.create();
    const std::string written = readFile(d.file);
    const size_t at = written.find("<time>") + 6;
    const std::string time = written.substr(at, 5);
    EXPECT_TRUE(time == before || time == Format(d.clock.now(), "hh:mm")) << "the time is the clock's";

    // Both portfolios carry the option rows of the current sheet A, even the one for B.
    const std::string options =
        "<np>|<exch>NSE</exch>|<pfCode>{cc}</pfCode>|<pfType>OOP</pfType>|<pe>202612</pe>|"
        "<undPe>000000</undPe>|<o>C</o>|<k>2400.00</k>|<net>    -150.00</net>|</np>|"
        "<np>|<exch>NSE</exch>|<pfCode>{cc}</pfCode>|<pfType>OOP</pfType>|<pe>202612</pe>|"
        "<undPe>000000</undPe>|<o>P</o>|<k>2300.00</k>|<net>      25.00</net>|</np>|";
    auto portfolio = [&](const std::string& firm, const std::string& cc, const std::string& net) {
        std::string p = "<portfolio>|<firm>" + firm +
                        "</firm>|<acctId>ADMIN</acctId>|<acctType>S</acctType>|"
                        "<isCust>1</isCust>|<seg>N/A</seg>|<isNew>1</isNew>|<pclient>1</pclient>|"
                        "<currency>INR</currency>|<ledgerBal>0.00</ledgerBal>|<ote>0.00</ote>|"
                        "<securities>0.00</securities>|<ecPort>|<ec>NSCCL</ec>|<ccPort>|<cc>" +
                        cc +
                        "</cc>|"
                        "<r>1</r>|<currency>INR</currency>|<pss>0</pss>|<np>|<exch>NSE</exch>|<pfCode>" +
                        cc + "</pfCode>|<pfType>FUT</pfType>|<pe>202612</pe>|<net>" + net + "</net>|</np>|" +
                        options + "</ccPort>|</ecPort>|</portfolio>|";
        for (size_t k; (k = p.find("{cc}")) != std::string::npos;)
            p.replace(k, 4, cc);
        return p;
    };
    // The quirks: "fileformat" and "isSetl" spelled so; created and date the picked day, pe the
    // clock's month; the futures net from the ledger's committed futures only (30 + 20, not the
    // cash nor the option trade), right-aligned in 11; nil futures still written; a script code
    // (NIF) missing from the master leaves cc and pfCode empty; one more CRLF after the last tag.
    const std::string expected = crlf(
        "<?xml version=\"1.0\"?>|<posFile>|<fileformat>4.00</fileformat>|<created>20261128</created>|"
        "<pointInTime>|<date>20261128</date>|<isSetl>1</isSetl>|<setlQualifier>final</setlQualifier>|"
        "<time>" +
        time + "</time>|<run>0</run>|" + portfolio("RILK2026-NOVEMBER For A", "RELIANCE", "      50.00") +
        portfolio("NIFX2026-NIFTY For B", "", "       0.00") + "</pointInTime>|</posFile>||");
    EXPECT_EQ(written, expected);
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Success|Pon file created successfully|information"});
    EXPECT_EQ(d.ui.busyDepth(), 0);
    EXPECT_EQ(d.pon().focused(), "CmdClose");
}

TEST(PositionFile, OverwriteQuestionBothWaysAndTheFailurePath) {
    PonDesk d;
    std::ofstream(d.file) << "old";
    d.ui.queueAnswer(MsgAnswer::No);
    d.create();
    EXPECT_EQ(readFile(d.file), "old");
    EXPECT_EQ(d.boxLines(),
              (std::vector<std::string>{
                  "Check|eod.pon file already exists\n\nTo overwrite click \"Yes\"\n\nTo change file "
                  "name click \"No\"|question",
                  "Info|Please select another file name|information"}));
    EXPECT_EQ(d.ui.busyDepth(), 1) << "No leaves the pointer busy";
    EXPECT_TRUE(d.pon().control("CmdPon_File").enabled);
    EXPECT_EQ(d.pon().focused(), "CmdSelect");

    d.create(); // Yes, the first button
    EXPECT_EQ(readFile(d.file).substr(0, 21), "<?xml version=\"1.0\"?>");

    // A folder that is not there: the failure box, and the button stays off until the screen
    // is opened again.
    d.ui.clearBoxes();
    d.file = d.dir.path() / "gone" / "x.pon";
    d.create();
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{
                                "Error While Writing Text File|Error No.: 76\nPath not found|critical"});
    EXPECT_FALSE(d.pon().control("CmdPon_File").enabled);
    d.pon().fire("CmdClose", EventType::Click);
    EXPECT_TRUE(d.app.screens().get(FrmCreatePon::kName).control("CmdPon_File").enabled);
}

TEST(PositionFile, ChoosingTheFileKeepsToPonFiles) {
    PonDesk d;
    const std::string byDefault = (d.dir.path() / "20261202.pon").string();
    EXPECT_EQ(d.pon().text("LblFolder_Name"), byDefault);
    d.ui.queueFile("/desk/a.PON");
    d.ui.queueFile("/desk/b.pon");
    d.ui.queueFile(std::nullopt);
    const std::string shown[] = {byDefault, "/desk/b.pon", byDefault};
    for (const std::string& label : shown) {
        d.pon().fire("CmdSelect", EventType::Click);
        EXPECT_EQ(d.pon().text("LblFolder_Name"), label);
    }
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Error|Please create a \".pon\" file only|information"});
}

TEST(SpanRequest, DayBeforeMonthAndTheCalculatorsTables) {
    const std::string doc = SpanRequestDocument(VbDate::fromYmd(2003, 3, 5));
    EXPECT_NE(doc.find("<date>20030503</date>\r\n<isSet1>1</isSet1>\r\n<set1Qualifier>"), std::string::npos);
    const std::pair<std::string, size_t> blocks[] = {
        {"<point>4</point>\r\n<priceScanDef>\r\n<mult>0.333333", 8},
        {"<currencyDef>", 22},
        {"<acctTypeDef>", 7},
        {"<pbRateDef>", 11},
        {"<scanPointDef>", 23},
        {"<deltaPointDef>", 7}};
    for (const auto& [part, n] : blocks) {
        size_t found = 0;
        for (size_t k = doc.find(part); k != std::string::npos; k = doc.find(part, k + 1))
            ++found;
        EXPECT_EQ(found, n) << part;
    }
}

} // namespace
} // namespace tallimark
