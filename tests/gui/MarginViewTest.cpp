// The margin file screens as the desk uses them: a name typed into the file dialog, the date
// typed, the file written with the real button, and an answer loaded into the sheet's margin.
#include "GuiDesk.h"

#include "margin/FrmCreatePon.h"
#include "margin/FrmSpan_Load.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <fstream>

using namespace tallimark;

class MarginViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;

    template <class W = QPushButton> static W* child(QWidget* view, const char* name) {
        return view->findChild<W*>(QString::fromLatin1(name));
    }
    QWidget* show(Form& form) {
        form.show();
        return desk->ui.viewOf(form);
    }

private slots:
    void init() { desk = std::make_unique<test::GuiDesk>(); }
    void cleanup() { desk.reset(); }

    void aPositionFileNamedInTheDialogIsWritten() {
        desk->app.session().gPonSymbols.assign(2, ""); // nothing ticked: the header alone
        desk->app.session().gPonDescs.assign(2, "");
        QWidget* view = show(desk->app.screens().get<FrmCreatePon>());
        QVERIFY(view);
        QVERIFY(child(view, "Command1")->isHidden());
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
        QTest::mouseClick(child(view, "CmdSelect"), Qt::LeftButton);
        const QString path = desk->dir.filePath("eod.pon");
        QCOMPARE(child<QLabel>(view, "LblFolder_Name")->text(), path);

        auto* date = child<QLineEdit>(view, "DTPDate");
        date->selectAll();
        QTest::keyClicks(date, "20-Nov-2026");
        QTest::mouseClick(child(view, "CmdPon_File"), Qt::LeftButton);
        QCOMPARE(desk->boxes.back().text, "Pon file created successfully");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains("<created>20261120</created>\r\n"));
    }

    void anAnswerLoadedStoresTheMargin() {
        desk->app.store().execute("insert into PortfolioMast (Symbol, Descr) values ('RILK2026', 'NOV')");
        std::ofstream(desk->dir.filePath("20261123.spn").toStdString())
            << "<portfolio>\n<firm>RILK2026-NOV</firm>\n<oReq>\n<isM>1</isM>\n<spanReq>900</spanReq>\n"
               "<anov>100</anov>\n</oReq>\n</portfolio>\n";
        QWidget* view = show(desk->app.screens().get<FrmSpan_Load>());
        QTest::mouseClick(child(view, "CmdSpn_File"), Qt::LeftButton);
        QCOMPARE(desk->boxes.back().text, "Spn file loaded successfully");
        QCOMPARE(desk->app.store().query("select Field2 from PortfolioMast")["Field2"].number(), 800.0);
    }
};

QTEST_MAIN(MarginViewTest)
#include "MarginViewTest.moc"
