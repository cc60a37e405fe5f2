#include "reports/SelectionFormula.h"

#include "frame/Store.h"
#include "frame/VbNumber.h"

#include <cctype>
#include <cstdio>
#include <vector>

namespace tallimark {

namespace {

enum class Tok { Field, Text, Number, Word, Op, Open, Close, OpenSq, CloseSq, Comma, End };

struct Token {
    Tok kind;
    std::string text;
};

bool isNameChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

std::vector<Token> tokenize(std::string_view f) {
    std::vector<Token> out;
    size_t i = 0;
    auto fail = [&](const std::string& what) {
        throw SelectionError("Selection formula: " + what + " at position " + std::to_string(i + 1));
    };
    while (i < f.size()) {
        const char c = f[i];
        if (std::isspace(static_cast<unsigned char>(c))) {
            ++i;
        } else if (c == '{') {
            const size_t end = f.find('}', i);
            if (end == std::string_view::npos) fail("a field without its closing brace");
            const std::string name(f.substr(i + 1, end - i - 1));
            const size_t dot = name.find('.');
            bool ok = dot != std::string::npos && dot > 0 && dot + 1 < name.size();
            for (char n : name)
                ok = ok && (isNameChar(n) || n == '.');
            if (!ok) fail("a field that is not {Table.Field}");
            out.push_back({Tok::Field, name});
            i = end + 1;
        } else if (c == '\'' || c == '"') {
            const size_t end = f.find(c, i + 1);
            if (end == std::string_view::npos) fail("a text without its closing quote");
            out.push_back({Tok::Text, std::string(f.substr(i + 1, end - i - 1))});
            i = end + 1;
        } else if (std::isdigit(static_cast<unsigned char>(c))) {
            size_t j = i;
            while (j < f.size() && (std::isdigit(static_cast<unsigned char>(f[j])) || f[j] == '.'))
                ++j;
            out.push_back({Tok::Number, std::string(f.substr(i, j - i))});
            i = j;
        } else if (isNameChar(c)) {
            size_t j = i;
            while (j < f.size() && isNameChar(f[j]))
                ++j;
            out.push_back({Tok::Word, LCase(std::string(f.substr(i, j - i)))});
            i = j;
        } else if (c == '<' || c == '>' || c == '=') {
            std::string op(1, c);
            if (i + 1 < f.size() && (f[i + 1] == '=' || (c == '<' && f[i + 1] == '>'))) op += f[i + 1];
            out.push_back({Tok::Op, op});
            i += op.size();
        } else if (c == '(' || c == ')' || c == '[' || c == ']' || c == ',') {
            out.push_back({c == '('   ? Tok::Open
                           : c == ')' ? Tok::Close
                           : c == '[' ? Tok::OpenSq
                           : c == ']' ? Tok::CloseSq
                                      : Tok::Comma,
                           std::string(1, c)});
            ++i;
        } else {
            fail(std::string("an unexpected '") + c + "'");
        }
    }
    out.push_back({Tok::End, {}});
    return out;
}

// What an expression gives, so that a comparison with a date can look at the day alone.
enum class Kind { Field, Date, Other };

struct Expr {
    std::string sql;
    Kind kind = Kind::Other;
};

class Parser {
public:
    explicit Parser(std::vector<Token> tokens) : t_(std::move(tokens)) {}

    SelectionSql run() {
        SelectionSql out;
        if (t_.front().kind == Tok::End) return out;
        out.where = orExpr().sql;
        if (peek().kind != Tok::End) fail("more text after the end of the formula");
        out.tables = tables_;
        return out;
    }

private:
    const Token& peek() const { return t_[pos_]; }
    Token take() { return t_[pos_++]; }
    bool word(const char* w) {
        if (peek().kind == Tok::Word && peek().text == w) {
            ++pos_;
            return true;
        }
        return false;
    }
    void expect(Tok kind, const char* what) {
        if (peek().kind != kind) fail(std::string("expected ") + what);
        ++pos_;
    }
    [[noreturn]] void fail(const std::string& what) const {
        const std::string near = peek().kind == Tok::End ? "the end" : "'" + peek().text + "'";
        throw SelectionError("Selection formula: " + what + " near " + near);
    }

    Expr orExpr() {
        Expr e = andExpr();
        while (word("or"))
            e = {e.sql + " or " + andExpr().sql};
        return e;
    }
    Expr andExpr() {
        Expr e = notExpr();
        while (word("and"))
            e = {e.sql + " and " + notExpr().sql};
        return e;
    }
    Expr notExpr() {
        if (word("not")) return {"not " + notExpr().sql};
        return comparison();
    }
    // A date compared with a column compares the column's day.
    static std::string side(const Expr& e, const Expr& other) {
        return e.kind == Kind::Field && other.kind == Kind::Date ? "substr(" + e.sql + ", 1, 10)" : e.sql;
    }
    Expr comparison() {
        Expr left = term();
        if (peek().kind == Tok::Op) {
            const std::string op = take().text;
            Expr right = term();
            return {side(left, right) + " " + op + " " + side(right, left)};
        }
        if (word("in")) {
            Expr from = term();
            if (!word("to")) fail("expected 'to' in a range");
            Expr to = term();
            const Expr& bound = from.kind == Kind::Date ? from : to;
            return {side(left, bound) + " between " + from.sql + " and " + to.sql};
        }
        return left;
    }
    Expr term() {
        Expr e = primary();
        if (peek().kind == Tok::OpenSq) {
            ++pos_;
            const std::string from = number();
            if (!word("to")) fail("expected 'to' in a range of characters");
            const std::string to = number();
            expect(Tok::CloseSq, "']'");
            e = {"substr(" + e.sql + ", " + from + ", (" + to + ") - (" + from + ") + 1)"};
        }
        return e;
    }
    std::string number() {
        if (peek().kind != Tok::Number) fail("expected a number");
        return take().text;
    }
    std::vector<Expr> arguments() {
        expect(Tok::Open, "'('");
        std::vector<Expr> args{orExpr()};
        while (peek().kind == Tok::Comma) {
            ++pos_;
            args.push_back(orExpr());
        }
        expect(Tok::Close, "')'");
        return args;
    }
    Expr primary() {
        const Token tok = take();
        switch (tok.kind) {
        case Tok::Field:
            tables_.insert(tok.text.substr(0, tok.text.find('.')));
            return {tok.text, Kind::Field};
        case Tok::Text:
            return {q(tok.text)};
        case Tok::Number:
            return {tok.text};
        case Tok::Open: {
            Expr e = orExpr();
            expect(Tok::Close, "')'");
            return {"(" + e.sql + ")", e.kind};
        }
        case Tok::Word:
            if (tok.text == "date") return date();
            if (tok.text == "tonumber") {
                const auto args = arguments();
                if (args.size() != 1) fail("TONUMBER takes one value");
                return {"cast(" + args[0].sql + " as real)"};
            }
            if (tok.text == "true" || tok.text == "false") return {tok.text == "true" ? "1" : "0"};
            break;
        default:
            break;
        }
        --pos_;
        fail("expected a value");
    }
    // date(2026,11,23) of plain numbers is a literal; of expressions it is built in SQL.
    Expr date() {
        const size_t start = pos_;
        const auto args = arguments();
        if (args.size() != 3) fail("a date takes a year, a month and a day");
        bool literal = true;
        for (size_t k = start + 1; k < pos_ - 1; ++k)
            literal = literal && (t_[k].kind == Tok::Number || t_[k].kind == Tok::Comma);
        if (literal) {
            char buf[32];
            std::snprintf(buf, sizeof buf, "'%04d-%02d-%02d'", std::stoi(args[0].sql), std::stoi(args[1].sql),
                          std::stoi(args[2].sql));
            return {buf, Kind::Date};
        }
        return {"printf('%04d-%02d-%02d', " + args[0].sql + ", " + args[1].sql + ", " + args[2].sql + ")",
                Kind::Date};
    }

    std::vector<Token> t_;
    size_t pos_ = 0;
    std::set<std::string> tables_;
};

} // namespace

SelectionSql translateSelection(std::string_view formula) {
    return Parser(tokenize(formula)).run();
}

} // namespace tallimark
