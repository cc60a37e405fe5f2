#include "access/FrmUser.h"

#include "access/FindDialogs.h"
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbNumber.h"

namespace tallimark {

FrmUser::FrmUser(App& app) : RecordScreen(app, kName, "Users....Tallimark") {
    addField("TxtUserCode", "User Code");
    addField("TxtUserName", "User Name");
    addField("TxtPwd", "Password");
    addButtons();
    addFieldKeys();

    on("Form", EventType::Load, [this](Event&) {
        try {
            SetStartupUI();
        } catch (const std::exception& e) {
            failureBox("Form_Load", e);
        }
    });
    on("TxtUserName", EventType::LostFocus,
       [this](Event&) { setText("TxtUserName", UCase(text("TxtUserName"))); });
}

void FrmUser::SetStartupUI() {
    try {
        setMask("1000011");
        SetLocked(*this, true);
        ClearTextBoxes(*this);
    } catch (const std::exception& e) {
        failureBox("SetStartupUI", e);
    }
}

void FrmUser::onButton(int index) {
    // This screen words its click failures with " and No: ".
    try {
        clickButton(index);
    } catch (const std::exception& e) {
        failureBox("cmd_Click", e);
    }
}

void FrmUser::clickButton(int index) {
    if (index == Save && !SaveValidate()) return;
    if (sharedButton(index, {[this] { SetStartupUI(); }, [this] { return AddRecords(); },
                             [this] { return ModifyRecords(); }, [this] { return DeleteRecords(); }}))
        return;
    switch (index) {
    case New: {
        const std::optional<std::string> next = GetMaxID();
        if (!next) {
            ui().msgBox({"Could not find max Area Code for auto numbering", "Error in Renumbering"});
            return;
        }
        setMask("1011111");
        SetStartupUI();
        SetLocked(*this, false);
        setText("TxtUserCode", *next);
        setEnabled("TxtUserCode", false);
        setMask("0001101");
        setFocus("TxtUserName");
        mode = Adding;
        break;
    }
    case Modify:
        beginModify("TxtUserCode", "TxtUserName");
        break;
    case Find:
        FindRecords();
        setMask("1110011");
        break;
    }
}

std::optional<std::string> FrmUser::GetMaxID() {
    try {
        Recordset rs = app().store().query("SELECT MAX(UserCd) AS MAXID FROM Users");
        const Value& max = rs["MAXID"];
        // The codes are texts: the highest is the highest in text order, read as a number.
        return NumText(max.isNull() ? 1.0 : max.number() + 1);
    } catch (const std::exception& e) {
        procedureBox("GetMaxID", e);
        return std::nullopt;
    }
}

void FrmUser::entryError(const char* text) {
    ui().msgBox({text, "Entry Error", MsgButtons::Ok, MsgIcon::Critical});
}

bool FrmUser::SaveValidate() {
    try {
        if (Trim(text("TxtUserCode")).empty()) {
            entryError("User Code cannot be blank");
            return false;
        }
        if (Trim(text("TxtUserName")).empty()) {
            entryError("User Name cannot be blank");
            return false;
        }
        Recordset rs = app().store().query("select * from Users where UserNm=" + q(text("TxtUserName")));
        for (; !rs.eof(); rs.moveNext())
            if (rs["Usercd"].textOrEmpty() != text("TxtUserCode")) {
                entryError("This User Name Already Exists.");
                return false;
            }
        return true;
    } catch (const std::exception& e) {
        failureBox("SaveValidate", e, " No: ");
        return false;
    }
}

bool FrmUser::AddRecords() {
    return runStatement(
        [this] {
            return "INSERT INTO Users(UserCd,Usernm,Pwd) VALUES (" + q(text("TxtUserCode")) + ", " +
                   q(text("TxtUserName")) + ", " + q(text("TxtPwd")) + ")";
        },
        "AddRecords");
}

bool FrmUser::ModifyRecords() {
    return runStatement(
        [this] {
            return "update Users set Usernm=" + q(text("TxtUserName")) + ",Pwd=" + q(text("TxtPwd")) +
                   " where UserCd=" + q(text("TxtUserCode"));
        },
        "ModifyRecords");
}

bool FrmUser::DeleteRecords() {
    return runStatement([this] { return "delete from Users where UserCd=" + q(text("TxtUserCode")); },
                        "DeleteRecords");
}

void FrmUser::FindRecords() {
    try {
        const std::vector<std::string> picked =
            search_call(app(), "SELECT Usernm as [NAME],usercd as [CODE] from users order by usernm");
        if (picked.empty()) {
            setText("TxtUserCode", "");
            setText("TxtUserName", "");
            return;
        }
        setText("TxtUserCode", picked.at(1));
        setText("TxtUserName", picked.at(0));
        Recordset rs = app().store().query("SELECT * from users where usercd=" + q(text("TxtUserCode")));
        setText("TxtPwd", rs["Pwd"].textOrEmpty());
    } catch (const std::exception& e) {
        failureBox("FindRecords", e, " No: ");
    }
}

} // namespace tallimark
