#pragma once
// The two look-up dialogs: FrmSeek's list of rows, and search's list with the column to search
// in, the search text and Ok.
#include <QWidget>

namespace tallimark {

class SeekView : public QWidget {
public:
    SeekView();
};

class SearchView : public QWidget {
public:
    SearchView();
};

} // namespace tallimark
