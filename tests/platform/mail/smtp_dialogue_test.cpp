// SPDX-License-Identifier: GPL-3.0-or-later
// The session with servers that follow the rules, and with others.
#include "platform/mail/smtp_fixture.h"

namespace smtp_dialogue_test {

using testing_support::ScriptedServer;

namespace {

/// A first message with a given outcome, and a second one that must be delivered after any outcome.
struct Row {
    const char* name;
    QList<QByteArrayList> dialogues;  ///< a last one, for the second message, is added where `kept` is false
    bool done;
    int code;
    const char* text;   ///< part of the text of SendError
    bool kept = false;  ///< the dialogues contain the second message as well
    int timeoutSecs = 10;
};

std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.name;
}

class Dialogue : public testing::TestWithParam<Row> {};

TEST_P(Dialogue, EndsAsExpectedAndTheNextMessageIsServed) {
    const Row& row = GetParam();
    QList<QByteArrayList> dialogues = row.dialogues;
    if (!row.kept) dialogues.append(hello + message);
    ScriptedServer server(dialogues);
    Client client(server.port());
    client.smtp.TimeoutSecs = qint16(row.timeoutSecs);

    const Heard first = client.send();
    EXPECT_EQ(first.done, row.done) << qPrintable(first.text);
    EXPECT_EQ(first.code, row.code) << qPrintable(first.text);
    EXPECT_TRUE(first.text.contains(QString::fromUtf8(row.text))) << qPrintable(first.text);
    client.turn(30);
    client.smtp.TimeoutSecs = 10;
    const Heard second = client.send();
    EXPECT_TRUE(second.done) << second.code << ' ' << qPrintable(second.text);
    EXPECT_EQ(server.remainder(), "");
}

QByteArrayList until(const char* lastLine, const QByteArrayList& whole = hello + message) {
    return whole.mid(0, whole.indexOf(lastLine) + 1);
}

const char* const mailLine = "C: MAIL FROM:<mittente@example.it>";
const char* const rcptLine = "C: RCPT TO:<rossi@example.it>";
const QByteArrayList atGreeting{};
const QByteArrayList atEhlo = until("C: EHLO *");
const QByteArrayList atMail = until(mailLine);
const QByteArrayList atRcpt = until(rcptLine);
const QByteArrayList atData = until("C: DATA");
const QByteArrayList atBody = until("BODY");

const QByteArrayList quit{"C: QUIT", "S: 221 bye", "DROP"};
const char* const closed = "ha chiuso la connessione";
const char* const silent = "Tempo scaduto";
const char* const invalid = "non valida";

Row refusal(const char* name, const QByteArrayList& head, const char* line, int code, const char* text,
            const QByteArrayList& next) {
    const bool kept = !next.isEmpty();
    return {name, {head + QByteArrayList{line} + (kept ? next : quit)}, false, code, text, kept};
}

INSTANTIATE_TEST_SUITE_P(
    Accepted, Dialogue,
    testing::Values(Row{"Plain", {hello + message + message}, true, 0, "", true},
                    Row{"Pipelined", {helloPipelining + groupedMessage + groupedMessage}, true, 0, "", true},
                    Row{"ManyLines",
                        {QByteArrayList{"S: 220-one", "S: 220-two", "S: 220 three", "C: EHLO *", "S: 250-a",
                                        "S: 250-b", "S: 250 c"} +
                         message + message},
                        true,
                        0,
                        "",
                        true},
                    Row{"RecipientForwarded",
                        {hello +
                         QByteArrayList{mailLine, "S: 250 ok", rcptLine, "S: 251 forwarded", "C: DATA",
                                        "S: 354 go", "BODY", "S: 250 ok"} +
                         message},
                        true,
                        0,
                        "",
                        true},
                    Row{"BareLineFeeds",
                        {QByteArrayList{"S- 220 ready\\n", "C: EHLO *", "S- 250-ready\\n250 PIPELINING\\n"} +
                         groupedMessage + groupedMessage},
                        true,
                        0,
                        "",
                        true},
                    Row{"SingleOctets",
                        {QByteArrayList{"S. 220 ready", "C: EHLO *", "S. 250-ready", "S. 250 PIPELINING",
                                        mailLine, rcptLine, "C: DATA", "S. 250 ok", "S. 250 ok", "S. 354 go",
                                        "BODY", "S. 250 taken"} +
                         groupedMessage},
                        true,
                        0,
                        "",
                        true},
                    Row{"SplitInTheMiddle",
                        {QByteArrayList{"S- 22", "PAUSE 20", "S- 0 ready\\r", "PAUSE 20", "S- \\n",
                                        "C: EHLO *", "S- 250", "PAUSE 20", "S: -ready", "S: 250 end"} +
                         message + message},
                        true,
                        0,
                        "",
                        true},
                    Row{"CodeWithoutText",
                        {QByteArrayList{"S: 220", "C: EHLO *", "S: 250", mailLine, "S: 250", rcptLine,
                                        "S: 250", "C: DATA", "S: 354", "BODY", "S: 250"} +
                         message},
                        true,
                        0,
                        "",
                        true},
                    Row{"EhloRefusedHeloAccepted",
                        {QByteArrayList{"S: 220 ready", "C: EHLO *", "S: 502 what", "C: HELO *",
                                        "S: 250 ready"} +
                         message + message},
                        true,
                        0,
                        "",
                        true},
                    Row{"DoubledFinalReplyDropsTheConnection",
                        {hello + message + QByteArrayList{"S: 250 taken", "WAIT"}},
                        true,
                        0,
                        ""}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Refused, Dialogue,
    testing::Values(
        refusal("Greeting4xx", atGreeting, "S: 451 later", 451, "later", {}),
        refusal("Greeting5xx", atGreeting, "S: 554 no service", 554, "no service", {}),
        refusal("Ehlo4xx", atEhlo, "S: 451 later", 451, "later", {}),
        refusal("EhloAndHelo5xx", atEhlo + QByteArrayList{"S: 502 what", "C: HELO *"}, "S: 550 no", 550, "no",
                {}),
        refusal("Mail4xx", atMail, "S: 451 later", 451, "later", message),
        refusal("Mail5xx", atMail, "S: 550 not you", 550, "not you", message),
        refusal("Recipient4xx", atRcpt, "S: 450 greylisted", 450, "greylisted", reset + message),
        refusal("Recipient5xx", atRcpt, "S: 550 unknown", 550, "unknown", reset + message),
        refusal("Data4xx", atData, "S: 451 later", 451, "later", reset + message),
        refusal("Data5xx", atData, "S: 554 no", 554, "no", reset + message),
        refusal("Body4xx", atBody, "S: 452 full", 452, "full", reset + message),
        refusal("Body5xx", atBody, "S: 554 spam", 554, "spam", reset + message),
        refusal("ManyLinedRefusal", atRcpt, "S- 550-5.1.1 un\\r\\n550 5.1.1 known\\r\\n", 550,
                "5.1.1 un 5.1.1 known", reset + message),
        Row{"PipelinedMail",
            {helloPipelining +
             QByteArrayList{mailLine, rcptLine, "C: DATA", "S: 550 not you", "S: 503 no sender",
                            "S: 503 no sender"} +
             groupedMessage},
            false,
            550,
            "not you",
            true},
        Row{"PipelinedRecipient",
            {helloPipelining + QByteArrayList{mailLine, rcptLine, "C: DATA", "S: 250 ok", "S: 550 unknown",
                                              "S: 554 nobody", "C: RSET", mailLine, rcptLine, "C: DATA",
                                              "S: 250 flushed", "S: 250 ok", "S: 250 ok", "S: 354 go", "BODY",
                                              "S: 250 taken"}},
            false,
            550,
            "unknown",
            true},
        Row{"PipelinedRecipientWithDataAccepted",
            {helloPipelining + QByteArrayList{mailLine, rcptLine, "C: DATA", "S: 250 ok", "S: 550 unknown",
                                              "S: 354 go", "BODY", "S: 554 nobody", "C: RSET", mailLine,
                                              rcptLine, "C: DATA", "S: 250 flushed", "S: 250 ok", "S: 250 ok",
                                              "S: 354 go", "BODY", "S: 250 taken"}},
            false,
            550,
            "unknown",
            true},
        Row{"PipelinedRecipientWithEmptyMessageAccepted",
            {helloPipelining + QByteArrayList{mailLine, rcptLine, "C: DATA", "S: 250 ok", "S: 550 unknown",
                                              "S: 354 go", "BODY", "S: 250 taken", "C: RSET", mailLine,
                                              rcptLine, "C: DATA", "S: 250 flushed", "S: 250 ok", "S: 250 ok",
                                              "S: 354 go", "BODY", "S: 250 taken"}},
            false,
            550,
            "unknown",
            true}),
    [](const auto& row) { return row.param.name; });

QList<Row> atEachStep(const char* ending, const char* text, int timeoutSecs = 10) {
    const std::pair<const char*, QByteArrayList> steps[] = {{"Greeting", atGreeting}, {"Ehlo", atEhlo},
                                                            {"Mail", atMail},         {"Recipient", atRcpt},
                                                            {"Data", atData},         {"Body", atBody}};
    QList<Row> rows;
    for (const auto& [name, head] : steps)
        rows.append({name, {head + QByteArrayList{ending}}, false, 0, text, false, timeoutSecs});
    return rows;
}

INSTANTIATE_TEST_SUITE_P(Dropped, Dialogue, testing::ValuesIn(atEachStep("DROP", closed)),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(Reset, Dialogue, testing::ValuesIn([] {
                             QList<Row> rows = atEachStep("RESET", "");
                             // A reset that comes before the client saw the connection would only make it
                             // connect again.
                             rows[0].dialogues[0].prepend("PAUSE 100");
                             return rows;
                         }()),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(Silent, Dialogue, testing::ValuesIn(atEachStep("WAIT", silent, 1)),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(SaysFarewell, Dialogue, testing::ValuesIn([] {
                             QList<Row> rows = atEachStep("S: 421 closing", "closing");
                             for (Row& row : rows)
                                 row.code = 421;
                             return rows;
                         }()),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(DroppedInTheMiddleOfAReply, Dialogue, testing::ValuesIn([] {
                             QList<Row> rows = atEachStep("S- 250-half", closed);
                             for (Row& row : rows)
                                 row.dialogues[0].append("DROP");
                             // The first digits of the final reply suffice.
                             rows.last().done = true;
                             rows.last().text = "";
                             return rows;
                         }()),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(WithoutCode, Dialogue, testing::ValuesIn([] {
                             QList<Row> rows = atEachStep("S: good morning", "good morning");
                             for (Row& row : rows)
                                 row.dialogues[0].append("WAIT");
                             return rows;
                         }()),
                         [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    OutOfOrder, Dialogue,
    testing::Values(
        Row{"NulInAReply", {atMail + QByteArrayList{"S- 250 o\\0k\\r\\n", "WAIT"}}, false, 0, invalid},
        Row{"OverlongLine",
            {atMail + QByteArrayList{"S- 250 " + QByteArray(5000, 'x'), "WAIT"}},
            false,
            0,
            invalid},
        Row{"EndlessReply",
            {atMail + QByteArrayList(50, "S: 250-" + QByteArray(900, 'x')) + QByteArrayList{"WAIT"}},
            false,
            0,
            invalid},
        Row{"DoubledGreeting", {{"S- 220 one\\r\\n220 two\\r\\n", "WAIT"}}, false, 0, "inattesa"},
        Row{"DoubledEhlo",
            {QByteArrayList{"S: 220 ready", "C: EHLO *", "S- 250 a\\r\\n250 b\\r\\n", "WAIT"}},
            false,
            0,
            ""},
        Row{"DoubledMail",
            {atMail + QByteArrayList{"S- 250 a\\r\\n250 b\\r\\n", "WAIT"}},
            false,
            0,
            "inattesa"},
        Row{"DoubledRecipient",
            {atRcpt + QByteArrayList{"S- 250 a\\r\\n250 b\\r\\n", "WAIT"}},
            false,
            0,
            "inattesa"},
        Row{"DoubledData",
            {atData + QByteArrayList{"S- 354 a\\r\\n354 b\\r\\n", "WAIT"}},
            false,
            0,
            "inattesa"},
        Row{"FarewellBehindTheGreeting", {{"S- 220 one\\r\\n421 busy\\r\\n", "WAIT"}}, false, 421, "busy"},
        Row{"DataAnsweredBy250", {atData + QByteArrayList{"S: 250 ok", "WAIT"}}, false, 0, "inattesa"},
        Row{"MailAnsweredBy354", {atMail + QByteArrayList{"S: 354 go", "WAIT"}}, false, 354, "go"},
        Row{"BodyAnsweredBy354", {atBody + QByteArrayList{"S: 354 go on", "WAIT"}}, false, 354, "go on"},
        Row{"LostAfterTheFinalPoint", {atBody + QByteArrayList{"PAUSE 50", "DROP"}}, false, 0, closed},
        Row{"DribblingReplyIsNoProgress",
            {atMail + QByteArrayList{"S- 2", "PAUSE 400", "S- 5", "PAUSE 400", "S- 0", "PAUSE 400", "S- -",
                                     "PAUSE 400", "S- x", "PAUSE 400", "S- y", "WAIT"}},
            false,
            0,
            silent,
            false,
            1}),
    [](const auto& row) { return row.param.name; });

TEST(SmtpSession, AnOpenSessionCostsTwoRoundTripsAMessage) {
    // The server answers only after a whole flight, so that a third one would never be answered.
    ScriptedServer server({helloPipelining + groupedMessage + groupedMessage + groupedMessage});
    Client client(server.port());
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, NothingIsPipelinedWhereItIsNotOffered) {
    ScriptedServer server({hello + QByteArrayList{mailLine, "PAUSE 50", "EMPTY", "S: 250 ok", rcptLine,
                                                  "PAUSE 50", "EMPTY", "S: 250 ok", "C: DATA", "PAUSE 50",
                                                  "EMPTY", "S: 354 go", "BODY", "S: 250 ok"}});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, FarewellToAKeptSessionIsFollowedByANewOne) {
    ScriptedServer server(
        {hello + message + QByteArrayList{mailLine, "S: 421 enough", "WAIT"}, hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, FarewellToAnIdleSessionIsFollowedByANewOne) {
    ScriptedServer server(
        {hello + message + QByteArrayList{"S: 421 idle too long", "DROP"}, hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.turn(50);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, KeptSessionThatBrokeUnnoticedIsReopened) {
    for (const char* ending : {"DROP", "RESET"}) {
        ScriptedServer server({hello + message + QByteArrayList{mailLine, ending}, hello + message});
        Client client(server.port());
        EXPECT_TRUE(client.send().done);
        EXPECT_TRUE(client.send().done) << ending;
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST(SmtpSession, KeptSessionIsReopenedOnlyOnce) {
    ScriptedServer server({hello + message + QByteArrayList{mailLine, "DROP"},
                           hello + QByteArrayList{mailLine, "DROP"}, hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_FALSE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, RefusedResetIsFollowedByANewSession) {
    ScriptedServer server(
        {atRcpt + QByteArrayList{"S: 550 unknown", "C: RSET", "S: 500 what", "WAIT"}, hello + message});
    Client client(server.port());
    EXPECT_FALSE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, LateDoubleOfTheFinalReplyDoesNotHarmTheNextMessage) {
    QByteArrayList first = helloPipelining + groupedMessage;
    first += {mailLine, rcptLine, "C: DATA", "S: 250 taken again", "S: 250 ok", "S: 250 ok", "WAIT"};
    ScriptedServer server({first, helloPipelining + groupedMessage});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, AnyChangeOfTheRouteOpensANewSession) {
    const QList<void (*)(mail::DeliveryControl&)> changes{
        [](mail::DeliveryControl& smtp) { smtp.ServerName = QStringLiteral("localhost"); },
        [](mail::DeliveryControl& smtp) { smtp.OpportunisticTls = true; },
        [](mail::DeliveryControl& smtp) { smtp.CertificateFolder = QStringLiteral("certificati"); },
    };
    for (const auto change : changes) {
        ScriptedServer server({hello + message + quit, hello + message});
        Client client(server.port());
        EXPECT_TRUE(client.send().done);
        change(client.smtp);
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "");
    }
}

TEST(SmtpSession, ChangeOfTheGreetingOpensANewSession) {
    ScriptedServer server(
        {hello + message + quit, QByteArrayList{"S: 220 ready", "C: HELO *", "S: 250 ready"} + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.smtp.HeloMode = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, SizeAndEightBitMimeAreUsedWhereOffered) {
    ScriptedServer server(
        {{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250-SIZE 1000000", "S: 250 8BITMIME",
          "C: MAIL FROM:<mittente@example.it> SIZE=* BODY=8BITMIME", "S: 250 ok", rcptLine, "S: 250 ok",
          "C: DATA", "S: 354 go", "BODY", "S: 250 ok"}});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    ASSERT_EQ(server.remainder(), "");
    const QByteArray size = server.lines().at(1).split('=').at(1).split(' ').at(0);
    EXPECT_EQ(size.toInt(), server.bodies().at(0).size());
}

TEST(SmtpSession, NonAsciiLocalPartNeedsSmtputf8) {
    ScriptedServer server({hello + message.mid(0, 0) + QByteArrayList{"C: QUIT"},
                           {"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 SMTPUTF8",
                            "C: MAIL FROM:<mittente@example.it> SMTPUTF8", "S: 250 ok",
                            "C: RCPT TO:<niccolò@xn--caff-8oa.example>", "S: 250 ok", "C: DATA", "S: 354 go",
                            "BODY", "S: 250 ok"}});
    Client client(server.port());
    client.smtp.ToAddress = QStringLiteral("niccolò@caffè.example");
    const Heard refused = client.send();
    EXPECT_FALSE(refused.done);
    EXPECT_EQ(refused.code, 0);
    client.smtp.ServerName = QStringLiteral("localhost");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, LargeMessagePassesASlowReader) {
    QByteArrayList slow = until("S: 354 go ahead");
    for (int i = 0; i < 25; ++i)
        slow += {"READ 400000", "PAUSE 120"};
    ScriptedServer server({slow + QByteArrayList{"BODY", "S: 250 taken"}});
    Client client(server.port());
    client.smtp.TimeoutSecs = 2;
    client.smtp.BodyText = QString(12000000, u'x');
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, ServerThatNeverReadsEndsInTheTimeout) {
    ScriptedServer server({until("S: 354 go ahead") + QByteArrayList{"HOLD"}, hello + message});
    Client client(server.port());
    client.smtp.TimeoutSecs = 1;
    client.smtp.BodyText = QString(20000000, u'x');
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_TRUE(heard.text.contains(QString::fromUtf8(silent))) << qPrintable(heard.text);
    client.smtp.BodyText = QStringLiteral("short");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, RefusalInTheMiddleOfALargeMessage) {
    ScriptedServer server(
        {until("S: 354 go ahead") + QByteArrayList{"READ 100000", "S: 552 too much", "HOLD"},
         hello + message});
    Client client(server.port());
    client.smtp.BodyText = QString(20000000, u'x');
    const Heard heard = client.send();
    EXPECT_FALSE(heard.done);
    EXPECT_EQ(heard.code, 552);
    client.smtp.BodyText = QStringLiteral("short");
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpSession, AcceptanceBeforeTheEndIsNoAcceptance) {
    ScriptedServer server({until("S: 354 go ahead") + QByteArrayList{"READ 100000", "S: 250 taken", "HOLD"}});
    Client client(server.port());
    client.smtp.BodyText = QString(20000000, u'x');
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_dialogue_test
