#pragma once
// A desk for the master screens: the screen shown, its buttons read back as a mask, and the
// look-up dialog answered by a pick.
#include "TestDesk.h"

#include "access/FrmSeek.h"
#include "frame/Form.h"

#include <gtest/gtest.h>

namespace tallimark::test {

template <class Screen> struct MastersDesk : Desk {
    Screen& f = showScreen();

    Screen& showScreen() {
        Screen& s = app.screens().get<Screen>();
        s.show();
        return s;
    }
    // "1000011" and its like, from the buttons as they stand.
    std::string mask(const std::string& array = "Cmd") const {
        std::string m;
        for (int i = 0; i < 7; ++i)
            m += f.control(array + "(" + std::to_string(i) + ")").enabled ? '1' : '0';
        return m;
    }
    void press(int button, const std::string& array = "Cmd") {
        f.fire(array + "(" + std::to_string(button) + ")", EventType::Click);
    }
    // The next look-up of FrmSeek picks the row (Enter), or Esc when row is 0.
    void seekPicks(int row) {
        ui.setModalRunner([row](Form& seek) {
            if (row) seek.grid("MSHFlexGrid1").activeRow = row;
            pressKey(seek, "MSHFlexGrid1", row ? keys::Enter : keys::Escape);
        });
    }
    std::string lastBox() const { return ui.boxes().empty() ? std::string() : ui.boxes().back().box.text; }
    long long count(const std::string& table) {
        return static_cast<long long>(app.store().query("select count(*) as n from " + table)["n"].number());
    }
};

} // namespace tallimark::test
