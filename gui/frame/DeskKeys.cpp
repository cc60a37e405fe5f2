#include "frame/DeskKeys.h"

#include "frame/Form.h"

namespace tallimark {

int deskKeyCode(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key; // letters report their capital whatever the shift
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return event.modifiers() & Qt::KeypadModifier ? 96 + (key - Qt::Key_0) : key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return keys::F1 + (key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return keys::Tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return keys::Enter;
    case Qt::Key_Shift:
        return 16;
    case Qt::Key_Control:
        return 17;
    case Qt::Key_Alt:
        return 18;
    case Qt::Key_Escape:
        return keys::Escape;
    case Qt::Key_Space:
        return 32;
    case Qt::Key_PageUp:
        return keys::PageUp;
    case Qt::Key_PageDown:
        return keys::PageDown;
    case Qt::Key_End:
        return 35;
    case Qt::Key_Home:
        return 36;
    case Qt::Key_Left:
        return 37;
    case Qt::Key_Up:
        return keys::Up;
    case Qt::Key_Right:
        return 39;
    case Qt::Key_Down:
        return keys::Down;
    case Qt::Key_Insert:
        return 45;
    case Qt::Key_Delete:
        return 46;
    default:
        return 0;
    }
}

int deskShift(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? keys::ShiftMask : 0) |
           (modifiers & Qt::ControlModifier ? keys::CtrlMask : 0) |
           (modifiers & Qt::AltModifier ? keys::AltMask : 0);
}

int deskKeyAscii(const QKeyEvent& event) {
    // Tab moves the focus and Delete edits in place: neither types a character.
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab || event.key() == Qt::Key_Delete)
        return 0;
    const QString text = event.text();
    if (text.size() != 1 || text[0].unicode() == 0 || text[0].unicode() > 255) return 0;
    return text[0].unicode();
}

} // namespace tallimark
