#pragma once
// The risk sheets' printing screen: one of six report runs for the current sheet, chosen by kind
// (call/put, futures/stock, full sheet), depth (summary, detailed) and "As On Date", each handed
// to the report layer with its selection formula and formula values.
#include "frame/Form.h"

namespace tallimark {

struct ReportRun;

class FrmPrintOption : public Form {
public:
    static constexpr const char* kName = "FrmPrintOption";
    explicit FrmPrintOption(App& app);

    void GetscriptNm();
    void PrintRecords1();
    void PrintRecords2();
    void PrintRecords3();
    void PrintRecords4();
    void PrintRecords5();
    void PrintRecords6();

    // Filled by GetscriptNm.
    std::string limit, firstGamma, secondGamma, lastGamma;

private:
    void Cmd_Click();
    // A date-range run of the trades, PrintRecords2 to PrintRecords5.
    void printTrades(const char* file, const char* connect, const char* rowFilter);
    // The report file beside the program.
    std::string reportFile(const char* name);
    // Names the sheet for the layouts' headings, in slots past the run's own formulas.
    void nameSheet(ReportRun& run);
    void trapped(int number, void (FrmPrintOption::*run)());
};

} // namespace tallimark
