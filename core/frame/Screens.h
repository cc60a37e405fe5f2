#pragma once
// The screens of the process: loaded on first use, hidden and reused, unloaded on request.
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tallimark {

class App;
class Form;

class Screens {
public:
    explicit Screens(App& app);
    ~Screens();

    // A loaded screen, loading it on first use; raises for a name the system does not know.
    Form& get(const std::string& name);
    template <class F> F& get() {
        if (!find(F::kName)) adopt(std::make_unique<F>(app_));
        return static_cast<F&>(get(F::kName));
    }
    Form* find(const std::string& name);
    std::vector<Form*> loaded();
    // Unload: the screen goes; it is destroyed once the event in hand has run (collect).
    void unload(const std::string& name);
    void collect();

private:
    void adopt(std::unique_ptr<Form> form);
    App& app_;
    std::map<std::string, std::unique_ptr<Form>> forms_;
    std::vector<std::unique_ptr<Form>> graveyard_;
};

// Makes a screen by its name; nullptr for a name the system does not know.
std::unique_ptr<Form> makeScreen(App& app, const std::string& name);
// The names makeScreen knows.
std::vector<std::string> screenNames();

} // namespace tallimark
