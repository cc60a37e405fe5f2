// The script master: adding, finding, changing and deleting rows of ScriptMast.
#include "MastersDesk.h"

#include "admin/FrmScriptMast.h"

using namespace tallimark;

namespace {

using Typed = std::vector<std::pair<const char*, const char*>>;

struct ScriptDesk : test::MastersDesk<FrmScriptMast> {
    void type(const Typed& fields) {
        for (const auto& [field, text] : fields)
            f.setText(field, text);
    }
    // New, the fields typed, Save. The code field is left for the name only when asked.
    void add(const std::string& code, const std::string& name, bool leaveCode = true,
             const Typed& more = {}) {
        press(FrmScriptMast::New);
        f.setText("TxtSptCode", code);
        if (leaveCode) f.moveFocus("TxtSptName");
        f.setText("TxtSptName", name);
        type(more);
        press(FrmScriptMast::Save);
    }
    void find(int row) {
        seekPicks(row);
        press(FrmScriptMast::Find);
    }
    // The fields as shown and the row as stored, in the same order joined by "|".
    std::string shown() const {
        std::string t;
        for (const char* field : {"TxtSptCode", "TxtSptName", "TxtDesc", "TxtRate", "TxtExpLimit", "TxtFWeek",
                                  "TxtLastWeek", "TxtContract", "TxtEx_Margin"})
            t += "|" + f.text(field);
        return t.substr(1);
    }
    std::string row(const std::string& code) {
        Recordset rs = app.store().query("select * from ScriptMast where ScrCode = " + q(code));
        if (rs.eof()) return "<no row>";
        std::string t;
        for (const char* column : {"ScrCode", "ScrName", "Descr", "RateDiff", "Limit_Cr", "First_Gamma",
                                   "Week_Gamma", "Field2", "Field1"})
            t += "|" + rs[column].textOrEmpty();
        return t.substr(1);
    }
};

} // namespace

// Then Undo drops the typing, and Exit or Esc leave the screen.
TEST(ScriptMast, AnAddStoresEmptyFiguresAsZeroAndARefusedOneLeavesTheStore) {
    ScriptDesk d;
    EXPECT_EQ(d.mask(), "1000011") << "the screen opens idle";
    d.add("acc", "ACC LTD", true, {{"TxtDesc", "Cement"}, {"TxtRate", "2.5"}, {"TxtEx_Margin", "5%"}});
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    const std::string acc = "ACC|ACC LTD|Cement|2.5|0|0|0|0|5%";
    EXPECT_EQ(d.row("ACC"), acc);
    // Reset: idle, locked and empty again.
    EXPECT_EQ(d.mask(), "1000011");
    EXPECT_EQ(d.shown(), "||||||||");
    EXPECT_TRUE(d.f.control("TxtRate").locked);

    struct Case {
        const char *name, *code;
        Typed more;
    } refused[] = {
        {"the same code", "ACC", {}},
        {"the same code in other letters", "acc", {}},
        {"a quote in the name", "NEW", {{"TxtSptName", "DR REDDY'S"}}},
        {"a quote in the margin", "NEW", {{"TxtEx_Margin", "5'"}}},
        {"a rate that is no number", "NEW", {{"TxtRate", "abc"}}},
    };
    for (const Case& c : refused) {
        d.ui.clearBoxes();
        d.add(c.code, "SECOND", false, c.more);
        EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Error|Failed in adding record|critical"}) << c.name;
        EXPECT_EQ(d.count("ScriptMast"), 1) << c.name;
        EXPECT_EQ(d.row("ACC"), acc) << c.name;
        EXPECT_EQ(d.mask(), "1000011") << c.name << ": the screen resets all the same";
    }

    // A code saved without leaving its field keeps its letters.
    d.ui.clearBoxes();
    d.add("bhel", "BHARAT HEAVY", false);
    EXPECT_EQ(d.row("BHEL"), "bhel|BHARAT HEAVY||0|0|0|0|0|");

    d.press(FrmScriptMast::New);
    EXPECT_FALSE(d.f.control("TxtContract").locked);
    d.f.setText("TxtSptCode", "X");
    d.press(FrmScriptMast::Undo);
    EXPECT_EQ(d.f.text("TxtSptCode"), "");
    EXPECT_EQ(d.mask(), "1000011");
    EXPECT_TRUE(d.f.control("TxtSptCode").locked);
    d.press(FrmScriptMast::Exit);
    EXPECT_FALSE(d.f.visible());
    EXPECT_EQ(d.count("ScriptMast"), 2);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    d.f.show();
    test::pressKey(d.f, "TxtSptName", keys::Escape);
    EXPECT_FALSE(d.f.visible());
}

TEST(ScriptMast, FindFillsTheFieldsForModifyAndDelete) {
    ScriptDesk d;
    d.app.store().execute(
        "insert into ScriptMast (ScrCode, ScrName, RateDiff, Limit_Cr, First_Gamma, Field2) "
        "values ('ACC', 'ACC LTD', 1.5, 20, '100', 250)");
    d.add("BHEL", "BHARAT HEAVY");
    d.find(1);
    EXPECT_EQ(d.shown(), "ACC|ACC LTD||1.5|20|100||250|");
    EXPECT_EQ(d.mask(), "1110011");
    // Esc in the list leaves what is on the screen.
    d.find(0);
    EXPECT_EQ(d.f.text("TxtSptCode"), "ACC");

    d.find(2);
    d.press(FrmScriptMast::Modify);
    EXPECT_FALSE(d.f.control("TxtSptCode").enabled);
    EXPECT_FALSE(d.f.control("TxtSptName").locked);
    EXPECT_EQ(d.f.focused(), "TxtSptName");
    EXPECT_EQ(d.mask(), "0001101");
    d.type({{"TxtSptName", "BHEL LTD"}, {"TxtContract", ""}, {"TxtDesc", "Power"}});
    d.press(FrmScriptMast::Save);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    EXPECT_EQ(d.row("BHEL"), "BHEL|BHEL LTD|Power|0|0|0|0|0|");
    EXPECT_EQ(d.row("ACC"), "ACC|ACC LTD||1.5|20|100||250|");
    EXPECT_TRUE(d.f.control("TxtSptCode").enabled) << "the reset gives the code back";

    // A quote in the new description: the update fails and nothing changes.
    d.find(2);
    d.press(FrmScriptMast::Modify);
    d.f.setText("TxtDesc", "it's");
    d.press(FrmScriptMast::Save);
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"Error|Failed in updating record|critical"});
    EXPECT_EQ(d.row("BHEL"), "BHEL|BHEL LTD|Power|0|0|0|0|0|");

    d.ui.clearBoxes();
    d.find(1);
    d.ui.queueAnswer(MsgAnswer::No);
    d.press(FrmScriptMast::Delete);
    EXPECT_EQ(d.boxLines(),
              std::vector<std::string>{"Delete Item|Do you wish to delete this record?|question"});
    EXPECT_EQ(d.count("ScriptMast"), 2);
    EXPECT_EQ(d.mask(), "1000011");
    d.find(1);
    d.press(FrmScriptMast::Delete); // Yes
    EXPECT_EQ(d.row("ACC"), "<no row>");
    EXPECT_EQ(d.count("ScriptMast"), 1);
    EXPECT_EQ(d.f.text("TxtSptCode"), "");
}
