// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/StatementText.h"

#include <sqlite3.h>
#include <algorithm>
#include <charconv>

#include "platform/ado/DateText.h"
#include "platform/ado/SqlTokens.h"
#include "platform/text/SameText.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

constexpr size_t mostParameters = 500;

using Tokens = std::vector<SqlToken>;
using Kind = SqlToken::Kind;

QString toText(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Walks the tokens of one statement.
class Reader {
  public:
    explicit Reader(const Tokens& tokens) : m_tokens(tokens) {}

    bool atEnd() const { return m_next >= m_tokens.size(); }
    bool take(std::string_view word) {
        if (atEnd() || !m_tokens[m_next].is(word)) return false;
        ++m_next;
        return true;
    }
    /// A name of a table or column, bare or in brackets.
    bool takeName(QString& name) {
        if (atEnd()) return false;
        const SqlToken& token = m_tokens[m_next];
        if (token.kind != Kind::Name && token.kind != Kind::Word) return false;
        name = toText(token.text);
        ++m_next;
        return true;
    }
    /// The same for a name that is found in only one way, whoever reads it.
    bool takePlainName(std::string& name) {
        if (atEnd()) return false;
        const SqlToken& token = m_tokens[m_next];
        const bool word =
            token.kind == Kind::Word &&
            sqlite3_keyword_check(token.text.data(), static_cast<int>(token.text.size())) == 0 &&
            !token.is("TRUE") && !token.is("FALSE");
        const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
        if ((!word && token.kind != Kind::Name) ||
            !std::all_of(token.text.begin(), token.text.end(), isAscii))
            return false;
        name = token.text;
        ++m_next;
        return true;
    }
    bool takeWhole(int64_t& number) {
        if (atEnd() || m_tokens[m_next].kind != Kind::Number) return false;
        const std::string_view text = m_tokens[m_next].text;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return false;
        ++m_next;
        return true;
    }
    /// Names in parentheses, or nothing.
    bool takeColumns(std::vector<std::string>& names) {
        if (!take("(")) return true;
        do {
            QString name;
            if (!takeName(name)) return false;
            names.push_back(name.toStdString());
        } while (take(","));
        return take(")");
    }
    /// Literals in parentheses: what was meant to be inside a text, and slipped out, is none.
    bool skipRow() {
        if (!take("(")) return false;
        do {
            if (atEnd()) return false;
            const bool sign = take("-") || take("+");
            if (atEnd()) return false;
            const SqlToken& token = m_tokens[m_next++];
            const bool number = token.kind == Kind::Number;
            const bool other = token.kind == Kind::Text || token.kind == Kind::Date || token.is("TRUE") ||
                               token.is("FALSE") || token.is("NULL");
            if (!number && (sign || !other)) return false;
        } while (take(","));
        return take(")");
    }
    bool skipTo(std::string_view word) {
        while (!atEnd() && !m_tokens[m_next].is(word))
            ++m_next;
        return take(word);
    }
    bool next(std::initializer_list<std::string_view> words) const {
        return std::any_of(words.begin(), words.end(),
                           [&](std::string_view word) { return m_tokens[m_next].is(word); });
    }
    bool restHas(std::initializer_list<std::string_view> words) const {
        return std::any_of(m_tokens.begin() + static_cast<std::ptrdiff_t>(m_next), m_tokens.end(),
                           [&](const SqlToken& token) {
                               return std::any_of(words.begin(), words.end(),
                                                  [&](std::string_view word) { return token.is(word); });
                           });
    }
    /// Rows found by their identities come out the same, unless a column is named by its number or rows are
    /// joined.
    bool restKeepsRows() const {
        bool ordered = false;
        for (size_t i = m_next; i < m_tokens.size(); ++i) {
            if (m_tokens[i].is("GROUP")) return false;
            ordered = ordered || m_tokens[i].is("ORDER");
            if (ordered && m_tokens[i].kind == Kind::Number) return false;
        }
        return true;
    }
    qsizetype offset() const { return m_tokens[m_next].at; }

  private:
    const Tokens& m_tokens;
    size_t m_next = 0;
};

/// Everything after the table's name: its clauses, and no second source of rows.
bool clausesOnly(const Reader& reader) {
    if (reader.atEnd()) return true;
    return reader.next({"WHERE", "ORDER", "GROUP", "LIMIT"}) &&
           !reader.restHas({"SELECT", "FROM", "JOIN", "UNION", "INTERSECT", "EXCEPT", "WITH", "RETURNING"});
}

/// The same for a statement that changes rows: these are chosen, not ordered or counted.
bool conditionOnly(const Reader& reader) {
    return clausesOnly(reader) && !reader.restHas({"ORDER", "LIMIT", "GROUP"});
}

/// An asterisk or names of columns, up to the word FROM; nothing for anything else.
std::optional<StatementText::List> readList(Reader reader) {
    StatementText::List list;
    if (reader.atEnd()) return std::nullopt;
    list.at = reader.offset();
    if (!reader.take("*")) {
        do {
            QString name;
            if (reader.atEnd() || reader.next({"TRUE", "FALSE"}) || !reader.takeName(name))
                return std::nullopt;
            list.columns.push_back(name.toStdString());
        } while (reader.take(","));
    }
    if (reader.atEnd()) return std::nullopt;
    list.size = reader.offset() - list.at;
    if (!reader.take("FROM")) return std::nullopt;
    return list;
}

/// `list FROM table clauses`, after the word SELECT.
bool readSelect(Reader& reader, QString& table, std::optional<StatementText::List>* list) {
    const std::optional<StatementText::List> wanted = readList(reader);
    if (!reader.skipTo("FROM") || !reader.takeName(table) || !clausesOnly(reader)) return false;
    if (list && reader.restKeepsRows()) *list = wanted;
    return true;
}

/// After the word FROM: nothing where the clauses say more, or a name may mean something else to SQLite.
std::optional<StatementText::Plain> readPlain(Reader reader) {
    StatementText::Plain plain;
    if (std::string table; !reader.takePlainName(table)) return std::nullopt;
    if (reader.take("WHERE")) {
        if (!reader.takePlainName(plain.group.emplace()) || !reader.take("=")) return std::nullopt;
        if (reader.take("TRUE")) {
            plain.number = -1;
        } else if (!reader.take("FALSE") && !reader.takeWhole(plain.number)) {
            return std::nullopt;
        }
    }
    if (reader.take("ORDER")) {
        if (!reader.take("BY")) return std::nullopt;
        do {
            StatementText::Plain::Part& part = plain.order.emplace_back();
            if (!reader.takePlainName(part.column)) return std::nullopt;
            part.ascending = !reader.take("DESC");
            if (part.ascending) (void)reader.take("ASC");
        } while (reader.take(","));
    }
    if (!reader.atEnd()) return std::nullopt;
    return plain;
}

Status readInsert(Reader& reader, StatementText& statement) {
    statement.verb = StatementText::Verb::Insert;
    const auto refused = [] { return refusedStatement(Words::tr("forma non prevista")); };
    StatementText::Row row;
    if (!reader.take("INTO") || !reader.takeName(statement.table) || !reader.takeColumns(row.columns))
        return refused();
    if (reader.take("VALUES")) {
        if (!reader.atEnd()) row.start = statement.sql.first(reader.offset());
        if (!row.columns.empty()) statement.row = std::move(row);
        if (!reader.skipRow()) return wrongStatement(Words::tr("i valori da inserire non sono leggibili"));
        return reader.atEnd() ? Status() : refused();
    }
    if (!reader.take("SELECT") || reader.restHas({"SELECT"})) return refused();
    return readSelect(reader, statement.readFrom, nullptr) ? Status() : refused();
}

/// After the word UPDATE.
std::optional<StatementText::Marking> readMarking(Reader reader) {
    StatementText::Marking marking;
    if (std::string table; !reader.takePlainName(table) || !reader.take("SET")) return std::nullopt;
    if (!reader.takePlainName(marking.column) || !reader.take("=")) return std::nullopt;
    marking.value = reader.take("TRUE");
    if (!marking.value && !reader.take("FALSE")) return std::nullopt;
    if (reader.take("WHERE")) {
        StatementText::Marking::Key key;
        if (!reader.takePlainName(key.column) || !reader.take("=") || !reader.takeWhole(key.number))
            return std::nullopt;
        marking.key = std::move(key);
    }
    return reader.atEnd() ? std::optional(std::move(marking)) : std::nullopt;
}

/// Every other kind of statement.
bool readStatement(Reader& reader, StatementText& statement) {
    using Verb = StatementText::Verb;
    if (reader.take("SELECT")) {
        statement.verb = Verb::Select;
        Reader list = reader;
        if (list.skipTo("SELECT")) return false;
        if (Reader clauses = reader; clauses.skipTo("FROM")) statement.plain = readPlain(clauses);
        return readSelect(reader, statement.table, &statement.list);
    }
    if (reader.take("UPDATE")) {
        statement.verb = Verb::Update;
        statement.marking = readMarking(reader);
        if (!reader.takeName(statement.table) || !reader.take("SET")) return false;
        return !reader.restHas({"SELECT", "FROM", "WITH", "RETURNING", "ORDER", "LIMIT"});
    }
    statement.verb = Verb::Delete;
    return reader.take("DELETE") && reader.take("FROM") && reader.takeName(statement.table) &&
           conditionOnly(reader);
}

/// The value of a literal; nothing for what is better left to SQLite.
std::optional<jet::Value> valueOf(const SqlToken& token) {
    const char* begin = token.text.data();
    const char* end = begin + token.text.size();
    if (token.kind == Kind::Text) {
        std::string text;
        text.reserve(token.text.size());
        for (const char* c = begin; c != end; ++c) {
            text.push_back(*c);
            if (*c == '\'') ++c;  // doubled
        }
        return text;
    }
    int64_t whole = 0;
    if (const auto read = std::from_chars(begin, end, whole); read.ec == std::errc() && read.ptr == end)
        return whole;
    double real = 0;
    if (const auto read = std::from_chars(begin, end, real, std::chars_format::fixed);
        read.ec == std::errc() && read.ptr == end)
        return real;
    return std::nullopt;
}

/// Takes the literals out of the text, so that statements that differ in nothing else are compiled once. True
/// is -1, as the databases have it; SQLite's own is 1.
Status takeLiterals(const Tokens& tokens, StatementText& statement) {
    QByteArray sql;
    qsizetype copied = 0;
    const auto replace = [&](const SqlToken& token, const char* by) {
        sql.append(statement.sql.constData() + copied, token.at - copied).append(by);
        copied = token.end;
    };
    bool ordering = false;
    for (const SqlToken& token : tokens) {
        if (token.is("TRUE")) {
            replace(token, "(-1)");
            continue;
        }
        // A number after these words may be a column's.
        ordering = ordering || token.is("ORDER") || token.is("GROUP");
        if (ordering || statement.values.size() == mostParameters) continue;
        std::optional<jet::Value> value;
        if (token.kind == Kind::Date) {
            const std::optional<double> days = readDate(toText(token.text), DateOrder::MonthFirst);
            if (!days) return wrongStatement(Words::tr("la data #%1# non è valida").arg(toText(token.text)));
            value = *days;
        } else if (token.kind == Kind::Text || token.kind == Kind::Number) {
            value = valueOf(token);
        }
        if (!value) continue;
        statement.values.push_back(std::move(*value));
        replace(token, "?");
    }
    sql.append(statement.sql.constData() + copied, statement.sql.size() - copied);
    statement.sql = std::move(sql);
    return {};
}

}  // namespace

Result<StatementText> StatementText::read(const QString& text) {
    // The same rows are asked for again and again; what a command changes differs each time.
    static thread_local QString knownText;
    static thread_local StatementText known;
    if (!text.isEmpty() && text::sameText(text, knownText)) return known;
    Result<StatementText> statement = readAnew(text);
    if (statement.ok() && statement.value().verb == Verb::Select) {
        knownText = text;
        known = statement.value();
    }
    return statement;
}

Result<StatementText> StatementText::readAnew(const QString& text) {
    if (text.size() > longestStatement) return refusedStatement(Words::tr("testo troppo lungo"));
    StatementText statement;
    statement.sql = text.toUtf8();
    Result<Tokens> pieces = splitSql(statement.sql);
    if (!pieces.ok()) return pieces.status();
    Tokens& tokens = pieces.value();
    const auto end =
        std::find_if(tokens.begin(), tokens.end(), [](const SqlToken& token) { return token.is(";"); });
    if (end != tokens.end() && end + 1 != tokens.end())
        return refusedStatement(Words::tr("più di una istruzione"));
    tokens.erase(end, tokens.end());
    if (tokens.empty()) return wrongStatement(Words::tr("istruzione vuota"));
    if (!tokens.front().is("SELECT") && !tokens.front().is("INSERT") && !tokens.front().is("UPDATE") &&
        !tokens.front().is("DELETE"))
        return refusedStatement(QStringLiteral("sono ammesse SELECT, INSERT, UPDATE e DELETE"));
    Reader reader(tokens);
    if (reader.take("INSERT")) {
        if (Status status = readInsert(reader, statement); !status.ok()) return status;
    } else if (!readStatement(reader, statement)) {
        return refusedStatement(Words::tr("forma non prevista"));
    }
    if (Status status = takeLiterals(tokens, statement); !status.ok()) return status;
    return statement;
}

}  // namespace ado
