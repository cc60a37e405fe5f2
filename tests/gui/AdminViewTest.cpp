// The sheet list and the new-sheet screen as the desk uses them: rows clicked and ticked,
// commands pressed, a script typed, a month chosen from the list, keys pressed.
#include "GuiDesk.h"

#include "admin/FrmNewMainScreen.h"
#include "admin/FrmNewScript.h"
#include "frame/DeskDate.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolButton>
#include <QtTest>

using namespace tallimark;

class AdminViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;

    template <class W = QLineEdit> static W* child(QWidget* view, const char* name) {
        return view->findChild<W*>(QString::fromLatin1(name));
    }
    QWidget* show(Form& form) {
        form.show();
        QWidget* view = desk->ui.viewOf(form);
        if (view) (void)QTest::qWaitForWindowActive(view->window());
        return view;
    }
    void addSheet(const char* symbol, const char* desc, const char* day) {
        desk->app.store().execute(
            std::string("insert into Trans (InSymbol, InDesc, InType, Transdt) values ('") + symbol + "', '" +
            desc + "', 'S', cdate('" + day + "'))");
    }

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        desk->app.store().execute(
            "insert into ScriptMast (ScrCode, ScrName, RateDiff) values ('RIL', 'RELIANCE', 2.5)");
    }
    void cleanup() { desk.reset(); }

    void theListShowsTheSheetsAClickPicksOneATickAndADeleteReachTheModel() {
        addSheet("RILK2026", "NOVEMBER For A", "20-11-2026");
        addSheet("RILZ2026", "DECEMBER For B", "21-11-2026");
        QWidget* view = show(desk->app.screens().get<FrmNewMainScreen>());
        QVERIFY(view);
        auto* list = child<QTableWidget>(view, "ListView1");
        QCOMPARE(list->rowCount(), 2);
        QCOMPARE(list->item(1, 0)->text(), "RILZ2026");
        QVERIFY(list->item(0, 0)->data(Qt::CheckStateRole).isValid()); // an unticked row shows its box
        QVERIFY(!list->item(0, 1)->flags().testFlag(Qt::ItemIsEditable));

        const QRect cell = list->visualRect(list->model()->index(1, 1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(desk->app.session().g_strSymbol, "RILZ2026");
        QCOMPARE(desk->app.session().g_strDesc, "DECEMBER For B");
        QCOMPARE(desk->app.session().gRefreshDate, "21-11-2026");

        // A tick goes to the position file; a delete drops the row and the tick moves with the rest.
        FrmNewMainScreen& screen = desk->app.screens().get<FrmNewMainScreen>();
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(screen.grid("ListView1").checked(2));
        const QRect box = list->visualRect(list->model()->index(0, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(box.left() + 10, box.center().y()));
        QVERIFY(screen.grid("ListView1").checked(1));
        QVERIFY(list->columnWidth(0) > list->fontMetrics().horizontalAdvance("RILZ2026") + 20);

        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(0, 1)).center());
        QTest::mouseClick(child<QPushButton>(view, "Cmd(3)"), Qt::LeftButton); // Yes answers
        QCOMPARE(desk->boxes.size(), size_t(1));
        QCOMPARE(desk->boxes[0].text, "Are you sure you wish to delete record?");
        QCOMPARE(list->rowCount(), 1);
        QCOMPARE(list->item(0, 0)->text(), "RILZ2026");
        QCOMPARE(list->item(0, 0)->checkState(), Qt::Checked);

        QTest::mouseClick(child<QPushButton>(view, "Command2"), Qt::LeftButton);
        QCOMPARE(desk->app.session().gPonSymbols.front(), "RILZ2026");
        QVERIFY(!screen.visible());
        QVERIFY(desk->ui.viewOf(*desk->app.screens().find("FrmCreatePon")));
    }

    void aNewSheetIsBuiltFromTheScriptTheMonthAndTheExpiry() {
        FrmNewScript& screen = desk->app.screens().get<FrmNewScript>();
        QWidget* view = show(screen);
        QVERIFY(view);
        auto* futures = child<QRadioButton>(view, "OptInType(0)");
        auto* stock = child<QRadioButton>(view, "OptInType(1)");
        QVERIFY(stock->isChecked() && !futures->isChecked());
        QVERIFY(!child(view, "TxtMonth"));

        // Alt+F and Alt+S choose the type from any field.
        QLineEdit* desc = child(view, "TxtDesc");
        desc->setFocus(Qt::OtherFocusReason);
        QTest::keyClick(desc, Qt::Key_F, Qt::AltModifier);
        QVERIFY(futures->isChecked() && !stock->isChecked());
        QTest::keyClick(desc, Qt::Key_S, Qt::AltModifier);
        QVERIFY(stock->isChecked());

        auto* script = child<QComboBox>(view, "DataCombo1");
        script->setFocus(Qt::OtherFocusReason);
        QTest::keyClicks(script->lineEdit(), "RELIANCE");
        QCOMPARE(child(view, "TxtRateDiff")->text(), "2.5");

        auto* month = child<QComboBox>(view, "Combo1");
        month->setFocus(Qt::OtherFocusReason);
        QTest::keyClick(month, Qt::Key_Down); // JANUARY
        QTest::keyClick(month, Qt::Key_Tab);
        QCOMPARE(child(view, "TxtInSymbol")->text(), "RILA2026");
        QCOMPARE(desc->text(), "JANUARY For ");
        QLineEdit* date = child(view, "DTPicker1");
        QCOMPARE(date->text(), "29-Jan-26");

        QLineEdit* rate = child(view, "TxtDRate");
        rate->setFocus(Qt::OtherFocusReason);
        QTest::keyClicks(rate, "12"); // over the selected "10.00%"
        QTest::keyClick(rate, Qt::Key_Tab);
        QCOMPARE(rate->text(), "12.00%");
        QVERIFY(desk->boxes.empty());

        // The expiry takes the desk's date forms or the calendar, and refuses the rest.
        const std::pair<const char*, const char*> typed[] = {
            {"23-11-2026", "23-Nov-26"}, {"01-Dec-26", "01-Dec-26"},  {"23/11/2026", "23-Nov-26"},
            {"2026-11-23", "23-Nov-26"}, {"31-11-2026", "23-Nov-26"}, {"01.12.2026", "23-Nov-26"}};
        for (const auto& [text, held] : typed) {
            date->clearFocus(); // each date typed into a field entered afresh
            QTest::mouseClick(date, Qt::LeftButton);
            QTest::keyClicks(date, text);
            QTest::keyClick(date, Qt::Key_Return);
            QCOMPARE(screen.text("DTPicker1"), held);
            QCOMPARE(date->text(), held);
        }
        QCOMPARE(desk->boxes.size(), size_t(3));
        QCOMPARE(desk->boxes[0].text, kDeskDateForms);

        const QRect room = date->screen()->availableGeometry(); // the field near the right edge
        view->window()->move(view->window()->x() + room.right() - 100 - date->mapToGlobal(QPoint()).x(), 0);
        QTest::mouseClick(date->findChild<QToolButton*>(), Qt::LeftButton);
        QWidget* calendar = view->findChild<QWidget*>("calendarPopup");
        QVERIFY(calendar && calendar->isVisible());
        QVERIFY(room.contains(calendar->frameGeometry()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(screen.text("DTPicker1"), "24-Nov-26");

        QTest::keyClick(rate, Qt::Key_Escape);
        QVERIFY(!desk->app.screens().find(FrmNewScript::kName));
    }
};

QTEST_MAIN(AdminViewTest)
#include "AdminViewTest.moc"
