#include "frame/Store.h"

#include "frame/SqlDialect.h"

#include <cctype>
#include <sqlite3.h>
#include <strings.h>

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

// A statement handle that finalizes itself.
class Statement {
public:
    Statement(sqlite3* db, std::string_view sql) : db_(db) {
        const std::string mapped = sqldialect::toSqlite(sql);
        const char* tail = nullptr;
        if (sqlite3_prepare_v2(db, mapped.c_str(), static_cast<int>(mapped.size()), &stmt_, &tail) !=
            SQLITE_OK)
            fail(db);
        if (!stmt_) throw StoreError(SQLITE_MISUSE, "The statement is empty.");
        while (tail && *tail && std::isspace(static_cast<unsigned char>(*tail)))
            ++tail;
        if (tail && *tail && *tail != ';')
            throw StoreError(SQLITE_ERROR, "Characters found after end of SQL statement.");
    }
    ~Statement() { sqlite3_finalize(stmt_); }
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
    sqlite3_stmt* stmt_ = nullptr;
};

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

sqlite3* openFile(const std::filesystem::path& file, int flags) {
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(file.c_str(), &db, flags, nullptr) != SQLITE_OK) {
        const std::string msg = db ? sqlite3_errmsg(db) : "out of memory";
        const int code = db ? sqlite3_extended_errcode(db) : SQLITE_NOMEM;
        sqlite3_close(db);
        throw StoreError(code, msg);
    }
    sqlite3_busy_timeout(db, 2000);
    sqldialect::registerFunctions(db);
    return db;
}

} // namespace

Store::Store(sqlite3* db) : db_(db) {}
Store::~Store() {
    sqlite3_close(db_);
}

std::unique_ptr<Store> Store::open(const std::filesystem::path& file) {
    if (!std::filesystem::is_regular_file(file))
        throw StoreError(SQLITE_CANTOPEN,
                         "[Microsoft][ODBC Driver Manager] Data source name not found and no default driver "
                         "specified (" +
                             file.string() + ")");
    return std::unique_ptr<Store>(new Store(openFile(file, SQLITE_OPEN_READWRITE)));
}

std::unique_ptr<Store> Store::create(const std::filesystem::path& file) {
    if (std::filesystem::exists(file))
        throw StoreError(SQLITE_CANTOPEN, "The store already exists: " + file.string());
    return std::unique_ptr<Store>(new Store(openFile(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)));
}

void Store::execute(std::string_view sql) {
    Statement st(db_, sql);
    while (st.step()) {
    }
}

Recordset Store::query(std::string_view sql) {
    Statement st(db_, sql);
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

WriteGroup::WriteGroup(Store& store) : store_(store), active_(sqlite3_get_autocommit(store.handle()) != 0) {
    if (active_) store_.executeNative("BEGIN");
}

WriteGroup::~WriteGroup() {
    if (active_ && sqlite3_get_autocommit(store_.handle()) == 0)
        sqlite3_exec(store_.handle(), "COMMIT", nullptr, nullptr, nullptr);
}

} // namespace tallimark
