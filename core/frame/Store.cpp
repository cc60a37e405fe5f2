#include "frame/Store.h"

#include "frame/LedgerStatements.h"
#include "frame/SqlDialect.h"
#include "frame/VbNumber.h"

#include <atomic>
#include <cctype>
#include <list>
#include <sqlite3.h>
#include <strings.h>
#include <unordered_map>

namespace tallimark {

std::string q(std::string_view text) {
    if (text.find('\'') != std::string_view::npos)
        throw StoreError(SQLITE_ERROR,
                         "Syntax error in string in query expression ''" + std::string(text) + "'.");
    std::string s;
    s.reserve(text.size() + 2);
    s += '\'';
    s += text;
    s += '\'';
    return s;
}

std::string num(std::string_view text) {
    try {
        return NumText(CDbl(text));
    } catch (const VbError&) {
        throw StoreError(SQLITE_ERROR,
                         "Syntax error in number in query expression '" + std::string(text) + "'.");
    }
}

Recordset::Recordset(std::vector<std::string> names, std::vector<std::vector<Value>> rows)
    : names_(std::move(names)), rows_(std::move(rows)) {}

void Recordset::moveNext() {
    if (pos_ == npos)
        pos_ = 0;
    else if (pos_ < rows_.size())
        ++pos_;
}

void Recordset::movePrevious() {
    if (pos_ == 0 || pos_ == npos)
        pos_ = npos;
    else
        --pos_;
}

const Value& Recordset::at(size_t column) const {
    if (eof() || bof())
        throw StoreError(3021, "Either BOF or EOF is True, or the current record has been deleted.");
    return rows_[pos_].at(column);
}

const Value& Recordset::operator[](std::string_view name) const {
    for (size_t i = 0; i < names_.size(); ++i)
        if (names_[i].size() == name.size() && strncasecmp(names_[i].c_str(), name.data(), name.size()) == 0)
            return at(i);
    throw StoreError(
        3265, "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

namespace {

[[noreturn]] void fail(sqlite3* db) {
    throw StoreError(sqlite3_extended_errcode(db), sqlite3_errmsg(db));
}

// A prepared statement in use: reset when done, so that it holds no read open and can be run
// again.
class Statement {
public:
    Statement(sqlite3* db, sqlite3_stmt* stmt) : db_(db), stmt_(stmt) {}
    ~Statement() { sqlite3_reset(stmt_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    bool step() {
        const int rc = sqlite3_step(stmt_);
        if (rc == SQLITE_ROW) return true;
        if (rc == SQLITE_DONE) return false;
        fail(db_);
    }
    sqlite3_stmt* get() const { return stmt_; }

private:
    sqlite3* db_;
    sqlite3_stmt* stmt_;
};

void bindTexts(sqlite3* db, sqlite3_stmt* stmt, const std::vector<std::string>& texts) {
    for (size_t i = 0; i < texts.size(); ++i)
        if (sqlite3_bind_text(stmt, static_cast<int>(i + 1), texts[i].data(),
                              static_cast<int>(texts[i].size()), SQLITE_TRANSIENT) != SQLITE_OK)
            fail(db);
}

bool isDateColumn(sqlite3_stmt* stmt, int i) {
    const char* decl = sqlite3_column_decltype(stmt, i);
    return decl && strcasecmp(decl, "DATE") == 0;
}

Value readColumn(sqlite3_stmt* stmt, int i, bool dateColumn) {
    switch (sqlite3_column_type(stmt, i)) {
    case SQLITE_INTEGER:
        return Value(static_cast<int64_t>(sqlite3_column_int64(stmt, i)));
    case SQLITE_FLOAT:
        return Value(sqlite3_column_double(stmt, i));
    case SQLITE_NULL:
        return Value();
    default: {
        std::string text(reinterpret_cast<const char*>(sqlite3_column_text(stmt, i)),
                         static_cast<size_t>(sqlite3_column_bytes(stmt, i)));
        if (dateColumn)
            if (auto d = parseDate(text)) return Value(*d);
        return Value(std::move(text));
    }
    }
}

[[noreturn]] void notOurs(const std::filesystem::path& file, const std::string& why) {
    throw StoreError(SQLITE_NOTADB, "The file " + file.string() + " is not a store of Tallimark (" + why +
                                        "). Only tallimark-batch --new-store makes a store.");
}

// Why an open file is not one of our stores, or "" when it is: it must be a database holding the
// Users table. Read before anything is written, so that a foreign file is left as it was.
std::string foreignReason(sqlite3* db) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(
            db, "select 1 from sqlite_master where type = 'table' and name = 'Users' collate nocase", -1,
            &stmt, nullptr) != SQLITE_OK)
        return sqlite3_errmsg(db);
    const int rc = sqlite3_step(stmt);
    std::string why = rc == SQLITE_ROW    ? ""
                      : rc == SQLITE_DONE ? "it has no Users table"
                                          : sqlite3_errmsg(db);
    sqlite3_finalize(stmt);
    return why;
}

sqlite3* openFile(const std::filesystem::path& file, int flags) {
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(file.c_str(), &db, flags, nullptr) != SQLITE_OK) {
        const std::string msg = db ? sqlite3_errmsg(db) : "out of memory";
        const int code = db ? sqlite3_extended_errcode(db) : SQLITE_NOMEM;
        sqlite3_close(db);
        throw StoreError(code, msg);
    }
    sqlite3_busy_timeout(db, 2000);
    if (!(flags & SQLITE_OPEN_CREATE))
        if (const std::string why = foreignReason(db); !why.empty()) {
            sqlite3_close(db);
            notOurs(file, why);
        }
    // A commit appends to the write-ahead log and flushes it: one flush, and a reader never
    // waits for a writer.
    sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    sqldialect::registerFunctions(db);
    return db;
}

} // namespace

// Prepared statements kept by their text. A sheet runs the same few hundred statements on every
// refresh, and mapping and parsing each anew would cost more than running it. The least recently
// used go once the cache is full.
class StatementCache {
public:
    explicit StatementCache(sqlite3* db) : db_(db) {}
    ~StatementCache() {
        for (auto& [sql, entry] : entries_)
            sqlite3_finalize(entry.stmt);
    }
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    sqlite3_stmt* get(std::string_view sql) {
        if (auto it = entries_.find(sql); it != entries_.end()) {
            ages_.splice(ages_.begin(), ages_, it->second.age);
            return it->second.stmt;
        }
        sqlite3_stmt* stmt = prepare(sql);
        if (entries_.size() >= kCapacity) {
            auto oldest = entries_.find(ages_.back());
            sqlite3_finalize(oldest->second.stmt);
            entries_.erase(oldest);
            ages_.pop_back();
        }
        ages_.emplace_front(sql);
        entries_.emplace(ages_.front(), Entry{stmt, ages_.begin()});
        return stmt;
    }

private:
    static constexpr size_t kCapacity = 1024;

    sqlite3_stmt* prepare(std::string_view sql) {
        const std::string mapped = sqldialect::toSqlite(sql);
        sqlite3_stmt* stmt = nullptr;
        const char* tail = nullptr;
        if (sqlite3_prepare_v2(db_, mapped.c_str(), static_cast<int>(mapped.size()), &stmt, &tail) !=
            SQLITE_OK)
            fail(db_);
        if (!stmt) throw StoreError(SQLITE_MISUSE, "The statement is empty.");
        while (tail && *tail && std::isspace(static_cast<unsigned char>(*tail)))
            ++tail;
        if (tail && *tail && *tail != ';') {
            sqlite3_finalize(stmt);
            throw StoreError(SQLITE_ERROR, "Characters found after end of SQL statement.");
        }
        return stmt;
    }

    struct Hash {
        using is_transparent = void;
        size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
    };
    struct Entry {
        sqlite3_stmt* stmt;
        std::list<std::string>::iterator age;
    };
    sqlite3* db_;
    std::list<std::string> ages_; // the texts, most recently used first
    std::unordered_map<std::string, Entry, Hash, std::equal_to<>> entries_;
};

Store::Store(sqlite3* db) : db_(db), statements_(std::make_unique<StatementCache>(db)) {
    static std::atomic<unsigned long long> opened{0};
    serial_ = ++opened;
    sqlite3_rollback_hook(
        db_, [](void* store) { ++static_cast<Store*>(store)->undone_; }, this);
}
Store::~Store() {
    statements_.reset(); // every statement finalized before the connection can close
    sqlite3_close(db_);
}

std::unique_ptr<Store> Store::open(const std::filesystem::path& file) {
    if (!std::filesystem::is_regular_file(file))
        throw StoreError(SQLITE_CANTOPEN,
                         "[Microsoft][ODBC Driver Manager] Data source name not found and no default driver "
                         "specified (" +
                             file.string() + ")");
    // SQLite would take an empty file for a new database and write one into it.
    if (std::filesystem::file_size(file) == 0) notOurs(file, "it is empty");
    return std::unique_ptr<Store>(new Store(openFile(file, SQLITE_OPEN_READWRITE)));
}

std::unique_ptr<Store> Store::create(const std::filesystem::path& file) {
    if (std::filesystem::exists(file))
        throw StoreError(SQLITE_CANTOPEN, "The store already exists: " + file.string());
    return std::unique_ptr<Store>(new Store(openFile(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)));
}

void Store::beforeStatement(std::string_view sql) {
    const LedgerUse use = ledgerUse(sql);
    if (use.seesWaitingWrites) runDeferredWrites();
    if (use.writes) ++ledgerWrites_;
}

void Store::deferLedgerWrites(std::function<void(bool)> writes) {
    runDeferredWrites();
    deferred_ = std::move(writes);
    deferredStep_ = steps_;
}

void Store::runDeferredWrites() {
    if (!deferred_) return;
    const std::function<void(bool)> writes = std::move(deferred_);
    deferred_ = nullptr;
    writes(true);
}

void Store::execute(std::string_view sql) {
    beforeStatement(sql);
    Statement st(db_, statements_->get(sql));
    while (st.step()) {
    }
}

void Store::execute(std::string_view sql, const std::vector<std::string>& texts) {
    beforeStatement(sql);
    Statement st(db_, statements_->get(sql));
    bindTexts(db_, st.get(), texts);
    while (st.step()) {
    }
}

Recordset Store::query(std::string_view sql) {
    return query(sql, {});
}

Recordset Store::query(std::string_view sql, const std::vector<std::string>& texts) {
    beforeStatement(sql);
    Statement st(db_, statements_->get(sql));
    bindTexts(db_, st.get(), texts);
    const int n = sqlite3_column_count(st.get());
    std::vector<std::string> names;
    std::vector<bool> dates;
    for (int i = 0; i < n; ++i) {
        names.emplace_back(sqlite3_column_name(st.get(), i));
        dates.push_back(isDateColumn(st.get(), i));
    }
    std::vector<std::vector<Value>> rows;
    while (st.step()) {
        std::vector<Value> row;
        row.reserve(static_cast<size_t>(n));
        for (int i = 0; i < n; ++i)
            row.push_back(readColumn(st.get(), i, dates[static_cast<size_t>(i)]));
        rows.push_back(std::move(row));
    }
    return Recordset(std::move(names), std::move(rows));
}

void Store::executeNative(std::string_view sql) {
    beforeStatement(sql);
    char* err = nullptr;
    if (sqlite3_exec(db_, std::string(sql).c_str(), nullptr, nullptr, &err) != SQLITE_OK) {
        const std::string msg = err ? err : "error";
        sqlite3_free(err);
        throw StoreError(sqlite3_extended_errcode(db_), msg);
    }
}

long long Store::changes() const {
    return sqlite3_changes64(db_);
}

Store::Stamp Store::stamp() const {
    return {serial_, sqlite3_total_changes64(db_) + undone_ + ledgerWrites_};
}

WriteGroup::WriteGroup(Store& store, Rows rows)
    : store_(store), active_(sqlite3_get_autocommit(store.handle()) != 0), working_(rows == Rows::Working) {
    if (!active_) return;
    // Working rows are rebuilt from the committed ones on every load: their commit need not wait
    // for the disk. The log stays whole either way.
    if (working_) store_.executeNative("PRAGMA synchronous=NORMAL");
    store_.executeNative("BEGIN");
}

WriteGroup::~WriteGroup() {
    if (!active_) return;
    if (sqlite3_get_autocommit(store_.handle()) == 0)
        sqlite3_exec(store_.handle(), "COMMIT", nullptr, nullptr, nullptr);
    if (working_) sqlite3_exec(store_.handle(), "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
}

AllOrNothing::AllOrNothing(Store& store) : store_(store) {
    // Writes that waited belong to earlier steps: an undone step must not take them with it.
    store_.runDeferredWrites();
    store_.executeNative("SAVEPOINT all_or_nothing");
    ++store_.steps_;
}

void AllOrNothing::done() {
    store_.executeNative("RELEASE all_or_nothing");
    --store_.steps_;
    done_ = true;
}

AllOrNothing::~AllOrNothing() {
    if (done_) return;
    --store_.steps_;
    // Writes made in this step and still waiting go with it.
    if (store_.deferred_ && store_.deferredStep_ > store_.steps_) {
        const std::function<void(bool)> dropped = std::move(store_.deferred_);
        store_.deferred_ = nullptr;
        dropped(false);
    }
    ++store_.undone_;
    sqlite3_exec(store_.handle(), "ROLLBACK TO all_or_nothing", nullptr, nullptr, nullptr);
    sqlite3_exec(store_.handle(), "RELEASE all_or_nothing", nullptr, nullptr, nullptr);
}

} // namespace tallimark
