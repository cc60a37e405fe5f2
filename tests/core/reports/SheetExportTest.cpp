// The sheet written for a spreadsheet: from the index sheet's "Excel" button and from either
// sheet's menu, its fields with their captions and the ladder as shown, figures as bare numbers.
#include "sheet/SheetDesk.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace tallimark;

namespace {

std::vector<std::string> fileLines(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line.substr(0, line.find('\r')));
    return lines;
}

TEST(SheetExport, BothSheetsWriteTheirFieldsAndLadderWithFiguresAsNumbers) {
    for (const auto& [kind, control] :
         {std::pair{SheetKind::Index, "cmdExl"}, {SheetKind::Stock, "mnuExport"}}) {
        test::LiveSheetDesk d(kind);
        const auto path = d.dir.path() / "sheet.csv";
        d.ui.queueFile(path.string());
        d.s.fire(control, EventType::Click);
        ASSERT_EQ(d.boxTexts().back(), "The sheet was exported to " + path.string());
        const auto lines = fileLines(path);
        // The market price of the live sheets: 1010 on the stock sheet, 6050 on the index sheet.
        const std::string price =
            "\"" + d.s.text("Label_TxtMktPrice") + "\"," + (kind == SheetKind::Stock ? "1010" : "6050");
        EXPECT_NE(std::find(lines.begin(), lines.end(), price), lines.end()) << price;
        // A figure of a table on the screen takes its row's name with its column's.
        const std::string delta = "\"Delta $ Value\"," + d.s.text("TxtDelVal");
        EXPECT_NE(std::find(lines.begin(), lines.end(), delta), lines.end()) << delta;
        // The ladder follows a blank line: its headings, then a line per row holding text.
        const auto blank = std::find(lines.begin(), lines.end(), "");
        ASSERT_NE(blank, lines.end());
        int rows = 0;
        for (int r = 1; r <= d.s.va1().dataRowCount(); ++r)
            rows += !Trim(d.s.va1().text(r, 1)).empty() || !Trim(d.s.va1().text(r, 2)).empty();
        EXPECT_GE(lines.end() - blank - 2, rows);
        // The first strike row, "5800.00"-like, goes out unquoted.
        EXPECT_EQ(blank[2].substr(0, blank[2].find(',')), Trim(d.s.va1().text(2, 1)));
    }
}

TEST(SheetExport, AFileThatCannotBeWrittenIsNamedInABox) {
    test::LiveSheetDesk d(SheetKind::Stock);
    d.ui.queueFile((d.dir.path() / "no-such-folder" / "sheet.csv").string());
    d.s.fire("mnuExport", EventType::Click);
    EXPECT_EQ(d.boxTexts().back().rfind("The sheet could not be written to ", 0), 0u);
}

} // namespace
