#pragma once
// The menus of a screen, built from its Menu controls. The main frame's menu bar shows the menu
// of the active screen in place of its own, as a multi-document frame does; the binder gives the
// entries their captions and clicks.
#include <QString>

#include <string>

class QWidget;

namespace tallimark {

class Form;

// Adds the screen's menu heads, with the entries under them, as actions of owner: a menu bar, or
// the holder a child screen keeps them in. A screen whose entries all stand alone gets them under
// one head, so that they read as a menu.
void addMenus(const Form& form, QWidget& owner);

// The holder of a child screen's menu heads (nullptr for a screen without menus); it is a hidden
// child of the view, found by the frame when the screen becomes active.
QWidget* makeScreenMenu(const Form& form, QWidget& view);
QWidget* screenMenuOf(const QWidget& view);

// The text an entry shows for a model's caption: "&Option   ALT+O" becomes "&Option" with
// "Alt+O" in the menu's shortcut column.
QString menuText(const std::string& caption);

} // namespace tallimark
