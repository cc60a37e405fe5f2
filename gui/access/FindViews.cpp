#include "access/FindViews.h"

#include "frame/Named.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tallimark {

namespace {
// A list to pick a whole row from, not to edit.
QTableWidget* rowList(const char* name) {
    auto* table = named<QTableWidget>(name);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    // Names and codes are read whole: the columns take their longest entry.
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setMinimumSize(560, 300);
    return table;
}
} // namespace

SeekView::SeekView() {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(rowList("MSHFlexGrid1"));
}

SearchView::SearchView() {
    auto* top = new QHBoxLayout;
    top->addWidget(named<QComboBox>("Combo1"));
    top->addWidget(named<QLineEdit>("txt_search"), 1);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(named<QPushButton>("cmd_ok"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(rowList("DB1"));
    layout->addLayout(bottom);
}

} // namespace tallimark
