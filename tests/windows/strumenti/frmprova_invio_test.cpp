// SPDX-License-Identifier: GPL-3.0-or-later
// The test copy to an address of the user's.
#include "modules/send/Accettati.h"
#include "support/AsInTheProgram.h"
#include "support/ScriptedServer.h"
#include "support/TestClass.h"
#include "windows/strumenti/prova_stage.h"

namespace frmprova_invio_test {

using namespace testing_support;

namespace {

const QString mayBeDelivered = QStringLiteral(
    "La prova può essere stata consegnata: il server ha ricevuto tutto il messaggio e non ha risposto.");
const QByteArrayList helloPlain{"S: 220 ready", "C: EHLO *", "S: 250 ready"};

}  // namespace

class TestFrmProvaInvio : public QObject {
    Q_OBJECT

    /// A port of this machine on which nothing listens.
    static quint16 deadPort() {
        QTcpServer taken;
        if (!taken.listen(QHostAddress::LocalHost)) qFatal("no port");
        return taken.serverPort();
    }

  private Q_SLOTS:
    void theCopyOnShowGoesToTheAccountsOwnAddress() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        const QString own = SampleFolder::loopbackAccount(25).txtEmail;
        QCOMPARE(stage.line("txtIndirizzo"), own);
        stage.press("cmdSuccessivo");
        stage.press("cmdSuccessivo");
        QVERIFY(stage.sendCopy());
        QCOMPARE(stage.sink.messages().size(), 1);
        QCOMPARE(stage.sink.messages()[0].recipient, own.toLatin1());
        QVERIFY(stage.sink.messages()[0].data.contains("Subject: Gamma"));
        QVERIFY(stage.sink.messages()[0].data.contains("Gentile Gino"));
        QVERIFY2(stage.text("lblEsito")
                     .startsWith("La prova è stata accettata dal server per " + own +
                                 ". Il "
                                 "server ha risposto: 250"),
                 qPrintable(stage.text("lblEsito")));
    }

    void theCopyEntersNoBookAndLeavesTheSelectionAndTheRunsControl() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        const QString subject = stage.smtp().Subject, to = stage.smtp().ToAddress;
        const QStringList before = SampleFolder::selected();
        QVERIFY(stage.sendCopy());
        QCOMPARE(stage.sink.messages().size(), 1);
        QCOMPARE(SampleFolder::selected(), before);
        QCOMPARE(stage.smtp().Subject, subject);
        QCOMPARE(QString(stage.smtp().ToAddress), to);
        QVERIFY(!QFile::exists(stage.folder.path("data/accettati.imp")));
        QVERIFY(!QFile::exists(stage.folder.path("data/esiti")));
    }

    void aRefusalShowsTheServersWords() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.its<QLineEdit>("txtIndirizzo")->setText("via@x.it");
        stage.sink.treat("via@x.it", SmtpSink::Treatment::Refuse);
        QVERIFY(stage.sendCopy());
        QVERIFY2(
            stage.text("lblEsito").startsWith("La prova non è stata consegnata. Il server ha risposto: 550"),
            qPrintable(stage.text("lblEsito")));
        stage.its<QLineEdit>("txtIndirizzo")->setText("bene@x.it");
        QVERIFY(stage.sendCopy());
        QVERIFY(stage.text("lblEsito").startsWith("La prova è stata accettata"));
    }

    void aServerThatIsNotThereIsReported() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.useServer(deadPort());
        QVERIFY(stage.sendCopy());
        QVERIFY2(stage.text("lblEsito").startsWith("La prova non è stata consegnata."),
                 qPrintable(stage.text("lblEsito")));
        QVERIFY(stage.text("lblEsito").size() > 40);
    }

    void anAddressThatIsNoneIsRefusedWithoutAServer() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.its<QLineEdit>("txtIndirizzo")->setText("a@x.it\r\nRCPT TO:<b@x.it>");
        stage.press("cmdInviaProva");
        QCOMPARE(stage.text("lblEsito"), "L'indirizzo della prova non è valido.");
        QVERIFY(stage.sink.attempts().isEmpty());
    }

    void withoutAnAccountTheWayIsReported() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        QVERIFY(QFile::remove(stage.folder.path("data/Account.imp")));
        QVERIFY(stage.text("lblAllegati").contains("manca l'account"));
        stage.press("cmdInviaProva");
        QVERIFY(stage.text("lblEsito").startsWith("Nessun account"));
    }

    void aFileThatNobodyAgreedToIsAskedAbout() {
        ProvaStage stage(threeRecipients());
        const QString secret = stage.folder.path("segreto.txt");
        QFile file(secret);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("segreto");
        file.close();
        stage.editorFile = stage.folder.path("arrivato.mss");
        ScriviMessaggio(stage.editorFile, {"S", "NR", {secret}, "<p>x</p>"});
        ui::MessageDialog::queue(ui::MessageDialog::No);
        stage.press("cmdInviaProva");
        QCOMPARE(stage.text("lblEsito"), "La prova non è stata inviata.");
        QVERIFY(stage.sink.attempts().isEmpty());
        ui::MessageDialog::queue(ui::MessageDialog::Yes);
        QVERIFY(stage.sendCopy());
        QCOMPARE(stage.sink.messages().size(), 1);
        QVERIFY(stage.sink.messages()[0].data.contains("segreto.txt"));
    }

    void aCopyThatIsGivenUpBeforeItsEndWasNotDelivered() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.its<QLineEdit>("txtIndirizzo")->setText("muto@x.it");
        stage.sink.treat("muto@x.it", SmtpSink::Treatment::Hang);
        stage.press("cmdInviaProva");
        QTRY_VERIFY(!stage.sink.attempts().isEmpty());
        stage.press("cmdAnnulla");
        QCOMPARE(stage.text("lblEsito"), "La prova non è stata consegnata. Invio interrotto.");
    }

    void aCopyThatIsGivenUpAfterItsFinalPointMayHaveBeenDelivered() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.its<QLineEdit>("txtIndirizzo")->setText("lento@x.it");
        stage.sink.treat("lento@x.it", SmtpSink::Treatment::Hold);
        stage.press("cmdInviaProva");
        QTRY_COMPARE(stage.sink.held().size(), 1);
        stage.press("cmdAnnulla");
        QCOMPARE(stage.text("lblEsito"), mayBeDelivered + " Invio interrotto.");
        QVERIFY(stage.its<QPushButton>("cmdInviaProva")->isEnabled());
    }

    void aCopyWhoseServerIsLostAfterTheFinalPointMayHaveBeenDelivered() {
        ScriptedServer server({helloPlain + QByteArrayList{"C: MAIL *", "S: 250 ok", "C: RCPT *", "S: 250 ok",
                                                           "C: DATA", "S: 354 go", "BODY", "DROP"}});
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.useServer(server.port());
        QVERIFY(stage.sendCopy());
        QVERIFY2(stage.text("lblEsito").startsWith(mayBeDelivered), qPrintable(stage.text("lblEsito")));
        QCOMPARE(server.remainder(), std::string());
    }

    void aCopyThatWentOutInOneFlightMayHaveBeenDelivered() {
        const QByteArrayList first{"S: 220 ready",    "C: EHLO *", "S: 250-ready", "S: 250-PIPELINING",
                                   "S: 250 CHUNKING", "C: MAIL *", "C: RCPT *",    "C: DATA",
                                   "S: 250 ok",       "S: 250 ok", "S: 354 go",    "BODY",
                                   "S: 250 taken"};
        ScriptedServer server(
            {first + QByteArrayList{"C: MAIL *", "C: RCPT *", "C: BDAT * LAST", "CHUNK", "WAIT"}});
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.useServer(server.port());
        QVERIFY(stage.sendCopy());
        QVERIFY(stage.text("lblEsito").startsWith("La prova è stata accettata"));
        stage.press("cmdInviaProva");
        QTRY_COMPARE(server.waits(), 1);
        stage.press("cmdAnnulla");
        QCOMPARE(stage.text("lblEsito"), mayBeDelivered + " Invio interrotto.");
    }

    void leavingTheWindowCancelsTheCopy() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        stage.its<QLineEdit>("txtIndirizzo")->setText("muto@x.it");
        stage.sink.treat("muto@x.it", SmtpSink::Treatment::Hang);
        stage.press("cmdInviaProva");
        QVERIFY(!stage.its<QPushButton>("cmdInviaProva")->isEnabled());
        QTRY_VERIFY(!stage.sink.attempts().isEmpty());
        stage.press("cmdChiudi");
        QVERIFY(stage.prova().isHidden());
        QVERIFY(stage.its<QPushButton>("cmdInviaProva")->isEnabled());
        QVERIFY(stage.sink.messages().isEmpty());
    }
};

TEST_CLASS_WITH(TestFrmProvaInvio, asInTheProgram);

}  // namespace frmprova_invio_test

#include "frmprova_invio_test.moc"
