#include "frame/GridDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QToolTip>

namespace tallimark {

bool isFigure(const QString& text) {
    static const QRegularExpression figure(QStringLiteral("^\\s*[-+]?(\\d[\\d,]*(\\.\\d*)?|\\.\\d+)%?\\s*$"));
    return figure.match(text).hasMatch();
}

GridDelegate::GridDelegate(QObject* parent, std::function<void()> afterEnter)
    : QStyledItemDelegate(parent), afterEnter_(std::move(afterEnter)) {}

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // Figures line up on their last digit, as on a desk's printed sheet.
    if (isFigure(option->text)) option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    // A grid's own ground (the sheet's is black) is no ground for typing on.
    QPalette palette = editor->palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    editor->setPalette(palette);
    editor->setAutoFillBackground(true);
    return editor;
}

bool GridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event && view && event->type() == QEvent::ToolTip) {
        QStyleOptionViewItem shown = option;
        initStyleOption(&shown, index);
        const int room = view->visualRect(index).width() - 8;
        if (shown.fontMetrics.horizontalAdvance(shown.text) > room) {
            QToolTip::showText(event->globalPos(), shown.text, view);
            return true;
        }
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

bool GridDelegate::eventFilter(QObject* editor, QEvent* event) {
    const bool enter =
        event->type() == QEvent::KeyPress && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                                              static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
    const bool done = QStyledItemDelegate::eventFilter(editor, event);
    // The base commits an Enter later, queued: the row's Enter is queued behind it.
    if (enter && afterEnter_) QMetaObject::invokeMethod(this, afterEnter_, Qt::QueuedConnection);
    return done;
}

} // namespace tallimark
