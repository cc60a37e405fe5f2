#pragma once
// The cash flow of the sheets ticked on the main screen: their stored Closing rows added up by
// date into a running balance, printed through the work table ExpTemp.
#include "frame/Form.h"

namespace tallimark {

class FrmCashFlow : public Form {
public:
    static constexpr const char* kName = "FrmCashFlow";
    explicit FrmCashFlow(App& app);

    void DoInit();
    void PrintRecords();
    void InsertRecords();
};

} // namespace tallimark
