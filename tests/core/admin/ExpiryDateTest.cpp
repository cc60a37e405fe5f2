// The expiry of a sheet: the last Thursday of the symbol's month, with February's leap rule of
// every fourth year. Expected days worked out with Python's calendar module (monthrange and
// weekday), independently of the screen.
#include "AdminDesk.h"

#include "frame/VbFormat.h"

#include <gtest/gtest.h>

using namespace tallimark;

namespace {

struct ExpiryCase {
    bool futures;
    std::string year;
    const char* letters; // the twelve month letters of the sheet type, January first
    int lastThursdays[12];
};

// Stock letters run A to L, futures letters are the exchange's F G H J K M N Q U V X Z.
const ExpiryCase kYears[] = {
    {false, "2024", "ABCDEFGHIJKL", {25, 29, 28, 25, 30, 27, 25, 29, 26, 31, 28, 26}}, // leap year
    {false, "2026", "ABCDEFGHIJKL", {29, 26, 26, 30, 28, 25, 30, 27, 24, 29, 26, 31}},
    {true, "2027", "FGHJKMNQUVXZ", {28, 25, 25, 29, 27, 24, 29, 26, 30, 28, 25, 30}},
};

void chooseType(FrmNewScript& f, bool futures) {
    f.setValue(futures ? "OptInType(0)" : "OptInType(1)", true);
}

} // namespace

TEST(ExpiryDate, TheLastThursdayOfEveryMonth) {
    test::AdminDesk d;
    FrmNewScript& f = d.newSheet();
    for (const ExpiryCase& c : kYears) {
        chooseType(f, c.futures);
        for (int m = 0; m < 12; ++m) {
            f.setText("TxtInSymbol", std::string("RIL") + c.letters[m] + c.year);
            f.ExpiryDate();
            const VbDate expected = VbDate::fromYmd(std::stoi(c.year), m + 1, c.lastThursdays[m]);
            EXPECT_EQ(DateText(d.app.session().g_ExpiryDate), DateText(expected)) << f.text("TxtInSymbol");
            EXPECT_EQ(f.text("DTPicker1"), Format(expected, "DD-MMM-YY"));
        }
    }
    EXPECT_TRUE(d.ui.boxes().empty()) << d.boxTexts().front();
}

TEST(ExpiryDate, FebruaryAndMonthsEndingOnAThursday) {
    struct Case {
        const char* symbol;
        bool futures;
        const char* expiry; // DD-MM-YYYY
        const char* picker;
    } cases[] = {
        {"RILB2024", false, "29-02-2024", "29-Feb-24"}, // leap February whose 29th is a Thursday
        {"RILG2024", true, "29-02-2024", "29-Feb-24"},
        {"RILB2026", false, "26-02-2026", "26-Feb-26"},
        {"RILB2030", false, "28-02-2030", "28-Feb-30"}, // 28th a Thursday, no leap day
        {"RILB2000", false, "24-02-2000", "24-Feb-00"},
        {"RILD2026", false, "30-04-2026", "30-Apr-26"}, // 30 April 2026 is a Thursday
        {"RILZ2026", true, "31-12-2026", "31-Dec-26"},
        {"ABK2026", false, "26-11-2026", "26-Nov-26"}, // a two-letter script code
    };
    test::AdminDesk d;
    FrmNewScript& f = d.newSheet();
    for (const Case& c : cases) {
        chooseType(f, c.futures);
        f.setText("TxtInSymbol", c.symbol);
        f.ExpiryDate();
        EXPECT_EQ(DateText(d.app.session().g_ExpiryDate), c.expiry) << c.symbol;
        EXPECT_EQ(f.text("DTPicker1"), c.picker) << c.symbol;
    }
    EXPECT_TRUE(d.ui.boxes().empty());
}

TEST(ExpiryDate, TheCenturyYear2100CountsAsLeapAndItsTwentyNinthCannotBeRead) {
    test::AdminDesk d;
    FrmNewScript& f = d.newSheet();
    f.setText("TxtInSymbol", "RILK2026");
    f.ExpiryDate();
    const std::string before = f.text("DTPicker1");

    // Mod 4 alone makes February 2100 29 days long; that day does not exist, so the date
    // fails and the procedure's box says so, leaving the earlier expiry.
    f.setText("TxtInSymbol", "RILB2100");
    f.ExpiryDate();
    EXPECT_EQ(d.takeBoxes(),
              std::vector<std::string>{"Error in ExpiryDate Procedure: Type mismatch and No: 13"});
    EXPECT_EQ(DateText(d.app.session().g_ExpiryDate), "26-11-2026");
    EXPECT_EQ(f.text("DTPicker1"), before);

    // The month after has no leap rule and reads as any other.
    f.setText("TxtInSymbol", "RILC2100");
    f.ExpiryDate();
    EXPECT_EQ(DateText(d.app.session().g_ExpiryDate), "25-03-2100");
}

TEST(ExpiryDate, ALetterOfTheOtherTypeOrABadYearFailsIntoTheBox) {
    test::AdminDesk d;
    FrmNewScript& f = d.newSheet();
    for (const char* symbol : {"RILW2026", "RILK20X6"}) {
        f.setText("TxtInSymbol", symbol); // W is no month letter of a stock sheet
        f.ExpiryDate();
        EXPECT_EQ(d.takeBoxes(),
                  std::vector<std::string>{"Error in ExpiryDate Procedure: Type mismatch and No: 13"})
            << symbol;
    }
}
