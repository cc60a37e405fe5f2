#pragma once
// The report data screen: the current sheet's full summary, and its call/put and futures/stock
// trades over a date range, each gathered into a work table and shown as a banded report.
#include "frame/Form.h"

namespace tallimark {

class FrmReport : public Form {
public:
    static constexpr const char* kName = "FrmReport";
    explicit FrmReport(App& app);

    void Report();

private:
    // Empties a work table, fills it by two inserts (calls then puts, or futures then stock) and
    // shows its report with the sheet and the range in the head.
    void fillAndShow(const char* table, const char* columns1, const char* columns2, const char* select,
                     const char* tail, const char* filter1, const char* filter2, const char* report);
};

} // namespace tallimark
