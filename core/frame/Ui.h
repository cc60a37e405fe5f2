#pragma once
// The one small interface through which screen models talk to the person at the desk: message
// boxes, the busy cursor, modal and modeless screens and file dialogs. The workstation answers
// with real dialogs; the batch driver and the tests answer from a script.
#include <optional>
#include <string>

namespace tallimark {

class Form;

enum class MsgButtons { Ok, OkCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgAnswer { Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

inline constexpr const char* kAppTitle = "Tallimark";

struct MsgBox {
    std::string text;
    std::string title = kAppTitle;
    MsgButtons buttons = MsgButtons::Ok;
    MsgIcon icon = MsgIcon::None;
};

struct FileDialog {
    bool save = false;
    std::string title;
    std::string filter; // "Trade files (*.txt)|*.txt"
    std::string initialDir;
    std::string fileName;
    std::string defaultExt;       // added to a typed name that has no extension ("pon")
    bool confirmOverwrite = true; // a save dialog asks before it hands back a file that exists
};

const char* buttonsName(MsgButtons b);
const char* iconName(MsgIcon i);
const char* answerName(MsgAnswer a);
std::optional<MsgAnswer> answerFromName(const std::string& name);

class Ui {
public:
    virtual ~Ui() = default;
    virtual MsgAnswer msgBox(const MsgBox& box) = 0;
    virtual void setBusy(bool busy) = 0;
    // Shows a screen modally: returns once the screen is hidden or unloaded.
    virtual void showModal(Form& form) = 0;
    // Shows a screen inside the main frame; the call returns at once.
    virtual void showForm(Form& form) = 0;
    // A screen was hidden or is about to be unloaded: its window goes.
    virtual void formHidden(Form& form) = 0;
    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<std::string> fileDialog(const FileDialog& dialog) = 0;
    // End: the process stops here.
    [[noreturn]] virtual void endProgram() = 0;
};

} // namespace tallimark
