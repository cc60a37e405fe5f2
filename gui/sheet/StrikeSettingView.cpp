#include "sheet/StrikeSettingView.h"

#include "frame/ButtonRow.h"
#include "frame/Named.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tallimark {

StrikeSettingView::StrikeSettingView() {
    auto* counts = new QFormLayout;
    counts->addRow(named<QLabel>("Label1"), named<QLineEdit>("TxtAbove"));
    counts->addRow(named<QLabel>("Label2"), named<QLineEdit>("TxtBelowe"));
    QHBoxLayout* buttons = buttonRow({"Command1", "Command2"});
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(counts);
    layout->addLayout(buttons);
}

} // namespace tallimark
