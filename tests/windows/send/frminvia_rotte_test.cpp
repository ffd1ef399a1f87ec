// SPDX-License-Identifier: GPL-3.0-or-later
// What each recipient's message is handed to: the account's server, or the exchanger of his domain.
#include <future>
#include <optional>
#include <QFile>
#include <QScopedValueRollback>
#include <QUdpSocket>
#include <thread>

#include "modules/accounts/bBinary.h"
#include "modules/core/bImpostazioni.h"
#include "modules/send/bMXQuery.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_rotte_test {

using namespace testing_support;

namespace {

void writeAccount(const QString& line) {
    QFile file(cartellaDati() + "Account.imp");
    if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write Account.imp");
    file.write(TestoInBit(line).toLatin1() + "\r\n");
}

/// The program's name server while it lives: answers one query, on a thread of its own since a look-up blocks
/// the program's, with one exchanger of that name or with none.
class NameServer {
  public:
    explicit NameServer(const QByteArray& exchanger)
        : m_servers(dnsServers, {"127.0.0.1"}), m_count(dnsCount, 1), m_port(reteDNS.porta) {
        std::promise<quint16> port;
        std::future<quint16> bound = port.get_future();
        m_thread = std::thread([this, exchanger, &port] { serve(exchanger, port); });
        reteDNS.porta = bound.get();
    }
    ~NameServer() { stop(); }

    /// The query that was received; empty if none was.
    QByteArray stop() {
        if (m_thread.joinable()) m_thread.join();
        return m_query;
    }

  private:
    void serve(const QByteArray& exchanger, std::promise<quint16>& port) {
        QUdpSocket socket;
        if (!socket.bind(QHostAddress::LocalHost, 0)) qFatal("no port for the name server");
        port.set_value(socket.localPort());
        if (!socket.waitForReadyRead(10000)) return;
        m_query.resize(static_cast<qsizetype>(socket.pendingDatagramSize()));
        QHostAddress from;
        quint16 fromPort = 0;
        socket.readDatagram(m_query.data(), m_query.size(), &from, &fromPort);
        QByteArray reply = m_query.chopped(1);
        if (!exchanger.isEmpty()) {
            reply[2] = '\x81';
            reply[7] = 1;  // one answer: MX, preference 10, a name of one label
            const auto length = static_cast<char>(exchanger.size());
            reply += QByteArray::fromHex("c00c000f000100000e1000") + static_cast<char>(length + 4) +
                     QByteArray::fromHex("000a") + length + exchanger + '\0';
        }
        socket.writeDatagram(reply, from, fromPort);
    }

    QScopedValueRollback<QStringList> m_servers;
    QScopedValueRollback<int> m_count;
    QScopedValueRollback<std::uint16_t> m_port;
    std::thread m_thread;
    QByteArray m_query;
};

/// What the window has set on the control: server, port, login, and which route it is.
QStringList route(const SendStage& stage) {
    const mail::DeliveryControl& smtp = stage.smtp();
    return {smtp.ServerName,
            QString::number(smtp.ServerPort),
            smtp.UseAuth ? "login" : "no login",
            smtp.UserName,
            smtp.UserPassword,
            smtp.OpportunisticTls ? "opportunistic TLS" : "no opportunistic TLS",
            smtp.PublicServersOnly ? "public servers" : "any server"};
}

/// Over the stage's server, with the login of an account of "utente" and "segreta".
QStringList serverRoute(const SendStage& stage) {
    return {
        "127.0.0.1", QString::number(stage.sink.port()), "login", "utente", "segreta", "no opportunistic TLS",
        "any server"};
}

const QStringList directRouteToNobody{"", "25", "no login", "", "", "opportunistic TLS", "public servers"};

}  // namespace

class TestFrmInviaRotte : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void serverRouteTakesHostPortAndLoginOfTheAccount() {
        SendStage stage({"a@x.it"});
        writeAccount(QString("0|Z|z@x.it|127.0.0.1|%1|1|utente|segreta|EHLO|0|1").arg(stage.sink.port()));
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QCOMPARE(route(stage), serverRoute(stage));
    }

    void listsOfMailServersLieInTheDataFolder() {
        SendStage stage({"a@x.it"});
        stage.open();
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().TlsListFile, cartellaDati() + "tls.txt");
        QCOMPARE(stage.smtp().ClearListFile, cartellaDati() + "senza-tls.txt");
        QVERIFY(!QFile::exists(stage.smtp().TlsListFile));  // this server offers no TLS
    }

    void accountWithoutLoginClearsTheLoginOfAnEarlierRun() {
        SendStage stage({"a@x.it"});
        writeAccount(QString("0|Z|z@x.it|127.0.0.1|%1|0|utente|segreta|EHLO|0|1").arg(stage.sink.port()));
        stage.window->CaricaDati();
        stage.smtp().UseAuth = true;
        stage.smtp().UserName = "prima";
        stage.smtp().UserPassword = "prima";
        QVERIFY(stage.run());
        QVERIFY(!stage.smtp().UseAuth);
        QCOMPARE(stage.smtp().UserName, "");
        QCOMPARE(stage.smtp().UserPassword, "");
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
    }

    void anyNumberButZeroIsTheServerRoute_data() {
        QTest::addColumn<QString>("flag");
        QTest::addColumn<bool>("direct");
        for (const char* flag : {"1", "-1", "2", "0,5"})
            QTest::newRow(flag) << flag << false;
        for (const char* flag : {"0", "00", " 0 ", "0,0"})
            QTest::newRow(flag) << flag << true;
    }
    void anyNumberButZeroIsTheServerRoute() {
        QFETCH(QString, flag);
        QFETCH(bool, direct);
        SendStage stage({direct ? "nessuno" : "a@x.it"});
        std::optional<NameServer> names;
        if (direct) names.emplace("");
        writeAccount(QString("0|Z|z@x.it|127.0.0.1|%1|0|||EHLO|0|%2").arg(stage.sink.port()).arg(flag));
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().ServerName, direct ? "" : "127.0.0.1");
        QCOMPARE(stage.counters(), direct ? (QList<double>{0, 1, 0}) : (QList<double>{0, 0, 1}));
    }

    void loginIsUsedExactlyWhereItsFlagIsOne_data() {
        QTest::addColumn<QString>("flag");
        QTest::addColumn<bool>("login");
        for (const char* flag : {"1", "01", "1,0", " 1 "})
            QTest::newRow(flag) << flag << true;
        for (const char* flag : {"0", "2", "-1", "", "vero"})
            QTest::newRow(flag) << flag << false;
    }
    void loginIsUsedExactlyWhereItsFlagIsOne() {
        QFETCH(QString, flag);
        QFETCH(bool, login);
        SendStage stage({"a@x.it"});
        writeAccount(
            QString("0|Z|z@x.it|127.0.0.1|%1|%2|utente|segreta|EHLO|0|1").arg(stage.sink.port()).arg(flag));
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().UseAuth, login);
        QCOMPARE(stage.smtp().UserName, login ? "utente" : "");
        QCOMPARE(stage.smtp().UserPassword, login ? "segreta" : "");
    }

    void serverPortThatIsNoPortKeepsTheFormerOne_data() {
        QTest::addColumn<QString>("text");
        for (const char* text : {"abc", "", "65536", "-1"})
            QTest::newRow(text) << text;
    }
    void serverPortThatIsNoPortKeepsTheFormerOne() {
        QFETCH(QString, text);
        SendStage stage({"a@x.it"});
        writeAccount("0|Z|z@x.it|127.0.0.1|" + text + "|0|||EHLO|0|1");
        stage.window->CaricaDati();
        stage.smtp().ServerPort = stage.sink.port();
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
    }

    void directRouteIgnoresServerPortUserAndPasswordButNotGreetingAndOutgoingPort() {
        SendStage stage({"nessuno"});
        const NameServer names("");
        writeAccount(QString("0|Z|z@x.it|127.0.0.1|%1|1|utente|segreta|EHLO|4243|0").arg(stage.sink.port()));
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QVERIFY(stage.sink.attempts().isEmpty());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(route(stage), directRouteToNobody);
        QCOMPARE(stage.smtp().HeloMode, 0);
        QCOMPARE(int(stage.smtp().OutPort), 4243);
        QCOMPARE(SampleFolder::selected(), QStringList{"nessuno"});
    }

    void eachRouteLeavesNothingOfTheOtherBehind() {
        SendStage stage({"nessuno"});
        const QString server =
            QString("0|Z|z@x.it|127.0.0.1|%1|1|utente|segreta|EHLO|0|1").arg(stage.sink.port());
        QString direct = server;
        direct.back() = '0';
        const auto runOver = [&](const QString& account) {
            writeAccount(account);
            stage.window->CaricaDati();
            return stage.run();
        };
        QVERIFY(runOver(server));
        QCOMPARE(stage.smtp().UserPassword, "segreta");
        {
            const NameServer names("");
            QVERIFY(runOver(direct));
        }
        QCOMPARE(route(stage), directRouteToNobody);
        QVERIFY(runOver(server));
        QCOMPARE(route(stage), serverRoute(stage));
    }

    // An address without "@" is a domain as a whole.
    void directRouteAsksForTheWholeTextOfAnAddressWithoutAtSign() {
        SendStage stage({"nessuno"});
        NameServer names("");
        writeAccount("0|Z|z@x.it||25|0|||EHLO|0|0");
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QVERIFY(names.stop().contains(QByteArray("\x07nessuno")));
    }

    void directRouteLeadsToTheMailExchangerOfTheRecipientsDomain() {
        SendStage stage({"anna@dominio.example"});
        NameServer names("0.0.0.1");  // an address that cannot be reached
        writeAccount("0|Z|z@x.it|127.0.0.1|1|0|||EHLO|0|0");
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().ServerName, "0.0.0.1");
        QVERIFY(
            names.stop().contains(QByteArray("\x07"
                                             "dominio\x07"
                                             "example")));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(SampleFolder::selected(), QStringList{"anna@dominio.example"});
    }
};

TEST_CLASS(TestFrmInviaRotte);

}  // namespace frminvia_rotte_test

#include "frminvia_rotte_test.moc"
