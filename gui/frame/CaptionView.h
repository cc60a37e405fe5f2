#pragma once
// The view of a screen that has none of its own yet: its caption, so that every menu leads
// somewhere while the screen's work is still to come.
#include <QWidget>

namespace tallimark {

class Form;

class CaptionView : public QWidget {
public:
    explicit CaptionView(Form& form);
};

} // namespace tallimark
