#include "reports/PrintOptionView.h"

#include "frame/ButtonRow.h"
#include "frame/Named.h"

#include <QCheckBox>
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

// One option array in its own frame, so that its buttons exclude only each other.
QGroupBox* options(const char* frame, const char* array, int count) {
    auto* box = named<QGroupBox>(frame);
    auto* column = new QVBoxLayout(box);
    for (int i = 0; i < count; ++i)
        column->addWidget(named<QRadioButton>((std::string(array) + "(" + std::to_string(i) + ")").c_str()));
    return box;
}

} // namespace

PrintOptionView::PrintOptionView() {
    auto* choices = new QHBoxLayout;
    choices->addWidget(options("Frame2", "Option2", 3));
    auto* depth = options("Frame1", "Option1", 2);
    depth->layout()->addWidget(named<QCheckBox>("Check1"));
    choices->addWidget(depth);
    auto* dates = new QGridLayout;
    dates->addWidget(named<QLabel>("Label1"), 0, 0);
    dates->addWidget(named<QLineEdit>("DTPicker1"), 0, 1);
    dates->addWidget(named<QLabel>("Label2"), 1, 0);
    dates->addWidget(named<QLineEdit>("DTPicker2"), 1, 1);
    QHBoxLayout* buttons = buttonRow({"Cmd(0)", "Cmd(1)"});
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(choices);
    layout->addLayout(dates);
    layout->addLayout(buttons);
}

} // namespace tallimark
