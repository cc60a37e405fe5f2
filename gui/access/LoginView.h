#pragma once
// The login screens FrmPwd1 and FrmPwd: user name and password, and the new name and password
// that show while a password is being set. The dialog fits its content, so it grows for the
// new fields and shrinks back.
#include <QWidget>

namespace tallimark {

class LoginView : public QWidget {
public:
    LoginView();
};

} // namespace tallimark
