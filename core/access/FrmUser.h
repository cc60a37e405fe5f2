#pragma once
// The users who may log in: a code numbered by the screen, a name kept in capitals and a
// password shown as typed.
#include "frame/RecordScreen.h"

#include <optional>
#include <string>

namespace tallimark {

class FrmUser : public RecordScreen {
public:
    static constexpr const char* kName = "FrmUser";
    explicit FrmUser(App& app);

    void SetStartupUI();
    // The next user code: MAXID + 1, or 1 on an empty table; nothing when the look-up failed.
    std::optional<std::string> GetMaxID();
    bool SaveValidate();
    bool AddRecords();
    bool ModifyRecords();
    bool DeleteRecords();
    void FindRecords();

protected:
    void onButton(int index) override;

private:
    void clickButton(int index);
    void entryError(const char* text);
};

} // namespace tallimark
