#include "frame/FormBinder.h"

#include "frame/AccessKeys.h"
#include "frame/DateField.h"
#include "frame/DeskDate.h"
#include "frame/DeskKeys.h"
#include "frame/Dispatch.h"
#include "frame/GridDelegate.h"
#include "frame/ScreenMenu.h"
#include "frame/Ui.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>

namespace tallimark {

namespace {

QString qs(const std::string& s) {
    return QString::fromStdString(s);
}

QColor qcolor(Rgb c) {
    return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

QVariant brush(const std::optional<Rgb>& c) {
    return c ? QVariant(QBrush(qcolor(*c))) : QVariant();
}

// Raised while the model is shown: what the widgets signal meanwhile is not the user's doing.
class Showing {
public:
    explicit Showing(bool& flag) : flag_(flag), was_(flag) { flag_ = true; }
    ~Showing() { flag_ = was_; }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

private:
    bool& flag_;
    bool was_;
};

void setItemData(QTableWidgetItem& item, int role, const QVariant& value) {
    if (item.data(role) != value) item.setData(role, value);
}

// A tick mark shows its box alone: the model's "1" or "0" is the box's state, not a text.
void showCell(QTableWidgetItem& item, const Cell& cell, Qt::ItemFlags flags, bool checkable, bool tickMark) {
    const QString text = tickMark ? QString() : qs(cell.text);
    if (item.text() != text) item.setText(text);
    if (item.flags() != flags) item.setFlags(flags);
    setItemData(item, Qt::ForegroundRole, brush(cell.fore));
    setItemData(item, Qt::BackgroundRole, brush(cell.back));
    // A box shows only once it has a state: an unticked one is set too.
    const bool ticked = tickMark ? cell.text == "1" : cell.checked;
    const Qt::CheckState state = ticked ? Qt::Checked : Qt::Unchecked;
    if ((checkable || tickMark) && (!item.data(Qt::CheckStateRole).isValid() || item.checkState() != state))
        item.setCheckState(state);
}

void showCombo(QComboBox& combo, const Control& control) {
    QStringList items;
    for (const std::string& item : control.items)
        items << qs(item);
    QStringList shown;
    for (int i = 0; i < combo.count(); ++i)
        shown << combo.itemText(i);
    if (items != shown) {
        combo.clear();
        combo.addItems(items);
    }
    const QString text = qs(control.text);
    if (combo.isEditable()) {
        if (combo.currentText() != text) combo.setEditText(text);
    } else {
        combo.setCurrentIndex(combo.findText(text));
    }
}

// An Alt key is offered as a shortcut (ShortcutOverride) before it is pressed. The screen
// takes it at the offer; the press that follows, known by its time stamp, is swallowed.
struct AltKey {
    ulong stamp = 0;
    int key = 0;
};
std::optional<AltKey> altKeyMark;

bool altKeySeen(const QKeyEvent& key) {
    return altKeyMark && altKeyMark->stamp == key.timestamp() && altKeyMark->key == key.key();
}

// Whether a press is that of a key the screen took at its offer; the mark goes with it.
bool altKeyDone(const QKeyEvent& key) {
    if (!altKeySeen(key)) return false;
    altKeyMark.reset();
    return true;
}

// Grid widths count characters, as the desk's grids do; a digit's width, so that a figure of
// that many characters fits.
int columnPixels(const QTableWidget& table, double width) {
    return static_cast<int>(width * table.fontMetrics().horizontalAdvance(QLatin1Char('0'))) + 8;
}

// A caption for a label: an "&" before a blank marks no letter (Alt+Space is the window's own
// menu), so it stands as written, "S Duty On F & O", not as an underlined gap.
QString labelCaption(const QString& text) {
    QString shown;
    for (qsizetype i = 0; i < text.size(); ++i) {
        shown += text[i];
        if (text[i] != QLatin1Char('&') || i + 1 == text.size()) continue;
        if (text[i + 1] == QLatin1Char('&'))
            shown += text[++i]; // "&&" is already a written "&"
        else if (text[i + 1] == QLatin1Char(' '))
            shown += QLatin1Char('&');
    }
    return shown;
}

} // namespace

FormBinder::FormBinder(Form& form, QWidget& root) : QObject(&root), form_(form), root_(root) {
    const std::vector<std::string> gridNames = form.gridNames();
    for (QObject* child : root.findChildren<QObject*>()) {
        const std::string name = child->objectName().toStdString();
        if (name.empty()) continue;
        auto* table = qobject_cast<QTableWidget*>(child);
        if (table && std::find(gridNames.begin(), gridNames.end(), name) != gridNames.end())
            bindGrid(name, *table);
        else if (form.hasControl(name) && (child->isWidgetType() || qobject_cast<QAction*>(child)))
            bindControl(name, *child);
    }
    setTabOrder();
    // Alt keys from a part of the view the binder does not know still reach the screen.
    root.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusIn(now); });
}

void FormBinder::bindControl(const std::string& name, QObject& object) {
    controls_[name] = &object;
    names_[&object] = name;
    const auto click = [this, name] { act([&] { form_.fire(name, EventType::Click); }); };
    if (auto* action = qobject_cast<QAction*>(&object)) {
        connect(action, &QAction::triggered, this, click);
        return;
    }
    object.installEventFilter(this);
    if (auto* edit = qobject_cast<QLineEdit*>(&object);
        edit && form_.control(name).kind == ControlKind::DatePicker) {
        // A date reaches the model whole, when the dealer is done with it, never as half a date.
        dateFields_.insert(name);
        addCalendar(*edit, [this, name] { commitDate(name, false); });
    } else if (edit) {
        connect(edit, &QLineEdit::textEdited, this, [this, name](const QString& text) {
            act([&] {
                mirrorSelection(name);
                form_.setText(name, text.toStdString());
            });
        });
    } else if (auto* radio = qobject_cast<QRadioButton*>(&object)) {
        // The model keeps the buttons of an array exclusive, and a chosen one stays chosen.
        radio->setAutoExclusive(false);
        connect(radio, &QRadioButton::clicked, this,
                [this, name] { act([&] { form_.setValue(name, true); }); });
    } else if (auto* check = qobject_cast<QCheckBox*>(&object)) {
        connect(check, &QCheckBox::clicked, this,
                [this, name](bool ticked) { act([&] { form_.setValue(name, ticked); }); });
    } else if (auto* button = qobject_cast<QAbstractButton*>(&object)) {
        // Enter clicks the focused button and no other: there is no default button.
        if (auto* push = qobject_cast<QPushButton*>(button)) push->setAutoDefault(false);
        connect(button, &QAbstractButton::clicked, this, click);
    } else if (auto* combo = qobject_cast<QComboBox*>(&object)) {
        connect(combo, &QComboBox::activated, this, [this, name, combo](int index) {
            act([&] {
                form_.setText(name, combo->itemText(index).toStdString());
                form_.fire(name, EventType::Click);
            });
        });
        if (QLineEdit* edit = combo->lineEdit())
            connect(edit, &QLineEdit::textEdited, this, [this, name](const QString& text) {
                act([&] { form_.setText(name, text.toStdString()); });
            });
    }
}

void FormBinder::bindGrid(const std::string& name, QTableWidget& table) {
    grids_[name] = {&table, {}};
    names_[&table] = name;
    table.installEventFilter(this);
    table.setItemDelegate(new GridDelegate(&table, [this, name] { enterAfterEdit(name); }));
    connect(&table, &QTableWidget::cellClicked, this,
            [this, name](int row, int col) { cellEvent(name, EventType::Click, row, col); });
    connect(&table, &QTableWidget::cellDoubleClicked, this,
            [this, name](int row, int col) { cellEvent(name, EventType::DblClick, row, col); });
    connect(&table, &QTableWidget::currentCellChanged, this,
            [this, name, &table](int row, int col, int before) {
                // The handlers read the active cell as the desk sees it.
                if (!attached_ || showing_) return;
                Grid& grid = form_.grid(name);
                grid.activeRow = row + 1;
                grid.activeCol = col + 1;
                // In a list view (not a grid), a row reached by the arrow keys is picked as a click picks it.
                if (table.property(kPickedByKeys).toBool() && row >= 0 && row != before &&
                    QApplication::mouseButtons() == Qt::NoButton)
                    cellEvent(name, EventType::Click, row, col);
            });
    connect(&table, &QTableWidget::itemChanged, this,
            [this, name](QTableWidgetItem* item) { cellEdited(name, *item); });
}

void FormBinder::setTabOrder() {
    QWidget* previous = nullptr;
    std::vector<QLabel*> waiting; // labels before their control
    for (const std::string& name : form_.controlOrder()) {
        QWidget* widget = widgetOf(name);
        if (auto* label = qobject_cast<QLabel*>(widget)) waiting.push_back(label);
        if (!widget || widget->focusPolicy() == Qt::NoFocus) continue;
        for (QLabel* label : waiting)
            label->setBuddy(widget);
        waiting.clear();
        if (previous) QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}

QWidget* FormBinder::widgetOf(const std::string& name) const {
    if (auto it = controls_.find(name); it != controls_.end()) return qobject_cast<QWidget*>(it->second);
    if (auto it = grids_.find(name); it != grids_.end()) return it->second.table;
    return nullptr;
}

void FormBinder::attach() {
    attached_ = true;
    form_.setListener(this);
    std::set<std::string> all{""};
    for (const auto& [name, object] : controls_)
        all.insert(name);
    for (const auto& [name, view] : grids_)
        all.insert(name);
    modelChanged(all);
}

void FormBinder::detach() {
    attached_ = false;
}

void FormBinder::modelChanged(const std::set<std::string>& names) {
    if (!attached_) return;
    Showing showing(showing_);
    for (const std::string& name : names) {
        if (controls_.count(name))
            showControl(name);
        else if (auto it = grids_.find(name); it != grids_.end())
            showGrid(name, it->second);
    }
    // The screen last: the focus may go to a field this very change made visible.
    if (names.count("")) showScreen();
}

void FormBinder::showScreen() {
    root_.setWindowTitle(qs(form_.caption()));
    QWidget* focus = widgetOf(form_.focused());
    if (focus && focus->isEnabled() && !focus->hasFocus()) focus->setFocus(Qt::OtherFocusReason);
}

void FormBinder::showControl(const std::string& name) {
    const Control& control = form_.control(name);
    QObject* object = controls_.at(name);
    const QString text = qs(control.text);
    if (auto* action = qobject_cast<QAction*>(object)) {
        action->setText(menuText(control.text));
        // A menu caption names its accelerator after a tab ("Cas&h Flow\tCtrl+Shift+F").
        if (const qsizetype tab = text.indexOf('\t'); tab >= 0)
            action->setShortcut(QKeySequence(text.mid(tab + 1)));
        action->setEnabled(control.enabled);
        action->setVisible(control.visible);
        return;
    }
    auto* widget = static_cast<QWidget*>(object);
    widget->setEnabled(control.enabled);
    if (widget->isHidden() == control.visible) widget->setVisible(control.visible);
    if (widget->toolTip() != qs(control.toolTip)) widget->setToolTip(qs(control.toolTip));
    if (control.kind == ControlKind::Picture) widget->update(); // a drawing surface shows what the model drew
    showFore(name, *widget, control.foreColor);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        showText(name, *edit, control);
    } else if (auto* label = qobject_cast<QLabel*>(widget)) {
        label->setText(labelCaption(text));
    } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        button->setText(text);
        if (button->isCheckable()) button->setChecked(control.value);
    } else if (auto* box = qobject_cast<QGroupBox*>(widget)) {
        box->setTitle(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        showCombo(*combo, control);
    }
}

void FormBinder::showText(const std::string& name, QLineEdit& edit, const Control& control) {
    edit.setReadOnly(control.locked);
    edit.setEchoMode(control.password ? QLineEdit::Password : QLineEdit::Normal);
    const QString text = qs(control.text);
    const bool newText = edit.text() != text;
    if (newText) edit.setText(text);
    // The selection is shown when the model set it (select-all on entry) or set the text; else
    // the caret stays where the user put it.
    const std::pair<int, int> selection{control.selStart, control.selLength};
    auto known = selectionKnown_.find(name);
    if (!newText && known != selectionKnown_.end() && known->second == selection) return;
    selectionKnown_[name] = selection;
    // A selection shows in the screen's focused field alone, as a text box hides its selection
    // without the focus: another field painted selected would read as a second place to type.
    if (control.selLength > 0 && form_.focused() == name)
        edit.setSelection(control.selStart, control.selLength);
    else
        edit.setCursorPosition(control.selStart);
}

void FormBinder::showFore(const std::string& name, QWidget& widget, const std::optional<Rgb>& fore) {
    auto [shown, first] = foreShown_.try_emplace(name, std::nullopt);
    if (!first && shown->second == fore) return;
    if (first && !fore) return;
    shown->second = fore;
    if (!fore) {
        widget.setPalette(QPalette()); // back to the palette it inherits
        return;
    }
    QPalette palette = widget.palette();
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, qcolor(*fore));
    widget.setPalette(palette);
}

void FormBinder::showGrid(const std::string& name, GridView& view) {
    const Grid& grid = form_.grid(name);
    QTableWidget& table = *view.table;
    // A sheet refresh rewrites a few thousand cells: one repaint at the end, items reused, and
    // only what changed set.
    const QSignalBlocker blocker(table);
    if (table.isHidden() == grid.visible) table.setVisible(grid.visible);
    table.setUpdatesEnabled(false);
    if (table.columnCount() != grid.maxCols()) table.setColumnCount(grid.maxCols());
    if (table.rowCount() != grid.maxRows()) table.setRowCount(grid.maxRows());
    view.widths.resize(static_cast<size_t>(grid.maxCols()), -1);
    for (int col = 1; col <= grid.maxCols(); ++col) {
        const GridColumn& column = grid.column(col);
        const int c = col - 1;
        QTableWidgetItem* head = table.horizontalHeaderItem(c);
        if (!head) table.setHorizontalHeaderItem(c, head = new QTableWidgetItem);
        if (head->text() != qs(column.heading)) {
            head->setText(qs(column.heading));
            head->setToolTip(head->text()); // a heading wider than its column reads whole on hover
        }
        if (table.isColumnHidden(c) != column.hidden) table.setColumnHidden(c, column.hidden);
        double& shownWidth = view.widths[static_cast<size_t>(c)];
        if (shownWidth != column.width) {
            shownWidth = column.width;
            // The check box takes its room in front of the text, not out of it.
            const int box =
                grid.checkBoxes && col == 1 ? table.style()->pixelMetric(QStyle::PM_IndicatorWidth) + 8 : 0;
            table.setColumnWidth(c, columnPixels(table, column.width) + box);
        }
    }
    for (int col = 1; col <= grid.maxCols(); ++col) {
        const bool checkable = grid.checkBoxes && col == 1;
        Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
        if (grid.column(col).editable) flags |= Qt::ItemIsEditable;
        if (checkable) flags |= Qt::ItemIsUserCheckable;
        for (int row = 1; row <= grid.maxRows(); ++row) {
            QTableWidgetItem* item = table.item(row - 1, col - 1);
            if (!item) table.setItem(row - 1, col - 1, item = new QTableWidgetItem);
            showCell(*item, grid.cell(row, col), flags, checkable, grid.column(col).tickMark);
        }
    }
    if (grid.backColor && table.palette().color(QPalette::Base) != qcolor(*grid.backColor)) {
        QPalette palette = table.palette();
        palette.setColor(QPalette::Base, qcolor(*grid.backColor));
        table.setPalette(palette);
    }
    const bool activeInGrid = grid.activeRow >= 1 && grid.activeRow <= grid.maxRows() &&
                              grid.activeCol >= 1 && grid.activeCol <= grid.maxCols();
    if (activeInGrid &&
        (table.currentRow() != grid.activeRow - 1 || table.currentColumn() != grid.activeCol - 1))
        table.setCurrentCell(grid.activeRow - 1, grid.activeCol - 1);
    table.setUpdatesEnabled(true);
}

void FormBinder::act(const std::function<void()>& action) {
    if (attached_ && !showing_) dispatch(form_, action);
}

void FormBinder::mirrorSelection(const std::string& name) {
    auto* edit = qobject_cast<QLineEdit*>(controls_.at(name));
    if (!edit) return;
    Control& control = form_.control(name);
    control.selStart = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    control.selLength = static_cast<int>(edit->selectedText().size());
    selectionKnown_[name] = {control.selStart, control.selLength};
}

void FormBinder::focusIn(QWidget* now) {
    if (!attached_ || showing_ || !now) return;
    auto it = names_.find(now);
    if (it == names_.end() || form_.focused() == it->second) return;
    const std::string name = it->second;
    act([&] {
        if (controls_.count(name)) mirrorSelection(name);
        form_.moveFocus(name);
    });
}

bool FormBinder::eventFilter(QObject* watched, QEvent* event) {
    if (!attached_ || reinjecting_) return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return altKey(watched, *static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
        entered(watched, static_cast<QFocusEvent*>(event)->reason());
        return false;
    case QEvent::MouseButtonPress:
        // The click that entered a field would put the caret where it landed.
        if (watched != mouseEntered_) return false;
        mouseEntered_ = nullptr;
        return true;
    case QEvent::FocusOut:
        if (auto it = names_.find(watched); it != names_.end() && dateFields_.count(it->second))
            commitDate(it->second, true);
        return false;
    case QEvent::KeyPress:
        break;
    default:
        return false;
    }
    auto& key = *static_cast<QKeyEvent*>(event);
    if (altKeyDone(key)) return true;
    auto it = names_.find(watched);
    if (it == names_.end()) return false;
    auto* table = qobject_cast<QTableWidget*>(watched);
    // An Enter the cell's editor let through comes back once the editor has committed the cell.
    const QWidget* typing = QApplication::focusWidget();
    if (table && typing && typing != table && table->isAncestorOf(typing))
        return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return keyPressed(it->second, *static_cast<QWidget*>(watched), key);
}

bool FormBinder::altKey(QObject* watched, QKeyEvent& key) {
    const bool alt =
        key.modifiers().testFlag(Qt::AltModifier) && !key.modifiers().testFlag(Qt::ControlModifier);
    const bool letter = (key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z) ||
                        (key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9);
    if (!alt || !letter || altKeySeen(key)) return false;
    // Alt and a letter belong to the screen first: its key handlers, then the access letters of
    // its buttons and labels, then the menus of its window. Never to a button of another screen
    // of the frame, which Qt's own shortcuts would reach.
    auto it = names_.find(watched);
    const std::string name = it != names_.end()        ? it->second
                             : form_.focused().empty() ? "Form"
                                                       : form_.focused();
    Event down{EventType::KeyDown};
    down.keyCode = deskKeyCode(key);
    down.shift = deskShift(key.modifiers());
    act([&] {
        if (controls_.count(name)) mirrorSelection(name);
        down = form_.fire(name, down);
    });
    if (down.keyCode != 0 && attached_ && !pressAccessKey(root_, key.key()))
        openMenuOfKey(*root_.window(), key.key());
    altKeyMark = AltKey{key.timestamp(), key.key()};
    key.accept();
    return true;
}

void FormBinder::entered(QObject* watched, Qt::FocusReason reason) {
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (!edit || !names_.count(watched) || reason == Qt::ActiveWindowFocusReason ||
        reason == Qt::PopupFocusReason)
        return;
    // Entering a field selects its whole text, so that what is typed replaces it.
    edit->selectAll();
    mouseEntered_ = reason == Qt::MouseFocusReason ? edit : nullptr;
}

bool FormBinder::commitDate(const std::string& name, bool leaving) {
    auto* edit = qobject_cast<QLineEdit*>(controls_.at(name));
    const QString held = qs(form_.control(name).text);
    if (refusingDate_ || edit->text() == held) return true;
    if (const std::optional<QString> date = screenDate(edit->text())) {
        edit->setText(*date);
        act([&] { form_.setText(name, date->toStdString()); });
        return true;
    }
    edit->setText(held);
    const auto refuse = [this, edit = QPointer<QLineEdit>(edit)] {
        refusingDate_ = true;
        form_.ui().msgBox({kDeskDateForms, "Entry Error", MsgButtons::Ok, MsgIcon::Critical});
        refusingDate_ = false;
        if (edit && attached_) edit->setFocus(Qt::OtherFocusReason);
    };
    // Leaving the field, the box waits until the focus has moved, then brings it back.
    if (leaving)
        QTimer::singleShot(0, this, refuse);
    else
        refuse();
    return false;
}

bool FormBinder::toggleCheck(QTableWidget& table) {
    // The row's box, whichever of its cells is current.
    QTableWidgetItem* box = table.item(table.currentRow(), 0);
    if (!box || !box->flags().testFlag(Qt::ItemIsUserCheckable)) return false;
    box->setCheckState(box->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    return true;
}

void FormBinder::enterAfterEdit(const std::string& name) {
    auto it = grids_.find(name);
    if (it == grids_.end() || !attached_) return;
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    keyPressed(name, *it->second.table, enter);
}

bool FormBinder::keyPressed(const std::string& name, QWidget& widget, QKeyEvent& key) {
    const QPointer<QWidget> alive(&widget);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (enter && dateFields_.count(name) && !commitDate(name, false)) return true;
    // Enter on a list view acts on the row the dealer sees chosen, though no key moved to it.
    if (auto* list = qobject_cast<QTableWidget*>(&widget);
        enter && list && list->property(kPickedByKeys).toBool() && list->currentRow() >= 0)
        cellEvent(name, EventType::Click, list->currentRow(), list->currentColumn());
    if (!alive) return true;
    Event down{EventType::KeyDown};
    down.keyCode = deskKeyCode(key);
    down.shift = deskShift(key.modifiers());
    if (down.keyCode != 0) {
        act([&] {
            if (controls_.count(name)) mirrorSelection(name);
            down = form_.fire(name, down);
        });
        if (down.keyCode == 0 || !alive) return true; // swallowed by the handler, or the screen went
    }
    Event press{EventType::KeyPress};
    press.keyAscii = deskKeyAscii(key);
    if (press.keyAscii != 0) {
        const int typed = press.keyAscii;
        act([&] { press = form_.fire(name, press); });
        if (press.keyAscii == 0 || !alive) return true;
        if (press.keyAscii != typed) {
            // The handler typed another character (capitals, say): that one goes to the widget.
            QKeyEvent changed(QEvent::KeyPress, key.key(), key.modifiers(), QString(QChar(press.keyAscii)),
                              key.isAutoRepeat());
            reinjecting_ = true;
            QCoreApplication::sendEvent(alive, &changed);
            reinjecting_ = false;
            return true;
        }
    }
    if (auto* table = qobject_cast<QTableWidget*>(&widget); table && key.key() == Qt::Key_Space) {
        if (toggleCheck(*table)) return true;
        // Space on a tick mark turns it over as the mouse's click does.
        const int row = table->currentRow(), col = table->currentColumn();
        if (row >= 0 && col >= 0 && form_.grid(name).column(col + 1).tickMark) {
            cellEvent(name, EventType::Click, row, col);
            return true;
        }
    }
    if (auto* button = qobject_cast<QPushButton*>(&widget); button && enter) {
        button->click();
        return true;
    }
    // Esc that the screen's handlers left alone closes a screen of the frame as its close box
    // does (the model may still refuse): a desk expects it of every window, and most screens
    // give Esc no work of their own. The frame and the login are left to their own keys.
    if (key.key() == Qt::Key_Escape && form_.visible() && &root_ != root_.window())
        act([this] { form_.requestClose(); });
    // Enter and Esc belong to the screen's handlers; left to Qt they would press a dialog's
    // default button or close it.
    return enter || key.key() == Qt::Key_Escape;
}

void FormBinder::cellEvent(const std::string& name, EventType type, int row, int col) {
    act([&] {
        Grid& grid = form_.grid(name);
        grid.activeRow = row + 1;
        grid.activeCol = col + 1;
        Event event{type};
        event.row = row + 1;
        event.col = col + 1;
        form_.fire(name, event);
    });
}

void FormBinder::cellEdited(const std::string& name, const QTableWidgetItem& item) {
    if (!attached_ || showing_) return;
    // Read it all now: the model's answer may drop the item.
    const int row = item.row() + 1, col = item.column() + 1;
    const std::string text = item.text().toStdString();
    const bool checkable = item.flags().testFlag(Qt::ItemIsUserCheckable);
    const bool ticked = item.checkState() == Qt::Checked;
    act([&] {
        Grid& grid = form_.grid(name);
        if (checkable && grid.checked(row) != ticked) grid.setChecked(row, ticked);
        if (grid.text(row, col) != text) {
            grid.setText(row, col, text);
            Event change{EventType::Change};
            change.row = row;
            change.col = col;
            form_.fire(name, change);
        }
    });
}

} // namespace tallimark
