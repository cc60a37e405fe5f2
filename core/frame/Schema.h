#pragma once
// The store's tables, and the ready store a new desk starts from.
#include <filesystem>
#include <string>
#include <vector>

namespace tallimark {

class Store;

namespace schema {

enum class ColumnType { Text, Double, Long, Date };

struct Column {
    std::string name;
    ColumnType type;
};

struct Table {
    std::string name;
    std::vector<Column> columns;
};

// Every table of the store with its columns in order.
const std::vector<Table>& tables();

// The user a ready store opens with.
inline constexpr const char* kFirstUserName = "ADMIN";
inline constexpr const char* kFirstUserPassword = "tallimark";

// Creates the tables, their indexes and date handling in an empty store.
void createTables(Store& store);
// Makes a ready store file: the tables, the twelve months and the first user.
void createReadyStore(const std::filesystem::path& file);

// The working ledger DummyTracker lives in memory while the store is open: a table of the same
// name, columns, dates and index that stands before the file's for every statement, filled from
// the file's rows as the store opens. Every refresh rewrites the held series' rows, and a load
// rebuilds them from Tracker anyway, so they need not reach the disk at each step.
void keepWorkingLedgerInMemory(Store& store);
// Writes the working ledger back to the file's table, as the store closes.
void saveWorkingLedger(Store& store);

} // namespace schema
} // namespace tallimark
