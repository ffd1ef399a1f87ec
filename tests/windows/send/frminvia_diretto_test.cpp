// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run over the direct route: real name servers, and mail servers on port 25 of their own addresses.
#include <QFile>
#include <utility>

#include "modules/send/MotivoMX.h"
#include "support/NameServer.h"
#include "support/PrivateNetwork.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_diretto_test {

using namespace testing_support;

namespace {

const bool isolated = enterPrivateNetwork(__FILE__);

// A documentation address (RFC 5737), which counts as public.
const char* const publicAddress = "203.0.113.25";

NameServer::Records records() {
    return {{{"alfa.example", 10, "mx.alfa.example"},
             {"beta.example", 10, "mx.beta.example"},
             {"spento.example", 10, "mx.spento.example"},
             {"fantasma.example", 10, "mx.fantasma.example"},
             {"nullo.example", 0, ""},
             {"muto.example", 10, "mx.muto.example"},
             {"locale.example", 10, "localhost"},
             {"numero.example", 10, "127.0.0.6"},
             {"interno.example", 10, "mx.interno.example"},
             {"pubblico.example", 10, "mx.pubblico.example"},
             {"misto.example", 10, "mx.misto.example"}},
            {{"mx.alfa.example", "127.0.0.2"},
             {"mx.beta.example", "127.0.0.3"},
             {"mx.spento.example", "127.0.0.4"},
             {"mx.muto.example", "127.0.0.5"},
             {"mx.interno.example", "127.0.0.6"},
             {"mx.pubblico.example", publicAddress},
             {"mx.misto.example", "127.0.0.6"},
             {"mx.misto.example", publicAddress},
             {"solo.example", "127.0.0.2"}},
            {}};
}

/// Name server, one mail server for each of two domains, and a send window whose account has the direct
/// route.
class DirectStage {
  public:
    explicit DirectStage(std::initializer_list<const char*> recipients, const char* greeting = "EHLO")
        : names(NameServer::Program::Unbound, records()), stage(recipients) {
        if (!replaceResolverConfiguration("nameserver 127.0.0.1\n") || !names.problem().isEmpty())
            qFatal("no name server: %s", names.problem().constData());
        Account account = SampleFolder::loopbackAccount(9);
        account.chkUsaSMTP = "0";
        account.cmbSaluto = greeting;
        account.chkAutentick = "1";
        account.txtUsername = "utente";
        account.txtPassword = "segreto";
        stage.folder.addAccount(account);
        QFile ownNet(stage.folder.path("data/mx-interni.txt"));
        if (!ownNet.open(QIODevice::WriteOnly)) qFatal("no list of own servers");
        ownNet.write(
            "# della nostra rete\r\nMX.alfa.example.\r\nmx.beta.example\r\n"
            "mx.spento.example # a volte\r\nmx.muto.example\r\n127.0.0.6\r\n");
        ownNet.close();
        stage.open();
        stage.control<QComboBox>("cmbAccount")->setCurrentIndex(1);
    }

    NameServer names;
    SmtpSink alfa{QHostAddress("127.0.0.2"), 25};
    SmtpSink beta{QHostAddress("127.0.0.3"), 25};
    SendStage stage;
};

}  // namespace

class TestFrmInviaDiretto : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        if (!isolated) QSKIP("the system allows no private network");
    }

    void recipientsOfAServerThatIsDownStaySelectedAndTheOthersAreServed() {
        DirectStage direct({"a@alfa.example", "b@spento.example", "c@beta.example", "d@alfa.example",
                            "e@spento.example", "f@beta.example"});
        QVERIFY(direct.stage.run());
        QCOMPARE(direct.alfa.attempts(), (QStringList{"a@alfa.example", "d@alfa.example"}));
        QCOMPARE(direct.beta.attempts(), (QStringList{"c@beta.example", "f@beta.example"}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"b@spento.example", "e@spento.example"}));
        QCOMPARE(direct.stage.counters(), (QList<double>{0, 2, 4}));
        QVERIFY(direct.stage.sink.attempts().isEmpty());
    }

    void serverThatComesUpAgainIsServedByTheNextRun() {
        DirectStage direct({"a@alfa.example", "b@spento.example"});
        QVERIFY(direct.stage.run());
        QCOMPARE(SampleFolder::selected(), QStringList{"b@spento.example"});
        SmtpSink back(QHostAddress("127.0.0.4"), 25);
        direct.stage.start();
        QVERIFY(direct.stage.waitForEnd());
        QCOMPARE(back.attempts(), QStringList{"b@spento.example"});
        QCOMPARE(SampleFolder::selected(), QStringList());
        QCOMPARE(direct.alfa.attempts().size(), 1);
    }

    void domainsWithoutAServerFailWithoutHarmToTheOthers() {
        DirectStage direct({"a@alfa.example", "b@niente.example", "c@nullo.example", "d@solo.example",
                            "e@fantasma.example", "f@it", "g", "h@beta.example"});
        direct.stage.smtp().LogFile = direct.stage.folder.path("prova.xt1");
        direct.stage.smtp().LogEnabled = true;
        QVERIFY(direct.stage.run());
        QCOMPARE(SampleFolder::selected(),
                 (QStringList{"b@niente.example", "c@nullo.example", "d@solo.example", "e@fantasma.example",
                              "f@it", "g"}));
        QCOMPARE(direct.alfa.attempts(), QStringList{"a@alfa.example"});
        QCOMPARE(direct.beta.attempts(), QStringList{"h@beta.example"});
        QCOMPARE(direct.stage.counters(), (QList<double>{0, 6, 2}));
        QFile log(direct.stage.smtp().LogFile);
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(log.readAll());
        for (const auto& [recipient, reason] : {std::pair("b@niente.example", MotivoMX::Inesistente),
                                                {"c@nullo.example", MotivoMX::SenzaPosta},
                                                {"d@solo.example", MotivoMX::Vuota},
                                                {"f@it", MotivoMX::NonValido},
                                                {"g", MotivoMX::NonValido}})
            QVERIFY2(text.contains(QString("Destinatario %1, Message-ID -, non consegnato: %2")
                                       .arg(recipient, TestoMotivo(reason))),
                     recipient);
    }

    void hostileDomainsLeadToNoServerInside() {
        SmtpSink inside{QHostAddress("127.0.0.6"), 25}, here{QHostAddress("127.0.0.1"), 25};
        DirectStage direct({"a@locale.example", "b@numero.example", "c@interno.example", "d@alfa.example"});
        QVERIFY(direct.stage.run());
        QCOMPARE(inside.attempts(), QStringList());
        QCOMPARE(here.attempts(), QStringList());
        QCOMPARE(direct.alfa.attempts(), QStringList{"d@alfa.example"});
        QCOMPARE(SampleFolder::selected(),
                 (QStringList{"a@locale.example", "b@numero.example", "c@interno.example"}));
        QCOMPARE(direct.stage.counters(), (QList<double>{0, 3, 1}));
    }

    void publicServerIsServedAlsoWhereItsNameLeadsInsideToo() {
        QVERIFY(addLoopbackAddress(publicAddress));
        SmtpSink inside{QHostAddress("127.0.0.6"), 25}, outside{QHostAddress(publicAddress), 25};
        DirectStage direct({"a@pubblico.example", "b@misto.example"});
        QVERIFY(direct.stage.run());
        QCOMPARE(outside.attempts(), (QStringList{"a@pubblico.example", "b@misto.example"}));
        QCOMPARE(inside.attempts(), QStringList());
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void refusedRecipientStaysAndTheSessionContinues() {
        DirectStage direct({"a@alfa.example", "b@alfa.example", "c@alfa.example"});
        direct.alfa.treat("b@alfa.example", SmtpSink::Treatment::Refuse);
        QVERIFY(direct.stage.run());
        QCOMPARE(SampleFolder::selected(), QStringList{"b@alfa.example"});
        QCOMPARE(direct.alfa.attempts().size(), 3);
        QCOMPARE(direct.alfa.greetings(), QList<QByteArray>{"EHLO"});
    }

    void accountsServerPortAndLoginAreNotUsed() {
        DirectStage direct({"a@alfa.example"});
        QVERIFY(direct.stage.run());
        QCOMPARE(direct.stage.smtp().ServerName, "mx.alfa.example");
        QCOMPARE(direct.stage.smtp().ServerPort, 25);
        QVERIFY(!direct.stage.smtp().UseAuth);
        QCOMPARE(direct.stage.smtp().UserName, "");
        QCOMPARE(direct.stage.smtp().UserPassword, "");
    }

    void accountsGreetingIsUsed() {
        DirectStage direct({"a@alfa.example"}, "HELO");
        QVERIFY(direct.stage.run());
        QCOMPARE(direct.alfa.greetings(), QList<QByteArray>{"HELO"});
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void serverThatNeverAnswersEndsInTheTimeoutAndTheNextIsServed() {
        QTcpServer mute;  // accepts connections and sends nothing
        QVERIFY(mute.listen(QHostAddress("127.0.0.5"), 25));
        DirectStage direct({"a@muto.example", "b@alfa.example"});
        direct.stage.pick();
        direct.stage.start();
        direct.stage.smtp().TimeoutSecs = 1;
        direct.stage.smtp().StageTimes.greeting = 0;
        QVERIFY(direct.stage.waitForEnd());
        QCOMPARE(SampleFolder::selected(), QStringList{"a@muto.example"});
        QCOMPARE(direct.alfa.attempts(), QStringList{"b@alfa.example"});
    }
};

TEST_CLASS(TestFrmInviaDiretto);

}  // namespace frminvia_diretto_test

#include "frminvia_diretto_test.moc"
