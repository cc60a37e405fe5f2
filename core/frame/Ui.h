#pragma once
// The one small interface through which screen models talk to the person at the desk: message
// boxes, the busy cursor, modal and modeless screens and file dialogs. The workstation answers
// with real dialogs; the batch driver and the tests answer from a script.
#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace tallimark {

class Form;
struct ReportDocument;

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
    // A note in the frame's status line for a few seconds: news that wants no answer.
    virtual void statusMessage(const std::string& text) = 0;
    // Boxes shown so far, so that a step can tell whether it went through without one.
    int boxesShown() const { return boxesShown_; }
    // Part way through a long step of the one user thread: the windows paint what the models
    // changed (a count of lines read, say), taking no input. Nothing to do without a display.
    virtual void showProgress() {}
    // A printed report, laid out into pages: the window previews it for the printer.
    virtual void showReport(const ReportDocument& document) = 0;
    // End: the process stops here.
    [[noreturn]] virtual void endProgram() = 0;

protected:
    int boxesShown_ = 0; // counted by msgBox
};

// Says a step went through, in the status line, when its scope ends with no box shown meanwhile
// and nothing thrown: a save that worked is told, one that failed has said so in its box.
class QuietSuccessNote {
public:
    QuietSuccessNote(Ui& ui, std::string text) : ui_(ui), text_(std::move(text)), boxes_(ui.boxesShown()) {}
    ~QuietSuccessNote() {
        if (ui_.boxesShown() == boxes_ && std::uncaught_exceptions() == 0) ui_.statusMessage(text_);
    }
    QuietSuccessNote(const QuietSuccessNote&) = delete;
    QuietSuccessNote& operator=(const QuietSuccessNote&) = delete;

private:
    Ui& ui_;
    std::string text_;
    int boxes_;
};

} // namespace tallimark
