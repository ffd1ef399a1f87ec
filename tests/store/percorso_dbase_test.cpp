#include "store/percorsoDBase.h"

#include <QDir>
#include <QTemporaryDir>

#include "core/bGlobal.h"
#include "core/bImpostazioni.h"
#include "platform/system/ProgramFolder.h"
#include "support/Vectors.h"

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
        CaricaPercorsoDBase();
        EXPECT_EQ(connDB, prefix + percorsoDB);
        return percorsoDB;
    }

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
    CaricaPercorsoDBase();
    EXPECT_TRUE(percorsoDB.isEmpty());
    EXPECT_EQ(prefissoConnDB, prefix);
    EXPECT_EQ(connDB, prefix);
}

TEST_F(DatabasePath, FileWithoutASecondLineLeavesThePathEmpty) {
    EXPECT_TRUE(read("[Path dabatase Quintara]\r\n").isEmpty());
    EXPECT_TRUE(read("").isEmpty());
}

TEST_F(DatabasePath, ChangeRewritesTheFileAndTheConnection) {
    CaricaPercorsoDBase();
    CambiaPercorsoDBase(QStringLiteral("/dati/città.mdb"));
    EXPECT_EQ(bytesOf(file()), QByteArray("[Path dabatase Quintara]\r\n/dati/citt\xE0.mdb\r\n"));
    EXPECT_EQ(connDB, prefix + QStringLiteral("/dati/città.mdb"));
    CaricaPercorsoDBase();
    EXPECT_EQ(percorsoDB, QStringLiteral("/dati/città.mdb"));
}

TEST_F(DatabasePath, ChangeHoldsWhereTheFileCannotBeWritten) {
    CaricaPercorsoDBase();
    ASSERT_TRUE(QDir().mkpath(file()));
    CambiaPercorsoDBase(QStringLiteral("/dati/lista.mdb"));
    EXPECT_EQ(percorsoDB, QStringLiteral("/dati/lista.mdb"));
    EXPECT_EQ(connDB, prefix + percorsoDB);
}
