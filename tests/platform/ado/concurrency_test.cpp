// SPDX-License-Identifier: GPL-3.0-or-later
// Several programs at work on one file: no statement is lost, none waits for ever.
#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <functional>

#include "platform/ado/GroupedInserts.h"
#include "platform/ado/TestDatabase.h"

namespace concurrency_test {

namespace {

class ConcurrencyTest : public ado::TestDatabase {
  protected:
    /// Starts a process that does the work and reports by its exit code whether that succeeded.
    pid_t start(const std::function<bool()>& work) {
        ado::closeAll();  // an open file would be shared with the child, its locks included
        const pid_t child = ::fork();
        if (child == 0) ::_exit(work() ? 0 : 1);
        return child;
    }
    static bool succeeded(pid_t child) {
        int status = 0;
        return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    bool done(const QString& statement) const { return tryRun(statement).ok(); }
    qint64 count(const char* statement) const { return open(statement).recordCount(); }

    static constexpr int rounds = 60;
};

}  // namespace

TEST_F(ConcurrencyTest, ThreeProgramsThatWriteLoseNoStatement) {
    run("INSERT INTO tb_gruppi (id_up, nome) VALUES (0, 'contatore')");
    std::vector<pid_t> children;
    children.reserve(3);
    for (int program = 1; program <= 3; ++program)
        children.push_back(start([this, program] {
            for (int i = 0; i < rounds; ++i) {
                if (!done(QStringLiteral("INSERT INTO [tb_destinatari] (id_grp, sel, rgs) VALUES (%1, True, "
                                         "'riga %2')")
                              .arg(program)
                              .arg(i)) ||
                    !done(QStringLiteral("UPDATE [tb_gruppi] SET id_up = id_up + 1 WHERE id = 1 ;")) ||
                    !done(QStringLiteral("UPDATE [tb_destinatari] SET sel = False WHERE id_grp = %1 ;")
                              .arg(program)))
                    return false;
                if (i % 10 == 9 &&
                    !done(
                        QStringLiteral("DELETE FROM [tb_destinatari] WHERE id_grp = %1 AND rgs = 'riga %2' ;")
                            .arg(program)
                            .arg(i)))
                    return false;
            }
            return true;
        }));
    for (const pid_t child : children)
        EXPECT_TRUE(succeeded(child));
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "id_up"), std::to_string(3 * rounds));
    EXPECT_EQ(count("SELECT * FROM tb_destinatari"), 3 * rounds * 9 / 10);
    EXPECT_EQ(count("SELECT * FROM tb_destinatari WHERE sel = True"), 0);
}

TEST_F(ConcurrencyTest, NumbersOfNewRowsAreGivenOnceOnly) {
    std::vector<pid_t> children;
    children.reserve(3);
    for (int program = 0; program < 3; ++program)
        children.push_back(start([this] {
            for (int i = 0; i < rounds; ++i) {
                ado::Recordset rows = open("SELECT * FROM [tb_gruppi];");
                if (!rows.addNew().ok()) return false;
                const auto number = rows.value(u"id");
                if (!number.ok() || !rows.setValue(u"nome", number.value()).ok() || !rows.update().ok())
                    return false;
            }
            return true;
        }));
    for (const pid_t child : children)
        EXPECT_TRUE(succeeded(child));
    ado::Recordset rows = open("SELECT * FROM tb_gruppi ORDER BY id");
    EXPECT_EQ(rows.recordCount(), 3 * rounds);
    for (qint64 last = 0; !rows.isEof();) {
        const qint64 number = rows.value(u"id").value().toInteger().value();
        EXPECT_GT(number, last);
        EXPECT_EQ(rows.value(u"nome").value().toInteger().value(), number);
        last = number;
        ASSERT_TRUE(rows.moveNext().ok());
    }
}

TEST_F(ConcurrencyTest, AnImportLetsOthersInBetweenItsGroups) {
    const pid_t import = start([this] {
        ado::GroupedInserts inserts;
        inserts.setGroupSize(20);
        inserts.setGroupAge(std::chrono::hours(1));  // or a slow machine ends groups early
        if (!inserts.setActiveConnection(connection).ok()) return false;
        for (int i = 0; i < 10 * rounds; ++i)
            if (!inserts.execute(QStringLiteral("INSERT INTO tb_destinatari (rgs) VALUES ('%1')").arg(i))
                     .ok())
                return false;
        return inserts.commit().ok() && inserts.committed() == 10 * rounds;
    });
    for (int i = 0; i < rounds; ++i) {
        EXPECT_TRUE(done(QStringLiteral("INSERT INTO tb_gruppi (nome) VALUES ('x')")));
        const qint64 seen = count("SELECT * FROM tb_destinatari");
        EXPECT_EQ(seen % 20, 0) << "only whole groups are seen";
    }
    EXPECT_TRUE(succeeded(import));
    EXPECT_EQ(count("SELECT * FROM tb_destinatari"), 10 * rounds);
    EXPECT_EQ(count("SELECT * FROM tb_gruppi"), rounds);
}

TEST_F(ConcurrencyTest, AFileThatStaysLockedEndsInAClearError) {
    run("INSERT INTO tb_gruppi (nome) VALUES ('a')");
    auto other = jet::Database::open(path.toStdString());
    ASSERT_TRUE(other.ok());
    ASSERT_TRUE(other.value()->begin().ok());
    const Status status = tryRun(QStringLiteral("UPDATE tb_gruppi SET nome = 'b'"), 1).status();
    EXPECT_EQ(status.code(), ErrorCode::FileInUse);
    EXPECT_TRUE(status.text().contains(QStringLiteral("in uso"))) << ado::words(status);
    other.value()->rollback();
    EXPECT_EQ(run("UPDATE tb_gruppi SET nome = 'b'"), 1);
}

// An open recordset does not keep another program from writing, and shows what that one wrote.
TEST_F(ConcurrencyTest, AnOpenRecordsetBlocksNobody) {
    for (int i = 0; i < 5; ++i)
        run("INSERT INTO tb_gruppi (nome) VALUES ('prima')");
    ado::Recordset rows = open("SELECT * FROM tb_gruppi ORDER BY id");
    const pid_t writer = ::fork();
    if (writer == 0) {
        // Not through the data access layer, whose open file this process shares with its parent.
        auto database = jet::Database::open(path.toStdString());
        if (!database.ok()) ::_exit(1);
        auto table = database.value()->table("tb_gruppi");
        if (!table.ok() || !database.value()->begin().ok()) ::_exit(1);
        const auto row = table.value()->findByPrimaryKey(3);
        const std::pair<size_t, jet::Value> change{2, std::string("dopo")};
        if (!row.ok() || !row.value() || !table.value()->update(*row.value(), {&change, 1}).ok()) ::_exit(1);
        ::_exit(database.value()->commit().ok() ? 0 : 1);
    }
    EXPECT_TRUE(succeeded(writer));
    QStringList names;
    while (!rows.isEof()) {
        names << rows.value(u"nome").value().toTextOrEmpty();
        ASSERT_TRUE(rows.moveNext().ok());
    }
    EXPECT_EQ(names.join(u'|').toStdString(), "prima|prima|dopo|prima|prima");
}

}  // namespace concurrency_test
