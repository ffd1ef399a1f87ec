// SPDX-License-Identifier: GPL-3.0-or-later
// Opening another recipient database, and saving a copy of the current one.
#include <sys/stat.h>
#include <QDir>

#include "modules/store/NuovoDatabase.h"
#include "platform/jet/Database.h"
#include "support/TestClass.h"
#include "windows/shell/shell_support.h"

namespace database_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

const char* const question =
    "Il percorso del database che verrà aperto diventerà quello di default per i prossimi avii.\r\n"
    "Il database deve stare in una cartella sicura e non potrà essere rinominato o spostato durante "
    "l'esecuzione "
    "per programma.\r\n"
    "La cartella contentente il database dovrà avere i permessi di scrittura altrimenti il software non "
    "funzionerà.\r\n"
    "Continuare?";

}  // namespace

class TestDatabase : public QObject {
    Q_OBJECT

    static QString otherDatabase(const StoreStage& stage) {
        const QString path = stage.folder.path("altra.mdb");
        if (!schema::CreaDatabase(path.toStdString()).ok()) qFatal("no other database");
        return path;
    }
    /// A sound database whose table of the recipients has another name of the same length.
    static QByteArray groupsOnly() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("gruppi.mdb");
        if (!schema::CreaDatabase(path.toStdString()).ok()) qFatal("no database of groups");
        SampleFolder::renameInFile(path, "tb_destinatari", "tb_destinatarx");
        return readFile(path);
    }
    static QByteArray pathFile(const StoreStage& stage) {
        return readFile(stage.folder.path("data/pathDBase.imp"));
    }

  private Q_SLOTS:
    void init() {
        bVAR::MailingOpen = "Apri la lista";
        bVAR::MailingSalva = "Salva la lista";
    }
    void cleanup() { QVERIFY(!QApplication::overrideCursor()); }

    void openingAsksFirstAndNoChangesNothing() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        const QByteArray before = pathFile(stage);
        MessageDialog::queue(MessageDialog::No);
        stage.command("cmdMailingApri");
        QVERIFY(stage.oneBox(question, 68));
        QVERIFY(FileDialog::shown().isEmpty());
        QCOMPARE(pathFile(stage), before);
        QCOMPARE(stage.grd().Rows(), 2);
        QCOMPARE(stage.tree().Count(), 2);
    }

    void aValidDatabaseBecomesTheCurrentOne() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        const QString other = otherDatabase(stage);
        bVAR::MailingOpen = "Apri la lista";
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queue(other);
        stage.command("cmdMailingApri");
        QCOMPARE(FileDialog::shown().size(), 1);
        QCOMPARE(FileDialog::shown()[0].title, "Apri la lista");
        QCOMPARE(FileDialog::shown()[0].filter, "Database Mailing List *.mdb|*.mdb|");
        QVERIFY(!FileDialog::shown()[0].save);
        QCOMPARE(pathFile(stage), "[Path dabatase Quintara]\r\n" + other.toUtf8() + "\r\n");
        QCOMPARE(percorsoDB, other);
        QCOMPARE(connDB, "Provider = Microsoft.Jet.OLEDB.4.0; Data Source = " + other);
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(stage.grd().TextMatrix(0, 3), "");
        QCOMPARE(stage.tree().Count(), 1);
        QVERIFY(stage.ends.isEmpty());
    }

    void noGroupOfTheOldDatabaseIsCurrentInTheNewOne() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        const QString other = otherDatabase(stage);
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queue(other);
        stage.command("cmdMailingApri");
        const int same = stage.addGroup(0, "Altri");
        QCOMPARE(same, 1);
        SampleFolder::run("INSERT INTO [tb_destinatari] (id_grp, sel, rgs) VALUES (1, True, 'B');");
        stage.groups().CaricaGruppiINI();
        QVERIFY(!nodoCorrente);
        stage.tree().setFocus();
        QTest::keyClick(&stage.tree(), Qt::Key_Delete);
        QCOMPARE(MessageDialog::shown().size(), 1);
        stage.dropNode(stage.at("K0"));
        QCOMPARE(StoreStage::count("tb_gruppi", "id = 1"), 1);
        QCOMPARE(StoreStage::count("tb_destinatari", "id_grp = 1"), 1);
        mouse::click(&stage.tree(), stage.emptySpace(), Qt::RightButton);
        QCOMPARE(stage.takePopup(), QString());
        QVERIFY(stage.ends.isEmpty());
    }

    void aCancelLeavesTheGroupCurrentButNoKeyActsOnIt() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queueCancel();
        stage.command("cmdMailingApri");
        QCOMPARE(nodoCorrente->Key, "K1");
        for (QWidget* place : {static_cast<QWidget*>(&stage.tree()), static_cast<QWidget*>(&stage.grd())}) {
            place->setFocus();
            QTest::keyClick(place, Qt::Key_Delete);
            QTest::keyClick(place, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        }
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(SampleFolder::selected().size(), 1);
        QVERIFY(!stage.onBar("cmdPopMailingNew"));
        // The pop-up menus are there as before.
        stage.clickCell(1, 5, Qt::RightButton);
        QCOMPARE(stage.takePopup(), "popMailingGRD");
        QVERIFY(stage.window().findChild<QAction*>("cmdPopMailingUserNew")->isEnabled());
        stage.command("cmdPopMailingSelNotGRP");
        QCOMPARE(SampleFolder::selected().size(), 0);
    }

    void theGridIsBoundToTheNewDatabase() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queue(otherDatabase(stage));
        stage.command("cmdMailingApri");
        // The record source is still that of group 1, which is empty in the other database.
        QVERIFY(stage.window().Adodc().Refresh().ok());
        QCOMPARE(stage.grd().Rows(), 1);
    }

    void cancellingRebuildsTheTreeAndLeavesTheGridFull() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        stage.addGroup(0, "Aziende");
        const QByteArray before = pathFile(stage);
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queueCancel();
        stage.command("cmdMailingApri");
        QCOMPARE(stage.tree().Count(), 3);
        QCOMPARE(stage.grd().Rows(), 2);
        QCOMPARE(pathFile(stage), before);
        QCOMPARE(MessageDialog::shown().size(), 1);
    }

    void aWrongFileIsReportedAndChangesNothingButTheTree_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no database") << QByteArray("hello");
        QTest::newRow("empty file") << QByteArray();
        QTest::newRow("groups only") << groupsOnly();
    }
    void aWrongFileIsReportedAndChangesNothingButTheTree() {
        QFETCH(QByteArray, content);
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        stage.clickNode("K1");
        stage.addGroup(0, "Aziende");
        writeFile(stage.folder.path("no.mdb"), content);
        const QByteArray before = pathFile(stage);
        MessageDialog::queue(MessageDialog::Yes);
        MessageDialog::queue(MessageDialog::Ok);
        FileDialog::queue(stage.folder.path("no.mdb"));
        stage.command("cmdMailingApri");
        const auto& boxes = MessageDialog::shown();
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes[1].text, "Formato file errato");
        QCOMPARE(boxes[1].style, 64);
        QCOMPARE(boxes[1].title, "Attenzione");
        QCOMPARE(pathFile(stage), before);
        QCOMPARE(percorsoDB, stage.folder.database());
        QCOMPARE(stage.grd().Rows(), 2);
        QCOMPARE(stage.tree().Count(), 3);
        QVERIFY(stage.ends.isEmpty());
    }

    void theCurrentDatabaseChosenAgainIsANormalChange() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        writeFile(stage.folder.path("data/pathDBase.imp"), "h\r\nXXX\r\n");
        stage.window();
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queue(stage.folder.database());
        stage.command("cmdMailingApri");
        QCOMPARE(pathFile(stage), "[Path dabatase Quintara]\r\n" + stage.folder.database().toUtf8() + "\r\n");
        QCOMPARE(stage.grd().Rows(), 1);
        QCOMPARE(stage.tree().Count(), 2);
    }

    void aDatabaseThatLacksAColumnIsTakenAndFailsAtTheStatementThatNeedsIt() {
        StoreStage stage;
        stage.window();
        const QString other = otherDatabase(stage);
        SampleFolder::renameInFile(other, "campo5", "campox");
        MessageDialog::queue(MessageDialog::Yes);
        FileDialog::queue(other);
        stage.command("cmdMailingApri");
        QCOMPARE(percorsoDB, other);
        QCOMPARE(MessageDialog::shown().size(), 1);
        const QString group = "K" + QString::number(stage.addGroup(0, "Altri"));
        stage.groups().CaricaGruppiINI();
        stage.clickNode(group);
        QVERIFY(stage.ends.isEmpty());
        MessageDialog::queue(MessageDialog::Ok);
        stage.command("cmdPopMailingCopia");
        QVERIFY(stage.failure().contains("campo5"));
        QCOMPARE(stage.ends, QList<int>{1});
    }

    void savingAsksNothingAndCopiesTheDatabase() {
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        const QByteArray before = pathFile(stage);
        const QString copy = stage.folder.path("copia.mdb");
        bVAR::MailingSalva = "Salva la lista";
        FileDialog::queue(copy);
        stage.command("cmdMailingSalva");
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(FileDialog::shown().size(), 1);
        QCOMPARE(FileDialog::shown()[0].title, "Salva la lista");
        QCOMPARE(FileDialog::shown()[0].filter, "Database Mailing List *.mdb|*.mdb");
        QVERIFY(FileDialog::shown()[0].save);
        QCOMPARE(readFile(copy), readFile(stage.folder.database()));
        QCOMPARE(percorsoDB, stage.folder.database());
        QCOMPARE(pathFile(stage), before);
        QVERIFY(stage.ends.isEmpty());
    }

    void copyInTheDataFolderIsForItsOwnerAlone() {
        StoreStage stage;
        stage.window();
        const mode_t before = ::umask(022);
        for (const char* name : {"data/copia.mdb", "copia.mdb"}) {
            FileDialog::queue(stage.folder.path(name));
            stage.command("cmdMailingSalva");
        }
        ::umask(before);
        const auto others = QFile::ReadGroup | QFile::ReadOther;
        QCOMPARE(QFile::permissions(stage.folder.path("data/copia.mdb")) & others, QFile::Permissions());
        QCOMPARE(QFile::permissions(stage.folder.path("copia.mdb")) & others, others);
    }

    void aCopyReplacesAnOlderOneAndLeavesNothingElse() {
        StoreStage stage;
        stage.window();
        QVERIFY(QDir().mkdir(stage.folder.path("copie")));
        const QString copy = stage.folder.path("copie/copia.mdb");
        writeFile(copy, QByteArray(1000000, 'x'));
        FileDialog::queue(copy);
        stage.command("cmdMailingSalva");
        QCOMPARE(readFile(copy), readFile(stage.folder.database()));
        QCOMPARE(QDir(stage.folder.path("copie")).entryList(QDir::Files), QStringList{"copia.mdb"});
    }

    void cancellingASaveStopsTheProgram() {
        StoreStage stage;
        stage.window();
        FileDialog::queueCancel();
        MessageDialog::queue(1);
        stage.command("cmdMailingSalva");
        QVERIFY(stage.failure().startsWith("Errore 32755:"));
        QCOMPARE(stage.ends, QList<int>{1});
    }

    void copiesThatFailStopTheProgramAndLeaveTheListAlone_data() {
        QTest::addColumn<QString>("target");
        QTest::newRow("the open file itself") << "data/data.mdb";
        QTest::newRow("the open file by another road") << "data/../data/data.mdb";
        QTest::newRow("no such folder") << "nowhere/copia.mdb";
        QTest::newRow("a folder") << "data/.";
    }
    void copiesThatFailStopTheProgramAndLeaveTheListAlone() {
        QFETCH(QString, target);
        StoreStage stage;
        stage.addRecipient(1, "A");
        stage.window();
        const QByteArray before = readFile(stage.folder.database());
        FileDialog::queue(stage.folder.path(target));
        MessageDialog::queue(1);
        stage.command("cmdMailingSalva");
        QVERIFY2(stage.failure().startsWith("Errore 75:"), qPrintable(stage.failure()));
        QCOMPARE(readFile(stage.folder.database()), before);
        // The pointer matters only to a program that continues.
        while (QApplication::overrideCursor())
            QApplication::restoreOverrideCursor();
    }
};

TEST_CLASS(TestDatabase);

}  // namespace database_test

#include "database_test.moc"
