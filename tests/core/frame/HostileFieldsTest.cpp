// Hostile texts typed into every field of every registered screen (a screen registered later is
// walked too), with each pair of buttons pressed on a fresh screen: the store keeps its meaning.
#include "TestDesk.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace tallimark;

namespace {

// Every cell of the store as "table|column|text", sorted; a number past a double's range fails.
std::vector<std::string> cells(Store& store) {
    std::vector<std::string> all;
    for (const auto& t : schema::tables())
        for (Recordset rs = store.query("select * from " + t.name); !rs.eof(); rs.moveNext())
            for (size_t c = 0; c < rs.fieldCount(); ++c)
                all.push_back(t.name + "|" + rs.fieldName(c) + "|" + rs.at(c).textOrEmpty());
    std::sort(all.begin(), all.end());
    return all;
}

void type(Form& f, const std::string& text) {
    for (const std::string& name : f.controlOrder())
        if (f.hasControl(name) && f.control(name).enabled && !f.control(name).locked &&
            (f.control(name).kind == ControlKind::TextBox || f.control(name).kind == ControlKind::ComboBox))
            f.setText(name, text);
}

} // namespace

TEST(HostileFields, NoTypedTextChangesWhatAStatementMeans) {
    for (const std::string& screen : screenNames()) {
        test::Desk d;
        d.app.store().executeNative(
            "insert into Users values ('2', 'CLERK', 'secret');"
            "insert into ScriptMast (ScrCode, ScrName, Descr) values ('ABC', 'AB', 'C')");
        const auto before = cells(d.app.store());
        Form& shown = d.app.screens().get(screen);
        std::vector<std::string> buttons;
        for (const std::string& n : shown.controlOrder())
            if (shown.hasControl(n) && shown.control(n).kind == ControlKind::Button) buttons.push_back(n);
        for (const std::string text : {"(select Pwd from Users)", "0, SCRNAME = DESCR --", "0 or 1=1", "1 /*",
                                       "1); delete from Users; --", "x' or '1'='1", "1e400"})
            for (const std::string& first : buttons)
                for (const std::string& then : buttons) {
                    d.app.screens().unload(screen);
                    for (const std::string& button : {first, then})
                        try {
                            d.app.screens().collect();
                            Form& f = d.app.screens().get(screen);
                            type(f, text);
                            if (f.hasControl(button) && f.control(button).enabled)
                                f.fire(button, EventType::Click);
                        } catch (const ProgramEnd&) {
                            d.app.openStore();
                        }
                    const auto after = cells(d.app.store());
                    ASSERT_TRUE(std::includes(after.begin(), after.end(), before.begin(), before.end()))
                        << screen << " " << first << " " << then << " " << text;
                    for (const std::string& cell : after)
                        ASSERT_TRUE(cell.find("tallimark") == std::string::npos ||
                                    cell.rfind("Users|Pwd", 0) == 0)
                            << screen << " " << first << " " << then << " " << text << ": " << cell;
                }
    }
}
