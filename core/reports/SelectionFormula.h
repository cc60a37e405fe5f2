#pragma once
// The selection formula of a report run, in the report engine's own syntax, turned into the
// WHERE clause of a statement over the same rows. This is the one place that knows the syntax:
//
//   {Table.Field}                       a column, written Table.Field in SQL
//   'text', 12, 12.5                    literals; texts pass the store's quoting function
//   = <> < > <= >=, and, or, not, ( )   as in SQL
//   x in a to b                         x between a and b (both ends included)
//   date(2026,11,23)                    the date as the store keeps it, '2026-11-23'
//   DATE(y, m, d)                       a date made of three numbers
//   TONUMBER(x)                         a text read as a number
//   {Table.Field}[7 TO 10]              the characters 7 to 10 of a text, counted from 1
//
// A date column is compared on its day alone, so a stored time of day never hides a row.
#include "frame/VbError.h"

#include <set>
#include <string>
#include <string_view>

namespace tallimark {

// A selection the translator cannot read: the report run fails with this text.
class SelectionError : public VbError {
public:
    explicit SelectionError(const std::string& text) : VbError(vberr::InvalidCall, text) {}
};

struct SelectionSql {
    std::string where;            // empty when the formula selects every row
    std::set<std::string> tables; // the tables the formula names, as written
};

SelectionSql translateSelection(std::string_view formula);

} // namespace tallimark
