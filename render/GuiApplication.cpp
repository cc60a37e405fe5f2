#include "GuiApplication.h"

#include <QGuiApplication>

#include <memory>

namespace tallimark::render {

void ensureGuiApplication() {
    if (QCoreApplication::instance()) return;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "tallimark-batch";
    static char* argv[] = {name, nullptr};
    static std::unique_ptr<QGuiApplication> app = std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace tallimark::render
