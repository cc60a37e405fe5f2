#pragma once
// A screen that shows its caption and nothing else yet: the menus stay whole while the screen's
// own work is still to come.
#include "frame/Form.h"

namespace tallimark {

class EmptyScreen : public Form {
public:
    EmptyScreen(App& app, const char* name, const char* caption) : Form(app, name, caption) {}
};

} // namespace tallimark
