#include "admin/MonthView.h"

#include "frame/Named.h"

#include <QTableWidget>
#include <QVBoxLayout>

namespace tallimark {

MonthView::MonthView() {
    auto* va1 = named<QTableWidget>("va1");
    va1->setMinimumSize(320, 300);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(va1);
}

} // namespace tallimark
