// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/StatementText.h"

#include <gtest/gtest.h>

namespace statement_text_test {

namespace {

using ado::StatementText;
using Verb = StatementText::Verb;

ErrorCode failure(const std::string& text) {
    return StatementText::read(QString::fromStdString(text)).status().code();
}

StatementText accepted(const char* text) {
    const auto result = StatementText::read(QString::fromUtf8(text));
    EXPECT_TRUE(result.ok()) << text << ": " << result.status().text().toStdString();
    return result.ok() ? result.value() : StatementText();
}

}  // namespace

TEST(StatementText, FindsTheTableOfEachKindOfStatement) {
    const struct {
        const char* text;
        Verb verb;
        const char* table;
        const char* readFrom;
    } rows[] = {
        {"SELECT * FROM [tb_gruppi] WHERE id_up = 0 ORDER BY nome ASC;", Verb::Select, "tb_gruppi", ""},
        {"select nome from tb_gruppi", Verb::Select, "tb_gruppi", ""},
        {"SELECT * FROM [Tabella con blanks] ;", Verb::Select, "Tabella con blanks", ""},
        {"SELECT * FROM Citt\u00e0", Verb::Select, "Citt\u00e0", ""},
        {"UPDATE [tb_destinatari] SET sel = True;", Verb::Update, "tb_destinatari", ""},
        {"DELETE FROM [tb_gruppi] WHERE id = 3 ;", Verb::Delete, "tb_gruppi", ""},
        {"INSERT INTO [tb_gruppi] (nome) VALUES ('SELECT; -- FROM /* x')", Verb::Insert, "tb_gruppi", ""},
        {"INSERT INTO a (id_grp,rgs) SELECT 7 as id_grp, rgs FROM b WHERE id_grp = 2 ;", Verb::Insert, "a",
         "b"},
    };
    for (const auto& row : rows) {
        const StatementText statement = accepted(row.text);
        EXPECT_EQ(statement.verb, row.verb) << row.text;
        EXPECT_EQ(statement.table.toStdString(), row.table) << row.text;
        EXPECT_EQ(statement.readFrom.toStdString(), row.readFrom) << row.text;
    }
}

TEST(StatementText, KnowsAMarkingOfAllRowsAndOfOne) {
    const auto all = accepted("UPDATE [t] SET sel = True;").marking;
    ASSERT_TRUE(all);
    EXPECT_EQ(all->column, "sel");
    EXPECT_TRUE(all->value);
    EXPECT_FALSE(all->key);
    const auto one = accepted("update t set [due parole] = false where [id] = 7 ;").marking;
    ASSERT_TRUE(one && one->key);
    EXPECT_EQ(one->column, "due parole");
    EXPECT_FALSE(one->value);
    EXPECT_EQ(one->key->column, "id");
    EXPECT_EQ(one->key->number, 7);
    for (const char* other :
         {"UPDATE t SET a = 1 WHERE id = 7", "UPDATE t SET a = True, b = True WHERE id = 7",
          "UPDATE t SET a = True WHERE id = -7", "UPDATE t SET a = True WHERE id = 7.0",
          "UPDATE t SET a = True WHERE id = 7 AND b = 2", "UPDATE t SET a = True WHERE id > 7",
          "UPDATE t SET \u00e0 = True WHERE id = 7", "UPDATE t SET a = True WHERE key = 7"})
        EXPECT_FALSE(accepted(other).marking) << other;
}

// The text of a recordset's rows is remembered.
TEST(StatementText, IsTheSameWhenItIsReadAgain) {
    const QString text = QStringLiteral("SELECT * FROM t WHERE a = 5 ORDER BY b DESC");
    const StatementText first = accepted("SELECT * FROM t WHERE a = 5 ORDER BY b DESC");
    (void)accepted("UPDATE t SET a = 6 WHERE id = 1");
    for (const auto& again :
         {StatementText::read(text), StatementText::read(QString(text.data(), text.size()))}) {
        ASSERT_TRUE(again.ok());
        EXPECT_EQ(again.value().sql, first.sql);
        EXPECT_EQ(again.value().values, first.values);
        EXPECT_EQ(again.value().table, first.table);
        ASSERT_TRUE(again.value().plain);
        EXPECT_EQ(again.value().plain->number, 5);
        EXPECT_FALSE(again.value().plain->order.front().ascending);
    }
    EXPECT_EQ(accepted("SELECT * FROM t WHERE a = 6").plain->number, 6);
}

TEST(StatementText, KnowsWhereRowsCanBeKeptByTheirIdentities) {
    for (const char* text : {"SELECT * FROM [t] ;", "SELECT * FROM t WHERE a = 5 ORDER BY b ASC, c DESC"}) {
        const auto list = accepted(text).list;
        ASSERT_TRUE(list) << text;
        EXPECT_EQ(list->at, 7);
        EXPECT_EQ(list->size, 2);
        EXPECT_TRUE(list->columns.empty());
    }
    const auto named = accepted("SELECT a, [due parole] FROM t ORDER BY a").list;
    ASSERT_TRUE(named);
    EXPECT_EQ(named->size, 16);
    EXPECT_EQ(named->columns, (std::vector<std::string>{"a", "due parole"}));
    EXPECT_FALSE(accepted("SELECT DISTINCT a FROM t").list);
    EXPECT_FALSE(accepted("SELECT a + 1 FROM t").list);
    EXPECT_FALSE(accepted("SELECT a AS b FROM t").list);
    EXPECT_FALSE(accepted("SELECT *, a FROM t").list);
    EXPECT_FALSE(accepted("SELECT count(*) FROM t").list);
    EXPECT_FALSE(accepted("SELECT * FROM t ORDER BY 1").list);
    EXPECT_FALSE(accepted("SELECT * FROM t GROUP BY a").list);
    EXPECT_FALSE(accepted("INSERT INTO t SELECT * FROM t").list);
}

TEST(StatementText, TextAfterTheFirstStatementIsRefused) {
    for (const char* text : {"DELETE FROM t; DELETE FROM u", "SELECT * FROM t;;", "SELECT * FROM t; x",
                             "; SELECT * FROM t", "INSERT INTO t (a) VALUES ('x'); DELETE FROM t;"})
        EXPECT_EQ(failure(text), ErrorCode::NotSupported) << text;
}

TEST(StatementText, CommentsAndParametersAreRefused) {
    for (const char* text : {"SELECT * FROM t -- x", "SELECT * FROM t /* x */", "SELECT * FROM t /* x",
                             "/**/SELECT 1", "SELECT * FROM t WHERE a = ?", "SELECT * FROM t WHERE a = :b",
                             "SELECT * FROM t WHERE a = @b", "SELECT * FROM t WHERE a = $b"})
        EXPECT_EQ(failure(text), ErrorCode::NotSupported) << text;
    EXPECT_EQ(failure(std::string("SELECT * FROM t\0", 16)), ErrorCode::NotSupported);
}

TEST(StatementText, OtherKindsOfStatementsAreRefused) {
    for (const char* text :
         {"CREATE TABLE x (a)", "DROP TABLE t", "ALTER TABLE t ADD b", "ATTACH 'x' AS y", "DETACH y",
          "PRAGMA page_size", "BEGIN", "COMMIT", "ROLLBACK", "SAVEPOINT x", "VACUUM", "REINDEX", "ANALYZE",
          "EXPLAIN SELECT * FROM t", "REPLACE INTO t (a) VALUES (1)", "WITH x AS (SELECT 1) SELECT * FROM x",
          "VALUES (1)", "(SELECT * FROM t)"})
        EXPECT_EQ(failure(text), ErrorCode::NotSupported) << text;
}

TEST(StatementText, MoreThanOneSourceOfRowsIsRefused) {
    for (const char* text : {"SELECT * FROM t, u",
                             "SELECT * FROM t JOIN u",
                             "SELECT * FROM t NATURAL JOIN u",
                             "SELECT * FROM t AS a",
                             "SELECT * FROM t a",
                             "SELECT * FROM main.t",
                             "SELECT * FROM (SELECT * FROM t)",
                             "SELECT * FROM f('x')",
                             "SELECT * FROM t WHERE a IN (SELECT a FROM u)",
                             "SELECT (SELECT 1) FROM t",
                             "SELECT * FROM t UNION SELECT * FROM u",
                             "SELECT * FROM t WHERE a = 1 UNION SELECT 1",
                             "SELECT 1",
                             "SELECT * FROM",
                             "SELECT * FROM 'sqlite_master'",
                             "UPDATE t SET a = (SELECT b FROM u)",
                             "UPDATE t SET a = 1 FROM u",
                             "UPDATE OR IGNORE t SET a = 1",
                             "UPDATE t SET a = 1 RETURNING *",
                             "DELETE FROM t WHERE a IN (SELECT a FROM u)",
                             "DELETE FROM t RETURNING a",
                             "DELETE t",
                             "INSERT OR REPLACE INTO t (a) VALUES (1)",
                             "INSERT INTO t (a) SELECT a FROM u, v",
                             "INSERT INTO t (a) SELECT a FROM u UNION SELECT 1",
                             "INSERT INTO t (a) VALUES (1) ON CONFLICT DO NOTHING",
                             "INSERT INTO t (a) SELECT 1",
                             "INSERT INTO t",
                             "INSERT INTO main.t (a) VALUES (1)",
                             "INSERT INTO t (a) VALUES (1) RETURNING a"})
        EXPECT_EQ(failure(text), ErrorCode::NotSupported) << text;
}

TEST(StatementText, OneRowOfLiteralsIsInserted) {
    accepted("INSERT INTO t (a, [b c], d, e) VALUES (-1, 'x', Null, True)");
    accepted("INSERT INTO t VALUES (+1.5, #12/31/2005#) ;");
    for (const char* text : {"INSERT INTO t (a) VALUES ('x'), ('y')", "INSERT INTO t (a) VALUES ('x') ('y')",
                             "INSERT INTO t (a b) VALUES (1)", "INSERT INTO t (a) (b) VALUES (1)"})
        EXPECT_EQ(failure(text), ErrorCode::NotSupported) << text;
    for (const char* text :
         {"INSERT INTO t (a) VALUES", "INSERT INTO t (a) VALUES 1", "INSERT INTO t (a) VALUES )",
          "INSERT INTO t (a) VALUES ('x'", "INSERT INTO t (a) VALUES ()", "INSERT INTO t (a) VALUES ('x',)",
          "INSERT INTO t (a) VALUES ('O'Brien')", "INSERT INTO t (a) VALUES ('Rock''n'Roll')",
          "INSERT INTO t (a) VALUES ('x' || 'y')", "INSERT INTO t (a) VALUES ((1))",
          "INSERT INTO t (a) VALUES (b)", "INSERT INTO t (a) VALUES ((SELECT b FROM u))",
          "INSERT INTO t (a) VALUES (-'x')"})
        EXPECT_EQ(failure(text), ErrorCode::SyntaxError) << text;
}

TEST(StatementText, LiteralsAreTakenOutOfTheText) {
    const auto shape = [](const char* text) { return accepted(text).sql.toStdString(); };
    const StatementText insert = accepted("INSERT INTO t (a, b, c, d) VALUES (12, 'L''oro', -1.5, True) ;");
    EXPECT_EQ(insert.sql.toStdString(), "INSERT INTO t (a, b, c, d) VALUES (?, ?, -?, (-1)) ;");
    EXPECT_EQ(insert.values, (std::vector<jet::Value>{int64_t{12}, std::string("L'oro"), 1.5}));
    EXPECT_EQ(shape("SELECT * FROM [a'1'] WHERE b = 'x' ORDER BY 2"),
              "SELECT * FROM [a'1'] WHERE b = ? ORDER BY 2");
    EXPECT_EQ(shape("SELECT * FROM t WHERE c = 1e3 OR d = 0x1F"),
              "SELECT * FROM t WHERE c = 1e3 OR d = 0x1F");
    EXPECT_EQ(accepted("SELECT * FROM t WHERE a = #1/2/1900 12:00#").values, std::vector<jet::Value>{3.5});
    EXPECT_EQ(failure("SELECT * FROM t WHERE a = #13/32/2000#"), ErrorCode::SyntaxError);
    EXPECT_EQ(failure("SELECT * FROM t WHERE a = #1/1/2000"), ErrorCode::SyntaxError);
}

TEST(StatementText, WhatIsNotClosedIsASyntaxError) {
    for (const char* text : {"", "   ", ";", "SELECT * FROM [t", "INSERT INTO t (a) VALUES ('D'Amico')",
                             "INSERT INTO t (a) VALUES ('x", "SELECT * FROM \"t\"", "SELECT * FROM `t`"})
        EXPECT_EQ(failure(text), ErrorCode::SyntaxError) << text;
}

TEST(StatementText, TheLongestRecipientPassesAndAnEndlessTextDoesNot) {
    std::string longest = "INSERT INTO t (a) VALUES (";
    for (int i = 0; i < 19; ++i)
        longest += "'" + std::string(510, '\'') + "', ";
    EXPECT_EQ(failure(longest + "'')"), ErrorCode::None);
    EXPECT_EQ(failure("SELECT * FROM t WHERE a = '" + std::string(64000, 'x') + "'"),
              ErrorCode::NotSupported);
}

}  // namespace statement_text_test
