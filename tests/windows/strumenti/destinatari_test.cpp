// SPDX-License-Identifier: GPL-3.0-or-later
// The tools that maintain recipients and groups, as the menu starts them.
#include <QAction>
#include <QFile>

#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace destinatari_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

struct Scena : StoreStage {
    void start(const QString& name) { window().findChild<QAction*>(name)->trigger(); }
    QString text() { return MessageDialog::shown().constLast().text; }
};

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class TestDestinatari : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void withoutDoublesThereIsOnlyASentence() {
        Scena stage;
        stage.addRecipient(1, "Uno", "uno@x.it");
        MessageDialog::queue(MessageDialog::Ok);
        stage.start("cmdStrumentiDoppi");
        QCOMPARE(stage.text(), QString("Nessun indirizzo è selezionato più di una volta."));
    }

    void doublesAreListedWithTheirFoldersAndDeselectedOnTheUsersWord() {
        Scena stage;
        const int soci = stage.addGroup(0, "Soci");
        const int nuovi = stage.addGroup(soci, "Nuovi");
        stage.addRecipient(1, "Uno", "uno@x.it");
        stage.addRecipient(nuovi, "Due", "UNO@x.it ");
        stage.addRecipient(777, "Tre", "uno@x.it");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.start("cmdStrumentiDoppi");
        QCOMPARE(stage.text(), QString("1 indirizzo è selezionato più di una volta.\r\n"
                                       "Deselezionare i 2 doppioni, uno escluso per indirizzo?"));
        const QList<QStringList> wanted{{"uno@x.it", "Clienti", "1", "Resta selezionato"},
                                        {"uno@x.it", "Soci / Nuovi", "2", "Viene deselezionato"},
                                        {"uno@x.it", "(cartella perduta)", "3", "Viene deselezionato"}};
        QCOMPARE(MessageDialog::shown().constLast().rows, wanted);
        QCOMPARE(StoreStage::column("SELECT * FROM [tb_destinatari] WHERE sel = True ;", "id"),
                 QStringList{"1"});
        QCOMPARE(stage.columnOfGrid(5), QStringList{"Uno"});
    }

    void anAnswerOfNoChangesNothing() {
        Scena stage;
        stage.addRecipient(1, "Uno", "uno@x.it");
        stage.addRecipient(1, "Due", "uno@x.it");
        stage.addGroup(55, "Perduta");
        for (const char* command : {"cmdStrumentiDoppi", "cmdStrumentiPerdute"}) {
            MessageDialog::queue(MessageDialog::No);
            stage.start(command);
        }
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = True"), 2);
        QCOMPARE(StoreStage::count("tb_gruppi", "id_up = 55"), 1);
        QCOMPARE(stage.shape(), QString("Database Mailing(Clienti)"));
    }

    void gridShowsTheNewBoxesAndKeepsItsRow() {
        Scena stage;
        stage.addRecipient(1, "Alfa", "uno@x.it");
        stage.addRecipient(1, "Beta", "uno@x.it");
        stage.clickNode("K1");
        stage.clickCell(2, 5);
        MessageDialog::queue(MessageDialog::Yes);
        stage.start("cmdStrumentiDoppi");
        QCOMPARE(stage.grd().Row(), 2);
        QVERIFY(stage.grd().isChecked(1));
        QVERIFY(!stage.grd().isChecked(2));
    }

    void withoutLostFoldersThereIsOnlyASentence() {
        Scena stage;
        MessageDialog::queue(MessageDialog::Ok);
        stage.start("cmdStrumentiPerdute");
        QCOMPARE(stage.text(), QString("Nessuna cartella è perduta: l'albero le mostra tutte."));
    }

    void lostFoldersComeUnderTheRootAndIntoTheTree() {
        Scena stage;
        const int perduta = stage.addGroup(55, "Perduta");
        const int giro = stage.addGroup(0, "Giro");
        const int tondo = stage.addGroup(giro, "Tondo");
        SampleFolder::run(QString("UPDATE [tb_gruppi] SET id_up = %1 WHERE id = %2 ;").arg(tondo).arg(giro));
        stage.addRecipient(perduta, "Uno", "uno@x.it");
        stage.addRecipient(99, "Due", "due@x.it");
        stage.clickNode("K1");
        MessageDialog::queue(MessageDialog::Yes);
        stage.start("cmdStrumentiPerdute");
        QCOMPARE(stage.text(), QString("L'albero non mostra 3 cartelle e 2 destinatari.\r\n"
                                       "Portarli sotto \"Database Mailing\"?"));
        QCOMPARE(MessageDialog::shown().constLast().rows.size(), 4);
        QCOMPARE(stage.shape(), QString("Database Mailing(Clienti, Giro, Perduta)"));
        QCOMPARE(stage.tree().SelectedItem()->Key(), QString("K1"));
        stage.clickNode(QString("K%1").arg(giro));
        QCOMPARE(stage.shape(), QString("Database Mailing(Clienti, Giro(Tondo), Perduta)"));
        stage.clickNode("K0");
        QCOMPARE(stage.columnOfGrid(5), QStringList{"Due"});
    }

    void aDamagedTableIsASentenceAndNothingIsWritten() {
        Scena stage;
        stage.addRecipient(1, "Uno", "uno@x.it");
        stage.addRecipient(1, "Due", "uno@x.it");
        stage.clickNode("K1");
        stage.folder.damagePagesWith("x.it");
        const QByteArray before = bytesOf(stage.folder.database());
        for (const char* command : {"cmdStrumentiDoppi", "cmdStrumentiPerdute"}) {
            MessageDialog::queue(MessageDialog::Ok);
            stage.start(command);
            QVERIFY2(stage.text().startsWith("Impossibile "), qPrintable(stage.text()));
        }
        QCOMPARE(bytesOf(stage.folder.database()), before);
        QVERIFY(stage.ends.isEmpty());
        QCOMPARE(stage.columnOfGrid(5), (QStringList{"Due", "Uno"}));
    }

    void aMissingDatabaseIsASentenceAndTheWindowLives() {
        Scena stage;
        stage.window();
        for (const char* command : {"cmdStrumentiDoppi", "cmdStrumentiPerdute"}) {
            stage.folder.hideDatabase();
            MessageDialog::queue(MessageDialog::Ok);
            stage.start(command);
            stage.folder.showDatabase();
            QVERIFY(stage.text().startsWith("Impossibile "));
        }
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(stage.window().isVisible());
    }
};

TEST_CLASS(TestDestinatari);

}  // namespace destinatari_test

#include "destinatari_test.moc"
