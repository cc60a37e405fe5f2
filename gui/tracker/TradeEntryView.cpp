#include "tracker/TradeEntryView.h"

#include "frame/Form.h"
#include "frame/Named.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <string>

namespace tallimark {

namespace {

QWidget* fieldWidget(const Control& control) {
    const char* name = control.name.c_str();
    switch (control.kind) {
    case ControlKind::TextBox: {
        auto* edit = named<QLineEdit>(name);
        edit->setMinimumWidth(140);
        return edit;
    }
    case ControlKind::ComboBox:
        return named<QComboBox>(name); // a list: only its entries can be chosen
    case ControlKind::OptionButton:
        return named<QRadioButton>(name);
    default:
        return named<QLabel>(name);
    }
}

} // namespace

TradeEntryView::TradeEntryView(Form& form) {
    auto* fields = new QGridLayout;
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    // A caption label "Label_X" opens a row for X; option buttons without a label of their own
    // join the row of the one before them.
    int row = -1;
    QHBoxLayout* cell = nullptr;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name)) continue;
        const Control& control = form.control(name);
        if (control.kind == ControlKind::Button) {
            buttons->addWidget(named<QPushButton>(name.c_str()));
        } else if (name.rfind("Label_", 0) == 0) {
            fields->addWidget(named<QLabel>(name.c_str()), ++row, 0);
            cell = new QHBoxLayout;
            fields->addLayout(cell, row, 1);
        } else if (cell && (cell->isEmpty() || control.kind == ControlKind::OptionButton)) {
            cell->addWidget(fieldWidget(control));
        } else {
            cell = new QHBoxLayout;
            fields->addLayout(cell, ++row, 1);
            cell->addWidget(fieldWidget(control));
        }
    }
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(fields);
    layout->addLayout(buttons);
}

} // namespace tallimark
