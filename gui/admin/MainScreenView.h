#pragma once
// The main screen FrmNewMainScreen: the list of sheets with a tick box in front of each row,
// and the row of commands under it.
#include <QWidget>

namespace tallimark {

class MainScreenView : public QWidget {
public:
    MainScreenView();
};

} // namespace tallimark
