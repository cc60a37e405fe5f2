#include "tracker/TrailView.h"

#include "frame/ButtonRow.h"
#include "frame/Named.h"
#include "frame/SpareWidth.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tallimark {

TradeTrackerView::TradeTrackerView() {
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    for (const char* name : {"Option1(0)", "Option1(1)", "Option1(2)"})
        layout->addWidget(named<QRadioButton>(name));
    layout->addLayout(buttonRow({"Cmd(0)", "Cmd(1)"}));
}

TrailView::TrailView() {
    auto* table = named<QTableWidget>("va1");
    table->setMinimumSize(560, 240);
    // The room beside the columns goes to all of them, so that the trade's date shows whole.
    spreadSpareWidth(*table);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addLayout(buttonRow({"Command1", "Command3", "Command2"}));
}

} // namespace tallimark
