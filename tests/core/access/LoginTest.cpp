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
    void ok(const std::string& user, const std::string& pwd) {
        login.setText("txt_user_name", user);
        login.setText("txt_password", pwd);
        login.fire("cmdokcan(0)", EventType::Click);
    }
    std::string passwordOf(const std::string& user) {
        return app.store().query("select Pwd from Users where UserNm = '" + user + "'")["Pwd"].text();
    }
};

} // namespace

TEST(Login, AValidUserIsRecordedAndTheScreenHides) {
    LoginDesk d;
    d.ok("  admin ", " tallimark ");
    EXPECT_FALSE(d.login.visible());
    EXPECT_EQ(d.app.session().g_UserName, "ADMIN");
    EXPECT_EQ(d.app.session().g_UserCode, "1");
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(Login, EnterMovesToThePasswordAndThenLogsIn) {
    LoginDesk d;
    d.login.setFocus("txt_user_name");
    d.login.setText("txt_user_name", "RAVI");
    test::pressKey(d.login, "txt_user_name", keys::Enter);
    EXPECT_EQ(d.login.focused(), "txt_password");
    EXPECT_EQ(d.app.session().g_UserName, "");
    d.login.setText("txt_password", "r1");
    test::pressKey(d.login, "txt_password", keys::Enter);
    EXPECT_EQ(d.app.session().g_UserName, "RAVI");
    EXPECT_FALSE(d.login.visible());
}

TEST(Login, RefusalsSayWhoIsNotValidAndLogNobodyIn) {
    struct Case {
        const char *user, *password, *title, *text; // the box's text as it begins
        const char* userAfter;                      // the name field once refused
    } cases[] = {
        {"", "secret", "Incorrect Login", "You Are Not a Valid User", ""},
        {"ADMIN", "wrong", "Invalid Login", "You Are Not a Valid User", ""},
        {"ADMIN", "TALLIMARK", "Invalid Login", "You Are Not a Valid User", ""},
        // A quote breaks the statement: the run-time box, and the name stays as typed.
        {"ADMIN", "x' or '1'='1", kAppTitle, "Run-time error", "ADMIN"},
    };
    for (const Case& c : cases) {
        LoginDesk d;
        d.ok(c.user, c.password);
        ASSERT_EQ(d.ui.boxes().size(), 1u) << c.password;
        EXPECT_EQ(d.ui.boxes()[0].box.title, c.title);
        EXPECT_EQ(d.ui.boxes()[0].box.text.rfind(c.text, 0), 0u) << d.ui.boxes()[0].box.text;
        EXPECT_EQ(d.ui.boxes()[0].box.icon, MsgIcon::Critical);
        EXPECT_EQ(d.login.text("txt_user_name"), c.userAfter);
        if (std::string(c.title) != kAppTitle) {
            EXPECT_EQ(d.login.text("txt_password"), "");
            EXPECT_EQ(d.login.focused(), "txt_user_name");
        }
        EXPECT_TRUE(d.login.visible());
        EXPECT_EQ(d.app.session().g_UserName, "");
    }
}

TEST(Login, ChangingAPasswordNeedsAProvenAccountAndNamesAnyAccount) {
    LoginDesk d;
    d.login.setText("txt_user_name", "ADMIN");
    d.login.setText("txt_password", "tallimark");
    d.login.fire("cmdchgpass", EventType::Click);
    EXPECT_EQ(d.login.text("cmdchgpass"), "&Set password");
    EXPECT_FALSE(d.login.control("cmdokcan(0)").enabled);
    EXPECT_FALSE(d.login.control("cmdokcan(1)").enabled);
    EXPECT_TRUE(d.login.control("txt_new_user_name").visible);
    EXPECT_EQ(d.login.focused(), "txt_new_user_name");

    // The proven account may set the password of another: the new name decides.
    d.login.setText("txt_new_user_name", "RAVI");
    d.login.setText("txt_new_password", "r2");
    d.login.fire("cmdchgpass", EventType::Click);
    EXPECT_EQ(d.passwordOf("RAVI"), "r2");
    EXPECT_EQ(d.passwordOf("ADMIN"), "tallimark");
    EXPECT_EQ(d.login.text("cmdchgpass"), "C&hange password");
    EXPECT_TRUE(d.login.control("cmdokcan(0)").enabled);
    EXPECT_EQ(d.login.text("txt_password"), "");
    EXPECT_EQ(d.login.height, 1890);
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(Login, ChangeRefusedForAWrongPasswordOrAnUnknownNewName) {
    LoginDesk d;
    for (const char* wrong : {"nope", "Tallimark"}) {
        d.login.setText("txt_user_name", "ADMIN");
        d.login.setText("txt_password", wrong);
        d.login.fire("cmdchgpass", EventType::Click);
        EXPECT_EQ(d.login.text("cmdchgpass"), "C&hange password");
        EXPECT_EQ(d.boxTexts().back(), "You Are Not a Valid User");
    }

    d.login.setText("txt_user_name", "ADMIN");
    d.login.setText("txt_password", "tallimark");
    d.login.fire("cmdchgpass", EventType::Click);
    d.login.setText("txt_new_user_name", "NOBODY");
    d.login.setText("txt_new_password", "n");
    d.login.fire("cmdchgpass", EventType::Click);
    EXPECT_EQ(d.ui.boxes().back().box.title, "Invalid Login");
    EXPECT_TRUE(d.login.control("cmdokcan(1)").enabled);
    EXPECT_EQ(d.login.text("cmdchgpass"), "C&hange password");

    d.login.setText("txt_user_name", "ADMIN");
    d.login.setText("txt_password", "tallimark'");
    d.login.fire("cmdchgpass", EventType::Click);
    EXPECT_EQ(d.ui.boxes().back().box.text, "Cannot change Password.");
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
    EXPECT_EQ(second.width, 6900);
}

TEST(Login, CancelAndTheCloseBoxEndTheProgram) {
    LoginDesk d;
    EXPECT_THROW(d.login.fire("cmdokcan(1)", EventType::Click), ProgramEnd);
    EXPECT_THROW(d.login.requestClose(), ProgramEnd);
}
