#include "access/LoginView.h"

#include "frame/Named.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tallimark {

LoginView::LoginView() {
    auto* heading = named<QLabel>("lbl_heading");
    heading->setAlignment(Qt::AlignCenter);
    QFont font = heading->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.5);
    heading->setFont(font);

    auto* frame = named<QGroupBox>("Frame1");
    auto* fields = new QGridLayout(frame);
    const char* const rows[][2] = {{"lbl_user_name", "txt_user_name"},
                                   {"lbl_password", "txt_password"},
                                   {"lbl_new_user_name", "txt_new_user_name"},
                                   {"lbl_new_password", "txt_new_password"}};
    for (int row = 0; row < 4; ++row) {
        auto* field = named<QLineEdit>(rows[row][1]);
        field->setMinimumWidth(240);
        fields->addWidget(named<QLabel>(rows[row][0]), row, 0);
        fields->addWidget(field, row, 1);
    }

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(named<QPushButton>("cmdokcan(0)"));
    buttons->addWidget(named<QPushButton>("cmdokcan(1)"));
    buttons->addStretch();
    buttons->addWidget(named<QPushButton>("cmdchgpass"));

    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(heading);
    layout->addWidget(frame);
    layout->addLayout(buttons);
}

} // namespace tallimark
