#include "charges/DayChargesViews.h"

#include "frame/ButtonRow.h"
#include "frame/Form.h"
#include "frame/Named.h"
#include "frame/SpareWidth.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QVBoxLayout>

#include <initializer_list>
#include <string>

namespace tallimark {

namespace {

// A label with the model's caption from the start: the window is sized before the binder
// shows the texts, and an empty label would leave the captions cut.
QLabel* caption(Form& form, const std::string& name) {
    auto* label = named<QLabel>(name.c_str());
    label->setText(QString::fromStdString(form.control(name).text));
    return label;
}

// A framed column of "label, field" rows for the fields the model has; a field without a label
// of its own stands beside the one before it.
QGroupBox* block(Form& form, const char* title, std::initializer_list<const char*> fields) {
    auto* box = new QGroupBox(QString::fromLatin1(title));
    auto* grid = new QGridLayout(box);
    int row = -1, col = 1;
    for (const char* f : fields) {
        if (!form.hasControl(f)) continue;
        const std::string label = std::string("Lbl") + (f + 3);
        if (form.hasControl(label) || row < 0) {
            ++row;
            col = 1;
            if (form.hasControl(label)) grid->addWidget(caption(form, label), row, 0);
        }
        auto* edit = named<QLineEdit>(f);
        edit->setAlignment(Qt::AlignRight);
        edit->setMinimumWidth(80);
        grid->addWidget(edit, row, col++);
    }
    return box;
}

QTableWidget* table(int cols) {
    auto* grid = named<QTableWidget>("va1");
    grid->setColumnCount(cols);
    grid->setMinimumHeight(180);
    // Every column whole when the screen opens: the cash flow's eleven were cut at 900 pixels.
    spreadSpareWidth(*grid, Widen::ToColumns);
    return grid;
}

QHBoxLayout* dateRow(const char* label) {
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(QString::fromLatin1(label)));
    auto* date = named<QLineEdit>("DTPicker1"); // the binder gives a date field its calendar
    // As wide as a date and its calendar button, not half the screen's width.
    date->setMaximumWidth(date->fontMetrics().horizontalAdvance(QStringLiteral("30-Nov-2026")) + 48);
    row->addWidget(date);
    row->addStretch();
    return row;
}

} // namespace

ChargesSheetView::ChargesSheetView(Form& form) {
    auto* page = new QVBoxLayout(this);
    page->addLayout(dateRow("Date"));
    auto* blocks = new QHBoxLayout;
    blocks->addWidget(
        block(form, "Sheet and rates",
              {"TxtMkt", "TxtSheetBal", "TxtClMtm", "TxtClStk", "TxtTOverChgs", "TxtConChgs", "TxtConChF",
               "TxtConChP", "TxtDPRate", "TxtIntRate", "TxtStDutyChgs", "TxtOtherChgs"}));
    blocks->addWidget(block(form, "Positions of the day",
                            {"TxtOpBal", "TxtOpBalInt", "TxtFut", "TxtFutTraded", "TxtPrevStk", "TxtPrevRate",
                             "TxtCash", "TxtCashTraded", "TxtTotConChgs", "TxtTotPremInt", "TxtFutConChgs",
                             "TxtCashTOver", "TxtFutureOptionCharges"}));
    blocks->addWidget(block(form, "Charges and balances",
                            {"TxtDpChgs", "TxtMrkInt", "TxtCashInt", "TxtSDutyOpt", "TxtSDutyFut",
                             "TxtStDutyDel", "TxtStDutyNDel", "TxtFutureOptionSDuty", "TxtStDuty",
                             "TxtTotalTurnCharges", "TxtTotExpense", "TxtTotal", "TxtNetBal"}));
    page->addLayout(blocks);
    page->addWidget(table(9));
    page->addLayout(buttonRow({"Cmd(0)", "Cmd(1)"}));
}

ClosingView::ClosingView(Form& form) {
    auto* page = new QVBoxLayout(this);
    auto* sheet = new QHBoxLayout;
    sheet->addWidget(caption(form, "LblSymbol"));
    sheet->addWidget(caption(form, "LblDesc"));
    sheet->addStretch();
    page->addLayout(sheet);
    page->addLayout(dateRow("Date"));
    page->addWidget(block(form, "Rates of the day",
                          {"TxtClMtm", "TxtClStk", "TxtTurnOverCh", "TxtConch", "TxtDpCh", "TxtStkInt",
                           "TxtMtmChg", "TxtConChF", "TxtConChP", "TxtOthers", "TxtStDuty"}));
    page->addLayout(buttonRow({"Command1"}));
}

CashFlowView::CashFlowView(Form&) {
    auto* page = new QVBoxLayout(this);
    page->addWidget(table(11));
    page->addLayout(buttonRow({"Cmd(0)"}));
    setMinimumWidth(900);
}

} // namespace tallimark
