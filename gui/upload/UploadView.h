#pragma once
// FrmUpload and FrmUploadFut: the sheet's symbol, description, price and expiry as handed over,
// the trade day, the file with its "..." button, the layout, the count of lines read, and the
// Upload, Delete and Cancel buttons.
#include <QWidget>

namespace tallimark {

class UploadView : public QWidget {
public:
    UploadView();
};

} // namespace tallimark
