#pragma once
// The frame that the master screens share: seven buttons (New, Modify, Delete, Undo, Save, Find,
// Exit) enabled by a mask, a mode, the delete question and the failure boxes.
#include "frame/Form.h"

namespace tallimark {

class RecordScreen : public Form {
public:
    enum Button { New = 0, Modify, Delete, Undo, Save, Find, Exit };
    enum Mode { Idle = 0, Adding = 1, Modifying = 2 };
    enum class Failure { Adding, Updating, Deleting };

    int mode = Idle;

protected:
    // buttonArray is "Cmd" on most screens, "cmd" on the charge master.
    RecordScreen(App& app, const char* name, const char* caption, std::string buttonArray = "Cmd");

    // Called with the button's index; errors it does not trap reach the click's failure box.
    virtual void onButton(int index) = 0;

    void setMask(const std::string& mask);
    // "Do you wish to delete this record?": true on Yes.
    bool confirmDelete();
    // "Failed in adding record" and its like, in the box titled "Error".
    void failedBox(Failure failure);
    // Adds the seven buttons; call after the screen's own fields so that they follow in tab order.
    void addButtons();
    const std::string& buttonArray() const { return buttonArray_; }

private:
    std::string buttonArray_;
};

} // namespace tallimark
