#include "frame/Form.h"
#include "frame/Named.h"
#include "scenario/ScenarioView.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <string>

namespace tallimark {

namespace {

QLineEdit* figure(const std::string& name) {
    auto* edit = named<QLineEdit>(name.c_str());
    edit->setFixedWidth(96);
    edit->setAlignment(Qt::AlignRight);
    return edit;
}

// A model label, with its caption from the start so that the window is sized to it.
QLabel* caption(Form& form, const std::string& name) {
    auto* label = named<QLabel>(name.c_str());
    label->setText(QString::fromStdString(form.control(name).text));
    return label;
}

// Rows First, Second, Total; a column per input and per Greek, headed by the first sheet's
// caption of the field. The totals have no inputs. The contracts of delta and gamma are left
// off: nothing ever fills them.
QGridLayout* sheetsTable(Form& form) {
    auto* grid = new QGridLayout;
    const char* const columns[][2] = {{"txtDays", "Label_txtDays1"},   {"TxtVolaC", "Label_TxtVolaC1"},
                                      {"TxtVolaP", "Label_TxtVolaP1"}, {"TxtDelVal", "Label_Delta"},
                                      {"TxtGamVal", "Label_Gamma"},    {"TxtVegaVal", "Label_Vega"},
                                      {"TxtTheVal", "Label_Theta"}};
    const char* const rows[][2] = {{"1", "Label_First"}, {"2", "Label_Second"}, {"Tot", "Label_Total"}};
    for (int c = 0; c < 7; ++c)
        grid->addWidget(caption(form, columns[c][1]), 0, c + 1, Qt::AlignCenter);
    for (int r = 0; r < 3; ++r) {
        grid->addWidget(caption(form, rows[r][1]), r + 1, 0);
        for (int c = 0; c < 7; ++c)
            if (const std::string field = std::string(columns[c][0]) + rows[r][0]; form.hasControl(field))
                grid->addWidget(figure(field), r + 1, c + 1);
    }
    grid->setColumnStretch(8, 1); // the table stands at the left, its headings over its figures
    return grid;
}

QLayout* twoContractFields(Form& form) {
    auto* fields = new QVBoxLayout;
    auto* market = new QHBoxLayout;
    market->addWidget(caption(form, "Label_TxtMktPrice"));
    market->addWidget(figure("TxtMktPrice"));
    market->addStretch();
    fields->addLayout(market);
    fields->addLayout(sheetsTable(form));
    auto* sums = new QHBoxLayout;
    for (const char* field :
         {"txtdeltaneutral1", "txtdeltaneutral2", "txtdelneutral", "TxtPremium", "TxtBal"}) {
        sums->addWidget(caption(form, std::string("Label_") + field));
        sums->addWidget(figure(field));
    }
    sums->addStretch();
    fields->addLayout(sums);
    return fields;
}

} // namespace

TwoContractView::TwoContractView(Form& form) : ScenarioView(form, twoContractFields(form), Lists::Stacked) {}

} // namespace tallimark
