#include "admin/FrmScriptMast.h"

#include "access/FindDialogs.h"
#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbNumber.h"

namespace tallimark {

namespace {
// Fields stored as "0" when left empty. The figures among them reach the statement through num(),
// so a typed text that is no number fails the statement instead of changing what it means.
const char* const kZeroWhenEmpty[] = {"TxtRate", "TxtExpLimit", "TxtLastWeek", "TxtFWeek", "TxtContract"};
} // namespace

FrmScriptMast::FrmScriptMast(App& app) : RecordScreen(app, kName, "Script Master ...Tallimark") {
    addField("TxtSptCode", "Script &Code");
    addField("TxtSptName", "Script &Name");
    addField("TxtDesc", "&Description");
    addField("TxtRate", "&Rate Diff");
    addField("TxtExpLimit", "&Exposure Limit");
    addControl(ControlKind::Label, "LblCrores", "in Crores");
    addControl(ControlKind::Frame, "FraGamma", "Gamma Control");
    addField("TxtFWeek", "&First Week");
    addField("TxtLastWeek", "&Last Week");
    addField("TxtContract", "Lot Size ");
    addField("TxtEx_Margin", "Exp. Margin");
    addButtons();
    addFieldKeys();

    on("Form", EventType::Load, [this](Event&) {
        setMask("1000011");
        refreshSource();
    });
    on("TxtSptCode", EventType::LostFocus,
       [this](Event&) { setText("TxtSptCode", UCase(text("TxtSptCode"))); });
}

void FrmScriptMast::refreshSource() {
    adoScriptMast_ = app().store().query("SELECT * FROM SCRIPTMAST");
}

void FrmScriptMast::Reset() {
    SetLocked(*this, true);
    setEnabled("TxtSptCode", true); // Modify keeps the code out of reach until here
    setMask("1000011");
    ClearTextBoxes(*this);
}

void FrmScriptMast::onButton(int index) {
    if (sharedButton(index, {[this] { Reset(); }, [this] { return addRecord(); },
                             [this] { return updateRecord(); }, [this] { return deleteRecord(); }}))
        return;
    switch (index) {
    case New:
        Reset();
        setMask("0001101");
        SetLocked(*this, false);
        setFocus("TxtSptCode");
        mode = Adding;
        break;
    case Modify:
        beginModify("TxtSptCode", "TxtSptName");
        break;
    case Find:
        FindRecords();
        SetLocked(*this, true);
        setMask("1110011");
        break;
    }
}

void FrmScriptMast::fillEmptyNumbers() {
    for (const char* field : kZeroWhenEmpty)
        if (text(field).empty()) setText(field, "0");
}

bool FrmScriptMast::addRecord() {
    fillEmptyNumbers();
    return runStatement([this] {
        return "INSERT INTO SCRIPTMAST(SCRCODE, SCRNAME, DESCR, RateDiff, Limit_Cr, First_Gamma, "
               "Week_Gamma,Field2,Field1) VALUES(" +
               q(text("TxtSptCode")) + ", " + q(text("TxtSptName")) + ", " + q(text("TxtDesc")) + ", " +
               num(text("TxtRate")) + ", " + num(text("TxtExpLimit")) + ", " + q(text("TxtFWeek")) + ", " +
               q(text("TxtLastWeek")) + ", " + num(text("TxtContract")) + ", " + q(text("TxtEx_Margin")) +
               ")";
    });
}

bool FrmScriptMast::updateRecord() {
    fillEmptyNumbers();
    return runStatement([this] {
        return "UPDATE SCRIPTMAST SET SCRNAME = " + q(text("TxtSptName")) +
               ", DESCR = " + q(text("TxtDesc")) + ", RateDiff = " + num(text("TxtRate")) +
               ", Limit_Cr = " + num(text("TxtExpLimit")) + ", First_Gamma = " + q(text("TxtFWeek")) +
               ", Week_Gamma = " + q(text("TxtLastWeek")) + ", Field2 = " + num(text("TxtContract")) +
               ", field1 = " + q(text("TxtEx_Margin")) + " WHERE SCRCODE = " + q(text("TxtSptCode"));
    });
}

bool FrmScriptMast::deleteRecord() {
    return runStatement([this] { return "DELETE FROM SCRIPTMAST WHERE SCRCODE =" + q(text("TxtSptCode")); });
}

void FrmScriptMast::FindRecords() {
    try {
        const std::string code =
            SeekValue(app(), "Script List", "SELECT SCRCODE, SCRNAME FROM SCRIPTMAST ORDER BY SCRCODE");
        refreshSource();
        if (!Trim(code).empty() && seekRow(*adoScriptMast_, "SCRCODE", code)) {
            const Recordset& rs = *adoScriptMast_;
            const char* const fill[][2] = {
                {"TxtSptCode", "SCRCODE"},     {"TxtSptName", "SCRNAME"},   {"TxtRate", "RATEDIFF"},
                {"TxtDesc", "DESCR"},          {"TxtExpLimit", "Limit_Cr"}, {"TxtFWeek", "First_Gamma"},
                {"TxtLastWeek", "Week_Gamma"}, {"TxtContract", "field2"},   {"TxtEx_Margin", "field1"}};
            for (const auto& [field, column] : fill)
                setText(field, rs[column].textOrEmpty());
        }
        setMask("1110011");
    } catch (const std::exception& e) {
        procedureBox("FindRecords", e);
    }
}

} // namespace tallimark
