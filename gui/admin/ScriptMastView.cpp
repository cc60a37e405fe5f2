#include "admin/ScriptMastView.h"

#include "frame/Named.h"

#include <QGridLayout>
#include <QLabel>

namespace tallimark {

ScriptMastView::ScriptMastView() : RecordView("Cmd") {
    for (const char* field : {"TxtSptCode", "TxtSptName", "TxtDesc", "TxtRate"})
        addRow(fields(), field);
    const int limit = addRow(fields(), "TxtExpLimit");
    fields().addWidget(named<QLabel>("LblCrores"), limit, 2);
    QGridLayout& gamma = group("FraGamma");
    addRow(gamma, "TxtFWeek");
    addRow(gamma, "TxtLastWeek");
    addRow(fields(), "TxtContract");
    addRow(fields(), "TxtEx_Margin");
}

} // namespace tallimark
