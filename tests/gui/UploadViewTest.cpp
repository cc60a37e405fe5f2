// The upload screen as the desk uses it: opened by the sheet's "Upload" button, a file name typed,
// "Upload" clicked; the boxes come in their order and the trades reach the sheet's ledger.
#include "../core/sheet/SheetScenarios.h"
#include "GuiDesk.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include <fstream>

using namespace tallimark;

class UploadViewTest : public QObject {
    Q_OBJECT

private slots:
    void aTypedFileIsUploadedIntoTheSheet() {
        test::GuiDesk desk;
        test::kSavedSheets[0].save(desk.app.store());
        RiskSheet& sheet = test::openSheet(desk.app, SheetKind::Stock, test::kStockSymbol, test::kStockDesc);
        const std::string file = desk.dir.filePath("fo.txt").toStdString();
        std::ofstream(file) << "41,NT,OPTSTK,RELIANCE,10DEC2026,980,CE,X,1,A,1,1,X,1,10,21.5,N,C,1,T,B,"
                               "23 NOV 2026 10:00:00,X,O,1\n";
        QString shownSymbol, unitsBehindTheBox;
        desk.onBox = [&](const MsgBox&) {
            unitsBehindTheBox = desk.ui.viewOf(sheet)->findChild<QTableWidget*>("va1")->item(3, 2)->text();
        };
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            shownSymbol = dialog->findChild<QLineEdit*>("TxtSymbol")->text();
            QTest::keyClicks(dialog->findChild<QLineEdit*>("TxtFileNm"), QString::fromStdString(file));
            QTest::mouseClick(dialog->findChild<QPushButton*>("CmdUpload"), Qt::LeftButton);
        });
        QTest::mouseClick(desk.ui.viewOf(sheet)->findChild<QPushButton*>("Toolbar1(6)"), Qt::LeftButton);
        QCOMPARE(shownSymbol, "RILK2026");
        QCOMPARE(desk.boxes.size(), size_t(2));
        QCOMPARE(desk.boxes[0].text, "Uploading in progress");
        QCOMPARE(desk.boxes[1].text, "Uploading Complete");
        QCOMPARE(unitsBehindTheBox, "25"); // the sheet behind the last box shows the trade
        QCOMPARE(
            desk.app.store().query("select count(*) from DummyTracker where Field1 = '41'").at(0).number(),
            1.0);
        QCOMPARE(sheet.va1().text(4, 3), "25"); // 980 C held 15
    }
};

QTEST_MAIN(UploadViewTest)
#include "UploadViewTest.moc"
