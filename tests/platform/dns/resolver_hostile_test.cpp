// SPDX-License-Identifier: GPL-3.0-or-later
// Name servers that lie, stay silent or send rubbish.
#include <gtest/gtest.h>

#include <memory>
#include <QEventLoop>
#include <QSemaphore>
#include <QTimer>

#include "platform/dns/ReplyReader.h"
#include "platform/dns/Resolver.h"
#include "platform/dns/UdpResponder.h"

namespace resolver_hostile_test {

using namespace testing_support;
using dns::Answer;
using dns::Type;

namespace {

constexpr int endless = 3600 * 1000;  // a test that waits for its end fails

/// The query followed by this many IPv4 address records, with a response code.
QByteArray reply(const QByteArray& question, int records, char code = 0) {
    QByteArray answer = question;
    answer[2] = char(0x81);
    answer[3] = char(0x80 | code);
    answer[6] = char(records >> 8);
    answer[7] = char(records);
    for (int i = 0; i < records; ++i)
        answer += QByteArray::fromHex("c00c0001000100000e100004cb007119");
    return answer;
}

UdpResponder::Script answering(std::function<QByteArray(const QByteArray& question)> make) {
    return [make = std::move(make)](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        socket.send(received.back().from, make(received.back().bytes));
    };
}

Answer answerOf(dns::Resolver& resolver, const dns::Question& question = {"uno.example", Type::A}) {
    QEventLoop loop;
    Answer got;
    resolver.ask(question, [&](const Answer& answer) {
        got = answer;
        loop.quit();
    });
    loop.exec();
    return got;
}

Answer ask(const UdpResponder& server, const dns::Resolver::Times& times,
           const dns::Question& question = {"uno.example", Type::A}) {
    dns::Resolver resolver(times);
    resolver.setServers("127.0.0.1:" + QByteArray::number(server.port()));
    return answerOf(resolver, question);
}

TEST(ResolverHostile, GoodReplyIsTaken) {
    const UdpResponder server(answering([](const QByteArray& question) { return reply(question, 1); }));
    EXPECT_EQ(ask(server, {endless, 1, endless}).addresses, QList{QHostAddress("203.0.113.25")});
}

TEST(ResolverHostile, SilenceEndsAfterTheLastTry) {
    const UdpResponder server(silence);
    const Answer answer = ask(server, {50, 2, endless});
    EXPECT_TRUE(answer.failed());
    EXPECT_EQ(answer.why.toStdString(), "il DNS non risponde");
}

TEST(ResolverHostile, DeadlineEndsAQuestionThatIsStillAsked) {
    const UdpResponder server(silence);
    EXPECT_EQ(ask(server, {endless, 1, 50}).why.toStdString(), "il DNS non risponde");
}

TEST(ResolverHostile, LostQuestionIsRepeated) {
    UdpResponder server([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() > 1) socket.send(received.back().from, reply(received.back().bytes, 1));
    });
    EXPECT_EQ(ask(server, {50, 5, endless}).kind, Answer::Kind::Records);
    EXPECT_GE(server.received(2).size(), 2U);
}

TEST(ResolverHostile, ReplyToAnotherQuestionIsNotTaken) {
    const UdpResponder server(answering([](QByteArray question) {
        question[0] = char(question[0] + 1);
        return reply(question, 1);
    }));
    EXPECT_TRUE(ask(server, {50, 2, endless}).failed());
    const UdpResponder other(answering(
        [](const QByteArray& question) { return reply(QByteArray(question).replace("uno", "due"), 1); }));
    EXPECT_TRUE(ask(other, {50, 2, endless}).failed());
}

TEST(ResolverHostile, DatagramWithoutTheBitOfAReplyIsAFailure) {
    const UdpResponder server(answering([](const QByteArray& question) {
        QByteArray noReply = reply(question, 1);
        noReply[2] = 1;
        return noReply;
    }));
    const Answer answer = ask(server, {endless, 1, endless});
    EXPECT_TRUE(answer.failed());
    EXPECT_TRUE(answer.addresses.isEmpty());
    EXPECT_EQ(answer.why.toStdString(), "la risposta del DNS è danneggiata");
}

TEST(ResolverHostile, RubbishIsAFailure) {
    const UdpResponder server(
        answering([](const QByteArray& question) { return reply(question, 1).chopped(3); }));
    EXPECT_TRUE(ask(server, {50, 2, endless}).failed());
    const UdpResponder loops(answering([](const QByteArray& question) {
        QByteArray looping = reply(question, 1);
        return looping.replace(
            QByteArray::fromHex("c00c0001"),
            QByteArray::fromHex("c0") + char(question.size()) + QByteArray::fromHex("0001"));
    }));
    EXPECT_TRUE(ask(loops, {50, 2, endless}).failed());
}

TEST(ResolverHostile, ErrorCodeOfAServerIsAFailureWithASentenceOfItsOwn) {
    struct Said {
        char code;
        const char* why;
    };
    for (const Said& said : {Said{1, "il DNS non capisce la domanda (FORMERR)"},
                             Said{2, "il DNS risponde con un guasto (SERVFAIL)"},
                             Said{4, "il DNS non conosce domande di questo tipo (NOTIMP)"},
                             Said{5, "il DNS rifiuta la domanda (REFUSED)"},
                             Said{9, "il DNS risponde con il codice di errore 9"}}) {
        const UdpResponder server(
            answering([&](const QByteArray& question) { return reply(question, 0, said.code); }));
        const Answer answer = ask(server, {endless, 2, endless});
        EXPECT_TRUE(answer.failed());
        EXPECT_EQ(answer.why.toStdString(), said.why);
    }
}

TEST(ResolverHostile, NextServerIsAskedWhereOneAnswersWithAnErrorCode) {
    const UdpResponder broken(answering([](const QByteArray& question) { return reply(question, 0, 2); }));
    const UdpResponder sound(answering([](const QByteArray& question) { return reply(question, 1); }));
    dns::Resolver resolver({endless, 1, endless});
    resolver.setServers("127.0.0.1:" + QByteArray::number(broken.port()) +
                        ",127.0.0.1:" + QByteArray::number(sound.port()));
    EXPECT_EQ(answerOf(resolver).kind, Answer::Kind::Records);
}

TEST(ResolverHostile, ServerThatIsNotThereHidesNoErrorCodeOfTheNext) {
    const RefusingPort nobody;
    const UdpResponder broken(answering([](const QByteArray& question) { return reply(question, 0, 2); }));
    dns::Resolver resolver({endless, 1, endless});
    resolver.setServers("127.0.0.1:" + QByteArray::number(nobody.port()) +
                        ",127.0.0.1:" + QByteArray::number(broken.port()));
    EXPECT_EQ(answerOf(resolver).why.toStdString(), "il DNS risponde con un guasto (SERVFAIL)");
}

TEST(ResolverHostile, ServerThatFailsAndThenStaysSilentIsWaitedForUntilTheDeadline) {
    const UdpResponder server([](const LoopbackSocket& socket, const std::vector<Datagram>& received) {
        if (received.size() == 1) socket.send(received.back().from, reply(received.back().bytes, 0, 2));
    });
    EXPECT_EQ(ask(server, {endless, 1, 300}).why.toStdString(), "il DNS non risponde");
}

TEST(ResolverHostile, TooManyRecordsAreAFailure) {
    QByteArray question = QByteArray::fromHex("0000010000010000000000000375") + "no" +
                          QByteArray::fromHex("076578616d706c650000010001");
    EXPECT_EQ(dns::readReply(Type::A, reply(question, 100)).addresses.size(), 100);
    EXPECT_TRUE(dns::readReply(Type::A, reply(question, 101)).failed());
}

TEST(ResolverHostile, ReplyWithoutARecordOfTheTypeHasNone) {
    const QByteArray question = QByteArray::fromHex("0000010000010000000000000375") + "no" +
                                QByteArray::fromHex("076578616d706c650000010001");
    for (const Type type : {Type::A, Type::Aaaa, Type::Mx, Type::Txt, Type::Ptr})
        EXPECT_EQ(dns::readReply(type, reply(question, 0)).kind, Answer::Kind::NoRecords) << int(type);
}

TEST(ReverseName, HasTheOctetsOfIPv4AndTheHalfOctetsOfIPv6FromTheLast) {
    EXPECT_EQ(dns::reverseName(QHostAddress("203.0.113.25")), "25.113.0.203.in-addr.arpa");
    EXPECT_EQ(dns::reverseName(QHostAddress("2001:db8::567:89ab")),
              "b.a.9.8.7.6.5.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.8.b.d.0.1.0.0.2.ip6.arpa");
}

TEST(ResolverHostile, NamesThatCannotBeAskedForAreNotThere) {
    const UdpResponder server(silence);
    EXPECT_EQ(ask(server, {endless, 1, endless}, {QByteArray(64, 'a') + ".example", Type::A}).kind,
              Answer::Kind::NoName);
    EXPECT_EQ(ask(server, {endless, 1, endless}, {"a..example", Type::A}).kind, Answer::Kind::NoName);
}

TEST(ResolverHostile, CancelledQuestionIsNeverAnswered) {
    const UdpResponder server(answering([](const QByteArray& question) { return reply(question, 1); }));
    dns::Resolver resolver({endless, 1, endless});
    resolver.setServers("127.0.0.1:" + QByteArray::number(server.port()));
    QEventLoop loop;
    bool first = false;
    resolver.ask({"uno.example", Type::A}, [&](const Answer&) { first = true; });
    resolver.cancel();
    resolver.ask({"due.example", Type::A}, [&](const Answer&) { loop.quit(); });
    loop.exec();
    EXPECT_FALSE(first);
}

TEST(ResolverHostile, AnswerMayDestroyTheResolverAndAskOn) {
    const UdpResponder server(answering([](const QByteArray& question) { return reply(question, 1); }));
    auto resolver = std::make_unique<dns::Resolver>(dns::Resolver::Times{endless, 1, endless});
    resolver->setServers("127.0.0.1:" + QByteArray::number(server.port()));
    QEventLoop loop;
    resolver->ask({"uno.example", Type::A}, [&](const Answer&) {
        resolver->ask({"due.example", Type::A}, [&](const Answer& second) {
            EXPECT_EQ(second.kind, Answer::Kind::Records);
            resolver.reset();
            loop.quit();
        });
    });
    loop.exec();
    EXPECT_EQ(resolver, nullptr);
}

}  // namespace
}  // namespace resolver_hostile_test
