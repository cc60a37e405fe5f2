#include "scenario/ScenarioView.h"

#include "frame/Canvas.h"
#include "frame/Form.h"
#include "frame/Named.h"
#include "frame/SpareWidth.h"
#include "scenario/GraphScreen.h"
#include "scenario/PictureBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <string>

namespace tallimark {

namespace {

constexpr int kFieldsPerLine = 6;

bool isCaption(const std::string& name) {
    return name.rfind("Label_", 0) == 0;
}

// Every text box with the caption the model gives it, so many to a line.
QGridLayout* fields(Form& form) {
    auto* grid = new QGridLayout;
    int at = 0;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name) || form.control(name).kind != ControlKind::TextBox) continue;
        const std::string caption = "Label_" + name;
        const int line = at / kFieldsPerLine, col = (at % kFieldsPerLine) * 2;
        grid->addWidget(form.hasControl(caption) ? named<QLabel>(caption.c_str())
                                                 : new QLabel(QString::fromStdString(name)),
                        line, col, Qt::AlignRight);
        auto* edit = named<QLineEdit>(name.c_str());
        edit->setFixedWidth(96);
        // Figures line up on their last digit; the dates read from the left.
        if (name.find("Dt") == std::string::npos) edit->setAlignment(Qt::AlignRight);
        grid->addWidget(edit, line, col + 1);
        ++at;
    }
    return grid;
}

// The labels that are no field's caption, then the options and buttons.
QHBoxLayout* row(Form& form, bool labels) {
    auto* line = new QHBoxLayout;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name)) continue;
        const ControlKind kind = form.control(name).kind;
        if (labels && kind == ControlKind::Label && !isCaption(name))
            line->addWidget(named<QLabel>(name.c_str()));
        else if (!labels && kind == ControlKind::OptionButton)
            line->addWidget(named<QRadioButton>(name.c_str()));
        else if (!labels && kind == ControlKind::Button)
            line->addWidget(named<QPushButton>(name.c_str()));
    }
    line->addStretch();
    return line;
}

QTableWidget* list(const std::string& name) {
    auto* table = named<QTableWidget>(name.c_str());
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    table->setMinimumSize(120 * 3, 300);
    // The screen sizes itself to its contents: the list asks for its columns whole.
    spreadSpareWidth(*table, Widen::ToColumns);
    return table;
}

} // namespace

ScenarioView::ScenarioView(Form& form) : ScenarioView(form, fields(form), Lists::Beside) {}

ScenarioView::ScenarioView(Form& form, QLayout* fields, Lists lists) {
    auto* layout = new QVBoxLayout(this);
    // The window opens large enough for all it holds.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(fields);
    layout->addLayout(row(form, true));
    layout->addLayout(row(form, false));
    auto* body = new QHBoxLayout;
    if (auto* screen = dynamic_cast<PictureScreen*>(&form))
        for (const std::string& name : form.controlOrder())
            if (form.hasControl(name) && form.control(name).kind == ControlKind::Picture)
                body->addWidget(new PictureBox(form, *screen, name.c_str()), 0, Qt::AlignTop);
    QVBoxLayout* stack = lists == Lists::Stacked ? new QVBoxLayout : nullptr;
    for (const std::string& name : form.gridNames()) {
        QTableWidget* table = list(name);
        if (lists == Lists::Beside) {
            body->addWidget(table);
            continue;
        }
        // Dense rows, so that a sheet's few strikes show whole in a third of the graph's height.
        table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
        table->setFixedHeight(GraphScreen::kPictureHeight / 3 - 4);
        stack->addWidget(table);
    }
    if (stack) body->addLayout(stack);
    layout->addLayout(body);
}

} // namespace tallimark
