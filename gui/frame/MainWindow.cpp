#include "frame/MainWindow.h"

#include "frame/ScreenMenu.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

namespace tallimark {

namespace {

// The frame's accelerators (Ctrl+L, Ctrl+Shift+F) belong to the window as well as to its menus: they
// keep working while an active screen's menu stands in the bar in place of the frame's.
void keepAccelerators(QWidget& window, const QList<QAction*>& actions) {
    for (QAction* action : actions)
        if (const QMenu* menu = action->menu())
            keepAccelerators(window, menu->actions());
        else
            window.addAction(action);
}

} // namespace

MainWindow::MainWindow(Form& form) : mdiArea_(new QMdiArea) {
    setCentralWidget(mdiArea_);
    // A sheet is wider than a small screen: the frame scrolls to the rest of it.
    mdiArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdiArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // A closed screen hands the desk back to the one used before it, not to the oldest.
    mdiArea_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    addMenus(form, *menuBar());
    frameMenus_ = menuBar()->actions();
    keepAccelerators(*this, frameMenus_);
    statusBar();
    connect(mdiArea_, &QMdiArea::subWindowActivated, this, &MainWindow::showMenuOf);
    resize(1100, 760);
}

MainWindow::~MainWindow() {
    // The area's windows close with the frame and would report a frame half gone.
    disconnect(mdiArea_, nullptr, this, nullptr);
}

void MainWindow::showMenuOf(QMdiSubWindow* active) {
    // Nothing active while a screen is still up is the frame losing the keyboard to a dialog:
    // the bar stays as it is.
    if (!active)
        for (const QMdiSubWindow* sub : mdiArea_->subWindowList())
            if (sub->isVisible()) return;
    const QWidget* menu = active && active->widget() ? screenMenuOf(*active->widget()) : nullptr;
    const QList<QAction*> wanted = menu ? menu->actions() : frameMenus_;
    if (menuBar()->actions() == wanted) return;
    for (QAction* action : menuBar()->actions())
        menuBar()->removeAction(action);
    menuBar()->addActions(wanted);
}

} // namespace tallimark
