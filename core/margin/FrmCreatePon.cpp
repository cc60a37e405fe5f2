#include "margin/FrmCreatePon.h"

#include "frame/App.h"
#include "frame/ComProc.h"
#include "frame/VbFormat.h"
#include "margin/MarginXml.h"
#include "margin/PositionFile.h"
#include "margin/SpanRequest.h"
#include "margin/TextFiles.h"

namespace tallimark {

namespace {
const MarginFileKind kPonFile{".pon", "Create File / Folder", "Please create a \".pon\" file only", true};
const char* const kWriteError = "Error While Writing Text File";

// The part of a path behind its last separator.
std::string FilePart(const std::string& path) {
    const size_t slash = path.find_last_of("\\/");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}
} // namespace

FrmCreatePon::FrmCreatePon(App& app) : MarginFileScreen(app, kName, "Create Position File", kPonFile) {
    addControl(ControlKind::Label, "Label2", "Create Date:");
    addControl(ControlKind::DatePicker, "DTPDate");
    addControl(ControlKind::Button, "CmdPon_File", "&Create File");
    addControl(ControlKind::Button, "CmdClose", "C&lose");
    // The span request's button is neither shown nor enabled on the screen; batch still presses it.
    Control& request = addControl(ControlKind::Button, "Command1", "file create");
    request.visible = false;
    request.enabled = false;

    on("Form", EventType::Load, [this](Event&) {
        setText("DTPDate", Format(this->app().clock().today(), "DD-MMM-YYYY"));
        FileName = defaultPath();
        setText("LblFolder_Name", FileName);
    });
    on("CmdPon_File", EventType::Click, [this](Event&) { CmdPon_File_Click(); });
    on("Command1", EventType::Click, [this](Event&) { Command1_Click(); });
}

void FrmCreatePon::CmdPon_File_Click() {
    try {
        // The pointer goes busy here and only the success path turns it back.
        BusyCursor(ui());
        setEnabled("CmdPon_File", false);
        FileName = text("LblFolder_Name");
        if (FileExists(FileName)) {
            const MsgAnswer answer =
                ui().msgBox({FilePart(FileName) + " file already exists\n\nTo overwrite click \"Yes\"\n\n"
                                                  "To change file name click \"No\"",
                             "Check", MsgButtons::YesNo, MsgIcon::Question});
            if (answer == MsgAnswer::No) {
                ui().msgBox(
                    {"Please select another file name", "Info", MsgButtons::Ok, MsgIcon::Information});
                setEnabled("CmdPon_File", true);
                setFocus("CmdSelect");
                return; // deliberately with the busy pointer still on
            }
            // The old file goes before anything is composed: a failure below leaves no file.
            DeleteFile(FileName);
        }
        const std::string document = PositionDocument(app(), CDate(text("DTPDate")));
        WriteTextLine(FileName, SingleByteText(document));
        ui().msgBox({"Pon file created successfully", "Success", MsgButtons::Ok, MsgIcon::Information});
        setFocus("CmdClose");
        NormalCursor(ui());
        setEnabled("CmdPon_File", true);
    } catch (const std::exception& e) {
        // The button stays disabled and the pointer busy until the screen is opened again.
        ErrorNumberBox(ui(), kWriteError, e);
    }
}

void FrmCreatePon::Command1_Click() {
    try {
        WriteSpanRequest(app());
    } catch (const std::exception& e) {
        ErrorNumberBox(ui(), kWriteError, e);
    }
}

} // namespace tallimark
