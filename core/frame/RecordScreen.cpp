#include "frame/RecordScreen.h"

#include "frame/ComProc.h"
#include "frame/Ui.h"
#include "frame/VbError.h"

namespace tallimark {

RecordScreen::RecordScreen(App& app, const char* name, const char* caption, std::string buttonArray)
    : Form(app, name, caption), buttonArray_(std::move(buttonArray)) {
    on(buttonArray_, EventType::Click, [this](Event& e) {
        try {
            onButton(e.index);
        } catch (const std::exception& err) {
            failureBox("cmd_Click", err, " and Err Number: ");
        }
    });
}

void RecordScreen::addButtons() {
    const char* const captions[] = {"&New", "&Modify", "&Delete", "&Undo", "&Save", "&Find", "E&xit"};
    for (int i = 0; i < 7; ++i)
        addControl(ControlKind::Button, buttonArray_ + "(" + std::to_string(i) + ")", captions[i]);
}

void RecordScreen::setMask(const std::string& mask) {
    SetButtonMask(*this, buttonArray_, mask);
}

bool RecordScreen::confirmDelete() {
    return ui().msgBox({"Do you wish to delete this record?", "Delete Item", MsgButtons::YesNo,
                        MsgIcon::Question}) == MsgAnswer::Yes;
}

void RecordScreen::failedBox(Failure failure) {
    const char* text = failure == Failure::Adding     ? "Failed in adding record"
                       : failure == Failure::Updating ? "Failed in updating record"
                                                      : "Failed in deleting record";
    ui().msgBox({text, "Error", MsgButtons::Ok, MsgIcon::Critical});
}

} // namespace tallimark
