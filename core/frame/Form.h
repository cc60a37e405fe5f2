#pragma once
// A screen as a model: named controls whose text is the value, grids of coloured cells, and the
// event handlers a view or a script fires by control name. Views observe it; nothing here knows
// a widget.
#include "frame/Grid.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tallimark {

class App;
class Ui;
class VbError;

enum class ControlKind {
    TextBox,
    Label,
    Button,
    CheckBox,
    OptionButton,
    ComboBox,
    ListBox,
    DatePicker,
    Menu,
    Frame,
    Picture // a drawing surface; the screen draws on its canvas
};

struct Control {
    std::string name;
    ControlKind kind = ControlKind::TextBox;
    std::string text; // the text of a field, the caption of a label, button or menu
    std::optional<Rgb> foreColor;
    bool enabled = true;
    bool locked = false;
    bool visible = true;
    bool value = false;              // check box ticked, option selected
    std::vector<std::string> items;  // combo and list entries
    int selStart = 0, selLength = 0; // selection of a text box
    bool password = false;
    std::string menuParent; // the menu head a menu entry stands under
    std::string toolTip;    // shown while the pointer rests on the control
};

enum class EventType {
    Click,
    DblClick,
    Change,
    GotFocus,
    LostFocus,
    KeyDown,
    KeyPress,
    Load,
    Activate,
    QueryUnload,
    MouseMove
};

const char* eventName(EventType t);
std::optional<EventType> eventFromName(const std::string& name);

struct Event {
    EventType type = EventType::Click;
    int index = -1;   // index within a control array, "Cmd(3)" gives 3
    int keyCode = 0;  // KeyDown; a handler may set it to 0 to swallow the key
    int shift = 0;    // 1 Shift, 2 Ctrl, 4 Alt
    int keyAscii = 0; // KeyPress; a handler may change it
    int row = 0, col = 0;
    bool cancel = false; // QueryUnload: a handler keeps the screen
    double x = 0, y = 0; // MouseMove: the pointer, in pixels of the control
};

// Key codes and shift bits as the screens test them.
namespace keys {
inline constexpr int Tab = 9, Enter = 13, Escape = 27, PageUp = 33, PageDown = 34, Up = 38, Down = 40;
inline constexpr int F1 = 112, F2 = 113, F3 = 114, F7 = 118;
inline constexpr int ShiftMask = 1, CtrlMask = 2, AltMask = 4;
} // namespace keys

class Form {
public:
    // What a view hears of a model: the names of controls and grids that changed since the
    // last flush ("" for the screen itself: caption, visibility), and a focus request.
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void modelChanged(const std::set<std::string>& names) = 0;
    };

    Form(App& app, std::string name, std::string caption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);
    App& app() { return app_; }
    Ui& ui();

    // Controls in tab order.
    const std::vector<std::string>& controlOrder() const { return order_; }
    bool hasControl(const std::string& name) const { return controls_.count(name) != 0; }
    Control& control(const std::string& name);
    const Control& control(const std::string& name) const;
    const std::string& text(const std::string& name) const { return control(name).text; }
    // Sets a control's text; a change fires its Change event, as typing does.
    void setText(const std::string& name, std::string text);
    void setForeColor(const std::string& name, Rgb color);
    void setEnabled(const std::string& name, bool enabled);
    void setLocked(const std::string& name, bool locked);
    void setVisible(const std::string& name, bool visible);
    void setValue(const std::string& name, bool value); // check box or option button; fires Click
    void setItems(const std::string& name, std::vector<std::string> items);
    void setToolTip(const std::string& name, std::string tip);

    std::vector<std::string> gridNames() const;
    Grid& grid(const std::string& name);

    // Fires an event of a control ("Form" for the screen). A run-time error that no handler
    // traps reaches the user as the run-time error box; the model keeps what it had.
    // Returns the event as the handlers left it: a key handler may swallow or change its key.
    Event fire(const std::string& control, Event event);
    void fire(const std::string& control, EventType type) { fire(control, Event{type}); }

    // Focus: handlers ask for it; the move happens when the event in hand has run, as the
    // desk's run-time does, and fires LostFocus and GotFocus.
    void setFocus(const std::string& name);
    void moveFocus(const std::string& name);
    const std::string& focused() const { return focused_; }
    // The next control in tab order that can take the focus (Enter acting as Tab).
    void focusNext();

    bool visible() const { return visible_; }
    void load();
    void show();
    void showModal();
    void hide();
    // The window's close box, Esc and the like: QueryUnload may keep the screen.
    bool requestClose();
    bool isLoaded() const { return loaded_; }

    void setListener(Listener* listener) { listener_ = listener; }
    // Tells the view what changed; the event dispatcher does it after each event.
    void flush();
    void markChanged(const std::string& name);

protected:
    Control& addControl(ControlKind kind, const std::string& name, std::string text = {});
    Grid& addGrid(const std::string& name, int cols);
    using Handler = std::function<void(Event&)>;
    void on(const std::string& control, EventType type, Handler handler);
    // The box of a run-time error that no procedure trapped.
    void runtimeErrorBox(const VbError& error);
    // The failure box of a trapped procedure.
    void failureBox(const std::string& procedure, const std::exception& error,
                    const char* numberWords = " and No: ");

private:
    void dispatch(const std::string& control, Event& event);
    void applyPendingFocus();

    App& app_;
    std::string name_;
    std::string caption_;
    std::map<std::string, Control> controls_;
    std::vector<std::string> order_;
    std::map<std::string, Grid> grids_;
    std::map<std::pair<std::string, EventType>, Handler> handlers_;
    std::set<std::string> dirty_;
    Listener* listener_ = nullptr;
    std::string focused_;
    std::optional<std::string> pendingFocus_;
    int depth_ = 0;
    bool visible_ = false;
    bool loaded_ = false;
};

} // namespace tallimark
