// tallimark-batch: the screens driven by a script of user actions, without a display.
#include "ScriptDriver.h"
#include "frame/App.h"
#include "frame/Schema.h"
#include "frame/Startup.h"
#ifdef TALLIMARK_RENDER
#include "canvas/ImageCanvas.h"
#endif

#include <fstream>
#include <iostream>
#include <string>

using namespace tallimark;

namespace {

int usage() {
    std::cerr << "usage: tallimark-batch --data DIR [--today YYYY-MM-DD] SCRIPT|-\n"
                 "       tallimark-batch --data DIR --new-store\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    std::string dataDir = "Data", script, today;
    bool newStore = false;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--data" && i + 1 < argc)
            dataDir = argv[++i];
        else if (a == "--today" && i + 1 < argc)
            today = argv[++i];
        else if (a == "--new-store")
            newStore = true;
        else if (script.empty() && (a == "-" || a[0] != '-'))
            script = a;
        else
            return usage();
    }

    if (newStore) {
        try {
            schema::createReadyStore(std::filesystem::path(dataDir) / "shares.db");
        } catch (const std::exception& e) {
            std::cerr << "tallimark-batch: " << e.what() << '\n';
            return 1;
        }
        std::cout << "ready store made in " << dataDir << "\n";
        return 0;
    }
    if (script.empty()) return usage();

    Clock clock;
    if (!today.empty()) {
        const auto day = parseDate(today);
        if (!day) {
            std::cerr << "tallimark-batch: --today takes a date as YYYY-MM-DD, not " << today << '\n';
            return 2;
        }
        clock.setToday(*day);
    }
    std::ifstream file;
    if (script != "-") {
        file.open(script);
        if (!file) {
            std::cerr << "tallimark-batch: cannot read " << script << '\n';
            return 2;
        }
    }
    std::istream& in = script == "-" ? std::cin : file;

    ScriptedUi ui;
    App app(ui, clock, dataDir);
#ifdef TALLIMARK_RENDER
    app.setCanvasMaker(render::imageCanvasMaker());
#endif
    ScriptDriver driver(app, ui, in, std::cout);
    try {
        if (!StartUp(app)) return 1;
        driver.run();
    } catch (const ProgramEnd&) {
        std::cout << "{\"end\":true}\n";
    } catch (const ScriptError& e) {
        std::cerr << "tallimark-batch: " << e.what() << '\n';
        return 1;
    }
    return 0;
}
