#pragma once
// A desk for the view tests: a ready store in a temporary folder, the workstation's own UI with
// its message boxes answered (first button) and kept, and a fixed day.
#include "frame/App.h"
#include "frame/Form.h"
#include "frame/QtUi.h"
#include "frame/Schema.h"
#include "frame/ScriptedUi.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <vector>

namespace tallimark::test {

struct GuiDesk {
    GuiDesk() {
        clock.setToday(VbDate::fromYmd(2026, 11, 23));
        schema::createReadyStore(app.storeFile());
        app.openStore();
    }

    QTemporaryDir dir;
    std::vector<MsgBox> boxes;
    std::function<void(const MsgBox&)> onBox; // looks at the screens while a box is up
    Clock clock;
    QtUi ui{[this](const MsgBox& box) {
        boxes.push_back(box);
        if (onBox) onBox(box);
        return defaultAnswer(box.buttons);
    }};
    App app{ui, clock, dir.path().toStdString()};
};

// Shows a screen modally and runs steps inside its dialog. A dialog still up after the steps
// is hidden, so that a failing step cannot hang the run.
inline void whileModal(Form& form, const std::function<void(QWidget& dialog)>& steps) {
    QTimer::singleShot(0, [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) steps(*dialog);
        if (form.visible()) form.hide();
    });
    form.showModal();
}

} // namespace tallimark::test
