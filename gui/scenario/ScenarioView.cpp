#include "scenario/ScenarioView.h"

#include "frame/Canvas.h"
#include "frame/Form.h"
#include "frame/Named.h"
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

#include <set>
#include <string>

namespace tallimark {

namespace {

constexpr int kFieldsPerLine = 6;

bool isCaption(const std::string& name) {
    return name.rfind("Label_", 0) == 0;
}

// The two-contract comparison's figures as the desk reads them: a line for each sheet and one for
// their total, a column for each figure under its caption.
struct ComparisonColumn {
    const char* heading; // the model's label that heads the column, or the caption itself
    const char* stem;    // the fields are stem + "1", stem + "2" and, where there is one, stem + "Tot"
    bool total;
};
const ComparisonColumn kComparison[] = {
    {"Label_txtDays1", "txtDays", false},   {"Label_TxtVolaC1", "TxtVolaC", false},
    {"Label_TxtVolaP1", "TxtVolaP", false}, {"Label_Delta", "TxtDelVal", true},
    {"Label_Gamma", "TxtGamVal", true},     {"Label_Vega", "TxtVegaVal", true},
    {"Label_Theta", "TxtTheVal", true},     {"Delta Contracts", "TxtDelCon", true},
    {"Gamma Contracts", "TxtGamCon", true}, {"Delta Neutral", "txtdeltaneutral", false},
};
const char* const kComparisonRows[] = {"Label_First", "Label_Second", "Label_Total"};

QLabel* caption(Form& form, const char* name) {
    if (form.hasControl(name)) return named<QLabel>(name);
    return new QLabel(QString::fromLatin1(name));
}

// Empty when the screen is not the comparison; the names it places are added to placed.
QGridLayout* comparison(Form& form, std::set<std::string>& placed) {
    if (!form.hasControl("Label_First")) return nullptr;
    auto* grid = new QGridLayout;
    for (int r = 0; r < 3; ++r)
        grid->addWidget(caption(form, kComparisonRows[r]), r + 1, 0);
    for (int c = 0; c < static_cast<int>(std::size(kComparison)); ++c) {
        const ComparisonColumn& column = kComparison[c];
        grid->addWidget(caption(form, column.heading), 0, c + 1, Qt::AlignCenter);
        for (int r = 0; r < 3; ++r) {
            // The total of the delta-neutral figures has a name of its own.
            std::string name = std::string(column.stem) + (r == 2 ? "Tot" : std::to_string(r + 1));
            if (r == 2 && !column.total) {
                if (std::string(column.stem) != "txtdeltaneutral") continue;
                name = "txtdelneutral";
            }
            auto* edit = named<QLineEdit>(name.c_str());
            edit->setFixedWidth(96);
            grid->addWidget(edit, r + 1, c + 1);
            placed.insert(name);
            placed.insert("Label_" + name);
        }
    }
    return grid;
}

// Every text box not placed yet with the caption the model gives it, so many to a line.
QGridLayout* fields(Form& form, const std::set<std::string>& placed) {
    auto* grid = new QGridLayout;
    int at = 0;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name) || form.control(name).kind != ControlKind::TextBox) continue;
        if (placed.count(name)) continue;
        const std::string caption = "Label_" + name;
        const int line = at / kFieldsPerLine, col = (at % kFieldsPerLine) * 2;
        grid->addWidget(form.hasControl(caption) ? named<QLabel>(caption.c_str())
                                                 : new QLabel(QString::fromStdString(name)),
                        line, col, Qt::AlignRight);
        auto* edit = named<QLineEdit>(name.c_str());
        edit->setFixedWidth(96);
        grid->addWidget(edit, line, col + 1);
        ++at;
    }
    return grid;
}

// The simulation's column names over its table's columns, each date under the column it dates;
// empty for the other screens.
QGridLayout* columnHeads(Form& form, std::set<std::string>& placed) {
    if (!form.hasControl("lblIntrinsic")) return nullptr;
    auto* grid = new QGridLayout;
    const char* const heads[2][3] = {{"Label1", "Label2", "Label3"},
                                     {nullptr, "lblIntrinsic", "lblSimulation"}};
    for (int r = 0; r < 2; ++r)
        for (int c = 0; c < 3; ++c)
            if (const char* name = heads[r][c]) {
                grid->addWidget(named<QLabel>(name), r, c, Qt::AlignCenter);
                placed.insert(name);
            }
    for (int c = 0; c < 3; ++c)
        grid->setColumnStretch(c, 1);
    return grid;
}

// The labels that are no field's caption and not placed yet, then the options and buttons.
QHBoxLayout* row(Form& form, bool labels, const std::set<std::string>& placed = {}) {
    auto* line = new QHBoxLayout;
    for (const std::string& name : form.controlOrder()) {
        if (!form.hasControl(name) || placed.count(name)) continue;
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
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setMinimumSize(120 * 3, 300);
    return table;
}

} // namespace

ScenarioView::ScenarioView(Form& form) {
    auto* layout = new QVBoxLayout(this);
    // The window opens large enough for all it holds.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    std::set<std::string> placed;
    QGridLayout* figures = comparison(form, placed);
    layout->addLayout(fields(form, placed));
    if (figures) layout->addLayout(figures);
    QGridLayout* heads = columnHeads(form, placed);
    layout->addLayout(row(form, true, placed));
    layout->addLayout(row(form, false));
    if (heads) layout->addLayout(heads);
    auto* body = new QHBoxLayout;
    if (auto* screen = dynamic_cast<PictureScreen*>(&form))
        for (const std::string& name : form.controlOrder())
            if (form.hasControl(name) && form.control(name).kind == ControlKind::Picture)
                body->addWidget(new PictureBox(form, *screen, name.c_str()), 0, Qt::AlignTop);
    if (figures) {
        // The comparison's three tables stand one above the other beside its graph, each named, so
        // the window keeps to a desk's screen with the graph shown.
        const char* const titles[] = {"First sheet", "Both sheets", "Second sheet"};
        auto* tables = new QVBoxLayout;
        const std::vector<std::string> names = form.gridNames();
        for (size_t i = 0; i < names.size(); ++i) {
            tables->addWidget(new QLabel(i < std::size(titles) ? titles[i] : ""));
            QTableWidget* table = list(names[i]);
            table->setFixedHeight(130);
            tables->addWidget(table);
        }
        body->addLayout(tables);
    } else {
        for (const std::string& name : form.gridNames())
            body->addWidget(list(name));
    }
    layout->addLayout(body);
}

} // namespace tallimark
