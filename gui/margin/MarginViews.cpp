#include "margin/MarginViews.h"

#include "frame/ButtonRow.h"
#include "frame/Named.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace tallimark {

namespace {

// "Select Folder:", the path the file goes to or comes from, and "..." to choose another.
void addFileRow(QGridLayout& grid) {
    auto* path = named<QLabel>("LblFolder_Name");
    path->setFrameShape(QFrame::StyledPanel);
    path->setMinimumWidth(420);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    grid.addWidget(named<QLabel>("Label1"), 0, 0);
    grid.addWidget(path, 0, 1);
    grid.addWidget(named<QPushButton>("CmdSelect"), 0, 2);
}

} // namespace

CreatePonView::CreatePonView() {
    auto* grid = new QGridLayout;
    addFileRow(*grid);
    grid->addWidget(named<QLabel>("Label2"), 1, 0);
    auto* date = named<QLineEdit>("DTPDate");
    date->setMaximumWidth(120);
    grid->addWidget(date, 1, 1, Qt::AlignLeft);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(grid);
    layout->addLayout(buttonRow({"CmdPon_File", "CmdClose", "Command1"}));
}

SpanLoadView::SpanLoadView() {
    auto* grid = new QGridLayout;
    addFileRow(*grid);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(grid);
    layout->addLayout(buttonRow({"CmdSpn_File", "CmdClose", "Command1"}));
}

} // namespace tallimark
