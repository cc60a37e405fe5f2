#include "admin/MainScreenView.h"

#include "frame/FormBinder.h"
#include "frame/Named.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tallimark {

MainScreenView::MainScreenView() {
    // A list, not a sheet: whole rows are picked and nothing is typed into it.
    auto* list = named<QTableWidget>("ListView1");
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setProperty(kPickedByKeys, true);
    list->verticalHeader()->hide();
    list->horizontalHeader()->setStretchLastSection(true);
    list->setMinimumSize(640, 280);

    auto* buttons = new QHBoxLayout;
    for (const char* name :
         {"Cmd(1)", "Cmd(3)", "Command2", "Command3", "CmdTwoContract", "Command1", "Cmd(4)"})
        buttons->addWidget(named<QPushButton>(name));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list);
    layout->addLayout(buttons);
}

} // namespace tallimark
