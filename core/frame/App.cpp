#include "frame/App.h"

#include "frame/Form.h"

namespace tallimark {

App::App(Ui& ui, Clock& clock, std::filesystem::path dataDir)
    : ui_(ui), clock_(clock), dataDir_(std::move(dataDir)), screens_(*this) {
    session_.g_Today = clock_.now();
}

App::~App() = default;

Store& App::store() {
    if (!store_) throw StoreError(3704, "Operation is not allowed when the object is closed.");
    return *store_;
}

void App::openStore() {
    store_ = Store::open(storeFile());
}

void App::closeStore() {
    store_.reset();
}

std::unique_ptr<Canvas> App::makeCanvas(int width, int height) {
    return canvasMaker_ ? canvasMaker_(width, height) : makeBlankCanvas(width, height);
}

void App::end() {
    ui_.endProgram();
    throw ProgramEnd(); // a UI that returned from End still ends the run
}

} // namespace tallimark
