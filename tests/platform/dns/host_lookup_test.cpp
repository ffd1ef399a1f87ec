// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/HostLookup.h"

#include <gtest/gtest.h>

#include <netdb.h>
#include <netinet/in.h>

namespace host_lookup_test {

namespace {

TEST(HostLookup, AddressIsReadInHostByteOrder) {
    EXPECT_EQ(dns::addressFromText(QStringLiteral("192.0.2.7")), 0xC0000207U);
    EXPECT_EQ(dns::addressFromText(QStringLiteral("127.1")), 0x7F000001U);
}

TEST(HostLookup, WhatIsNoAddressIsNone) {
    for (const char* text : {"", "router", "192.0.2.256", "192.0.2.1.5", "2001:db8::1", "255.255.255.255"}) {
        EXPECT_EQ(dns::addressFromText(QString::fromLatin1(text)), std::nullopt) << text;
    }
    EXPECT_EQ(dns::addressFromText(QString(QChar(0x0661))), std::nullopt);
}

TEST(HostLookup, OwnHostHasTheLoopbackAddress) {
    EXPECT_EQ(dns::addressOfHost(QStringLiteral("localhost")), 0x7F000001U);
}

TEST(HostLookup, EmptyNameHasNoAddress) {
    EXPECT_EQ(dns::addressOfHost(QString()), std::nullopt);
}

TEST(HostLookup, NameOfAnAddressIsWhatTheSystemKnows) {
    const in_addr loopback{htonl(INADDR_LOOPBACK)};
    const hostent* known = ::gethostbyaddr(&loopback, sizeof loopback, AF_INET);
    EXPECT_EQ(dns::nameOfAddress(INADDR_LOOPBACK),
              known == nullptr ? QByteArray() : QByteArray(known->h_name));
}

}  // namespace

}  // namespace host_lookup_test
