#pragma once
// The margin calculator's answer (".spn"): of all its lines only a handful are read, by fixed
// columns, to find each portfolio's scanning requirement less its available net option value.
#include <array>
#include <cstddef>
#include <functional>
#include <istream>
#include <string>

namespace tallimark {

// The lines of a file as the desk's line input reads them: a line ends at CRLF, LF or CR. Read
// in blocks, so a file of any size or shape costs no more memory than one line's first
// kLineLimit characters.
class SpanLines {
public:
    static constexpr size_t kLineLimit = 1 << 20;
    explicit SpanLines(std::istream& in) : in_(in) {}
    bool atEnd();
    // The next line; raises "Input past end of file" when there is none.
    const std::string& next();
    // The whole of the line just read: raises "Out of memory" when it ran past kLineLimit.
    const std::string& whole() const;

private:
    bool fill();
    std::istream& in_;
    std::array<char, 1 << 16> buffer_{};
    size_t pos_ = 0, end_ = 0;
    bool afterCr_ = false; // a line just ended at CR: an LF next belongs to it
    std::string line_;
    bool cut_ = false;
};

// One portfolio's margin as the answer gives it.
struct SpanMargin {
    std::string SpnSymbol, SpnDescr;
    double SpanMargin = 0;
};

// Walks the answer and hands on every margin it finds, in file order.
void ReadSpanAnswer(SpanLines& lines, const std::function<void(const SpanMargin&)>& found);

// The statement that stores a margin in the sheet's field2.
std::string MarginUpdate(const SpanMargin& margin);

} // namespace tallimark
