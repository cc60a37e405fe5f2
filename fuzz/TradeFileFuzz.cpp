// The trade file reader on arbitrary bytes: the first byte chooses the layout, the rest is the
// file's text. Each line is split and read as the upload does; a refusal (a token too wide, a
// figure that is no number) is the reader's answer, anything else a fault.
#include "frame/VbError.h"
#include "upload/TradeFile.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace tallimark;
    if (size == 0) return 0;
    const TradeLayout layout = data[0] % 2 ? TradeLayout::Equity : TradeLayout::FutStk;
    const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
    const SheetFilter filter{"NIFTY", "26NOV2026", "23-Nov-2026", "19500"};
    TradeRow row;
    TradeLine line;
    // The upload stops at the first line it refuses, and so does this run.
    try {
        forEachTextLine(text, [&](std::string_view one) {
            splitTradeLine(one, layout, row);
            interpretTradeRow(row, layout, filter, line);
        });
    } catch (const VbError&) {
    }
    return 0;
}
