// SPDX-License-Identifier: GPL-3.0-or-later
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "modules/accounts/AccountFile.h"
#include "modules/accounts/bBinary.h"
#include "support/FullDisk.h"
#include "support/Vectors.h"

namespace account_writers_test {

namespace {

Account fromFields(const QStringList& fields) {
    Account account;
    for (qsizetype i = 0; i < fields.size(); ++i)
        account.*Account::campi[static_cast<std::size_t>(i + 1)] = fields[i];
    return account;
}

Account simple(const QString& name) {
    return fromFields({name,
                       name + QStringLiteral("@b.it"),
                       {},
                       QStringLiteral("25"),
                       QStringLiteral("0"),
                       {},
                       {},
                       QStringLiteral("EHLO"),
                       QStringLiteral("0"),
                       QStringLiteral("0")});
}

// The account window's table and list over a file of its own.
class AccountWriters : public testing::Test {
  protected:
    QString path() const { return m_folder.filePath(QStringLiteral("Account.imp")); }
    QStringList records() const {
        QStringList decoded;
        for (const QByteArray& line : bytesOf(path()).split('\n')) {
            if (!line.isEmpty()) decoded += BitInTesto(QString::fromLatin1(line.chopped(1)));
        }
        return decoded;
    }
    void load() {
        CaricaAccount(path(), table, [this](const Account& account, int) { list += VoceAccount(account); });
    }
    void add(const Account& account) {
        const int number = NuovoAccount(path(), table, account);
        list += VoceAccount(table.at(static_cast<std::size_t>(number)));
    }
    void change(int position, const Account& values) {
        ModificaAccount(path(), table, static_cast<int>(list.size()), position, values);
        list[position] = VoceAccount(values);
    }
    void remove(int position) {
        EliminaAccount(path(), table, static_cast<int>(list.size()), position);
        if (position >= 0) list.removeAt(position);
    }

    TabellaAccount table;
    QStringList list;

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(AccountWriters, LeaveTheFilesOfTheVectors) {
    for (const QJsonValue vector : vectorsOf(QStringLiteral("account/write.json"))) {
        SCOPED_TRACE(vector[QLatin1String("name")].toString().toStdString());
        table.clear();
        list.clear();
        writeBytes(path(), vector[QLatin1String("file_before_hex_digits")].toString().toLatin1());
        load();
        for (const QJsonValue step : vector[QLatin1String("steps")].toArray()) {
            const QString operation = step[QLatin1String("op")].toString();
            const int position = step[QLatin1String("position")].toInt();
            const Account values =
                fromFields(step[QLatin1String("fields_1_to_10")].toVariant().toStringList());
            if (operation == QLatin1String("nuovo")) {
                add(values);
            } else if (operation == QLatin1String("modifica")) {
                change(position, values);
            } else {
                ASSERT_EQ(operation, QStringLiteral("elimina"));
                remove(position);
            }
            EXPECT_EQ(records(), step[QLatin1String("file_after_decoded")].toVariant().toStringList());
            EXPECT_EQ(bytesOf(path()).size(), step[QLatin1String("file_after_size")].toInt());
            EXPECT_EQ(list, step[QLatin1String("list_after")].toVariant().toStringList());
            EXPECT_EQ(static_cast<int>(table.size()) - 1, step[QLatin1String("highest_index_after")].toInt());
        }
    }
}

TEST_F(AccountWriters, FirstAccountOfAnEmptyFileHasTheNumberZero) {
    writeBytes(path(), {});
    load();
    add(simple(QStringLiteral("a")));
    EXPECT_EQ(records(), QStringList(QStringLiteral("0|a|a@b.it||25|0|||EHLO|0|0")));
    EXPECT_EQ(table.at(0).idAccount, QStringLiteral("0"));
}

TEST_F(AccountWriters, RecordOfEmptyFieldsHasItsTenBars) {
    writeBytes(path(), {});
    add(Account());
    EXPECT_EQ(records(), QStringList(QStringLiteral("0||||||||||")));
}

TEST_F(AccountWriters, BarInTheOutgoingPortSplitsTheRecordAtTheNextReading) {
    writeBytes(path(), {});
    Account account = simple(QStringLiteral("a"));
    account.txtOutPort = QStringLiteral("40|50");
    account.chkUsaSMTP = QStringLiteral("1");
    add(account);
    EXPECT_EQ(records(), QStringList(QStringLiteral("0|a|a@b.it||25|0|||EHLO|40|50|1")));
    table.clear();
    load();
    EXPECT_EQ(table.at(0).txtOutPort, QStringLiteral("40"));
    EXPECT_EQ(table.at(0).chkUsaSMTP, QStringLiteral("50"));
}

TEST_F(AccountWriters, AccentsOfThePageSurviveInAPassword) {
    writeBytes(path(), {});
    Account account = simple(QStringLiteral("a"));
    account.txtPassword = QStringLiteral("pàsswörd€ÿ\u0081");
    add(account);
    table.clear();
    load();
    EXPECT_EQ(table.at(0).txtPassword, account.txtPassword);
}

TEST_F(AccountWriters, DeletingTheOnlyOneKeepsItsSlotSoThatTheNextIsNumberOne) {
    writeBytes(path(), {});
    add(simple(QStringLiteral("a")));
    remove(0);
    EXPECT_EQ(bytesOf(path()), QByteArray());
    ASSERT_EQ(table.size(), 1u);
    EXPECT_EQ(table[0].txtNomeVisual, QStringLiteral("a"));
    add(simple(QStringLiteral("b")));
    EXPECT_EQ(records(), QStringList(QStringLiteral("1|b|b@b.it||25|0|||EHLO|0|0")));
}

TEST_F(AccountWriters, RewritingNumbersTheLinesByPosition) {
    writeBytes(path(), TestoInBit(u"5|a|a@b.it||25|0|||EHLO|0|0").toLatin1() + "\r\n");
    load();
    EXPECT_EQ(table.size(), 6u);
    change(0, simple(QStringLiteral("z")));
    EXPECT_EQ(records(), QStringList(QStringLiteral("0|z|z@b.it||25|0|||EHLO|0|0")))
        << "the list counts one entry";
    EXPECT_EQ(table[5].txtNomeVisual, QStringLiteral("a")) << "a position may pick another slot";
}

TEST_F(AccountWriters, PositionWithoutASlotIsSkipped) {
    const QByteArray line = TestoInBit(u"0|a|a@b.it||25|0|||EHLO|0|0").toLatin1() + "\r\n";
    writeBytes(path(), line + line);
    load();
    ASSERT_EQ(table.size(), 1u);
    ASSERT_EQ(list.size(), 2);
    change(1, simple(QStringLiteral("z")));
    EXPECT_EQ(records(), QStringList(QStringLiteral("0|a|a@b.it||25|0|||EHLO|0|0")));
}

TEST_F(AccountWriters, FileThatCannotBeWrittenLeavesOnlyTheMemoryChanged) {
    ASSERT_TRUE(QDir().mkpath(path()));
    add(simple(QStringLiteral("a")));
    add(simple(QStringLiteral("b")));
    change(0, simple(QStringLiteral("c")));
    remove(1);
    EXPECT_EQ(list, QStringList(QStringLiteral("c [c@b.it]")));
    ASSERT_EQ(table.size(), 1u);
    EXPECT_EQ(table[0].txtNomeVisual, QStringLiteral("c"));
    EXPECT_TRUE(QDir(path()).isEmpty());
}

TEST_F(AccountWriters, FullDiskLosesNoAccount) {
    writeBytes(path(), {});
    for (const char* name : {"Uno", "Due", "Tre"})
        add(simple(QString::fromLatin1(name)));
    const QByteArray before = bytesOf(path());
    {
        const FullDisk full(static_cast<rlim_t>(before.size() / 2));
        change(0, simple(QStringLiteral("Primo")));
    }
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_EQ(list[0], QStringLiteral("Primo [Primo@b.it]"));
    change(0, simple(QStringLiteral("Primo")));
    EXPECT_EQ(records().size(), 3);
    EXPECT_TRUE(records()[0].startsWith(QStringLiteral("0|Primo|")));
}

TEST_F(AccountWriters, FullDiskLeavesNoHalfAccountThatTheNextReadingFailsOn) {
    writeBytes(path(), {});
    add(simple(QStringLiteral("Uno")));
    const QByteArray before = bytesOf(path());
    {
        const FullDisk full(static_cast<rlim_t>(before.size() + 20));
        add(simple(QStringLiteral("Due")));
    }
    EXPECT_EQ(bytesOf(path()), before);
    table.clear();
    list.clear();
    load();
    EXPECT_EQ(list, QStringList("Uno [Uno@b.it]"));
}

TEST_F(AccountWriters, FileIsForItsOwnerAlone) {
    add(simple(QStringLiteral("a")));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_EQ(QFile::permissions(path()) & others, QFile::Permissions());
}

TEST_F(AccountWriters, FileThatAnotherUserMadeBeforehandTakesNoPassword) {
    writeBytes(path(), "");
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0666), 0);
    if (::chown(QFile::encodeName(path()).constData(), 65534, static_cast<gid_t>(-1)) != 0)
        GTEST_SKIP() << "only the administrator can give a file away";
    Account secret = simple(QStringLiteral("a"));
    secret.txtPassword = QStringLiteral("segreta");
    add(secret);
    change(0, secret);
    EXPECT_EQ(bytesOf(path()), QByteArray());
    ASSERT_EQ(table.size(), 1u);
}

TEST_F(AccountWriters, LinkTakesNoPassword) {
    const QString elsewhere = path() + QStringLiteral(".altrove");
    writeBytes(elsewhere, "");
    ASSERT_TRUE(QFile::link(elsewhere, path()));
    Account secret = simple(QStringLiteral("a"));
    secret.txtPassword = QStringLiteral("segreta");
    add(secret);
    EXPECT_EQ(bytesOf(elsewhere), QByteArray());
    change(0, secret);
    EXPECT_EQ(bytesOf(elsewhere), QByteArray());
    EXPECT_FALSE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(records(), QStringList(QStringLiteral("0|a|a@b.it||25|0||segreta|EHLO|0|0")));
}

// In a separate process that crashes with a password in its memory.
TEST_F(AccountWriters, ProcessThatHasReadThemLeavesNoCoreDump) {
    add(simple(QStringLiteral("a")));
    const QByteArray folder = QFile::encodeName(QFileInfo(path()).path());
    const auto dumpsAfter = [&](bool reads) {
        const pid_t child = ::fork();
        if (child == 0) {
            const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
            if (::chdir(folder.constData()) != 0) ::_exit(2);
            ::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
            ::setrlimit(RLIMIT_CORE, &all);
            if (reads) load();
            ::signal(SIGABRT, SIG_DFL);
            ::abort();
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status));
        return WCOREDUMP(status) != 0;
    };
    if (!dumpsAfter(false)) GTEST_SKIP() << "this machine writes no core dumps";
    EXPECT_FALSE(dumpsAfter(true));
}

}  // namespace account_writers_test
