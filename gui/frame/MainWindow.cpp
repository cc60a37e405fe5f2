#include "frame/MainWindow.h"

#include "frame/Form.h"

#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>

#include <map>
#include <set>

namespace tallimark {

MainWindow::MainWindow(Form& form) : mdiArea_(new QMdiArea) {
    setCentralWidget(mdiArea_);
    // A sheet is wider than a small screen: the frame scrolls to the rest of it.
    mdiArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mdiArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // A window that closes hands over to the one used before it, not to the oldest (the list).
    mdiArea_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    // The menus are the model's Menu controls in their order; an entry that others stand under
    // is a menu of its own. The binder gives them their captions.
    std::vector<const Control*> menus;
    std::set<std::string> heads;
    for (const std::string& name : form.controlOrder())
        if (form.hasControl(name) && form.control(name).kind == ControlKind::Menu) {
            menus.push_back(&form.control(name));
            if (!menus.back()->menuParent.empty()) heads.insert(menus.back()->menuParent);
        }
    std::map<std::string, QMenu*> opened;
    for (const Control* menu : menus) {
        QWidget* owner =
            menu->menuParent.empty() ? static_cast<QWidget*>(menuBar()) : opened.at(menu->menuParent);
        QAction* action = nullptr;
        if (heads.count(menu->name)) {
            QMenu* sub = opened[menu->name] = new QMenu(owner);
            action = sub->menuAction();
        } else {
            action = new QAction(owner);
        }
        owner->addAction(action);
        action->setObjectName(QString::fromStdString(menu->name));
    }
    resize(1100, 760);
}

} // namespace tallimark
