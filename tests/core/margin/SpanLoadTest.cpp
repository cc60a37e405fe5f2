// The calculator's answer read by fixed columns: what each shape of file stores in field2.
#include "TestDesk.h"
#include "margin/FrmSpan_Load.h"

#include <fstream>
#include <gtest/gtest.h>
#include <optional>

namespace tallimark {
namespace {

// A portfolio of the answer: its firm line and requirement blocks ("isM,spanReq,anov", a part
// left empty is a line left out).
std::string portfolio(const std::string& firm, std::initializer_list<std::string> blocks) {
    std::string s = "<portfolio>\r\n<firm>" + firm + "</firm>\r\n<currency>INR</currency>\r\n";
    for (const std::string& b : blocks) {
        const size_t c1 = b.find(','), c2 = b.find(',', c1 + 1);
        s += "<oReq>\r\n<isM>" + b.substr(0, c1) + "</isM>\r\n<pbc>CORE</pbc>\r\n";
        if (c2 > c1 + 1) s += "<spanReq>" + b.substr(c1 + 1, c2 - c1 - 1) + "</spanReq>\r\n";
        if (c2 + 1 < b.size()) s += "<anov>" + b.substr(c2 + 1) + "</anov>\r\n";
        s += "</oReq>\r\n";
    }
    return s + "</portfolio>\r\n";
}

const std::string A = "RILK2026-NOVEMBER For A", B = "NIFX2026-NIFTY For B";
const char* const kLoaded = "Success|Spn file loaded successfully|information";

struct Case {
    const char* what;
    std::string file;
    std::optional<double> a, b; // field2 of the two sheets, nothing while untouched
    std::string box;
};

TEST(SpanLoad, EachShapeOfAnswerStoresWhatItShould) {
    const std::string junk(16 << 20, '\x07'),
        cut = portfolio(A, {"1,5000,1200"}) + "<portfolio>\r\n<firm>" + B + "</firm>\r\n<oReq>\r\n";
    const std::vector<Case> cases = {
        {"two blocks: the last wins", portfolio(A, {"1,5000,1200", "1,7000,500.25"}), 6499.75, {}, kLoaded},
        {"isM 0 skips its block", portfolio(A, {"0,9999,1", "1,3000,1000"}), 2000, {}, kLoaded},
        {"no anov: the flag carries to the next block and portfolio",
         portfolio(A, {"1,4000,", "0,2500,500"}) + portfolio(B, {"1,100,", "0,800,900"}), 2000, -100,
         kLoaded},
        {"cut inside a portfolio: what was stored stays",
         cut,
         3800,
         {},
         "Error While Loading .spn File|Error No.: 62\nInput past end of file|critical"},
        {"upper-case tags match nothing", "<PORTFOLIO>\r\n<FIRM>" + A + "</FIRM>\r\n", {}, {}, kLoaded},
        {"a leading blank moves every column", " " + portfolio(A, {"1,5000,1200"}), {}, {}, kLoaded},
        {"a 7-character symbol is cut wrongly and finds no sheet",
         portfolio("LTK2026-NOVEMBER For A", {"1,5000,1200"}) + portfolio(B, {"1,10,1"}),
         {},
         9,
         kLoaded},
        {"a spanReq that is no number",
         portfolio(A, {"1,12x,1"}),
         {},
         {},
         "Error While Loading .spn File|Error No.: 13\nType mismatch|critical"},
        {"LF and CR line ends, no end at the last line",
         "<portfolio>\n<firm>" + A +
             "</firm>\r<oReq>\n<isM>1</isM>"
             "\n<spanReq>8</spanReq>\n<anov>1</anov>\n</oReq>\r\n</portfolio>",
         7,
         {},
         kLoaded},
        {"16 MB without a line end", junk, {}, {}, kLoaded},
        {"a firm line too long to hold",
         "<portfolio>\r\n<firm>" + junk + "</firm>\r\n",
         {},
         {},
         "Error While Loading .spn File|Error No.: 7\nOut of memory|critical"},
        {"binary with no portfolio", std::string("\0\xff<portfoli\r\n\x01", 15), {}, {}, kLoaded},
    };
    for (const Case& c : cases) {
        test::Desk d;
        for (const char* key : {"'RILK2026', 'NOVEMBER For A'", "'NIFX2026', 'NIFTY For B'"})
            d.app.store().execute(std::string("insert into PortfolioMast (Symbol, Descr) values (") + key +
                                  ")");
        auto& screen = d.app.screens().get<FrmSpan_Load>();
        screen.show();
        const auto path = d.dir.path() / "answer.spn";
        std::ofstream(path, std::ios::binary) << c.file;
        screen.setText("LblFolder_Name", path.string());
        screen.fire("CmdSpn_File", EventType::Click);
        auto field2 = [&d](const char* symbol) -> std::optional<double> {
            Recordset rs = d.app.store().query(
                std::string("select Field2 from PortfolioMast where Symbol = '") + symbol + "'");
            return rs["Field2"].isNull() ? std::nullopt : std::optional<double>(rs["Field2"].number());
        };
        EXPECT_EQ(field2("RILK2026"), c.a) << c.what;
        EXPECT_EQ(field2("NIFX2026"), c.b) << c.what;
        EXPECT_EQ(d.boxLines(), std::vector<std::string>{c.box}) << c.what;
        EXPECT_EQ(d.ui.busyDepth(), 0) << c.what;
        EXPECT_TRUE(screen.control("CmdSpn_File").enabled) << c.what;
        EXPECT_EQ(screen.focused(), "CmdClose") << c.what;
    }
}

} // namespace
} // namespace tallimark
