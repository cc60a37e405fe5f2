#include "TestDesk.h"

#include "access/FrmPwd.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct LoginDesk : test::Desk {
    FrmPwd1& login = app.screens().get<FrmPwd1>();
    LoginDesk() {
        app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('2', 'RAVI', 'r1')");
        login.showModal(); // the scripted UI returns at once; the screen stays shown
    }
    void type(const std::string& user, const std::string& pwd) {
        login.setText("txt_user_name", user);
        login.setText("txt_password", pwd);
    }
    // The last box as title|text|icon; "" when none was shown.
    std::string box() const { return ui.boxes().empty() ? "" : boxLines().back(); }
    std::string passwordOf(const std::string& user) {
        return app.store().query("select Pwd from Users where UserNm = '" + user + "'")["Pwd"].text();
    }
};

} // namespace

// Enter moves to the password and then logs in; the name is trimmed, read in any case and
// recorded as the store has it.
TEST(Login, AValidUserIsRecordedAndTheScreenHides) {
    LoginDesk d;
    d.login.setFocus("txt_user_name");
    d.login.setText("txt_user_name", "  admin ");
    test::pressKey(d.login, "txt_user_name", keys::Enter);
    EXPECT_EQ(d.login.focused(), "txt_password");
    EXPECT_EQ(d.app.session().g_UserName, "");
    d.login.setText("txt_password", " tallimark ");
    test::pressKey(d.login, "txt_password", keys::Enter);
    EXPECT_FALSE(d.login.visible());
    EXPECT_EQ(d.app.session().g_UserName, "ADMIN");
    EXPECT_EQ(d.app.session().g_UserCode, "1");
    EXPECT_EQ(d.box(), "");
}

TEST(Login, RefusalsSayWhoIsNotValidAndLogNobodyIn) {
    struct Case {
        const char *user, *password, *box; // the critical box's title|text as it begins
        const char* userAfter;             // the name field once refused
    } cases[] = {
        {"", "secret", "Incorrect Login|You Are Not a Valid User|", ""},
        {"ADMIN", "wrong", "Invalid Login|You Are Not a Valid User|", ""},
        {"ADMIN", "TALLIMARK", "Invalid Login|You Are Not a Valid User|", ""},
        // A quote breaks the statement: the run-time box, and the fields stay as typed.
        {"ADMIN", "x' or '1'='1", "Tallimark|Run-time error", "ADMIN"},
    };
    for (const Case& c : cases) {
        LoginDesk d;
        d.type(c.user, c.password);
        d.login.fire("cmdokcan(0)", EventType::Click);
        ASSERT_EQ(d.ui.boxes().size(), 1u) << c.password;
        EXPECT_TRUE(d.box().starts_with(c.box) && d.box().ends_with("|critical")) << d.box();
        EXPECT_EQ(d.login.text("txt_user_name"), c.userAfter) << c.password;
        EXPECT_EQ(d.login.text("txt_password"), *c.userAfter ? c.password : "") << c.password;
        EXPECT_EQ(d.login.focused(), *c.userAfter ? "" : "txt_user_name") << c.password;
        EXPECT_TRUE(d.login.visible()) << c.password;
        EXPECT_EQ(d.app.session().g_UserName, "") << c.password;
    }
}

// Only a proven account may change a password, and it may set the password of any other: the
// new name decides.
TEST(Login, ChangingAPasswordNeedsAProvenAccountAndAKnownNewName) {
    const char* const notValid = "Invalid Login|You Are Not a Valid User|critical";
    struct Case {
        const char *pwd, *newName, *box, *raviAfter;
    } cases[] = {
        {"tallimark", "RAVI", nullptr, "r2"},
        {"nope", nullptr, notValid, "r1"},
        {"Tallimark", nullptr, notValid, "r1"},
        {"tallimark'", nullptr, "Tallimark|Cannot change Password.|none", "r1"},
        {"tallimark", "NOBODY", notValid, "r1"},
    };
    for (const Case& c : cases) {
        LoginDesk d;
        d.type("ADMIN", c.pwd);
        d.login.fire("cmdchgpass", EventType::Click);
        if (c.newName) {
            EXPECT_FALSE(d.login.control("cmdokcan(1)").enabled) << c.newName;
            EXPECT_EQ(d.login.focused(), "txt_new_user_name") << c.newName;
            d.login.setText("txt_new_user_name", c.newName);
            d.login.setText("txt_new_password", "r2");
            d.login.fire("cmdchgpass", EventType::Click);
        }
        EXPECT_EQ(d.box(), c.box ? c.box : "") << c.pwd;
        EXPECT_EQ(d.login.text("cmdchgpass"), "C&hange password") << c.pwd;
        EXPECT_TRUE(d.login.control("cmdokcan(1)").enabled) << c.pwd;
        EXPECT_EQ(d.passwordOf("ADMIN"), "tallimark") << c.pwd;
        EXPECT_EQ(d.passwordOf("RAVI"), c.raviAfter) << c.pwd;
    }
}

TEST(Login, TheSecondEditionKeepsTheCurrentUserName) {
    LoginDesk d;
    d.app.session().g_UserName = "EARLIER";
    FrmPwd& second = d.app.screens().get<FrmPwd>();
    second.showModal();
    second.setText("txt_user_name", "RAVI");
    second.setText("txt_password", "r1");
    second.fire("cmdokcan(0)", EventType::Click);
    EXPECT_FALSE(second.visible());
    EXPECT_EQ(d.app.session().g_UserName, "EARLIER");
    EXPECT_EQ(d.app.session().g_UserCode, "2");
}

TEST(Login, CancelAndTheCloseBoxEndTheProgram) {
    LoginDesk d;
    EXPECT_THROW(d.login.fire("cmdokcan(1)", EventType::Click), ProgramEnd);
    EXPECT_THROW(d.login.requestClose(), ProgramEnd);
}
