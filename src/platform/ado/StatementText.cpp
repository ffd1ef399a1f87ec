#include "platform/ado/StatementText.h"

#include <algorithm>
#include <array>
#include <vector>

namespace ado {

namespace {

constexpr qsizetype longestStatement = 64000;

struct Token {
    enum class Kind { Word, Number, Name, Text, Sign };
    Kind kind = Kind::Sign;
    QByteArray text;  ///< a word in capitals, a name without its brackets, a sign as it stands
    qsizetype at = 0;

    bool is(const char* word) const { return (kind == Kind::Word || kind == Kind::Sign) && text == word; }
};
using Tokens = std::vector<Token>;

Status refused(const QString& what) {
    return {ErrorCode::NotSupported, QStringLiteral("Istruzione SQL non ammessa: %1.").arg(what)};
}

Status syntax(const QString& what) {
    return {ErrorCode::SyntaxError, QStringLiteral("Errore di sintassi nell'istruzione SQL: %1.").arg(what)};
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// Index behind the closing quote of the text that begins at `at`, or -1. Doubled quotes stay inside.
qsizetype endOfText(const QByteArray& sql, qsizetype at) {
    for (qsizetype i = at + 1; i < sql.size(); ++i) {
        if (sql[i] != '\'') continue;
        if (i + 1 >= sql.size() || sql[i + 1] != '\'') return i + 1;
        ++i;
    }
    return -1;
}

Result<Tokens> split(const QByteArray& sql) {
    Tokens tokens;
    for (qsizetype at = 0; at < sql.size();) {
        const char c = sql[at];
        const char next = at + 1 < sql.size() ? sql[at + 1] : '\0';
        qsizetype end = at + 1;
        if (c == '\0') return refused(QStringLiteral("carattere nullo"));
        if (isBlank(c)) {
            at = end;
            continue;
        }
        if ((c == '-' && next == '-') || (c == '/' && next == '*'))
            return refused(QStringLiteral("commento"));
        if (c == '?' || c == ':' || c == '@' || c == '$') return refused(QStringLiteral("parametro"));
        Token token{Token::Kind::Sign, {}, at};
        if (c == '\'') {
            end = endOfText(sql, at);
            if (end < 0) return syntax(QStringLiteral("manca un apice di chiusura"));
            token.kind = Token::Kind::Text;
        } else if (c == '[') {
            end = sql.indexOf(']', at) + 1;
            if (end == 0) return syntax(QStringLiteral("manca una parentesi quadra di chiusura"));
            token.kind = Token::Kind::Name;
            token.text = sql.mid(at + 1, end - at - 2);
        } else if (c == '"' || c == '`') {
            return syntax(QStringLiteral("virgolette fuori da un testo"));
        } else if (isWordStart(c)) {
            while (end < sql.size() && (isWordStart(sql[end]) || isDigit(sql[end])))
                ++end;
            token.kind = Token::Kind::Word;
            token.text = sql.mid(at, end - at).toUpper();
        } else if (isDigit(c) || (c == '.' && isDigit(next))) {
            while (end < sql.size() && (isWordStart(sql[end]) || isDigit(sql[end]) || sql[end] == '.'))
                ++end;
            token.kind = Token::Kind::Number;
        } else {
            token.text = QByteArray(1, c);
        }
        at = end;
        tokens.push_back(std::move(token));
    }
    return tokens;
}

/// Walks the tokens of one statement.
class Reader {
  public:
    Reader(const QByteArray& sql, const Tokens& tokens) : m_sql(sql), m_tokens(tokens) {}

    bool atEnd() const { return m_next >= m_tokens.size(); }
    bool take(const char* word) {
        if (atEnd() || !m_tokens[m_next].is(word)) return false;
        ++m_next;
        return true;
    }
    /// A table's name, bare or in brackets.
    bool takeName(QString& name) {
        if (atEnd()) return false;
        const Token& token = m_tokens[m_next];
        if (token.kind == Token::Kind::Name) {
            name = QString::fromUtf8(token.text);
        } else if (token.kind == Token::Kind::Word) {
            name = QString::fromUtf8(m_sql.mid(token.at, token.text.size()));
        } else {
            return false;
        }
        ++m_next;
        return true;
    }
    bool skipTo(const char* word) {
        while (!atEnd() && !m_tokens[m_next].is(word))
            ++m_next;
        return take(word);
    }
    bool next(std::initializer_list<const char*> words) const {
        return std::any_of(words.begin(), words.end(),
                           [&](const char* word) { return m_tokens[m_next].is(word); });
    }
    bool restHas(std::initializer_list<const char*> words) const {
        return std::any_of(m_tokens.begin() + static_cast<std::ptrdiff_t>(m_next), m_tokens.end(),
                           [&](const Token& token) {
                               return std::any_of(words.begin(), words.end(),
                                                  [&](const char* word) { return token.is(word); });
                           });
    }
    /// Rows told by their identities come out the same, unless a column is named by its number or rows are
    /// joined.
    bool restKeepsRows() const {
        bool ordered = false;
        for (size_t i = m_next; i < m_tokens.size(); ++i) {
            if (m_tokens[i].is("GROUP")) return false;
            ordered = ordered || m_tokens[i].is("ORDER");
            if (ordered && m_tokens[i].kind == Token::Kind::Number) return false;
        }
        return true;
    }
    /// The rest is one pair of parentheses with what it holds: the dialect inserts one row at a time.
    bool restIsOneRow() const {
        int depth = 0;
        for (size_t i = m_next; i < m_tokens.size(); ++i) {
            if (m_tokens[i].is("(")) ++depth;
            if (m_tokens[i].is(")")) --depth;
            if (depth <= 0) return depth == 0 && i > m_next && i + 1 == m_tokens.size();
        }
        return false;
    }
    qsizetype offset() const { return m_tokens[m_next].at; }

  private:
    const QByteArray& m_sql;
    const Tokens& m_tokens;
    size_t m_next = 0;
};

/// Everything behind the table's name: its clauses, and no second source of rows.
bool clausesOnly(const Reader& reader) {
    if (reader.atEnd()) return true;
    return reader.next({"WHERE", "ORDER", "GROUP", "LIMIT"}) &&
           !reader.restHas({"SELECT", "FROM", "JOIN", "UNION", "INTERSECT", "EXCEPT", "WITH", "RETURNING"});
}

/// The same for a statement that changes rows: these are chosen, not ordered or counted.
bool conditionOnly(const Reader& reader) {
    return clausesOnly(reader) && !reader.restHas({"ORDER", "LIMIT", "GROUP"});
}

/// `list FROM table clauses`, behind the word SELECT.
bool readSelect(Reader& reader, QString& table, std::optional<qsizetype>* star) {
    Reader whole = reader;
    const qsizetype first = reader.atEnd() ? 0 : reader.offset();
    const bool all = whole.take("*") && whole.take("FROM");
    if (!reader.skipTo("FROM") || !reader.takeName(table) || !clausesOnly(reader)) return false;
    if (star && all && reader.restKeepsRows()) *star = first;
    return true;
}

bool readStatement(Reader& reader, StatementText& statement) {
    using Verb = StatementText::Verb;
    if (reader.take("SELECT")) {
        statement.verb = Verb::Select;
        Reader list = reader;
        if (list.skipTo("SELECT")) return false;
        return readSelect(reader, statement.table, &statement.star);
    }
    if (reader.take("UPDATE")) {
        statement.verb = Verb::Update;
        return reader.takeName(statement.table) && reader.take("SET") &&
               !reader.restHas({"SELECT", "FROM", "WITH", "RETURNING", "ORDER", "LIMIT"});
    }
    if (reader.take("DELETE")) {
        statement.verb = Verb::Delete;
        return reader.take("FROM") && reader.takeName(statement.table) && conditionOnly(reader);
    }
    if (!reader.take("INSERT") || !reader.take("INTO") || !reader.takeName(statement.table)) return false;
    statement.verb = Verb::Insert;
    if (reader.atEnd() || !reader.next({"(", "VALUES", "SELECT"}) ||
        reader.restHas({"CONFLICT", "RETURNING", "WITH"}))
        return false;
    if (!reader.restHas({"SELECT"})) {
        return !reader.restHas({"FROM"}) && reader.skipTo("VALUES") && reader.restIsOneRow();
    }
    reader.skipTo("SELECT");
    return !reader.restHas({"SELECT"}) && readSelect(reader, statement.readFrom, nullptr);
}

}  // namespace

Result<StatementText> StatementText::read(const QString& text) {
    if (text.size() > longestStatement) return refused(QStringLiteral("testo troppo lungo"));
    StatementText statement;
    statement.sql = text.toUtf8();
    Result<Tokens> split_ = split(statement.sql);
    if (!split_.ok()) return split_.status();
    Tokens tokens = std::move(split_).value();
    const auto end =
        std::find_if(tokens.begin(), tokens.end(), [](const Token& token) { return token.is(";"); });
    if (end != tokens.end() && end + 1 != tokens.end())
        return refused(QStringLiteral("più di una istruzione"));
    tokens.erase(end, tokens.end());
    if (tokens.empty()) return syntax(QStringLiteral("istruzione vuota"));
    if (!tokens.front().is("SELECT") && !tokens.front().is("INSERT") && !tokens.front().is("UPDATE") &&
        !tokens.front().is("DELETE"))
        return refused(QStringLiteral("sono ammesse SELECT, INSERT, UPDATE e DELETE"));
    Reader reader(statement.sql, tokens);
    if (!readStatement(reader, statement)) return refused(QStringLiteral("forma non prevista"));
    return statement;
}

}  // namespace ado
