// Every field of every screen typed with texts meant to break out of their statements: whatever
// the screens then do with them, the store keeps its meaning. New screens join by registering.
#include "TestDesk.h"

#include "frame/Screens.h"
#include "frame/VbNumber.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

const std::string kHostile[] = {"(select Pwd from Users)",
                                "0, SCRNAME = DESCR --",
                                "0 or 1=1",
                                "1); delete from Users; --",
                                "x' or '1'='1",
                                "0, SCRNAME = 'PWNED' --",
                                "1 /*",
                                "1e400",
                                std::string(400, '9')};

// Every cell of every table as "table|column|text"; a number past a double's range fails here.
std::vector<std::string> cells(Store& store) {
    std::vector<std::string> all;
    for (const auto& table : schema::tables()) {
        Recordset rs = store.query("select * from " + table.name);
        for (size_t r = 0; r < rs.recordCount(); ++r)
            for (size_t c = 0; c < rs.fieldCount(); ++c)
                all.push_back(table.name + "|" + rs.fieldName(c) + "|" + rs.cell(r, c).textOrEmpty());
    }
    return all;
}

std::vector<std::string> rows(Store& store, const char* sql) {
    std::vector<std::string> out;
    for (Recordset rs = store.query(sql); !rs.eof(); rs.moveNext()) {
        std::string row;
        for (size_t c = 0; c < rs.fieldCount(); ++c)
            row += rs.at(c).textOrEmpty() + "|";
        out.push_back(row);
    }
    return out;
}

struct HostileDesk : test::Desk {
    HostileDesk() {
        Store& s = app.store();
        s.execute("insert into Users (UserCd, UserNm, Pwd) values ('2', 'CLERK', 'secret')");
        s.execute("insert into ScriptMast (ScrCode, ScrName, Descr, RateDiff, Limit_Cr, Field2) values "
                  "('ABC', 'ABC LTD', 'Cement', 1.5, 10, 100)");
        s.execute("insert into Charges (TurnOverCh, ConCh) values (0.5, 0.25)");
        app.session().g_UserName = "ADMIN";
        s.executeNative("PRAGMA synchronous=OFF"); // thousands of small writes; no power cut here
    }
    // The seeded rows, read back: none may change or go.
    std::vector<std::string> seeded() {
        std::vector<std::string> all;
        for (const char* sql : {"select * from Users where UserCd in ('1', '2') order by UserCd",
                                "select * from ScriptMast where ScrCode = 'ABC'", "select * from Charges"}) {
            auto r = rows(app.store(), sql);
            all.insert(all.end(), r.begin(), r.end());
        }
        return all;
    }
    // The seeded rows stand as they were, no password was copied, nothing was renamed.
    void expectIntact(const std::vector<std::string>& before, const std::string& what) {
        ASSERT_EQ(seeded(), before) << what;
        for (const std::string& cell : cells(app.store())) {
            const bool password = cell.rfind("Users|Pwd|", 0) == 0;
            EXPECT_TRUE(password || (cell.find("tallimark") == std::string::npos &&
                                     cell.find("secret") == std::string::npos))
                << what << ": " << cell;
            EXPECT_EQ(cell.find("|PWNED"), std::string::npos) << what;
        }
    }
    Form* screen(const std::string& name) {
        app.screens().collect();
        try {
            Form* f = app.screens().find(name);
            return f ? f : &app.screens().get(name);
        } catch (const VbError&) {
            return nullptr;
        }
    }
    // Every field a user could type into, and the first rows of every editable column, take the text.
    static void fill(Form& f, const std::string& text) {
        for (const std::string& name : f.controlOrder()) {
            if (!f.hasControl(name)) {
                Grid& g = f.grid(name);
                for (int col = 1; col <= g.maxCols(); ++col)
                    for (int row = 1; row <= std::min(g.maxRows(), 2); ++row)
                        if (g.column(col).editable) g.setText(row, col, text);
                continue;
            }
            const Control& c = f.control(name);
            const bool typable = c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
                                 c.kind == ControlKind::DatePicker;
            if (typable && c.enabled && c.visible && !c.locked) f.setText(name, text);
        }
    }
    // Runs an action on a screen; the screen may unload itself or end the program, which closes
    // the store: the walk opens it again.
    void act(const std::string& name, const std::function<void(Form&)>& action) {
        if (Form* f = screen(name)) try {
                action(*f);
            } catch (const ProgramEnd&) {
            }
        if (!app.storeOpen()) app.openStore();
    }
};

std::vector<std::string> clickables(Form& f) {
    std::vector<std::string> out;
    for (const std::string& name : f.controlOrder())
        if (f.hasControl(name) &&
            (f.control(name).kind == ControlKind::Button || f.control(name).kind == ControlKind::Menu ||
             f.control(name).kind == ControlKind::CheckBox))
            out.push_back(name);
    return out;
}

} // namespace

TEST(HostileFields, NoTypedTextChangesWhatAStatementMeans) {
    for (const std::string& name : screenNames()) {
        HostileDesk d;
        const auto before = d.seeded();
        Form* shown = d.screen(name);
        ASSERT_NE(shown, nullptr) << name;
        const std::vector<std::string> buttons = clickables(*shown), fields = shown->controlOrder();
        for (const std::string& text : kHostile) {
            auto click = [&](const std::string& button) {
                d.act(name, [&](Form& f) {
                    HostileDesk::fill(f, text);
                    if (f.hasControl(button) && f.control(button).enabled && f.control(button).visible)
                        f.fire(button, EventType::Click);
                });
            };
            // Every two buttons in turn on a fresh screen: New then Save, Find then Delete.
            for (const std::string& first : buttons) {
                for (const std::string& then : buttons) {
                    d.app.screens().unload(name);
                    click(first);
                    click(then);
                }
                d.expectIntact(before, name + " with " + text + " after " + first);
            }
            for (const std::string& field : fields)
                d.act(name, [&](Form& f) {
                    HostileDesk::fill(f, text);
                    if (!f.hasControl(field)) return;
                    test::pressKey(f, field, keys::Enter);
                    f.fire(field, EventType::LostFocus);
                });
            d.expectIntact(before, name + " with " + text);
        }
    }
}
