// The batch driver end to end: the real executable, a ready store and scripts of user actions.
#include "BatchFixture.h"
#include "frame/StoreLock.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {
class BatchDesk : public tallimark::test::BatchFixture {};
} // namespace

TEST_F(BatchDesk, CalculatorDefaultsAndADivisionByZero) {
    const Outcome r = script("login ADMIN tallimark\n"
                             "menu MDIForm1.mnucalc\n"
                             "click FrmCalc.Command1\n"
                             "dump FrmCalc\n"
                             "set FrmCalc.Text3 0\n"
                             "click FrmCalc.Command1\n"
                             "dump FrmCalc\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 3u) << r.all();
    EXPECT_TRUE(contains(r.lines[0], R"("Text6":{"text":"12.5941")")) << r.lines[0];
    EXPECT_TRUE(contains(r.lines[0], R"("Text9":{"text":"-0.0909")"));
    EXPECT_TRUE(contains(r.lines[0], R"("caption":"Calculator")"));
    EXPECT_EQ(r.lines[1],
              R"({"msgbox":{"title":"Tallimark","text":"Run-time error '11':\n\nDivision by zero",)"
              R"("icon":"critical","buttons":"OK","answer":"OK"}})");
    EXPECT_TRUE(contains(r.lines[2], R"("Text3":{"text":"0"})"));
    EXPECT_TRUE(contains(r.lines[2], R"("Text6":{"text":"12.5941")")) << "the outputs keep what they had";
}

TEST_F(BatchDesk, TheLoginTakesTheLinesUntilItHides) {
    const Outcome r = script("set FrmPwd1.txt_user_name ADMIN\n"
                             "set FrmPwd1.txt_password wrong\n"
                             "click FrmPwd1.cmdokcan(0)\n"
                             "dump FrmPwd1\n"
                             "set FrmPwd1.txt_user_name \"  ADMIN  \"\n"
                             "set FrmPwd1.txt_password tallimark\n"
                             "click FrmPwd1.cmdokcan(0)\n"
                             "dump MDIForm1\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 3u) << r.all();
    EXPECT_TRUE(contains(r.lines[0],
                         R"("title":"Invalid Login","text":"You Are Not a Valid User","icon":"critical")"));
    EXPECT_TRUE(contains(r.lines[1], R"("txt_user_name":{"text":""})")) << r.lines[1];
    EXPECT_TRUE(contains(r.lines[1], R"("visible":true)"));
    EXPECT_TRUE(contains(r.lines[2], R"({"dump":"MDIForm1")"));
}

TEST_F(BatchDesk, QueuedAnswersAndTheEndOfTheProgram) {
    const Outcome r = script("login ADMIN tallimark\n"
                             "answer No\n"
                             "close MDIForm1\n"
                             "dump FrmCalc\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    EXPECT_EQ(r.lines, std::vector<std::string>{R"({"end":true})"}) << "nothing runs after End";
}

TEST_F(BatchDesk, ScriptFaultsStopWithTheLineThatFailed) {
    struct Case {
        const char* line;
        const char* message;
    } cases[] = {
        {"click FrmCalc.NoSuchButton", "line 2: no control NoSuchButton on FrmCalc"},
        {"open FrmNothing", "line 2: Object required: no screen named FrmNothing"},
        {"jump FrmCalc", "line 2: unknown action jump"},
        {"key FrmCalc.Text1 enter", "line 2: not a whole number: enter"},
        // Inside a modal screen a fault stops the run as it does anywhere.
        {"open FrmScriptMast\nclick FrmScriptMast.Cmd(5)\nclick FrmSeek.NoSuchButton",
         "line 4: no control NoSuchButton on FrmSeek"},
        {"set FrmNewMainScreen.ListView1 x", "line 2: Control 'ListView1' not found"},
        {"check FrmNewMainScreen.ListView1 1 1", "line 2: no row 1"},
        {"check FrmSeek.MSHFlexGrid1 1 1", "line 2: MSHFlexGrid1 on FrmSeek has no check boxes"},
    };
    for (const auto& c : cases) {
        const Outcome r = script(std::string("login ADMIN tallimark\n") + c.line + "\n");
        EXPECT_EQ(r.exitCode, 1) << c.line;
        EXPECT_TRUE(contains(r.all(), c.message)) << r.all();
        EXPECT_FALSE(contains(r.all(), "Run-time error")) << r.all();
    }
    const Outcome unfinished = script("set FrmPwd1.txt_user_name ADMIN\n");
    EXPECT_EQ(unfinished.exitCode, 1);
    EXPECT_TRUE(contains(unfinished.all(), "ended while FrmPwd1 was shown modally")) << unfinished.all();
}

TEST_F(BatchDesk, UsageAndStoreErrors) {
    EXPECT_EQ(run("").exitCode, 2);
    EXPECT_EQ(run("--data " + dir_.string() + " --today 23/11 -").exitCode, 2);
    EXPECT_EQ(run("--data " + dir_.string() + " --new-store").exitCode, 1) << "an existing store is kept";
    const Outcome missing = run("--data " + (dir_ / "none").string() + " -");
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(contains(missing.all(), "Error in Main Procedure: ")) << missing.all();
    auto held = std::make_unique<tallimark::StoreLock>(storeFile()); // as another process holds it
    const Outcome refused = script("login ADMIN tallimark\n");
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(contains(refused.all(), storeFile().string() + " is open in another")) << refused.all();
    held.reset();
    EXPECT_EQ(script("login ADMIN tallimark\n").exitCode, 0) << "the lock goes with its holder";
}

TEST_F(BatchDesk, CheckTicksAListRowAndClicksItAsTheWindowDoes) {
    for (const char* sheet : {"'NIFTY', 'NIFTY DEC'", "'ACC', 'ACC DEC'"})
        store()->execute(std::string("insert into Trans (InType, InSymbol, InDesc, Transdt) values ('F', ") +
                         sheet + ", cdate('20-Nov-2026'))");
    const Outcome r =
        script("login ADMIN tallimark\nmenu MDIForm1.munopen\ncheck FrmNewMainScreen.ListView1 2 1\n"
               "dump FrmNewMainScreen\nclick FrmNewMainScreen.Cmd(3)\n");
    EXPECT_TRUE(contains(r.dump("FrmNewMainScreen"), R"([{"text":"ACC","checked":true})")) << r.all();
    // The tick's click chose the row, so Delete took the ticked sheet.
    EXPECT_EQ(store()->query("select InSymbol from Trans")["InSymbol"].text(), "NIFTY");
}
