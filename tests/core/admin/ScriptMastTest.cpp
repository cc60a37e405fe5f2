// The script master: adding, finding, changing and deleting rows of ScriptMast.
#include "MastersDesk.h"

#include "admin/FrmScriptMast.h"
#include "admin/Frmnth.h"

using namespace tallimark;

namespace {

struct ScriptDesk : test::MastersDesk<FrmScriptMast> {
    // New, the fields typed, Save. The code field is left for the name only when asked.
    void add(const std::string& code, const std::string& name, bool leaveCode = true,
             std::vector<std::pair<const char*, const char*>> more = {}) {
        press(FrmScriptMast::New);
        f.setText("TxtSptCode", code);
        if (leaveCode) f.moveFocus("TxtSptName");
        f.setText("TxtSptName", name);
        for (const auto& [field, text] : more)
            f.setText(field, text);
        press(FrmScriptMast::Save);
    }
    std::string column(const std::string& code, const std::string& col) {
        Recordset rs = app.store().query("select * from ScriptMast where ScrCode = " + q(code));
        return rs.eof() ? "<no row>" : rs[col].textOrEmpty();
    }
};

} // namespace

TEST(ScriptMast, OpensIdleWithItsCaptions) {
    ScriptDesk d;
    EXPECT_EQ(d.f.caption(), "Script Master ...Tallimark");
    EXPECT_EQ(d.mask(), "1000011");
    // The access keys of the captions are the desk's way round the screen.
    for (const auto& [control, caption] :
         {std::pair{"LblSptCode", "Script &Code"}, {"LblFWeek", "&First Week"}, {"Cmd(6)", "E&xit"}})
        EXPECT_EQ(d.f.text(control), caption) << control;
    EXPECT_TRUE(d.f.control("TxtSptName").locked);
}

TEST(ScriptMast, NewUnlocksAndSaveStoresWithEmptyFiguresAsZero) {
    ScriptDesk d;
    d.press(FrmScriptMast::New);
    EXPECT_EQ(d.mask(), "0001101");
    EXPECT_EQ(d.f.mode, FrmScriptMast::Adding);
    EXPECT_EQ(d.f.focused(), "TxtSptCode");
    EXPECT_FALSE(d.f.control("TxtContract").locked);

    d.f.setText("TxtSptCode", "acc");
    d.f.setText("TxtSptName", "ACC LTD");
    d.f.setText("TxtDesc", "Cement");
    d.f.setText("TxtRate", "2.5");
    d.f.setText("TxtEx_Margin", "5%");
    d.press(FrmScriptMast::Save);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();

    const std::pair<const char*, const char*> stored[] = {
        {"ScrName", "ACC LTD"}, {"Descr", "Cement"}, {"RateDiff", "2.5"}, {"Limit_Cr", "0"},
        {"First_Gamma", "0"},   {"Week_Gamma", "0"}, {"Field2", "0"},     {"Field1", "5%"}};
    for (const auto& [col, value] : stored)
        EXPECT_EQ(d.column("ACC", col), value) << col;
    // Reset: idle, locked and empty again.
    EXPECT_EQ(d.f.mode, FrmScriptMast::Idle);
    EXPECT_EQ(d.mask(), "1000011");
    EXPECT_EQ(d.f.text("TxtRate"), "");
    EXPECT_TRUE(d.f.control("TxtRate").locked);
}

TEST(ScriptMast, TheCodeIsUpperCasedOnlyOnLeavingTheField) {
    struct Case {
        bool leave;
        const char* stored;
    } cases[] = {{true, "BHEL"}, {false, "bhel"}};
    for (const Case& c : cases) {
        ScriptDesk d;
        d.add("bhel", "BHARAT HEAVY", c.leave);
        Recordset rs = d.app.store().query("select ScrCode from ScriptMast");
        ASSERT_FALSE(rs.eof());
        EXPECT_EQ(rs["ScrCode"].text(), c.stored);
    }
}

TEST(ScriptMast, EnterMovesOnAndEscHides) {
    ScriptDesk d;
    d.press(FrmScriptMast::New);
    d.f.setText("TxtSptCode", "infy");
    test::pressKey(d.f, "TxtSptCode", keys::Enter);
    EXPECT_EQ(d.f.focused(), "TxtSptName");
    EXPECT_EQ(d.f.text("TxtSptCode"), "INFY");
    test::pressKey(d.f, "TxtSptName", keys::Escape);
    EXPECT_FALSE(d.f.visible());
}

TEST(ScriptMast, RefusedSavesShowTheFailureAndLeaveTheStore) {
    struct Case {
        const char* name;
        const char* code;
        std::vector<std::pair<const char*, const char*>> more;
    } cases[] = {
        {"the same code", "ACC", {}},
        {"the same code in other letters", "acc", {}},
        {"a quote in the name", "NEW", {{"TxtSptName", "DR REDDY'S"}}},
        {"a quote in the margin", "NEW", {{"TxtEx_Margin", "5'"}}},
        {"a rate that is no number", "NEW", {{"TxtRate", "abc"}}},
    };
    for (const Case& c : cases) {
        ScriptDesk d;
        d.add("ACC", "ACC LTD");
        d.add(c.code, "SECOND", false, c.more);
        EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Error|Failed in adding record|critical"}) << c.name;
        EXPECT_EQ(d.count("ScriptMast"), 1) << c.name;
        EXPECT_EQ(d.column("ACC", "ScrName"), "ACC LTD") << c.name;
        EXPECT_EQ(d.mask(), "1000011") << c.name << ": the screen resets all the same";
    }
}

TEST(ScriptMast, FindFillsTheFieldsAndOffersModifyAndDelete) {
    ScriptDesk d;
    d.app.store().execute(
        "insert into ScriptMast (ScrCode, ScrName, RateDiff, Limit_Cr, First_Gamma, Field2) "
        "values ('ACC', 'ACC LTD', 1.5, 20, '100', 250)");
    d.app.store().execute("insert into ScriptMast (ScrCode, ScrName) values ('BHEL', 'BHARAT HEAVY')");
    d.seekPicks(1);
    d.press(FrmScriptMast::Find);
    const std::pair<const char*, const char*> shown[] = {
        {"TxtSptCode", "ACC"},  {"TxtSptName", "ACC LTD"}, {"TxtRate", "1.5"},
        {"TxtExpLimit", "20"},  {"TxtFWeek", "100"},       {"TxtLastWeek", ""},
        {"TxtContract", "250"}, {"TxtDesc", ""},           {"TxtEx_Margin", ""}};
    for (const auto& [field, text] : shown)
        EXPECT_EQ(d.f.text(field), text) << field;
    EXPECT_EQ(d.mask(), "1110011");
    EXPECT_TRUE(d.f.control("TxtSptName").locked);
    EXPECT_EQ(d.app.screens().find(FrmSeek::kName), nullptr);

    // Esc in the list leaves what is on the screen.
    d.seekPicks(0);
    d.press(FrmScriptMast::Find);
    EXPECT_EQ(d.f.text("TxtSptCode"), "ACC");
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
}

TEST(ScriptMast, ModifyKeepsTheCodeAndRewritesTheRest) {
    ScriptDesk d;
    d.add("ACC", "ACC LTD");
    d.add("BHEL", "BHARAT HEAVY");
    d.seekPicks(2);
    d.press(FrmScriptMast::Find);
    d.press(FrmScriptMast::Modify);
    EXPECT_FALSE(d.f.control("TxtSptCode").enabled);
    EXPECT_FALSE(d.f.control("TxtSptName").locked);
    EXPECT_EQ(d.f.focused(), "TxtSptName");
    EXPECT_EQ(d.mask(), "0001101");
    d.f.setText("TxtSptName", "BHEL LTD");
    d.f.setText("TxtContract", "");
    d.press(FrmScriptMast::Save);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    EXPECT_EQ(d.column("BHEL", "ScrName"), "BHEL LTD");
    EXPECT_EQ(d.column("BHEL", "Field2"), "0");
    EXPECT_EQ(d.column("ACC", "ScrName"), "ACC LTD");
    EXPECT_TRUE(d.f.control("TxtSptCode").enabled) << "the reset gives the code back";

    // A quote in the new name: the update fails and nothing changes.
    d.press(FrmScriptMast::Find);
    d.press(FrmScriptMast::Modify);
    d.f.setText("TxtDesc", "it's");
    d.press(FrmScriptMast::Save);
    EXPECT_EQ(d.lastBox(), "Failed in updating record");
    EXPECT_EQ(d.column("BHEL", "Descr"), "");
}

TEST(ScriptMast, DeleteAsksFirst) {
    ScriptDesk d;
    d.add("ACC", "ACC LTD");
    d.seekPicks(1);
    d.press(FrmScriptMast::Find);
    d.ui.queueAnswer(MsgAnswer::No);
    d.press(FrmScriptMast::Delete);
    EXPECT_EQ(d.boxLines(),
              std::vector<std::string>{"Delete Item|Do you wish to delete this record?|question"});
    EXPECT_EQ(d.count("ScriptMast"), 1);
    EXPECT_EQ(d.mask(), "1000011");

    d.press(FrmScriptMast::Find);
    d.press(FrmScriptMast::Delete); // Yes
    EXPECT_EQ(d.count("ScriptMast"), 0);
    EXPECT_EQ(d.f.text("TxtSptCode"), "");
}

TEST(ScriptMast, UndoAndExit) {
    ScriptDesk d;
    d.press(FrmScriptMast::New);
    d.f.setText("TxtSptCode", "X");
    d.press(FrmScriptMast::Undo);
    EXPECT_EQ(d.f.text("TxtSptCode"), "");
    EXPECT_EQ(d.mask(), "1000011");
    EXPECT_TRUE(d.f.control("TxtSptCode").locked);
    d.press(FrmScriptMast::Exit);
    EXPECT_FALSE(d.f.visible());
    EXPECT_EQ(d.count("ScriptMast"), 0);
}

TEST(MonthMaster, AnEmptyGridUnderItsThreeHeadings) {
    test::Desk d;
    Form& f = d.app.screens().get(Frmnth::kName);
    EXPECT_EQ(f.caption(), "Month Master Detail");
    Grid& va1 = f.grid("va1");
    EXPECT_EQ(va1.maxRows(), 0);
    ASSERT_EQ(va1.maxCols(), 3);
    const std::pair<const char*, double> columns[] = {{"Month", 12}, {"Stock", 5}, {"Future", 5}};
    for (int c = 1; c <= 3; ++c) {
        EXPECT_EQ(va1.column(c).heading, columns[c - 1].first);
        EXPECT_EQ(va1.column(c).width, columns[c - 1].second);
    }
}
