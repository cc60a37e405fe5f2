#pragma once
// The strike setting dialog: the present count beside each entry field, OK and Cancel below.
#include <QWidget>

namespace tallimark {

class StrikeSettingView : public QWidget {
public:
    StrikeSettingView();
};

} // namespace tallimark
