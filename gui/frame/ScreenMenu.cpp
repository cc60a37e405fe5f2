#include "frame/ScreenMenu.h"

#include "frame/Form.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QRegularExpression>

#include <map>
#include <set>
#include <vector>

namespace tallimark {

namespace {

const char* const kHolderName = "ScreenMenu";

std::vector<const Control*> menusOf(const Form& form) {
    std::vector<const Control*> menus;
    for (const std::string& name : form.controlOrder())
        if (form.hasControl(name) && form.control(name).kind == ControlKind::Menu)
            menus.push_back(&form.control(name));
    return menus;
}

// Esc on a menu of the bar closes it and gives the keyboard back to the field it was opened
// from. Qt's own Esc leaves the bar holding the keyboard, with nothing to show for it, until a
// second Esc.
class CloseOnEscape : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return false;
        static_cast<QWidget*>(watched)->close();
        return true;
    }
};

QMenu* head(const QString& caption, QWidget& owner) {
    auto* menu = new QMenu(caption, &owner);
    menu->installEventFilter(new CloseOnEscape(menu));
    return menu;
}

} // namespace

void addMenus(const Form& form, QWidget& owner) {
    const std::vector<const Control*> menus = menusOf(form);
    std::set<std::string> heads;
    for (const Control* menu : menus)
        if (!menu->menuParent.empty()) heads.insert(menu->menuParent);
    QWidget* top = &owner;
    if (heads.empty() && !menus.empty() && owner.objectName() == kHolderName) {
        // Alt+F: the letter the sheet's own keys leave free, and where a desk looks for Save,
        // Print and Exit.
        QMenu* all = head(QStringLiteral("&File"), owner);
        owner.addAction(all->menuAction());
        top = all;
    }
    std::map<std::string, QMenu*> opened;
    for (const Control* menu : menus) {
        QWidget* at = menu->menuParent.empty() ? top : opened.at(menu->menuParent);
        QAction* action = nullptr;
        if (heads.count(menu->name)) {
            QMenu* sub = opened[menu->name] = at == &owner ? head({}, owner) : new QMenu(at);
            action = sub->menuAction();
        } else {
            action = new QAction(at);
        }
        at->addAction(action);
        action->setObjectName(QString::fromStdString(menu->name));
    }
}

QWidget* makeScreenMenu(const Form& form, QWidget& view) {
    if (menusOf(form).empty()) return nullptr;
    auto* holder = new QWidget(&view);
    holder->setObjectName(kHolderName);
    holder->hide();
    addMenus(form, *holder);
    return holder;
}

QWidget* screenMenuOf(const QWidget& view) {
    return view.findChild<QWidget*>(kHolderName, Qt::FindDirectChildrenOnly);
}

QString menuText(const std::string& caption) {
    static const QRegularExpression apart(QStringLiteral("^(.*\\S)\\s{2,}ALT\\+(\\S)$"));
    const QString text = QString::fromStdString(caption).trimmed();
    const QRegularExpressionMatch m = apart.match(text);
    return m.hasMatch() ? m.captured(1) + QStringLiteral("\tAlt+") + m.captured(2) : text;
}

} // namespace tallimark
