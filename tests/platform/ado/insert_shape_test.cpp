// SPDX-License-Identifier: GPL-3.0-or-later
// Rows that go to the table without SQLite, compared with the same statements run by it.
#include "modules/store/NuovoDatabase.h"
#include "platform/ado/GroupedInserts.h"
#include "platform/ado/InsertShape.h"
#include "TestDatabase.h"

namespace insert_shape_test {

namespace {

const QString start = QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel, EMAIL, rgs) VALUES (");

class InsertShapeTest : public ado::TestDatabase {
  protected:
    /// All rows that these statements make, and what each statement says, when groups are that large: SQLite
    /// runs the first of each group.
    QStringList played(const QStringList& statements, int groupSize) {
        run("DELETE FROM tb_destinatari");
        QStringList told;
        {
            ado::GroupedInserts inserts;
            inserts.setGroupSize(groupSize);
            inserts.setGroupAge(std::chrono::hours(1));
            EXPECT_TRUE(inserts.setActiveConnection(connection).ok());
            for (const QString& statement : statements) {
                const Status status = inserts.execute(statement);
                told << statement + QStringLiteral(" -> %1 %2").arg(int(status.code())).arg(status.text());
            }
            EXPECT_TRUE(inserts.commit().ok());
        }
        for (const char* const name : {"id_grp", "sel", "email", "rgs", "nom", "campo1"})
            told << QString::fromStdString(column("SELECT * FROM tb_destinatari ORDER BY id", name));
        return told;
    }
    void expectTheSame(const QStringList& statements) {
        EXPECT_EQ(played(statements, 1000).join('\n').toStdString(),
                  played(statements, 1).join('\n').toStdString());
    }
};

}  // namespace

TEST_F(InsertShapeTest, RowsOfOneShapeAreThoseThatSqliteMakes) {
    // In front of each one that SQLite runs, so that a refused one does not begin the next group
    QStringList statements;
    const auto add = [&](const QString& values) {
        statements << start + "1, True, 'primo', 'a')" << start + values;
    };
    for (const char* const values : {"1, True, 'u@example.org', 'Ditta')",
                                     "1,False,'','')",
                                     "2 , true , 'D''Angelo' , '''')",
                                     "1, TRUE, 'a''''b', '''''');",
                                     "1, False, 'à è ☃ 😀', 'Ω') ; ",
                                     "007, 1, NULL, null)",
                                     "-5, -1, 'x', 'y')",
                                     "'12', 'True', 1, 2)",
                                     "1, 0, 3.5, 1e3)",
                                     "1.5, True, 'x', 'y')",
                                     "2.5, True, 'x', 'y')",
                                     "99999999999, True, 'x', 'y')",
                                     "99999999999999999999, True, 'x', 'y')",
                                     "'abc', True, 'x', 'y')",
                                     "1, 'forse', 'x', 'y')",
                                     "1, True, #01/02/2020#, 'y')",
                                     "1, True, 'x', 'y' )",
                                     "\n1,\tTrue,\r'x','y')",
                                     "1, True, 'x')",
                                     "1, True, 'x', 'y', 'z')",
                                     "1, True, 'x', 'y') 5",
                                     "1, True, 'x', 'y'), (1, True, 'x', 'y')",
                                     "1, True, 'x', 'y",
                                     "1, True, 'x', 'y' 'z')",
                                     "1, True, 'x', rgs)",
                                     "1, True, 'x', --\n'y')",
                                     "1, True, 'x', 'y'); DELETE FROM tb_destinatari",
                                     "1, True, 'x', ?)",
                                     "1, True, ('x'), 'y')",
                                     "1, True, , 'y')",
                                     "+1, True, 'x', 'y')",
                                     "1, True, 'x' , 'y');;",
                                     "1, True, 'un altro', 'dopo')"})
        add(QString::fromUtf8(values));
    add("1, True, '" + QString(300, 'x') + "', 'y')");
    add("1, True, '" + QString(70000, 'x') + "', 'y')");
    add(QString("1, True, 'a") + QChar(0) + "b', 'y')");
    add(QString("1, True, 'mezza ") + QChar(0xD83D) + "', 'y')");
    add("1, True, 'ultimo', 'z')");
    expectTheSame(statements);
}

TEST_F(InsertShapeTest, ADifferentStartIsReadAgain) {
    expectTheSame({start + "1, True, 'a', 'b')", "INSERT INTO tb_destinatari (nom, email) VALUES ('x', 'y')",
                   "insert into tb_destinatari (nom, email) values ('x', 'y')", start + "1, True, 'c', 'd')",
                   "INSERT INTO tb_destinatari (email, email) VALUES ('x', 'y')",
                   "INSERT INTO tb_destinatari (email, email) VALUES ('v', 'w')",
                   "INSERT INTO tb_destinatari (email, manca) VALUES ('v', 'w')",
                   "INSERT INTO tb_manca (email) VALUES ('v')", start + "1, True, 'e', 'f')"});
}

TEST_F(InsertShapeTest, ColumnsNamedTwiceHaveNoShape) {
    jet::TableDefinition table;
    for (const char* const name : {"a", "b"}) {
        jet::Column column;
        column.name = name;
        table.columns.push_back(column);
    }
    const auto shape = [&](const char* statement) {
        return ado::InsertShape::of(ado::StatementText::read(QString::fromUtf8(statement)).value(), table);
    };
    EXPECT_FALSE(shape("INSERT INTO t (a, A) VALUES (1, 2)"));
    EXPECT_FALSE(shape("INSERT INTO t (a, c) VALUES (1, 2)"));
    EXPECT_FALSE(shape("INSERT INTO t VALUES (1, 2)"));
    EXPECT_FALSE(shape("DELETE FROM t"));
    const auto both = shape("INSERT INTO t (B, [a]) VALUES (1, 2)");
    ASSERT_TRUE(both);
    const auto row = both->row(QStringLiteral("INSERT INTO t (B, [a]) VALUES ('x''y',-1 )"));
    EXPECT_FALSE(row);
    const auto values = both->row(QStringLiteral("INSERT INTO t (B, [a]) VALUES ('x''y', 3 )"));
    ASSERT_TRUE(values);
    EXPECT_EQ(values->at(0), jet::Value(int64_t{3}));
    EXPECT_EQ(values->at(1), jet::Value(std::string("x'y")));
}

}  // namespace insert_shape_test
