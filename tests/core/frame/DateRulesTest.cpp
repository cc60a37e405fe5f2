#include "frame/DeskDate.h"
#include "frame/VbDate.h"
#include "frame/VbError.h"
#include "frame/VbFormat.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace tallimark;

TEST(DateRules, TheDateTextsTheSystemWritesAllReadBack) {
    const VbDate day = VbDate::fromYmd(2026, 11, 23);
    for (const char* text : {"23-Nov-2026", "23-NOV-2026", "23-November-2026", "23-Nov-26", "23-11-2026",
                             "23/11/2026", "2026-11-23", " 23-Nov-2026 ", "23-nov-2026"})
        EXPECT_EQ(CDate(text), day) << text;
    EXPECT_EQ(CDate("30-SEPTEMBER-2026"), VbDate::fromYmd(2026, 9, 30));
    EXPECT_EQ(CDate("23-11-2026 10:15"), VbDate::fromYmdHms(2026, 11, 23, 10, 15, 0));
    EXPECT_EQ(CDate("01-Jan-45"),
              VbDate::fromYmd(1945, 1, 1)); // two-digit years from 30 are the last century
    for (const char* bad : {"", "31-Nov-2026", "29-Feb-2026", "23-Nvb-2026", "2026", "abc", "23-11",
                            "0099-12-31", "01-01-10000", "01-01-99999999999999"})
        EXPECT_FALSE(IsDate(bad)) << bad;
    try {
        CDate("32-Jan-2026");
        FAIL();
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), vberr::TypeMismatch);
    }
}

TEST(DateRules, ADateBeyondTheRulesOverflowsInsteadOfShowing) {
    EXPECT_EQ(DateText(VbDate(-657434)) + DateText(VbDate(2958465)), "01-01-010031-12-9999");
    for (double serial : {-657434.5, 2958466.0, 1e15, std::nan("")})
        EXPECT_THROW((void)VbDate(serial), VbError) << serial;
}

TEST(DateRules, FormatPatterns) {
    const VbDate d = VbDate::fromYmdHms(2026, 3, 5, 9, 7, 0);
    struct Case {
        const char* pattern;
        const char* expected;
    } cases[] = {{"DD-MMM-YYYY", "05-Mar-2026"},
                 {"dd-mmm-yyyy", "05-Mar-2026"},
                 {"DD-MMM-YY", "05-Mar-26"},
                 {"DD-MM-YYYY", "05-03-2026"},
                 {"yyyymmdd", "20260305"},
                 {"yyyyddmm", "20260503"},
                 {"yyyymm", "202603"},
                 {"ddmm", "0503"},
                 {"hh:mm", "09:07"},
                 {"yyyy,mm,dd", "2026,03,05"},
                 {"DDMMMYYYY", "05Mar2026"}};
    for (const auto& c : cases)
        EXPECT_EQ(Format(d, c.pattern), c.expected) << c.pattern;
    EXPECT_EQ(Format("23-11-2026", "DD-MMM-YYYY"), "23-Nov-2026");
    EXPECT_EQ(Format("not a date", "DD-MMM-YYYY"), "not a date");
}

TEST(DateRules, NumberAndTextPatterns) {
    EXPECT_EQ(Format(2.675, "0.00"), "2.68"); // rounds the decimal form, not the binary one
    EXPECT_EQ(Format(2.125, "0.00"), "2.13"); // half away from zero, unlike Round
    EXPECT_EQ(Format(-2.125, "0.00"), "-2.13");
    EXPECT_EQ(Format(10.0, "0.00"), "10.00");
    EXPECT_EQ(Format(0.004, "0.00"), "0.00");
    EXPECT_EQ(Format(-0.004, "0.00"), "0.00");
    EXPECT_EQ(Format(999.999, "0.00"), "1000.00");
    EXPECT_EQ(Format(1234567.5, "0"), "1234568");
    EXPECT_EQ(Format("12.346", "0.00"), "12.35");
    EXPECT_EQ(Format("abc", "0.00"), "abc");
    EXPECT_EQ(Format("NIFTY", "@@@@@@@@@@@"), "      NIFTY");
}

TEST(DateRules, DayCountsAndWeekdays) {
    EXPECT_EQ(DateDiffDays(VbDate::fromYmd(2026, 11, 23), VbDate::fromYmd(2026, 11, 26)), 3);
    EXPECT_EQ(DateDiffDays(VbDate::fromYmdHms(2026, 11, 23, 23, 0, 0), VbDate::fromYmd(2026, 11, 24)), 1);
    EXPECT_EQ(DateDiffDays(VbDate::fromYmd(2026, 12, 31), VbDate::fromYmd(2026, 12, 1)), -30);
    EXPECT_EQ(VbDate::fromYmd(2026, 11, 22).weekday(), 1); // a Sunday
    EXPECT_EQ(VbDate::fromYmd(2026, 11, 26).weekday(), 5); // a Thursday
    EXPECT_EQ(VbDate::fromYmd(1899, 12, 30).serial(), 0);
    EXPECT_EQ(VbDate::fromYmd(2026, 13, 1), VbDate::fromYmd(2027, 1, 1));
    EXPECT_EQ(DateText(VbDate::fromYmd(2026, 1, 2)), "02-01-2026");
    EXPECT_EQ(IsoText(VbDate::fromYmdHms(2026, 1, 2, 3, 4, 5)), "2026-01-02 03:04:05");
}

TEST(DateRules, ADateFieldTakesTheDesksThreeFormsAndNothingElse) {
    const VbDate day = VbDate::fromYmd(2026, 11, 23);
    for (const char* typed : {"23-11-2026", "23-Nov-26", "23/11/2026", "23-NOV-2026", "1-12-2026"})
        EXPECT_TRUE(deskDate(typed).has_value()) << typed;
    EXPECT_EQ(*deskDate("23-11-2026"), day);
    EXPECT_EQ(*deskDate("23-Nov-26"), day);
    for (const char* typed : {"2026-11-23", "23.11.2026", "23-11/2026", "31-11-2026", "29-Feb-27",
                              "01-13-2026", "23-November-2026", "23-11-26", "0", "", "23-Nov-2026 10:00"})
        EXPECT_FALSE(deskDate(typed).has_value()) << typed;
}
