#pragma once
// Dates as the desk's screens hold them: a day serial counted from 30-Dec-1899 with the time as
// the fraction, so that date arithmetic is plain arithmetic on days.
#include <optional>
#include <string>
#include <string_view>

namespace tallimark {

class VbDate {
public:
    VbDate() = default;
    // A serial outside 1-Jan-100 to 31-Dec-9999 (or no number at all) raises Overflow: the date
    // rules hold nothing beyond, and a date is never shown that they cannot write.
    explicit VbDate(double serial);
    static VbDate fromYmd(int year, int month, int day); // month and day may run over, as DateSerial
    static VbDate fromYmdHms(int year, int month, int day, int hour, int minute, int second);

    double serial() const { return serial_; }
    long dayNumber() const; // whole days, the time dropped
    int year() const;
    int month() const;
    int day() const;
    int hour() const;
    int minute() const;
    int second() const;
    int weekday() const; // Sunday is 1
    bool hasTime() const;
    VbDate addDays(long days) const { return VbDate(serial_ + static_cast<double>(days)); }
    VbDate dateOnly() const;

    auto operator<=>(const VbDate&) const = default;

private:
    double serial_ = 0.0;
};

// CDate of a text: "23-Nov-2026", "23-NOVEMBER-2026", "23 NOV 2026", "23-Nov-26", "23-11-2026", "23/11/2026",
// "2026-11-23", each with an optional time "hh:mm[:ss]". Raises Type mismatch on anything else.
VbDate CDate(std::string_view text);
std::optional<VbDate> parseDate(std::string_view text);
bool IsDate(std::string_view text);

// DateDiff("d", a, b): whole days from a to b, times of day ignored.
long DateDiffDays(const VbDate& a, const VbDate& b);

// The default text of a date: "DD-MM-YYYY", with " hh:mm:ss" when it carries a time.
std::string DateText(const VbDate& d);
// The store's text of a date: "YYYY-MM-DD" or "YYYY-MM-DD hh:mm:ss"; it sorts as the date does.
std::string IsoText(const VbDate& d);

} // namespace tallimark
