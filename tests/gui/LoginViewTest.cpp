// The login dialog as the start-up shows it: a wrong password refused, a right one let in, and
// a password set through the fields that appear for it.
#include "GuiDesk.h"

#include "access/FrmPwd.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace tallimark;

namespace {

QLineEdit* field(QWidget& dialog, const char* name) {
    return dialog.findChild<QLineEdit*>(QString::fromLatin1(name));
}
QPushButton* button(QWidget& dialog, const char* name) {
    return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
}
void logIn(QWidget& dialog, const char* user, const char* password) {
    QTest::keyClicks(field(dialog, "txt_user_name"), QString::fromLatin1(user));
    QTest::keyClicks(field(dialog, "txt_password"), QString::fromLatin1(password));
    QTest::mouseClick(button(dialog, "cmdokcan(0)"), Qt::LeftButton);
}
// The dialog takes its new size once the layouts have run.
int settledHeight(QWidget& dialog) {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    return dialog.height();
}

} // namespace

class LoginViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;
    FrmPwd1* login = nullptr;

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        login = &desk->app.screens().get<FrmPwd1>();
    }
    void cleanup() { desk.reset(); }

    void theDialogHidesThePasswordAndKeepsItsKeys() {
        QString title;
        bool newFieldsHidden = false, passwordHidden = false, upAfterKeys = false;
        test::whileModal(*login, [&](QWidget& dialog) {
            title = dialog.windowTitle();
            newFieldsHidden = field(dialog, "txt_new_user_name")->isHidden() &&
                              field(dialog, "txt_new_password")->isHidden();
            passwordHidden = field(dialog, "txt_password")->echoMode() == QLineEdit::Password;
            // Enter and Esc in a field are the screen's keys: no default button, no closing.
            QTest::keyClick(field(dialog, "txt_user_name"), Qt::Key_Return);
            QTest::keyClick(field(dialog, "txt_user_name"), Qt::Key_Escape);
            upAfterKeys = dialog.isVisible();
        });
        QCOMPARE(title, "Login");
        QVERIFY(newFieldsHidden);
        QVERIFY(passwordHidden);
        QVERIFY(upAfterKeys);
        QVERIFY(desk->boxes.empty());
    }

    void aWrongPasswordIsRefusedAndARightOneLetsIn() {
        QString nameAfterRefusal = "unset", passwordAfterRefusal = "unset";
        bool upAfterRefusal = false;
        test::whileModal(*login, [&](QWidget& dialog) {
            logIn(dialog, "ADMIN", "wrong");
            nameAfterRefusal = field(dialog, "txt_user_name")->text();
            passwordAfterRefusal = field(dialog, "txt_password")->text();
            upAfterRefusal = dialog.isVisible();
            logIn(dialog, "ADMIN", schema::kFirstUserPassword);
        });
        QCOMPARE(desk->boxes.size(), size_t(1));
        QCOMPARE(desk->boxes[0].title, "Invalid Login");
        QCOMPARE(desk->boxes[0].text, "You Are Not a Valid User");
        QVERIFY(nameAfterRefusal.isEmpty());
        QVERIFY(passwordAfterRefusal.isEmpty());
        QVERIFY(upAfterRefusal);
        QVERIFY(!login->visible());
        QCOMPARE(desk->app.session().g_UserName, "ADMIN");
    }

    void settingAPasswordGrowsTheDialogAndShrinksItBack() {
        int baseHeight = 0, grownHeight = 0, shrunkHeight = 0;
        bool newFieldsShown = false, okEnabled = true;
        QString stateCaption;
        test::whileModal(*login, [&](QWidget& dialog) {
            baseHeight = settledHeight(dialog);
            QTest::keyClicks(field(dialog, "txt_user_name"), "ADMIN");
            QTest::keyClicks(field(dialog, "txt_password"), schema::kFirstUserPassword);
            QTest::mouseClick(button(dialog, "cmdchgpass"), Qt::LeftButton);
            grownHeight = settledHeight(dialog);
            newFieldsShown = field(dialog, "txt_new_user_name")->isVisible();
            okEnabled = button(dialog, "cmdokcan(0)")->isEnabled();
            stateCaption = button(dialog, "cmdchgpass")->text();

            QTest::keyClicks(field(dialog, "txt_new_user_name"), "ADMIN");
            QTest::keyClicks(field(dialog, "txt_new_password"), "secret");
            QTest::mouseClick(button(dialog, "cmdchgpass"), Qt::LeftButton);
            shrunkHeight = settledHeight(dialog);

            // The user name stays; the password is asked again.
            QTest::keyClicks(field(dialog, "txt_password"), "secret");
            QTest::mouseClick(button(dialog, "cmdokcan(0)"), Qt::LeftButton);
        });
        QVERIFY(newFieldsShown);
        QVERIFY(!okEnabled);
        QCOMPARE(stateCaption, "&Set password");
        QVERIFY(grownHeight > baseHeight);
        QCOMPARE(shrunkHeight, baseHeight);
        QVERIFY(desk->boxes.empty());
        QCOMPARE(desk->app.session().g_UserName, "ADMIN");
    }
};

QTEST_MAIN(LoginViewTest)
#include "LoginViewTest.moc"
