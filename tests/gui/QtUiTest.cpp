// The workstation's side of the Ui: real message boxes, the busy cursor, file filters.
#include "frame/QtUi.h"
#include "ReportPainter.h"
#include "charges/ChargesReports.h"
#include "frame/FileFilter.h"
#include "reports/ReportDocument.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QTemporaryDir>
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
    // A report run opens the print preview without blocking, and the same pages make a PDF.
    void aReportIsPreviewedAndWrittenAsPdf() {
        ReportData data;
        data.columns = {"Dt", "Opbal", "Prem", "TotAmt", "SDuty"};
        data.rows = {{std::string("2026-11-23"), 0.0, 125000.5, 125000.5, -2.0},
                     {std::string("2026-11-24"), 125000.5, -99.25, 124901.25, 0.0}};
        data.printed = "23-Nov-2026";
        const ReportDocument doc = layOut(cashFlowLayout(), data);
        QtUi ui;
        ui.showReport(doc);
        QPrintPreviewDialog* preview = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "ReportPreview") preview = qobject_cast<QPrintPreviewDialog*>(w);
        QVERIFY(preview && preview->isVisible());
        QCOMPARE(preview->windowTitle(), QString("Cash Flow"));
        preview->close();

        QTemporaryDir dir;
        const QString pdf = dir.filePath("flow.pdf");
        render::writeReportPdf(doc, pdf.toStdString());
        QFile file(pdf);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.read(5) == "%PDF-");
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 render::writeReportPdf(doc, dir.filePath("no/such/x.pdf").toStdString()));
    }
};

QTEST_MAIN(QtUiTest)
#include "QtUiTest.moc"
