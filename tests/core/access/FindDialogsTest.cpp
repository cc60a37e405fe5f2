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

TEST(FrmSeek, ThePickedRowGivesItsFirstColumnEscOrAnEmptySetNothingAndTheDialogGoes) {
    struct Case {
        const char* name;
        const char* statement;
        int row; // 0: the row the dialog starts on
        int key; // 0: a double click
        const char* expected;
    } cases[] = {
        {"Enter on the first row", kScripts, 0, keys::Enter, "ACC"},
        {"Enter on a chosen row", kScripts, 3, keys::Enter, "BHEL"},
        {"double click", kScripts, 5, 0, "INFY"},
        {"Esc after a pick", kScripts, 0, keys::Escape, ""},
        {"Enter on an empty set", "select * from Charges", 0, keys::Enter, ""},
    };
    LookupDesk d; // one desk throughout: no pick is handed back twice
    for (const Case& c : cases) {
        std::string captionShown;
        bool shownAfter = false;
        const std::string got = d.seek(c.statement, [&](FrmSeek& s) {
            captionShown = s.caption();
            if (c.row) s.grid("MSHFlexGrid1").activeRow = c.row;
            if (c.key)
                pressKey(s, "MSHFlexGrid1", c.key);
            else
                s.fire("MSHFlexGrid1", EventType::DblClick);
            if (c.key != keys::Escape) shownAfter = s.visible(); // Esc unloads it
        });
        EXPECT_EQ(got, c.expected) << c.name;
        EXPECT_EQ(captionShown, "Script List") << c.name;
        EXPECT_FALSE(shownAfter) << c.name;
        EXPECT_EQ(d.app.screens().find(FrmSeek::kName), nullptr) << c.name << ": the caller unloads it";
    }
    EXPECT_TRUE(d.ui.boxes().empty());
    EXPECT_THROW(d.seek("SELECT * FROM NoSuchTable", [](FrmSeek&) {}), StoreError) << "reaches the caller";
}

TEST(Search, TypingFindsTheFirstRowBeginningWithTheTextInAnyCaseAndTheKeysMoveOn) {
    struct Step {
        const char* typed; // else the key pressed
        int key;
        int row; // the current row afterwards
        int shift = 0;
    } steps[] = {
        {"INFY", 0, 5},
        {"INFYS", 0, 5},
        {"Z", 0, 5},
        {"", 0, 1},
        {"B", 0, 3},
        {"bp", 0, 4},
        {"AD", 0, 2},
        {"a", 0, 1},
        {nullptr, 'N', 2},
        {nullptr, 'N', 2},
        {nullptr, 'P', 1},
        {nullptr, 'P', 1},
        {nullptr, 'N', 1, keys::ShiftMask}, // a capital is typing
        {nullptr, keys::Down, 2},
        {nullptr, keys::Down, 3},
        {nullptr, keys::Up, 2},
        {nullptr, keys::PageDown, 5},
        {nullptr, keys::PageUp, 1}, // past either end: the last or first row
    };
    LookupDesk d;
    d.lookup(kScripts, [&](search& s) {
        for (const Step& st : steps) {
            const std::string what =
                st.typed ? "typed '" + std::string(st.typed) + "'" : "key " + std::to_string(st.key);
            if (st.typed)
                s.setText("txt_search", st.typed);
            else
                EXPECT_EQ(pressKey(s, "txt_search", st.key, st.shift).keyCode, st.shift ? st.key : 0)
                    << what << ": a command is swallowed";
            EXPECT_EQ(s.currentRow(), st.row) << what;
        }
    });
}

TEST(Search, OkOrEnterGiveEveryColumnOfTheCurrentRowEscGivesNone) {
    const std::pair<std::function<void(search&)>, std::vector<std::string>> cases[] = {
        {[](search& s) {
             s.setText("txt_search", "bh");
             s.fire("cmd_ok", EventType::Click);
         },
         {"BHEL", "bharat heavy"}},
        {[](search& s) {
             s.setText("txt_search", "bp");
             pressKey(s, "txt_search", keys::Enter);
         },
         {"BPCL", ""}},
        {[](search& s) { pressKey(s, "txt_search", keys::Escape); }, {}},
        {[](search& s) { pressKey(s, "DB1", keys::Escape); }, {}},
    };
    LookupDesk d;
    for (const auto& [act, expected] : cases) {
        EXPECT_EQ(d.lookup(kScripts, act), expected);
        EXPECT_EQ(d.app.screens().find(search::kName), nullptr);
    }
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(Search, TheSearchColumnIsChosenInTheComboAndNumbersAreSearchedAsTheyRead) {
    LookupDesk d;
    EXPECT_EQ(
        d.lookup(kScripts,
                 [](search& s) {
                     EXPECT_EQ(s.control("Combo1").items, (std::vector<std::string>{"ScrCode", "ScrName"}));
                     EXPECT_EQ(s.text("Combo1"), "ScrCode");
                     EXPECT_EQ(s.focused(), "txt_search");
                     s.setText("txt_search", "IN");
                     s.setText("Combo1", "ScrName");
                     s.fire("Combo1", EventType::Click);
                     EXPECT_EQ(s.text("txt_search"), "");
                     s.setText("txt_search", "BHARAT"); // the names are searched now, case aside
                     s.fire("cmd_ok", EventType::Click);
                 }),
        (std::vector<std::string>{"BHEL", "bharat heavy"}));

    d.app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('12', 'RAVI', 'r')");
    EXPECT_EQ(d.lookup("SELECT Usernm as [NAME],usercd as [CODE] from users order by usernm",
                       [](search& s) {
                           s.setText("Combo1", "CODE");
                           s.fire("Combo1", EventType::Click);
                           s.setText("txt_search", "1");
                           pressKey(s, "txt_search", 'N');
                           pressKey(s, "txt_search", keys::Enter);
                       }),
              (std::vector<std::string>{"RAVI", "12"}));
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
