#include "frame/App.h"

#include "frame/Form.h"
#include "frame/Schema.h"

namespace tallimark {

App::App(Ui& ui, Clock& clock, std::filesystem::path dataDir)
    : ui_(ui), clock_(clock), dataDir_(std::move(dataDir)), screens_(*this) {
    session_.g_Today = clock_.now();
}

App::~App() {
    saveWorkingLedger();
}

Store& App::store() {
    if (!store_) throw StoreError(3704, "Operation is not allowed when the object is closed.");
    return *store_;
}

void App::openStore() {
    store_.reset();
    if (!lock_) lock_ = std::make_unique<StoreLock>(storeFile());
    store_ = Store::open(storeFile());
    schema::upgrade(*store_);
    schema::keepWorkingLedgerInMemory(*store_);
}

void App::closeStore() {
    saveWorkingLedger();
    store_.reset();
    lock_.reset();
}

void App::saveWorkingLedger() {
    if (!store_) return;
    try {
        schema::saveWorkingLedger(*store_);
    } catch (const VbError&) {
        // The working rows are rebuilt from Tracker at the next load: a store that cannot take
        // them back (locked, full) loses nothing committed.
    }
}

std::unique_ptr<Canvas> App::makeCanvas(int width, int height) {
    return canvasMaker_ ? canvasMaker_(width, height) : makeBlankCanvas(width, height);
}

void App::end() {
    ui_.endProgram();
    throw ProgramEnd(); // a UI that returned from End still ends the run
}

} // namespace tallimark
