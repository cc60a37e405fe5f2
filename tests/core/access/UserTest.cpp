// The users screen: codes numbered from the highest, names unique and in capitals when typed
// and left, and the look-up that brings a user back.
#include "MastersDesk.h"

#include "access/FrmUser.h"

using namespace tallimark;

namespace {

struct UserDesk : test::MastersDesk<FrmUser> {
    void addUser(const std::string& code, const std::string& name) {
        app.store().execute("insert into Users (UserCd, UserNm, Pwd) values (" + q(code) + ", " + q(name) +
                            ", 'p')");
    }
    // Find, the look-up typing the text and taking the row with Enter; Esc for "".
    void find(const std::string& typed) {
        ui.setModalRunner([typed](Form& s) {
            if (!typed.empty()) s.setText("txt_search", typed);
            test::pressKey(s, "txt_search", typed.empty() ? keys::Escape : keys::Enter);
        });
        press(FrmUser::Find);
    }
    // Code|name|password as the screen shows them.
    std::string shown() const {
        return f.text("TxtUserCode") + "|" + f.text("TxtUserName") + "|" + f.text("TxtPwd");
    }
    std::string stored(const std::string& code) {
        Recordset rs = app.store().query("select UserNm, Pwd from Users where UserCd = " + q(code));
        return rs.eof() ? "<no row>" : rs["UserNm"].text() + "|" + rs["Pwd"].text();
    }
};

} // namespace

TEST(Users, NewNumbersFromTheHighestCode) {
    struct Case {
        const char* name;
        std::vector<const char*> codes; // besides ADMIN's "1"; none: the table emptied
        const char* next;
        std::vector<std::string> boxes; // none: the screen is adding
    } cases[] = {
        {"an empty table", {}, "1", {}},
        {"one code", {"7"}, "8", {}},
        {"codes are texts: 9 is higher than 10", {"9", "10"}, "10", {}},
        {"a strange code stops the numbering",
         {"X1"},
         "",
         {"Tallimark|Error in GetMaxID procedure: Type mismatch No: 13|none",
          "Error in Renumbering|Could not find max Area Code for auto numbering|none"}},
    };
    for (const Case& c : cases) {
        UserDesk d;
        if (c.codes.empty()) d.app.store().execute("delete from Users");
        for (const char* code : c.codes)
            d.addUser(code, std::string("U") + code);
        d.press(FrmUser::New);
        EXPECT_EQ(d.f.text("TxtUserCode"), c.next) << c.name;
        EXPECT_EQ(d.boxLines(), c.boxes) << c.name;
        EXPECT_EQ(d.mask(), c.boxes.empty() ? "0001101" : "1000011") << c.name;
    }
}

TEST(Users, SaveValidateRefusesAndTheScreenStays) {
    struct Case {
        const char *name, *code, *user;
        const char* box; // nullptr: accepted
    } cases[] = {
        {"no code", "", "RAVI", "User Code cannot be blank"},
        {"no name", "5", "  ", "User Name cannot be blank"},
        {"a name another code holds", "5", "ADMIN", "This User Name Already Exists."},
        {"in other letters too", "5", "admin", "This User Name Already Exists."},
        {"the same code keeps its name", "1", "ADMIN", nullptr},
    };
    for (const Case& c : cases) {
        UserDesk d;
        d.press(FrmUser::Modify);
        d.f.setText("TxtUserCode", c.code);
        d.f.setText("TxtUserName", c.user);
        d.f.setText("TxtPwd", "new");
        d.press(FrmUser::Save);
        const std::vector<std::string> refused{std::string("Entry Error|") + (c.box ? c.box : "") +
                                               "|critical"};
        EXPECT_EQ(d.boxLines(), c.box ? refused : std::vector<std::string>{}) << c.name;
        // A refusal keeps the screen modifying with the typing on it.
        EXPECT_EQ(d.mask(), c.box ? "0001101" : "1000011") << c.name;
        EXPECT_EQ(d.f.text("TxtPwd"), c.box ? "new" : "") << c.name;
        EXPECT_EQ(d.stored("1"), c.box ? "ADMIN|tallimark" : "ADMIN|new") << c.name;
    }
}

// The name is put in capitals only when left: the add below keeps it as typed, the modify
// further down leaves the field.
TEST(Users, SaveStoresTheUserAndFindBringsItBackForModifyAndDelete) {
    UserDesk d;
    d.press(FrmUser::New);
    EXPECT_FALSE(d.f.control("TxtUserName").locked);
    EXPECT_EQ(d.f.focused(), "TxtUserName");
    d.f.setText("TxtUserName", "ravi");
    d.f.setText("TxtPwd", "Secret");
    d.press(FrmUser::Save);
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
    EXPECT_EQ(d.stored("2"), "ravi|Secret");
    EXPECT_EQ(d.mask(), "1000011");
    EXPECT_EQ(d.shown(), "||");

    // A quote fails the add with both boxes.
    d.press(FrmUser::New);
    d.f.setText("TxtUserName", "RAJ");
    d.f.setText("TxtPwd", "it's");
    d.press(FrmUser::Save);
    ASSERT_EQ(d.ui.boxes().size(), 2u);
    EXPECT_EQ(d.ui.boxes()[0].box.text.rfind("Error in AddRecords Procedure: ", 0), 0u);
    EXPECT_NE(d.ui.boxes()[0].box.text.find(" No: "), std::string::npos);
    EXPECT_EQ(d.ui.boxes()[1].box.text, "Failed in adding record");
    EXPECT_EQ(d.count("Users"), 2);

    // Find brings a user back for Modify and Delete.
    d.ui.clearBoxes();
    d.addUser("3", "MOHAN");
    d.find("moh");
    EXPECT_EQ(d.shown(), "3|MOHAN|p");
    EXPECT_EQ(d.mask(), "1110011");
    // An empty pick clears the keys; the password is not touched.
    d.find("");
    EXPECT_EQ(d.shown(), "||p");

    d.find("MOHAN");
    d.press(FrmUser::Modify);
    EXPECT_FALSE(d.f.control("TxtUserCode").enabled);
    d.f.setText("TxtUserName", "mohan das");
    d.f.moveFocus("TxtPwd");
    d.press(FrmUser::Save);
    EXPECT_EQ(d.stored("3"), "MOHAN DAS|p");
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();

    // The shared Delete (its question is the script master's test) removes the user found.
    d.find("MOHAN");
    d.press(FrmUser::Delete);
    EXPECT_EQ(d.stored("3"), "<no row>");
    EXPECT_EQ(d.count("Users"), 2);
    EXPECT_EQ(d.mask(), "1000011");
}
