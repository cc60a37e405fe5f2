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
    // Filled only by copies of rows from a table of its shape, whose dates are kept already:
    // its date columns need no handling of their own, which would cost every copied row.
    bool copiesOnly = false;
};

// Every table of the store with its columns in order.
const std::vector<Table>& tables();

// The user a ready store opens with.
inline constexpr const char* kFirstUserName = "ADMIN";
inline constexpr const char* kFirstUserPassword = "tallimark";

// Creates the tables, their indexes and date handling in an empty store.
void createTables(Store& store);
// Brings a store made by an earlier build to the tables of this one: the date handling of a table
// filled by copies only goes.
void upgrade(Store& store);
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
