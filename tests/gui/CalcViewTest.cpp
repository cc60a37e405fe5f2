// The calculator's view as the desk uses it: inputs typed, Calculate clicked, figures read.
#include "GuiDesk.h"

#include "pricing/FrmCalc.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace tallimark;

class CalcViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;
    QWidget* view = nullptr;

    QLineEdit* field(const char* name) { return view->findChild<QLineEdit*>(QString::fromLatin1(name)); }
    QString label(const char* name) { return view->findChild<QLabel*>(QString::fromLatin1(name))->text(); }
    void calculate() { QTest::mouseClick(view->findChild<QPushButton*>("Command1"), Qt::LeftButton); }
    // Enters a field as the desk does, its text selected on entry, and types over it.
    void type(const char* name, const char* text) {
        field(name)->setFocus(Qt::OtherFocusReason);
        QTest::keyClicks(field(name), QString::fromLatin1(text));
    }

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        FrmCalc& calc = desk->app.screens().get<FrmCalc>();
        calc.show();
        view = desk->ui.viewOf(calc);
        QVERIFY(view);
        QVERIFY(QTest::qWaitForWindowActive(view->window()));
    }
    void cleanup() { desk.reset(); }

    void showsTheInputsAndTheFigureRows() {
        QCOMPARE(view->windowTitle(), "Calculator");
        QCOMPARE(view->findChild<QPushButton*>("Command1")->text(), "Calculate");
        const char* const inputs[][3] = {{"Text1", "strike", "90"},
                                         {"Text2", "price", "100"},
                                         {"Text3", "Days", "90"},
                                         {"Text4", "Volatility", "20"},
                                         {"Text5", "Rate", "10"}};
        for (const auto& in : inputs) {
            QCOMPARE(label((std::string("Label_") + in[0]).c_str()), in[1]);
            QCOMPARE(field(in[0])->text(), in[2]);
            // the five inputs stand together in one group
            QCOMPARE(field(in[0])->parentWidget(), field("Text1")->parentWidget());
        }
        for (const char* row : {"price", "delta", "theta", "rho", "vega", "gama"})
            QCOMPARE(label((std::string("Label_") + row).c_str()), row);
        for (int i = 6; i <= 15; ++i)
            QVERIFY(field(("Text" + std::to_string(i)).c_str())->isReadOnly());
    }

    void calculateFillsTheFigures() {
        calculate();
        QCOMPARE(field("Text6")->text(), "12.5941");
        QCOMPARE(field("Text7")->text(), "0.4069");
        QCOMPARE(field("Text8")->text(), "0.9091");
        QCOMPARE(field("Text9")->text(), "-0.0909");
        QVERIFY(desk->boxes.empty());
    }

    void typedInputsReachTheFormulas() {
        type("Text3", "30");
        QCOMPARE(field("Text3")->text(), "30");
        calculate();
        QVERIFY(field("Text6")->text().toDouble() > 10);
        QVERIFY(field("Text6")->text() != "12.5941");
    }

    void zeroDaysShowsTheRuntimeErrorAndKeepsTheFigures() {
        calculate();
        type("Text3", "0");
        calculate();
        QCOMPARE(desk->boxes.size(), size_t(1));
        QVERIFY(QString::fromStdString(desk->boxes[0].text).startsWith("Run-time error '11'"));
        QCOMPARE(desk->boxes[0].icon, MsgIcon::Critical);
        QCOMPARE(field("Text6")->text(), "12.5941");
    }
};

QTEST_MAIN(CalcViewTest)
#include "CalcViewTest.moc"
