// SPDX-License-Identifier: GPL-3.0-or-later
// The readers and writers of the dialogue that work on bytes alone.
#include <gtest/gtest.h>

#include "platform/mail/DotStuffing.h"
#include "platform/mail/SmtpExtensions.h"
#include "platform/mail/SmtpReply.h"

namespace smtp_reply_test {

using mail::parseSmtpReply;
using State = mail::ReplyParse::State;

namespace {

TEST(SmtpReply, SingleLine) {
    const auto parse = parseSmtpReply("250 ok then\r\n", 0);
    ASSERT_EQ(parse.state, State::Complete);
    EXPECT_EQ(parse.reply.code, 250);
    EXPECT_EQ(parse.reply.text, "ok then");
    EXPECT_EQ(parse.next, 13);
    EXPECT_TRUE(parse.reply.positive());
}

TEST(SmtpReply, SeveralLines) {
    const auto parse = parseSmtpReply("250-one\r\n250-\r\n250 three\r\n", 0);
    ASSERT_EQ(parse.state, State::Complete);
    EXPECT_EQ(parse.reply.text, "one\n\nthree");
}

TEST(SmtpReply, FirstLineEmpty) {
    EXPECT_EQ(parseSmtpReply("250-\r\n250 two\r\n", 0).reply.text, "\ntwo");
}

TEST(SmtpReply, StartsAtTheOffset) {
    const QByteArray bytes = "220 one\r\n354 two\r\n";
    const auto parse = parseSmtpReply(bytes, 9);
    EXPECT_EQ(parse.reply.code, 354);
    EXPECT_TRUE(parse.reply.intermediate());
    EXPECT_EQ(parse.next, bytes.size());
}

TEST(SmtpReply, BareLineFeedEndsALine) {
    const auto parse = parseSmtpReply("250-a\n250 b\n", 0);
    ASSERT_EQ(parse.state, State::Complete);
    EXPECT_EQ(parse.reply.text, "a\nb");
}

TEST(SmtpReply, CodeAlone) {
    EXPECT_EQ(parseSmtpReply("354\r\n", 0).reply.code, 354);
}

TEST(SmtpReply, LastCodeCounts) {
    EXPECT_EQ(parseSmtpReply("250-a\r\n550 b\r\n", 0).reply.code, 550);
}

TEST(SmtpReply, EveryPrefixIsIncomplete) {
    const QByteArray whole = "250-one\r\n250 two\r\n";
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_EQ(parseSmtpReply(whole.left(size), 0).state, State::Incomplete) << size;
}

TEST(SmtpReply, WithoutACode) {
    for (const char* line : {"hello\r\n", "\r\n", "25\r\n", "2x0 a\r\n", "150 a\r\n", "650 a\r\n",
                             "2500 a\r\n", "250a\r\n", " 250 a\r\n", "250-a\r\nb\r\n"})
        EXPECT_EQ(parseSmtpReply(line, 0).state, State::Malformed) << line;
}

TEST(SmtpReply, NulIsMalformed) {
    EXPECT_EQ(parseSmtpReply(QByteArray("250 a\0b\r\n", 9), 0).state, State::Malformed);
}

TEST(SmtpReply, LineAndReplyAreBounded) {
    const QByteArray full = "250 " + QByteArray(mail::maxReplyLine - 6, 'x') + "\r\n";
    EXPECT_EQ(parseSmtpReply(full, 0).state, State::Complete);
    EXPECT_EQ(parseSmtpReply("250 x" + full.mid(4), 0).state, State::Malformed);
    EXPECT_EQ(parseSmtpReply(QByteArray(mail::maxReplyLine + 1, '2'), 0).state, State::Malformed);
    EXPECT_EQ(parseSmtpReply(QByteArray("250-xx\r\n").repeated(mail::maxReplySize / 8 + 1), 0).state,
              State::Malformed);
}

TEST(SmtpReply, PrintableTextHasNoControlCharacters) {
    EXPECT_EQ(mail::printable("a\r\nb\tc\x1b[0m\x7f"), QStringLiteral("a  b c [0m "));
    EXPECT_EQ(mail::printable("\xC2\x85"
                              "è"),
              QStringLiteral(" è"));
    EXPECT_EQ(mail::printable("\xE2\x80\xA8"), QStringLiteral(" "));
}

TEST(SmtpExtensions, AreReadWithoutCase) {
    const auto offered = mail::SmtpExtensions::read(
        "pipelining\nPipelining\nsize 1000\n8bitmime\nSTARTTLS\nsmtputf8\nauth plain Login");
    EXPECT_TRUE(offered.pipelining && offered.size && offered.eightBitMime && offered.startTls &&
                offered.smtputf8);
    EXPECT_EQ(offered.auth, (QByteArrayList{"PLAIN", "LOGIN"}));
}

TEST(SmtpExtensions, GreetingLineOffersNothing) {
    EXPECT_FALSE(mail::SmtpExtensions::read("STARTTLS").startTls);
    EXPECT_FALSE(mail::SmtpExtensions::read("").startTls);
    EXPECT_FALSE(mail::SmtpExtensions::read("a\n\n  \nXSTARTTLS").startTls);
}

TEST(SmtpReply, ThreeDigitsAreAnAcceptance) {
    for (const char* reply : {"250", "250 ok\r\n", "250-ok\r\n550 no", "200", "299x", "2500", "250\t"})
        EXPECT_TRUE(mail::isAcceptance(reply)) << reply;
    for (const char* reply :
         {"", "2", "25", "2 50", " 250", "2a0", "25\xc2\xb2", "550", "354 250", "150", "\r\n250"})
        EXPECT_FALSE(mail::isAcceptance(reply)) << reply;
    EXPECT_EQ(mail::acceptanceCode("251-forwarded"), 251);
}

QByteArray stuffed(const QByteArray& data, qsizetype limit) {
    QByteArray all;
    for (qsizetype offset = 0; offset < data.size();)
        all += mail::stuffedPiece(data, offset, limit);
    return all;
}

TEST(DotStuffing, IsTheSameForEveryPieceSize) {
    const std::pair<QByteArray, QByteArray> rows[] = {
        {".", ".."},
        {".\r\n", "..\r\n"},
        {"..\r\n..\r\n", "...\r\n...\r\n"},
        {"a.b\r\n.c\r\n", "a.b\r\n..c\r\n"},
        {"a\r\n.\r\nQUIT\r\n", "a\r\n..\r\nQUIT\r\n"},
        {"a\r\n\r\n.\r\n.\r\n", "a\r\n\r\n..\r\n..\r\n"},
        {"no dots at all\r\n", "no dots at all\r\n"},
        {"", ""},
    };
    for (const auto& [data, expected] : rows) {
        for (qsizetype limit = 1; limit <= data.size() + 1; ++limit)
            EXPECT_EQ(stuffed(data, limit), expected) << limit;
    }
}

}  // namespace

}  // namespace smtp_reply_test
