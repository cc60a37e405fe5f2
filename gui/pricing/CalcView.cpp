#include "pricing/CalcView.h"

#include "frame/Named.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <string>

namespace tallimark {

namespace {

QLineEdit* figure(const char* name) {
    auto* field = named<QLineEdit>(name);
    field->setMinimumWidth(90);
    // Every field of the calculator holds a figure: it lines up on its last digit.
    field->setAlignment(Qt::AlignRight);
    return field;
}

QGroupBox* inputs() {
    auto* group = new QGroupBox;
    auto* grid = new QGridLayout(group);
    const char* const fields[] = {"Text1", "Text2", "Text3", "Text4", "Text5"};
    for (int row = 0; row < 5; ++row) {
        grid->addWidget(named<QLabel>((std::string("Label_") + fields[row]).c_str()), row, 0);
        grid->addWidget(figure(fields[row]), row, 1);
    }
    return group;
}

QGroupBox* outputs() {
    auto* group = new QGroupBox;
    auto* grid = new QGridLayout(group);
    grid->addWidget(new QLabel(QStringLiteral("Call")), 0, 1, Qt::AlignCenter);
    grid->addWidget(new QLabel(QStringLiteral("Put")), 0, 2, Qt::AlignCenter);
    // Row label, call figure, put figure; a single figure spans both columns.
    const char* const rows[][3] = {{"Label_price", "Text6", "Text7"},   {"Label_delta", "Text8", "Text9"},
                                   {"Label_theta", "Text10", "Text11"}, {"Label_rho", "Text13", "Text14"},
                                   {"Label_vega", "Text12", nullptr},   {"Label_gama", "Text15", nullptr}};
    for (int i = 0; i < 6; ++i) {
        const int row = i + 1;
        grid->addWidget(named<QLabel>(rows[i][0]), row, 0);
        if (rows[i][2]) {
            grid->addWidget(figure(rows[i][1]), row, 1);
            grid->addWidget(figure(rows[i][2]), row, 2);
        } else {
            grid->addWidget(figure(rows[i][1]), row, 1, 1, 2);
        }
    }
    return group;
}

} // namespace

CalcView::CalcView() {
    auto* left = new QVBoxLayout;
    left->addWidget(inputs());
    left->addWidget(named<QPushButton>("Command1"));
    left->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(left);
    layout->addWidget(outputs());
}

} // namespace tallimark
