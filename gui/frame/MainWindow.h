#pragma once
// The main frame: the menus of MDIForm1 over the area where the working screens open, and a
// status line for short notes.
#include <QList>
#include <QMainWindow>

class QAction;
class QMdiArea;
class QMdiSubWindow;

namespace tallimark {

class Form;

class MainWindow : public QMainWindow {
public:
    explicit MainWindow(Form& form);
    ~MainWindow() override;
    QMdiArea& mdiArea() { return *mdiArea_; }

private:
    // While a screen with a menu of its own is active, its menu stands in the bar in place of
    // the frame's, so that the Alt letters of its heads are its own.
    void showMenuOf(QMdiSubWindow* active);

    QMdiArea* mdiArea_;
    QList<QAction*> frameMenus_;
};

} // namespace tallimark
