// The scenario screens on screen: the graph launched by real clicks from a sheet's toolbar, the
// lines painted in their colours on the surface, the tool tip of a point on the red line, and a
// change of days typed into its field redrawing the graph.
#include "GuiDesk.h"

#include "../core/sheet/SheetScenarios.h"
#include "canvas/ImageCanvas.h"
#include "sheet/RiskSheet.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>

using namespace tallimark;

class ScenarioViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;

    template <class W = QWidget> static W* child(QWidget* view, const char* name) {
        return view ? view->findChild<W*>(QString::fromLatin1(name)) : nullptr;
    }
    // Pixels of the surface's image in a colour.
    static QList<QPoint> pixels(QWidget* picture, QColor color) {
        QList<QPoint> found;
        const QImage image = picture->grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == color) found.append({x, y});
        return found;
    }

    // The pointer moved over a point of the surface, no button held.
    static void hover(QWidget* picture, QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, picture->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(picture, &move);
    }

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        desk->app.setCanvasMaker(render::imageCanvasMaker());
    }
    void cleanup() { desk.reset(); }

    void theNetBalanceGraphDrawsReadsOutAndRedraws() {
        test::kSavedSheets[0].save(desk->app.store());
        QWidget* sheet = desk->ui.viewOf(
            test::openSheet(desk->app, SheetKind::Stock, test::kStockSymbol, test::kStockDesc));
        QVERIFY(sheet);
        QTest::mouseClick(child<QPushButton>(sheet, "Toolbar1(8)"), Qt::LeftButton);
        QWidget* launcher = desk->ui.viewOf(desk->app.screens().get("FrmListGraph"));
        QVERIFY(child<QPushButton>(launcher, "CmdRun"));
        QTest::mouseClick(child<QPushButton>(launcher, "CmdRun"), Qt::LeftButton);
        QWidget* graph = desk->ui.viewOf(desk->app.screens().get("FrmNewGraph"));
        QWidget* picture = child(graph, "PicScore");
        QVERIFY(picture);
        QVERIFY(QTest::qWaitForWindowExposed(picture->window()));

        const QList<QPoint> red = pixels(picture, QColor(255, 0, 0));
        QVERIFY(red.size() > 100);
        QVERIFY(pixels(picture, QColor(0, 0, 128)).size() > 100);
        QVERIFY(pixels(picture, QColor(0, 128, 0)).size() > 100); // the market marker
        hover(picture, red[red.size() / 2]);
        QVERIFY(picture->toolTip().startsWith(" "));
        hover(picture, QPoint(2, 2));
        QCOMPARE(picture->toolTip(), QString());

        auto* days = child<QLineEdit>(graph, "TxtDays");
        days->setFocus();
        days->selectAll();
        QTest::keyClicks(days, "0");
        QTest::keyClick(days, Qt::Key_Return);
        auto* list = child<QTableWidget>(graph, "ListView1");
        QCOMPARE(list->item(0, 1)->text(), list->item(0, 2)->text());
        // No days left: the lines meet, and the blue one, drawn last, hides the red.
        QVERIFY(pixels(picture, QColor(255, 0, 0)).size() < 20);
        QVERIFY(pixels(picture, QColor(0, 0, 128)).size() > 100);
        QVERIFY(desk->boxes.empty());
    }

    void theLauncherRunsTheKindChosenLast() {
        test::kSavedSheets[0].save(desk->app.store());
        QWidget* sheet = desk->ui.viewOf(
            test::openSheet(desk->app, SheetKind::Stock, test::kStockSymbol, test::kStockDesc));
        QTest::mouseClick(child<QPushButton>(sheet, "Toolbar1(8)"), Qt::LeftButton);
        QWidget* launcher = desk->ui.viewOf(desk->app.screens().get("FrmListGraph"));
        auto* profit = child<QRadioButton>(launcher, "Option1");
        auto* greek = child<QRadioButton>(launcher, "Option2");
        QTest::mouseClick(greek, Qt::LeftButton);
        QTest::mouseClick(profit, Qt::LeftButton);
        QVERIFY(profit->isChecked() && !greek->isChecked());
        QTest::keyClick(profit, Qt::Key_Return); // Enter on the kind chosen runs it
        QVERIFY(desk->app.screens().get("FrmNewGraph").visible());
        QVERIFY(!desk->app.screens().get("FrmNewGraphGreek").visible());
    }
};

QTEST_MAIN(ScenarioViewTest)
#include "ScenarioViewTest.moc"
