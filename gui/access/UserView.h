#pragma once
// The users screen's view: code, name and password, and the seven buttons.
#include "frame/RecordView.h"

namespace tallimark {

class UserView : public RecordView {
public:
    UserView();
};

} // namespace tallimark
