#pragma once
// A risk sheet written out for a spreadsheet: its fields with their captions, then the ladder as
// shown (visible columns, every row holding text), as CSV. A figure goes out as a bare number, its
// grouping commas dropped, so the spreadsheet reads it as one; any other text is quoted.
#include <string>

namespace tallimark {

class Form;

std::string sheetCsv(Form& sheet);
// Asks where to save (a save dialog), writes the file and tells the desk where it went; a file
// that cannot be written meets a box naming it.
void exportSheet(Form& sheet, const std::string& suggestedName);

} // namespace tallimark
