#pragma once
// The risk sheets FrmPort5 and FrmPortfolioIndex: the menu and toolbar of the commands, the
// market inputs over the strike ladder va1, and beside it the position, the greeks and the
// results, each field with its caption. Built from the controls the sheet model has, so the
// smaller index sheet shows only its own fields.
#include <QWidget>

namespace tallimark {

class Form;

class SheetView : public QWidget {
public:
    explicit SheetView(Form& form);
};

} // namespace tallimark
