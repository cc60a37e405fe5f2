#pragma once
// The margin file screens: the target file with its "..." chooser, the date of the position file,
// and the buttons that write or load it.
#include <QWidget>

namespace tallimark {

class CreatePonView : public QWidget {
public:
    CreatePonView();
};

class SpanLoadView : public QWidget {
public:
    SpanLoadView();
};

} // namespace tallimark
