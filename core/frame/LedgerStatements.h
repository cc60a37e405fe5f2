#pragma once
// What a statement does with the working ledger (DummyTracker), read from its text: the store
// keeps writes to it waiting (Store::deferLedgerWrites) until a statement could see them.
#include <string_view>

namespace tallimark {

struct LedgerUse {
    // It writes the ledger, reads a column whose writes may wait (last, vol, delta, DumThVal),
    // reads whole rows, or is not a plain select or insert, update or delete.
    bool seesWaitingWrites = false;
    // It may change the ledger's rows: an insert, update or delete of DummyTracker, or anything
    // but those and a select.
    bool writes = false;
};

LedgerUse ledgerUse(std::string_view sql);

} // namespace tallimark
