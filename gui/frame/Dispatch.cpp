#include "frame/Dispatch.h"

#include "frame/App.h"
#include "frame/Form.h"

namespace tallimark {

namespace {
int depth = 0;
}

void dispatch(Form& form, const std::function<void()>& action) {
    App& app = form.app();
    ++depth;
    try {
        action();
        // An action may change other screens than its own (a trail's correction moves the sheet
        // behind it): every screen shows what it now holds.
        for (Form* changed : app.screens().loaded())
            changed->flush();
    } catch (const std::exception& e) {
        // The models trap their own errors; an exception must still never cross Qt's event loop.
        app.ui().msgBox({e.what(), kAppTitle, MsgButtons::Ok, MsgIcon::Critical});
    }
    --depth;
    if (depth == 0) app.screens().collect();
}

} // namespace tallimark
