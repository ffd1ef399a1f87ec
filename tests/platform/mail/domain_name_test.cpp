// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DomainName.h"

#include <gtest/gtest.h>

namespace domain_name_test {

using mail::connectableHost;

namespace {

TEST(ConnectableHost, NamesAndAddressesStay) {
    for (const char* name : {"mx.example.it", "localhost", "mx_1.example.it", "3com.example", "a-b.c",
                             "192.0.2.1", "::1", "2001:db8::25", "xn--caff-8oa.example"})
        EXPECT_EQ(connectableHost(name), name);
}

TEST(ConnectableHost, BlanksAtTheEndsAndAFinalPointAreDropped) {
    EXPECT_EQ(connectableHost("  mx.example.it "), "mx.example.it");
    EXPECT_EQ(connectableHost("mx.example.it."), "mx.example.it");
}

TEST(ConnectableHost, InternationalNameBecomesALabels) {
    EXPECT_EQ(connectableHost(QStringLiteral("posta.caffè.example")), "posta.xn--caff-8oa.example");
}

TEST(ConnectableHost, WhatIsNoHostIsEmpty) {
    for (const char* name : {"",
                             " ",
                             ".",
                             "..",
                             ".example.it",
                             "example..it",
                             "mx.example.it..",
                             "mx example.it",
                             "mx.example.it\r\n",
                             "mx\texample.it",
                             "mx.example.it\r\nRSET",
                             "mx/example.it",
                             "user@example.it",
                             "mx.example.it:25",
                             "<mx.example.it>",
                             "mx,example.it",
                             "-mx.example.it",
                             "mx-.example.it",
                             "mx.example.it; QUIT",
                             "%1",
                             "[192.0.2.1]",
                             "\"mx\".example.it",
                             "mx\\.example.it",
                             "2130706433",
                             "0x7f000001",
                             "example.0x7f",
                             "1.2.3.4.5",
                             "999.1.1.1",
                             "fe80::1%a b",
                             "mx.example.it#"})
        EXPECT_EQ(connectableHost(QString::fromLatin1(name)), "") << name;
}

TEST(ConnectableHost, ControlCharactersAreRefusedAnywhere) {
    for (int c = 0; c < 0xA0; c == 0x1F ? c = 0x7F : ++c) {
        EXPECT_EQ(connectableHost(QString("mx") + QChar(c) + "example.it"), "") << c;
        EXPECT_EQ(connectableHost(QString("mx.example.it") + QChar(c)), "") << c;
        EXPECT_EQ(connectableHost(QChar(c) + QString("mx.example.it")), "") << c;
    }
}

TEST(ConnectableHost, LengthIsBounded) {
    const QString label(63, 'a');
    const QString longest = label + '.' + label + '.' + label + '.' + QString(61, 'b');
    EXPECT_EQ(connectableHost(longest), longest);
    EXPECT_EQ(connectableHost(longest + 'b'), "");
    EXPECT_EQ(connectableHost(label + "a.it"), "");
    EXPECT_EQ(connectableHost(QString(2000000, 'x')), "");
    EXPECT_EQ(connectableHost(QStringLiteral("è").repeated(300) + ".it"), "");
}

}  // namespace

}  // namespace domain_name_test
