// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/ResolverConfig.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/Vectors.h"

namespace resolver_config_test {

using dns::readResolverConfig;
using dns::ResolverConfig;

namespace {

ResolverConfig configOf(const QByteArray& content) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("resolv.conf"));
    writeBytes(path, content);
    return readResolverConfig(path);
}

TEST(ResolverConfig, ServersComeInTheirOrder) {
    EXPECT_EQ(configOf("nameserver 192.0.2.7\nnameserver 192.0.2.1\n").servers,
              QStringList({QStringLiteral("192.0.2.7"), QStringLiteral("192.0.2.1")}));
}

TEST(ResolverConfig, ServersWithoutAnIPv4AddressAreLeftOut) {
    EXPECT_EQ(configOf("nameserver 2001:db8::1\nnameserver fe80::1%eth0\nnameserver router\nnameserver\n"
                       "nameserver 192.0.2.1\nnameserver 300.1.1.1\n")
                  .servers,
              QStringList(QStringLiteral("192.0.2.1")));
}

TEST(ResolverConfig, DomainLineIsTheOwnDomainWhereverItIs) {
    EXPECT_EQ(configOf("search a.example b.example\ndomain c.example\n").domain, QStringLiteral("c.example"));
    EXPECT_EQ(configOf("domain c.example\nsearch a.example b.example\n").domain, QStringLiteral("c.example"));
}

TEST(ResolverConfig, FirstNameOfSearchReplacesTheDomain) {
    EXPECT_EQ(configOf("search\ta.example b.example\n").domain, QStringLiteral("a.example"));
}

TEST(ResolverConfig, LastOfSeveralLinesCounts) {
    EXPECT_EQ(configOf("domain a.example\ndomain b.example\n").domain, QStringLiteral("b.example"));
    EXPECT_EQ(configOf("search a.example\nsearch b.example\n").domain, QStringLiteral("b.example"));
}

TEST(ResolverConfig, RootIsNoDomain) {
    EXPECT_EQ(configOf("search .\n").domain, QString());
    EXPECT_EQ(configOf("domain .\nsearch a.example\n").domain, QStringLiteral("a.example"));
}

TEST(ResolverConfig, FinalPointOfTheDomainIsDropped) {
    EXPECT_EQ(configOf("search a.example.\n").domain, QStringLiteral("a.example"));
}

TEST(ResolverConfig, CommentsIndentedLinesAndOtherKeywordsAreSkipped) {
    const ResolverConfig config = configOf(
        "# nameserver 192.0.2.1\n;nameserver 192.0.2.2\n nameserver 192.0.2.3\noptions edns0 nameserver\n\n"
        "nameservers 192.0.2.4\nnameserver   192.0.2.5 # trailing\n");
    EXPECT_EQ(config.servers, QStringList(QStringLiteral("192.0.2.5")));
    EXPECT_EQ(config.domain, QString());
}

TEST(ResolverConfig, LineEndsOfOtherSystemsAndAMissingLastOneDoNotMatter) {
    const ResolverConfig config = configOf("nameserver 192.0.2.1\r\ndomain a.example");
    EXPECT_EQ(config.servers, QStringList(QStringLiteral("192.0.2.1")));
    EXPECT_EQ(config.domain, QStringLiteral("a.example"));
}

TEST(ResolverConfig, MissingFileIsAnEmptySetUp) {
    const QTemporaryDir folder;
    const ResolverConfig config = readResolverConfig(folder.filePath(QStringLiteral("none")));
    EXPECT_TRUE(config.servers.isEmpty());
    EXPECT_TRUE(config.domain.isEmpty());
}

TEST(ResolverConfig, FolderInTheFilesPlaceIsAnEmptySetUp) {
    const QTemporaryDir folder;
    EXPECT_TRUE(readResolverConfig(folder.path()).servers.isEmpty());
}

}  // namespace

}  // namespace resolver_config_test
