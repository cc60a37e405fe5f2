#pragma once
// The frame that the master screens share: seven buttons (New, Modify, Delete, Undo, Save, Find,
// Exit) enabled by a mask, a mode, the delete question and the failure boxes.
#include "frame/Form.h"
#include "frame/Store.h"

#include <functional>
#include <string>

namespace tallimark {

class RecordScreen : public Form {
public:
    enum Button { New = 0, Modify, Delete, Undo, Save, Find, Exit };
    enum Mode { Idle = 0, Adding = 1, Modifying = 2 };
    enum class Failure { Adding, Updating, Deleting };

    int mode = Idle;
    // The text of the last statement a button built, run or not.
    std::string lastStatement;

protected:
    // buttonArray is "Cmd" on most screens, "cmd" on the charge master.
    RecordScreen(App& app, const char* name, const char* caption, std::string buttonArray = "Cmd");

    // Called with the button's index; errors it does not trap reach the click's failure box.
    virtual void onButton(int index) = 0;

    // A master screen's own store work, and its way back to browsing.
    struct RecordSteps {
        std::function<void()> reset;
        std::function<bool()> add, update, remove;
    };
    // Delete, Undo, Save and Exit, which run alike on every master screen; false for New,
    // Modify and Find, which each screen handles itself.
    bool sharedButton(int index, const RecordSteps& steps);
    // Modify: the fields open but the key (if the screen has one), focus on the first to change.
    void beginModify(const char* key, const char* first);

    void setMask(const std::string& mask);
    // "Do you wish to delete this record?": true on Yes.
    bool confirmDelete();
    // "Failed in adding record" and its like, in the box titled "Error".
    void failedBox(Failure failure);
    // Adds the seven buttons; call after the screen's own fields so that they follow in tab order.
    void addButtons();
    const std::string& buttonArray() const { return buttonArray_; }
    // A text box "TxtX", locked until New or Modify, after its label "LblX" with the caption.
    void addField(const std::string& field, std::string caption);
    // Builds one statement and runs it; false when either fails (a conversion, a quote, the
    // store). A procedure with a trap of its own names itself and shows its failure box first.
    bool runStatement(const std::function<std::string()>& build, const char* procedure = nullptr);
    // Every text box selects its text on entry and takes Enter as Tab; Esc on any control hides
    // the screen. Call once the fields and buttons are added.
    void addFieldKeys();
    // "Error in <procedure> procedure: <text> No: <n>": the wording of the finds and renumbering.
    void procedureBox(const std::string& procedure, const std::exception& error);
    // Moves the data source to the first row whose column reads as the text (compared as the
    // store compares text); false when the search runs off the end.
    static bool seekRow(Recordset& rows, const std::string& column, const std::string& text);

private:
    std::string buttonArray_;
};

} // namespace tallimark
