// SPDX-License-Identifier: GPL-3.0-or-later
// "Esito degli invii...": filters, copies, saves, changes the selection, deletes.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTableView>

#include "modules/core/bGlobal.h"
#include "modules/send/Accettati.h"
#include "platform/mail/OutcomeFile.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/strumenti/frmEsiti.h"

namespace frmesiti_test {

using namespace testing_support;
using mail::DeliveryCause;
using mail::DeliveryStage;
using mail::OutcomeKind;
using ui::MessageDialog;

namespace {

/// A run of as many rows as there are replies; "250" is a delivery. Row 1 is "uno1@x.it".
void writeRun(const QStringList& replies, const QString& database = percorsoDB) {
    mail::OutcomeFile book(esiti::Cartella(), "mittente@x.it", "Offerta");
    qint64 number = 0;
    for (const QString& reply : replies) {
        const int code = reply.left(3).toInt();
        auto line = mail::OutcomeLine::of(
            {code == 250, code, reply.mid(4), false, DeliveryStage::Recipient, DeliveryCause::Server},
            reply.mid(4));
        line.time = QDateTime::currentDateTimeUtc();
        line.number = ++number;
        line.address = QString("uno%1@x.it").arg(number);
        book.add(mail::DatabaseFile::at(database), line);
    }
}

QStringList addresses(int count) {
    QStringList all;
    for (int number = 1; number <= count; ++number)
        all << QString("uno%1@x.it").arg(number);
    return all;
}

struct Stage : SendStage {
    explicit Stage(int recipients) : SendStage(addresses(recipients)) {}

    void show() {
        esiti = std::make_unique<frmEsiti>([this] { ++fills; });
        esiti->Carica();
        esiti->show();
        QVERIFY(QTest::qWaitForWindowExposed(esiti.get()));
    }
    template <class Control>
    Control* its(const char* name) const {
        auto* found = esiti->findChild<Control*>(name);
        if (!found) qFatal("no control %s", name);
        return found;
    }
    void press(const char* name) const { its<QAbstractButton>(name)->click(); }
    QAbstractItemModel& rows() const { return *its<QTableView>("tabella")->model(); }
    QString cell(int row, int column) const { return rows().index(row, column).data().toString(); }
    QString summary() const { return its<QLabel>("lblRiassunto")->text(); }
    static QString lastBox() { return MessageDialog::shown().last().text; }

    std::unique_ptr<frmEsiti> esiti;
    int fills = 0;
};

}  // namespace

class TestFrmEsiti : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void withoutARunItSaysSo() {
        Stage stage(1);
        stage.show();
        QVERIFY(stage.summary().contains("Nessun invio registrato"));
        for (const char* name :
             {"cmdElimina", "cmdEliminaTutti", "cmdSeleziona", "cmdDeseleziona", "cmdCopia", "cmdSalva"})
            QVERIFY2(!stage.its<QPushButton>(name)->isEnabled(), name);
        QVERIFY(stage.its<QCheckBox>("chkRegistro")->isChecked());
    }

    void showsWhatBecameOfEachRecipient() {
        Stage stage(3);
        writeRun({"250 ok", "550 5.1.1 unknown", "452 4.2.2 full"});
        stage.show();
        QCOMPARE(stage.rows().rowCount(), 3);
        QCOMPARE(stage.cell(1, 1), "uno2@x.it");
        QCOMPARE(stage.cell(1, 2), "Rifiutato");
        QCOMPARE(stage.cell(1, 3), "Casella o indirizzo inesistente");
        QCOMPARE(stage.cell(1, 4), "550 5.1.1 unknown");
        QCOMPARE(stage.summary(), "3 destinatari.");
    }

    void filtersByOutcomeReasonAndText() {
        Stage stage(4);
        writeRun({"250 ok", "550 5.1.1 unknown", "452 4.2.2 full", "550 5.1.1 gone"});
        stage.show();
        auto* outcome = stage.its<QComboBox>("cmbEsito");
        auto* reason = stage.its<QComboBox>("cmbMotivo");
        outcome->setCurrentIndex(outcome->findText("Consegnato (1)"));
        QCOMPARE(stage.rows().rowCount(), 1);
        outcome->setCurrentIndex(outcome->findText("Rifiutato (3)"));
        reason->setCurrentIndex(reason->findText("Casella o indirizzo inesistente (2)"));
        QCOMPARE(stage.rows().rowCount(), 2);
        stage.its<QLineEdit>("txtCerca")->setText(" UNO4 ");
        QCOMPARE(stage.rows().rowCount(), 1);
        QCOMPARE(stage.cell(0, 1), "uno4@x.it");
        QCOMPARE(stage.summary(), "1 di 4 destinatari.");
        stage.its<QLineEdit>("txtCerca")->setText("nessuno");
        QVERIFY(!stage.its<QPushButton>("cmdSalva")->isEnabled());
    }

    void savesWhatIsShownAsCsv() {
        Stage stage(2);
        writeRun({"250 ok", "550 =1+1"});
        stage.show();
        auto* outcome = stage.its<QComboBox>("cmbEsito");
        outcome->setCurrentIndex(outcome->findText("Rifiutato (1)"));
        const QString path = stage.folder.path("esito.csv");
        ui::FileDialog::queue(path);
        stage.press("cmdSalva");
        QFile file(path);
        QVERIFY(file.open(QFile::ReadOnly));
        const QByteArray csv = file.readAll();
        QVERIFY(csv.startsWith("\xEF\xBB\xBF"));
        QVERIFY(csv.contains("\"'=1+1\""));
        QVERIFY(!csv.contains("uno1@x.it"));
        ui::FileDialog::queue(stage.folder.path("nessuna/esito.csv"));
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdSalva");
        QVERIFY(Stage::lastBox().contains("non si può scrivere"));
    }

    void copiesTheMarkedRowsOrAllThatAreShown() {
        Stage stage(3);
        writeRun({"250 ok", "250 ok", "250 ok"});
        stage.show();
        stage.press("cmdCopia");
        QCOMPARE(QApplication::clipboard()->text().count('\n'), 4);
        auto* table = stage.its<QTableView>("tabella");
        table->selectRow(0);
        table->selectionModel()->select(table->model()->index(2, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        const QString text = QApplication::clipboard()->text();
        QVERIFY(text.contains("uno1@x.it") && text.contains("uno3@x.it") && !text.contains("uno2@x.it"));
    }

    void selectsThoseThatAreShownForTheNextRun() {
        Stage stage(4);
        writeRun({"250 ok", "452 4.2.2 full", "452 4.2.2 full", "452 4.2.2 full"});
        SampleFolder::run("UPDATE [tb_destinatari] SET [sel] = False;");
        SampleFolder::run("UPDATE [tb_destinatari] SET [email] = 'altro@x.it' WHERE [id] = 3;");
        SampleFolder::run("UPDATE [tb_destinatari] SET [sel] = True WHERE [id] = 4;");
        stage.show();
        auto* outcome = stage.its<QComboBox>("cmbEsito");
        outcome->setCurrentIndex(outcome->findText("Rifiutato (3)"));
        nodoCorrente = Nodo{"K1", "Clienti"};
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdSeleziona");
        QCOMPARE(SampleFolder::selected(), (QStringList{"uno2@x.it", "uno4@x.it"}));
        QVERIFY(Stage::lastBox().contains("Un destinatario è stato selezionato."));
        QVERIFY(Stage::lastBox().contains("Uno lo era già."));
        QVERIFY(Stage::lastBox().contains("Uno non è stato toccato"));
        QCOMPARE(stage.fills, 1);
        nodoCorrente.reset();
    }

    void asksBeforeItSelectsWhoGotTheMessage() {
        Stage stage(2);
        writeRun({"250 ok", "452 4.2.2 full"});
        SampleFolder::run("UPDATE [tb_destinatari] SET [sel] = False;");
        stage.show();
        MessageDialog::queue(MessageDialog::No);
        stage.press("cmdSeleziona");
        QVERIFY(Stage::lastBox().contains("ha già ricevuto"));
        QCOMPARE(MessageDialog::shown().last().defaultAnswer, int(MessageDialog::No));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void selectingIsNewerThanWhatIsRemembered() {
        Stage stage(1);
        writeRun({"452 4.2.2 full"});
        const auto database = mail::DatabaseFile::at(percorsoDB);
        esigi(accettati().reserve(database, 1));
        accettati().add(database, 1, "uno1@x.it");
        stage.show();
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdSeleziona");
        QVERIFY(!accettati().holds(database, 1, "uno1@x.it"));
    }

    void deselectsAddressesThatDoNotExist() {
        Stage stage(5);
        writeRun({"250 ok", "550 5.1.1 unknown", "550 5.7.1 policy", "550 unknown user", "550 5.1.3 syntax"});
        SampleFolder::run("UPDATE [tb_destinatari] SET [email] = 'UNO5@x.it' WHERE [id] = 5;");
        stage.show();
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdDeseleziona");
        QStringList left = SampleFolder::selected();
        left.sort();
        QCOMPARE(left, (QStringList{"UNO5@x.it", "uno1@x.it", "uno3@x.it", "uno4@x.it"}));
        QVERIFY(Stage::lastBox().contains("Un destinatario è stato deselezionato."));
    }

    void asksFirstWhereMoreThanHalfDoNotExist() {
        Stage stage(3);
        writeRun({"550 5.1.1 unknown", "550 5.1.1 unknown", "250 ok"});
        stage.show();
        MessageDialog::queue(MessageDialog::No);
        stage.press("cmdDeseleziona");
        QVERIFY(Stage::lastBox().contains("2 destinatari su 3"));
        QCOMPARE(SampleFolder::selected().size(), 3);
        MessageDialog::queue(MessageDialog::Yes);
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdDeseleziona");
        QCOMPARE(SampleFolder::selected(), QStringList("uno3@x.it"));
    }

    void saysWhereNobodyIsToBeDeselected() {
        Stage stage(1);
        writeRun({"250 ok"});
        stage.show();
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdDeseleziona");
        QVERIFY(Stage::lastBox().contains("nessun indirizzo è risultato inesistente"));
    }

    void manyAreChangedInGroups() {
        Stage stage(450);
        QStringList replies;
        for (int number = 0; number < 450; ++number)
            replies << (number % 3 == 0 ? "550 5.1.1 unknown" : "250 ok");
        writeRun(replies);
        stage.show();
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdDeseleziona");
        QCOMPARE(SampleFolder::selected().size(), 300);
    }

    void runOfAnotherDatabaseChangesNothing() {
        Stage stage(1);
        const QString other = stage.folder.path("altro.mdb");
        QVERIFY(QFile::copy(percorsoDB, other));
        writeRun({"550 5.1.1 unknown"}, other);
        stage.show();
        QVERIFY(!stage.its<QPushButton>("cmdSeleziona")->isEnabled());
        QVERIFY(!stage.its<QPushButton>("cmdDeseleziona")->isEnabled());
        QVERIFY(stage.summary().contains("altro database"));
        QVERIFY(stage.its<QComboBox>("cmbInvio")->currentText().contains("altro.mdb"));
    }

    void databaseThatCannotBeChangedLeavesTheWindowAlive() {
        Stage stage(1);
        writeRun({"550 5.1.1 unknown", "250 ok"});
        stage.show();
        stage.folder.hideDatabase();
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("cmdDeseleziona");
        stage.folder.showDatabase();
        QVERIFY(Stage::lastBox().contains("La selezione non si può cambiare"));
        QVERIFY(stage.ends.isEmpty());
    }

    void damagedAndCutOffBooksAreReported() {
        Stage stage(3);
        writeRun({"250 ok", "250 ok", "250 ok"});
        const QString path = mail::outcomes::runs(esiti::Cartella()).first().path;
        QFile file(path);
        QVERIFY(file.open(QFile::ReadWrite));
        QByteArray content = file.readAll();
        const qsizetype second = content.indexOf('\n', content.indexOf('\n') + 1) + 1;
        content[second] = '#';
        file.resize(0);
        file.seek(0);
        file.write(content.chopped(10));
        file.close();
        stage.show();
        QCOMPARE(stage.rows().rowCount(), 1);
        QVERIFY(stage.summary().contains("Una riga del registro è rovinata"));
        QVERIFY(stage.summary().contains("si interrompe"));
    }

    void bookThatCannotBeReadIsReported() {
        Stage stage(1);
        writeRun({"250 ok"});
        const QString path = mail::outcomes::runs(esiti::Cartella()).first().path;
        stage.show();
        QVERIFY(QFile::remove(path));
        stage.its<QComboBox>("cmbInvio")->setCurrentIndex(-1);
        stage.its<QComboBox>("cmbInvio")->setCurrentIndex(0);
        QVERIFY(stage.summary().contains("non c'è più"));
        QCOMPARE(stage.rows().rowCount(), 0);
    }

    void deletesOneRunOrAll() {
        Stage stage(1);
        for (int run = 0; run < 3; ++run)
            writeRun({"250 ok"});
        stage.show();
        QCOMPARE(stage.its<QComboBox>("cmbInvio")->count(), 3);
        MessageDialog::queue(MessageDialog::No);
        stage.press("cmdElimina");
        QCOMPARE(stage.its<QComboBox>("cmbInvio")->count(), 3);
        MessageDialog::queue(MessageDialog::Yes);
        stage.press("cmdElimina");
        QCOMPARE(stage.its<QComboBox>("cmbInvio")->count(), 2);
        MessageDialog::queue(MessageDialog::Yes);
        stage.press("cmdEliminaTutti");
        QCOMPARE(stage.its<QComboBox>("cmbInvio")->count(), 0);
        QVERIFY(mail::outcomes::runs(esiti::Cartella()).isEmpty());
    }

    void switchIsKept() {
        Stage stage(1);
        stage.show();
        stage.press("chkRegistro");
        QVERIFY(!esiti::Acceso());
        stage.show();
        QVERIFY(!stage.its<QCheckBox>("chkRegistro")->isChecked());
        stage.press("chkRegistro");
        QVERIFY(esiti::Acceso());
    }

    void switchThatCannotBeTurnedSaysSo() {
        Stage stage(1);
        QVERIFY(QFile(esiti::Cartella().chopped(1)).open(QFile::WriteOnly));
        stage.show();
        MessageDialog::queue(MessageDialog::Ok);
        stage.press("chkRegistro");
        QVERIFY(stage.its<QCheckBox>("chkRegistro")->isChecked());
    }
};

TEST_CLASS(TestFrmEsiti);

}  // namespace frmesiti_test

#include "frmesiti_test.moc"
