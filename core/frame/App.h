#pragma once
// The context every screen works in: the store connection, the clock, the UI, the program-wide
// variables and the screens of the process. Passed by reference; nothing here is global.
#include "frame/Canvas.h"
#include "frame/Clock.h"
#include "frame/Screens.h"
#include "frame/Store.h"
#include "frame/StoreLock.h"
#include "frame/Ui.h"
#include "frame/VbDate.h"

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tallimark {

// Thrown by End where the process cannot simply stop (the batch driver, tests).
class ProgramEnd : public std::exception {
public:
    const char* what() const noexcept override { return "End"; }
};

// The program-wide variables the screens share.
struct Session {
    VbDate g_Today;
    std::string g_UserName;
    std::string g_UserCode;
    std::string g_strSymbol;
    std::string g_strDesc;
    VbDate g_ExpiryDate;
    std::string gRefreshDate;
    int gOpenMode = 0;
    std::vector<std::string> gPonSymbols;
    std::vector<std::string> gPonDescs;
    // Set by a trade file upload into an index sheet, which zeroes no field of the sheet.
    bool gUploadedIndex = false;
};

class App {
public:
    App(Ui& ui, Clock& clock, std::filesystem::path dataDir);
    ~App();

    Ui& ui() { return ui_; }
    Clock& clock() { return clock_; }
    Session& session() { return session_; }
    Screens& screens() { return screens_; }
    const std::filesystem::path& dataDir() const { return dataDir_; }
    std::filesystem::path storeFile() const { return dataDir_ / "shares.db"; }

    // g_Conn: raises the store's error when it is not open.
    Store& store();
    bool storeOpen() const { return store_ != nullptr; }
    // Opens the store for this process alone: another process on it is refused here.
    void openStore();
    void closeStore();

    // The drawing surfaces of the graph screens: painted when the window or the batch driver
    // handed over a maker, blank otherwise.
    void setCanvasMaker(CanvasMaker maker) { canvasMaker_ = std::move(maker); }
    std::unique_ptr<Canvas> makeCanvas(int width, int height);

    // End: the process stops; the UI decides how.
    [[noreturn]] void end();

private:
    // The in-memory working ledger back into the file, so that the next process sees it.
    void saveWorkingLedger();

    Ui& ui_;
    Clock& clock_;
    std::filesystem::path dataDir_;
    Session session_;
    std::unique_ptr<StoreLock> lock_; // outlives the connection it guards
    std::unique_ptr<Store> store_;
    CanvasMaker canvasMaker_;
    Screens screens_;
};

// Shows the busy cursor for as long as it lives.
class BusyScope {
public:
    explicit BusyScope(Ui& ui) : ui_(ui) { ui_.setBusy(true); }
    ~BusyScope() { ui_.setBusy(false); }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

private:
    Ui& ui_;
};

} // namespace tallimark
