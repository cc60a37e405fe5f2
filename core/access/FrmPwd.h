#pragma once
// The login screen. FrmPwd1 is the one the start-up shows; FrmPwd is a second edition kept in
// step with it that no path shows: it keeps the current user name on Ok and has its own size.
#include "frame/Form.h"

namespace tallimark {

class FrmPwdBase : public Form {
public:
    // Form size in twips, as the screen grows to take a new password and shrinks back.
    int height = 0;
    int width = 0;

protected:
    FrmPwdBase(App& app, const char* name, bool readsUserName, int height, int width);

private:
    // The query that finds the account the name and password fields prove.
    std::string provenAccount();
    void okClick();
    void changePasswordClick();
    void setPasswordClick();
    void rejectLogin(const char* title, bool clearBoth);
    void showNewFields(bool shown);

    const bool readsUserName_;
    const int baseHeight_;
    const int baseWidth_;
};

class FrmPwd1 : public FrmPwdBase {
public:
    static constexpr const char* kName = "FrmPwd1";
    explicit FrmPwd1(App& app) : FrmPwdBase(app, kName, true, 1890, 6000) {}
};

class FrmPwd : public FrmPwdBase {
public:
    static constexpr const char* kName = "FrmPwd";
    explicit FrmPwd(App& app) : FrmPwdBase(app, kName, false, 1830, 6900) {}
};

} // namespace tallimark
