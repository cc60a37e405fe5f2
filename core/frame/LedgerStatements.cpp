#include "frame/LedgerStatements.h"

#include <cctype>
#include <string>
#include <strings.h>
#include <vector>

namespace tallimark {

namespace {

// The words and marks of a statement outside its quoted texts, words in lower case; a quoted
// text stands as "'".
std::vector<std::string> tokens(std::string_view sql) {
    std::vector<std::string> out;
    for (size_t i = 0; i < sql.size();) {
        const unsigned char c = static_cast<unsigned char>(sql[i]);
        if (std::isspace(c)) {
            ++i;
        } else if (c == '\'') {
            const size_t end = sql.find('\'', i + 1);
            i = end == std::string_view::npos ? sql.size() : end + 1;
            out.emplace_back("'");
        } else if (std::isalnum(c) || c == '_') {
            std::string word;
            while (i < sql.size() && (std::isalnum(static_cast<unsigned char>(sql[i])) || sql[i] == '_'))
                word += static_cast<char>(std::tolower(static_cast<unsigned char>(sql[i++])));
            out.push_back(std::move(word));
        } else {
            out.emplace_back(1, static_cast<char>(c));
            ++i;
        }
    }
    return out;
}

constexpr std::string_view kLedger = "dummytracker";

// The table an insert, update or delete writes: the word after INTO, UPDATE [OR ...] or FROM,
// past a schema name.
std::string_view target(const std::vector<std::string>& t) {
    const std::string& verb = t.front();
    size_t at = 0;
    if (verb == "insert" || verb == "replace") {
        while (at < t.size() && t[at] != "into")
            ++at;
    } else if (verb == "update") {
        if (t.size() > 1 && t[1] == "or") at = 2;
    } else if (verb == "delete") {
        while (at < t.size() && t[at] != "from")
            ++at;
    }
    ++at;
    if (at + 2 < t.size() && t[at + 1] == ".") at += 2;
    return at < t.size() ? std::string_view(t[at]) : std::string_view();
}

} // namespace

LedgerUse ledgerUse(std::string_view sql) {
    // Most statements never name the ledger: they are let through before being taken apart.
    bool mentioned = false;
    for (size_t i = 0; !mentioned && i + kLedger.size() <= sql.size(); ++i)
        mentioned = strncasecmp(sql.data() + i, kLedger.data(), kLedger.size()) == 0;
    if (!mentioned) return {};
    const std::vector<std::string> t = tokens(sql);
    bool names = false;
    for (const std::string& word : t)
        names = names || word == kLedger;
    if (!names || t.empty()) return {};
    const std::string& verb = t.front();
    const bool select = verb == "select";
    const bool dml = verb == "insert" || verb == "replace" || verb == "update" || verb == "delete";
    LedgerUse use;
    use.writes = !select && (!dml || target(t) == kLedger);
    use.seesWaitingWrites = use.writes || (!select && !dml);
    for (size_t i = 0; i < t.size() && !use.seesWaitingWrites; ++i) {
        const std::string& w = t[i];
        const std::string_view before = i ? std::string_view(t[i - 1]) : std::string_view();
        use.seesWaitingWrites = w == "last" || w == "vol" || w == "delta" || w == "dumthval" ||
                                (w == "*" && (before == "select" || before == "distinct" || before == "all" ||
                                              before == "," || before == "."));
    }
    return use;
}

} // namespace tallimark
