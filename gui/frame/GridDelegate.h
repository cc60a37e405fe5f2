#pragma once
// How every grid cell reads and is typed into: figures right-aligned, a figure wider than its
// column shown whole on hover, an editor legible on any ground, and Enter in the editor first
// committing the cell and then reaching the grid as the Enter of the row.
#include <QStyledItemDelegate>

#include <functional>

namespace tallimark {

class GridDelegate : public QStyledItemDelegate {
public:
    // afterEnter runs once an Enter typed into a cell's editor has committed the cell.
    GridDelegate(QObject* parent, std::function<void()> afterEnter);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    std::function<void()> afterEnter_;
};

// A cell text that is a figure: digits with a sign, thousands commas, a point or a percent.
bool isFigure(const QString& text);

} // namespace tallimark
