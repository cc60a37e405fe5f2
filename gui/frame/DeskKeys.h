#pragma once
// Keys as the screens' key handlers read them: the desk's key codes, shift bits and
// character codes for what Qt reports.
#include <QKeyEvent>

namespace tallimark {

// The KeyDown code of a key; 0 for a key the desk has no code for.
int deskKeyCode(const QKeyEvent& event);
// 1 Shift, 2 Ctrl, 4 Alt.
int deskShift(Qt::KeyboardModifiers modifiers);
// The KeyPress character of a key; 0 for a key that types none.
int deskKeyAscii(const QKeyEvent& event);

} // namespace tallimark
