// The workstation's side of the Ui: real message boxes, the busy cursor, file filters.
#include "frame/QtUi.h"
#include "frame/FileFilter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace tallimark;

class QtUiTest : public QObject {
    Q_OBJECT

private slots:
    void aMessageBoxShowsTheModelsBoxAndReturnsTheAnswer() {
        QtUi ui;
        QString title, text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons;
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            title = box->windowTitle();
            text = box->text();
            icon = box->icon();
            buttons = box->standardButtons();
            defaultButton = box->standardButton(box->defaultButton());
            box->button(QMessageBox::No)->click();
        });
        const MsgAnswer answer = ui.msgBox(
            {"Do you wish to delete this record?", "Delete Item", MsgButtons::YesNo, MsgIcon::Question});
        QCOMPARE(title, "Delete Item");
        QCOMPARE(text, "Do you wish to delete this record?");
        QCOMPARE(icon, QMessageBox::Question);
        QCOMPARE(buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(defaultButton, QMessageBox::Yes);
        QCOMPARE(answer, MsgAnswer::No);
    }

    void theBusyCursorIsAFlagNotACount() {
        QtUi ui;
        ui.setBusy(true);
        ui.setBusy(true);
        QVERIFY(QApplication::overrideCursor());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        ui.setBusy(false);
        QVERIFY(!QApplication::overrideCursor());
        ui.setBusy(false);
        QVERIFY(!QApplication::overrideCursor());
    }

    void fileFiltersReadAsQtReadsThem() {
        QCOMPARE(qtFileFilter("Trade files (*.txt)|*.txt"), "Trade files (*.txt)");
        QCOMPARE(qtFileFilter("Position files|*.pon|All files|*.*"),
                 "Position files (*.pon);;All files (*.*)");
        QCOMPARE(qtFileFilter("Span files|*.spn;*.txt"), "Span files (*.spn *.txt)");
    }
};

QTEST_MAIN(QtUiTest)
#include "QtUiTest.moc"
