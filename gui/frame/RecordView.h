#pragma once
// The view the master screens share: rows of a label and its field, framed groups of rows, and
// the seven buttons of the screen's array beneath them.
#include <QWidget>

#include <string>

class QGridLayout;

namespace tallimark {

class RecordView : public QWidget {
protected:
    // buttonArray: "Cmd", or "cmd" on the charge master.
    explicit RecordView(const std::string& buttonArray);

    QGridLayout& fields() { return *fields_; }
    // The next row of a grid: "LblX" and the field "TxtX"; returns the row.
    int addRow(QGridLayout& grid, const std::string& field);
    // A framed group in the next row of the screen's grid, named as the model's frame.
    QGridLayout& group(const char* frame);

private:
    QGridLayout* fields_;
};

} // namespace tallimark
