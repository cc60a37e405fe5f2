#pragma once
// The script master's view: the script's code, name and figures, the gamma control limits in
// a frame of their own, and the seven buttons.
#include "frame/RecordView.h"

namespace tallimark {

class ScriptMastView : public RecordView {
public:
    ScriptMastView();
};

} // namespace tallimark
