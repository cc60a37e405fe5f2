#pragma once
// Maps the desk's SQL dialect onto SQLite. Most of it lives in functions registered on the
// connection (cdate, Mid, Left, Right, Round with ties to even, UCase, Len); the rest is text mapping.
#include <string>
#include <string_view>

struct sqlite3;

namespace tallimark::sqldialect {

// Rewrites what SQLite does not read as the desk writes it: `delete * from` becomes `delete from`,
// the functions Left( and Right( become leftstr( and rightstr(.
std::string toSqlite(std::string_view sql);
// Registers the dialect's functions on a connection.
void registerFunctions(sqlite3* db);

} // namespace tallimark::sqldialect
