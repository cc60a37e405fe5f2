#pragma once
// A date control's text box: the dealer types the date or picks it from a calendar that drops
// down from the box.
#include <QString>

#include <functional>
#include <optional>

class QLineEdit;

namespace tallimark {

// Adds the calendar button; picked runs once a day chosen there stands in the box.
void addCalendar(QLineEdit& edit, std::function<void()> picked);

// A typed date in the form the screens hold it ("23-Nov-26"), or nothing when it is no date.
std::optional<QString> screenDate(const QString& typed);

} // namespace tallimark
