#pragma once
// The one place the present date is read. The workstation reads the system clock; tests and
// the batch driver (--today) set a fixed day.
#include "frame/VbDate.h"

#include <optional>

namespace tallimark {

class Clock {
public:
    // Now: the fixed day at the real time of day, or the system's local date and time.
    VbDate now() const;
    VbDate today() const { return now().dateOnly(); }
    void setToday(const VbDate& day) { fixed_ = day.dateOnly(); }

private:
    std::optional<VbDate> fixed_;
};

} // namespace tallimark
