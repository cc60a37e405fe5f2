#pragma once
// Access letters inside one screen: the "&" of a button's or a label's caption.
class QWidget;

namespace tallimark {

// Alt with key (Qt::Key_A...) on the screen under root: clicks the button whose caption marks
// that letter, or moves the focus to the control a label with it stands for. False when no
// visible, enabled control of the screen has the letter.
bool pressAccessKey(QWidget& root, int key);

// Alt with key for the menu bar of window: opens the menu whose head marks the letter. False
// when no head has it.
bool openMenuOfKey(QWidget& window, int key);

} // namespace tallimark
