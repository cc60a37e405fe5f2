#include "admin/NewSheetView.h"

#include "frame/Form.h"
#include "frame/Named.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
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
    case ControlKind::ComboBox: {
        auto* combo = named<QComboBox>(name);
        // The script list takes a typed name as well; the months are chosen from the list.
        combo->setEditable(control.name == "DataCombo1");
        combo->setMinimumWidth(160);
        return combo;
    }
    case ControlKind::Button:
        return named<QPushButton>(name);
    default: {
        // Text fields, and the expiry picker, which shows its date as the model writes it.
        auto* edit = named<QLineEdit>(name);
        edit->setMinimumWidth(160);
        return edit;
    }
    }
}

} // namespace

NewSheetView::NewSheetView(Form& form) {
    auto* type = named<QGroupBox>("Frame1");
    auto* typeRow = new QHBoxLayout(type);
    auto* fields = new QGridLayout;
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    // "Label_X" opens the row of X; the script's search button and list join its row.
    int row = -1;
    QHBoxLayout* cell = nullptr;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name)) continue;
        const Control& control = form.control(name);
        if (!control.visible || control.kind == ControlKind::Frame) continue;
        if (control.kind == ControlKind::OptionButton) {
            typeRow->addWidget(named<QRadioButton>(name.c_str()));
        } else if (name == "CmdOk" || name == "CmdCancel") {
            buttons->addWidget(named<QPushButton>(name.c_str()));
        } else if (name.rfind("Label_", 0) == 0) {
            fields->addWidget(named<QLabel>(name.c_str()), ++row, 0);
            cell = new QHBoxLayout;
            fields->addLayout(cell, row, 1);
        } else if (cell) {
            cell->addWidget(fieldWidget(control));
        }
    }
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(type);
    layout->addLayout(fields);
    layout->addLayout(buttons);
}

} // namespace tallimark
