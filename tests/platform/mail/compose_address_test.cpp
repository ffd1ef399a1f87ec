// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/AddrSpec.h"

#include <gtest/gtest.h>

namespace compose_address_test {

using mail::parseAddrSpec;

namespace {

QByteArray addressOf(const QString& text) {
    const auto mailbox = parseAddrSpec(text);
    return mailbox.ok() ? mailbox.value().address() : QByteArray("refused");
}

TEST(AddrSpec, PlainAddressStaysAsItIs) {
    EXPECT_EQ(addressOf("Mario.Rossi+list@Example.IT"), "Mario.Rossi+list@Example.IT");
    EXPECT_EQ(addressOf("o'brien@example.it"), "o'brien@example.it");
    EXPECT_EQ(addressOf("a@localhost"), "a@localhost");
    EXPECT_EQ(addressOf("a@under_score.example.it"), "a@under_score.example.it");
}

TEST(AddrSpec, BlanksAtTheEndsAreDropped) {
    EXPECT_EQ(addressOf("  a@example.it "), "a@example.it");
}

TEST(AddrSpec, InternationalDomainBecomesALabels) {
    const auto mailbox = parseAddrSpec(QStringLiteral("info@caffè.example"));
    ASSERT_TRUE(mailbox.ok());
    EXPECT_EQ(mailbox.value().domain, "xn--caff-8oa.example");
    EXPECT_FALSE(mailbox.value().needsSmtputf8);
}

TEST(AddrSpec, NonAsciiLocalPartIsUtf8AndFlagged) {
    const auto mailbox = parseAddrSpec(QStringLiteral("perché@example.it"));
    ASSERT_TRUE(mailbox.ok());
    EXPECT_EQ(mailbox.value().localPart, QStringLiteral("perché").toUtf8());
    EXPECT_TRUE(mailbox.value().needsSmtputf8);
}

TEST(AddrSpec, QuotedLocalPartKeepsItsQuotes) {
    EXPECT_EQ(addressOf("\"a b@c\"@example.it"), "\"a b@c\"@example.it");
    EXPECT_EQ(addressOf("\"a\\\"b\"@example.it"), "\"a\\\"b\"@example.it");
    EXPECT_EQ(addressOf("\"a\\\"@example.it"), "refused");
    EXPECT_EQ(addressOf("\"a\"b\"@example.it"), "refused");
}

TEST(AddrSpec, DomainLiteralIsTaken) {
    EXPECT_EQ(addressOf("a@[192.0.2.1]"), "a@[192.0.2.1]");
    EXPECT_EQ(addressOf("a@[IPv6:2001:db8::1]"), "a@[IPv6:2001:db8::1]");
    EXPECT_EQ(addressOf("a@[192.0.2.1"), "refused");
    EXPECT_EQ(addressOf("a@[]"), "refused");
    EXPECT_EQ(addressOf("a@[a b]"), "refused");
}

TEST(AddrSpec, WhatIsNotOneAddressIsRefused) {
    for (const char* text : {"",
                             " ",
                             "@",
                             "a",
                             "a@",
                             "@b.it",
                             "a@b@c.it",
                             "a b@c.it",
                             "a@b.it,c@d.it",
                             "a@b.it;c@d.it",
                             "a@b.it c@d.it",
                             "Mario <a@b.it>",
                             "<a@b.it>",
                             "list: a@b.it;",
                             "a(comment)@b.it",
                             "a@b.it (comment)",
                             ".a@b.it",
                             "a.@b.it",
                             "a..b@c.it",
                             "a@.b.it",
                             "a@b..it",
                             "a@b.it.",
                             "a@-b.it",
                             "a@b-.it",
                             "a@b.it>",
                             "a@b.it SIZE=1",
                             "a\\b@c.it",
                             "a@b.it\\",
                             "a@b/c.it",
                             "a@b.it\"",
                             "a@b%c.it"}) {
        EXPECT_EQ(addressOf(QString::fromLatin1(text)), "refused") << text;
    }
}

TEST(AddrSpec, ControlCharactersAreRefusedAnywhere) {
    const QString control =
        QString(QChar(0)) + u'\r' + u'\n' + u'\t' + QChar(0x7F) + QChar(0x85) + QChar(0x2028);
    for (const QChar c : control) {
        EXPECT_EQ(addressOf(QString("a@example.it") + c), "refused") << int(c.unicode());
        EXPECT_EQ(addressOf(c + QString("a@example.it")), "refused") << int(c.unicode());
        EXPECT_EQ(addressOf(QString("\"a") + c + "\"@example.it"), "refused") << int(c.unicode());
    }
    EXPECT_EQ(addressOf("a@example.it\r\nBcc: b@example.it"), "refused");
}

TEST(AddrSpec, LoneSurrogateIsRefused) {
    EXPECT_EQ(addressOf(QString(QChar(0xD800)) + "@example.it"), "refused");
}

TEST(AddrSpec, LengthIsBounded) {
    const QString domain = "@" + QString(60, 'd') + ".example.it";
    EXPECT_NE(addressOf(QString(254 - domain.size(), 'a') + domain), "refused");
    EXPECT_EQ(addressOf(QString(255 - domain.size(), 'a') + domain), "refused");
    EXPECT_EQ(addressOf("a@" + QString(64, 'd') + ".it"), "refused");
    EXPECT_EQ(addressOf(QString(1000000, 'a') + "@b.it"), "refused");
}

}  // namespace

}  // namespace compose_address_test
