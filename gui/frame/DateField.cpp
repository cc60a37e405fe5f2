#include "frame/DateField.h"

#include "frame/DeskDate.h"
#include "frame/VbFormat.h"

#include <QAction>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace tallimark {

namespace {

QDate qdate(const VbDate& d) {
    return QDate(d.year(), d.month(), d.day());
}

} // namespace

std::optional<QString> screenDate(const QString& typed) {
    const std::optional<VbDate> date = deskDate(typed.trimmed().toStdString());
    if (!date) return std::nullopt;
    return QString::fromStdString(Format(*date, "DD-MMM-YY"));
}

void addCalendar(QLineEdit& edit, std::function<void()> picked) {
    QAction* drop =
        edit.addAction(edit.style()->standardIcon(QStyle::SP_ArrowDown), QLineEdit::TrailingPosition);
    drop->setObjectName(QStringLiteral("calendar"));
    drop->setToolTip(QStringLiteral("Calendar"));
    QObject::connect(drop, &QAction::triggered, &edit, [&edit, picked] {
        auto* calendar = new QCalendarWidget(&edit);
        calendar->setObjectName(QStringLiteral("calendarPopup"));
        calendar->setWindowFlags(Qt::Popup);
        calendar->setAttribute(Qt::WA_DeleteOnClose);
        if (const std::optional<VbDate> shown = deskDate(edit.text().trimmed().toStdString()))
            calendar->setSelectedDate(qdate(*shown));
        const auto choose = [&edit, calendar, picked](QDate day) {
            edit.setText(QString::fromStdString(
                Format(VbDate::fromYmd(day.year(), day.month(), day.day()), "DD-MMM-YY")));
            calendar->close();
            picked();
        };
        QObject::connect(calendar, &QCalendarWidget::clicked, calendar, choose);
        QObject::connect(calendar, &QCalendarWidget::activated, calendar, choose);
        calendar->show(); // first: a popup has its size once shown
        // Under the field, kept on the screen: a date at the right edge opens its calendar to the
        // left, one at the foot above itself.
        const QRect room = edit.screen()->availableGeometry();
        const QSize size = calendar->frameGeometry().size();
        QPoint at = edit.mapToGlobal(QPoint(0, edit.height()));
        if (at.y() + size.height() > room.bottom()) at.ry() -= edit.height() + size.height();
        at.setX(std::max(room.left(), std::min(at.x(), room.right() + 1 - size.width())));
        calendar->move(at);
        calendar->setFocus(Qt::PopupFocusReason);
    });
}

} // namespace tallimark
