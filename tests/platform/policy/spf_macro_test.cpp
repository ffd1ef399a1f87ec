// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/SpfMacro.h"

#include <gtest/gtest.h>

namespace spf_macro_test {

using namespace policy::spf;

namespace {

MacroValues values(const char* address = "192.0.2.3") {
    MacroValues values;
    values.address = QHostAddress(QString::fromLatin1(address));
    values.sender = "strong-bad@email.example.com";
    values.domain = "email.example.com";
    values.helo = "posta.example.com";
    values.receiver = "unknown";
    values.when = QDateTime::fromSecsSinceEpoch(1700000000, Qt::UTC);
    return values;
}

TEST(SpfMacro, ExamplesOfTheStandard) {
    const std::pair<const char*, const char*> cases[] = {
        {"%{s}", "strong-bad@email.example.com"},
        {"%{o}", "email.example.com"},
        {"%{d}", "email.example.com"},
        {"%{d4}", "email.example.com"},
        {"%{d3}", "email.example.com"},
        {"%{d2}", "example.com"},
        {"%{d1}", "com"},
        {"%{dr}", "com.example.email"},
        {"%{d2r}", "example.email"},
        {"%{l}", "strong-bad"},
        {"%{l-}", "strong.bad"},
        {"%{lr}", "strong-bad"},
        {"%{lr-}", "bad.strong"},
        {"%{l1r-}", "strong"},
        {"%{ir}.%{v}._spf.%{d2}", "3.2.0.192.in-addr._spf.example.com"},
        {"%{lr-}.lp._spf.%{d2}", "bad.strong.lp._spf.example.com"},
        {"%{lr-}.lp.%{ir}.%{v}._spf.%{d2}", "bad.strong.lp.3.2.0.192.in-addr._spf.example.com"},
        {"%{ir}.%{v}.%{l1r-}.lp._spf.%{d2}", "3.2.0.192.in-addr.strong.lp._spf.example.com"},
        {"%{d2}.trusted-domains.example.net", "example.com.trusted-domains.example.net"}};
    for (const auto& [text, wanted] : cases)
        EXPECT_EQ(expand(text, values()), wanted) << text;
}

TEST(SpfMacro, Ipv6AddressIsWrittenInNibbles) {
    EXPECT_EQ(expand("%{ir}.%{v}._spf.%{d2}", values("2001:db8::cb01")),
              "1.0.b.c.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.0.8.b.d.0.1.0.0.2.ip6._spf.example.com");
    EXPECT_EQ(expand("%{c}", values("2001:db8::cb01")), "2001:db8::cb01");
}

TEST(SpfMacro, OtherLettersAndSigns) {
    EXPECT_EQ(expand("%{h} %{p} %{r} %{t} %{c}%%%_%-", values()),
              "posta.example.com unknown unknown 1700000000 192.0.2.3% %20");
}

TEST(SpfMacro, CapitalLettersEscapeWhatIsNoPartOfAnUrl) {
    MacroValues odd = values();
    odd.sender = "a b/c~d@example.com";
    EXPECT_EQ(expand("%{S}", odd), "a%20b%2Fc~d%40example.com");
}

TEST(SpfMacro, LongNamesAreCutFromTheLeftByLabels) {
    MacroValues longOne = values();
    longOne.sender = QByteArray(60, 'a') + '.' + QByteArray(60, 'b') + "@x.example";
    const QByteArray name = expandDomain("%{l}.%{l}.%{l}.Fine.example", longOne);
    EXPECT_LE(name.size(), 253);
    EXPECT_TRUE(name.endsWith(".fine.example"));
    EXPECT_TRUE(name.startsWith("bbb") || name.startsWith("aaa"));
}

}  // namespace
}  // namespace spf_macro_test
