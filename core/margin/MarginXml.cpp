#include "margin/MarginXml.h"

#include <array>
#include <cstdint>

namespace tallimark {

std::string StartEnd_Tag(std::string_view tag, bool IsStart) {
    std::string s(IsStart ? "<" : "</");
    s += tag;
    s += ">";
    s += kCrLf;
    return s;
}

std::string Element(std::string_view tag, std::string_view value) {
    std::string s;
    s.reserve(2 * tag.size() + value.size() + 7);
    s += '<';
    s += tag;
    s += '>';
    s += value;
    s += "</";
    s += tag;
    s += '>';
    s += kCrLf;
    return s;
}

namespace {

// Code points of bytes 0x80 to 0x9F in Windows-1252; 0 where the code page has no character.
constexpr std::array<char32_t, 32> kCp1252High = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char cp1252(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (size_t i = 0; i < kCp1252High.size(); ++i)
        if (kCp1252High[i] == cp) return static_cast<char>(0x80 + i);
    return '?';
}

} // namespace

std::string SingleByteText(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<uint8_t>(utf8[i]);
        const int extra = lead < 0x80         ? 0
                          : (lead >> 5) == 6  ? 1
                          : (lead >> 4) == 14 ? 2
                          : (lead >> 3) == 30 ? 3
                                              : -1;
        char32_t cp = extra == 0   ? lead
                      : extra == 1 ? (lead & 0x1F)
                      : extra == 2 ? (lead & 0x0F)
                                   : (lead & 0x07);
        bool valid = extra >= 0 && i + static_cast<size_t>(extra) < utf8.size();
        for (int k = 1; valid && k <= extra; ++k) {
            const auto next = static_cast<uint8_t>(utf8[i + static_cast<size_t>(k)]);
            valid = (next & 0xC0) == 0x80;
            cp = (cp << 6) | (next & 0x3F);
        }
        if (!valid) {
            out += '?';
            ++i;
            continue;
        }
        out += cp1252(cp);
        i += static_cast<size_t>(extra) + 1;
    }
    return out;
}

} // namespace tallimark
