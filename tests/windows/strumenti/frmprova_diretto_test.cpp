// SPDX-License-Identifier: GPL-3.0-or-later
// The test copy over the direct route: name servers that lead to a mail server, to none, that are silent or
// lie.
#include <QFile>
#include <QUdpSocket>

#include "support/NameServer.h"
#include "support/PrivateNetwork.h"
#include "support/TestClass.h"
#include "windows/strumenti/prova_stage.h"

namespace frmprova_diretto_test {

using namespace testing_support;

namespace {

const bool isolated = enterPrivateNetwork(__FILE__);

NameServer::Records records() {
    return {{{"alfa.example", 20, "mx.spento.example"},
             {"alfa.example", 10, "mx.alfa.example"},
             {"nullo.example", 0, ""},
             {"locale.example", 10, "localhost"},
             {"numero.example", 10, "127.0.0.6"},
             {"interno.example", 10, "mx.interno.example"}},
            {{"mx.alfa.example", "127.0.0.2"},
             {"mx.interno.example", "127.0.0.6"},
             {"solo.example", "127.0.0.2"}},
            {}};
}

/// A name server with one answer to every query: silence, or what the script returns for the query.
class ScriptedNames {
  public:
    explicit ScriptedNames(std::function<QByteArray(const QByteArray& question)> answer = {})
        : m_answer(std::move(answer)) {
        if (!m_socket.bind(QHostAddress::LocalHost, 53)) qFatal("no port 53");
        QObject::connect(&m_socket, &QUdpSocket::readyRead, &m_socket, [this] {
            while (m_socket.hasPendingDatagrams()) {
                QByteArray question(m_socket.pendingDatagramSize(), '\0');
                QHostAddress from;
                quint16 port = 0;
                m_socket.readDatagram(question.data(), question.size(), &from, &port);
                ++asked;
                if (m_answer) m_socket.writeDatagram(m_answer(question), from, port);
            }
        });
    }

    int asked = 0;

  private:
    QUdpSocket m_socket;
    std::function<QByteArray(const QByteArray&)> m_answer;
};

/// The window with an account of the direct route.
class DirectProva : public ProvaStage {
  public:
    DirectProva() : ProvaStage(threeRecipients()) {
        if (!replaceResolverConfiguration("nameserver 127.0.0.1\n")) qFatal("no name servers can be set");
        Account direct = SampleFolder::loopbackAccount(9);
        direct.txtNomeVisual = "Diretto";
        direct.chkUsaSMTP = "0";
        folder.addAccount(direct);
        QFile ownNet(folder.path("data/mx-interni.txt"));
        if (!ownNet.open(QIODevice::WriteOnly)) qFatal("no list of own servers");
        ownNet.write("mx.alfa.example\r\n");
        ownNet.close();
        editorFile = folder.writeMessage();
        auto* accounts = its<QComboBox>("cmbAccount");
        QTest::keyClick(accounts, Qt::Key_Down);
        if (!accounts->currentText().startsWith("Diretto")) qFatal("no account of the direct route");
    }

    /// The final verdict on a copy to this address.
    QString told(const QString& address) {
        its<QLineEdit>("txtIndirizzo")->setText(address);
        return sendCopy() ? text("lblEsito") : QString("no end");
    }
    void begin(const QString& address) {
        its<QLineEdit>("txtIndirizzo")->setText(address);
        press("cmdInviaProva");
    }
    bool canSend() { return its<QPushButton>("cmdInviaProva")->isEnabled(); }
};

QByteArray notDelivered(const char* why) {
    return QByteArray("La prova non è stata consegnata. ") + why;
}

}  // namespace

class TestFrmProvaDiretto : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        if (!isolated) QSKIP("the system allows no private network");
    }

    void theCopyGoesToTheBestExchangerOfTheAddressWithoutALogin() {
        const NameServer names(NameServer::Program::Unbound, records());
        QVERIFY2(names.problem().isEmpty(), names.problem().constData());
        SmtpSink alfa(QHostAddress("127.0.0.2"), 25);
        DirectProva stage;
        const QString told = stage.told("ada@alfa.example");
        QVERIFY2(told.startsWith("La prova è stata accettata dal server per ada@alfa.example."),
                 qPrintable(told));
        QCOMPARE(alfa.messages().size(), 1);
        QCOMPARE(alfa.messages()[0].recipient, QByteArray("ada@alfa.example"));
        QVERIFY(stage.sink.attempts().isEmpty());
    }

    void aDomainWithoutAMailServerIsReportedByOneSentence() {
        const NameServer names(NameServer::Program::Unbound, records());
        QVERIFY2(names.problem().isEmpty(), names.problem().constData());
        DirectProva stage;
        QCOMPARE(stage.told("a@niente.example"),
                 QString(notDelivered("Il dominio del destinatario non ha un server di posta: "
                                      "non esiste (NXDOMAIN).")));
        QCOMPARE(stage.told("a@solo.example"),
                 QString(notDelivered("Il dominio del destinatario non ha un server di posta: "
                                      "il DNS non ne indica.")));
        QCOMPARE(stage.told("a@nullo.example"),
                 QString(notDelivered("Il dominio del destinatario non accetta posta (null MX).")));
        QCOMPARE(stage.told("a@[127.0.0.6]"),
                 QString(notDelivered("Il dominio del destinatario non è valido.")));
    }

    void anAnswerThatLeadsInsideIsRefusedWithoutAConnection() {
        const NameServer names(NameServer::Program::Unbound, records());
        QVERIFY2(names.problem().isEmpty(), names.problem().constData());
        SmtpSink inside(QHostAddress("127.0.0.6"), 25);
        SmtpSink local(QHostAddress("127.0.0.1"), 25);
        DirectProva stage;
        for (const char* address : {"a@locale.example", "a@numero.example", "a@interno.example"}) {
            const QString told = stage.told(address);
            const QString start = notDelivered("");
            QVERIFY2(told.startsWith(start) && told.size() > start.size() + 20, qPrintable(told));
        }
        QVERIFY(inside.attempts().isEmpty());
        QVERIFY(local.attempts().isEmpty());
    }

    void whileTheDnsIsSilentTheWindowAnswersAndEscapeEndsTheCopy() {
        const ScriptedNames silent;
        DirectProva stage;
        stage.begin("a@muto.example");
        QVERIFY(!stage.canSend());
        QVERIFY(stage.text("lblEsito").startsWith("Invio della prova a a@muto.example…"));
        QTRY_VERIFY(silent.asked > 0);
        const QString before = stage.line("txtDestinatario");
        stage.press("cmdSuccessivo");
        QVERIFY(stage.line("txtDestinatario") != before);
        QVERIFY(!stage.canSend());
        QTest::keyClick(&stage.prova(), Qt::Key_Escape);
        QCOMPARE(stage.text("lblEsito"), QString(notDelivered("Invio interrotto.")));
        QVERIFY(stage.prova().isVisible());
        QVERIFY(stage.canSend());
        QTest::keyClick(&stage.prova(), Qt::Key_Escape);
        QVERIFY(!stage.prova().isVisible());
    }

    void theCancelButtonHasTheKeyboardDuringACopy() {
        const ScriptedNames silent;
        DirectProva stage;
        auto* annulla = stage.its<QPushButton>("cmdAnnulla");
        QVERIFY(!annulla->isEnabled());
        stage.its<QPushButton>("cmdInviaProva")->setFocus();
        stage.begin("a@muto.example");
        QVERIFY(annulla->isEnabled());
        QCOMPARE(QApplication::focusWidget(), annulla);
        QTest::keyClick(annulla, Qt::Key_Space);
        QCOMPARE(stage.text("lblEsito"), QString(notDelivered("Invio interrotto.")));
        QVERIFY(!annulla->isEnabled());
        QCOMPARE(QApplication::focusWidget(), stage.its<QPushButton>("cmdInviaProva"));
    }

    void leavingTheWindowEndsTheLookUp() {
        SmtpSink alfa(QHostAddress("127.0.0.2"), 25);
        DirectProva stage;
        {
            const ScriptedNames silent;
            stage.begin("a@alfa.example");
            QTRY_VERIFY(silent.asked > 0);
            QVERIFY(stage.prova().close());
            QVERIFY(!stage.prova().isVisible());
        }
        QVERIFY(stage.canSend());
        const NameServer names(NameServer::Program::Unbound, records());
        stage.prova().show();
        QVERIFY(stage.told("b@alfa.example").startsWith("La prova è stata accettata"));
        QCOMPARE(alfa.attempts(), QStringList{"b@alfa.example"});
    }

    void aDnsThatStaysSilentIsReportedByOneSentence() {
        const ScriptedNames silent;
        DirectProva stage;
        QCOMPARE(stage.told("a@muto.example"),
                 QString(notDelivered("Ricerca del server di posta non riuscita: il DNS non risponde. "
                                      "Riprovare più tardi.")));
    }

    void withoutANameServerOneSentenceSaysSo() {
        DirectProva stage;
        QCOMPARE(stage.told("a@alfa.example"),
                 QString(notDelivered("Ricerca del server di posta non riuscita: nessun server DNS è "
                                      "raggiungibile. Riprovare più tardi.")));
    }

    void aDamagedAnswerIsReportedByOneSentence() {
        const ScriptedNames liar([](const QByteArray& question) {
            QByteArray answer = question;
            answer[2] = '\x81';                      // an answer,
            answer[7] = '\x09';                      // with nine records,
            return answer + QByteArray(40, '\xff');  // all of them rubbish
        });
        DirectProva stage;
        QCOMPARE(stage.told("a@alfa.example"),
                 QString(notDelivered("Ricerca del server di posta non riuscita: la risposta del DNS è "
                                      "danneggiata. Riprovare più tardi.")));
        QVERIFY(stage.sink.attempts().isEmpty());
    }
};

TEST_CLASS(TestFrmProvaDiretto);

}  // namespace frmprova_diretto_test

#include "frmprova_diretto_test.moc"
