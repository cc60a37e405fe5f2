// The margin files without a display: the span request pressed on its hidden button, and the
// calculator's answer loaded into the sheets' margins.
#include "BatchFixture.h"

#include <fstream>

using tallimark::test::contains;

namespace {

class MarginBatch : public tallimark::test::BatchFixture {};

TEST_F(MarginBatch, SpanRequestAndAnswerLoad) {
    std::filesystem::create_directories(dir_ / "Span Files");
    store()->execute("insert into PortfolioMast (Symbol, Descr) values ('RILK2026', 'NOVEMBER For A')");
    std::ofstream(dir_ / "answer.spn")
        << "<portfolio>\n<firm>RILK2026-NOVEMBER For A</firm>\n<oReq>\n<isM>1</isM>\n"
           "<spanReq>52000.5</spanReq>\n<anov>2000</anov>\n</oReq>\n</portfolio>\n";
    const auto r = script("login ADMIN tallimark\n"
                          "open FrmCreatePon\n"
                          "click FrmCreatePon.Command1\n"
                          "open FrmSpan_Load\n"
                          "file " +
                          (dir_ / "answer.spn").string() +
                          "\n"
                          "click FrmSpan_Load.CmdSelect\n"
                          "click FrmSpan_Load.CmdSpn_File\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    EXPECT_TRUE(contains(r.all(), "Spn file loaded successfully")) << r.all();
    EXPECT_TRUE(std::filesystem::exists(dir_ / "Span Files" / "span2311.spn"));
    EXPECT_EQ(store()->query("select Field2 from PortfolioMast")["Field2"].number(), 50000.5);
}

} // namespace
