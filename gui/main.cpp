// tallimark: the desk's workstation.
#include "canvas/ImageCanvas.h"
#include "frame/App.h"
#include "frame/QtUi.h"
#include "frame/Startup.h"

#include <QApplication>
#include <QCommandLineParser>

#include <filesystem>
#include <iostream>

using namespace tallimark;

int main(int argc, char** argv) {
    QApplication qapp(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tallimark"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Risk-management workstation of the derivatives desk."));
    parser.addHelpOption();
    const QCommandLineOption dataOption(
        QStringLiteral("data"), QStringLiteral("Folder of the store (shares.db)."), QStringLiteral("DIR"),
        QCoreApplication::applicationDirPath() + QStringLiteral("/Data"));
    const QCommandLineOption todayOption(QStringLiteral("today"), QStringLiteral("Work as on this day."),
                                         QStringLiteral("YYYY-MM-DD"));
    parser.addOption(dataOption);
    parser.addOption(todayOption);
    parser.process(qapp);
    if (!parser.positionalArguments().isEmpty()) {
        std::cerr << parser.helpText().toStdString();
        return 2;
    }

    Clock clock;
    if (parser.isSet(todayOption)) {
        const std::string today = parser.value(todayOption).toStdString();
        const auto day = parseDate(today);
        if (!day) {
            std::cerr << "tallimark: --today takes a date as YYYY-MM-DD, not " << today << '\n';
            return 2;
        }
        clock.setToday(*day);
    }

    QtUi ui;
    App app(ui, clock, std::filesystem::path(parser.value(dataOption).toStdString()));
    app.setCanvasMaker(render::imageCanvasMaker());
    if (!StartUp(app)) return 1;
    return QApplication::exec();
}
