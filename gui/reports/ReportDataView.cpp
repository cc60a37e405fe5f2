#include "reports/ReportDataView.h"

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

QGroupBox* pair(const char* frame, const char* first, const char* second) {
    auto* box = named<QGroupBox>(frame);
    auto* row = new QHBoxLayout(box);
    row->addWidget(named<QPushButton>(first));
    row->addWidget(named<QPushButton>(second));
    return box;
}

} // namespace

ReportDataView::ReportDataView() {
    auto* dates = new QGridLayout;
    dates->addWidget(named<QLabel>("Label1"), 0, 0);
    dates->addWidget(named<QLineEdit>("DTPicker1"), 0, 1);
    dates->addWidget(named<QLabel>("Label2"), 1, 0);
    dates->addWidget(named<QLineEdit>("DTPicker2"), 1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(named<QPushButton>("Command1"));
    layout->addWidget(pair("Frame1", "Command2", "Command3"));
    layout->addWidget(pair("Frame2", "Command4", "Command5"));
    layout->addLayout(dates);
}

} // namespace tallimark
