#pragma once
// The main frame: the menus of MDIForm1 over the area where the working screens open.
#include <QMainWindow>

class QMdiArea;

namespace tallimark {

class Form;

class MainWindow : public QMainWindow {
public:
    explicit MainWindow(Form& form);
    QMdiArea& mdiArea() { return *mdiArea_; }

private:
    QMdiArea* mdiArea_;
};

} // namespace tallimark
