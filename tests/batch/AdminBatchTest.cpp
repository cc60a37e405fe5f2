// The sheet list and the new-sheet screen through the real batch executable: sheets made from
// the menu, seen in the main screen's list with the day they were made, and deleted.
#include "BatchFixture.h"
#include "frame/Store.h"

using tallimark::test::contains;
using tallimark::test::Outcome;

namespace {

class AdminBatch : public tallimark::test::BatchFixture {
protected:
    void SetUp() override {
        BatchFixture::SetUp();
        // The script master is kept by its own screen; the store gets the two scripts directly.
        auto store = tallimark::Store::open(storeFile());
        store->execute("insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('RIL', 'RELIANCE', 2.5)");
        store->execute("insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('NIF', 'NIFTY', 0)");
    }

    Outcome session(const std::string& text) { return script("login ADMIN tallimark\n" + text); }

    std::vector<std::string> sheets() {
        auto store = tallimark::Store::open(storeFile());
        std::vector<std::string> all;
        for (auto rs = store->query("select InType, InSymbol, InDesc, UComm from Trans"); !rs.eof();
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

TEST_F(AdminBatch, SheetsMadeListedWithTheirDayAndOneDeleted) {
    const Outcome r =
        session(newSheet("OptInType(1)", "RELIANCE", "NOVEMBER", "NOVEMBER For stock book", "2500") +
                "dump FrmNewScript\n"
                "dump FrmPort5\n" +
                newSheet("OptInType(0)", "NIFTY", "DECEMBER", "DECEMBER For index book", "26000") +
                "dump FrmPortfolioIndex\n"
                "menu MDIForm1.munopen\n"
                "dump FrmNewMainScreen\n"
                "gridclick FrmNewMainScreen.ListView1 1 1\n"
                "answer Yes\n"
                "click FrmNewMainScreen.Cmd(3)\n"
                "dump FrmNewMainScreen\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    EXPECT_FALSE(contains(r.all(), "Failed in Adding Record")) << r.all();

    // The first save hid the screen, set the picker to the last Thursday and cleared its fields.
    const std::string made = r.dump("FrmNewScript");
    EXPECT_TRUE(contains(made, R"("visible":false)")) << made;
    EXPECT_TRUE(contains(made, R"("DTPicker1":{"text":"26-Nov-26"})")) << made;
    EXPECT_TRUE(contains(made, R"("TxtInSymbol":{"text":""})")) << made;

    // Each sheet opened on the screen of its type.
    const std::string stock = r.dump("FrmPort5");
    EXPECT_TRUE(contains(stock, R"("visible":true)")) << stock;
    EXPECT_TRUE(contains(stock, R"("TxtSymbol":{"text":"RILK2026")")) << stock;
    const std::string index = r.dump("FrmPortfolioIndex");
    EXPECT_TRUE(contains(index, R"("visible":true)")) << index;
    EXPECT_TRUE(contains(index, R"("TxtSymbol":{"text":"NIFZ2026")")) << index;

    // Both sheets, each with the --today date, before the delete.
    const std::string* listed = nullptr;
    for (const auto& l : r.lines)
        if (l.rfind(R"({"dump":"FrmNewMainScreen")", 0) == 0) {
            listed = &l;
            break;
        }
    ASSERT_NE(listed, nullptr) << r.all();
    EXPECT_TRUE(
        contains(*listed, R"([{"text":"RILK2026","checked":false},"NOVEMBER For stock book","23-11-2026"])"))
        << *listed;
    EXPECT_TRUE(
        contains(*listed, R"([{"text":"NIFZ2026","checked":false},"DECEMBER For index book","23-11-2026"])"))
        << *listed;

    const std::string after = r.dump("FrmNewMainScreen");
    EXPECT_FALSE(contains(after, "RILK2026")) << after;
    EXPECT_TRUE(contains(after, "NIFZ2026")) << after;
    EXPECT_TRUE(contains(r.all(), R"("text":"Are you sure you wish to delete record?")")) << r.all();
    EXPECT_EQ(sheets(), std::vector<std::string>{"F NIFZ2026 DECEMBER For index book 0"});
}

TEST_F(AdminBatch, RefusedSymbolsAndAnEmptyTickListSayWhy) {
    const Outcome r = session("menu MDIForm1.munsheet\n"
                              "set FrmNewScript.TxtInSymbol RELIK2026\n"
                              "set FrmNewScript.TxtDesc \"x For y\"\n"
                              "click FrmNewScript.CmdOk\n"
                              "set FrmNewScript.TxtInSymbol RILW2026\n"
                              "click FrmNewScript.CmdOk\n"
                              "menu MDIForm1.munopen\n"
                              "click FrmNewMainScreen.Command2\n"
                              "close FrmNewMainScreen\n");
    ASSERT_EQ(r.exitCode, 0) << r.all();
    ASSERT_EQ(r.lines.size(), 4u) << r.all();
    EXPECT_EQ(r.lines[0], R"({"msgbox":{"title":"Entry Error","text":"Symbol not in correct format",)"
                          R"("icon":"critical","buttons":"OK","answer":"OK"}})");
    EXPECT_TRUE(
        contains(r.lines[1], "Code for month in Instrument symbol is incorrect, Please enter correct code"));
    EXPECT_TRUE(contains(r.lines[2], R"("title":"Data Error")")) << r.lines[2];
    EXPECT_EQ(r.lines[3], R"({"end":true})") << "closing the main screen ends the program";
    EXPECT_TRUE(sheets().empty());
}
