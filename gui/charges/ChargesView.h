#pragma once
// The charge master's view: the standing rates, the three contract charges framed together,
// and the seven buttons.
#include "frame/RecordView.h"

namespace tallimark {

class ChargesView : public RecordView {
public:
    ChargesView();
};

} // namespace tallimark
