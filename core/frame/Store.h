#pragma once
// The one store connection (g_Conn) over a SQLite file. Statements arrive as text in the desk's
// dialect (cdate, Mid, Round, `delete * from`, bracketed names) and are mapped by SqlDialect.
#include "frame/Value.h"
#include "frame/VbError.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace tallimark {

// A failure of the store: keeps the engine's error code and text.
class StoreError : public VbError {
public:
    using VbError::VbError;
};

// The one quoting function for text values: "'" + text + "'". A text holding a single quote
// would break its statement, so it is refused with the store's error before it reaches SQL;
// no text can change what a statement means.
std::string q(std::string_view text);

// Its twin for numbers: every value a statement takes as a number passes here. Only a number's
// text (what CDbl reads) is taken, and the number's own text is written, so nothing typed can
// change what a statement means. Anything else, a number past the range of a double included,
// raises the store's error the statement would have raised on it.
std::string num(std::string_view text);

// The rows of one query, read at once; moving and reading as a recordset does.
class Recordset {
public:
    Recordset(std::vector<std::string> names, std::vector<std::vector<Value>> rows);
    bool eof() const { return pos_ >= rows_.size(); }
    bool bof() const { return rows_.empty() || pos_ == npos; }
    void moveNext();
    void movePrevious();
    void moveFirst() { pos_ = 0; }
    void moveLast() { pos_ = rows_.empty() ? 0 : rows_.size() - 1; }
    size_t recordCount() const { return rows_.size(); }
    size_t position() const { return pos_; }
    void setPosition(size_t row) { pos_ = row; }
    size_t fieldCount() const { return names_.size(); }
    const std::string& fieldName(size_t i) const { return names_.at(i); }
    // A column of the current row by name (case-insensitive) or index; raises at end of rows.
    const Value& operator[](std::string_view name) const;
    const Value& at(size_t column) const;
    const Value& cell(size_t row, size_t column) const { return rows_.at(row).at(column); }

private:
    static constexpr size_t npos = static_cast<size_t>(-1);
    std::vector<std::string> names_;
    std::vector<std::vector<Value>> rows_;
    size_t pos_ = 0;
};

class StatementCache;

class Store {
public:
    // Opens an existing store file; a missing file fails as the open of an unregistered source.
    static std::unique_ptr<Store> open(const std::filesystem::path& file);
    // Creates a new file and opens it (the ready-store command uses this).
    static std::unique_ptr<Store> create(const std::filesystem::path& file);
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    void execute(std::string_view sql);
    // The statement with texts in place of its "?" marks, each converted by the column it meets as
    // the same text written into the statement would be. A statement run again and again with
    // new figures (the refresh's writes) is then prepared once.
    void execute(std::string_view sql, const std::vector<std::string>& texts);
    Recordset query(std::string_view sql);
    // A query with texts in place of its "?" marks, as execute takes them.
    Recordset query(std::string_view sql, const std::vector<std::string>& texts);
    // Plain SQLite, not mapped: schema work of the store itself.
    void executeNative(std::string_view sql);
    long long changes() const;
    // Differs from every earlier reading, of this connection or another, once any row may have
    // changed: written, or put back by a rollback. What is worked out from rows may be kept
    // while it stands.
    struct Stamp {
        unsigned long long store;
        long long rows;
        bool operator==(const Stamp&) const = default;
    };
    Stamp stamp() const;
    // The same for the working ledger (DummyTracker) alone: every statement that writes it names
    // it, so writes elsewhere leave this stamp as it was.
    long long ledgerStamp() const { return ledgerWrites_ + undone_; }
    // This connection among all opened in the process: stamps are its own.
    unsigned long long serial() const { return serial_; }
    // Writes to the working ledger that may wait: they run just before the next statement that
    // could see them (one that writes the ledger, or reads a column they write, or all of a
    // row), before a step that may be undone, and as a later deferral comes in. Called with
    // false instead when the step they were made in is undone, as their writes would have been.
    void deferLedgerWrites(std::function<void(bool write)> writes);
    void runDeferredWrites();
    sqlite3* handle() { return db_; }

private:
    friend class AllOrNothing;
    explicit Store(sqlite3* db);
    sqlite3* db_;
    unsigned long long serial_;
    long long undone_ = 0; // rollbacks seen: they change rows without counting as changes
    long long ledgerWrites_ = 0;
    std::function<void(bool)> deferred_;
    int steps_ = 0;        // all-or-nothing steps open
    int deferredStep_ = 0; // the steps open when the waiting writes were made
    void beforeStatement(std::string_view sql);
    std::unique_ptr<StatementCache> statements_;
};

// Groups the statements of one step so the store writes them at once. Commits in its destructor
// as well: a failing statement leaves the earlier ones standing, as each would alone.
class WriteGroup {
public:
    // Committed rows are on the disk when the group ends; working rows (DummyTracker) may
    // trail behind a power cut, as the next load rebuilds them anyway.
    enum class Rows { Committed, Working };
    explicit WriteGroup(Store& store, Rows rows = Rows::Committed);
    ~WriteGroup();
    WriteGroup(const WriteGroup&) = delete;
    WriteGroup& operator=(const WriteGroup&) = delete;

private:
    Store& store_;
    bool active_;
    bool working_;
};

// One step whose statements stand or fall together (a delete and the insert that replaces what it
// deleted): unless done() is reached, the step's own statements are undone as it ends, while those
// of earlier steps stand. Nests in a write group, or opens a transaction of its own.
class AllOrNothing {
public:
    explicit AllOrNothing(Store& store);
    ~AllOrNothing();
    AllOrNothing(const AllOrNothing&) = delete;
    AllOrNothing& operator=(const AllOrNothing&) = delete;
    void done();

private:
    Store& store_;
    bool done_ = false;
};

} // namespace tallimark
