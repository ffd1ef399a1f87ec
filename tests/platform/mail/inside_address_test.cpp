// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/InsideAddress.h"

#include <gtest/gtest.h>

namespace inside_address_test {

using mail::isPublicAddress;

namespace {

TEST(PublicAddress, WhatIsGivenOutToEverybodyIsPublic) {
    for (const char* address :
         {"1.1.1.1",         "9.255.255.255",        "11.0.0.0",       "100.63.255.255",
          "100.128.0.0",     "126.255.255.255",      "128.0.0.0",      "169.253.255.255",
          "169.255.0.0",     "172.15.255.255",       "172.32.0.0",     "192.0.1.0",
          "192.167.255.255", "192.169.0.0",          "198.17.255.255", "198.20.0.0",
          "223.255.255.255", "2001:4860:4860::8888", "2a00:1450::1",   "3fff::1",
          "64:ff9b::808:808"})
        EXPECT_TRUE(isPublicAddress(QHostAddress(QLatin1String(address)))) << address;
}

TEST(PublicAddress, InsideAndReservedOnesAreNot) {
    for (const char* address : {"0.0.0.0",
                                "0.1.2.3",
                                "10.0.0.1",
                                "10.255.255.255",
                                "100.64.0.0",
                                "100.127.255.255",
                                "127.0.0.1",
                                "127.255.255.255",
                                "169.254.0.0",
                                "169.254.169.254",
                                "172.16.0.0",
                                "172.31.255.255",
                                "192.0.0.8",
                                "192.168.0.0",
                                "192.168.255.255",
                                "198.18.0.1",
                                "224.0.0.1",
                                "239.255.255.255",
                                "240.0.0.1",
                                "255.255.255.255",
                                "::",
                                "::1",
                                "fe80::1",
                                "feb0::1",
                                "fec0::1",
                                "fc00::1",
                                "fdff::1",
                                "ff02::1",
                                "100::1",
                                "4000::1"})
        EXPECT_FALSE(isPublicAddress(QHostAddress(QLatin1String(address)))) << address;
    EXPECT_FALSE(isPublicAddress(QHostAddress()));
}

TEST(PublicAddress, Ipv4InsideIpv6IsNoWayRound) {
    for (const char* address :
         {"::ffff:127.0.0.1", "::ffff:8.8.8.8", "::127.0.0.1", "::8.8.8.8", "64:ff9b::7f00:1",
          "64:ff9b::c0a8:101", "64:ff9b:1::808:808", "2002:7f00:1::1", "2002:808:808::1", "2001:0:808:808::1",
          "::ffff:0:127.0.0.1"})
        EXPECT_FALSE(isPublicAddress(QHostAddress(QLatin1String(address)))) << address;
}

}  // namespace

}  // namespace inside_address_test
