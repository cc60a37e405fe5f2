#pragma once
// Runs a call that brings up a look-up dialog and acts inside the dialog while it is up. A
// dialog still up after the steps is hidden, so that a failing step cannot hang the run.
#include "frame/App.h"
#include "frame/Form.h"

#include <QApplication>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

namespace tallimark::test {

template <class Call>
auto duringDialog(App& app, const char* screen, Call call, std::function<void(QWidget& dialog)> steps) {
    // The timer may fire after the call when no dialog came up: then it finds nothing to do.
    struct Pending {
        App* app;
        const char* screen;
        std::function<void(QWidget&)> steps;
    };
    auto pending = std::make_shared<Pending>(Pending{&app, screen, std::move(steps)});
    QTimer::singleShot(0, [pending] {
        if (!pending->app) return;
        if (QWidget* dialog = QApplication::activeModalWidget()) pending->steps(*dialog);
        Form* form = pending->app->screens().find(pending->screen);
        if (form && form->visible()) form->hide();
    });
    auto result = call();
    pending->app = nullptr;
    return result;
}

inline QTableWidget* table(QWidget& dialog, const char* name) {
    return dialog.findChild<QTableWidget*>(QString::fromLatin1(name));
}

inline void doubleClickRow(QTableWidget& t, int row) {
    const QRect cell = t.visualItemRect(t.item(row, 0));
    // A double click is a press, a release, and the second press that the view hears as one.
    QTest::mouseClick(t.viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(t.viewport(), Qt::LeftButton, {}, cell.center());
}

} // namespace tallimark::test
