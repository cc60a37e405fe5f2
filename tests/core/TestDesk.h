#pragma once
// A desk for tests: a ready store in a temporary folder, a scripted UI and a fixed day.
#include "frame/App.h"
#include "frame/Schema.h"
#include "frame/ScriptedUi.h"

#include <filesystem>
#include <random>
#include <string>

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

    TempDir dir;
    ScriptedUi ui;
    Clock clock;
    App app{ui, clock, dir.path()};
};

} // namespace tallimark::test
