#include "frame/Clock.h"

#include <ctime>

namespace tallimark {

VbDate Clock::now() const {
    const std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    if (fixed_)
        return VbDate(fixed_->serial() + (local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec) / 86400.0);
    return VbDate::fromYmdHms(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                              local.tm_min, local.tm_sec);
}

} // namespace tallimark
