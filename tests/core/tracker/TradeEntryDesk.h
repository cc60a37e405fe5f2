#pragma once
// A desk for the trade entry dialogs: moving the focus and pressing keys as the person at the
// desk does, and the boxes shown.
#include "TestDesk.h"

#include "frame/Form.h"
#include "tracker/TradeEntryDialog.h"

#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace tallimark::test {

struct EntryDesk : Desk {
    static void key(Form& form, const std::string& control, int keyCode) { pressKey(form, control, keyCode); }
    // Types into a field standing in it, then moves on to another control.
    static void typeAndLeave(Form& form, const std::string& field, const std::string& text,
                             const std::string& next) {
        form.moveFocus(field);
        form.setText(field, text);
        form.moveFocus(next);
    }
    const ShownBox& lastBox() const { return ui.boxes().back(); }
    size_t boxCount() const { return ui.boxes().size(); }
    // Where the focus is, the text of a field and the boxes shown so far, in one line.
    std::string fieldState(const Form& f, const std::string& field) const {
        std::string s = f.focused() + " '" + f.text(field) + "'";
        for (const std::string& box : boxLines())
            s += " " + box;
        return s;
    }
    // What a dialog leaves for its opener and the boxes shown so far, in one line; "at the time
    // shown" when its trade time is the time on its label.
    std::string handedBack(const TradeEntryDialog& d) const {
        std::string s = std::string(d.visible() ? "shown" : "hidden") + (d.OK ? " OK" : "") + " units '" +
                        d.Units + "' traded '" + d.Traded + "'";
        if (!d.TradeTime.empty())
            s += d.TradeTime == d.text("LblTime") ? " at the time shown" : " at " + d.TradeTime;
        for (const std::string& box : boxLines())
            s += " " + box;
        return s;
    }

    // A time label reads "hh:mm:ss" of the desk's clock, taken a moment ago.
    void expectClockTime(const std::string& shown) const {
        std::smatch m;
        ASSERT_TRUE(std::regex_match(shown, m, std::regex(R"((\d\d):(\d\d):(\d\d))"))) << shown;
        const VbDate now = clock.now();
        const int shownSec = std::stoi(m[1]) * 3600 + std::stoi(m[2]) * 60 + std::stoi(m[3]);
        const int nowSec = now.hour() * 3600 + now.minute() * 60 + now.second();
        const int apart = (nowSec - shownSec + 86400) % 86400;
        EXPECT_LE(apart, 60) << shown << " is not the time of the clock";
    }
};

} // namespace tallimark::test
