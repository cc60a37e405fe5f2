// The margin calculator's answer reader over any bytes: every input ends in margins found or a
// run-time error for the failure box, never in a crash, a leak or another kind of exception.
#include "frame/VbError.h"
#include "margin/SpanAnswer.h"

#include <cstddef>
#include <cstdint>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    tallimark::SpanLines lines(in);
    try {
        tallimark::ReadSpanAnswer(lines, [](const tallimark::SpanMargin& m) {
            // The statement the store would run, built as the screen builds it.
            volatile size_t n = tallimark::MarginUpdate(m).size();
            (void)n;
        });
    } catch (const tallimark::VbError&) {
    }
    return 0;
}
