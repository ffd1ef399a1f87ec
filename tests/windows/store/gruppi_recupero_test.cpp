// SPDX-License-Identifier: GPL-3.0-or-later
// Loading the tree when the database cannot be used.
#include <QFile>

#include "modules/core/bImpostazioni.h"
#include "modules/store/NuovoDatabase.h"
#include "platform/ado/Connection.h"
#include "platform/jet/Database.h"
#include "support/TestClass.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"
#include "windows/store/griglia_stage.h"

namespace gruppi_recupero_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

const QString missing = "Impossibile trovare il database.\r\nCaricare un'altro database prima di continuare.";
const QString refused =
    "Si è scelto di non continuare.\r\nImpossibile utilizzare il programma senza un Database valido.";

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The program's start, up to its requested end.
void start() {
    evento([] { finestre::Main(); });
}

}  // namespace

class TestGruppiRecupero : public QObject {
    Q_OBJECT

    static void verifyBoxes(const QList<std::pair<QString, int>>& wanted) {
        const auto& shown = MessageDialog::shown();
        QCOMPARE(shown.size(), wanted.size());
        for (qsizetype i = 0; i < shown.size(); ++i) {
            QCOMPARE(shown[i].text, wanted[i].first);
            QCOMPARE(shown[i].style, wanted[i].second);
            QCOMPARE(shown[i].title, "Attenzione");
        }
    }
    /// A second database beside the first, with one group more.
    static QString otherDatabase(StoreStage& stage) {
        stage.addGroup(0, "Fornitori");
        const QString path = stage.folder.path("altro.mdb");
        ado::closeAll();
        if (!QFile::copy(stage.folder.database(), path)) qFatal("cannot copy the database");
        return path;
    }

  private Q_SLOTS:
    void chosenDatabaseIsTakenAndRemembered() {
        StoreStage stage;
        const QString other = otherDatabase(stage);
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        FileDialog::queue(other);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fornitori)");
        verifyBoxes({{missing, 16}});
        QCOMPARE(FileDialog::shown().size(), 1);
        QCOMPARE(FileDialog::shown()[0].title, "Apri Mailing List");
        QCOMPARE(FileDialog::shown()[0].filter, "Database Mailing List *.mdb|*.mdb|");
        QVERIFY(!FileDialog::shown()[0].save);
        QCOMPARE(percorsoDB, other);
        QCOMPARE(connDB, "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + other);
        QCOMPARE(bytesOf(cartellaDati() + "pathDBase.imp"),
                 "[Path dabatase Quintara]\r\n" + other.toLatin1() + "\r\n");
        QCOMPARE(stage.grd().Rows(), 1);
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(stage.ends.isEmpty());
        stage.clickNode("K1");
        QVERIFY(stage.grd().model()->columnCount() > 0);
    }

    void cancelEndsTheProgramAndSavesNothing() {
        StoreStage stage;
        stage.folder.hideDatabase();
        const QByteArray path = bytesOf(cartellaDati() + "pathDBase.imp");
        MessageDialog::queue(MessageDialog::Ok);
        MessageDialog::queue(MessageDialog::Ok);
        FileDialog::queueCancel();
        start();
        verifyBoxes({{missing, 16}, {refused, 16}});
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(bytesOf(cartellaDati() + "pathDBase.imp"), path);
        QVERIFY(!QFile::exists(cartellaDati() + "LayoutMain.imp"));
        QVERIFY(!QFile::exists(cartellaDati() + "frmMain.imp"));
    }

    void fileThatIsNoRecipientDatabaseEndsTheProgram_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("no database at all") << "prova.txt";
        QTest::newRow("missing file") << "manca.mdb";
        QTest::newRow("groups only") << "gruppi.mdb";
    }
    void fileThatIsNoRecipientDatabaseEndsTheProgram() {
        QFETCH(QString, name);
        StoreStage stage;
        QFile text(stage.folder.path("prova.txt"));
        QVERIFY(text.open(QIODevice::WriteOnly));
        text.write("testo");
        text.close();
        QVERIFY(schema::CreaDatabase(stage.folder.path("gruppi.mdb").toStdString()).ok());
        SampleFolder::renameInFile(stage.folder.path("gruppi.mdb"), "tb_destinatari", "tb_destinatarx");
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        MessageDialog::queue(MessageDialog::Ok);
        FileDialog::queue(stage.folder.path(name));
        start();
        verifyBoxes({{missing, 16}, {"Formato file errato", 64}});
        QCOMPARE(stage.ends, QList<int>{1});
        QCOMPARE(percorsoDB, stage.folder.database());
        // The hourglass goes with the process.
        QVERIFY(QApplication::overrideCursor());
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }

    void databaseThatPassesButCannotBeLoadedAsksAgain() {
        StoreStage stage;
        const QString good = otherDatabase(stage);
        const QString lacking = stage.folder.path("manca.mdb");
        QVERIFY(QFile::copy(good, lacking));
        SampleFolder::renameInFile(lacking, "id_up", "id_xx");
        stage.folder.hideDatabase();
        for (int i = 0; i < 2; ++i)
            MessageDialog::queue(MessageDialog::Ok);
        FileDialog::queue(lacking);
        FileDialog::queue(good);
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fornitori)");
        verifyBoxes({{missing, 16}, {missing, 16}});
        QCOMPARE(percorsoDB, good);
    }

    void laterRebuildRecoversAndEmptiesTheGrid() {
        StoreStage stage;
        const QString other = otherDatabase(stage);
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        QCOMPARE(stage.grd().Rows(), 2);
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        FileDialog::queue(other);
        stage.groups().CaricaGruppiINI();
        QCOMPARE(stage.shape(), "Database Mailing(Clienti, Fornitori)");
        QCOMPARE(stage.grd().Rows(), 1);
    }
};

TEST_CLASS(TestGruppiRecupero);

}  // namespace gruppi_recupero_test

#include "gruppi_recupero_test.moc"
