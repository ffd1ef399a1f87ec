// SPDX-License-Identifier: GPL-3.0-or-later
// The walk over the selection: order, outcomes, personalisation, the route of each recipient, failures in
// mid-run. Above 500 lines: all of it tests one tick, step by step, over one stage.
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

namespace frminvia_giro_test {

using namespace testing_support;
using ui::MessageDialog;

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

}  // namespace

class TestFrmInviaGiro : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void deliveredRecipientsLeaveTheSelectionAndNothingIsSaidAtTheEnd() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 3}));
        QCOMPARE(stage.label("lblDaInviare"), "Email da inviare: 0");
        QCOMPARE(stage.label("lblFallite"), "Email non inviate: 0");
        QCOMPARE(stage.label("lblInviate"), "Email inviate: 3");
        QCOMPARE(SampleFolder::selected(), QStringList());
        QVERIFY(MessageDialog::shown().isEmpty());
        for (const char* name : {"chkLog", "txtFile", "cmdFile", "cmbAccount", "cmbPausa", "cmbTimeout",
                                 "chkBlocco", "cmdChiudi", "cmdInvia"})
            QVERIFY2(stage.enabled(name), name);
        QVERIFY(!stage.enabled("cmdFerma"));
        QVERIFY(!stage.timer().isActive());
    }

    void failedRecipientIsSteppedOverAndStaysSelected() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.treat("b@x.it", SmtpSink::Treatment::Refuse);
        QList<QStringList> queues;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { queues << SampleFolder::selected(); });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it"}));
        QCOMPARE(queues, (QList<QStringList>{
                             {"a@x.it", "b@x.it", "c@x.it"}, {"b@x.it", "c@x.it"}, {"b@x.it", "c@x.it"}}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 2}));
        QCOMPARE(stage.label("lblDaInviare"), "Email da inviare: 0");
        QCOMPARE(stage.label("lblFallite"), "Email non inviate: 1");
        QCOMPARE(stage.label("lblInviate"), "Email inviate: 2");
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void lastRecipientFailingEndsTheRunToo() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("b@x.it", SmtpSink::Treatment::RefuseData);
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void failuresOfAnEarlierRunAreTriedAgainInTheirPlace() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        stage.sink.treat("c@x.it", SmtpSink::Treatment::Refuse);
        QVERIFY(stage.run());
        stage.sink.treat("c@x.it", SmtpSink::Treatment::Accept);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it", "a@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void droppedLineFailsOneRecipientAndTheNextIsServed() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Drop);
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void serverThatStopsAnsweringFailsAfterTheTimeoutAndTheNextIsServed() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().TimeoutSecs, qint16(5));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(stage.sink.messages().constFirst().recipient, "b@x.it");
    }

    void rowsAreServedByTheFiveSortColumns() {
        const auto row = [](const char* place, const char* rgs, const char* email, const char* nom,
                            const char* loc, const char* ind) {
            return SampleFolder::Columns{{"campo1", place}, {"rgs", rgs}, {"email", email},
                                         {"nom", nom},      {"loc", loc}, {"ind", ind}};
        };
        SendStage stage(QList<SampleFolder::Columns>{
            row("8", "b", "1@x.it", "", "", ""), row("6", "A", "3@x.it", "z", "", ""),
            row("1", "a", "2@x.it", "z", "z", "z"), row("7", "à", "1@x.it", "", "", ""),
            row("5", "a", "3@x.it", "m", "y", ""), row("4", "A", "3@x.it", "M", "x", "via B"),
            row("3", "a", "3@x.it", "m", "X", "Via A"), row("2", "a", "3@x.it", "", "z", "z")});
        stage.pick(stage.folder.writeMessage("o.mss", {":::campo1:::", "NR", {}, "<p>x</p>"}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QByteArray order;
        for (int i = 0; i < stage.sink.messages().size(); ++i)
            order += stage.header(i, "Subject");
        QCOMPARE(order, "12345678");
    }

    void twoRowsWithTheSameAddressBothGetACopy() {
        SendStage stage({"a@x.it", "a@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.messages().size(), 2);
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
    }

    void eachCopyIsPersonalisedFromTheTemplates() {
        SendStage stage(
            QList<SampleFolder::Columns>{{{"rgs", "Alfa"}, {"nom", "Anna"}, {"email", "a@x.it"}},
                                         {{"rgs", "Beta"}, {"nom", "Bruno"}, {"email", "b@x.it"}}});
        QVERIFY(stage.run());
        QCOMPARE(stage.header(0, "Subject"), "Alfa");
        QCOMPARE(stage.header(1, "Subject"), "Beta");
        QVERIFY(stage.sink.messages()[1].data.contains("Gentile Bruno"));
        QVERIFY(!stage.sink.messages()[1].data.contains("Anna"));
    }

    void nullColumnLeavesItsPlaceholderAndAnEmptyOneRemovesIt() {
        SendStage stage(QList<SampleFolder::Columns>{{{"rgs", "A"}, {"nom", QString()}, {"email", "a@x.it"}},
                                                     {{"rgs", "B"}, {"nom", ""}, {"email", "b@x.it"}}});
        QVERIFY(stage.run());
        QVERIFY(stage.sink.messages()[0].data.contains("Gentile :::nom:::"));
        QVERIFY(!stage.sink.messages()[1].data.contains(":::nom:::"));
    }

    void displayNameIsTheFirstOfCompanyNameAddressThatIsNotEmpty() {
        SendStage stage(
            QList<SampleFolder::Columns>{{{"rgs", QString()}, {"nom", QString()}, {"email", "1@x.it"}},
                                         {{"rgs", ""}, {"nom", "Nome"}, {"email", "2@x.it"}},
                                         {{"rgs", "Ragione"}, {"nom", "Nome"}, {"email", "3@x.it"}}});
        QStringList names;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { names << stage.smtp().ToName; });
        QVERIFY(stage.run());
        QCOMPARE(names, (QStringList{"1@x.it", "Nome", "Ragione"}));
    }

    void emptyAddressIsAttemptedFailsAndStaysSelected() {
        SendStage stage({"", "b@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{""});
    }

    void nullAddressFailsAndNobodyGetsThatCopy() {
        SendStage stage(QList<SampleFolder::Columns>{{{"rgs", "A"}, {"email", "a@x.it"}},
                                                     {{"rgs", "B"}, {"email", QString()}},
                                                     {{"rgs", "C"}, {"email", "c@x.it"}}});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "c@x.it"}));
        QCOMPARE(stage.header(1, "Subject"), "C");
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 2}));
        // Also as a run's first row: the address is the one of the run before.
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(stage.smtp().ToAddress.text(), "c@x.it");
    }

    void databaseThatVanishesInMidRunSendsNothingMore() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.onMessage([&](const SmtpSink::Message&) { stage.folder.hideDatabase(); });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QVERIFY(MessageDialog::shown().isEmpty());
        stage.folder.showDatabase();
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        // The first one is taken out of the selection by the next click, before anything is counted.
        stage.sink.onMessage({});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void rowWhoseUpdateFailsIsMetAgainAndNotServedAgain() {
        SendStage stage({"a@x.it", "b@x.it"});
        bool first = true;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            if (first) stage.folder.hideDatabase();
            first = false;
        });
        QTimer back;
        QObject::connect(&back, &QTimer::timeout, [&] {
            if (stage.counter("prgInviate") < 1) return;
            stage.folder.showDatabase();
            back.stop();
        });
        back.start(1);
        stage.pick();
        stage.click("cmdInvia");  // the pause of 200 ms lets the database return between the two ticks
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        stage.click("cmdChiudi");
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void lateOutcomeOfAnEarlierMessageIsWipedBeforeTheNextSend() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        stage.pick();
        stage.start();
        Q_EMIT stage.smtp().SendDone();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void lateOutcomeInTheTurnBeforeTheSendIsWipedToo() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        stage.pick();
        stage.start();
        bool late = false;
        EventWatch beforeTick(&stage.timer(), QEvent::Timer, [&] {
            QMetaObject::invokeMethod(
                &stage.smtp(),
                [&] {
                    late = stage.sink.attempts().isEmpty();
                    Q_EMIT stage.smtp().SendDone();
                },
                Qt::QueuedConnection);
        });
        QVERIFY(stage.waitForEnd());
        QVERIFY(late);
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void startWithNothingLeftToServeCountsOneFailureAndServesNobody() {
        SendStage stage({"a@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{-1, 1, 0}));
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
    }

    void timerThatIsDueAgainDuringATickBeginsNoSecondOne() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.pick();
        stage.start();
        stage.timer().setInterval(0);
        bool active = false;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { active |= stage.timer().isActive(); });
        QVERIFY(stage.waitForEnd());
        QVERIFY(!active);
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 3}));
    }

    void bothOutcomesCountAsDelivered() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendError,
                         [&] { Q_EMIT stage.smtp().SendDone(); });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void rowsSelectedDuringARunDoNotChangeTheCounts() {
        SendStage stage({"a@x.it", "b@x.it"});
        bool first = true;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            if (first) stage.folder.addRecipient({{"rgs", "Z"}, {"email", "z@x.it"}});
            first = false;
        });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(SampleFolder::selected(), QStringList{"z@x.it"});
    }

    void serverRouteTakesHostPortAndLoginOfTheAccount() {
        SendStage stage({"a@x.it"});
        writeAccount(QString("0|Z|z@x.it|127.0.0.1|%1|1|utente|segreta|EHLO|0|1").arg(stage.sink.port()));
        stage.window->CaricaDati();
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().ServerName, "127.0.0.1");
        QCOMPARE(stage.smtp().ServerPort, stage.sink.port());
        QVERIFY(stage.smtp().UseAuth);
        QCOMPARE(stage.smtp().UserName, "utente");
        QCOMPARE(stage.smtp().UserPassword, "segreta");
        QVERIFY(!stage.smtp().OpportunisticTls);
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
        QCOMPARE(stage.smtp().ServerName, "");
        QCOMPARE(int(stage.smtp().ServerPort), 25);
        QVERIFY(!stage.smtp().UseAuth);
        QCOMPARE(stage.smtp().UserName, "");
        QCOMPARE(stage.smtp().UserPassword, "");
        QCOMPARE(stage.smtp().HeloMode, 0);
        QCOMPARE(int(stage.smtp().OutPort), 4243);
        QVERIFY(stage.smtp().OpportunisticTls);
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
        QCOMPARE(stage.smtp().ServerName, "");
        QCOMPARE(int(stage.smtp().ServerPort), 25);
        QVERIFY(!stage.smtp().UseAuth);
        QCOMPARE(stage.smtp().UserName, "");
        QCOMPARE(stage.smtp().UserPassword, "");
        QVERIFY(stage.smtp().OpportunisticTls);
        QVERIFY(stage.smtp().PublicServersOnly);
        QVERIFY(runOver(server));
        QCOMPARE(stage.smtp().ServerName, "127.0.0.1");
        QCOMPARE(stage.smtp().ServerPort, stage.sink.port());
        QVERIFY(stage.smtp().UseAuth);
        QCOMPARE(stage.smtp().UserName, "utente");
        QCOMPARE(stage.smtp().UserPassword, "segreta");
        QVERIFY(!stage.smtp().OpportunisticTls);
        QVERIFY(!stage.smtp().PublicServersOnly);
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

TEST_CLASS(TestFrmInviaGiro);

}  // namespace frminvia_giro_test

#include "frminvia_giro_test.moc"
