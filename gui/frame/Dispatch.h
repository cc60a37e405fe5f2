#pragma once
// The one road from a user's action to a screen model.
#include <functional>

namespace tallimark {

class Form;

// Runs an action of the person at the desk against a model. The model then tells its views
// what changed, and screens unloaded on the way are destroyed once the outermost action has
// run: a handler further up the stack may still belong to one of them.
void dispatch(Form& form, const std::function<void()>& action);

} // namespace tallimark
