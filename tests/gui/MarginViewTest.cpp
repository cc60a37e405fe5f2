// The position file screen as the desk uses it: a name typed into the file dialog, the date
// typed, the file written with the real button; the span request's button is not shown; Esc
// closes it.
#include "GuiDesk.h"

#include "frame/MDIForm1.h"
#include "margin/FrmCreatePon.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace tallimark;

class MarginViewTest : public QObject {
    Q_OBJECT

private slots:
    void aPositionFileNamedInTheDialogIsWritten() {
        test::GuiDesk desk;
        desk.app.session().gPonSymbols.assign(2, ""); // nothing ticked: the header alone
        desk.app.session().gPonDescs.assign(2, "");
        Form& form = desk.app.screens().get<FrmCreatePon>();
        form.show();
        QWidget* view = desk.ui.viewOf(form);
        QVERIFY(view->findChild<QPushButton*>("Command1")->isHidden());
        // A name typed without its extension gets ".pon"; the dialog does not ask about overwriting.
        QTimer::singleShot(300, [] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->windowTitle(), "Create File / Folder");
            QLineEdit* name = dialog->findChild<QLineEdit*>("fileNameEdit");
            name->clear();
            QTest::keyClicks(name, "eod");
            QTest::keyClick(name, Qt::Key_Return);
        });
        QTest::mouseClick(view->findChild<QPushButton*>("CmdSelect"), Qt::LeftButton);
        const QString path = desk.dir.filePath("eod.pon");
        QCOMPARE(view->findChild<QLabel*>("LblFolder_Name")->text(), path);

        auto* date = view->findChild<QLineEdit*>("DTPDate");
        QTest::keyClick(date, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(date, "20-Nov-2026");
        QTest::keyClick(date, Qt::Key_Return); // a date reaches the screen when the dealer is done with it
        QTest::mouseClick(view->findChild<QPushButton*>("CmdPon_File"), Qt::LeftButton);
        QCOMPARE(desk.boxes.back().text, "Pon file created successfully");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("<created>20261120</created>\r\n"));
    }

    void escClosesTheScreenInTheFrame() {
        test::GuiDesk desk;
        desk.app.screens().get<MDIForm1>().show();
        Form& form = desk.app.screens().get<FrmCreatePon>();
        form.show();
        auto* date = desk.ui.viewOf(form)->findChild<QLineEdit*>("DTPDate");
        date->setFocus();
        QTest::keyClick(date, Qt::Key_Escape);
        QVERIFY(!form.visible());
    }
};

QTEST_MAIN(MarginViewTest)
#include "MarginViewTest.moc"
