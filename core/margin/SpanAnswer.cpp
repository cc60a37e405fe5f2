#include "margin/SpanAnswer.h"

#include "frame/Store.h"
#include "frame/VbNumber.h"
#include "margin/TextFiles.h"

#include <algorithm>
#include <cstring>

namespace tallimark {

bool SpanLines::fill() {
    if (pos_ < end_) return true;
    in_.read(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    if (in_.bad()) throw VbError(vberr::PathFileAccess, "Path/File access error");
    pos_ = 0;
    end_ = static_cast<size_t>(in_.gcount());
    return end_ > 0;
}

bool SpanLines::atEnd() {
    if (!fill()) return true;
    if (afterCr_) {
        afterCr_ = false;
        if (buffer_[pos_] == '\n') ++pos_;
        return !fill();
    }
    return false;
}

const std::string& SpanLines::next() {
    if (atEnd()) throw VbError(vberr::InputPastEndOfFile, "Input past end of file");
    line_.clear();
    cut_ = false;
    while (fill()) {
        const char* from = buffer_.data() + pos_;
        const size_t left = end_ - pos_;
        const char* stop = std::find_if(from, from + left, [](char c) { return c == '\n' || c == '\r'; });
        const size_t n = static_cast<size_t>(stop - from);
        const size_t room = kLineLimit - std::min(kLineLimit, line_.size());
        line_.append(from, std::min(n, room));
        cut_ = cut_ || n > room;
        pos_ += n;
        if (n < left) {
            afterCr_ = *stop == '\r';
            ++pos_;
            break;
        }
    }
    return line_;
}

const std::string& SpanLines::whole() const {
    if (cut_) throw VbError(vberr::OutOfMemory, "Out of memory");
    return line_;
}

namespace {

// The fixed-column test: the word stands at this column of the line.
bool At(const std::string& line, size_t column, std::string_view word) {
    return line.size() >= column - 1 + word.size() && line.compare(column - 1, word.size(), word) == 0;
}

long long Len(const std::string& text) {
    return static_cast<long long>(text.size());
}

// The firm line carries Symbol, a hyphen and Descr: the symbol is read as eight characters,
// which cuts a symbol of another length wrongly; the update then finds no sheet.
void ReadFirm(const std::string& line, SpanMargin& m) {
    m.SpnSymbol = Mid(line, 7, 8);
    const size_t lastLt = line.rfind('<');
    // The length asked is the column of the last "<", which runs to the line's end.
    const std::string tail =
        Mid(line, 16, lastLt == std::string::npos ? 0 : static_cast<long long>(lastLt) + 1);
    m.SpnDescr = Mid(tail, 1, Len(tail) - 7);
}

} // namespace

void ReadSpanAnswer(SpanLines& lines, const std::function<void(const SpanMargin&)>& found) {
    SpanMargin m;
    double SpanReq = 0, Anov = 0;
    // Set by an isM of 1 and cleared only by an anov: a block without anov hands it to the next.
    bool IsMember = false;
    // Only the outer walk tests for the end of the file: one cut inside a portfolio reads past it.
    while (!lines.atEnd()) {
        if (!At(lines.next(), 2, "portfolio")) continue;
        for (bool InPortfolio = true; InPortfolio;) {
            const std::string& line = lines.next();
            if (At(line, 2, "/portfolio")) {
                InPortfolio = false;
            } else if (At(line, 2, "firm")) {
                ReadFirm(lines.whole(), m);
            } else if (At(line, 2, "oReq")) {
                for (bool InReq = true; InReq;) {
                    const std::string& req = lines.next();
                    if (At(req, 2, "/oReq")) {
                        InReq = false;
                        continue;
                    }
                    if (At(req, 2, "isM") && At(req, 6, "1")) IsMember = true;
                    if (At(req, 2, "spanReq") && IsMember) {
                        const std::string& all = lines.whole();
                        SpanReq = CDbl(Mid(all, 10, Len(all) - 19));
                    }
                    if (At(req, 2, "anov") && IsMember) {
                        IsMember = false;
                        const std::string& all = lines.whole();
                        Anov = CDbl(Mid(all, 7, Len(all) - 13));
                        m.SpanMargin = vb::checked(SpanReq - Anov);
                        found(m);
                    }
                }
            }
        }
    }
}

std::string MarginUpdate(const SpanMargin& margin) {
    // Str gives the leading blank of a positive figure; the description goes in as it stands.
    return "update PortFolioMast set field2 =" + Str(margin.SpanMargin) +
           " where [Symbol] = " + q(Trim(margin.SpnSymbol)) + " and [Descr] = " + q(margin.SpnDescr);
}

} // namespace tallimark
