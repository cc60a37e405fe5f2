#pragma once
// The few pieces of JSON the batch driver prints: one object per line.
#include <string>
#include <string_view>

namespace tallimark {

class Form;
struct ShownBox;
struct ReportDocument;

std::string jsonString(std::string_view text);
// Reads a JSON string literal ("a \"b\"") back to its text; nullopt-free: raises on bad input.
std::string jsonUnquote(std::string_view literal);
std::string boxJson(const ShownBox& shown);
// The screen as it stands: caption, every control's text and state, every grid's rows.
std::string formJson(Form& form);
// A printed report: its name, title, orientation and each page's lines as the texts of their cells.
std::string reportJson(const ReportDocument& doc);

} // namespace tallimark
