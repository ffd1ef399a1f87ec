// SPDX-License-Identifier: GPL-3.0-or-later
// The tokenizer of statements.
#pragma once

#include <algorithm>
#include <QByteArray>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Status.h"

namespace ado {

/// A piece of a statement. Its text belongs to the statement that was split.
struct SqlToken {
    enum class Kind { Word, Number, Name, Text, Date, Sign };
    Kind kind = Kind::Sign;
    std::string_view text;  ///< unchanged; of a name, a text and a date what is between its marks
    qsizetype at = 0;       ///< of the first character, marks included
    qsizetype end = 0;

    /// Whether this is that word, in capitals, or sign.
    bool is(std::string_view word) const {
        const auto capital = [](char c) {
            return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        };
        return text.size() == word.size() && (kind == Kind::Word || kind == Kind::Sign) &&
               std::equal(text.begin(), text.end(), word.begin(),
                          [&](char mine, char theirs) { return capital(mine) == theirs; });
    }
};

/// The pieces of a statement in UTF-8. Names may be in brackets, texts are in single quotes, dates
/// between number signs. Fails with SyntaxError for what is not closed, NotSupported for comments, parameters
/// and NUL.
Result<std::vector<SqlToken>> splitSql(const QByteArray& sql);

/// White space of a statement.
inline bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

/// A name as SQLite takes it, whatever it contains.
std::string quotedName(std::string_view name);

Status refusedStatement(const QString& what);
Status wrongStatement(const QString& what);

}  // namespace ado
