#include "upload/TradeFile.h"

#include "frame/VbError.h"
#include "frame/VbFormat.h"
#include "frame/VbNumber.h"

namespace tallimark {

namespace {

const TradeField kFutStk[] = {{"F1", 7},       {"F2", 2},   {"Type", 6}, {"Name", 10}, {"ExpDt", 9},
                              {"Strike", 10},  {"C/P", 2},  {"F8", 25},  {"F9", 2},    {"F10", 3},
                              {"F11", 2},      {"F12", 5},  {"F13", 2},  {"B/S", 1},   {"Qty", 9},
                              {"Premium", 12}, {"F17", 1},  {"F18", 10}, {"F19", 12},  {"F20", 5},
                              {"F21", 7},      {"F22", 20}, {"F23", 20}, {"F24", 15},  {"F25", 7}};

const TradeField kEquity[] = {{"F1", 13},    {"F2", 2},   {"Name", 10},    {"Type", 2}, {"ExpDt", 25},
                              {"Strike", 2}, {"C/P", 2},  {"F8", 2},       {"F9", 5},   {"F10", 2},
                              {"B/S", 1},    {"Qty", 9},  {"Premium", 12}, {"F14", 1},  {"F15", 10},
                              {"F16", 12},   {"F17", 1},  {"F18", 4},      {"F19", 2},  {"F20", 20},
                              {"F21", 20},   {"F22", 15}, {"F23", 7}};

// Field numbers of the named fields in each layout.
struct Positions {
    int type, name, expDt, strike, cp, bs, qty, premium, tradeTime, tradeDate, secondDate;
};
constexpr Positions kFutStkAt{3, 4, 5, 6, 7, 14, 15, 16, 22, 22, 23};
// The equity file's time is read from field 22, where the derivatives file keeps it.
constexpr Positions kEquityAt{4, 3, 5, 6, 7, 11, 12, 13, 22, 20, 21};

std::string_view trimmed(std::string_view s) {
    size_t b = 0, e = s.size();
    while (b < e && s[b] == ' ')
        ++b;
    while (e > b && s[e - 1] == ' ')
        --e;
    return s.substr(b, e - b);
}

// Mid(s, start, length) with start counted from 1; past the end gives "".
std::string_view mid(std::string_view s, size_t start, size_t length = std::string_view::npos) {
    return start > s.size() ? std::string_view() : s.substr(start - 1, length);
}

std::string dateText(std::string_view field) {
    return Format(mid(field, 1, 11), "DD-MMM-YYYY");
}

} // namespace

std::span<const TradeField> tradeFields(TradeLayout layout) {
    if (layout == TradeLayout::FutStk) return kFutStk;
    return kEquity;
}

void splitTradeLine(std::string_view line, TradeLayout layout, TradeRow& row) {
    const std::span<const TradeField> fields = tradeFields(layout);
    std::string_view rest = line;
    for (size_t i = 0; i < fields.size(); ++i) {
        const size_t comma = rest.find(',');
        std::string_view token = comma == std::string_view::npos ? rest : rest.substr(0, comma);
        // The last character goes first, then the first: a lone quote leaves nothing.
        if (!token.empty() && token.front() == '"') {
            token.remove_suffix(1);
            if (!token.empty()) token.remove_prefix(1);
        }
        if (token.size() > static_cast<size_t>(fields[i].width))
            throw VbError(kFieldTooWide,
                          "Multiple-step operation generated errors. Check each status value.");
        row.field[i] = token;
        if (comma != std::string_view::npos) rest.remove_prefix(comma + 1);
    }
}

void interpretTradeRow(const TradeRow& row, TradeLayout layout, const SheetFilter& filter, TradeLine& line) {
    const bool futStk = layout == TradeLayout::FutStk;
    const Positions& at = futStk ? kFutStkAt : kEquityAt;
    line.MktPrice = CDbl(filter.mktPrice);
    const std::string_view type = trimmed(row[at.type]);
    if (futStk) {
        line.CP = std::string(mid(trimmed(row[at.cp]), 1, 1));
        if (mid(type, 1, 1) == "F") {
            line.CP = "S";
            line.CashType = "F";
        }
        const std::string_view strike = trimmed(row[at.strike]);
        line.Strike = strike.empty() ? 0 : CDbl(strike);
    } else {
        line.CP = "S";
        if (mid(type, 1, 1) == "E") line.CashType = "Q";
    }
    const double bs = CDbl(trimmed(row[at.bs]));
    if (bs == 1)
        line.Units = CLng(CDbl(trimmed(row[at.qty])));
    else if (bs == 2)
        line.Units = CLng(-Val(trimmed(row[at.qty])));
    line.Traded = CDbl(trimmed(row[at.premium]));
    line.TrdDate = dateText(row[at.tradeDate]);
    line.TrdTime = std::string(mid(row[at.tradeTime], 13));
    line.Date2 = dateText(row[at.secondDate]);

    line.belongs = trimmed(row[at.name]) == filter.scriptName && filter.tradeDate == line.TrdDate &&
                   (!futStk || trimmed(row[at.expDt]) == filter.expiry);
}

} // namespace tallimark
