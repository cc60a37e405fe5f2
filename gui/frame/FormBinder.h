#pragma once
// Binds the widgets of a view to a screen model by name, both ways. A widget, menu action or
// table whose objectName is a control or grid name of the model ("cmdokcan(0)" included) shows
// that control; what the person at the desk does to it reaches the model as the control's named
// events, the same ones a script fires.
#include "frame/Form.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QTableWidget;
class QTableWidgetItem;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace tallimark {

// A table with this property set true is a list view: a row reached by the arrow keys is
// clicked, as the desk's list views report it; a grid's rows are clicked by the mouse alone.
inline constexpr const char* kPickedByKeys = "pickedByKeys";

class FormBinder : public QObject, public Form::Listener {
public:
    // Finds the bound children of root; the binder lives and dies with root.
    FormBinder(Form& form, QWidget& root);

    // Starts listening to the model and shows all of it.
    void attach();
    // Stops both ways: the view is going, and its model may already be gone.
    void detach();

    void modelChanged(const std::set<std::string>& names) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct GridView {
        QTableWidget* table;
        std::vector<double> widths; // the model's widths last shown, so a user's resize stands
    };

    void bindControl(const std::string& name, QObject& object);
    void bindGrid(const std::string& name, QTableWidget& table);
    // Tab order as the model's; a label's access letter leads to the control after it.
    void setTabOrder();

    QWidget* widgetOf(const std::string& name) const;
    void showControl(const std::string& name);
    void showText(const std::string& name, QLineEdit& edit, const Control& control);
    void showFore(const std::string& name, QWidget& widget, const std::optional<Rgb>& fore);
    void showGrid(const std::string& name, GridView& view);
    void showScreen();

    // Widget to model.
    void act(const std::function<void()>& action);
    void focusIn(QWidget* now);
    bool keyPressed(const std::string& name, QWidget& widget, QKeyEvent& key);
    bool altKey(QObject* watched, QKeyEvent& key);
    void entered(QObject* watched, Qt::FocusReason reason);
    // A typed date reaches the model in the screen's form, or is refused and the model's stays.
    bool commitDate(const std::string& name, bool leaving);
    bool toggleCheck(QTableWidget& table);
    void enterAfterEdit(const std::string& name);
    void cellEvent(const std::string& name, EventType type, int row, int col);
    void cellEdited(const std::string& name, const QTableWidgetItem& item);
    void mirrorSelection(const std::string& name);

    Form& form_;
    QWidget& root_;
    std::map<std::string, QObject*> controls_;
    std::map<std::string, GridView> grids_;
    std::map<QObject*, std::string> names_;
    std::map<std::string, std::optional<Rgb>> foreShown_;
    std::map<std::string, std::pair<int, int>> selectionKnown_; // a field's selection as the view last saw it
    std::set<std::string> dateFields_;
    QPointer<QLineEdit> mouseEntered_; // entered by a click: the click must not undo the selection
    bool refusingDate_ = false;
    bool attached_ = false;
    bool showing_ = false;     // model to widget: the widgets' own signals are not the user's
    bool reinjecting_ = false; // a key a handler changed goes back to its widget untouched
};

} // namespace tallimark
