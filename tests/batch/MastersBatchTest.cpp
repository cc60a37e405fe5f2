// The script master through the real batch executable: scripts added, and the look-up list
// taking the script's lines while it is up.
#include "BatchFixture.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {

class MastersBatch : public tallimark::test::BatchFixture {
protected:
    std::vector<std::string> scripts() {
        std::vector<std::string> all;
        for (auto rs = store()->query(
                 "select ScrCode, ScrName, RateDiff, Week_Gamma from ScriptMast order by ScrCode");
             !rs.eof(); rs.moveNext())
            all.push_back(rs["ScrCode"].text() + " " + rs["ScrName"].text() + " " + rs["RateDiff"].text() +
                          " " + rs["Week_Gamma"].text());
        return all;
    }
};

} // namespace

TEST_F(MastersBatch, AScriptAddedThenFoundThroughTheListAndModified) {
    const Outcome added = script("login ADMIN tallimark\n"
                                 "menu MDIForm1.mnuscript\n"
                                 "click FrmScriptMast.Cmd(0)\n"
                                 "set FrmScriptMast.TxtSptCode acc\n"
                                 "focus FrmScriptMast.TxtSptName\n"
                                 "set FrmScriptMast.TxtSptName \"ACC LTD\"\n"
                                 "set FrmScriptMast.TxtRate 2.5\n"
                                 "click FrmScriptMast.Cmd(4)\n"
                                 "click FrmScriptMast.Cmd(0)\n"
                                 "set FrmScriptMast.TxtSptCode BHEL\n"
                                 "set FrmScriptMast.TxtSptName \"BHARAT HEAVY\"\n"
                                 "click FrmScriptMast.Cmd(4)\n");
    ASSERT_EQ(added.exitCode, 0) << added.all();
    EXPECT_EQ(scripts(), (std::vector<std::string>{"ACC ACC LTD 2.5 0", "BHEL BHARAT HEAVY 0 0"}));

    // The list takes the next lines until it is left: Esc picks nothing, Enter the row clicked.
    const Outcome found = script("login ADMIN tallimark\n"
                                 "menu MDIForm1.mnuscript\n"
                                 "click FrmScriptMast.Cmd(5)\n"
                                 "key FrmSeek.MSHFlexGrid1 27\n"
                                 "click FrmScriptMast.Cmd(5)\n"
                                 "dump FrmSeek\n"
                                 "gridclick FrmSeek.MSHFlexGrid1 2 1\n"
                                 "key FrmSeek.MSHFlexGrid1 13\n"
                                 "dump FrmScriptMast\n"
                                 "click FrmScriptMast.Cmd(1)\n"
                                 "set FrmScriptMast.TxtSptName \"BHEL LTD\"\n"
                                 "set FrmScriptMast.TxtLastWeek 40\n"
                                 "click FrmScriptMast.Cmd(4)\n");
    ASSERT_EQ(found.exitCode, 0) << found.all();
    ASSERT_EQ(found.lines.size(), 2u) << found.all();
    const std::string seek = found.dump("FrmSeek");
    EXPECT_TRUE(contains(seek, R"("caption":"Script List","visible":true)")) << seek;
    EXPECT_TRUE(contains(seek, R"("rows":[["ACC","ACC LTD"],["BHEL","BHARAT HEAVY"]],"activeRow":1)"))
        << seek;
    const std::string shown = found.dump("FrmScriptMast");
    EXPECT_TRUE(contains(shown, R"("TxtSptCode":{"text":"BHEL","locked":true})")) << shown;
    EXPECT_TRUE(contains(shown, R"("TxtRate":{"text":"0","locked":true})")) << shown;
    EXPECT_EQ(scripts(), (std::vector<std::string>{"ACC ACC LTD 2.5 0", "BHEL BHEL LTD 0 40"}));
}
