#include "frame/Screens.h"

#include "frame/App.h"
#include "frame/Form.h"

namespace tallimark {

Screens::Screens(App& app) : app_(app) {}
Screens::~Screens() = default;

void Screens::collect() {
    graveyard_.clear();
}

void Screens::adopt(std::unique_ptr<Form> form) {
    const std::string name = form->name();
    forms_[name] = std::move(form);
}

Form* Screens::find(const std::string& name) {
    auto it = forms_.find(name);
    return it == forms_.end() ? nullptr : it->second.get();
}

Form& Screens::get(const std::string& name) {
    Form* f = find(name);
    if (!f) {
        auto made = makeScreen(app_, name);
        if (!made) throw VbError(424, "Object required: no screen named " + name);
        f = made.get();
        adopt(std::move(made));
    }
    f->load();
    return *f;
}

std::vector<Form*> Screens::loaded() {
    std::vector<Form*> all;
    for (auto& [n, f] : forms_)
        all.push_back(f.get());
    return all;
}

void Screens::unload(const std::string& name) {
    auto it = forms_.find(name);
    if (it == forms_.end()) return;
    std::unique_ptr<Form> form = std::move(it->second);
    forms_.erase(it);
    form->hide();
    graveyard_.push_back(std::move(form));
}

} // namespace tallimark
