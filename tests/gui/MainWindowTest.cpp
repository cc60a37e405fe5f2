// The main frame: the start-up that leads to it, its menus, and the screens they open in its
// document area; there the calculator as the desk uses it, inputs typed and figures read.
#include "GuiDesk.h"

#include "frame/EmptyScreen.h"
#include "frame/MDIForm1.h"
#include "frame/MainWindow.h"
#include "frame/Startup.h"
#include "pricing/FrmCalc.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>

using namespace tallimark;

class MainWindowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;
    MainWindow* window = nullptr;

    QAction* menu(const char* name) { return window->findChild<QAction*>(QString::fromLatin1(name)); }
    QList<QMdiSubWindow*> subwindows() { return window->mdiArea().subWindowList(); }
    // The calculator's field in the document area.
    QLineEdit* calc(const char* name) {
        return subwindows().first()->findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    void calculate() {
        QTest::mouseClick(subwindows().first()->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    }

    // Screens of a caption alone that count how often they became the active window.
    template <int N> struct Probe : EmptyScreen {
        static inline const std::string kName = "FrmProbe" + std::to_string(N);
        explicit Probe(App& app) : EmptyScreen(app, kName.c_str(), kName.c_str()) {
            on("Form", EventType::Activate, [this](Event&) { ++activated; });
        }
        int activated = 0;
    };
    QMdiSubWindow* host(Form& form) {
        return qobject_cast<QMdiSubWindow*>(desk->ui.viewOf(form)->parentWidget());
    }
    void pick(Form& form) {
        QTest::mouseClick(host(form), Qt::LeftButton, {}, QPoint(host(form)->width() / 2, 8));
    }

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        desk->app.session().g_UserName = "ADMIN";
        desk->app.screens().get<MDIForm1>().show();
        window = desk->ui.mainWindow();
        QVERIFY(window);
    }
    void cleanup() { desk.reset(); }

    void theMenusAreTheModelsMenus() {
        QCOMPARE(window->windowTitle(), "Tallimark");
        QStringList heads;
        for (QAction* head : window->menuBar()->actions())
            heads << head->text();
        QCOMPARE(heads, QStringList({"&File", "&Master", "&Utility"}));

        Form& frame = desk->app.screens().get<MDIForm1>();
        for (const std::string& name : frame.controlOrder()) {
            const Control& c = frame.control(name);
            QAction* action = menu(name.c_str());
            QVERIFY2(action, name.c_str());
            QCOMPARE(action->text().toStdString(), c.text);
            if (!c.menuParent.empty())
                QVERIFY2(menu(c.menuParent.c_str())->menu()->actions().contains(action), name.c_str());
        }
        QCOMPARE(menu("mnucalc")->text(), "&Calculator");
        QCOMPARE(menu("munopen")->text(), "&Open Sheet");
    }

    void theCalculatorOpensOnceInTheDocumentAreaAndClosingUnloadsIt() {
        menu("mnucalc")->trigger();
        menu("mnucalc")->trigger();
        QCOMPARE(subwindows().size(), 1);
        QMdiSubWindow* sub = subwindows().first();
        QCOMPARE(sub->windowTitle(), "Calculator");
        QVERIFY(sub->findChild<QLineEdit*>("Text1"));
        QVERIFY(sub->isVisible());
        sub->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(subwindows().isEmpty());
        QVERIFY(!desk->app.screens().find(FrmCalc::kName));
    }

    void theCalculatorShowsItsInputsTogetherAndItsFiguresReadOnly() {
        menu("mnucalc")->trigger();
        QCOMPARE(subwindows().first()->findChild<QLabel*>("Label_Text3")->text(), "Days");
        QCOMPARE(calc("Text3")->text(), "90");
        for (const char* input : {"Text2", "Text3", "Text4", "Text5"})
            QCOMPARE(calc(input)->parentWidget(), calc("Text1")->parentWidget());
        for (int i = 6; i <= 15; ++i)
            QVERIFY(calc(("Text" + std::to_string(i)).c_str())->isReadOnly());
    }

    void calculateFillsTheFiguresAndZeroDaysShowsTheRuntimeError() {
        menu("mnucalc")->trigger();
        QVERIFY(QTest::qWaitForWindowActive(window));
        calculate();
        QCOMPARE(calc("Text6")->text(), "12.5941");
        QCOMPARE(calc("Text9")->text(), "-0.0909");
        QVERIFY(desk->boxes.empty());
        // Entering a field selects its text, so the typing replaces the days.
        calc("Text3")->setFocus(Qt::OtherFocusReason);
        QTest::keyClicks(calc("Text3"), "0");
        QCOMPARE(calc("Text3")->text(), "0");
        calculate();
        QCOMPARE(desk->boxes.size(), size_t(1));
        QVERIFY(QString::fromStdString(desk->boxes[0].text).startsWith("Run-time error '11'"));
        QCOMPARE(desk->boxes[0].icon, MsgIcon::Critical);
        QCOMPARE(calc("Text6")->text(), "12.5941");
    }

    void aScreenChosenHearsActivateAndEscClosesACaptionBackToTheLastOne() {
        auto& first = desk->app.screens().get<Probe<1>>();
        auto& second = desk->app.screens().get<Probe<2>>();
        first.show();
        second.show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QCOMPARE(host(first)->findChild<QLabel*>()->text(), "FrmProbe1");
        pick(first);
        QCOMPARE(window->mdiArea().activeSubWindow(), host(first));
        pick(second);
        pick(second);
        QCOMPARE(first.activated, 2);
        QCOMPARE(second.activated, 2);

        desk->app.screens().get<Probe<3>>().show();
        QTest::keyClick(desk->ui.viewOf(desk->app.screens().get<Probe<3>>()), Qt::Key_Escape);
        QVERIFY(!desk->app.screens().find(Probe<3>::kName));
        QCOMPARE(window->mdiArea().activeSubWindow(), host(second));
        QCOMPARE(second.activated, 3);
    }

    void theFramesAcceleratorsWorkWhileAScreensMenuStandsInTheBar() {
        struct WithMenu : Probe<4> {
            explicit WithMenu(App& app) : Probe<4>(app) { addControl(ControlKind::Menu, "mnuOwn", "&Own"); }
        };
        desk->app.screens().get<WithMenu>().show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QVERIFY(!window->menuBar()->actions().contains(menu("mnufile")));
        QTest::keyClick(desk->ui.viewOf(desk->app.screens().get<WithMenu>()), Qt::Key_L, Qt::ControlModifier);
        // The closing entry's menu answered: without a sheet open it says what it needs.
        QCOMPARE(desk->boxes.size(), size_t(1));
        QVERIFY(QString::fromStdString(desk->boxes[0].text).startsWith("Open a sheet first"));
    }

    void startUpLogsInAndShowsTheFrame() {
        test::GuiDesk fresh;
        QTimer::singleShot(0, [] {
            QWidget* dialog = QApplication::activeModalWidget();
            QTest::keyClicks(dialog->findChild<QLineEdit*>("txt_user_name"), "ADMIN");
            QTest::keyClicks(dialog->findChild<QLineEdit*>("txt_password"), schema::kFirstUserPassword);
            QTest::mouseClick(dialog->findChild<QPushButton*>("cmdokcan(0)"), Qt::LeftButton);
        });
        QVERIFY(StartUp(fresh.app));
        QCOMPARE(fresh.app.session().g_UserName, "ADMIN");
        QVERIFY(fresh.ui.mainWindow());
        QVERIFY(fresh.ui.mainWindow()->isVisible());
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
