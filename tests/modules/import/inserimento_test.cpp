// SPDX-License-Identifier: GPL-3.0-or-later
// The parts that the imports share: the boxes, and the rows on disk.
#include "modules/import/Inserimento.h"
#include "modules/store/Destinatario.h"
#include "modules/store/NuovoDatabase.h"

#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/import/campi.h"
#include "platform/ado/Recordset.h"
#include "platform/jet/Database.h"
#include "support/JetChecker.h"
#include "support/Vectors.h"

namespace inserimento_test {

using destinatario::Valori;

namespace {

/// An empty recipient database, the current one as long as the test lasts.
class InsertedRow : public testing::Test {
  protected:
    InsertedRow() {
        esigi(schema::CreaDatabase(m_dir.filePath("data.mdb").toStdString()));
        connDB = "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + m_dir.filePath("data.mdb");
    }
    ~InsertedRow() override {
        ado::closeAll();
        connDB.clear();
    }

    static QStringList values(const QString& column) {
        ado::Recordset rows;
        esigi(rows.setActiveConnection(connDB));
        rows.setSource("SELECT * FROM [tb_destinatari] ORDER BY id ASC;");
        esigi(rows.open());
        QStringList found;
        for (; !rows.isEof(); esigi(rows.moveNext()))
            found << esigi(rows.value(column)).toTextOrEmpty();
        return found;
    }

    QTemporaryDir m_dir;
};

Valori valoriPer(const QString& indirizzo) {
    Valori valori;
    valori[schema::email] = indirizzo;
    return valori;
}

}  // namespace

TEST(ColumnBoxes, FeedEveryColumnOnce) {
    std::array<int, schema::numeroCampi> fed{};
    for (const schema::Campo campo : campi::colonne)
        ++fed[campo];
    for (const int times : fed)
        EXPECT_EQ(times, 1);
}

TEST(ColumnBoxes, AreInTheirOrderUnderTheLabelsOfTheirColumns) {
    using namespace schema;
    EXPECT_EQ(campi::colonne, (Ordine{rgs, nom, email, piva, cap, loc, prov, ind, tel, fax, campo1, campo2,
                                      campo3, campo4, campo5, campo6, campo7, campo8, campo9}));
    EXPECT_EQ(campi::etichette, (std::array<int, campi::quanti>{0, 1, 2, 3, 5, 6, 7, 4, 8, 9, 10, 11, 12, 13,
                                                                14, 15, 16, 17, 18}));
    EXPECT_EQ(campi::colonne[campi::boxEmail], email);
}

TEST_F(InsertedRow, IsSelectedAndInItsGroup) {
    Inserimento comando;
    comando.Prepara();
    comando.Inserisci("12", valoriPer("a@x.it"));
    comando.Conferma();
    EXPECT_EQ(values("email"), QStringList("a@x.it"));
    EXPECT_EQ(values("id_grp"), QStringList("12"));
    EXPECT_EQ(values("sel"), QStringList("True"));
    EXPECT_EQ(values("campo9"), QStringList(""));
}

TEST_F(InsertedRow, WithAQuoteInAValueIsRefusedAndTheOthersStay) {
    Inserimento comando;
    comando.Prepara();
    comando.Inserisci("1", valoriPer("a@x.it"));
    Valori valori = valoriPer("b@x.it");
    valori[schema::nom] = "Dell'Acqua";
    EXPECT_THROW(comando.Inserisci("1", valori), Fallimento);
    valori[schema::nom] = R"(Caffè "La Rapida")";
    comando.Inserisci("1", valori);
    comando.Conferma();
    EXPECT_EQ(values("nom"), (QStringList{"", R"(Caffè "La Rapida")"}));
}

TEST_F(InsertedRow, StaysWhenTheImportIsLeftByAFailure) {
    try {
        Inserimento comando;
        comando.Prepara();
        comando.Inserisci("1", valoriPer("a@x.it"));
        fallisci(ErrorCode::DeviceIo);
    } catch (const Fallimento&) {
    }
    EXPECT_EQ(values("email"), QStringList("a@x.it"));
}

// The process is gone in the middle of a group: what was committed before is there, the file is sound.
TEST_F(InsertedRow, OfACommittedGroupSurvivesACrash) {
    ado::closeAll();
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        Inserimento comando;
        comando.Prepara();
        for (int i = 0; i < 12000; ++i)
            comando.Inserisci("1", valoriPer(QString("n%1@x.it").arg(i)));
        ::_exit(0);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    const QStringList addresses = values("email");
    EXPECT_GT(addresses.size(), 7000);  // a group contains 5000 at most
    EXPECT_LE(addresses.size(), 12000);
    for (int i = 0; i < addresses.size(); ++i)
        ASSERT_EQ(addresses[i], QString("n%1@x.it").arg(i));
    ado::closeAll();
    EXPECT_EQ(checkJetFile(m_dir.filePath("data.mdb").toStdString()), std::vector<std::string>());
}

TEST_F(InsertedRow, IsNotComparedWithThoseThatAreThere) {
    Inserimento comando;
    comando.Prepara();
    comando.Inserisci("1", valoriPer("a@x.it"));
    comando.Inserisci("1", valoriPer("a@x.it"));
    comando.Conferma();
    EXPECT_EQ(values("email"), (QStringList{"a@x.it", "a@x.it"}));
}

TEST(PreparedInsert, FailsWhereTheDatabaseIsMissing) {
    connDB = "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = /nowhere/data.mdb";
    Inserimento comando;
    EXPECT_THROW(comando.Prepara(), Fallimento);
    connDB.clear();
}

}  // namespace inserimento_test
