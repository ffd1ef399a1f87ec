// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QTemporaryDir>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Connection.h"
#include "platform/jet/Database.h"
#include "support/JetTables.h"
#include "support/Vectors.h"

namespace verifica_database_test {

namespace {

// What every caller does: a failure leaves the result False.
bool usable(const QString& path) {
    bool result = false;
    Prosegui prosegui;
    prosegui([&] { result = VerificaDatabase(path); });
    return result;
}

QByteArray wide(const QByteArray& text) {
    QByteArray bytes;
    for (const char character : text)
        bytes += character + QByteArray(1, '\0');
    return bytes;
}

class DatabaseCheck : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(schema::CreaDatabase(path().toStdString()).ok()); }
    void TearDown() override { ado::closeAll(); }

    QString path() const { return m_folder.filePath(QStringLiteral("x.mdb")); }
    // Renames a table or column in the bytes of the file, to a name of the same length.
    void rename(const QByteArray& from, const QByteArray& to) const {
        const QByteArray before = bytesOf(path());
        QByteArray after = before;
        after.replace(wide(from), wide(to)).replace(from, to);
        ASSERT_NE(before, after) << from.constData();
        writeBytes(path(), after);
    }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(DatabaseCheck, EmptyDatabaseWithBothTablesIsUsable) {
    const QByteArray before = bytesOf(path());
    EXPECT_TRUE(VerificaDatabase(path()));
    EXPECT_EQ(bytesOf(path()), before);
}

TEST_F(DatabaseCheck, MoreTablesDoNoHarm) {
    for (const char* name : {"aaa", "tb_destinatari2", "zzz"})
        jettables::addTable(path().toStdString(), name,
                            {{"id", jet::Type::Long}, {"testo", jet::Type::Text, 50}}, {});
    EXPECT_TRUE(VerificaDatabase(path()));
}

TEST_F(DatabaseCheck, NamesCountInAnyMixOfCase) {
    rename("tb_destinatari", "TB_Destinatari");
    rename("tb_gruppi", "Tb_GRUPPI");
    EXPECT_TRUE(VerificaDatabase(path()));
}

TEST_F(DatabaseCheck, GroupsAloneAreNotEnough) {
    rename("tb_destinatari", "tb_destinatarx");
    EXPECT_FALSE(VerificaDatabase(path()));
}

TEST_F(DatabaseCheck, RecipientsAloneAreNotEnough) {
    rename("tb_gruppi", "tb_gruppx");
    EXPECT_FALSE(VerificaDatabase(path()));
}

TEST_F(DatabaseCheck, ColumnsAreNotLookedAt) {
    rename("campo9", "campoX");
    EXPECT_TRUE(VerificaDatabase(path()));
}

TEST_F(DatabaseCheck, FileThatIsNoDatabaseFailsAndCountsAsFalse) {
    const QByteArray text(8192, 'x');
    writeBytes(path(), text);
    EXPECT_THROW(VerificaDatabase(path()), Fallimento);
    EXPECT_FALSE(usable(path()));
    EXPECT_EQ(bytesOf(path()), text);
    EXPECT_FALSE(usable(path() + QStringLiteral(".missing")));
    EXPECT_FALSE(usable(QFileInfo(path()).path()));
    EXPECT_FALSE(usable(QString()));
}

TEST_F(DatabaseCheck, TornDatabaseCountsAsFalse) {
    const QByteArray whole = bytesOf(path());
    for (const qsizetype length : {qsizetype(0), qsizetype(100), qsizetype(4096), whole.size() / 2}) {
        writeBytes(path(), whole.left(length));
        EXPECT_FALSE(usable(path())) << length;
    }
}

TEST_F(DatabaseCheck, OtherPeoplesDatabasesAreNotUsable) {
    const QDir samples(QStringLiteral(SHARED_DIR "/mdb"));
    const QStringList names = samples.entryList({QStringLiteral("*.mdb")}, QDir::Files);
    if (names.isEmpty()) std::printf("skipped: no sample databases in %s\n", qPrintable(samples.path()));
    for (const QString& name : names)
        EXPECT_FALSE(usable(samples.filePath(name))) << name.toStdString();
}

TEST_F(DatabaseCheck, PathCannotSmuggleAnythingIntoTheConnection) {
    EXPECT_FALSE(usable(path() + QStringLiteral(";Data Source = ") + path() + QStringLiteral(".missing")));
}

}  // namespace verifica_database_test
