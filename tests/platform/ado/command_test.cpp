// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "support/HotJournal.h"
#include "TestDatabase.h"

namespace command_test {

namespace {

class CommandTest : public ado::TestDatabase {
  protected:
    void addRecipients(int count, int group) const {
        for (int i = 0; i < count; ++i)
            run(QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs, nom) "
                               "VALUES (%1, %2, 'u%3@example.org', 'Ditta %3', '') ")
                    .arg(group)
                    .arg(i % 2 == 0 ? QStringLiteral("True") : QStringLiteral("False"))
                    .arg(i));
    }
    qint64 count(const char* where) const {
        return open(QStringLiteral("SELECT * FROM [tb_destinatari] WHERE %1 ;").arg(QLatin1String(where)))
            .recordCount();
    }
};

const char* const insertColumns =
    "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs, nom, piva, ind, cap, loc, prov, tel, fax, "
    "campo1, campo2, "
    "campo3, campo4, campo5, campo6, campo7, campo8, campo9) ";

}  // namespace

TEST_F(CommandTest, InsertsARecipientWithAllFields) {
    EXPECT_EQ(
        run(QLatin1String(insertColumns) +
            QStringLiteral(
                "VALUES (12, True, 'a@b.it', 'Rossi & C.', 'Anna', '0123', 'Via Roma 1', '48018', 'Faenza', "
                "'RA', '0546', '', '1', '2', '3', '4', '5', '6', '7', '8', 'perch\u00e9 \u20ac') ")),
        1);
    EXPECT_EQ(column("SELECT * FROM tb_destinatari WHERE id_grp = 12 ORDER BY rgs ASC;", "campo9"),
              "perch\u00e9 \u20ac");
    EXPECT_EQ(column("SELECT * FROM tb_destinatari", "cap"), "48018");
    EXPECT_EQ(column("SELECT * FROM tb_destinatari", "fax"), "");
    EXPECT_EQ(column("SELECT * FROM tb_destinatari", "id"), "1");
}

TEST_F(CommandTest, ADoubledQuoteIsOneAndALoneOneBreaksTheStatement) {
    EXPECT_EQ(run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'L''oro \"vero\"')"), 1);
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "L'oro \"vero\"");
    EXPECT_EQ(failure("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'L'oro')"), ErrorCode::SyntaxError);
    EXPECT_EQ(failure("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'D'Amico e l'altro')"),
              ErrorCode::SyntaxError);
    EXPECT_EQ(open("SELECT * FROM tb_gruppi").recordCount(), 1);
}

TEST_F(CommandTest, AQuoteCannotCarryASecondStatement) {
    addRecipients(3, 1);
    EXPECT_NE(
        failure("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'x'); DELETE FROM tb_destinatari; --')"),
        ErrorCode::None);
    EXPECT_EQ(count("id_grp = 1"), 3);
    EXPECT_EQ(open("SELECT * FROM tb_gruppi").recordCount(), 0);
}

TEST_F(CommandTest, SelectsAndDeselectsARowAGroupAndTheWholeList) {
    addRecipients(4, 1);
    addRecipients(4, 2);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = 1;"), 1);
    EXPECT_EQ(count("sel = True"), 3);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET sel = True WHERE id = 2 ;"), 1);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET sel = True WHERE id_grp = 2 ;"), 4);
    EXPECT_EQ(count("sel = True"), 6);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET sel = True;"), 8);
    EXPECT_EQ(count("sel = True"), 8);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET sel = False;"), 8);
    EXPECT_EQ(count("sel = True"), 0);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = 99;"), 0);
}

TEST_F(CommandTest, MarkingTheWholeListCountsAllRowsAndIsSeenByOpenOrders) {
    for (int i = 0; i < 300; ++i)
        run(QStringLiteral(
                "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs) VALUES (1, %1, 'x', 'r%2')")
                .arg(i % 2 ? "True" : "False")
                .arg(i));
    const char* queue = "SELECT * FROM [tb_destinatari] WHERE [sel] = True ORDER BY rgs";
    ado::Recordset before = open(queue);
    EXPECT_EQ(open(queue).recordCount(), 150);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET sel = True;"), 300);
    EXPECT_EQ(open(queue).recordCount(), 300);
    EXPECT_EQ(before.recordCount(), 150);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET [SEL] = False"), 300);
    EXPECT_EQ(open(queue).recordCount(), 0);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET sel = False;"), 300);
}

// A condition more leaves the statement to SQLite.
TEST_F(CommandTest, MarkingOneRowIsTheSameWithSqliteAndWithout) {
    addRecipients(6, 1);
    run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (3, 'x')");
    for (const char* statement : {"UPDATE [tb_destinatari] SET [sel] = False WHERE [id] = 1",
                                  "UPDATE tb_destinatari SET SEL = True WHERE ID = 1",
                                  "UPDATE tb_destinatari SET sel = True WHERE id = 1",
                                  "UPDATE tb_destinatari SET sel = False WHERE id = 99",
                                  "UPDATE tb_destinatari SET sel = False WHERE id = 9999999999",
                                  "UPDATE tb_destinatari SET sel = False WHERE id_grp = 1",
                                  "UPDATE tb_destinatari SET id_grp = True WHERE id = 2",
                                  "UPDATE tb_gruppi SET nome = False WHERE id = 1",
                                  "UPDATE tb_destinatari SET manca = True WHERE id = 1",
                                  "UPDATE tb_destinatari SET sel = True WHERE manca = 1",
                                  "UPDATE manca SET sel = True WHERE id = 1"}) {
        std::array<QStringList, 2> seen;
        for (const char* more : {"", " AND 1 = 1"}) {
            run("UPDATE tb_destinatari SET sel = True");
            QStringList& now = seen[*more != 0];
            const Result<qint64> rows = tryRun(QString(statement) + more);
            now = {QString::number(rows.ok() ? rows.value() : -1), rows.status().text()};
            for (const char* condition : {"sel = True", "sel = False AND id = 1", "id_grp = -1"})
                now += QString::number(count(condition));
            now += QString::fromStdString(column("SELECT * FROM tb_gruppi", "nome"));
            now += QString::number(
                open("SELECT * FROM tb_destinatari WHERE sel = True ORDER BY rgs").recordCount());
        }
        EXPECT_EQ(seen[0], seen[1]) << statement;
    }
}

TEST_F(CommandTest, AWordThatIsNoYesNoColumnIsNotMarkedButRefusedOrConverted) {
    run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (3, 'x')");
    EXPECT_EQ(run("UPDATE [tb_gruppi] SET id_up = True"), 1);
    EXPECT_EQ(column("SELECT * FROM [tb_gruppi]", "id_up"), "-1");
    EXPECT_EQ(failure("UPDATE [tb_gruppi] SET manca = True"), ErrorCode::ItemNotFound);
    EXPECT_EQ(failure("UPDATE [manca] SET sel = True"), ErrorCode::TableNotFound);
}

TEST_F(CommandTest, ChangesTheColumnThatChoosesTheRows) {
    addRecipients(5, 1);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET id_grp = 2 WHERE id_grp = 1"), 5);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET id_grp = id_grp + 1 WHERE id_grp = 2"), 5);
    EXPECT_EQ(count("id_grp = 3"), 5);
}

TEST_F(CommandTest, SavesARecipientOverItsOldFields) {
    addRecipients(1, 1);
    EXPECT_EQ(run("UPDATE [tb_destinatari] SET id_grp = 4, sel = False, email = 'n@n.it', rgs = 'Nuova', nom "
                  "= '', piva = '', "
                  "ind = '', cap = '', loc = '', prov = '', tel = '', fax = '', campo1 = '', campo2 = '', "
                  "campo3 = '', "
                  "campo4 = '', campo5 = '', campo6 = '', campo7 = '', campo8 = '', campo9 = 'nove' WHERE id "
                  "= 1 ;"),
              1);
    EXPECT_EQ(column("SELECT * FROM [tb_destinatari] WHERE id = 1 ;", "campo9"), "nove");
    EXPECT_EQ(column("SELECT * FROM tb_destinatari WHERE id_grp = 4 ORDER BY rgs ASC;", "rgs"), "Nuova");
    EXPECT_EQ(column("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;", "rgs"), "");
}

TEST_F(CommandTest, CopiesAGroupIntoAnotherOfTheSameTable) {
    addRecipients(6, 1);
    run("UPDATE tb_destinatari SET campo1 = Null WHERE id = 1");
    const char* copy =
        "INSERT INTO tb_destinatari (id_grp,rgs, nom, piva, ind, cap, loc, prov, tel, fax, email, campo1, "
        "campo2, campo3, "
        "campo4, campo5, campo6, campo7, campo8, campo9, sel) SELECT 2 as id_grp, rgs, nom, piva, ind, cap, "
        "loc, prov, tel, "
        "fax, email, campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9, sel FROM "
        "tb_destinatari WHERE "
        "id_grp = 1 ;";
    EXPECT_EQ(run(copy), 6);
    EXPECT_EQ(count("id_grp = 1"), 6);
    EXPECT_EQ(count("id_grp = 2 AND sel = True"), 3);
    EXPECT_EQ(column("SELECT * FROM tb_destinatari WHERE id_grp = 2 ORDER BY rgs ASC;", "rgs"),
              column("SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;", "rgs"));
    EXPECT_EQ(column("SELECT * FROM tb_destinatari WHERE id_grp = 2 ORDER BY id", "id"), "7|8|9|10|11|12");
    EXPECT_EQ(column("SELECT campo1 FROM tb_destinatari WHERE id = 7", "campo1"), "(null)");
    EXPECT_EQ(column("SELECT nom FROM tb_destinatari WHERE id = 7", "nom"), "");
}

TEST_F(CommandTest, DeletesARowAGroupAndItsMembers) {
    run("INSERT INTO [tb_gruppi] (id_up, nome) VALUES (0, 'uno')");
    addRecipients(5, 1);
    addRecipients(2, 2);
    EXPECT_EQ(run("DELETE FROM [tb_destinatari] WHERE id = 3 ;"), 1);
    EXPECT_EQ(run("DELETE FROM [tb_destinatari] WHERE id = 3 ;"), 0);
    EXPECT_EQ(run("DELETE FROM [tb_destinatari] WHERE id_grp = 1 ;"), 4);
    EXPECT_EQ(run("DELETE FROM [tb_gruppi] WHERE id = 1 ;"), 1);
    EXPECT_EQ(column("SELECT * FROM tb_destinatari", "id"), "6|7");
    EXPECT_EQ(run("DELETE FROM [tb_destinatari]"), 2);
}

TEST_F(CommandTest, ATextLongerThanItsColumnUndoesTheWholeStatement) {
    addRecipients(3, 1);
    run("UPDATE tb_destinatari SET campo1 = 'RA' WHERE id < 3");
    run("UPDATE tb_destinatari SET campo1 = 'Ravenna' WHERE id = 3");
    EXPECT_EQ(failure("UPDATE tb_destinatari SET prov = campo1"), ErrorCode::FieldTooSmall);
    EXPECT_EQ(column("SELECT * FROM tb_destinatari", "prov"), "(null)|(null)|(null)");
    EXPECT_EQ(column("SELECT id FROM tb_destinatari WHERE prov = 'RA'", "id"), "");
    EXPECT_EQ(failure("INSERT INTO tb_destinatari (id_grp, prov) SELECT id_grp, campo1 FROM tb_destinatari"),
              ErrorCode::FieldTooSmall);
    EXPECT_EQ(count("id_grp = 1"), 3);
    EXPECT_EQ(run("INSERT INTO tb_destinatari (id_grp, prov) SELECT id_grp, campo1 FROM tb_destinatari WHERE "
                  "id < 3"),
              2);
    EXPECT_EQ(count("id_grp = 1"), 5);
}

TEST_F(CommandTest, AnOrderThatWasInUseIsRightAfterAnUndoneStatement) {
    addRecipients(4, 1);
    const char* listing = "SELECT * FROM tb_destinatari WHERE id_grp = 1 ORDER BY rgs ASC;";
    const std::string before = column(listing, "id");
    EXPECT_EQ(failure("UPDATE tb_destinatari SET rgs = 'A' , prov = 'troppo'"), ErrorCode::FieldTooSmall);
    EXPECT_EQ(column(listing, "id"), before);
}

TEST_F(CommandTest, WhatDoesNotFitTheColumnsTypeIsAnError) {
    EXPECT_EQ(failure("INSERT INTO tb_gruppi (id_up) VALUES ('uno')"), ErrorCode::TypeMismatch);
    EXPECT_EQ(failure("INSERT INTO tb_gruppi (id_up) VALUES (3000000000)"), ErrorCode::Overflow);
    EXPECT_EQ(failure("INSERT INTO tb_destinatari (sel) VALUES ('forse')"), ErrorCode::TypeMismatch);
    EXPECT_EQ(run("INSERT INTO tb_gruppi (id_up, nome) VALUES ('12', 34)"), 1);
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "34");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi WHERE id_up = 12", "id_up"), "12");
    EXPECT_EQ(failure("UPDATE tb_gruppi SET id = 7"), ErrorCode::NotSupported);
}

TEST_F(CommandTest, ATextWithANullCharacterIsRefused) {
    EXPECT_FALSE(
        tryRun(QStringLiteral("INSERT INTO tb_gruppi (nome) VALUES ('a") + QChar(0) + QStringLiteral("b')"))
            .ok());
    EXPECT_EQ(open("SELECT * FROM tb_gruppi").recordCount(), 0);
}

TEST_F(CommandTest, ErrorsAreReportedInItalian) {
    EXPECT_EQ(ado::words(tryRun(QStringLiteral("UPDATE tb_gruppi SET cognome = 1")).status()),
              "Impossibile trovare il campo \"cognome\".");
    EXPECT_EQ(failure("UPDATE tb_gruppi SET cognome = 1"), ErrorCode::ItemNotFound);
    EXPECT_EQ(failure("INSERT INTO tb_gruppi (cognome) VALUES (1)"), ErrorCode::ItemNotFound);
    EXPECT_EQ(ado::words(tryRun(QStringLiteral("INSERT INTO tb_gruppi (nome) VALUES (1, 2)")).status()),
              "Il numero dei valori non corrisponde al numero dei campi di destinazione.");
    EXPECT_EQ(failure("UPDATE tb_altro SET a = 1"), ErrorCode::TableNotFound);
    EXPECT_EQ(ado::words(tryRun(QStringLiteral("DELETE FROM tb_gruppi WHERE WHERE")).status()),
              "Errore di sintassi nell'istruzione SQL vicino a \"WHERE\".");
    EXPECT_EQ(failure("SELECT * FROM tb_gruppi"), ErrorCode::NotSupported);
}

TEST_F(CommandTest, NothingBesideTheTablesCanBeReached) {
    addRecipients(2, 1);
    for (const char* statement : {"DELETE FROM sqlite_master",
                                  "DELETE FROM sqlite_schema",
                                  "UPDATE sqlite_master SET sql = ''",
                                  "INSERT INTO sqlite_master (name) VALUES ('x')",
                                  "DELETE FROM MSysObjects",
                                  "UPDATE [MSysACEs] SET ACM = 0",
                                  "DELETE FROM pragma_database_list",
                                  "UPDATE tb_destinatari SET rgs = hex(randomblob(100000000))",
                                  "UPDATE tb_destinatari SET rgs = load_extension('x')",
                                  "UPDATE tb_destinatari SET rgs = sqlite_version()",
                                  "UPDATE tb_destinatari SET rgs = upper(nom)",
                                  "DELETE FROM tb_destinatari WHERE rgs LIKE '%'",
                                  "DELETE FROM tb_destinatari WHERE rgs GLOB '*'",
                                  "DELETE FROM tb_destinatari WHERE id IN tb_gruppi",
                                  "DELETE FROM tb_destinatari WHERE id IN sqlite_master",
                                  "UPDATE tb_destinatari SET rgs = CURRENT_TIMESTAMP",
                                  "UPDATE tb_destinatari SET rowid = 5",
                                  "INSERT INTO tb_destinatari (rowid, rgs) VALUES (5, 'x')",
                                  "DELETE FROM tb_destinatari ORDER BY id LIMIT 1",
                                  "DELETE FROM tb_destinatari INDEXED BY x"})
        EXPECT_NE(failure(statement), ErrorCode::None) << statement;
    EXPECT_EQ(column("SELECT * FROM tb_destinatari", "rgs"), "Ditta 0|Ditta 1");
    for (const char* source : {"SELECT * FROM sqlite_master", "SELECT * FROM MSysObjects",
                               "SELECT * FROM pragma_database_list", "SELECT * FROM json_each",
                               "SELECT count(*) FROM sqlite_schema", "SELECT sqlite_version() FROM tb_gruppi",
                               "SELECT * FROM tb_gruppi WHERE id IN pragma_database_list",
                               "SELECT count(*) OVER (ORDER BY id) FROM tb_gruppi ORDER BY random()"}) {
        ado::Recordset rows;
        ASSERT_TRUE(rows.setActiveConnection(connection).ok());
        rows.setSource(QString::fromUtf8(source));
        EXPECT_FALSE(rows.open().ok()) << source;
    }
}

TEST_F(CommandTest, AHugeConcatenationOfConditionsEndsInAnError) {
    QString statement = QStringLiteral("DELETE FROM tb_gruppi WHERE ");
    statement += QString(20000, QLatin1Char('(')) + QStringLiteral("1") + QString(20000, QLatin1Char(')'));
    EXPECT_FALSE(tryRun(statement).ok());
}

TEST_F(CommandTest, AnotherProgramSeesTheStatementWhenItReturns) {
    addRecipients(1, 1);
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok()) << ado::words(other.status());
    int rows = 0;
    auto table = other.value()->table("tb_destinatari");
    ASSERT_TRUE(table.ok());
    ASSERT_TRUE(table.value()->scan([&](jet::RowId, const jet::RowView&) { return ++rows, true; }).ok());
    EXPECT_EQ(rows, 1);
    EXPECT_FALSE(hasHotJournal(path.toStdString()));
}

TEST_F(CommandTest, TheFileCanBeCopiedBetweenTwoStatements) {
    addRecipients(3, 1);
    auto rows = open("SELECT * FROM tb_destinatari");
    const QString copy = inFolder("copia.mdb");
    ASSERT_TRUE(QFile::copy(path, copy));
    rows.close();
    addRecipients(1, 1);
    connection = ado::connectionTo(copy);
    EXPECT_EQ(count("id_grp = 1"), 3);
}

}  // namespace command_test
