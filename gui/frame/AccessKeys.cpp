#include "frame/AccessKeys.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>

namespace tallimark {

namespace {

bool marks(const QString& caption, int key) {
    return QKeySequence::mnemonic(caption) == QKeySequence(Qt::ALT | Qt::Key(key));
}

bool usable(const QWidget& w) {
    return w.isVisible() && w.isEnabled();
}

} // namespace

bool pressAccessKey(QWidget& root, int key) {
    for (QAbstractButton* button : root.findChildren<QAbstractButton*>())
        if (usable(*button) && marks(button->text(), key)) {
            button->click();
            return true;
        }
    for (QLabel* label : root.findChildren<QLabel*>())
        if (usable(*label) && label->buddy() && usable(*label->buddy()) && marks(label->text(), key)) {
            label->buddy()->setFocus(Qt::ShortcutFocusReason);
            return true;
        }
    return false;
}

bool openMenuOfKey(QWidget& window, int key) {
    for (QMenuBar* bar : window.findChildren<QMenuBar*>())
        for (QAction* head : bar->actions())
            if (bar->isVisible() && head->isVisible() && head->isEnabled() && marks(head->text(), key)) {
                bar->setActiveAction(head);
                return true;
            }
    return false;
}

} // namespace tallimark
