// The users screen: codes numbered from the highest, names unique and in capitals when typed
// and left, and the look-up that brings a user back.
#include "MastersDesk.h"

#include "access/FrmUser.h"
#include "access/Search.h"

using namespace tallimark;

namespace {

struct UserDesk : test::MastersDesk<FrmUser> {
    void addUser(const std::string& code, const std::string& name) {
        app.store().execute("insert into Users (UserCd, UserNm, Pwd) values (" + q(code) + ", " + q(name) +
                            ", 'p')");
    }
    // The next look-up of search types the text and takes the row with Enter; Esc for "".
    void searchPicks(const std::string& typed) {
        ui.setModalRunner([typed](Form& s) {
            if (!typed.empty()) s.setText("txt_search", typed);
            test::pressKey(s, "txt_search", typed.empty() ? keys::Escape : keys::Enter);
        });
    }
    std::string nameOf(const std::string& code) {
        Recordset rs = app.store().query("select UserNm from Users where UserCd = " + q(code));
        return rs.eof() ? "<no row>" : rs["UserNm"].text();
    }
};

} // namespace

TEST(Users, NewNumbersFromTheHighestCode) {
    struct Case {
        std::vector<const char*> codes; // besides ADMIN's "1"
        const char* next;
    } cases[] = {
        {{}, "2"},
        {{"7"}, "8"},
        // The codes are texts: "9" is higher than "10".
        {{"9", "10"}, "10"},
    };
    for (const Case& c : cases) {
        UserDesk d;
        for (const char* code : c.codes)
            d.addUser(code, std::string("U") + code);
        d.press(FrmUser::New);
        EXPECT_EQ(d.f.text("TxtUserCode"), c.next);
        EXPECT_FALSE(d.f.control("TxtUserCode").enabled);
        EXPECT_FALSE(d.f.control("TxtUserName").locked);
        EXPECT_EQ(d.f.focused(), "TxtUserName");
        EXPECT_EQ(d.mask(), "0001101");
        EXPECT_EQ(d.f.mode, FrmUser::Adding);
    }
}

TEST(Users, AnEmptyTableStartsAtOneAndAStrangeCodeStopsTheNumbering) {
    UserDesk d;
    d.app.store().execute("delete from Users");
    d.press(FrmUser::New);
    EXPECT_EQ(d.f.text("TxtUserCode"), "1");

    UserDesk e;
    e.addUser("X1", "ODD");
    e.press(FrmUser::New);
    ASSERT_EQ(e.ui.boxes().size(), 2u);
    EXPECT_EQ(e.ui.boxes()[0].box.text, "Error in GetMaxID procedure: Type mismatch No: 13");
    EXPECT_EQ(e.ui.boxes()[1].box.title, "Error in Renumbering");
    EXPECT_EQ(e.ui.boxes()[1].box.text, "Could not find max Area Code for auto numbering");
    EXPECT_EQ(e.mask(), "1000011");
    EXPECT_EQ(e.f.text("TxtUserCode"), "");
}

TEST(Users, TheNameIsUpperCasedOnlyWhenLeftBeforeSave) {
    struct Case {
        bool leave;
        const char* stored;
    } cases[] = {{true, "RAVI"}, {false, "ravi"}};
    for (const Case& c : cases) {
        UserDesk d;
        d.press(FrmUser::New);
        d.f.setText("TxtUserName", "ravi");
        if (c.leave) d.f.moveFocus("TxtPwd");
        d.f.setText("TxtPwd", "Secret");
        d.press(FrmUser::Save);
        EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
        EXPECT_EQ(d.nameOf("2"), c.stored);
        EXPECT_EQ(d.mask(), "1000011");
        EXPECT_EQ(d.f.text("TxtUserName"), "");
    }
}

TEST(Users, SaveValidateRefusesAndTheScreenStays) {
    struct Case {
        const char* name;
        const char* code;
        const char* user;
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
        if (c.box) {
            EXPECT_EQ(d.boxLines(),
                      std::vector<std::string>{std::string("Entry Error|") + c.box + "|critical"})
                << c.name;
            EXPECT_EQ(d.mask(), "0001101") << c.name << ": still modifying";
            EXPECT_EQ(d.f.text("TxtPwd"), "new") << c.name;
        } else {
            EXPECT_TRUE(d.ui.boxes().empty()) << c.name << ": " << d.lastBox();
            EXPECT_EQ(d.mask(), "1000011") << c.name;
        }
        EXPECT_EQ(d.app.store().query("select Pwd from Users where UserCd = '1'")["Pwd"].text(),
                  c.box ? "tallimark" : "new")
            << c.name;
    }
}

TEST(Users, AQuoteFailsTheAddWithBothBoxes) {
    UserDesk d;
    d.press(FrmUser::New);
    d.f.setText("TxtUserName", "RAVI");
    d.f.setText("TxtPwd", "it's");
    d.press(FrmUser::Save);
    ASSERT_EQ(d.ui.boxes().size(), 2u);
    EXPECT_EQ(d.ui.boxes()[0].box.text.rfind("Error in AddRecords Procedure: ", 0), 0u);
    EXPECT_NE(d.ui.boxes()[0].box.text.find(" No: "), std::string::npos);
    EXPECT_EQ(d.ui.boxes()[1].box.text, "Failed in adding record");
    EXPECT_EQ(d.count("Users"), 1);
}

TEST(Users, FindBringsAUserBackAndAnEmptyPickClearsTheKeys) {
    UserDesk d;
    d.addUser("2", "RAVI");
    d.addUser("3", "RAJ");
    d.searchPicks("rav");
    d.press(FrmUser::Find);
    EXPECT_EQ(d.f.text("TxtUserCode"), "2");
    EXPECT_EQ(d.f.text("TxtUserName"), "RAVI");
    EXPECT_EQ(d.f.text("TxtPwd"), "p");
    EXPECT_EQ(d.mask(), "1110011");
    EXPECT_EQ(d.app.screens().find(search::kName), nullptr);

    d.searchPicks("");
    d.press(FrmUser::Find);
    EXPECT_EQ(d.f.text("TxtUserCode"), "");
    EXPECT_EQ(d.f.text("TxtUserName"), "");
    EXPECT_EQ(d.f.text("TxtPwd"), "p") << "the password is not touched";
    EXPECT_TRUE(d.ui.boxes().empty()) << d.lastBox();
}

TEST(Users, ModifyAndDeleteAfterAFind) {
    UserDesk d;
    d.addUser("2", "RAVI");
    d.searchPicks("RAVI");
    d.press(FrmUser::Find);
    d.press(FrmUser::Modify);
    EXPECT_FALSE(d.f.control("TxtUserCode").enabled);
    d.f.setText("TxtUserName", "ravi kumar");
    d.f.moveFocus("TxtPwd");
    d.press(FrmUser::Save);
    EXPECT_EQ(d.nameOf("2"), "RAVI KUMAR");

    // The shared Delete (its question is the script master's test) removes the user found.
    d.searchPicks("RAVI");
    d.press(FrmUser::Find);
    d.press(FrmUser::Delete);
    EXPECT_EQ(d.nameOf("2"), "<no row>");
    EXPECT_EQ(d.count("Users"), 1);
    EXPECT_EQ(d.mask(), "1000011");
}
