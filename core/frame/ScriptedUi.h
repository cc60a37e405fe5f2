#pragma once
// A UI without a display: message boxes are answered from a queue (the first button when the
// queue is empty) and recorded; modal screens run a callback until they are hidden. The batch
// driver and the tests use it.
#include "frame/Ui.h"
#include "reports/ReportDocument.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tallimark {

struct ShownBox {
    MsgBox box;
    MsgAnswer answer;
};

class ScriptedUi : public Ui {
public:
    void queueAnswer(MsgAnswer answer) { answers_.push_back(answer); }
    void queueFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }
    // What runs while a modal screen is up; without one, showModal returns at once.
    void setModalRunner(std::function<void(Form&)> runner) { modalRunner_ = std::move(runner); }
    // Hears every box as it is answered.
    void setBoxListener(std::function<void(const ShownBox&)> listener) { boxListener_ = std::move(listener); }
    // Hears every printed report as it is shown.
    void setReportListener(std::function<void(const ReportDocument&)> listener) {
        reportListener_ = std::move(listener);
    }

    const std::vector<ShownBox>& boxes() const { return boxes_; }
    const std::vector<ReportDocument>& reports() const { return reports_; }
    void clearBoxes() { boxes_.clear(); }
    int busyDepth() const { return busy_; }

    MsgAnswer msgBox(const MsgBox& box) override;
    void setBusy(bool busy) override { busy_ = busy ? 1 : 0; }
    void showModal(Form& form) override;
    void showForm(Form&) override {}
    void formHidden(Form&) override {}
    std::optional<std::string> fileDialog(const FileDialog& dialog) override;
    void showReport(const ReportDocument& document) override;
    [[noreturn]] void endProgram() override;

private:
    std::deque<MsgAnswer> answers_;
    std::deque<std::optional<std::string>> files_;
    std::vector<ShownBox> boxes_;
    std::vector<ReportDocument> reports_;
    std::function<void(Form&)> modalRunner_;
    std::function<void(const ShownBox&)> boxListener_;
    std::function<void(const ReportDocument&)> reportListener_;
    int busy_ = 0;
};

// The answer a box gives when nobody chooses: its first button.
MsgAnswer defaultAnswer(MsgButtons buttons);

} // namespace tallimark
