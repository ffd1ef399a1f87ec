// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/SqlTokens.h"

#include "platform/text/Words.h"

namespace ado {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// Index after the closing quote of the text that begins at `at`, or npos. Doubled quotes stay inside.
size_t endOfText(std::string_view sql, size_t at) {
    for (size_t i = at + 1; i < sql.size(); ++i) {
        if (sql[i] != '\'') continue;
        if (i + 1 >= sql.size() || sql[i + 1] != '\'') return i + 1;
        ++i;
    }
    return std::string_view::npos;
}

/// Index after the mark that closes what begins at `at`, or npos.
size_t endOfMarked(std::string_view sql, size_t at, char mark) {
    const size_t found = sql.find(mark, at + 1);
    return found == std::string_view::npos ? found : found + 1;
}

}  // namespace

Result<std::vector<SqlToken>> splitSql(const QByteArray& bytes) {
    using Kind = SqlToken::Kind;
    const std::string_view sql(bytes.constData(), static_cast<size_t>(bytes.size()));
    if (bytes.contains('\0')) return refusedStatement(Words::tr("carattere nullo"));
    std::vector<SqlToken> tokens;
    tokens.reserve(sql.size() / 4);
    for (size_t at = 0; at < sql.size();) {
        const char c = sql[at];
        const char next = at + 1 < sql.size() ? sql[at + 1] : '\0';
        if (isBlank(c)) {
            ++at;
            continue;
        }
        if ((c == '-' && next == '-') || (c == '/' && next == '*'))
            return refusedStatement(Words::tr("commento"));
        if (c == '?' || c == ':' || c == '@' || c == '$') return refusedStatement(Words::tr("parametro"));
        if (c == '"' || c == '`') return wrongStatement(Words::tr("virgolette fuori da un testo"));
        Kind kind = Kind::Sign;
        size_t end = at + 1;
        if (c == '\'') {
            kind = Kind::Text;
            end = endOfText(sql, at);
        } else if (c == '[') {
            kind = Kind::Name;
            end = endOfMarked(sql, at, ']');
        } else if (c == '#') {
            kind = Kind::Date;
            end = endOfMarked(sql, at, '#');
        } else if (isWordStart(c)) {
            kind = Kind::Word;
            while (end < sql.size() && (isWordStart(sql[end]) || isDigit(sql[end])))
                ++end;
        } else if (isDigit(c) || (c == '.' && isDigit(next))) {
            kind = Kind::Number;
            while (end < sql.size() && (isWordStart(sql[end]) || isDigit(sql[end]) || sql[end] == '.'))
                ++end;
        }
        if (end == std::string_view::npos)
            return wrongStatement(kind == Kind::Text   ? Words::tr("manca un apice di chiusura")
                                  : kind == Kind::Name ? Words::tr("manca una parentesi quadra di chiusura")
                                                       : Words::tr("manca un cancelletto di chiusura"));
        const bool marked = kind == Kind::Text || kind == Kind::Name || kind == Kind::Date;
        const std::string_view text = marked ? sql.substr(at + 1, end - at - 2) : sql.substr(at, end - at);
        tokens.push_back({kind, text, static_cast<qsizetype>(at), static_cast<qsizetype>(end)});
        at = end;
    }
    return tokens;
}

std::string quotedName(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

Status refusedStatement(const QString& what) {
    return {ErrorCode::NotSupported, Words::tr("Istruzione SQL non ammessa: %1.").arg(what)};
}

Status wrongStatement(const QString& what) {
    return {ErrorCode::SyntaxError, Words::tr("Errore di sintassi nell'istruzione SQL: %1.").arg(what)};
}

}  // namespace ado
