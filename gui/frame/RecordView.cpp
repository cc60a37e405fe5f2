#include "frame/RecordView.h"

#include "frame/Named.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tallimark {

namespace {
int nextRow(const QGridLayout& grid) {
    return grid.count() == 0 ? 0 : grid.rowCount();
}
} // namespace

RecordView::RecordView(const std::string& buttonArray) : fields_(new QGridLayout) {
    auto* buttons = new QHBoxLayout;
    for (int i = 0; i < 7; ++i)
        buttons->addWidget(named<QPushButton>((buttonArray + "(" + std::to_string(i) + ")").c_str()));
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(fields_);
    layout->addLayout(buttons);
}

int RecordView::addRow(QGridLayout& grid, const std::string& field) {
    const int row = nextRow(grid);
    auto* edit = named<QLineEdit>(field.c_str());
    edit->setMinimumWidth(160);
    grid.addWidget(named<QLabel>(("Lbl" + field.substr(3)).c_str()), row, 0);
    grid.addWidget(edit, row, 1);
    return row;
}

QGridLayout& RecordView::group(const char* frame) {
    auto* box = named<QGroupBox>(frame);
    auto* grid = new QGridLayout(box);
    fields_->addWidget(box, nextRow(*fields_), 0, 1, 3);
    return *grid;
}

} // namespace tallimark
