// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/DmarcRecord.h"

#include <gtest/gtest.h>

#include "platform/policy/OrganizationalDomain.h"
#include "platform/policy/Zone.h"

namespace dmarc_record_test {

using namespace policy;
using namespace policy::dmarc;
using testing_support::Zone;

namespace {

Finding findingOf(const Zone& zone, const QByteArray& domain) {
    dns::Answers known;
    return zone.follow<Finding>([&](const dns::Answers& answers) { return find(domain, answers); }, known);
}

TEST(DmarcRecord, OnlyTheExactVersionInFrontMakesOne) {
    for (const char* text : {"v=DMARC1;", "v=DMARC1; p=none", "v = DMARC1 ; p=none"})
        EXPECT_TRUE(isDmarcRecord(text)) << text;
    for (const char* text : {"", "v=DMARC1", "v=dmarc1; p=none", "p=none; v=DMARC1;", " v=DMARC1; p=none",
                             "v=DMARC12; p=none", "v=spf1 -all"})
        EXPECT_FALSE(isDmarcRecord(text)) << text;
}

TEST(DmarcRecord, EveryTagIsRead) {
    const auto record = readRecord(
        "v=DMARC1; p=Reject; sp=quarantine; adkim=s; aspf=s; pct=20; rua=mailto:a@example.it; ruf=x; fo=1");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->policy, Policy::Reject);
    EXPECT_EQ(record->subdomainPolicy, Policy::Quarantine);
    EXPECT_TRUE(record->strictDkim);
    EXPECT_TRUE(record->strictSpf);
    EXPECT_EQ(record->percent, 20);
    EXPECT_EQ(record->reportsTo, "mailto:a@example.it");
}

TEST(DmarcRecord, WhatIsLeftOutOrWrongHasItsDefault) {
    const auto record = readRecord("v=DMARC1; p=quarantine; adkim=x; pct=101; ; what; =; \xc3\xa8=1");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->subdomainPolicy, Policy::Quarantine);
    EXPECT_FALSE(record->strictDkim);
    EXPECT_FALSE(record->strictSpf);
    EXPECT_EQ(record->percent, 100);
}

TEST(DmarcRecord, WithoutAPolicyItCountsAsNoneWhereItAsksForReports) {
    EXPECT_FALSE(readRecord("v=DMARC1;"));
    EXPECT_FALSE(readRecord("v=DMARC1; p=nothing"));
    EXPECT_FALSE(readRecord("v=DMARC1; p=reject; sp=x"));
    const auto record = readRecord("v=DMARC1; p=rejct; rua=mailto:a@example.it");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->policy, Policy::None);
}

TEST(DmarcRecord, DomainsOwnRecordGoesFirst) {
    const Zone zone = Zone()
                          .txt("_dmarc.posta.example.it", "v=DMARC1; p=none")
                          .txt("_dmarc.example.it", "v=DMARC1; p=reject");
    const Finding finding = findingOf(zone, "posta.example.it");
    EXPECT_EQ(finding.kind, Finding::Kind::Found);
    EXPECT_EQ(finding.domain, "posta.example.it");
    EXPECT_EQ(finding.applied, Policy::None);
}

TEST(DmarcRecord, BelowItThePolicyForSubdomainsCounts) {
    const Zone zone = Zone().txt("_dmarc.example.co.uk", "v=DMARC1; p=reject; sp=quarantine");
    const Finding finding = findingOf(zone, "a.b.example.co.uk");
    EXPECT_EQ(finding.kind, Finding::Kind::Found);
    EXPECT_EQ(finding.domain, "example.co.uk");
    EXPECT_EQ(finding.applied, Policy::Quarantine);
    EXPECT_EQ(findingOf(zone, "example.co.uk").applied, Policy::Reject);
}

TEST(DmarcRecord, OthersAtTheSameNameDoNotCountAndTwoAreOneTooMany) {
    Zone zone;
    zone.txt("_dmarc.example.it", "hello").txt("_dmarc.example.it", "v=DMARC1; p=none");
    EXPECT_EQ(findingOf(zone, "example.it").kind, Finding::Kind::Found);
    zone.txt("_dmarc.example.it", "v=DMARC1; p=none");
    EXPECT_EQ(findingOf(zone, "example.it").kind, Finding::Kind::Several);
}

TEST(DmarcRecord, NothingAndNoAnswerAreDistinguished) {
    EXPECT_EQ(findingOf(Zone(), "posta.example.it").kind, Finding::Kind::None);
    EXPECT_EQ(findingOf(Zone().fails("_dmarc.example.it", dns::Type::Txt), "example.it").kind,
              Finding::Kind::NoAnswer);
    EXPECT_EQ(findingOf(Zone().txt("_dmarc.example.it", "v=DMARC1; x=y"), "example.it").kind,
              Finding::Kind::Invalid);
}

TEST(OrganizationalDomain, IsWhatItsOwnerRegistered) {
    EXPECT_EQ(organizationalDomain("a.b.example.it"), "example.it");
    EXPECT_EQ(organizationalDomain("example.it"), "example.it");
    EXPECT_EQ(organizationalDomain("a.example.co.uk"), "example.co.uk");
    EXPECT_EQ(organizationalDomain("co.uk"), "co.uk");
    EXPECT_EQ(organizationalDomain("a..it"), "a..it");
}

TEST(Alignment, StrictWantsTheSameDomainAndRelaxedTheSameOwner) {
    EXPECT_TRUE(isAligned("Example.it", "example.it.", true));
    EXPECT_FALSE(isAligned("example.it", "posta.example.it", true));
    EXPECT_TRUE(isAligned("example.it", "posta.example.it", false));
    EXPECT_TRUE(isAligned("news.example.it", "posta.example.it", false));
    EXPECT_FALSE(isAligned("uno.co.uk", "due.co.uk", false));
}

}  // namespace
}  // namespace dmarc_record_test
