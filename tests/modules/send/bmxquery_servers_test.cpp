// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTemporaryDir>

#include "modules/send/bmxquery_state.h"

namespace bmxquery_servers_test {

namespace {

class MXServers : public ConStatoMX {
  protected:
    void configurazione(const QByteArray& contenuto) {
        reteDNS.configurazione = m_cartella.filePath(QStringLiteral("resolv.conf"));
        writeBytes(reteDNS.configurazione, contenuto);
    }

  private:
    QTemporaryDir m_cartella;
};

TEST_F(MXServers, ListAndDomainBecomeServersAndBaseDomain) {
    for (const QJsonValue caso : vectorsOf(QStringLiteral("mx/trovadns.json"))) {
        const QString lista = caso[QStringLiteral("lista")].toString();
        SCOPED_TRACE(lista.toStdString());
        ImpostaDNS(lista, caso[QStringLiteral("dominio")].toString(),
                   [&](const QString&) { return caso[QStringLiteral("NomeDaIP")].toString(); });
        const QJsonValue atteso = caso[QStringLiteral("expect")];
        EXPECT_EQ(QJsonArray::fromStringList(dnsServers), atteso[QStringLiteral("dnsServers")].toArray());
        EXPECT_EQ(dnsCount, atteso[QStringLiteral("dnsCount")].toInt());
        EXPECT_EQ(dnsDomain, atteso[QStringLiteral("dnsDomain")].toString());
        EXPECT_EQ(dnsBaseDomain, atteso[QStringLiteral("dnsBaseDomain")].toString());
    }
}

TEST_F(MXServers, OnlyTheFirstServersNameIsAskedAndOnlyWithoutADomain) {
    QStringList chiesti;
    const auto nome = [&](const QString& indirizzo) {
        chiesti.append(indirizzo);
        return QString();
    };
    ImpostaDNS(QStringLiteral("10.0.0.1,10.0.0.2"), QStringLiteral("a.it"), nome);
    ImpostaDNS(QString(), QString(), nome);
    EXPECT_TRUE(chiesti.isEmpty());
    ImpostaDNS(QStringLiteral("10.0.0.1,10.0.0.2"), QString(), nome);
    EXPECT_EQ(chiesti, QStringList(QStringLiteral("10.0.0.1")));
}

TEST_F(MXServers, ServersNameWithoutAPointIsTheBaseDomainOnly) {
    ImpostaDNS(QStringLiteral("10.0.0.1"), QString(),
               [](const QString&) { return QStringLiteral("router"); });
    EXPECT_EQ(dnsDomain, QString());
    EXPECT_EQ(dnsBaseDomain, QStringLiteral("router"));
}

TEST_F(MXServers, BaseDomainComesFromTheServersFullName) {
    ImpostaDNS(QStringLiteral("10.0.0.1"), QString(),
               [](const QString&) { return QStringLiteral("ns.lan"); });
    EXPECT_EQ(dnsDomain, QStringLiteral("lan"));
    EXPECT_EQ(dnsBaseDomain, QStringLiteral("ns.lan"));
}

TEST_F(MXServers, OneFinalCommaIsDropped) {
    ImpostaDNS(QStringLiteral("10.0.0.1,,"), QStringLiteral("a.it"));
    EXPECT_EQ(dnsServers, QStringList({QStringLiteral("10.0.0.1"), QString()}));
    ImpostaDNS(QStringLiteral(","), QStringLiteral("a.it"));
    EXPECT_EQ(dnsCount, 0);
}

TEST_F(MXServers, TheyAreFoundInTheResolversConfiguration) {
    configurazione("nameserver 192.0.2.1\nnameserver 192.0.2.2\ndomain ufficio.example.it\n");
    TrovaDNS();
    EXPECT_EQ(dnsServers, QStringList({QStringLiteral("192.0.2.1"), QStringLiteral("192.0.2.2")}));
    EXPECT_EQ(dnsCount, 2);
    EXPECT_EQ(dnsDomain, QStringLiteral("ufficio.example.it"));
    EXPECT_EQ(dnsBaseDomain, QStringLiteral("example.it"));
}

TEST_F(MXServers, ConfigurationWithoutServersLeavesNone) {
    configurazione("domain example.it\n");
    TrovaDNS();
    EXPECT_EQ(dnsCount, 0);
    EXPECT_EQ(dnsDomain, QStringLiteral("example.it"));
}

TEST_F(MXServers, TextIsCutAtItsFirstNul) {
    const QString nul(QChar(0));
    EXPECT_EQ(TagliaNul(QStringLiteral(" ns.it ") + nul + QStringLiteral("resto") + nul),
              QStringLiteral("ns.it"));
    EXPECT_EQ(TagliaNul(nul + QStringLiteral("resto")), QString());
    EXPECT_EQ(TagliaNul(QStringLiteral(" ns.it ")), QStringLiteral(" ns.it "));
    EXPECT_EQ(TagliaNul(QString()), QString());
}

TEST_F(MXServers, TextThatIsNoAddressHasNoName) {
    EXPECT_EQ(NomeDaIP(QStringLiteral("localhost")), QString());
    EXPECT_EQ(NomeDaIP(QString()), QString());
}

TEST_F(MXServers, NameOfAnAddressHasNoNul) {
    EXPECT_FALSE(NomeDaIP(QStringLiteral("127.0.0.1")).contains(QChar(0)));
}

TEST_F(MXServers, DomainIsTheTextAfterTheFirstAt) {
    for (const QJsonValue caso : vectorsOf(QStringLiteral("mx/domains.json"))) {
        const QString indirizzo = caso[QStringLiteral("ToAddress")].toString();
        EXPECT_EQ(DominioDi(indirizzo), caso[QStringLiteral("domain")].toString()) << indirizzo.toStdString();
    }
    EXPECT_EQ(DominioDi(QStringLiteral("a@b@ c.it ")), QStringLiteral("b@ c.it"));
    EXPECT_EQ(DominioDi(QStringLiteral(" mario ")), QStringLiteral("mario"));
}

}  // namespace

}  // namespace bmxquery_servers_test
