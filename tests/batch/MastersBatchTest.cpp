// The master screens through the real batch executable: a script kept from New to Delete, the
// look-up dialogs taking the script's lines while they are up, and the users screen.
#include "BatchFixture.h"

#include "frame/Store.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {

class MastersBatch : public tallimark::test::BatchFixture {
protected:
    std::vector<std::string> scripts() {
        auto store = tallimark::Store::open(storeFile());
        std::vector<std::string> all;
        for (auto rs = store->query(
                 "select ScrCode, ScrName, RateDiff, Week_Gamma from ScriptMast order by ScrCode");
             !rs.eof(); rs.moveNext())
            all.push_back(rs["ScrCode"].text() + " " + rs["ScrName"].text() + " " + rs["RateDiff"].text() +
                          " " + rs["Week_Gamma"].text());
        return all;
    }
};

} // namespace

TEST_F(MastersBatch, AScriptAddedFoundModifiedAndDeleted) {
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
                                 "click FrmScriptMast.Cmd(4)\n"
                                 "dump FrmScriptMast\n");
    ASSERT_EQ(added.exitCode, 0) << added.all();
    EXPECT_EQ(scripts(), (std::vector<std::string>{"ACC ACC LTD 2.5 0", "BHEL BHARAT HEAVY 0 0"}));
    EXPECT_TRUE(contains(added.dump("FrmScriptMast"), R"j("Cmd(1)":{"text":"&Modify","enabled":false})j"))
        << added.all();

    // Find: the list takes the next lines until a row is picked; then the screen shows it.
    const Outcome found = script("login ADMIN tallimark\n"
                                 "menu MDIForm1.mnuscript\n"
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
    const std::string seek = found.dump("FrmSeek");
    EXPECT_TRUE(contains(seek, R"("caption":"Script List","visible":true)")) << seek;
    EXPECT_TRUE(contains(seek, R"("rows":[["ACC","ACC LTD"],["BHEL","BHARAT HEAVY"]],"activeRow":1)"))
        << seek;
    const std::string shown = found.dump("FrmScriptMast");
    EXPECT_TRUE(contains(shown, R"("TxtSptCode":{"text":"BHEL","locked":true})")) << shown;
    EXPECT_TRUE(contains(shown, R"("TxtRate":{"text":"0","locked":true})")) << shown;
    EXPECT_TRUE(contains(shown, R"j("Cmd(2)":{"text":"&Delete"})j")) << shown;
    EXPECT_EQ(scripts(), (std::vector<std::string>{"ACC ACC LTD 2.5 0", "BHEL BHEL LTD 0 40"}));

    // Delete: No keeps the row, Yes removes it.
    const Outcome deleted = script("login ADMIN tallimark\n"
                                   "menu MDIForm1.mnuscript\n"
                                   "click FrmScriptMast.Cmd(5)\n"
                                   "key FrmSeek.MSHFlexGrid1 13\n"
                                   "answer No\n"
                                   "click FrmScriptMast.Cmd(2)\n"
                                   "click FrmScriptMast.Cmd(5)\n"
                                   "key FrmSeek.MSHFlexGrid1 13\n"
                                   "click FrmScriptMast.Cmd(2)\n");
    ASSERT_EQ(deleted.exitCode, 0) << deleted.all();
    ASSERT_EQ(deleted.lines.size(), 2u) << deleted.all();
    EXPECT_TRUE(
        contains(deleted.lines[0], R"("title":"Delete Item","text":"Do you wish to delete this record?")"));
    EXPECT_TRUE(contains(deleted.lines[0], R"("answer":"No")"));
    EXPECT_TRUE(contains(deleted.lines[1], R"("answer":"Yes")"));
    EXPECT_EQ(scripts(), std::vector<std::string>{"BHEL BHEL LTD 0 40"});
}

TEST_F(MastersBatch, ADuplicateCodeAndEscInTheList) {
    const Outcome r = script("login ADMIN tallimark\n"
                             "menu MDIForm1.mnuscript\n"
                             "click FrmScriptMast.Cmd(0)\n"
                             "set FrmScriptMast.TxtSptCode INFY\n"
                             "click FrmScriptMast.Cmd(4)\n"
                             "click FrmScriptMast.Cmd(0)\n"
                             "set FrmScriptMast.TxtSptCode infy\n"
                             "click FrmScriptMast.Cmd(4)\n"
                             "click FrmScriptMast.Cmd(5)\n"
                             "key FrmSeek.MSHFlexGrid1 27\n"
                             "dump FrmScriptMast\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 2u) << r.all();
    EXPECT_EQ(r.lines[0], R"({"msgbox":{"title":"Error","text":"Failed in adding record","icon":"critical",)"
                          R"("buttons":"OK","answer":"OK"}})");
    EXPECT_TRUE(contains(r.lines[1], R"("TxtSptCode":{"text":"","locked":true})")) << r.lines[1];
    EXPECT_EQ(scripts(), std::vector<std::string>{"INFY  0 0"});
}

TEST_F(MastersBatch, AUserFoundWithTheIncrementalSearch) {
    const Outcome r = script("login ADMIN tallimark\n"
                             "menu MDIForm1.mnupass\n"
                             "click FrmUser.Cmd(0)\n"
                             "set FrmUser.TxtUserName ravi\n"
                             "focus FrmUser.TxtPwd\n"
                             "set FrmUser.TxtPwd r1\n"
                             "click FrmUser.Cmd(4)\n"
                             "click FrmUser.Cmd(5)\n"
                             "set search.txt_search R\n"
                             "key search.txt_search 13\n"
                             "dump FrmUser\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    const std::string user = r.dump("FrmUser");
    EXPECT_TRUE(contains(user, R"("TxtUserCode":{"text":"2","enabled":false,"locked":true})")) << user;
    EXPECT_TRUE(contains(user, R"("TxtUserName":{"text":"RAVI","locked":true})")) << user;
    EXPECT_TRUE(contains(user, R"("TxtPwd":{"text":"r1","locked":true})")) << user;
}
