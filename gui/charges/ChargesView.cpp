#include "charges/ChargesView.h"

#include <QGridLayout>

namespace tallimark {

ChargesView::ChargesView() : RecordView("cmd") {
    addRow(fields(), "TxtTurnOverCh");
    QGridLayout& contract = group("FraContract");
    for (const char* field : {"TxtConch", "TxtConChP", "TxtConChF"})
        addRow(contract, field);
    for (const char* field : {"TxtDPRate", "TxtStkInt", "TxtOthers", "TxtStDuty", "TxtMtmChg"})
        addRow(fields(), field);
}

} // namespace tallimark
