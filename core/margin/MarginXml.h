#pragma once
// The text of the margin calculator's XML files: one tag a line, no indentation, CRLF line ends,
// values written as they stand (no character becomes an entity).
#include <string>
#include <string_view>

namespace tallimark {

inline constexpr const char* kCrLf = "\r\n";
inline constexpr const char* kXmlHead = "<?xml version=\"1.0\"?>\r\n";

// "<tag>" or "</tag>", with its line end.
std::string StartEnd_Tag(std::string_view tag, bool IsStart);
// "<tag>value</tag>", with its line end.
std::string Element(std::string_view tag, std::string_view value);

// The calculator reads single-byte text: the desk's UTF-8 becomes Windows-1252, and a character
// that code page lacks (or a byte that is no UTF-8) becomes "?", as the desk's text files did.
std::string SingleByteText(std::string_view utf8);

} // namespace tallimark
