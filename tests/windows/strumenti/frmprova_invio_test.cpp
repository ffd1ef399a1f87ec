// The copy that goes to an address of the user's.
#include "modules/send/Accettati.h"
#include "support/AsInTheProgram.h"
#include "support/TestClass.h"
#include "windows/strumenti/prova_stage.h"

namespace frmprova_invio_test {

using namespace testing_support;

class TestFrmProvaInvio : public QObject {
    Q_OBJECT

    /// A port of this machine on which nobody listens.
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

    void aServerThatIsNotThereIsTold() {
        ProvaStage stage(threeRecipients());
        stage.editorFile = stage.folder.writeMessage();
        Account nobody = SampleFolder::loopbackAccount(deadPort());
        nobody.txtNomeVisual = "Nessuno";
        stage.folder.addAccount(nobody);
        auto* accounts = stage.its<QComboBox>("cmbAccount");
        QTest::keyClick(accounts, Qt::Key_Down);
        QVERIFY(accounts->currentText().startsWith("Nessuno"));
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

    void withoutAnAccountTheWayIsTold() {
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

    void leavingTheWindowGivesTheCopyUp() {
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
