#pragma once
// The script master: one row of ScriptMast per underlying, keyed by its code. The new-sheet
// screen, the uploads, the sheets, the reports and the position file read it.
#include "frame/RecordScreen.h"

#include <optional>

namespace tallimark {

class FrmScriptMast : public RecordScreen {
public:
    static constexpr const char* kName = "FrmScriptMast";
    explicit FrmScriptMast(App& app);

    void Reset();
    void FindRecords();

protected:
    void onButton(int index) override;

private:
    void fillEmptyNumbers();
    bool addRecord();
    bool updateRecord();
    bool deleteRecord();
    void refreshSource();

    std::optional<Recordset> adoScriptMast_;
};

} // namespace tallimark
