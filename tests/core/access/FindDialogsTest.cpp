#include "TestDesk.h"

#include "access/FindDialogs.h"
#include "access/FrmSeek.h"
#include "access/Search.h"

#include <gtest/gtest.h>

using namespace tallimark;
using test::pressKey;

namespace {

const char* const kScripts = "SELECT SCRCODE, SCRNAME FROM SCRIPTMAST ORDER BY SCRCODE";

struct LookupDesk : test::Desk {
    LookupDesk() {
        // Rows in code order: 1 ACC, 2 ADANIENT, 3 BHEL, 4 BPCL, 5 INFY; BPCL has no name.
        for (const char* row : {"'ACC', 'ACC LTD'", "'ADANIENT', 'ADANI ENTERPRISES'",
                                "'BHEL', 'bharat heavy'", "'BPCL', null", "'INFY', 'INFOSYS'"})
            app.store().execute(std::string("insert into ScriptMast (ScrCode, ScrName) values (") + row +
                                ")");
    }
    std::string seek(const std::string& statement, std::function<void(FrmSeek&)> act) {
        ui.setModalRunner([act](Form& f) { act(static_cast<FrmSeek&>(f)); });
        return SeekValue(app, "Script List", statement);
    }
    std::vector<std::string> lookup(const std::string& statement, std::function<void(search&)> act) {
        ui.setModalRunner([act](Form& f) { act(static_cast<search&>(f)); });
        return search_call(app, statement);
    }
};

} // namespace

TEST(FrmSeek, ThePickedRowGivesItsFirstColumnAndTheDialogGoes) {
    struct Case {
        const char* name;
        int row; // 0: the row the dialog starts on
        bool doubleClick;
        const char* expected;
    } cases[] = {
        {"Enter on the first row", 0, false, "ACC"},
        {"Enter on a chosen row", 3, false, "BHEL"},
        {"double click", 5, true, "INFY"},
    };
    for (const Case& c : cases) {
        LookupDesk d;
        std::string captionShown;
        const std::string got = d.seek(kScripts, [&](FrmSeek& s) {
            captionShown = s.caption();
            Grid& g = s.grid("MSHFlexGrid1");
            if (c.row) g.activeRow = c.row;
            if (c.doubleClick)
                s.fire("MSHFlexGrid1", EventType::DblClick);
            else
                pressKey(s, "MSHFlexGrid1", keys::Enter);
        });
        EXPECT_EQ(got, c.expected) << c.name;
        EXPECT_EQ(captionShown, "Script List") << c.name;
        EXPECT_EQ(d.app.screens().find(FrmSeek::kName), nullptr) << c.name << ": the caller unloads it";
    }
}

TEST(FrmSeek, EscOrAnEmptySetGiveNothing) {
    LookupDesk d;
    EXPECT_EQ(d.seek(kScripts, [](FrmSeek& s) { pressKey(s, "MSHFlexGrid1", keys::Escape); }), "");
    EXPECT_EQ(d.app.screens().find(FrmSeek::kName), nullptr);

    // A pick, then Esc on the next look-up: the earlier pick does not come back.
    EXPECT_EQ(d.seek(kScripts, [](FrmSeek& s) { pressKey(s, "MSHFlexGrid1", keys::Enter); }), "ACC");
    EXPECT_EQ(d.seek(kScripts, [](FrmSeek& s) { pressKey(s, "MSHFlexGrid1", keys::Escape); }), "");

    bool hidden = false;
    EXPECT_EQ(d.seek("select * from Charges",
                     [&](FrmSeek& s) {
                         pressKey(s, "MSHFlexGrid1", keys::Enter);
                         hidden = !s.visible();
                     }),
              "");
    EXPECT_TRUE(hidden);
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(FrmSeek, ABrokenStatementReachesTheCaller) {
    LookupDesk d;
    EXPECT_THROW(d.seek("SELECT * FROM NoSuchTable", [](FrmSeek&) {}), StoreError);
}

TEST(Search, TypingMovesToTheFirstRowThatBeginsWithTheTextInAnyCase) {
    struct Case {
        const char* typed;
        int row; // the current row afterwards, starting from row 1
    } cases[] = {
        {"B", 3}, {"bp", 4}, {"A", 1}, {"AD", 2}, {"INFY", 5}, {"INFYS", 1}, {"Z", 1}, {"", 1},
    };
    for (const Case& c : cases) {
        LookupDesk d;
        int row = -1;
        d.lookup(kScripts, [&](search& s) {
            s.setText("txt_search", c.typed);
            row = s.currentRow();
        });
        EXPECT_EQ(row, c.row) << "typed " << c.typed;
    }
}

TEST(Search, NextAndPreviousMatchesAndTheMovingKeys) {
    LookupDesk d;
    std::vector<int> rows;
    d.lookup(kScripts, [&](search& s) {
        // Every key here is a command the dialog swallows, but for a capital N, which is typing.
        const auto press = [&](int code, int shift = 0) {
            EXPECT_EQ(pressKey(s, "txt_search", code, shift).keyCode, shift ? code : 0) << code;
            rows.push_back(s.currentRow());
        };
        s.setText("txt_search", "a");
        rows.push_back(s.currentRow());
        press('N');                  // ADANIENT
        press('N');                  // no third A: stays
        press('P');                  // ACC
        press('P');                  // nothing before: stays
        press('N', keys::ShiftMask); // a capital N is typing, not a command
        press(keys::Down);
        press(keys::Down);
        press(keys::Up);
        press(keys::PageDown); // past the end: the last row
        press(keys::PageUp);   // before the start: the first row
        s.setText("txt_search", "zz");
        rows.push_back(s.currentRow());
    });
    EXPECT_EQ(rows, (std::vector<int>{1, 2, 2, 1, 1, 1, 2, 3, 2, 5, 1, 1}));
}

TEST(Search, OkGivesEveryColumnOfTheCurrentRowEscGivesNone) {
    LookupDesk d;
    EXPECT_EQ(d.lookup(kScripts,
                       [](search& s) {
                           s.setText("txt_search", "bh");
                           s.fire("cmd_ok", EventType::Click);
                       }),
              (std::vector<std::string>{"BHEL", "bharat heavy"}));
    EXPECT_EQ(d.app.screens().find(search::kName), nullptr);

    EXPECT_EQ(d.lookup(kScripts,
                       [](search& s) {
                           s.setText("txt_search", "bp");
                           pressKey(s, "txt_search", keys::Enter);
                       }),
              (std::vector<std::string>{"BPCL", ""}));
    EXPECT_TRUE(d.lookup(kScripts, [](search& s) { pressKey(s, "txt_search", keys::Escape); }).empty());
    EXPECT_TRUE(d.lookup(kScripts, [](search& s) { pressKey(s, "DB1", keys::Escape); }).empty());
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(Search, TheSearchColumnIsChosenInTheCombo) {
    LookupDesk d;
    const auto got = d.lookup(kScripts, [](search& s) {
        EXPECT_EQ(s.control("Combo1").items, (std::vector<std::string>{"ScrCode", "ScrName"}));
        EXPECT_EQ(s.text("Combo1"), "ScrCode");
        EXPECT_EQ(s.focused(), "txt_search");
        s.setText("txt_search", "IN");
        s.setText("Combo1", "ScrName");
        s.fire("Combo1", EventType::Click);
        EXPECT_EQ(s.text("txt_search"), "");
        s.setText("txt_search", "BHARAT"); // the names are searched now, case aside
        s.fire("cmd_ok", EventType::Click);
    });
    EXPECT_EQ(got, (std::vector<std::string>{"BHEL", "bharat heavy"}));
}

TEST(Search, NumbersAreSearchedAsTheyRead) {
    LookupDesk d;
    d.app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('12', 'RAVI', 'r')");
    const auto got =
        d.lookup("SELECT Usernm as [NAME],usercd as [CODE] from users order by usernm", [](search& s) {
            s.setText("Combo1", "CODE");
            s.fire("Combo1", EventType::Click);
            s.setText("txt_search", "1");
            pressKey(s, "txt_search", 'N');
            pressKey(s, "txt_search", keys::Enter);
        });
    EXPECT_EQ(got, (std::vector<std::string>{"RAVI", "12"}));
}

TEST(Search, AnEmptySetSaysSoAndGivesNothing) {
    LookupDesk d;
    bool ran = false;
    EXPECT_TRUE(d.lookup("select * from Charges", [&](search&) { ran = true; }).empty());
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"No Records|No records found|information"});
    EXPECT_EQ(d.app.screens().find(search::kName), nullptr);
    EXPECT_TRUE(ran) << "the modal run still starts, on a dialog already gone";
}

TEST(Search, AQuoteInTheSearchTextIsAnErrorAndTheCursorStays) {
    LookupDesk d;
    d.lookup(kScripts, [](search& s) {
        s.setText("txt_search", "B");
        s.setText("txt_search", "B'");
        EXPECT_EQ(s.currentRow(), 3);
        pressKey(s, "txt_search", keys::Escape);
    });
    ASSERT_EQ(d.boxTexts().size(), 1u);
    EXPECT_EQ(d.boxTexts()[0].rfind("Run-time error", 0), 0u) << d.boxTexts()[0];
}
