#include "access/FrmPwd.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbNumber.h"

#include <string_view>

namespace tallimark {

namespace {
const char* const kChangeCaption = "C&hange password";
const char* const kSetCaption = "&Set password";
const char* const kNewFields[] = {"lbl_new_user_name", "txt_new_user_name", "lbl_new_password",
                                  "txt_new_password"};
constexpr int kGrownHeight = 3200; // room for the new name and password
} // namespace

FrmPwdBase::FrmPwdBase(App& app, const char* name, bool readsUserName, int h, int w)
    : Form(app, name, "Login"), height(h), width(w), readsUserName_(readsUserName), baseHeight_(h),
      baseWidth_(w) {
    addControl(ControlKind::Label, "lbl_heading", "LOGIN ENTRY");
    addControl(ControlKind::Frame, "Frame1");
    addControl(ControlKind::Label, "lbl_user_name", "User Name");
    addControl(ControlKind::TextBox, "txt_user_name");
    addControl(ControlKind::Label, "lbl_password", "Password");
    addControl(ControlKind::TextBox, "txt_password").password = true;
    addControl(ControlKind::Label, "lbl_new_user_name", "New User Name").visible = false;
    addControl(ControlKind::TextBox, "txt_new_user_name").visible = false;
    addControl(ControlKind::Label, "lbl_new_password", "New Password").visible = false;
    Control& newPwd = addControl(ControlKind::TextBox, "txt_new_password");
    newPwd.visible = false;
    newPwd.password = true;
    addControl(ControlKind::Button, "cmdokcan(0)", "&Ok");
    addControl(ControlKind::Button, "cmdokcan(1)", "&Cancel");
    addControl(ControlKind::Button, "cmdchgpass", kChangeCaption);

    for (const char* field : {"txt_user_name", "txt_password"})
        on(field, EventType::GotFocus, [this, field](Event&) { SelectAll(*this, field); });
    // Enter moves from field to field; after the password of a plain login it presses Ok.
    for (const char* field : {"txt_user_name", "txt_password", "txt_new_user_name", "txt_new_password"})
        on(field, EventType::KeyDown, [this, field](Event& e) {
            if (e.keyCode != keys::Enter) return;
            e.keyCode = 0;
            if (std::string_view(field) == "txt_password" && text("cmdchgpass") == kChangeCaption)
                okClick();
            else
                focusNext();
        });
    on("cmdokcan", EventType::Click, [this](Event& e) {
        if (e.index == 0)
            okClick();
        else
            this->app().end();
    });
    // The window's close box leaves the login as Cancel does: nobody reaches the desk unchecked.
    on("Form", EventType::QueryUnload, [this](Event&) { this->app().end(); });
    on("cmdchgpass", EventType::Click, [this](Event&) {
        if (text("cmdchgpass") == kChangeCaption)
            changePasswordClick();
        else
            setPasswordClick();
    });
}

void FrmPwdBase::rejectLogin(const char* title, bool clearBoth) {
    ui().msgBox({"You Are Not a Valid User", title, MsgButtons::Ok, MsgIcon::Critical});
    if (clearBoth) setText("txt_user_name", "");
    setText("txt_password", "");
    setFocus("txt_user_name");
}

std::string FrmPwdBase::provenAccount() {
    // Names compare without case as every text of the store does; a password only exactly, so
    // that "TALLIMARK" does not open the account of "tallimark".
    return "Select * from Users Where UserNm = " + q(Trim(text("txt_user_name"))) +
           " and Pwd = " + q(Trim(text("txt_password"))) + " COLLATE BINARY";
}

void FrmPwdBase::okClick() {
    if (text("txt_user_name").empty()) {
        rejectLogin("Incorrect Login", false);
        return;
    }
    Recordset rs = app().store().query(provenAccount());
    if (!rs.eof()) {
        Session& s = app().session();
        s.g_UserCode = Trim(rs["UserCd"].textOrEmpty());
        if (readsUserName_) s.g_UserName = Trim(rs["Usernm"].textOrEmpty());
        hide();
        return;
    }
    rejectLogin("Invalid Login", true);
}

void FrmPwdBase::showNewFields(bool shown) {
    for (const char* n : kNewFields) {
        setVisible(n, shown);
        if (shown && control(n).kind == ControlKind::TextBox) setText(n, "");
    }
}

void FrmPwdBase::changePasswordClick() {
    try {
        Recordset rs = app().store().query(provenAccount());
        if (!rs.eof()) {
            setEnabled("cmdokcan(0)", false);
            setEnabled("cmdokcan(1)", false);
            setText("cmdchgpass", kSetCaption);
            showNewFields(true);
            height = kGrownHeight;
            markChanged("");
            setFocus("txt_new_user_name");
        } else {
            rejectLogin("Invalid Login", true);
        }
    } catch (const VbError&) {
        ui().msgBox({"Cannot change Password."});
    }
}

void FrmPwdBase::setPasswordClick() {
    try {
        height = baseHeight_;
        width = baseWidth_;
        markChanged("");
        Store& store = app().store();
        const std::string newName = Trim(text("txt_new_user_name"));
        Recordset rs = store.query("Select * from Users Where UserNm = " + q(newName));
        const bool found = !rs.eof();
        if (found)
            store.execute("Update Users Set Pwd= " + q(Trim(text("txt_new_password"))) +
                          " where UserNm = " + q(newName));
        setEnabled("cmdokcan(0)", true);
        setEnabled("cmdokcan(1)", true);
        setText("cmdchgpass", kChangeCaption);
        showNewFields(false);
        if (found) {
            setText("txt_password", "");
            setFocus("txt_user_name");
        } else {
            ui().msgBox({"You Are Not a Valid User", "Invalid Login", MsgButtons::Ok, MsgIcon::Critical});
            setText("txt_user_name", "");
            setText("txt_password", "");
        }
    } catch (const VbError&) {
        ui().msgBox({"Cannot change Password."});
    }
}

} // namespace tallimark
