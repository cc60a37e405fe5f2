#include "sheet/SheetView.h"

#include "frame/Form.h"
#include "frame/Named.h"
#include "frame/SpareWidth.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace tallimark {

namespace {

using Names = std::vector<const char*>;

// Figures sit on a black ground as the ladder does, so that the red and cyan of a sign read well.
void darkFields(QWidget& box) {
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Text, Qt::white);
    box.setPalette(palette);
}

QLineEdit* figureField(const char* name, int width) {
    auto* edit = named<QLineEdit>(name);
    edit->setFixedWidth(width);
    // Figures line up on their last digit; the symbol and the dates read from the left.
    const std::string field = name;
    if (field != "TxtSymbol" && field != "TxtExpDt" && field != "TxtCurDt" && field != "DTPicker1")
        edit->setAlignment(Qt::AlignRight);
    return edit;
}

// The model's caption label of a field when it has one, else the given words; the lot size and
// the calendar have no label on the screen, and a field without a caption is a guess.
QLabel* caption(Form& form, const char* field, const char* otherwise) {
    const std::string label = std::string("Label_") + field;
    if (form.hasControl(label)) return named<QLabel>(label.c_str());
    const std::string name = field;
    if (!otherwise) otherwise = name == "TxtContract" ? "Lot" : name == "DTPicker1" ? "Date" : "";
    return new QLabel(QString::fromLatin1(otherwise));
}

// Caption and field pairs, so many to a line; the fields the sheet kind lacks are left out.
QGroupBox* pairs(Form& form, const char* title, const char* boxName, const Names& fields, int perLine) {
    auto* box = boxName ? named<QGroupBox>(boxName) : new QGroupBox(QString::fromLatin1(title));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(4, 2, 4, 2);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(1);
    int at = 0;
    for (const char* f : fields) {
        if (!form.hasControl(f)) continue;
        const int line = at / perLine, col = (at % perLine) * 2;
        grid->addWidget(caption(form, f, nullptr), line, col, Qt::AlignRight);
        // The calendar's button takes room of its own beside the date.
        grid->addWidget(figureField(f, std::string(f) == "DTPicker1" ? 96 : 74), line, col + 1);
        ++at;
    }
    darkFields(*box);
    return box;
}

// A table of fields: a heading per line, one per column from the first line's caption label.
QGroupBox* table(Form& form, const char* title, const Names& lineHeads, const std::vector<Names>& lines,
                 const Names& columnHeads, int width, const char* boxName = nullptr) {
    auto* box = boxName ? named<QGroupBox>(boxName) : new QGroupBox(QString::fromLatin1(title));
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(4, 2, 4, 2);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(1);
    for (size_t c = 0; c < columnHeads.size(); ++c)
        grid->addWidget(caption(form, lines[0][c], columnHeads[c]), 0, static_cast<int>(c) + 1,
                        Qt::AlignCenter);
    int line = 0;
    for (size_t l = 0; l < lines.size(); ++l) {
        bool any = false;
        for (size_t c = 0; c < lines[l].size(); ++c)
            if (form.hasControl(lines[l][c])) {
                grid->addWidget(figureField(lines[l][c], width), line + 1, static_cast<int>(c) + 1);
                any = true;
            }
        if (!any) continue;
        grid->addWidget(new QLabel(QString::fromLatin1(lineHeads[l])), ++line, 0);
    }
    darkFields(*box);
    return box;
}

QTableWidget* ladder() {
    auto* grid = named<QTableWidget>("va1");
    grid->verticalHeader()->hide();
    grid->verticalHeader()->setDefaultSectionSize(18);
    grid->horizontalHeader()->setMinimumSectionSize(20);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    // The columns as wide as the sheet sets them, the room left shared among them; a figure
    // wider than its column shows whole on hover.
    spreadSpareWidth(*grid);
    QFont font = grid->font();
    font.setPointSizeF(font.pointSizeF() - 1);
    grid->setFont(font);
    grid->setMinimumSize(600, 300);
    // The ladder's first row holds no strike: the desk's grid showed its headings there.
    QObject::connect(grid->model(), &QAbstractItemModel::rowsInserted, grid,
                     [grid] { grid->setRowHidden(0, true); });
    return grid;
}

} // namespace

SheetView::SheetView(Form& form) {
    auto* toolbar = new QHBoxLayout;
    for (int i = 1; form.hasControl("Toolbar1(" + std::to_string(i) + ")"); ++i) {
        auto* button = named<QPushButton>(("Toolbar1(" + std::to_string(i) + ")").c_str());
        button->setFocusPolicy(Qt::NoFocus); // a command leaves the focus where the dealer stood
        toolbar->addWidget(button);
    }
    if (form.hasControl("cmdExl")) toolbar->addWidget(named<QPushButton>("cmdExl"));
    toolbar->addStretch();

    QGroupBox* market = pairs(form, "Market", nullptr,
                              {"TxtSymbol", "TxtMktPrice", "TxtDays", "TxtImpVol", "TxtImpVolP", "TxtExpDt",
                               "TxtCurDt", "DTPicker1", "TxtNet", "TxtVol", "TxtAvgVol", "TxtKeyOff",
                               "TxtSpread", "TxtContract", "TxtMargin", "TxtEx_Magin"},
                              8);
    // Lots and price of the futures, of the cash, and of the futures left over the cash.
    QGroupBox* position = table(form, nullptr, {"Future", "Cash", "Net", "Basis"},
                                {{"TxtFutLots", "TxtFutTrade"},
                                 {"TxtCashLots", "TxtCashTrade"},
                                 {"TxtFut_trdNF", "TxtFut_trdAmt"},
                                 {"TxtBasis"}},
                                {"Lots", "Trade"}, 78, "FraPosition");
    QGroupBox* greeks = table(form, "Greeks", {"Delta", "Gamma", "Vega", "Theta"},
                              {{"TxtDelVal", "TxtDelCon", "TxtDelHed", "TxtDelPts"},
                               {"TxtGamVal", "TxtGamCon", "TxtGamHed", "TxtGamPts"},
                               {"TxtVegaVal", "TxtVegaConn", "TxtVegaHed", "TxtVegaPts"},
                               {"TxtTheVal", "TxtThetaCon", "TxtTheHed", "TxtThePts"}},
                              {"$ Value", "Contracts", "Hedge", "Points"}, 78);
    QGroupBox* results =
        table(form, "Results", {"Cash", "Future", "Option"},
              {{"TxtCashU", "TxtCashR"}, {"TxtFutU", "TxtFutR"}, {"TxtOptU", "TxtOptR"}}, {"(U)", "(R)"}, 78);
    QGroupBox* balance = table(form, "Balance", {"Premium", "Comm", "Equity", "Balance"},
                               {{"TxtPremium"}, {"TxtComm"}, {"TxtEquity"}, {"TxtBalance"}}, {""}, 96);
    QGroupBox* neutral = pairs(form, "Sheet", nullptr, {"TxtTotComm", "txtdelneutral"}, 1);

    // The figures beside the ladder in two columns, so that the whole sheet stands on a
    // 1366x768 screen without scrolling and the ladder takes the height that is left.
    auto* side = new QGridLayout;
    side->setSpacing(4);
    side->addWidget(greeks, 0, 0, 1, 2);
    if (form.hasControl("TxtTotDel"))
        side->addWidget(table(form, "Totals", {"Sheet", "Call", "Put"},
                              {{"TxtTotDel", "TxtTotGamma", "TxtTotVega", "TxtTotTheta"},
                               {"TxtCallDelta", "TxtCallGamma", "TxtCallVega", "TxtCallTheta"},
                               {"TxtPutDelta", "TxtPutGamma", "TxtPutVega", "TxtPutTheta"}},
                              {"Delta", "Gamma", "Vega", "Theta"}, 78),
                        1, 0, 1, 2);
    side->addWidget(position, 2, 0);
    side->addWidget(results, 2, 1);
    side->addWidget(balance, 3, 0);
    side->addWidget(neutral, 3, 1);
    side->setRowStretch(4, 1);

    auto* body = new QHBoxLayout;
    body->addWidget(ladder(), 1);
    body->addLayout(side);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addLayout(toolbar);
    layout->addWidget(market);
    layout->addLayout(body, 1);
    // Taller than most screens: the frame cuts it to the height it has, the ladder taking the rest.
    resize(1340, 1200);
}

} // namespace tallimark
