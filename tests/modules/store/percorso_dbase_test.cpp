// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/percorsoDBase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

namespace percorso_dbase_test {

namespace {

const QString prefix = QStringLiteral("Provider = Microsoft.Jet.OLEDB.4.0; Data Source = ");

// A program folder of its own, with a data folder.
class DatabasePath : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("data")));
        sys::setProgramFolder(m_folder.path());
        percorsoDB = QStringLiteral("old");
        prefissoConnDB.clear();
        connDB = QStringLiteral("old");
    }
    void TearDown() override { sys::setProgramFolder({}); }

    QString file() const { return cartellaDati() + QStringLiteral("pathDBase.imp"); }
    QString read(const QByteArray& bytes) const {
        writeBytes(file(), bytes);
        EXPECT_EQ(CaricaPercorsoDBase(), QString());
        EXPECT_EQ(connDB, prefix + percorsoDB);
        return percorsoDB;
    }
    QString whole() const { return cartellaDati() + QStringLiteral("pathDBase.utf8"); }
    static QString aside() { return QStringLiteral("messo da parte"); }

  private:
    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(DatabasePath, ThreeCapitalsAreTheDefaultDatabase) {
    EXPECT_EQ(read("[Path dabatase Quintara]\r\nXXX\r\n"), cartellaDati() + QStringLiteral("data.mdb"));
}

TEST_F(DatabasePath, AnyOtherTextIsTakenLiterally) {
    for (const char* path :
         {"xxx", "XXX ", " XXX", "rubrica.mdb", "../altro/dati.mdb", "C:\\dati\\lista.mdb", ""}) {
        EXPECT_EQ(read(QByteArray("[Path dabatase Quintara]\r\n") + path + "\r\n"), QLatin1String(path));
    }
}

TEST_F(DatabasePath, FirstLineMayBeAnything) {
    EXPECT_EQ(read("\r\nXXX\r\n"), cartellaDati() + QStringLiteral("data.mdb"));
    EXPECT_EQ(read("altro\r\ncittà.mdb"), QStringLiteral("citt\u00C3\u00A0.mdb"))
        << "bytes are of the code page";
    EXPECT_EQ(read("altro\ncitt\xE0.mdb\nterza"), QStringLiteral("città.mdb"));
}

TEST_F(DatabasePath, MissingFileLeavesThePathEmpty) {
    EXPECT_EQ(CaricaPercorsoDBase(), QString());
    EXPECT_TRUE(percorsoDB.isEmpty());
    EXPECT_EQ(prefissoConnDB, prefix);
    EXPECT_EQ(connDB, prefix);
}

TEST_F(DatabasePath, FileWithoutASecondLineLeavesThePathEmpty) {
    EXPECT_TRUE(read("[Path dabatase Quintara]\r\n").isEmpty());
    EXPECT_TRUE(read("").isEmpty());
}

TEST_F(DatabasePath, ChangeRewritesTheFileAndTheConnection) {
    EXPECT_EQ(CaricaPercorsoDBase(), QString());
    CambiaPercorsoDBase(QStringLiteral("/dati/città.mdb"));
    EXPECT_EQ(bytesOf(file()), QByteArray("[Path dabatase Quintara]\r\n/dati/citt\xE0.mdb\r\n"));
    EXPECT_EQ(connDB, prefix + QStringLiteral("/dati/città.mdb"));
    EXPECT_EQ(CaricaPercorsoDBase(), QString());
    EXPECT_EQ(percorsoDB, QStringLiteral("/dati/città.mdb"));
}

TEST_F(DatabasePath, ChangeIsKeptWhereTheFileCannotBeWritten) {
    EXPECT_EQ(CaricaPercorsoDBase(), QString());
    ASSERT_TRUE(QDir().mkpath(file()));
    CambiaPercorsoDBase(QStringLiteral("/dati/lista.mdb"));
    EXPECT_EQ(percorsoDB, QStringLiteral("/dati/lista.mdb"));
    EXPECT_EQ(connDB, prefix + percorsoDB);
}

TEST_F(DatabasePath, PathsOutsideTheCodePageAreFoundAgain) {
    EXPECT_EQ(CaricaPercorsoDBase(), QString());
    for (const QString& path :
         {QStringLiteral("/dati/\u0142\u00F3d\u017A.mdb"), QStringLiteral("/dati/citta\u0300.mdb"),
          QStringLiteral("/\u65E5\u672C/\U0001F4E7 ?.mdb")}) {
        CambiaPercorsoDBase(path);
        EXPECT_TRUE(bytesOf(file()).contains('?'));
        percorsoDB.clear();
        EXPECT_EQ(CaricaPercorsoDBase(), QString());
        EXPECT_EQ(percorsoDB, path);
        EXPECT_EQ(connDB, prefix + path);
        EXPECT_EQ(QFile::permissions(whole()) &
                      (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
                  QFile::Permissions());
    }
    EXPECT_EQ(bytesOf(file()), QByteArray("[Path dabatase Quintara]\r\n/?\?/? ?.mdb\r\n"));
}

TEST_F(DatabasePath, TheWholePathIsKeptOnlyForAPathThatNeedsIt) {
    CambiaPercorsoDBase(QStringLiteral("/dati/\u0142.mdb"));
    EXPECT_EQ(bytesOf(whole()), QByteArray("/dati/\xC5\x82.mdb\r\n"));
    CambiaPercorsoDBase(QStringLiteral("/dati/citt\u00E0.mdb"));
    EXPECT_FALSE(QFile::exists(whole()));
}

TEST_F(DatabasePath, AWholePathThatIsNotTheOneOfTheFirstFileIsNotUsed) {
    writeBytes(whole(), "/dati/\xC5\x82.mdb\r\n");
    EXPECT_EQ(read("h\r\n/dati/a.mdb\r\n"), QStringLiteral("/dati/a.mdb"));
    EXPECT_EQ(read("h\r\nXXX\r\n"), cartellaDati() + QStringLiteral("data.mdb"));
    EXPECT_EQ(read("h\r\n/dati/?.mdb\r\n"), QStringLiteral("/dati/\u0142.mdb"));
    EXPECT_TRUE(QFile::exists(whole()));
}

TEST_F(DatabasePath, ADamagedWholePathIsSetAsideAndReported) {
    const QByteArray damaged[] = {"",
                                  "\r\n",
                                  "/dati/\xC5\x82.mdb",
                                  "/dati/\xC5.mdb\r\n",
                                  QByteArray("/dati/\0.mdb\r\n", 12),
                                  "/dati/\xC5\x82\r\n.mdb\r\n",
                                  QByteArray(20000, 'a') + "\r\n"};
    for (const QByteArray& bytes : damaged) {
        writeBytes(whole(), bytes);
        writeBytes(file(), "h\r\n/dati/?.mdb\r\n");
        EXPECT_TRUE(CaricaPercorsoDBase().contains(aside())) << bytes.left(40).toStdString();
        EXPECT_EQ(percorsoDB, QStringLiteral("/dati/?.mdb"));
        EXPECT_FALSE(QFile::exists(whole()));
        EXPECT_EQ(bytesOf(whole() + QStringLiteral(".guasto")), bytes);
    }
    EXPECT_EQ(CaricaPercorsoDBase(), QString()) << "told once";
}

TEST_F(DatabasePath, ALinkIsNotFollowed) {
    const QString target = cartellaDati() + QStringLiteral("altro.txt");
    writeBytes(target, "/dati/\xC5\x82.mdb\r\n");
    ASSERT_TRUE(QFile::link(target, whole()));
    writeBytes(file(), "h\r\n/dati/?.mdb\r\n");
    EXPECT_FALSE(CaricaPercorsoDBase().isEmpty());
    EXPECT_EQ(percorsoDB, QStringLiteral("/dati/?.mdb"));
    ASSERT_TRUE(QFile::link(target, whole()));
    CambiaPercorsoDBase(QStringLiteral("/dati/\u017A.mdb"));
    EXPECT_EQ(bytesOf(target), QByteArray("/dati/\xC5\x82.mdb\r\n"));
}

}  // namespace percorso_dbase_test
