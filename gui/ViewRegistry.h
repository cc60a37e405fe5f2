#pragma once
// The view of every screen, found by the screen's name.
class QWidget;

namespace tallimark {

class Form;
class FormBinder;

struct View {
    QWidget* widget;
    FormBinder* binder; // owned by widget
};

// Builds the view of a screen and binds it to the model; a screen without a view of its own
// gets one that shows its caption.
View makeView(Form& form);

} // namespace tallimark
