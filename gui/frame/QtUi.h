#pragma once
// The workstation's answer to the screen models: real message boxes, the wait cursor, screens
// as modal dialogs or as windows of the main frame, and the file dialog.
#include "frame/Ui.h"

#include <QObject>

#include <functional>
#include <map>

class QDialog;
class QWidget;

namespace tallimark {

class FormBinder;
class MainWindow;

class QtUi : public QObject, public Ui {
public:
    // Answers message boxes in place of the person at the desk; the tests use it.
    using Answerer = std::function<MsgAnswer(const MsgBox&)>;

    explicit QtUi(Answerer answerer = {});
    ~QtUi() override;

    MsgAnswer msgBox(const MsgBox& box) override;
    void setBusy(bool busy) override;
    void showProgress() override;
    void showModal(Form& form) override;
    void showForm(Form& form) override;
    void formHidden(Form& form) override;
    std::optional<std::string> fileDialog(const FileDialog& dialog) override;
    void statusMessage(const std::string& text) override;
    void showReport(const ReportDocument& document) override;
    [[noreturn]] void endProgram() override;

    // The view of a screen while it is shown, else nullptr.
    QWidget* viewOf(const Form& form) const;
    MainWindow* mainWindow() const { return main_; }

protected:
    // The close box of a screen's window asks the model, which may keep the screen.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Shown {
        QWidget* host; // the window: a dialog, a subwindow of the main frame, or the frame itself
        QWidget* view;
        FormBinder* binder;
        QDialog* dialog; // set while the screen is up modally
    };
    void present(Form& form, QWidget* host, QWidget* view, FormBinder* binder, QDialog* dialog);
    // Forgets a shown screen and stops its view; the caller disposes of the window.
    Shown release(Form& form);
    QWidget* activeWindow() const;
    // Every shown screen tells its view what changed.
    void showChanges();
    // A screen's window became the active one of the frame: the screen hears Activate.
    void subWindowActivated(QWidget* sub);

    Answerer answerer_;
    std::map<Form*, Shown> shown_;
    MainWindow* main_ = nullptr;
    QWidget* lastActive_ = nullptr; // the frame's window the desk last worked in
    bool presenting_ = false;       // a screen being shown says Activate itself
    bool busy_ = false;
};

} // namespace tallimark
