// The look-up dialogs as the desk uses them: a row picked with the mouse or the keys, and the
// incremental search typed in its box.
#include "GuiDesk.h"
#include "LookupSteps.h"

#include "access/FindDialogs.h"
#include "access/FrmSeek.h"
#include "access/Search.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>

using namespace tallimark;

namespace {
const char* const kScripts = "SELECT SCRCODE, SCRNAME FROM SCRIPTMAST ORDER BY SCRCODE";
const char* const kUsers = "SELECT Usernm as [NAME],usercd as [CODE] from users order by usernm";
} // namespace

class FindDialogsViewTest : public QObject {
    Q_OBJECT

    std::unique_ptr<test::GuiDesk> desk;

    std::string seek(std::function<void(QWidget&)> steps) {
        return test::duringDialog(
            desk->app, FrmSeek::kName, [&] { return SeekValue(desk->app, "Script List", kScripts); },
            std::move(steps));
    }
    std::vector<std::string> lookup(const char* statement, std::function<void(QWidget&)> steps) {
        return test::duringDialog(
            desk->app, search::kName, [&] { return search_call(desk->app, statement); }, std::move(steps));
    }

private slots:
    void init() {
        desk = std::make_unique<test::GuiDesk>();
        for (const char* row : {"'ACC', 'ACC LTD'", "'BHEL', 'BHARAT HEAVY'", "'BPCL', 'BHARAT PETROLEUM'"})
            desk->app.store().execute(std::string("insert into ScriptMast (ScrCode, ScrName) values (") +
                                      row + ")");
        desk->app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('2', 'RAVI', 'r')");
        desk->app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('3', 'RAJ', 'r')");
    }
    void cleanup() { desk.reset(); }

    void theSeekListShowsTheRowsAndADoubleClickPicks() {
        QString title;
        QStringList headings;
        int rows = 0;
        const std::string got = seek([&](QWidget& dialog) {
            title = dialog.windowTitle();
            QTableWidget* list = test::table(dialog, "MSHFlexGrid1");
            rows = list->rowCount();
            for (int c = 0; c < list->columnCount(); ++c)
                headings << list->horizontalHeaderItem(c)->text();
            test::doubleClickRow(*list, 1);
        });
        QCOMPARE(title, "Script List");
        QCOMPARE(rows, 3);
        QCOMPARE(headings, QStringList({"ScrCode", "ScrName"}));
        QCOMPARE(got, "BHEL");
        QVERIFY(desk->boxes.empty());
    }

    void theKeysMoveAndPickOrLeave() {
        const std::string picked = seek([](QWidget& dialog) {
            QTableWidget* list = test::table(dialog, "MSHFlexGrid1");
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Return);
        });
        QCOMPARE(picked, "BPCL");
        const std::string left = seek(
            [](QWidget& dialog) { QTest::keyClick(test::table(dialog, "MSHFlexGrid1"), Qt::Key_Escape); });
        QCOMPARE(left, "");
        QVERIFY(!desk->app.screens().find(FrmSeek::kName));
    }

    void theSearchFollowsTheTypedTextAndNextDoesNotType() {
        QString typed, column;
        int afterR = -1, afterNext = -1;
        const auto got = lookup(kUsers, [&](QWidget& dialog) {
            auto* box = dialog.findChild<QLineEdit*>("txt_search");
            QTableWidget* list = test::table(dialog, "DB1");
            column = dialog.findChild<QComboBox*>("Combo1")->currentText();
            QTest::keyClicks(box, "r");
            afterR = list->currentRow();
            QTest::keyClick(box, Qt::Key_N);
            afterNext = list->currentRow();
            typed = box->text();
            QTest::keyClick(box, Qt::Key_Return);
        });
        // In name order: ADMIN, RAJ, RAVI.
        QCOMPARE(column, "NAME");
        QCOMPARE(afterR, 1);
        QCOMPARE(afterNext, 2);
        QCOMPARE(typed, "r");
        QCOMPARE(got, (std::vector<std::string>{"RAVI", "2"}));
    }

    void okTakesTheRowAndEscNone() {
        const auto got = lookup(kScripts, [](QWidget& dialog) {
            auto* box = dialog.findChild<QLineEdit*>("txt_search");
            // P without Shift is "previous match": a capital is typed with Shift.
            QTest::keyClick(box, Qt::Key_B, Qt::ShiftModifier);
            QTest::keyClick(box, Qt::Key_P, Qt::ShiftModifier);
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmd_ok"), Qt::LeftButton);
        });
        QCOMPARE(got, (std::vector<std::string>{"BPCL", "BHARAT PETROLEUM"}));
        const auto none = lookup(kScripts, [](QWidget& dialog) {
            QTest::keyClick(dialog.findChild<QLineEdit*>("txt_search"), Qt::Key_Escape);
        });
        QVERIFY(none.empty());
    }

    void anEmptySetSaysNoRecordsWithoutADialog() {
        const auto got = lookup("select * from Charges", [](QWidget&) {});
        QVERIFY(got.empty());
        QCOMPARE(desk->boxes.size(), size_t(1));
        QCOMPARE(desk->boxes[0].title, "No Records");
        QCOMPARE(desk->boxes[0].text, "No records found");
        QVERIFY(!QApplication::activeModalWidget());
    }
};

QTEST_MAIN(FindDialogsViewTest)
#include "FindDialogsViewTest.moc"
