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
    // Types into the search box, then presses a key in a control (0: clicks it).
    std::vector<std::string> pick(const char* typed, const char* control, int key) {
        return lookup(kScripts, [=](search& s) {
            s.setText("txt_search", typed);
            if (key)
                pressKey(s, control, key);
            else
                s.fire(control, EventType::Click);
        });
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
    }
    EXPECT_TRUE(d.ui.boxes().empty());
    EXPECT_THROW(d.seek("SELECT * FROM NoSuchTable", [](FrmSeek&) {}), StoreError) << "reaches the caller";
}

TEST(Search, TypingFindsTheFirstRowBeginningWithTheTextInAnyCaseTheKeysMoveOnAndAQuoteIsAnError) {
    LookupDesk d;
    d.lookup(kScripts, [&](search& s) {
        // Without a row that begins with the text the row stays.
        for (const auto& [typed, row] : {std::pair{"INFY", 5},
                                         {"INFYS", 5},
                                         {"Z", 5},
                                         {"", 1},
                                         {"B", 3},
                                         {"bp", 4},
                                         {"AD", 2},
                                         {"a", 1}}) {
            s.setText("txt_search", typed);
            EXPECT_EQ(s.currentRow(), row) << "typed '" << typed << "'";
        }
        // On "a": next and previous match (none past either end), but a capital N is typing; Page
        // Down and Up stop at the last and first rows. Every command key is swallowed.
        const struct {
            int key, shift, row;
        } keyed[] = {{'N', 0, 2},
                     {'N', 0, 2},
                     {'P', 0, 1},
                     {'P', 0, 1},
                     {'N', keys::ShiftMask, 1},
                     {keys::Down, 0, 2},
                     {keys::Down, 0, 3},
                     {keys::Up, 0, 2},
                     {keys::PageDown, 0, 5},
                     {keys::PageUp, 0, 1}};
        for (const auto& k : keyed) {
            EXPECT_EQ(pressKey(s, "txt_search", k.key, k.shift).keyCode, k.shift ? k.key : 0) << k.key;
            EXPECT_EQ(s.currentRow(), k.row) << "key " << k.key << " shift " << k.shift;
        }
        s.setText("txt_search", "B");
        s.setText("txt_search", "B'"); // a quote breaks the search as it breaks a statement
        EXPECT_EQ(s.currentRow(), 3) << "the cursor stays";
    });
    EXPECT_EQ(d.boxTexts(), std::vector<std::string>{
                                "Run-time error '1':\n\nSyntax error in string in query expression ''B''."});
}

TEST(Search, OkOrEnterGiveEveryColumnOfTheCurrentRowEscGivesNone) {
    LookupDesk d;
    EXPECT_EQ(d.pick("bh", "cmd_ok", 0), (std::vector<std::string>{"BHEL", "bharat heavy"}));
    EXPECT_EQ(d.pick("bp", "txt_search", keys::Enter), (std::vector<std::string>{"BPCL", ""}));
    EXPECT_TRUE(d.pick("bp", "txt_search", keys::Escape).empty());
    EXPECT_TRUE(d.pick("bp", "DB1", keys::Escape).empty());
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(Search, TheSearchColumnIsChosenInTheComboAndNumbersAreSearchedAsTheyRead) {
    LookupDesk d;
    const auto byName = d.lookup(kScripts, [](search& s) {
        EXPECT_EQ(s.control("Combo1").items, (std::vector<std::string>{"ScrCode", "ScrName"}));
        EXPECT_EQ(s.text("Combo1") + "|" + s.focused(), "ScrCode|txt_search");
        s.setText("txt_search", "IN");
        s.setText("Combo1", "ScrName");
        s.fire("Combo1", EventType::Click);
        EXPECT_EQ(s.text("txt_search"), "");
        s.setText("txt_search", "BHARAT"); // the names are searched now, case aside
        s.fire("cmd_ok", EventType::Click);
    });
    EXPECT_EQ(byName, (std::vector<std::string>{"BHEL", "bharat heavy"}));

    d.app.store().execute("insert into Users (UserCd, UserNm, Pwd) values ('12', 'RAVI', 'r')");
    const auto byCode =
        d.lookup("SELECT Usernm as [NAME],usercd as [CODE] from users order by usernm", [](search& s) {
            s.setText("Combo1", "CODE");
            s.fire("Combo1", EventType::Click);
            s.setText("txt_search", "1");
            pressKey(s, "txt_search", 'N');
            pressKey(s, "txt_search", keys::Enter);
        });
    EXPECT_EQ(byCode, (std::vector<std::string>{"RAVI", "12"}));
}

TEST(Search, AnEmptySetSaysSoAndGivesNothing) {
    LookupDesk d;
    bool ran = false;
    EXPECT_TRUE(d.lookup("select * from Charges", [&](search&) { ran = true; }).empty());
    EXPECT_EQ(d.boxLines(), std::vector<std::string>{"No Records|No records found|information"});
    EXPECT_TRUE(ran) << "the modal run still starts, on a dialog already gone";
}
