// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/policy/spf_support.h"

namespace spf_check_test {

using namespace policy::spf;
using namespace testing_support;

namespace {

const QByteArray domain = "example.it";

Result resultOf(const Zone& zone, const char* address = "192.0.2.1") {
    return spfVerdict(zone, address, domain).result;
}

Result resultOfRecord(const QByteArray& terms, Zone zone = {}, const char* address = "192.0.2.1") {
    return resultOf(zone.txt(domain, "v=spf1 " + terms), address);
}

TEST(SpfCheck, DomainWithoutARecordHasNoResult) {
    EXPECT_EQ(resultOf(Zone()), Result::None);
    EXPECT_EQ(resultOf(Zone().txt(domain, "v=spf2 -all").txt(domain, "hello")), Result::None);
    EXPECT_EQ(spfVerdict(Zone(), "192.0.2.1", "it").result, Result::None);
    EXPECT_EQ(spfVerdict(Zone(), "192.0.2.1", "a..it").result, Result::None);
    EXPECT_EQ(spfVerdict(Zone(), "192.0.2.1", QByteArray(64, 'a') + ".it").result, Result::None);
}

TEST(SpfCheck, NameServerThatFailsIsATemporaryError) {
    const Verdict verdict = spfVerdict(Zone().fails(domain, dns::Type::Txt), "192.0.2.1", domain);
    EXPECT_EQ(verdict.result, Result::TempError);
    EXPECT_EQ(verdict.fault, Fault::NoAnswer);
}

TEST(SpfCheck, TwoRecordsAreAPermanentError) {
    const Verdict verdict =
        spfVerdict(Zone().txt(domain, "v=spf1 +all").txt(domain, "v=spf1 +all"), "192.0.2.1", domain);
    EXPECT_EQ(verdict.result, Result::PermError);
    EXPECT_EQ(verdict.fault, Fault::SeveralRecords);
}

TEST(SpfCheck, FirstMatchDecides) {
    EXPECT_EQ(resultOfRecord("?ip4:192.0.2.1 +all"), Result::Neutral);
    EXPECT_EQ(resultOfRecord("ip4:192.0.2.2 ~all"), Result::SoftFail);
    EXPECT_EQ(resultOfRecord("-ip4:192.0.2.0/24 +all"), Result::Fail);
    EXPECT_EQ(resultOfRecord("ip4:192.0.2.2"), Result::Neutral);
    EXPECT_EQ(resultOfRecord(""), Result::Neutral);
}

TEST(SpfCheck, SyntaxErrorAfterTheMatchCountsToo) {
    const Verdict verdict = spfVerdict(Zone().txt(domain, "v=spf1 +all ip4:1.2.3"), "192.0.2.1", domain);
    EXPECT_EQ(verdict.result, Result::PermError);
    EXPECT_EQ(verdict.fault, Fault::Syntax);
    EXPECT_EQ(verdict.term, "ip4:1.2.3");
}

TEST(SpfCheck, NetworksOfBothKinds) {
    EXPECT_EQ(resultOfRecord("ip4:0.0.0.0/0 -all"), Result::Pass);
    EXPECT_EQ(resultOfRecord("ip6:::/0 -all"), Result::Fail);
    EXPECT_EQ(resultOfRecord("ip4:192.0.2.128/25 -all"), Result::Fail);
    EXPECT_EQ(resultOfRecord("ip6:2001:db8::/32 -all", {}, "2001:db8:1::2"), Result::Pass);
    EXPECT_EQ(resultOfRecord("ip4:192.0.2.1 -all", {}, "::ffff:192.0.2.1"), Result::Pass);
}

TEST(SpfCheck, AddressAndExchangersOfADomain) {
    const Zone zone = Zone()
                          .address(domain, "192.0.2.1")
                          .address(domain, "2001:db8::1")
                          .mx("altro.example", "mx1.altro.example")
                          .mx("altro.example", "mx2.altro.example")
                          .address("mx1.altro.example", "192.0.2.9")
                          .address("mx2.altro.example", "198.51.100.7");
    EXPECT_EQ(resultOfRecord("a -all", zone), Result::Pass);
    EXPECT_EQ(resultOfRecord("a -all", zone, "2001:db8::1"), Result::Pass);
    EXPECT_EQ(resultOfRecord("a//64 -all", zone, "2001:db8::ffff"), Result::Pass);
    EXPECT_EQ(resultOfRecord("a:altro.example -all", zone), Result::Fail);
    EXPECT_EQ(resultOfRecord("mx:altro.example -all", zone, "198.51.100.7"), Result::Pass);
    EXPECT_EQ(resultOfRecord("mx:altro.example -all", zone, "198.51.100.8"), Result::Fail);
    EXPECT_EQ(resultOfRecord("mx:altro.example/24 -all", zone, "198.51.100.8"), Result::Pass);
    EXPECT_EQ(resultOfRecord("a:altro.example -all", Zone().fails("altro.example", dns::Type::A)),
              Result::TempError);
}

TEST(SpfCheck, IncludedRecordCountsByItsPassOnly) {
    const auto included = [](const QByteArray& terms) { return Zone().txt("i.example", "v=spf1 " + terms); };
    EXPECT_EQ(resultOfRecord("include:i.example -all", included("+all")), Result::Pass);
    EXPECT_EQ(resultOfRecord("?include:i.example -all", included("+all")), Result::Neutral);
    EXPECT_EQ(resultOfRecord("include:i.example ?all", included("-all")), Result::Neutral);
    EXPECT_EQ(resultOfRecord("include:i.example ~all", included("")), Result::SoftFail);
    EXPECT_EQ(resultOfRecord("include:i.example +all", included("ip4:x")), Result::PermError);
    EXPECT_EQ(resultOfRecord("include:i.example +all", Zone().fails("i.example", dns::Type::Txt)),
              Result::TempError);
    const Verdict verdict =
        spfVerdict(Zone().txt(domain, "v=spf1 include:niente.example +all"), "192.0.2.1", domain);
    EXPECT_EQ(verdict.result, Result::PermError);
    EXPECT_EQ(verdict.fault, Fault::IncludedNone);
}

TEST(SpfCheck, RedirectionActsWhereNothingMatches) {
    const Zone other = Zone().txt("r.example", "v=spf1 a -all").address("r.example", "192.0.2.1");
    EXPECT_EQ(resultOfRecord("redirect=r.example", other), Result::Pass);
    EXPECT_EQ(resultOfRecord("redirect=r.example ip4:192.0.2.1", Zone().txt("r.example", "v=spf1 -all")),
              Result::Pass);
    EXPECT_EQ(resultOfRecord("redirect=r.example ?all", other), Result::Neutral);
    EXPECT_EQ(resultOfRecord("redirect=niente.example"), Result::PermError);
}

TEST(SpfCheck, NamesOfTheAddressAreVerifiedByTheirAddresses) {
    const Zone zone = Zone()
                          .ptr("192.0.2.1", "falso.example.it")
                          .ptr("192.0.2.1", "mx.example.it")
                          .address("falso.example.it", "192.0.2.7")
                          .address("mx.example.it", "192.0.2.1");
    EXPECT_EQ(resultOfRecord("ptr -all", zone), Result::Pass);
    EXPECT_EQ(resultOfRecord("ptr:mx.example.it -all", zone), Result::Pass);
    EXPECT_EQ(resultOfRecord("ptr:falso.example.it -all", zone), Result::Fail);
    EXPECT_EQ(resultOfRecord("ptr:xample.it -all", zone), Result::Fail);
    EXPECT_EQ(resultOfRecord("exists:%{p}.e.example -all",
                             Zone(zone).address("mx.example.it.e.example", "127.0.0.2")),
              Result::Pass);
    EXPECT_EQ(resultOfRecord("ptr -all", Zone().fails("1.2.0.192.in-addr.arpa", dns::Type::Ptr)),
              Result::Fail);
}

TEST(SpfCheck, OnlyTheFirstTenNamesOfAnAddressCount) {
    Zone zone;
    for (int i = 0; i < 11; ++i) {
        const QByteArray name = "n" + QByteArray::number(i) + (i < 10 ? ".altro.example" : ".example.it");
        zone.ptr("192.0.2.1", name).address(name, "192.0.2.1");
    }
    EXPECT_EQ(resultOfRecord("ptr -all", zone), Result::Fail);
}

TEST(SpfCheck, ExistsAsksForAnIpv4AddressWhateverTheClient) {
    const Zone zone = Zone().address("ada.e.example", "127.0.0.2");
    EXPECT_EQ(resultOfRecord("exists:%{l}.e.example -all", zone, "2001:db8::1"), Result::Pass);
    EXPECT_EQ(resultOfRecord("exists:%{o}.e.example -all", zone), Result::Fail);
}

TEST(SpfCheck, SenderWithoutALocalPartIsThePostmaster) {
    const Zone zone =
        Zone().txt(domain, "v=spf1 exists:%{l}.e.example -all").address("postmaster.e.example", "127.0.0.2");
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain, domain).result, Result::Pass);
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain, "@" + domain).result, Result::Pass);
}

TEST(SpfCheck, ExplanationIsFilledIn) {
    const Zone zone = Zone()
                          .txt(domain, "v=spf1 exp=e.%{d} -all")
                          .txt("e.example.it", "See http://%{d}/why?s=%{S}&i=%{c} %{t}");
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain).explanation,
              "See http://example.it/why?s=ada%40example.it&i=192.0.2.1 1700000000");
}

TEST(SpfCheck, UnusableExplanationIsNone) {
    for (const char* text : {"\xc3\xa8", "%{x}", "%"}) {
        const Zone zone = Zone().txt(domain, "v=spf1 exp=e.example -all").txt("e.example", text);
        const Verdict verdict = spfVerdict(zone, "192.0.2.1", domain);
        EXPECT_EQ(verdict.result, Result::Fail) << text;
        EXPECT_EQ(verdict.explanation, "") << text;
    }
    const Zone two =
        Zone().txt(domain, "v=spf1 exp=e.example -all").txt("e.example", "one").txt("e.example", "two");
    EXPECT_EQ(spfVerdict(two, "192.0.2.1", domain).explanation, "");
    EXPECT_EQ(spfVerdict(Zone().txt(domain, "v=spf1 exp=e.example -all").fails("e.example", dns::Type::Txt),
                         "192.0.2.1", domain)
                  .result,
              Result::Fail);
}

TEST(SpfCheck, ExplanationOfAnIncludedRecordIsNotTheDomains) {
    const Zone zone = Zone()
                          .txt(domain, "v=spf1 include:i.example -all")
                          .txt("i.example", "v=spf1 exp=e.example -all")
                          .txt("e.example", "theirs");
    EXPECT_EQ(spfVerdict(zone, "192.0.2.1", domain).explanation, "");
}

}  // namespace
}  // namespace spf_check_test
