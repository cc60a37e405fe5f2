// The trade entry dialogs as the desk uses them: figures typed, Tab and Enter and Esc pressed,
// choices made on the option buttons and the lists, and what the opener finds afterwards; the
// trade trail's delete mark ticked by mouse and Space.
#include "GuiDesk.h"

#include "tracker/FrmOption.h"
#include "tracker/FrmOption_New.h"
#include "tracker/FrmTrail.h"
#include "tracker/FrmUnderlying.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QtTest>

using namespace tallimark;

namespace {

template <class W = QLineEdit> W* child(QWidget& dialog, const char* name) {
    return dialog.findChild<W*>(QString::fromLatin1(name));
}

// Runs the steps once the dialog has the keyboard: focus and keys are the subject here.
void whileActive(Form& form, const std::function<void(QWidget&)>& steps) {
    test::whileModal(form, [&](QWidget& dialog) {
        if (QTest::qWaitForWindowActive(&dialog)) steps(dialog);
    });
}

} // namespace

class TradeEntryViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;

private slots:
    void init() { desk = std::make_unique<test::GuiDesk>(); }
    void cleanup() { desk.reset(); }

    void theOptionDialogShowsTheSeriesAndEnterTakesTheTrade() {
        FrmOption& dlg = desk->app.screens().get<FrmOption>();
        dlg.setText("lblStrike", "17000.00 C");
        dlg.setText("TxtImpVolF", "18.5");
        dlg.setText("TxtTraded", "101.25");
        QString strike, time;
        bool unitsFocused = false;
        whileActive(dlg, [&](QWidget& dialog) {
            strike = child<QLabel>(dialog, "lblStrike")->text();
            time = child<QLabel>(dialog, "LblTime")->text();
            unitsFocused = child(dialog, "TxtUnits")->hasFocus();
            QTest::keyClicks(child(dialog, "TxtUnits"), "-50");
            QTest::keyClick(child(dialog, "TxtUnits"), Qt::Key_Return);
        });
        QCOMPARE(strike, "17000.00 C");
        QVERIFY(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d$").match(time).hasMatch());
        QVERIFY(unitsFocused);
        QVERIFY(dlg.OK);
        QCOMPARE(dlg.Units, "-50");
        QCOMPARE(QString::fromStdString(dlg.TradeTime), time);
    }

    void aPremiumThatIsNoNumberIsRefusedOnTab() {
        FrmOption& dlg = desk->app.screens().get<FrmOption>();
        dlg.setText("TxtTraded", "101.25");
        QString after;
        bool staysInPremium = false;
        whileActive(dlg, [&](QWidget& dialog) {
            QLineEdit* traded = child(dialog, "TxtTraded");
            QTest::keyClick(child(dialog, "TxtUnits"), Qt::Key_Tab);
            QTest::keyClicks(traded, "abc"); // entry selected the old premium: typed over
            QTest::keyClick(traded, Qt::Key_Tab);
            after = traded->text();
            staysInPremium = traded->hasFocus();
            QTest::keyClick(traded, Qt::Key_Escape);
        });
        QCOMPARE(desk->boxes.size(), size_t(1));
        QCOMPARE(desk->boxes[0].text, "Only Numeric Values allowed here");
        QCOMPARE(after, "");
        QVERIFY(staysInPremium);
        QVERIFY(!dlg.OK);
        QVERIFY(!dlg.visible());
    }

    void theUnderlyingDialogTakesFuturesFromTheOptionButton() {
        FrmUnderlying& dlg = desk->app.screens().get<FrmUnderlying>();
        dlg.setText("TxtTraded", "12.346");
        bool equityChecked = false, sameRow = false;
        whileActive(dlg, [&](QWidget& dialog) {
            auto* fut = child<QRadioButton>(dialog, "Option1(0)");
            auto* equity = child<QRadioButton>(dialog, "Option1(1)");
            equityChecked = equity->isChecked() && !fut->isChecked();
            sameRow = fut->y() == equity->y();
            QTest::keyClicks(child(dialog, "TxtUnits"), "3"); // over the selected "0"
            QTest::mouseClick(fut, Qt::LeftButton);
            QTest::mouseClick(child<QPushButton>(dialog, "Cmd(0)"), Qt::LeftButton);
        });
        QVERIFY(equityChecked);
        QVERIFY(sameRow);
        QVERIFY(dlg.OK);
        QCOMPARE(dlg.Units, "3");
        QCOMPARE(dlg.CashType, "F");
    }

    void theStandAloneDialogListsTheStrikesAndWritesTheTrade() {
        Store& store = desk->app.store();
        for (const char* strike : {"17100", "17000"})
            store.execute(
                std::string("insert into PortfolioDet (Symbol, Descr, Strike, CP) values ('NIFX2026', "
                            "'Nov', ") +
                strike + ", 'C')");
        FrmOption_New& dlg = desk->app.screens().get<FrmOption_New>();
        dlg.Symbol = "NIFX2026";
        dlg.Descr = "Nov";
        QStringList strikes;
        whileActive(dlg, [&](QWidget& dialog) {
            auto* strikeList = child<QComboBox>(dialog, "CmbStrike");
            for (int i = 0; i < strikeList->count(); ++i)
                strikes << strikeList->itemText(i);
            strikeList->setFocus();
            QTest::keyClick(strikeList, Qt::Key_Down);
            QTest::keyClick(strikeList, Qt::Key_Return); // Enter moves on, as Tab does
            auto* side = child<QComboBox>(dialog, "CmbC_P");
            QVERIFY(side->hasFocus());
            QTest::keyClick(side, Qt::Key_Down);
            QTest::keyClick(side, Qt::Key_Down);
            QTest::keyClick(side, Qt::Key_Return);
            QTest::keyClicks(child(dialog, "TxtUnits"), "10");
            QTest::keyClick(child(dialog, "TxtUnits"), Qt::Key_Return);
            QTest::keyClicks(child(dialog, "TxtTraded"), "5.5");
            QTest::mouseClick(child<QPushButton>(dialog, "CmdOk"), Qt::LeftButton);
        });
        QCOMPARE(strikes, QStringList({"17000", "17100"}));
        QVERIFY(dlg.OK);
        QCOMPARE(desk->boxes.size(), size_t(1));
        QCOMPARE(desk->boxes[0].text, "Insert completed");
        Recordset rs = store.query("select * from DummyTracker");
        QCOMPARE(rs.recordCount(), size_t(1));
        QCOMPARE(rs["Strike"].number(), 17000.0);
        QCOMPARE(rs["CP"].text(), "P");
        QCOMPARE(rs["Units"].number(), 10.0);
    }

    void aTradesDeleteMarkIsATickBoxTurnedByMouseAndSpace() {
        desk->app.store().execute(
            "insert into DummyTracker (Symbol, InDesc, Strike, CP, Units, Traded, TradeDt) "
            "values ('RILK2026', 'Nov', 980, 'C', 10, 20, cdate('20-Nov-2026'))");
        FrmTrail& trail = desk->app.screens().get<FrmTrail>();
        trail.Strike = "980.00";
        trail.CP = "C";
        trail.Symbol = "RILK2026";
        trail.InDesc = "Nov";
        test::whileModal(trail, [&](QWidget& dialog) {
            auto* list = child<QTableWidget>(dialog, "va1");
            QTableWidgetItem* mark = list->item(0, FrmTrail::kMarkCol - 1);
            QCOMPARE(mark->text(), QString());
            QCOMPARE(mark->checkState(), Qt::Unchecked);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(mark).center());
            QCOMPARE(trail.grid("va1").text(1, FrmTrail::kMarkCol), "1");
            QCOMPARE(list->item(0, FrmTrail::kMarkCol - 1)->checkState(), Qt::Checked);
            QTest::keyClick(list, Qt::Key_Space);
            QCOMPARE(trail.grid("va1").text(1, FrmTrail::kMarkCol), "0");
        });
    }
};

QTEST_MAIN(TradeEntryViewTest)
#include "TradeEntryViewTest.moc"
