#include "margin/FrmSpan_Load.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "margin/SpanAnswer.h"
#include "margin/TextFiles.h"

#include <cerrno>
#include <fstream>

namespace tallimark {

namespace {
const MarginFileKind kSpanFile{".spn", "Load File / Folder", "Please load a \".spn\" file only", false};
} // namespace

FrmSpan_Load::FrmSpan_Load(App& app) : MarginFileScreen(app, kName, "Load Span File", kSpanFile) {
    addControl(ControlKind::Button, "CmdSpn_File", "Load &Span File");
    addControl(ControlKind::Button, "CmdClose", "C&lose");
    // The screen's "file create" button has no procedure; a button that does nothing is not shown.
    Control& idle = addControl(ControlKind::Button, "Command1", "file create");
    idle.visible = false;
    idle.enabled = false;

    on("Form", EventType::Load, [this](Event&) {
        FileName = defaultPath();
        setText("LblFolder_Name", FileName);
    });
    on("CmdSpn_File", EventType::Click, [this](Event&) { CmdSpn_File_Click(); });
}

void FrmSpan_Load::CmdSpn_File_Click() {
    BusyCursor(ui());
    setEnabled("CmdSpn_File", false);
    FileName = text("LblFolder_Name");
    auto recover = [this] {
        NormalCursor(ui());
        setEnabled("CmdSpn_File", true);
        setFocus("CmdClose");
    };
    try {
        if (!FileExists(FileName)) {
            ui().msgBox({"File Selected is not present in the directory", "Error", MsgButtons::Ok,
                         MsgIcon::Critical});
        } else {
            LoadAnswer();
            ui().msgBox({"Spn file loaded successfully", "Success", MsgButtons::Ok, MsgIcon::Information});
        }
        recover();
    } catch (const std::exception& e) {
        // Margins stored before the failure stay stored.
        recover();
        ErrorNumberBox(ui(), "Error While Loading .spn File", e);
    }
}

void FrmSpan_Load::LoadAnswer() {
    std::ifstream in(FileName, std::ios::binary);
    if (!in) throw FileError(errno);
    SpanLines lines(in);
    Store& store = app().store();
    WriteGroup group(store);
    ReadSpanAnswer(lines, [&store](const SpanMargin& m) { store.execute(MarginUpdate(m)); });
}

} // namespace tallimark
