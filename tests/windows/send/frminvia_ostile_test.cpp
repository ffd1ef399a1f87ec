// SPDX-License-Identifier: GPL-3.0-or-later
// The send window with servers that misbehave: a stop at every step of the dialogue, and a run over one
// after the other.
#include <QDir>
#include <QNetworkProxy>

#include "platform/oauth/Provider.h"
#include "platform/oauth/TokenFile.h"
#include "support/AuthorizationServer.h"
#include "support/FullPort.h"
#include "support/ScriptedServer.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_ostile_test {

using namespace testing_support;

namespace {

const QByteArrayList greeting{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS", "C: STARTTLS"};
const QByteArrayList handshake{"S: 220 go ahead",   "TLS",          "C: EHLO *", "S: 250-ready",
                               "S: 250 AUTH LOGIN", "C: AUTH LOGIN"};
const QByteArrayList login{"S: 334 VXNlcm5hbWU6", "C: *", "S: 334 UGFzc3dvcmQ6", "C: *", "S: 235 welcome"};
const QByteArrayList envelope{"C: MAIL FROM:*", "S: 250 ok", "C: RCPT TO:*", "S: 250 ok", "C: DATA"};
const QByteArrayList body{"S: 354 go on", "BODY", "S: 250 taken"};
const QByteArrayList session = greeting + handshake + login;
const QByteArrayList message = envelope + body;

/// A send window whose account leads to a server on `port`, with TLS and login.
class HostileStage {
  public:
    HostileStage(std::initializer_list<const char*> recipients, quint16 port) : stage(recipients) {
        const QString trusted = stage.folder.path("data/certificati");
        QDir().mkpath(trusted);
        for (const QFileInfo& file : QDir(TestCertificates::get().trustFolder()).entryInfoList(QDir::Files))
            QFile::copy(file.filePath(), trusted + '/' + file.fileName());
        lead(port);
    }

    /// Makes and chooses another account with that server.
    void lead(quint16 port, const QString& password = "segreto") {
        Account account = SampleFolder::loopbackAccount(port);
        account.txtServerSMTP = "localhost";
        account.chkAutentick = "1";
        account.txtUsername = "utente";
        account.txtPassword = password;
        stage.folder.addAccount(account);
        stage.open();
        auto* accounts = stage.control<QComboBox>("cmbAccount");
        accounts->setCurrentIndex(accounts->count() - 1);
    }

    /// Stores a token of the provider with that lifetime for the user, and makes the account use it, with
    /// `port`.
    void leadByToken(const AuthorizationServer& provider, int secs, quint16 port) {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        const QString folder = stage.folder.path("data/oauth");
        QDir().mkpath(folder);
        QFile providers(oauth::providersPath(folder));
        if (!providers.open(QIODevice::WriteOnly)) qFatal("cannot write the providers");
        providers.write(provider.providers());
        providers.close();
        const QDateTime end = QDateTime::currentDateTimeUtc().addSecs(secs);
        if (!oauth::writeToken(folder, oauth::tokenPath(folder, "prova", "utente"),
                               {"accesso-0", "rinnovo-0", end})
                 .ok())
            qFatal("cannot write the token");
        lead(port, "OAuth2");
    }

    /// Whether the window still paints itself during a delivery.
    bool isAlive() {
        bool painted = false;
        EventWatch watch(stage.window.get(), QEvent::Paint, [&] { painted = true; });
        stage.window->update();
        return QTest::qWaitFor([&] { return painted; }, 60000);
    }

    SendStage stage;
};

/// Stops the run as soon as the server waits for the client.
class StopOnceItWaits {
  public:
    StopOnceItWaits(HostileStage& hostile, const ScriptedServer& server) {
        QObject::connect(&m_watch, &QTimer::timeout, [&] {
            if (server.waits() == 0) return;
            m_watch.stop();
            m_wasAlive = hostile.isAlive();
            hostile.stage.click("cmdFerma");
        });
        m_watch.start(5);
    }
    /// Whether the window still painted itself then.
    bool wasAlive() const { return m_wasAlive; }

  private:
    QTimer m_watch;
    bool m_wasAlive = false;
};

QByteArrayList without(QByteArrayList lines, int last) {
    return lines.mid(0, lines.size() - last);
}

}  // namespace

class TestFrmInviaOstile : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void tokenOfTheDataFolderLogsIn() {
        const AuthorizationServer provider;
        QByteArrayList dialogue = greeting + without(handshake, 2);
        dialogue += {"S: 250 AUTH XOAUTH2", "C: AUTH XOAUTH2 *", "S: 235 welcome"};
        ScriptedServer server({dialogue + message + message}, TestCertificates::get().good());
        HostileStage hostile({"a@x.it", "b@x.it"}, 25);
        hostile.leadByToken(provider, 3600, server.port());
        QVERIFY(hostile.stage.run());
        QCOMPARE(hostile.stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(server.remainder(), "");
        QVERIFY(QByteArray::fromBase64(server.lines()[3].mid(13)).contains("auth=Bearer accesso-0\x01"));
    }

    void stopDuringTheRenewalOfATokenEndsTheDelivery() {
        AuthorizationServer provider;
        provider.hold();
        HostileStage hostile({"a@x.it", "b@x.it"}, 25);
        hostile.leadByToken(provider, 0, 25);
        hostile.stage.pick();
        hostile.stage.start();
        QTRY_VERIFY(!provider.requests().isEmpty());
        QVERIFY(hostile.isAlive());
        hostile.stage.click("cmdFerma");
        QVERIFY(hostile.stage.waitForEnd());
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
    }

    void stopEndsADeliveryAtEachStepAndTheNextRunServesAll_data() {
        QTest::addColumn<QByteArrayList>("silent");
        QTest::newRow("greeting") << QByteArrayList{};
        QTest::newRow("ehlo") << without(greeting, 3);
        QTest::newRow("starttls") << greeting;
        QTest::newRow("handshake") << greeting + QByteArrayList{"S: 220 go ahead"};
        QTest::newRow("ehlo in tls") << greeting + without(handshake, 3);
        QTest::newRow("auth") << greeting + handshake;
        QTest::newRow("user name") << greeting + handshake + without(login, 3);
        QTest::newRow("password") << greeting + handshake + without(login, 1);
        QTest::newRow("mail") << session + without(envelope, 4);
        QTest::newRow("recipient") << session + without(envelope, 2);
        QTest::newRow("data") << session + envelope;
        QTest::newRow("middle of a reply") << session + without(envelope, 2) + QByteArrayList{"S- 250-ha"};
        QTest::newRow("second message") << session + message + without(envelope, 4);
    }
    void stopEndsADeliveryAtEachStepAndTheNextRunServesAll() {
        QFETCH(QByteArrayList, silent);
        const auto served = silent.count(message.last());  // before the message that is stopped
        QByteArrayList next = session + message;
        if (served == 0) next += message;
        ScriptedServer server({silent + QByteArrayList{"WAIT"}, next}, TestCertificates::get().good());
        HostileStage hostile({"a@x.it", "b@x.it"}, server.port());
        SendStage& stage = hostile.stage;
        stage.pick();
        stage.start();
        const StopOnceItWaits stop(hostile, server);
        QVERIFY(stage.waitForEnd());
        QVERIFY(stop.wasAlive());
        QCOMPARE(stage.counters(), (QList<double>{double(1 - served), 1, double(served)}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(SampleFolder::selected(), QStringList());
        QCOMPARE(server.remainder(), "");
    }

    void stopEndsADeliveryWhoseConnectionIsNeverTaken() {
        const FullPort nobody;
        HostileStage hostile({"a@x.it", "b@x.it"}, nobody.port());
        SendStage& stage = hostile.stage;
        stage.pick();
        stage.start();
        bool alive = false;
        QTimer::singleShot(200, [&] {
            alive = hostile.isAlive();
            stage.click("cmdFerma");
        });
        QVERIFY(stage.waitForEnd());
        QVERIFY(alive);
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 0}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
    }

    void stopEndsADeliveryInTheMiddleOfALargeMessage() {
        ScriptedServer server({session + envelope + QByteArrayList{"S: 354 go on", "READ 100000", "HOLD"},
                               session + message + message},
                              TestCertificates::get().good());
        HostileStage hostile({"a@x.it", "b@x.it"}, server.port());
        SendStage& stage = hostile.stage;
        QFile large(stage.folder.path("grande.bin"));
        QVERIFY(large.open(QIODevice::WriteOnly));
        QVERIFY(large.resize(20'000'000));
        MessaggioMss text;
        text.Priorita = "NR";
        text.Allegati = {large.fileName()};
        text.CorpoHTML = "<p>Buongiorno</p>";
        stage.pick(stage.folder.writeMessage("grande.mss", text));
        stage.start();
        const StopOnceItWaits stop(hostile, server);
        QVERIFY(stage.waitForEnd());
        QVERIFY(stop.wasAlive());
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 0}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(SampleFolder::selected(), QStringList());
        QCOMPARE(server.remainder(), "");
    }

    void farewellAfterEveryFewMessagesCostsNoRecipient() {
        const QByteArrayList few =
            session + message + message + QByteArrayList{envelope[0], "S: 421 enough", "DROP"};
        ScriptedServer server({few, few, session + message}, TestCertificates::get().good());
        HostileStage hostile({"a@x.it", "b@x.it", "c@x.it", "d@x.it", "e@x.it"}, server.port());
        QVERIFY(hostile.stage.run());
        QCOMPARE(hostile.stage.counters(), (QList<double>{0, 0, 5}));
        QCOMPARE(SampleFolder::selected(), QStringList());
        QCOMPARE(server.remainder(), "");
    }

    void eachRecipientMeetsHisOwnTroubleAndTheOthersAreServed() {
        const QByteArrayList lost = session + envelope + QByteArrayList{"S: 354 go on", "BODY", "DROP"};
        const QByteArrayList refused = session + without(envelope, 2) +
                                       QByteArrayList{"S: 550 unknown", "C: RSET", "S: 250 ok"} + message;
        const QByteArrayList rubbish = without(envelope, 2) + QByteArrayList{"S: what?", "WAIT"};
        ScriptedServer server({session + message, lost, refused + rubbish, session + message},
                              TestCertificates::get().good());
        HostileStage hostile({"a@x.it", "b@x.it", "c@x.it", "d@x.it", "e@x.it", "f@x.it"}, server.port());
        QVERIFY(hostile.stage.run());
        // a delivered, and the server hangs up; b lost after the point; c refused; d delivered; e rubbish
        QCOMPARE(SampleFolder::selected(), (QStringList{"b@x.it", "c@x.it", "e@x.it"}));
        QCOMPARE(hostile.stage.counters(), (QList<double>{0, 3, 3}));
        QCOMPARE(server.remainder(), "");
    }

    void badCertificateStopsEveryRecipientOfTheAccountAndNothingGoesOutInTheClear() {
        const QByteArrayList refused = greeting + QByteArrayList{"S: 220 go ahead", "TLSFAIL"};
        ScriptedServer server({refused, refused}, TestCertificates::get().selfSigned());
        HostileStage hostile({"a@x.it", "b@x.it"}, server.port());
        QVERIFY(hostile.stage.run());
        QCOMPARE(hostile.stage.counters(), (QList<double>{0, 2, 0}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(server.remainder(), "");
    }
};

TEST_CLASS(TestFrmInviaOstile);

}  // namespace frminvia_ostile_test

#include "frminvia_ostile_test.moc"
