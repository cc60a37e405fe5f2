#pragma once
// The main frame: its menus open the working screens; closing it ends the program.
#include "frame/Form.h"

namespace tallimark {

class MDIForm1 : public Form {
public:
    static constexpr const char* kName = "MDIForm1";
    explicit MDIForm1(App& app);

    // Unloads the working screens in their fixed order.
    void UnloadForms();
};

} // namespace tallimark
