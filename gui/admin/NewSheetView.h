#pragma once
// The new-sheet screen FrmNewScript: the sheet type, then each caption beside its field (the
// script's name with its search button and its list), and Ok and Cancel underneath.
#include <QWidget>

namespace tallimark {

class Form;

class NewSheetView : public QWidget {
public:
    explicit NewSheetView(Form& form);
};

} // namespace tallimark
