#include "frame/SpareWidth.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace tallimark {

namespace {

// Remembers each column's own width (the binder's, or the user's drag) and shows it with an even
// share of the spare room added.
class Spreader : public QObject {
public:
    Spreader(QTableWidget& table, Widen widen) : QObject(&table), table_(table), widen_(widen) {
        QHeaderView& header = *table.horizontalHeader();
        connect(&header, &QHeaderView::sectionResized, this, [this](int col, int, int size) {
            if (spreading_ || size == 0) return;
            if (static_cast<size_t>(col) >= own_.size()) own_.resize(static_cast<size_t>(col) + 1, 0);
            own_[static_cast<size_t>(col)] = size;
            // A drag is the user's width: it stands as dragged until the table is resized.
            if (QGuiApplication::mouseButtons() == Qt::NoButton) later();
        });
        connect(&header, &QHeaderView::sectionCountChanged, this, [this] { later(); });
        table.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize) later();
        return false;
    }

private:
    // Several columns are set in one go: spread once when they are all in.
    void later() {
        if (pending_) return;
        pending_ = true;
        QTimer::singleShot(0, this, [this] {
            pending_ = false;
            spread();
        });
    }

    void spread() {
        QHeaderView& header = *table_.horizontalHeader();
        own_.resize(static_cast<size_t>(header.count()), header.defaultSectionSize());
        std::vector<int> shown;
        int used = 0;
        for (int col = 0; col < header.count(); ++col) {
            if (header.isSectionHidden(col) || own_[static_cast<size_t>(col)] <= 0) continue;
            shown.push_back(col);
            used += own_[static_cast<size_t>(col)];
        }
        if (shown.empty()) return;
        if (widen_ == Widen::ToColumns) {
            const QHeaderView& rows = *table_.verticalHeader();
            table_.setMinimumWidth(used + 2 * table_.frameWidth() + (rows.isHidden() ? 0 : rows.width()) +
                                   table_.verticalScrollBar()->sizeHint().width());
        }
        const int spare = std::max(0, table_.viewport()->width() - used);
        const int share = spare / static_cast<int>(shown.size());
        spreading_ = true;
        for (int col : shown)
            header.resizeSection(col, own_[static_cast<size_t>(col)] + share +
                                          (col == shown.back() ? spare % static_cast<int>(shown.size()) : 0));
        spreading_ = false;
    }

    QTableWidget& table_;
    const Widen widen_;
    std::vector<int> own_;
    bool spreading_ = false;
    bool pending_ = false;
};

} // namespace

void spreadSpareWidth(QTableWidget& table, Widen widen) {
    table.horizontalHeader()->setStretchLastSection(false);
    new Spreader(table, widen);
}

} // namespace tallimark
