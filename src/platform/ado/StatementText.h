// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <string>
#include <vector>

#include "platform/jet/Value.h"
#include "platform/Status.h"

namespace ado {

inline constexpr qsizetype longestStatement = 64000;  ///< in UTF-16 units

/// One statement as it was given, with what has to be known before SQLite compiles it.
///
/// Only the shapes that work on one table are accepted: a single SELECT, INSERT … VALUES, INSERT … SELECT,
/// UPDATE or DELETE. So a text can cost at most one walk over its table, and a value that slipped out of its
/// quotes cannot reach anything else. What may be touched inside that frame is checked again while the
/// statement is compiled.
struct StatementText {
    enum class Verb { Select, Insert, Update, Delete };

    Verb verb = Verb::Select;
    QByteArray sql;  ///< UTF-8, as given, but with a question mark for each literal of `values`
    std::vector<jet::Value> values;
    QString table;     ///< the one that is read, or written
    QString readFrom;  ///< the table that an INSERT … SELECT reads, else empty
    /// What is between SELECT and FROM, where rows can be found by their identities.
    struct List {
        qsizetype at = 0;  ///< in `sql`
        qsizetype size = 0;
        std::vector<std::string> columns;  ///< names in UTF-8; none: all of them, by an asterisk
    };
    std::optional<List> list;

    /// The clauses of a SELECT that says which rows by one whole number at most (`WHERE column = 7`, or True
    /// or False), and in which order by columns.
    struct Plain {
        struct Part {
            std::string column;
            bool ascending = true;
        };
        std::optional<std::string> group;  ///< the column with the number
        int64_t number = 0;                ///< True is -1
        std::vector<Part> order;
    };
    std::optional<Plain> plain;

    /// INSERT … VALUES with the names of columns.
    struct Row {
        QByteArray start;                  ///< the text as it was given, up to the parenthesis of the values
        std::vector<std::string> columns;  ///< names in UTF-8
    };
    std::optional<Row> row;

    /// `UPDATE table SET column = True` or False, on all rows or on that with a number (`WHERE id = 7`),
    /// where the names can be read in one way only.
    struct Marking {
        struct Key {
            std::string column;
            int64_t number = 0;
        };
        std::string column;
        bool value = false;
        std::optional<Key> key;  ///< none: all rows
    };
    std::optional<Marking> marking;

    /// Fails with SyntaxError or NotSupported. Comments, parameters, more than one statement and texts beyond
    /// 64,000 characters are refused.
    static Result<StatementText> read(const QString& text);

  private:
    static Result<StatementText> readAnew(const QString& text);
};

}  // namespace ado
