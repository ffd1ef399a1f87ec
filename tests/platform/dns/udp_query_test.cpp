// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/UdpQuery.h"

#include <gtest/gtest.h>

#include <chrono>
#include <QDir>

#include "platform/dns/UdpResponder.h"

namespace udp_query_test {

using namespace std::chrono_literals;
using namespace testing_support;
using dns::UdpQuery;

namespace {

// Long enough for an answer on a busy machine, in tests that wait for one time-out.
constexpr auto oneWait = 1000ms;
// Far beyond what a test may last: a test that waits for its end fails.
constexpr auto endless = std::chrono::minutes(60);

qsizetype openDescriptors() {
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

TEST(UdpQuery, QuestionAndAnswerPassUnchanged) {
    UdpResponder server(always(QByteArray("an\0swer", 7)));
    UdpQuery query(endless);
    ASSERT_TRUE(query.isOpen());
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), QByteArray("ques\0tion", 9)).ok());
    const auto answer = query.receive(2048);
    ASSERT_TRUE(answer.ok());
    EXPECT_EQ(answer.value(), QByteArray("an\0swer", 7));
    const auto questions = server.received(1);
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_EQ(questions[0].bytes, QByteArray("ques\0tion", 9));
}

TEST(UdpQuery, LostQuestionIsRepeatedOnce) {
    UdpResponder server([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() == 2) socket.send(received.back().from, "answer");
    });
    UdpQuery query(oneWait);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), "question").ok());
    const auto answer = query.receive(2048);
    ASSERT_TRUE(answer.ok());
    EXPECT_EQ(answer.value(), "answer");
    const auto questions = server.received(2);
    EXPECT_EQ(questions[1].bytes, "question");
    EXPECT_EQ(questions[1].from.sin_port, questions[0].from.sin_port);
}

TEST(UdpQuery, SilentServerIsAFailureAfterTwoQuestions) {
    UdpResponder server(silence);
    UdpQuery query(50ms);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), "question").ok());
    const auto answer = query.receive(2048);
    ASSERT_FALSE(answer.ok());
    EXPECT_EQ(answer.status().code(), ErrorCode::Timeout);
    EXPECT_FALSE(answer.status().text().isEmpty());
    EXPECT_EQ(server.received(2).size(), 2U);
}

TEST(UdpQuery, QuestionIsAskedAsOftenAsTheCallerSays) {
    UdpResponder server(silence);
    UdpQuery query(50ms, 1);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), "question").ok());
    EXPECT_EQ(query.receive(2048).status().code(), ErrorCode::Timeout);
    UdpQuery next(50ms, 1);
    ASSERT_TRUE(next.send(INADDR_LOOPBACK, server.port(), "end").ok());
    const auto questions = server.received(2);
    ASSERT_EQ(questions.size(), 2U);
    EXPECT_EQ(questions[1].bytes, "end");
}

TEST(UdpQuery, RefusalIsSeenWithoutWaiting) {
    const RefusingPort nobody;
    UdpQuery query(endless);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, nobody.port(), "question").ok());
    EXPECT_EQ(query.receive(2048).status().code(), ErrorCode::DeviceIo);
}

TEST(UdpQuery, OnlyTheServerIsHeard) {
    const LoopbackSocket stranger;
    UdpResponder server([&](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        stranger.send(received.back().from, "forged");
        socket.send(received.back().from, "answer");
    });
    UdpQuery query(endless);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), "question").ok());
    const auto answer = query.receive(2048);
    ASSERT_TRUE(answer.ok());
    EXPECT_EQ(answer.value(), "answer");
}

TEST(UdpQuery, LongAnswerIsCut) {
    UdpResponder server(always(QByteArray(3000, 'x')));
    UdpQuery query(endless);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), "question").ok());
    const auto answer = query.receive(2048);
    ASSERT_TRUE(answer.ok());
    EXPECT_EQ(answer.value(), QByteArray(2048, 'x'));
}

TEST(UdpQuery, EmptyAnswerIsAnAnswer) {
    UdpResponder server(always(""));
    UdpQuery query(endless);
    ASSERT_TRUE(query.send(INADDR_LOOPBACK, server.port(), "question").ok());
    const auto answer = query.receive(2048);
    ASSERT_TRUE(answer.ok());
    EXPECT_TRUE(answer.value().isEmpty());
}

TEST(UdpQuery, QuestionThatIsTooLongIsNotSent) {
    const LoopbackSocket server;
    UdpQuery query(endless);
    EXPECT_EQ(query.send(INADDR_LOOPBACK, server.port(), QByteArray(70000, 'x')).code(), ErrorCode::DeviceIo);
}

TEST(UdpQuery, SocketIsClosedWithTheObject) {
    const qsizetype before = openDescriptors();
    {
        const UdpQuery query;
        EXPECT_EQ(openDescriptors(), before + 1);
    }
    EXPECT_EQ(openDescriptors(), before);
}

}  // namespace

}  // namespace udp_query_test
