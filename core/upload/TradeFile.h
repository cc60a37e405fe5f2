#pragma once
// The exchange's daily trade files: one trade a line, comma-separated, in two layouts (the
// derivatives file and the cash equity file). A line is split into the fields of its layout and
// read into the working values of one trade; nothing here touches the store.
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tallimark {

enum class TradeLayout { FutStk, Equity };

// A token wider than the field that receives it: the sign of a file of the other layout.
inline constexpr long kFieldTooWide = -2147217887;

struct TradeField {
    const char* name;
    int width;
};
std::span<const TradeField> tradeFields(TradeLayout layout);

// One line's tokens, viewing the line: it must outlive the row.
struct TradeRow {
    static constexpr int kMaxFields = 25;
    std::array<std::string_view, kMaxFields> field{};
    // Field n of the layout's table, counted from 1.
    std::string_view operator[](int n) const { return field[static_cast<size_t>(n - 1)]; }
};

// Splits a line at each comma in turn. A token opening with a double quote loses its last and
// its first character, whatever the last one is; a comma inside quotes still splits. A short line
// repeats its last token in every remaining field; tokens past the last field are lost. Raises
// kFieldTooWide for a token longer than its field.
void splitTradeLine(std::string_view line, TradeLayout layout, TradeRow& row);

// What a line must show to belong to the open sheet.
struct SheetFilter {
    std::string scriptName; // ScriptMast.ScrName of the sheet's script code
    std::string expiry;     // the sheet's expiry as DDMMMYYYY in capitals (derivatives only)
    std::string tradeDate;  // the chosen day as DD-MMM-YYYY
    std::string mktPrice;   // the sheet's market price as typed
};

// The working values of a trade. They carry over from line to line: units of a buy/sell code
// other than 1 or 2, an option's cash type and an equity line's strike are those of the line
// before.
struct TradeLine {
    std::string CP, CashType;
    int32_t Units = 0;
    double Traded = 0, Strike = 0, MktPrice = 0;
    std::string TrdDate, TrdTime, Date2;
    bool belongs = false; // of the sheet's script, expiry and day
};

// Reads a split row into line. Every line is read in full before its filter is tried, so a
// non-numeric buy/sell code, quantity, price or strike fails (Type mismatch) on any line.
void interpretTradeRow(const TradeRow& row, TradeLayout layout, const SheetFilter& filter, TradeLine& line);

// The lines of a file's text: a line ends at LF, CR LF or a lone CR; a last line without an end
// still counts, and the end of the text is no line of its own. Calls each(line) in order.
template <class Each> void forEachTextLine(std::string_view text, Each&& each) {
    size_t start = 0;
    while (start < text.size()) {
        const size_t end = text.find_first_of("\r\n", start);
        if (end == std::string_view::npos) {
            each(text.substr(start));
            return;
        }
        each(text.substr(start, end - start));
        start = end + 1;
        if (text[end] == '\r' && start < text.size() && text[start] == '\n') ++start;
    }
}

} // namespace tallimark
