#pragma once
// A desk for tests: a ready store in a temporary folder, a scripted UI and a fixed day.
#include "frame/App.h"
#include "frame/Form.h"
#include "frame/Schema.h"
#include "frame/ScriptedUi.h"

#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace tallimark::test {

class TempDir {
public:
    TempDir() {
        std::random_device rd;
        path_ = std::filesystem::temp_directory_path() /
                ("tallimark-test-" + std::to_string(rd()) + std::to_string(rd()));
        std::filesystem::create_directories(path_);
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// A key pressed in a control (KeyDown with its code and shift bits); the event as the handlers left it.
inline Event pressKey(Form& form, const std::string& control, int keyCode, int shift = 0) {
    Event e{EventType::KeyDown};
    e.keyCode = keyCode;
    e.shift = shift;
    return form.fire(control, e);
}
// A character typed into a control (KeyPress).
inline Event typeChar(Form& form, const std::string& control, char c) {
    Event e{EventType::KeyPress};
    e.keyAscii = c;
    return form.fire(control, e);
}

struct Desk {
    explicit Desk(bool withStore = true) {
        clock.setToday(VbDate::fromYmd(2026, 11, 23));
        if (withStore) {
            schema::createReadyStore(dir.path() / "shares.db");
            app.openStore();
        }
    }
    // The texts of the boxes shown so far.
    std::vector<std::string> boxTexts() const {
        std::vector<std::string> t;
        for (const auto& b : ui.boxes())
            t.push_back(b.box.text);
        return t;
    }
    // The boxes shown so far, each as "title|text|icon".
    std::vector<std::string> boxLines() const {
        std::vector<std::string> t;
        for (const auto& b : ui.boxes())
            t.push_back(b.box.title + "|" + b.box.text + "|" + iconName(b.box.icon));
        return t;
    }

    TempDir dir;
    ScriptedUi ui;
    Clock clock;
    App app{ui, clock, dir.path()};
};

} // namespace tallimark::test
