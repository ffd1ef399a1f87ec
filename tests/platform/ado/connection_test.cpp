// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QDir>

#include "modules/store/NuovoDatabase.h"
#include "TestDatabase.h"

namespace connection_test {

namespace {

class ConnectionTest : public ado::TestDatabase {
  protected:
    static Status tryOpen(const QString& file) { return ado::Connection().open(ado::connectionTo(file)); }
    QString write(const char* name, const QByteArray& bytes) const {
        QFile file(inFolder(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QByteArray content() const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
};

}  // namespace

TEST_F(ConnectionTest, OpensAndClosesAnExistingFile) {
    ado::Connection open;
    EXPECT_TRUE(open.open(connection + QLatin1Char(';')).ok());
    EXPECT_TRUE(open.isOpen());
    open.close();
    EXPECT_FALSE(open.isOpen());
}

TEST_F(ConnectionTest, AMissingFileIsReportedByItsName) {
    const Status status = tryOpen(inFolder("manca.mdb"));
    EXPECT_EQ(status.code(), ErrorCode::FileNotFound);
    EXPECT_TRUE(status.text().contains(QStringLiteral("manca.mdb"))) << ado::words(status);
    EXPECT_FALSE(QFile::exists(inFolder("manca.mdb")));
}

TEST_F(ConnectionTest, WhatIsNoDatabaseIsRefusedAndUnchanged) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("x"), QByteArray("testo semplice\r\n").repeated(1000),
          QByteArray(8192, '\0'), QByteArray("SQLite format 3\0", 16).repeated(512)}) {
        const QString file = write("altro.mdb", bytes);
        EXPECT_FALSE(tryOpen(file).ok()) << bytes.left(16).constData();
        QFile after(file);
        ASSERT_TRUE(after.open(QIODevice::ReadOnly));
        EXPECT_EQ(after.readAll(), bytes);
    }
    EXPECT_FALSE(tryOpen(QDir::tempPath()).ok());
}

TEST_F(ConnectionTest, ATruncatedFileIsRefused) {
    const QString file = write("corto.mdb", content().left(5000));
    EXPECT_FALSE(tryOpen(file).ok());
}

// Root can read every file, so a process without those rights does the check.
TEST_F(ConnectionTest, AnUnreadableFileIsRefused) {
    ado::closeAll();
    const QString folder = QFileInfo(path).path();
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0711), 0);
    ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::Permissions()));
    constexpr uid_t nobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && ::seteuid(nobody) != 0) ::_exit(2);
        const Status status = tryOpen(path);
        const bool named = status.text().contains(QFileInfo(path).fileName());
        ::_exit(status.code() == ErrorCode::PathAccess && named ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(ConnectionTest, WhatIsNoOrdinaryFileIsRefused) {
    const QString pipe = inFolder("coda.mdb");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& file : {pipe, QStringLiteral("/dev/null"), QStringLiteral("/dev/zero"),
                                QStringLiteral("/proc/self/mem"), QStringLiteral("/proc/self/status")})
        EXPECT_FALSE(tryOpen(file).ok()) << file.toStdString();
}

TEST_F(ConnectionTest, ADamagedTableEndsInAnErrorAndAnUnchangedFile) {
    for (int i = 0; i < 50; ++i)
        run("INSERT INTO tb_destinatari (id_grp, rgs) VALUES (1, 'Ditta')");
    ado::closeAll();
    QByteArray bytes = content();
    constexpr int pageSize = 4096;
    for (int page = 16; page < bytes.size() / pageSize; ++page)
        for (int i = 0; i < pageSize; ++i)
            bytes[page * pageSize + i] = static_cast<char>(i * 37 + page);
    const QString file = write("rovinato.mdb", bytes);
    connection = ado::connectionTo(file);
    ado::Recordset rows;
    ASSERT_TRUE(rows.setActiveConnection(connection).ok());
    rows.setSource(QStringLiteral("SELECT * FROM tb_destinatari"));
    EXPECT_FALSE(rows.open().ok());
    EXPECT_NE(failure("UPDATE tb_destinatari SET sel = True"), ErrorCode::None);
    QFile after(file);
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), bytes);
}

TEST_F(ConnectionTest, ARelativePathIsTakenFromTheWorkingFolder) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QFileInfo(path).path()));
    EXPECT_TRUE(tryOpen(QFileInfo(path).fileName()).ok());
    QDir::setCurrent(before);
}

TEST_F(ConnectionTest, TwoSpellingsOfOnePathShareTheirChanges) {
    auto rows = open("SELECT * FROM tb_gruppi");
    connection =
        ado::connectionTo(QFileInfo(path).path() + QStringLiteral("/./") + QFileInfo(path).fileName());
    run("INSERT INTO tb_gruppi (nome) VALUES ('a')");
    EXPECT_EQ(open("SELECT * FROM tb_gruppi").recordCount(), 1);
}

TEST_F(ConnectionTest, AReplacedFileIsSeenByTheNextStatement) {
    run("INSERT INTO tb_gruppi (nome) VALUES ('vecchio')");
    const QString other = inFolder("altra.mdb");
    ASSERT_TRUE(schema::CreaDatabase(other.toStdString()).ok());
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "vecchio");
    ASSERT_EQ(std::rename(QFile::encodeName(other).constData(), QFile::encodeName(path).constData()), 0);
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "");
    run("INSERT INTO tb_gruppi (nome) VALUES ('nuovo')");
    EXPECT_EQ(column("SELECT * FROM tb_gruppi", "nome"), "nuovo");
}

TEST_F(ConnectionTest, ARemovedFileIsMissedByTheNextStatement) {
    run("INSERT INTO tb_gruppi (nome) VALUES ('a')");
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(failure("UPDATE tb_gruppi SET nome = 'b'"), ErrorCode::FileNotFound);
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ConnectionTest, TheCatalogueListsTablesByNameAndColumnsByPosition) {
    ado::Connection open;
    ASSERT_TRUE(open.open(connection).ok());
    ado::Catalog catalog;
    catalog.setActiveConnection(open);
    const auto tables = catalog.tables();
    ASSERT_TRUE(tables.ok()) << ado::words(tables.status());
    QStringList names;
    for (const auto& table : tables.value())
        if (table.kind == ado::Catalog::Kind::Table) names << table.name;
    EXPECT_EQ(names, QStringList({QStringLiteral("tb_destinatari"), QStringLiteral("tb_gruppi")}));
    EXPECT_EQ(tables.value().size(), 6u);
    const auto columns = catalog.columns(QStringLiteral("TB_DESTINATARI"));
    ASSERT_TRUE(columns.ok()) << ado::words(columns.status());
    ASSERT_EQ(columns.value().size(), 22u);
    EXPECT_EQ(columns.value()[0].name, QStringLiteral("id"));
    EXPECT_TRUE(columns.value()[0].autoNumber);
    EXPECT_EQ(columns.value()[8].name, QStringLiteral("prov"));
    EXPECT_EQ(columns.value()[8].size, 2);
    EXPECT_EQ(columns.value()[21].type, jet::Type::YesNo);
    EXPECT_EQ(catalog.columns(QStringLiteral("manca")).status().code(), ErrorCode::TableNotFound);
}

TEST_F(ConnectionTest, APasswordIsAskedForEachTime) {
    const QString file = QStringLiteral(SHARED_DIR "/mdb/mr-V2000_with-password.mdb");
    if (!QFile::exists(file)) {
        std::printf("skipped: the sample file with a password is not at hand\n");
        return;
    }
    const auto with = [&](const char* password) {
        return ado::connectionTo(file) + QStringLiteral(";;Jet OLEDB:Database Password=") +
               QLatin1String(password);
    };
    EXPECT_EQ(tryOpen(file).code(), ErrorCode::InvalidPassword);
    ado::Connection open_;
    EXPECT_TRUE(open_.open(with("password")).ok());
    EXPECT_EQ(open_.open(with("Password")).code(), ErrorCode::InvalidPassword);
    EXPECT_EQ(tryOpen(file).code(), ErrorCode::InvalidPassword);
    connection = with("password");
    EXPECT_EQ(open("SELECT * FROM [Table1] ;").recordCount(), 3);
}

TEST_F(ConnectionTest, EveryTableOfTheSampleFilesIsReadThroughItsStatement) {
    const QDir samples(QStringLiteral(SHARED_DIR "/mdb"));
    int tables = 0;
    for (const QFileInfo& file : samples.entryInfoList({QStringLiteral("*.mdb")}, QDir::Files)) {
        ado::Connection open_;
        if (!open_.open(ado::connectionTo(file.filePath())).ok()) continue;
        connection = open_.text();
        ado::Catalog catalog;
        catalog.setActiveConnection(open_);
        const auto entries = catalog.tables();
        ASSERT_TRUE(entries.ok()) << ado::words(entries.status());
        for (const auto& entry : entries.value()) {
            if (entry.kind != ado::Catalog::Kind::Table || entry.name.contains(QLatin1Char(']'))) continue;
            const auto columns = catalog.columns(entry.name);
            ASSERT_TRUE(columns.ok()) << ado::words(columns.status());
            auto rows = open(QStringLiteral("SELECT * FROM [%1] ;").arg(entry.name));
            ASSERT_EQ(rows.fieldCount(), static_cast<int>(columns.value().size()));
            qint64 count = 0;
            for (; !rows.isEof(); ++count) {
                for (int i = 0; i < rows.fieldCount(); ++i)
                    EXPECT_TRUE(rows.value(i).ok()) << entry.name.toStdString() << i;
                ASSERT_TRUE(rows.moveNext().ok());
            }
            EXPECT_EQ(open(QStringLiteral("SELECT count(*) FROM [%1]").arg(entry.name)).value(0).value(),
                      ado::Value(count));
            ++tables;
        }
    }
    if (tables == 0) {
        std::printf("skipped: the sample files are not at hand\n");
        return;
    }
    EXPECT_GE(tables, 50);
}

TEST_F(ConnectionTest, MoreFilesThanThePoolContainsCanBeInUse) {
    std::vector<ado::Recordset> open_;
    for (int i = 0; i < 7; ++i) {
        const QString file = inFolder(qPrintable(QStringLiteral("lista%1.mdb").arg(i)));
        ASSERT_TRUE(schema::CreaDatabase(file.toStdString()).ok());
        connection = ado::connectionTo(file);
        run(QStringLiteral("INSERT INTO tb_gruppi (nome) VALUES ('%1')").arg(i));
        run("INSERT INTO tb_gruppi (nome) VALUES ('x')");
        open_.push_back(open("SELECT * FROM tb_gruppi"));
    }
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(open_[static_cast<size_t>(i)].value(u"nome").value(), ado::Value(QString::number(i)));
        EXPECT_EQ(open_[static_cast<size_t>(i)].recordCount(), 2);
    }
}

}  // namespace connection_test
