// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/SpfRecord.h"

#include <gtest/gtest.h>

namespace spf_record_test {

using namespace policy::spf;

namespace {

bool isValid(const QByteArray& terms) {
    return readRecord("v=spf1" + (terms.isEmpty() ? terms : ' ' + terms)).record.has_value();
}

TEST(SpfRecord, OnlyTheExactVersionMakesOne) {
    EXPECT_TRUE(isSpfRecord("v=spf1"));
    EXPECT_TRUE(isSpfRecord("V=SPF1 -all"));
    EXPECT_FALSE(isSpfRecord("v=spf10"));
    EXPECT_FALSE(isSpfRecord(" v=spf1"));
    EXPECT_FALSE(isSpfRecord("v=spf1\t-all"));
    EXPECT_FALSE(isSpfRecord("v=spf"));
}

TEST(SpfRecord, EveryMechanismIsRead) {
    const auto read = readRecord(
        "v=spf1 ?a A/24 a:h.example/24//64 mx//64 ~mx:m.example ptr ptr:p.example ip4:192.0.2.0/24 "
        "ip6:2001:db8::/32 exists:%{ir}.x.example include:i.example  -all ");
    ASSERT_TRUE(read.record);
    const auto& all = read.record->directives;
    ASSERT_EQ(all.size(), 12);
    EXPECT_EQ(all[0].qualifier, Result::Neutral);
    EXPECT_EQ(all[1].prefixLength4, 24);
    EXPECT_EQ(all[2].domain, "h.example");
    EXPECT_EQ(all[2].prefixLength4, 24);
    EXPECT_EQ(all[2].prefixLength6, 64);
    EXPECT_EQ(all[3].prefixLength4, 32);
    EXPECT_EQ(all[3].prefixLength6, 64);
    EXPECT_EQ(all[4].qualifier, Result::SoftFail);
    EXPECT_EQ(all[6].domain, "p.example");
    EXPECT_EQ(all[7].network, QHostAddress("192.0.2.0"));
    EXPECT_EQ(all[7].prefixLength4, 24);
    EXPECT_EQ(all[8].prefixLength6, 32);
    EXPECT_EQ(all[9].mechanism, Mechanism::Exists);
    EXPECT_EQ(all[11].mechanism, Mechanism::All);
    EXPECT_EQ(all[11].qualifier, Result::Fail);
    EXPECT_EQ(all[11].text, "-all");
}

TEST(SpfRecord, ModifiersMayBeAnywhereAndOthersAreLeftOut) {
    const auto read = readRecord("v=spf1 exp=e.example future=any%{d}thing -all redirect=r.example");
    ASSERT_TRUE(read.record);
    EXPECT_EQ(read.record->explanation, QByteArray("e.example"));
    EXPECT_EQ(read.record->redirect, QByteArray("r.example"));
    EXPECT_EQ(read.record->directives.size(), 1);
}

TEST(SpfRecord, FirstFaultyTermIsReported) {
    const auto read = readRecord("v=spf1 a ipv4:192.0.2.1 -al");
    EXPECT_FALSE(read.record);
    EXPECT_EQ(read.faultyTerm, "ipv4:192.0.2.1");
}

TEST(SpfRecord, FaultsMakeItVoid) {
    for (const char* terms : {"all:x.example",
                              "all/24",
                              "include",
                              "include:",
                              "include:x.example/24",
                              "a:",
                              "a:x",
                              "a:x.123",
                              "a:x.example-",
                              "a/33",
                              "a/024",
                              "a//129",
                              "a/24/64",
                              "mx:x.example/",
                              "ptr/24",
                              "ip4",
                              "ip4:192.0.2",
                              "ip4:192.0.2.256",
                              "ip4:192.0.2.01",
                              "ip4:192.0.2.0/",
                              "ip4:::1",
                              "ip6:192.0.2.1",
                              "ip6:2001:db8::/129",
                              "ip6:::1%lo",
                              "exists",
                              "exists:%{x}",
                              "exists:%{d",
                              "exists:%",
                              "exists:%{d0}.x",
                              "exists:%{c}.example",
                              "redirect=",
                              "redirect=x.example redirect=x.example",
                              "exp=e.example exp=e.example",
                              "=x",
                              "1a=b",
                              "-",
                              "+-all",
                              "-redirect=x.example",
                              "a\t-all",
                              "\xc3\xa8",
                              "future=%{",
                              "all.",
                              "-all;"})
        EXPECT_FALSE(isValid(terms)) << terms;
}

TEST(SpfRecord, WhatLooksOddIsAllowed) {
    for (const char* terms : {"", "a:x.example.", "a:%{d}", "a:%{d1r+-}", "exists:%{L}.%{O}.example",
                              "a:a/b.example/24", "future=", "a:x.1-a", "mx:x.xn--p1ai", "ip4:0.0.0.0/0"})
        EXPECT_TRUE(isValid(terms)) << terms;
}

}  // namespace
}  // namespace spf_record_test
