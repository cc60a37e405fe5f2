#include "frame/SqlDialect.h"

#include "frame/VbDate.h"
#include "frame/VbNumber.h"

#include <cctype>
#include <sqlite3.h>

namespace tallimark::sqldialect {

namespace {

bool wordAt(std::string_view s, size_t i, std::string_view word) {
    if (i + word.size() > s.size()) return false;
    for (size_t k = 0; k < word.size(); ++k)
        if (std::tolower(static_cast<unsigned char>(s[i + k])) != word[k]) return false;
    return true;
}

size_t skipBlanks(std::string_view s, size_t i) {
    while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i])))
        ++i;
    return i;
}

bool identChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

// Left( and Right( are join words to SQLite; as functions they become leftstr( and rightstr(.
std::string mapStringFunctions(std::string_view sql) {
    std::string out;
    out.reserve(sql.size() + 8);
    bool quoted = false;
    for (size_t i = 0; i < sql.size(); ++i) {
        const char c = sql[i];
        if (c == '\'') {
            quoted = !quoted;
        } else if (!quoted && (i == 0 || !identChar(sql[i - 1]))) {
            for (std::string_view word : {std::string_view("left"), std::string_view("right")}) {
                if (wordAt(sql, i, word) &&
                    (i + word.size() >= sql.size() || !identChar(sql[i + word.size()]))) {
                    const size_t paren = skipBlanks(sql, i + word.size());
                    if (paren < sql.size() && sql[paren] == '(') {
                        out.append(sql.substr(i, word.size())).append("str");
                        i += word.size() - 1;
                        goto next;
                    }
                }
            }
        }
        out.push_back(c);
    next:;
    }
    return out;
}

} // namespace

std::string toSqlite(std::string_view sql) {
    std::string mapped = mapStringFunctions(sql);
    // Only the leading verb can carry the star: `delete * from X`.
    const size_t verb = skipBlanks(mapped, 0);
    if (!wordAt(mapped, verb, "delete")) return mapped;
    const size_t star = skipBlanks(mapped, verb + 6);
    if (star >= mapped.size() || mapped[star] != '*') return mapped;
    const size_t from = skipBlanks(mapped, star + 1);
    if (!wordAt(mapped, from, "from")) return mapped;
    return mapped.substr(0, verb) + "delete " + mapped.substr(from);
}

namespace {

std::string argText(sqlite3_value* v) {
    const unsigned char* t = sqlite3_value_text(v);
    return t ? reinterpret_cast<const char*>(t) : std::string();
}

void setText(sqlite3_context* ctx, const std::string& s) {
    sqlite3_result_text(ctx, s.c_str(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
}

// cdate(text): the date as the store keeps it, "YYYY-MM-DD[ hh:mm:ss]", so that dates compare
// and sort as dates. A text that is no date is an error of the statement.
void cdateFn(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    const auto d = parseDate(argText(argv[0]));
    if (!d) return sqlite3_result_error(ctx, "Data type mismatch in criteria expression.", -1);
    setText(ctx, IsoText(*d));
}

// Mid(text, start[, length]), 1-based.
void midFn(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    const std::string s = argText(argv[0]);
    const long start = sqlite3_value_int64(argv[1]);
    if (start < 1) return sqlite3_result_error(ctx, "Invalid procedure call", -1);
    if (static_cast<size_t>(start) > s.size()) return setText(ctx, "");
    const size_t len = argc > 2
                           ? static_cast<size_t>(std::max<sqlite3_int64>(0, sqlite3_value_int64(argv[2])))
                           : std::string::npos;
    setText(ctx, s.substr(static_cast<size_t>(start - 1), len));
}

void leftFn(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    const sqlite3_int64 n = std::max<sqlite3_int64>(0, sqlite3_value_int64(argv[1]));
    setText(ctx, argText(argv[0]).substr(0, static_cast<size_t>(n)));
}

void rightFn(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    const std::string s = argText(argv[0]);
    const size_t n = static_cast<size_t>(std::max<sqlite3_int64>(0, sqlite3_value_int64(argv[1])));
    setText(ctx, n >= s.size() ? s : s.substr(s.size() - n));
}

void roundFn(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    const int n = argc > 1 ? sqlite3_value_int(argv[1]) : 0;
    sqlite3_result_double(ctx, Round(sqlite3_value_double(argv[0]), n));
}

void ucaseFn(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    setText(ctx, UCase(argText(argv[0])));
}

void lenFn(sqlite3_context* ctx, int, sqlite3_value** argv) {
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    sqlite3_result_int64(ctx, static_cast<sqlite3_int64>(argText(argv[0]).size()));
}

} // namespace

void registerFunctions(sqlite3* db) {
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function(db, "cdate", 1, flags, nullptr, cdateFn, nullptr, nullptr);
    sqlite3_create_function(db, "mid", 2, flags, nullptr, midFn, nullptr, nullptr);
    sqlite3_create_function(db, "mid", 3, flags, nullptr, midFn, nullptr, nullptr);
    sqlite3_create_function(db, "leftstr", 2, flags, nullptr, leftFn, nullptr, nullptr);
    sqlite3_create_function(db, "rightstr", 2, flags, nullptr, rightFn, nullptr, nullptr);
    sqlite3_create_function(db, "round", 1, flags, nullptr, roundFn, nullptr, nullptr);
    sqlite3_create_function(db, "round", 2, flags, nullptr, roundFn, nullptr, nullptr);
    sqlite3_create_function(db, "ucase", 1, flags, nullptr, ucaseFn, nullptr, nullptr);
    sqlite3_create_function(db, "len", 1, flags, nullptr, lenFn, nullptr, nullptr);
}

} // namespace tallimark::sqldialect
