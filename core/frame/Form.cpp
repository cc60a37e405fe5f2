#include "frame/Form.h"

#include "frame/App.h"
#include "frame/VbError.h"

namespace tallimark {

namespace {
const char* const kEventNames[] = {"Click",    "DblClick", "Change",   "GotFocus",    "LostFocus", "KeyDown",
                                   "KeyPress", "Load",     "Activate", "QueryUnload", "MouseMove"};
}

const char* eventName(EventType t) {
    return kEventNames[static_cast<int>(t)];
}

std::optional<EventType> eventFromName(const std::string& name) {
    for (int i = 0; i < static_cast<int>(std::size(kEventNames)); ++i)
        if (name == kEventNames[i]) return static_cast<EventType>(i);
    return std::nullopt;
}

Form::Form(App& app, std::string name, std::string caption)
    : app_(app), name_(std::move(name)), caption_(std::move(caption)) {}

Ui& Form::ui() {
    return app_.ui();
}

void Form::setCaption(std::string caption) {
    caption_ = std::move(caption);
    markChanged("");
}

Control& Form::addControl(ControlKind kind, const std::string& name, std::string text) {
    Control& c = controls_[name];
    c.name = name;
    c.kind = kind;
    c.text = std::move(text);
    order_.push_back(name);
    return c;
}

Grid& Form::addGrid(const std::string& name, int cols) {
    auto [it, inserted] = grids_.try_emplace(name, name, cols, [this, name] { markChanged(name); });
    if (inserted) order_.push_back(name);
    return it->second;
}

Control& Form::control(const std::string& name) {
    auto it = controls_.find(name);
    if (it == controls_.end()) throw VbError(730, "Control '" + name + "' not found on " + name_);
    return it->second;
}

const Control& Form::control(const std::string& name) const {
    return const_cast<Form*>(this)->control(name);
}

std::vector<std::string> Form::gridNames() const {
    std::vector<std::string> names;
    for (const auto& [n, g] : grids_)
        names.push_back(n);
    return names;
}

Grid& Form::grid(const std::string& name) {
    auto it = grids_.find(name);
    if (it == grids_.end()) throw VbError(730, "Grid '" + name + "' not found on " + name_);
    return it->second;
}

void Form::setText(const std::string& name, std::string text) {
    Control& c = control(name);
    if (c.text == text) return;
    c.text = std::move(text);
    markChanged(name);
    if (c.kind == ControlKind::TextBox || c.kind == ControlKind::ComboBox ||
        c.kind == ControlKind::DatePicker)
        fire(name, EventType::Change);
}

void Form::setForeColor(const std::string& name, Rgb color) {
    control(name).foreColor = color;
    markChanged(name);
}

void Form::setEnabled(const std::string& name, bool enabled) {
    control(name).enabled = enabled;
    markChanged(name);
}

void Form::setLocked(const std::string& name, bool locked) {
    control(name).locked = locked;
    markChanged(name);
}

void Form::setVisible(const std::string& name, bool visible) {
    control(name).visible = visible;
    markChanged(name);
}

void Form::setValue(const std::string& name, bool value) {
    Control& c = control(name);
    if (c.kind == ControlKind::OptionButton && value) {
        // Option buttons of one array exclude each other: "OptInType(0)" and "OptInType(1)".
        const std::string base = name.substr(0, name.find('('));
        for (auto& [n, other] : controls_)
            if (&other != &c && other.kind == ControlKind::OptionButton && n.substr(0, n.find('(')) == base &&
                other.value) {
                other.value = false;
                markChanged(n);
            }
    }
    const bool changed = c.value != value;
    c.value = value;
    markChanged(name);
    // A check box clicks on every change; an option button only when it becomes the chosen one.
    if (changed && (value || c.kind == ControlKind::CheckBox)) fire(name, EventType::Click);
}

void Form::setItems(const std::string& name, std::vector<std::string> items) {
    control(name).items = std::move(items);
    markChanged(name);
}

void Form::setToolTip(const std::string& name, std::string tip) {
    Control& c = control(name);
    if (c.toolTip == tip) return;
    c.toolTip = std::move(tip);
    markChanged(name);
}

void Form::on(const std::string& control, EventType type, Handler handler) {
    handlers_[{control, type}] = std::move(handler);
}

void Form::dispatch(const std::string& control, Event& event) {
    auto it = handlers_.find({control, event.type});
    if (it == handlers_.end()) {
        // A control array element "Cmd(3)" falls to the array's handler with its index.
        const size_t open = control.find('(');
        if (open == std::string::npos) return;
        it = handlers_.find({control.substr(0, open), event.type});
        if (it == handlers_.end()) return;
        event.index = std::stoi(control.substr(open + 1));
    }
    it->second(event);
}

Event Form::fire(const std::string& control, Event event) {
    ++depth_;
    try {
        dispatch(control, event);
    } catch (const ProgramEnd&) {
        --depth_;
        throw;
    } catch (const VbError& e) {
        runtimeErrorBox(e);
    } catch (const std::exception& e) {
        runtimeErrorBox(VbError(440, e.what()));
    }
    --depth_;
    if (depth_ == 0) {
        applyPendingFocus();
        flush();
    }
    return event;
}

void Form::runtimeErrorBox(const VbError& error) {
    ui().msgBox({"Run-time error '" + std::to_string(error.number()) + "':\n\n" + error.text(), kAppTitle,
                 MsgButtons::Ok, MsgIcon::Critical});
}

void Form::failureBox(const std::string& procedure, const std::exception& error, const char* numberWords) {
    const auto* vb = dynamic_cast<const VbError*>(&error);
    ui().msgBox({"Error in " + procedure + " Procedure: " + error.what() + numberWords +
                 std::to_string(vb ? vb->number() : 0)});
}

void Form::setFocus(const std::string& name) {
    // A grid takes the focus as a control does.
    const Control* c = grids_.count(name) ? nullptr : &control(name);
    if (c && (!c->enabled || !c->visible)) throw VbError(5, "Invalid procedure call or argument");
    pendingFocus_ = name;
    if (depth_ == 0) applyPendingFocus();
}

void Form::applyPendingFocus() {
    // A LostFocus handler may ask for the focus again; the last request wins.
    for (int guard = 0; pendingFocus_ && guard < 8; ++guard) {
        const std::string target = *pendingFocus_;
        pendingFocus_.reset();
        moveFocus(target);
    }
}

void Form::moveFocus(const std::string& name) {
    if (focused_ == name) return;
    const std::string old = focused_;
    focused_ = name;
    markChanged("");
    if (!old.empty()) fire(old, EventType::LostFocus);
    if (focused_ == name) fire(name, EventType::GotFocus);
}

void Form::focusNext() {
    if (order_.empty()) return;
    auto current = std::find(order_.begin(), order_.end(), focused_);
    size_t start = current == order_.end() ? 0 : static_cast<size_t>(current - order_.begin()) + 1;
    for (size_t k = 0; k < order_.size(); ++k) {
        const std::string& n = order_[(start + k) % order_.size()];
        auto it = controls_.find(n);
        const bool focusable = it == controls_.end() ? true
                                                     : it->second.enabled && it->second.visible &&
                                                           it->second.kind != ControlKind::Label &&
                                                           it->second.kind != ControlKind::Menu &&
                                                           it->second.kind != ControlKind::Frame;
        if (focusable) {
            setFocus(n);
            return;
        }
    }
}

void Form::load() {
    if (loaded_) return;
    loaded_ = true;
    fire("Form", EventType::Load);
}

void Form::show() {
    load();
    visible_ = true;
    markChanged("");
    ui().showForm(*this);
    fire("Form", EventType::Activate);
}

void Form::showModal() {
    load();
    visible_ = true;
    markChanged("");
    flush();
    fire("Form", EventType::Activate);
    ui().showModal(*this);
}

void Form::hide() {
    if (!visible_) return;
    visible_ = false;
    markChanged("");
    flush();
    ui().formHidden(*this);
}

bool Form::requestClose() {
    Event e{EventType::QueryUnload};
    ++depth_;
    try {
        dispatch("Form", e);
    } catch (const VbError& err) {
        runtimeErrorBox(err);
    }
    --depth_;
    if (e.cancel) return false;
    app_.screens().unload(name_);
    return true;
}

void Form::markChanged(const std::string& name) {
    dirty_.insert(name);
}

void Form::flush() {
    if (dirty_.empty()) return;
    std::set<std::string> names;
    names.swap(dirty_);
    if (listener_) listener_->modelChanged(names);
}

} // namespace tallimark
