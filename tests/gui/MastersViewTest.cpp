// The master screens' views: captions and buttons as the models give them, a script typed in
// and saved, a find through the look-up list, and the month grid.
#include "GuiDesk.h"
#include "LookupSteps.h"

#include "access/FrmSeek.h"
#include "access/FrmUser.h"
#include "admin/FrmScriptMast.h"
#include "admin/Frmnth.h"
#include "charges/FrmCharges.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace tallimark;

class MastersViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;
    QWidget* view = nullptr;

    template <class Screen> Screen& open() {
        Screen& s = desk->app.screens().get<Screen>();
        s.show();
        view = desk->ui.viewOf(s);
        return s;
    }
    QLineEdit* field(const char* name) { return view->findChild<QLineEdit*>(QString::fromLatin1(name)); }
    QPushButton* button(const std::string& name) {
        return view->findChild<QPushButton*>(QString::fromStdString(name));
    }
    QString label(const char* name) { return view->findChild<QLabel*>(QString::fromLatin1(name))->text(); }
    // "1000011" and its like, as the buttons stand on the screen.
    QString mask(const std::string& array = "Cmd") {
        QString m;
        for (int i = 0; i < 7; ++i)
            m += button(array + "(" + std::to_string(i) + ")")->isEnabled() ? '1' : '0';
        return m;
    }
    void click(const std::string& name) { QTest::mouseClick(button(name), Qt::LeftButton); }

private slots:
    void init() { desk = std::make_unique<test::GuiDesk>(); }
    void cleanup() { desk.reset(); }

    void aScriptTypedInIsSavedWithItsCodeInCapitals() {
        open<FrmScriptMast>();
        QVERIFY(view);
        QCOMPARE(view->windowTitle(), "Script Master ...Tallimark");
        QCOMPARE(label("LblSptCode"), "Script &Code");
        QCOMPARE(field("TxtFWeek")->parentWidget(), view->findChild<QGroupBox*>("FraGamma"));
        QCOMPARE(button("Cmd(0)")->text(), "&New");
        QCOMPARE(mask(), "1000011");
        QVERIFY(field("TxtSptCode")->isReadOnly());

        QVERIFY(QTest::qWaitForWindowActive(view->window()));
        click("Cmd(0)");
        QCOMPARE(mask(), "0001101");
        QVERIFY(!field("TxtSptCode")->isReadOnly());
        QVERIFY(field("TxtSptCode")->hasFocus());
        QTest::keyClicks(field("TxtSptCode"), "acc");
        QTest::keyClick(field("TxtSptCode"), Qt::Key_Return); // Enter moves on, as Tab does
        QCOMPARE(field("TxtSptCode")->text(), "ACC");
        QVERIFY(field("TxtSptName")->hasFocus());
        QTest::keyClicks(field("TxtSptName"), "ACC LTD");
        // "Script &Code": Alt+C goes to the code, the field after the label.
        QTest::keyClick(field("TxtSptName"), Qt::Key_C, Qt::AltModifier);
        QVERIFY(field("TxtSptCode")->hasFocus());
        click("Cmd(4)");
        QVERIFY(desk->boxes.empty());
        QCOMPARE(field("TxtSptName")->text(), "");
        QCOMPARE(
            desk->app.store().query("select ScrName from ScriptMast where ScrCode = 'ACC'")["ScrName"].text(),
            "ACC LTD");
    }

    void findShowsTheListAndFillsTheFields() {
        desk->app.store().execute(
            "insert into ScriptMast (ScrCode, ScrName, Field2) values ('ACC', 'ACC LTD', 250)");
        open<FrmScriptMast>();
        QString listTitle;
        test::duringDialog(
            desk->app, FrmSeek::kName,
            [&] {
                QTest::keyClick(button("Cmd(0)"), Qt::Key_F, Qt::AltModifier); // "&Find"
                return 0;
            },
            [&](QWidget& dialog) {
                listTitle = dialog.windowTitle();
                test::doubleClickRow(*test::table(dialog, "MSHFlexGrid1"), 0);
            });
        QCOMPARE(listTitle, "Script List");
        QCOMPARE(field("TxtSptName")->text(), "ACC LTD");
        QCOMPARE(field("TxtContract")->text(), "250");
        QCOMPARE(mask(), "1110011");
    }

    void theChargeMasterShowsItsRatesInTheirGroup() {
        open<FrmCharges>();
        QCOMPARE(view->windowTitle(), "Charges.....Tallimark");
        QCOMPARE(field("TxtConch")->parentWidget(), view->findChild<QGroupBox*>("FraContract"));
        QCOMPARE(mask("cmd"), "1000011");
    }

    void aNewUserGetsTheNextCode() {
        open<FrmUser>();
        QCOMPARE(view->windowTitle(), "Users....Tallimark");
        click("Cmd(0)");
        QCOMPARE(field("TxtUserCode")->text(), "2");
        QVERIFY(!field("TxtUserCode")->isEnabled());
        QCOMPARE(field("TxtPwd")->echoMode(), QLineEdit::Normal);
        QCOMPARE(mask(), "0001101");
        // Enter after the last field stands on Save, not on Undo.
        QVERIFY(QTest::qWaitForWindowActive(view->window()));
        QTest::keyClicks(field("TxtUserName"), "ravi");
        QTest::keyClick(field("TxtUserName"), Qt::Key_Return);
        QTest::keyClick(field("TxtPwd"), Qt::Key_Return);
        QVERIFY(button("Cmd(4)")->hasFocus());
    }

    void theMonthGridHasItsHeadingsAndNoRows() {
        open<Frmnth>();
        auto* va1 = view->findChild<QTableWidget*>("va1");
        QCOMPARE(va1->rowCount(), 0);
        QCOMPARE(va1->columnCount(), 3);
        QCOMPARE(va1->horizontalHeaderItem(2)->text(), "Future");
    }
};

QTEST_MAIN(MastersViewTest)
#include "MastersViewTest.moc"
