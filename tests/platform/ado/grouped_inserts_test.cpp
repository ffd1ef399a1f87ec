// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of an import: written in groups, reported only when they are in the file.
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>

#include "modules/store/NuovoDatabase.h"
#include "platform/ado/GroupedInserts.h"
#include "support/HotJournal.h"
#include "TestDatabase.h"

namespace grouped_inserts_test {

namespace {

using namespace std::chrono_literals;

class GroupedInsertsTest : public ado::TestDatabase {
  protected:
    GroupedInsertsTest() {
        inserts.setGroupSize(10);
        inserts.setGroupAge(1h);
    }
    void SetUp() override {
        TestDatabase::SetUp();
        const Status status = inserts.setActiveConnection(connection);
        ASSERT_TRUE(status.ok()) << ado::words(status);
    }
    static QString recipient(int number) {
        return QStringLiteral(
                   "INSERT INTO [tb_destinatari] (id_grp, sel, email, rgs) VALUES (1, True, "
                   "'u%1@example.org', 'Ditta %1') ")
            .arg(number);
    }
    void add(int count) {
        for (int i = 0; i < count; ++i) {
            const Status status = inserts.execute(recipient(i));
            ASSERT_TRUE(status.ok()) << ado::words(status);
        }
    }
    /// Rows that another program finds.
    static qint64 rowsInFile(const QString& file) {
        auto database = jet::Database::open(file.toStdString());
        EXPECT_TRUE(database.ok()) << ado::words(database.status());
        auto table = database.value()->table("tb_destinatari");
        EXPECT_TRUE(table.ok());
        qint64 rows = 0;
        EXPECT_TRUE(table.value()->scan([&](jet::RowId, const jet::RowView&) { return ++rows, true; }).ok());
        return rows;
    }

    ado::GroupedInserts inserts;
};

}  // namespace

TEST_F(GroupedInsertsTest, RowsCountOnlyAfterTheCommitOfTheirGroup) {
    add(9);
    EXPECT_EQ(inserts.committed(), 0);
    add(1);
    EXPECT_EQ(inserts.committed(), 10);
    add(5);
    EXPECT_EQ(inserts.committed(), 10);
    EXPECT_TRUE(inserts.commit().ok());
    EXPECT_EQ(inserts.committed(), 15);
    EXPECT_TRUE(inserts.commit().ok());
    EXPECT_EQ(inserts.committed(), 15);
    EXPECT_EQ(rowsInFile(path), 15);
}

TEST_F(GroupedInsertsTest, AnOldGroupIsCommittedByTheNextStatement) {
    inserts.setGroupAge(0ms);
    add(1);
    EXPECT_EQ(inserts.committed(), 1);
}

TEST_F(GroupedInsertsTest, TheDestructorCommits) {
    {
        ado::GroupedInserts local;
        ASSERT_TRUE(local.setActiveConnection(connection).ok());
        ASSERT_TRUE(local.execute(recipient(1)).ok());
    }
    EXPECT_EQ(rowsInFile(path), 1);
}

TEST_F(GroupedInsertsTest, AFailingStatementIsLeftOutAlone) {
    add(3);
    EXPECT_EQ(inserts.execute(QStringLiteral("INSERT INTO tb_destinatari (rgs) VALUES ('L'oro')")).code(),
              ErrorCode::SyntaxError);
    EXPECT_EQ(inserts.execute(QStringLiteral("INSERT INTO tb_destinatari (boh) VALUES ('x')")).code(),
              ErrorCode::ItemNotFound);
    EXPECT_EQ(inserts.committed(), 0);
    EXPECT_EQ(inserts.execute(QStringLiteral("INSERT INTO tb_destinatari (prov) VALUES ('RAV')")).code(),
              ErrorCode::FieldTooSmall);
    EXPECT_EQ(inserts.committed(), 3) << "what came before a refused row is safe";
    add(2);
    EXPECT_TRUE(inserts.commit().ok());
    EXPECT_EQ(inserts.committed(), 5);
    EXPECT_EQ(rowsInFile(path), 5);
}

TEST_F(GroupedInsertsTest, OnlyInsertsOfValuesAreTaken) {
    for (const char* statement :
         {"DELETE FROM tb_destinatari", "UPDATE tb_destinatari SET sel = True", "SELECT * FROM tb_gruppi",
          "INSERT INTO tb_destinatari (rgs) SELECT nom FROM tb_destinatari"})
        EXPECT_EQ(inserts.execute(QString::fromUtf8(statement)).code(), ErrorCode::NotSupported) << statement;
}

TEST_F(GroupedInsertsTest, EverybodyElseInTheProgramSeesAllRows) {
    add(3);
    EXPECT_EQ(open("SELECT * FROM tb_destinatari").recordCount(), 3);
    add(2);
    EXPECT_EQ(run("UPDATE tb_destinatari SET sel = False"), 5);
    EXPECT_EQ(inserts.committed(), 5);
    add(1);
    run("INSERT INTO tb_gruppi (nome) VALUES ('a')");
    EXPECT_EQ(inserts.committed(), 6);
    ado::GroupedInserts second;
    ASSERT_TRUE(second.setActiveConnection(connection).ok());
    add(1);
    ASSERT_TRUE(second.execute(recipient(1)).ok());
    EXPECT_EQ(inserts.committed(), 7);
    ASSERT_TRUE(second.commit().ok());
    EXPECT_EQ(rowsInFile(path), 8);
}

TEST_F(GroupedInsertsTest, TheOwnListCanBeReadWhileItGrows) {
    add(20);
    for (const char* spelling : {"", ";;Jet OLEDB:Database Password=inutile"}) {
        const qint64 before = rowsInFile(path);
        ado::Recordset source;
        ASSERT_TRUE(source.setActiveConnection(connection + QLatin1String(spelling)).ok());
        source.setSource(QStringLiteral("SELECT * FROM [tb_destinatari] ;"));
        ASSERT_TRUE(source.open().ok());
        int read = 0;
        for (; !source.isEof(); ++read) {
            ASSERT_TRUE(inserts.execute(recipient(100)).ok());
            ASSERT_TRUE(source.moveNext().ok());
        }
        EXPECT_EQ(read, before);
        ASSERT_TRUE(inserts.commit().ok());
        EXPECT_EQ(rowsInFile(path), 2 * before);
    }
}

TEST_F(GroupedInsertsTest, ARecordsetThatWasOpenedInsideAGroupKeepsItsRows) {
    inserts.setGroupSize(10000);
    add(300);
    ado::Recordset source = open("SELECT * FROM [tb_destinatari] ORDER BY rgs DESC, email ASC");
    int read = 0;
    for (std::string last = "z"; !source.isEof(); ++read) {
        const std::string name = source.value(u"rgs").value().toTextOrEmpty().toStdString();
        EXPECT_LT(name, last);
        last = name;
        ASSERT_TRUE(inserts.execute(recipient(read)).ok());
        ASSERT_TRUE(source.moveNext().ok());
    }
    EXPECT_EQ(read, 300);
    EXPECT_EQ(open("SELECT * FROM [tb_destinatari]").recordCount(), 600);
}

TEST_F(GroupedInsertsTest, AReplacedFileGetsTheNextGroup) {
    add(10);
    const QString other = inFolder("altra.mdb");
    ASSERT_TRUE(schema::CreaDatabase(other.toStdString()).ok());
    ASSERT_EQ(std::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()), 0);
    add(10);
    EXPECT_EQ(rowsInFile(path), 10);
}

// The importing program is killed in the middle of a group.
TEST_F(GroupedInsertsTest, WhatWasReportedSurvivesACrashOfTheProgramAndNothingElse) {
    for (const int last : {4, 10, 37}) {
        ado::closeAll();
        ASSERT_TRUE(QFile::remove(path));
        ASSERT_TRUE(schema::CreaDatabase(path.toStdString()).ok());
        int told[2];
        ASSERT_EQ(::pipe(told), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            for (int i = 0; i < last; ++i)
                if (!inserts.execute(recipient(i)).ok()) ::_exit(1);
            const qint64 count = inserts.committed();
            if (::write(told[1], &count, sizeof count) != sizeof count) ::_exit(1);
            ::kill(::getpid(), SIGKILL);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        qint64 count = -1;
        ASSERT_EQ(::read(told[0], &count, sizeof count), static_cast<ssize_t>(sizeof count));
        ::close(told[0]);
        ::close(told[1]);
        EXPECT_EQ(count, last / 10 * 10);
        EXPECT_EQ(rowsInFile(path), count);
        EXPECT_FALSE(hasHotJournal(path.toStdString()));
    }
}

}  // namespace grouped_inserts_test
