#include "frame/ScriptedUi.h"

#include "frame/App.h"

namespace tallimark {

MsgAnswer defaultAnswer(MsgButtons buttons) {
    switch (buttons) {
    case MsgButtons::Ok:
    case MsgButtons::OkCancel:
        return MsgAnswer::Ok;
    case MsgButtons::AbortRetryIgnore:
        return MsgAnswer::Abort;
    case MsgButtons::YesNoCancel:
    case MsgButtons::YesNo:
        return MsgAnswer::Yes;
    case MsgButtons::RetryCancel:
        return MsgAnswer::Retry;
    }
    return MsgAnswer::Ok;
}

MsgAnswer ScriptedUi::msgBox(const MsgBox& box) {
    MsgAnswer answer = defaultAnswer(box.buttons);
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    }
    boxes_.push_back({box, answer});
    if (boxListener_) boxListener_(boxes_.back());
    return answer;
}

void ScriptedUi::showModal(Form& form) {
    if (modalRunner_) modalRunner_(form);
}

std::optional<std::string> ScriptedUi::fileDialog(const FileDialog&) {
    if (files_.empty()) return std::nullopt;
    auto f = files_.front();
    files_.pop_front();
    return f;
}

void ScriptedUi::showReport(const ReportDocument& document) {
    reports_.push_back(document);
    if (reportListener_) reportListener_(reports_.back());
}

void ScriptedUi::endProgram() {
    throw ProgramEnd();
}

} // namespace tallimark
