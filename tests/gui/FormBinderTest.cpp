// The generic binding of a view to a model: shown state, typing and keys, clicks, focus and
// grids, on a small screen made for the purpose.
#include "GuiDesk.h"

#include "frame/ComProc.h"
#include "frame/FormBinder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QtTest>

#include <cctype>

using namespace tallimark;

namespace {

struct Heard {
    std::string control;
    Event event;
};

class Sample : public Form {
public:
    explicit Sample(App& app) : Form(app, "Sample", "Sample Screen") {
        addControl(ControlKind::TextBox, "txtName", "first");
        addControl(ControlKind::TextBox, "txtCode");
        addControl(ControlKind::Label, "lblNote", "note");
        addControl(ControlKind::Button, "cmdGo", "&Go");
        addControl(ControlKind::CheckBox, "chkHeld", "Held");
        addControl(ControlKind::OptionButton, "optType(0)", "Stock");
        addControl(ControlKind::OptionButton, "optType(1)", "Index");
        addControl(ControlKind::ComboBox, "cboMonth");
        addGrid("va1", 4);
    }
    using Form::on;

    // Keeps every event of the control from now on.
    void hear(const std::string& control, EventType type) {
        on(control, type, [this, control](Event& e) { heard.push_back({control, e}); });
    }
    std::vector<Heard> heard;
};

QWidget* sampleView() {
    auto* view = new QWidget;
    auto* layout = new QVBoxLayout(view);
    const auto add = [&](QWidget* w, const char* name) {
        w->setObjectName(QString::fromLatin1(name));
        layout->addWidget(w);
    };
    add(new QLineEdit, "txtName");
    add(new QLineEdit, "txtCode");
    add(new QLabel, "lblNote");
    add(new QPushButton, "cmdGo");
    add(new QCheckBox, "chkHeld");
    add(new QRadioButton, "optType(0)");
    add(new QRadioButton, "optType(1)");
    add(new QComboBox, "cboMonth");
    add(new QTableWidget, "va1");
    return view;
}

} // namespace

class FormBinderTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;
    std::unique_ptr<Sample> sample;
    std::unique_ptr<QWidget> view;

    template <class W> W* widget(const char* name) { return view->findChild<W*>(QString::fromLatin1(name)); }
    void showActive() {
        view->show();
        QVERIFY(QTest::qWaitForWindowActive(view.get()));
    }

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        sample = std::make_unique<Sample>(desk->app);
        view.reset(sampleView());
        (new FormBinder(*sample, *view))->attach();
    }
    void cleanup() {
        view.reset();
        sample.reset();
        desk.reset();
    }

    // Model to widgets.
    void showsTheModelsState() {
        QCOMPARE(widget<QPushButton>("cmdGo")->text(), "&Go");

        sample->setText("lblNote", "changed F & O && &Go"); // an "&" before a blank stands as written
        sample->setForeColor("txtName", RGB(255, 0, 0));
        sample->setLocked("txtName", true);
        sample->setEnabled("cmdGo", false);
        sample->setVisible("chkHeld", false);
        sample->control("txtCode").password = true;
        sample->markChanged("txtCode");
        sample->setItems("cboMonth", {"JAN", "FEB", "MAR"});
        sample->setText("cboMonth", "FEB");
        sample->setCaption("Renamed");
        sample->flush();

        QCOMPARE(widget<QLabel>("lblNote")->text(), "changed F && O && &Go");
        QCOMPARE(widget<QLineEdit>("txtName")->palette().color(QPalette::Text), QColor(255, 0, 0));
        QVERIFY(widget<QLineEdit>("txtName")->isReadOnly());
        QVERIFY(!widget<QPushButton>("cmdGo")->isEnabled());
        QVERIFY(widget<QCheckBox>("chkHeld")->isHidden());
        QCOMPARE(widget<QLineEdit>("txtCode")->echoMode(), QLineEdit::Password);
        QCOMPARE(widget<QComboBox>("cboMonth")->count(), 3);
        QCOMPARE(widget<QComboBox>("cboMonth")->currentText(), "FEB");
        QCOMPARE(view->windowTitle(), "Renamed");
    }

    // Keys and typing.
    void typingGoesThroughTheKeyHandlersWhichReadTheDesksCodes() {
        sample->hear("txtCode", EventType::Change);
        sample->on("txtCode", EventType::KeyPress, [](Event& e) {
            if (e.keyAscii == '-') e.keyAscii = 0;
            e.keyAscii = std::toupper(e.keyAscii);
        });
        sample->on("txtCode", EventType::KeyDown, [](Event& e) {
            if (e.keyCode == 'X') e.keyCode = 0;
        });
        QTest::keyClicks(widget<QLineEdit>("txtCode"), "n1x-2y");
        QCOMPARE(sample->text("txtCode"), "N12Y");
        QCOMPARE(sample->heard.size(), size_t(4));

        // What the handlers read, in the desk's codes, kept from a field of their own.
        sample->heard.clear();
        sample->hear("txtName", EventType::KeyDown);
        sample->hear("txtName", EventType::KeyPress);
        QLineEdit* field = widget<QLineEdit>("txtName");
        QTest::keyClick(field, Qt::Key_A);
        QTest::keyClick(field, Qt::Key_F1);
        QTest::keyClick(field, Qt::Key_PageDown, Qt::ShiftModifier);
        QTest::keyClick(field, Qt::Key_Up, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Return);

        std::vector<std::tuple<EventType, int, int>> got;
        for (const Heard& h : sample->heard)
            got.emplace_back(h.event.type,
                             h.event.type == EventType::KeyPress ? h.event.keyAscii : h.event.keyCode,
                             h.event.shift);
        // Shift and Ctrl are keys of their own, pressed before the key they change.
        const std::vector<std::tuple<EventType, int, int>> expected = {
            {EventType::KeyDown, 65, 0}, {EventType::KeyPress, 'a', 0}, {EventType::KeyDown, 112, 0},
            {EventType::KeyDown, 16, 1}, {EventType::KeyDown, 34, 1},   {EventType::KeyDown, 17, 2},
            {EventType::KeyDown, 38, 2}, {EventType::KeyDown, 13, 0},   {EventType::KeyPress, 13, 0}};
        QVERIFY(got == expected);
    }

    // Focus: the desk's moves reach the widgets, and entering a field fires its events.
    void focusFollowsTheModelAndEnteringAFieldFiresItsEvents() {
        sample->hear("txtCode", EventType::LostFocus);
        sample->on("txtName", EventType::GotFocus, [this](Event&) { SelectAll(*sample, "txtName"); });
        sample->on("txtName", EventType::KeyDown, [this](Event& e) { EnterAsTab(*sample, e.keyCode); });
        showActive();
        widget<QLineEdit>("txtCode")->setFocus();
        widget<QLineEdit>("txtName")->setFocus(Qt::MouseFocusReason);
        QCOMPARE(sample->heard.size(), size_t(1));
        QCOMPARE(sample->focused(), "txtName");
        QCOMPARE(widget<QLineEdit>("txtName")->selectedText(), "first");

        QTest::keyClick(widget<QLineEdit>("txtName"), Qt::Key_Return);
        QCOMPARE(sample->focused(), "txtCode");
        QCOMPARE(QApplication::focusWidget(), widget<QLineEdit>("txtCode"));
        sample->setFocus("cmdGo");
        sample->flush();
        QCOMPARE(QApplication::focusWidget(), widget<QPushButton>("cmdGo"));
    }

    // Clicks and choices.
    void buttonsAndChoicesReachTheModel() {
        sample->hear("cmdGo", EventType::Click);
        sample->hear("cboMonth", EventType::Click);
        sample->setItems("cboMonth", {"JAN", "FEB"});
        sample->flush();

        QTest::mouseClick(widget<QPushButton>("cmdGo"), Qt::LeftButton);
        QTest::keyClick(widget<QPushButton>("cmdGo"), Qt::Key_Return); // Enter clicks the focused button
        widget<QCheckBox>("chkHeld")->click();
        widget<QRadioButton>("optType(0)")->click();
        widget<QRadioButton>("optType(1)")->click();
        widget<QRadioButton>("optType(1)")->click();
        emit widget<QComboBox>("cboMonth")->activated(1);

        QCOMPARE(sample->heard.size(), size_t(3));
        QVERIFY(sample->heard[0].control == "cmdGo" && sample->heard[1].control == "cmdGo");
        QVERIFY(sample->control("chkHeld").value);
        QVERIFY(!sample->control("optType(0)").value);
        QVERIFY(sample->control("optType(1)").value);
        QVERIFY(!widget<QRadioButton>("optType(0)")->isChecked());
        QVERIFY(widget<QRadioButton>("optType(1)")->isChecked()); // a second click keeps the choice
        QCOMPARE(sample->text("cboMonth"), "FEB");
    }

    // Grids.
    void aGridShowsItsCellsAndACellClickAndEditReachTheModel() {
        Grid& grid = sample->grid("va1");
        grid.setMaxRows(3);
        grid.column(1).heading = "Strike";
        grid.column(3).editable = true;
        grid.column(4).hidden = true;
        grid.setText(2, 1, "100");
        grid.setFore(2, 1, RGB(255, 255, 0));
        grid.setBack(2, 1, RGB(0, 0, 0));
        sample->hear("va1", EventType::Click);
        sample->hear("va1", EventType::Change);
        sample->flush();

        auto* table = widget<QTableWidget>("va1");
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(table->columnCount(), 4);
        QCOMPARE(table->horizontalHeaderItem(0)->text(), "Strike");
        QVERIFY(table->isColumnHidden(3));
        QCOMPARE(table->item(1, 0)->text(), "100");
        QCOMPARE(table->item(1, 0)->foreground().color(), QColor(255, 255, 0));
        QCOMPARE(table->item(1, 0)->background().color(), QColor(0, 0, 0));

        emit table->cellClicked(1, 2);
        table->item(1, 2)->setText("250");
        QCOMPARE(grid.activeRow, 2);
        QCOMPARE(grid.activeCol, 3);
        QCOMPARE(grid.text(2, 3), "250");
        QCOMPARE(sample->heard.size(), size_t(2));
        const Event& click = sample->heard[0].event;
        QVERIFY(click.type == EventType::Click && click.row == 2 && click.col == 3);
        QCOMPARE(sample->heard[1].event.type, EventType::Change);
    }

    void aSheetSizedRefreshReusesItsItems() {
        Grid& grid = sample->grid("va1");
        grid.setMaxCols(16);
        grid.setMaxRows(220);
        const auto fill = [&](int round) {
            for (int r = 1; r <= grid.maxRows(); ++r)
                for (int c = 1; c <= grid.maxCols(); ++c) {
                    grid.setText(r, c, std::to_string(r * c + round));
                    grid.setFore(r, c, round % 2 ? RGB(255, 0, 0) : RGB(0, 255, 255));
                }
            sample->flush();
        };
        fill(0);
        auto* table = widget<QTableWidget>("va1");
        QTableWidgetItem* corner = table->item(219, 15);
        QElapsedTimer timer;
        timer.start();
        fill(1);
        QVERIFY2(timer.elapsed() < 500, "a refresh of 220 x 16 cells took too long");
        QCOMPARE(table->item(219, 15), corner);
        QCOMPARE(corner->text(), QString::number(220 * 16 + 1));
    }
};

QTEST_MAIN(FormBinderTest)
#include "FormBinderTest.moc"
