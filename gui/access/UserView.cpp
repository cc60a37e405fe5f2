#include "access/UserView.h"

namespace tallimark {

UserView::UserView() : RecordView("Cmd") {
    for (const char* field : {"TxtUserCode", "TxtUserName", "TxtPwd"})
        addRow(fields(), field);
}

} // namespace tallimark
