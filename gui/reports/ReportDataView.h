#pragma once
// The report data screen FrmReport: the full sheet summary, the call/put and futures/stock
// buttons and the date range.
#include <QWidget>

namespace tallimark {

class ReportDataView : public QWidget {
public:
    ReportDataView();
};

} // namespace tallimark
