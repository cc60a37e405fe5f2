// The risk sheets on screen with a saved sheet loaded: the ladder's colours and hidden columns,
// the captions beside the fields, the toolbar and menu, and a command pressed from the view.
#include "GuiDesk.h"

#include "../core/sheet/SheetScenarios.h"
#include "frame/MDIForm1.h"
#include "frame/MainWindow.h"
#include "pricing/FrmCalc.h"
#include "sheet/RiskSheet.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolTip>
#include <QtTest>

#include <functional>

using namespace tallimark;

class SheetViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;

    template <class W = QLineEdit> static W* child(QWidget* view, const char* name) {
        return view->findChild<W*>(QString::fromLatin1(name));
    }
    QWidget* open(const test::SavedSheet& sheet) {
        sheet.save(desk->app.store());
        QWidget* view = desk->ui.viewOf(test::openSheet(desk->app, sheet.kind, sheet.symbol(), sheet.desc()));
        if (view) (void)QTest::qWaitForWindowExposed(view->window());
        return view;
    }

private slots:
    void init() { desk = std::make_unique<test::GuiDesk>(); }
    void cleanup() { desk.reset(); }

    void theStockSheetShowsItsLadderAndFieldsSavesAndWidensItsLadderOnF7() {
        QWidget* view = open(test::kSavedSheets[0]);
        QVERIFY(view);
        auto* va1 = child<QTableWidget>(view, "va1");
        QVERIFY(va1);
        QCOMPARE(va1->columnCount(), 16);
        QVERIFY(va1->isColumnHidden(7) && va1->isColumnHidden(15) && !va1->isColumnHidden(6));
        QVERIFY(va1->isRowHidden(0)); // the heading row of the desk's grid, empty here
        QCOMPARE(va1->palette().color(QPalette::Base), QColor(Qt::black));
        // Row 4 is 980 C holding 15, row 3 960 P sold 6 (SheetScenarios.h).
        QCOMPARE(va1->item(3, 0)->text(), "980");
        QCOMPARE(va1->item(3, 0)->foreground().color(), QColor(255, 255, 0));
        QCOMPARE(va1->item(2, 0)->foreground().color(), QColor(0, 255, 0));
        QCOMPARE(va1->item(3, 2)->foreground().color(), QColor(0, 255, 255));
        QCOMPARE(va1->item(2, 2)->foreground().color(), QColor(255, 0, 0));
        QCOMPARE(child<QLabel>(view, "Label_txtdelneutral")->text(), "DELTA NEUTRAL");
        QVERIFY(child(view, "TxtMargin"));

        const std::pair<const char*, std::function<void()>> saves[] = {
            {"the toolbar's Save", [&] { child<QPushButton>(view, "Toolbar1(1)")->click(); }},
            {"Ctrl+S in the locked TxtNet",
             [&] { QTest::keyClick(child(view, "TxtNet"), Qt::Key_S, Qt::ControlModifier); }}};
        for (const auto& [how, save] : saves) {
            desk->app.store().execute("delete from PortfolioDet");
            save();
            QVERIFY2(desk->app.store().query("select count(*) from PortfolioDet").at(0).number() == 10.0,
                     how);
        }

        // F7 asks for strikes, each count beside its caption, and widens the ladder.
        const int rows = va1->rowCount();
        bool captionBesideField = false;
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (!dialog) return;
            auto* label = child<QLabel>(dialog, "Label1");
            auto* above = child(dialog, "TxtAbove");
            captionBesideField =
                std::abs(label->geometry().center().y() - above->geometry().center().y()) < 4;
            above->selectAll();
            QTest::keyClicks(above, "2");
            child<QPushButton>(dialog, "Command1")->click();
        });
        va1->setFocus();
        QTest::keyClick(va1, Qt::Key_F7);
        QVERIFY(captionBesideField);
        QCOMPARE(va1->rowCount(), rows + 4);
        QVERIFY(desk->boxes.empty());
    }

    void inTheFrameAFieldIsRetypedACellTakesOneEnterItsAltKeysAreItsOwnAndASaveIsTold() {
        desk->app.session().g_UserName = "ADMIN";
        desk->app.screens().get<MDIForm1>().show();
        MainWindow* frame = desk->ui.mainWindow();
        QWidget* view = open(test::kSavedSheets[0]);
        QVERIFY(QTest::qWaitForWindowActive(frame));
        QCOMPARE(frame->menuBar()->actions().size(), 1);
        QLineEdit* market = child(view, "TxtMktPrice");
        QTest::mouseClick(market, Qt::LeftButton, {}, QPoint(4, market->height() / 2));
        QCOMPARE(market->selectedText(), "1010");
        QTest::keyClicks(market, "1020");
        QCOMPARE(market->text(), "1020");

        QLineEdit* days = child(view, "TxtDays");
        days->setFocus(Qt::OtherFocusReason);
        QTest::keyClick(days, Qt::Key_M, Qt::AltModifier); // the frame's Master menu no more
        QVERIFY(market->hasFocus());
        QVERIFY(!QApplication::activePopupWidget());
        QTest::keyClick(market, Qt::Key_F, Qt::AltModifier); // no key of the sheet's
        QTRY_VERIFY(QApplication::activePopupWidget());
        QCOMPARE(QApplication::activePopupWidget()->actions()[0]->text(), "&Save");
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); // one Esc, back to typing
        QTRY_VERIFY(market->hasFocus());
        QTest::keyClick(market, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(frame->statusBar()->currentMessage(), "Sheet saved");

        // The volatility of 980 C (row 4) typed over in the ladder; one Enter reprices the row.
        auto* va1 = child<QTableWidget>(view, "va1");
        const QString last = va1->item(3, 4)->text();
        va1->setFocus(Qt::OtherFocusReason);
        va1->setCurrentCell(3, 5);
        QTest::keyClick(va1, Qt::Key_4); // the ladder's "4" recomputes the cell, and opens it
        auto* editor = va1->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        QCOMPARE(editor->palette().color(QPalette::Text), QColor(Qt::black));
        QCOMPARE(editor->palette().color(QPalette::Base), QColor(Qt::white));
        editor->selectAll();
        QTest::keyClicks(editor, "55");
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(va1->item(3, 5)->text(), "55");
        QTRY_VERIFY(va1->item(3, 4)->text() != last);

        // A figure wider than its column shows whole on hover.
        va1->setColumnWidth(8, 14);
        const QRect cell = va1->visualRect(va1->model()->index(3, 8));
        QHelpEvent hover(QEvent::ToolTip, cell.center(), va1->viewport()->mapToGlobal(cell.center()));
        QApplication::sendEvent(va1->viewport(), &hover);
        QTRY_COMPARE(QToolTip::text(), va1->item(3, 8)->text());
        QVERIFY(desk->boxes.empty());

        desk->app.screens().get<FrmCalc>().show();
        QCOMPARE(frame->menuBar()->actions().size(), 3);
    }

    void theIndexSheetShowsItsOwnSmallerSet() {
        QWidget* view = open(test::kSavedSheets[2]);
        QVERIFY(view);
        QCOMPARE(child<QLabel>(view, "Label_txtdelneutral")->text(), "To be DELTA NEUTRAL");
        QVERIFY(!child(view, "TxtMargin") && !child(view, "TxtTotDel"));
        QVERIFY(child<QPushButton>(view, "cmdExl"));
    }
};

QTEST_MAIN(SheetViewTest)
#include "SheetViewTest.moc"
