// SPDX-License-Identifier: GPL-3.0-or-later
// The limits of RFC 7208 4.6.4, from both sides.
#include <gtest/gtest.h>

#include "platform/policy/spf_support.h"

namespace spf_limits_test {

using namespace policy::spf;
using namespace testing_support;

namespace {

const QByteArray domain = "example.it";

QByteArray number(int i) {
    return QByteArray::number(i);
}

/// A record with that many terms that look something up, each of which finds a record and does not match.
Zone terms(int count) {
    Zone zone;
    QByteArray text = "v=spf1";
    for (int i = 0; i < count; ++i) {
        text += " a:h" + number(i) + ".example";
        zone.address("h" + number(i) + ".example", "192.0.2.200");
    }
    return zone.txt(domain, text + " +all");
}

TEST(SpfLimits, TenLookupsAreAllowedAndElevenAreNot) {
    const Verdict ten = spfVerdict(terms(10), "192.0.2.1", domain);
    EXPECT_EQ(ten.result, Result::Pass);
    EXPECT_EQ(ten.lookups, 10);
    const Verdict eleven = spfVerdict(terms(11), "192.0.2.1", domain);
    EXPECT_EQ(eleven.result, Result::PermError);
    EXPECT_EQ(eleven.fault, Fault::TooManyLookups);
    EXPECT_EQ(eleven.term, "a:h10.example");
}

TEST(SpfLimits, LookupsOfIncludedRecordsCount) {
    Zone zone;
    zone.txt(domain, "v=spf1 include:i.example a:g.example +all").address("g.example", "192.0.2.200");
    QByteArray text = "v=spf1";
    for (int i = 0; i < 9; ++i) {
        text += " mx:h" + number(i) + ".example";
        zone.mx("h" + number(i) + ".example", "mx.example").address("mx.example", "192.0.2.200");
    }
    zone.txt("i.example", text);
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain).fault, Fault::TooManyLookups);
}

TEST(SpfLimits, RecordsThatIncludeEachOtherEnd) {
    const Zone zone = Zone()
                          .txt(domain, "v=spf1 include:altro.example -all")
                          .txt("altro.example", "v=spf1 include:example.it -all");
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain).fault, Fault::TooManyLookups);
    EXPECT_EQ(spfVerdict(Zone().txt(domain, "v=spf1 redirect=example.it"), "192.0.2.1", domain).fault,
              Fault::TooManyLookups);
}

TEST(SpfLimits, ExplanationIsNoLookup) {
    Zone zone;
    QByteArray text = "v=spf1 exp=e.example";
    for (int i = 0; i < 10; ++i) {
        text += " a:h" + number(i) + ".example";
        zone.address("h" + number(i) + ".example", "192.0.2.200");
    }
    zone.txt(domain, text + " -all").txt("e.example", "why");
    const Verdict verdict = spfVerdict(zone, "192.0.2.1", domain);
    EXPECT_EQ(verdict.result, Result::Fail);
    EXPECT_EQ(verdict.explanation, "why");
}

TEST(SpfLimits, TwoVoidLookupsAreAllowedAndThreeAreNot) {
    const QByteArray two = "v=spf1 a:n1.example exists:n2.example";
    EXPECT_EQ(spfVerdict(Zone().txt(domain, two + " +all"), "192.0.2.1", domain).result, Result::Pass);
    const Verdict three = spfVerdict(Zone().txt(domain, two + " mx:n3.example +all"), "192.0.2.1", domain);
    EXPECT_EQ(three.result, Result::PermError);
    EXPECT_EQ(three.fault, Fault::TooManyVoids);
    // A name without records of the type counts as void, as does a missing name
    const Zone other = Zone().txt(domain, two + " a:n3.example +all").txt("n3.example", "no address here");
    EXPECT_EQ(spfVerdict(other, "192.0.2.1", domain).fault, Fault::TooManyVoids);
}

TEST(SpfLimits, ExchangersWithoutAddressesAreVoid) {
    Zone zone;
    zone.txt(domain, "v=spf1 mx +all");
    for (int i = 0; i < 3; ++i)
        zone.mx(domain, "m" + number(i) + ".example");
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain).fault, Fault::TooManyVoids);
}

TEST(SpfLimits, TenExchangersAreAllowedAndElevenAreNot) {
    for (const int count : {10, 11}) {
        Zone zone;
        zone.txt(domain, "v=spf1 mx -all");
        for (int i = 0; i < count; ++i)
            zone.mx(domain, "m" + number(i) + ".example")
                .address("m" + number(i) + ".example", "192.0.2.200");
        const Verdict verdict = spfVerdict(zone, "192.0.2.1", domain);
        EXPECT_EQ(verdict.result, count == 10 ? Result::Fail : Result::PermError);
        EXPECT_EQ(verdict.fault, count == 10 ? Fault::None : Fault::TooManyExchangers);
    }
}

TEST(SpfLimits, RecordOfAnyLengthEndsInAVerdict) {
    QByteArray text = "v=spf1";
    while (text.size() < 16 * 1024)
        text += " ip4:198.51.100.1";
    EXPECT_EQ(spfVerdict(Zone().txt(domain, text), "192.0.2.1", domain).fault, Fault::TooLong);
}

TEST(SpfLimits, WorstRecordAsksBoundedly) {
    // Ten terms with ten exchangers each, which is all that the limits leave
    Zone zone;
    QByteArray text = "v=spf1";
    for (int i = 0; i < 10; ++i) {
        const QByteArray host = "h" + number(i) + ".example";
        text += " mx:" + host;
        for (int j = 0; j < 10; ++j)
            zone.mx(host, "m" + number(j) + '.' + host).address("m" + number(j) + '.' + host, "192.0.2.9");
    }
    zone.txt(domain, text);
    policy::spf::Client client;
    client.address = QHostAddress("192.0.2.1");
    dns::Answers known;
    zone.follow<Verdict>([&](const dns::Answers& answers) { return check(client, domain, answers); }, known);
    EXPECT_EQ(known.size(), 111U);
}

}  // namespace
}  // namespace spf_limits_test
