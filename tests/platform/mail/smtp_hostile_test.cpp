// SPDX-License-Identifier: GPL-3.0-or-later
// A server that misbehaves at any step of a whole dialogue, with TLS and login: each ending has its one
// outcome, and the next recipient is served.
#include "platform/mail/smtp_fixture.h"
#include "support/FullPort.h"

namespace smtp_hostile_test {

using testing_support::FullPort;
using testing_support::ScriptedServer;
using testing_support::TestCertificates;

namespace {

const QByteArrayList whole{"S: 220 ready",
                           "C: EHLO *",
                           "S: 250-ready",
                           "S: 250 STARTTLS",
                           "C: STARTTLS",
                           "S: 220 go ahead",
                           "TLS",
                           "C: EHLO *",
                           "S: 250-ready",
                           "S: 250 AUTH LOGIN",
                           "C: AUTH LOGIN",
                           "S: 334 VXNlcm5hbWU6",
                           "C: *",
                           "S: 334 UGFzc3dvcmQ6",
                           "C: *",
                           "S: 235 welcome",
                           "C: MAIL FROM:<mittente@example.it>",
                           "S: 250 sender ok",
                           "C: RCPT TO:<rossi@example.it>",
                           "S: 250 recipient ok",
                           "C: DATA",
                           "S: 354 go on",
                           "BODY",
                           "S: 250 taken"};

/// A place in the dialogue where the server must reply.
struct Step {
    const char* name;
    const char* reply;  ///< the line of `whole` with which the right reply begins
    int place;          ///< which of several such lines
};

const QList<Step> steps{{"Greeting", "S: 220 ready", 0},
                        {"Ehlo", "S: 250-ready", 0},
                        {"StartTls", "S: 220 go ahead", 0},
                        {"EhloInTls", "S: 250-ready", 1},
                        {"Auth", "S: 334 VXNlcm5hbWU6", 0},
                        {"UserName", "S: 334 UGFzc3dvcmQ6", 0},
                        {"Password", "S: 235 welcome", 0},
                        {"Mail", "S: 250 sender ok", 0},
                        {"Recipient", "S: 250 recipient ok", 0},
                        {"Data", "S: 354 go on", 0},
                        {"Body", "S: 250 taken", 0}};

QByteArrayList upTo(const Step& step) {
    qsizetype at = whole.indexOf(step.reply);
    for (int i = 0; i < step.place; ++i)
        at = whole.indexOf(step.reply, at + 1);
    return whole.mid(0, at);
}

/// What the server does instead of the right reply, and the outcome.
struct Ending {
    const char* name;
    QByteArrayList lines;
    int code;
    const char* text;  ///< part of the text of SendError
    int timeoutSecs = 10;
};

const QList<Ending> endings{
    // Before a client has seen its connection, a reset would only make it connect again.
    {"Dropped", {"DROP"}, 0, "chiuso la connessione"},
    {"Reset", {"PAUSE 50", "RESET"}, 0, ""},
    {"DroppedInAReply", {"S- 25", "DROP"}, 0, "chiuso la connessione"},
    {"DroppedBetweenTheLinesOfAReply", {"S: 250-one", "S- 250-tw", "DROP"}, 0, "chiuso la connessione"},
    {"ResetInAReply", {"S- 250-ha", "PAUSE 50", "RESET"}, 0, ""},
    {"Silent", {"WAIT"}, 0, "Tempo scaduto", 1},
    {"SilentInAReply", {"S: 250-one", "S- 250", "WAIT"}, 0, "Tempo scaduto", 1},
    {"Farewell", {"S: 421 closing", "DROP"}, 421, "closing"},
    {"FarewellWithoutClosing", {"S: 421 closing", "WAIT"}, 421, "closing"},
    {"WithoutCode", {"S: good morning", "WAIT"}, 0, "non valida"},
    {"BareCodeRunsOn", {"S: 250good", "WAIT"}, 0, "non valida"},
    {"CodeOfNoClass", {"S: 990 what", "WAIT"}, 0, "non valida"},
    {"StrayLine", {"S: 250-one", "S: nonsense", "S: 250 two", "WAIT"}, 0, "non valida"},
    {"EmptyLine", {"S: ", "WAIT"}, 0, "non valida"},
    {"Nul", {"S- 250 o\\0k\\r\\n", "WAIT"}, 0, "non valida"},
    {"OverlongLine", {"S- 250 " + QByteArray(5000, 'x'), "WAIT"}, 0, "non valida"},
    {"EndlessReply", QByteArrayList(50, "S: 250-" + QByteArray(900, 'x')) + QByteArrayList{"WAIT"}, 0,
     "non valida"},
};

using Row = std::tuple<Step, Ending>;

std::string nameOf(const testing::TestParamInfo<Row>& row) {
    return std::string(std::get<Step>(row.param).name) + std::get<Ending>(row.param).name;
}

void prepare(Client& client) {
    client.smtp.ServerName = QStringLiteral("localhost");
    client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
    client.smtp.UseAuth = true;
    client.smtp.UserName = QStringLiteral("utente");
    client.smtp.UserPassword = QStringLiteral("segreto");
}

class HostileServer : public testing::TestWithParam<Row> {};

TEST_P(HostileServer, EndsAsExpectedAndTheNextRecipientIsServed) {
    const auto& [step, ending] = GetParam();
    ScriptedServer server({upTo(step) + ending.lines, whole}, TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    client.smtp.TimeoutSecs = qint16(ending.timeoutSecs);
    const Heard first = client.send();
    const bool accepted = std::string(step.name) == "Body" && ending.lines[0].mid(3, 3) == "250";
    EXPECT_EQ(first.done, accepted);
    if (!accepted) {
        EXPECT_EQ(first.code, ending.code) << qPrintable(first.text);
        EXPECT_TRUE(first.text.contains(QString::fromUtf8(ending.text))) << qPrintable(first.text);
    }
    client.smtp.TimeoutSecs = 10;
    const Heard second = client.send();
    EXPECT_TRUE(second.done) << second.code << ' ' << qPrintable(second.text);
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(Any, HostileServer,
                         testing::Combine(testing::ValuesIn(steps), testing::ValuesIn(endings)), nameOf);

/// Refusals on the way to a session; those of a message are in the dialogue's own table.
class RefusingServer : public testing::TestWithParam<std::tuple<Step, int>> {};

TEST_P(RefusingServer, IsLeftWithItsCodeAndTheNextRecipientIsServed) {
    const auto& [step, code] = GetParam();
    const QByteArray reply = QByteArray::number(code);
    ScriptedServer server({upTo(step) + QByteArrayList{"S- " + reply + "-not\\r\\n" + reply + " now\\r\\n",
                                                       "C: QUIT", "S: 221 bye"},
                           whole},
                          TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    const Heard first = client.send();
    EXPECT_FALSE(first.done);
    EXPECT_EQ(first.code, code);
    EXPECT_EQ(first.text, QStringLiteral("not now"));
    client.smtp.BeginRun();  // a refused password is not tried again before
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(Any, RefusingServer,
                         testing::Combine(testing::Values(steps[0], steps[2], steps[4], steps[5], steps[6]),
                                          testing::Values(454, 535)),
                         [](const auto& row) {
                             return std::string(std::get<Step>(row.param).name) +
                                    std::to_string(std::get<int>(row.param));
                         });

/// One reply more than there were commands, in the same write.
class DoublingServer : public testing::TestWithParam<Step> {};

TEST_P(DoublingServer, IsNotTrustedAndTheNextRecipientIsServed) {
    const Step& step = GetParam();
    const QByteArray reply = QByteArray(step.reply).mid(3).replace('-', ' ');
    ScriptedServer server(
        {upTo(step) + QByteArrayList{"S- " + reply + "\\r\\n" + reply + "\\r\\n", "WAIT"}, whole},
        TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    // After the message's own reply a fault can only affect the next message.
    EXPECT_EQ(client.send().done, std::string(step.name) == "Body");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(Any, DoublingServer, testing::ValuesIn(steps),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SmtpSession, RepliesMayBeSplitAnywhere) {
    const QByteArray replies = "250-sender\\r\\n250 ok\\r\\n250 recipient\\r\\n354 go\\r\\n";
    const QByteArrayList commands{"C: MAIL FROM:<mittente@example.it>", "C: RCPT TO:<rossi@example.it>",
                                  "C: DATA"};
    for (qsizetype at = 1; at < replies.size(); ++at) {
        if (replies[at - 1] == '\\') continue;  // within the script's notation
        ScriptedServer server({helloPipelining + commands +
                               QByteArrayList{"S- " + replies.left(at), "PAUSE 2", "S- " + replies.mid(at),
                                              "BODY", "S: 250 taken"}});
        Client client(server.port());
        EXPECT_TRUE(client.send().done) << at;
        EXPECT_EQ(server.remainder(), "") << at;
    }
}

TEST(SmtpSession, GarbageInsteadOfAHandshakeEndsTheDelivery) {
    const QByteArrayList garbage =
        upTo(steps[2]) + QByteArrayList{steps[2].reply, "PAUSE 50", "S: not TLS at all", "WAIT"};
    ScriptedServer server({garbage, whole}, TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    const Heard first = client.send();
    EXPECT_FALSE(first.done);
    EXPECT_TRUE(first.text.contains(QStringLiteral("TLS"))) << qPrintable(first.text);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, FarewellAfterEveryFewMessagesCostsNone) {
    const QByteArrayList few =
        hello + message + message + QByteArrayList{message[0], "S: 421 enough", "WAIT"};
    ScriptedServer server({few, few, hello + message});
    Client client(server.port());
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(client.send().done) << i;
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, HostThatNeverTakesTheConnectionEndsInTheTimeout) {
    const FullPort nobody;
    Client client(nobody.port());
    client.smtp.TimeoutSecs = 1;
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 0);
    EXPECT_TRUE(heard.text.contains(QStringLiteral("Tempo scaduto"))) << qPrintable(heard.text);
    ScriptedServer server({hello + message});
    client.smtp.ServerPort = server.port();
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_hostile_test
