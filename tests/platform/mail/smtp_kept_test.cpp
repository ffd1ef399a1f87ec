// SPDX-License-Identifier: GPL-3.0-or-later
// Kept connections that turn out dead, and the first line of the final reply.
#include "platform/mail/smtp_fixture.h"

namespace smtp_kept_test {

using testing_support::ScriptedServer;

namespace {

QByteArrayList before(const char* line) {
    return message.mid(0, message.indexOf(line));
}

struct Death {
    const char* name;
    QByteArrayList lines;
};

std::ostream& operator<<(std::ostream& out, const Death& death) {
    return out << death.name;
}

class DeadConnection : public testing::TestWithParam<std::tuple<const char*, Death>> {
  protected:
    QByteArrayList dead() const { return before(std::get<0>(GetParam())) + std::get<1>(GetParam()).lines; }
};

TEST_P(DeadConnection, IsReplacedAndTheMessageTriedThereOnce) {
    ScriptedServer server({hello + message + dead(), hello + message + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.smtp.TimeoutSecs = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST_P(DeadConnection, IsReplacedOnlyOnce) {
    ScriptedServer server({hello + message + dead(), hello + dead(), hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.smtp.TimeoutSecs = 1;
    EXPECT_FALSE(client.send().done);
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Kept, DeadConnection,
    testing::Combine(testing::Values("S: 250 sender ok", "S: 250 recipient ok", "S: 354 go ahead"),
                     testing::Values(Death{"Drop", {"DROP"}}, Death{"Reset", {"RESET"}},
                                     Death{"Silence", {"WAIT"}}, Death{"Farewell", {"S: 421 bye", "WAIT"}})),
    [](const auto& row) {
        const QByteArray line = std::get<0>(row.param);
        return std::string(line.contains("sender")      ? "Mail"
                           : line.contains("recipient") ? "Recipient"
                                                        : "Data") +
               std::get<1>(row.param).name;
    });

TEST(KeptConnection, ThatBreaksInTheMiddleOfALargeMessageIsReplaced) {
    ScriptedServer server(
        {hello + message + before("BODY") + QByteArrayList{"READ 100000", "RESET"}, hello + message});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.smtp.BodyText = QString(20000000, u'x');
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(KeptConnection, ThatBreaksAfterTheFinalPointIsNotReplaced) {
    for (const QByteArrayList& ending : {QByteArrayList{"DROP"}, QByteArrayList{"S: 421 bye", "WAIT"},
                                         QByteArrayList{"PAUSE 20", "RESET"}}) {
        ScriptedServer server({hello + message + before("S: 250 taken") + ending, hello + message});
        Client client(server.port());
        EXPECT_TRUE(client.send().done);
        EXPECT_FALSE(client.send().done) << ending[0].constData();
        EXPECT_TRUE(client.send().done);
        EXPECT_EQ(server.remainder(), "");
    }
}

/// A small message is sent in one write with its final point: the server may have received it.
TEST(KeptConnection, ThatBreaksWhenTheMessageWasWrittenIsNotReplaced) {
    ScriptedServer server({hello + message + before("BODY") + QByteArrayList{"READ 1", "RESET"}});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    EXPECT_FALSE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

TEST(KeptConnection, EachOfItsTwoTriesGetsTheWholeTime) {
    ScriptedServer server({hello + message + QByteArrayList{message[0], "PAUSE 700", "DROP"},
                           hello + QByteArrayList{message[0], "PAUSE 700"} + message.mid(1)});
    Client client(server.port());
    EXPECT_TRUE(client.send().done);
    client.smtp.TimeoutSecs = 1;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

/// What comes instead of the reply to the final point, and whether the message counts as accepted.
struct Reply {
    const char* name;
    QByteArrayList lines;
    bool accepted;
};

std::ostream& operator<<(std::ostream& out, const Reply& reply) {
    return out << reply.name;
}

class FinalReply : public testing::TestWithParam<Reply> {};

TEST_P(FinalReply, CountsByTheFirstThreeDigits) {
    ScriptedServer server({hello + before("S: 250 taken") + GetParam().lines, hello + message});
    Client client(server.port());
    client.smtp.TimeoutSecs = 1;
    EXPECT_EQ(client.send().done, GetParam().accepted);
    client.smtp.TimeoutSecs = 10;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

INSTANTIATE_TEST_SUITE_P(
    All, FinalReply,
    testing::Values(Reply{"LineWithoutEnd", {"S- 250 taken", "DROP"}, true},
                    Reply{"BareDigits", {"S- 250", "DROP"}, true},
                    Reply{"LastLineMissing", {"S: 250-taken", "DROP"}, true},
                    Reply{"LastLineCut", {"S: 250-taken", "S- 250 and", "PAUSE 20", "RESET"}, true},
                    Reply{"LastLineNeverComes", {"S: 250-taken", "WAIT"}, true},
                    Reply{"TextRunsOn", {"S: 250taken", "WAIT"}, true},
                    Reply{"TabAfterTheCode", {"S: 250\ttaken", "WAIT"}, true},
                    Reply{"NulInTheText", {"S- 250 ta\\0ken\\r\\n", "WAIT"}, true},
                    Reply{"StrangeSecondDigit", {"S: 299-x", "DROP"}, true},
                    Reply{"OverlongLine", {"S- 250 " + QByteArray(5000, 'x'), "WAIT"}, true},
                    Reply{"SecondLineRefuses", {"S: 250-taken", "S: 550 not taken", "DROP"}, true},
                    Reply{"SecondLineIsNone", {"S: 250-taken", "S: what?", "WAIT"}, true},
                    Reply{"FarewellFollows", {"S: 250 taken", "S: 421 bye", "DROP"}, true},
                    Reply{"TwoDigits", {"S- 25", "DROP"}, false},
                    Reply{"DigitsBehindABlank", {"S-  250 taken\\r\\n", "WAIT"}, false},
                    Reply{"LetterAmongThem", {"S: 2x0 taken", "WAIT"}, false},
                    Reply{"Nothing", {"DROP"}, false},
                    Reply{"RefusalWithoutEnd", {"S- 554 no", "DROP"}, false},
                    Reply{"RefusalWhoseLastLineIsMissing", {"S: 554-no", "DROP"}, false}),
    [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace smtp_kept_test
