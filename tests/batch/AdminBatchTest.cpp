// The sheet list and the new-sheet screen through the real batch executable: sheets made from
// the menu, opened on the screen of their type and seen in the main screen's list with the day
// they were made.
#include "BatchFixture.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {

class AdminBatch : public tallimark::test::BatchFixture {
protected:
    void SetUp() override {
        BatchFixture::SetUp();
        // The script master is kept by its own screen; the store gets the two scripts directly.
        const auto s = store();
        s->execute("insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('RIL', 'RELIANCE', 2.5)");
        s->execute("insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('NIF', 'NIFTY', 0)");
    }

    Outcome session(const std::string& text) { return script("login ADMIN tallimark\n" + text); }

    std::vector<std::string> sheets() {
        std::vector<std::string> all;
        for (auto rs = store()->query("select InType, InSymbol, InDesc, UComm from Trans"); !rs.eof();
             rs.moveNext())
            all.push_back(rs["InType"].text() + " " + rs["InSymbol"].text() + " " + rs["InDesc"].text() +
                          " " + rs["UComm"].text());
        return all;
    }
};

// A new sheet from the menu: script by the combo, month by leaving the month box.
std::string newSheet(const std::string& type, const std::string& script, const std::string& month,
                     const std::string& desc, const std::string& midStrike) {
    return "menu MDIForm1.munsheet\n"
           "check FrmNewScript." +
           type + " 1\n" + "set FrmNewScript.DataCombo1 " + script + "\n" +
           "focus FrmNewScript.Combo1\n"
           "set FrmNewScript.Combo1 " +
           month + "\n" + "focus FrmNewScript.TxtYear\n" + "set FrmNewScript.TxtDesc \"" + desc + "\"\n" +
           "focus FrmNewScript.TxtMStrike\n"
           "set FrmNewScript.TxtMStrike " +
           midStrike + "\n" + "set FrmNewScript.TxtAStrike 5\nset FrmNewScript.TxtBStrike 5\n" +
           "focus FrmNewScript.CmdOk\n"
           "click FrmNewScript.CmdOk\n";
}

} // namespace

TEST_F(AdminBatch, SheetsMadeFromTheMenuOpenOnTheirScreensAndAreListedWithTheirDay) {
    const Outcome r =
        session(newSheet("OptInType(1)", "RELIANCE", "NOVEMBER", "NOVEMBER For stock book", "2500") +
                "dump FrmPort5\n" +
                newSheet("OptInType(0)", "NIFTY", "DECEMBER", "DECEMBER For index book", "26000") +
                "dump FrmPortfolioIndex\n"
                "menu MDIForm1.munopen\n"
                "dump FrmNewMainScreen\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 3u) << "no box on the way: " << r.all();

    const std::string stock = r.dump("FrmPort5");
    EXPECT_TRUE(contains(stock, R"("visible":true)")) << stock;
    EXPECT_TRUE(contains(stock, R"("TxtSymbol":{"text":"RILK2026")")) << stock;
    const std::string index = r.dump("FrmPortfolioIndex");
    EXPECT_TRUE(contains(index, R"("visible":true)")) << index;
    EXPECT_TRUE(contains(index, R"("TxtSymbol":{"text":"NIFZ2026")")) << index;

    // Both sheets, each with the --today date.
    const std::string listed = r.dump("FrmNewMainScreen");
    EXPECT_TRUE(
        contains(listed, R"([{"text":"RILK2026","checked":false},"NOVEMBER For stock book","23-11-2026"])"))
        << listed;
    EXPECT_TRUE(
        contains(listed, R"([{"text":"NIFZ2026","checked":false},"DECEMBER For index book","23-11-2026"])"))
        << listed;
    EXPECT_EQ(sheets(), (std::vector<std::string>{"S RILK2026 NOVEMBER For stock book 2.5",
                                                  "F NIFZ2026 DECEMBER For index book 0"}));
}
