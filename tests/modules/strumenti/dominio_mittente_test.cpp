// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of MX, address, SPF and reverse name.
#include <gtest/gtest.h>

#include "modules/strumenti/mittente_support.h"

namespace dominio_mittente_test {

using namespace testing_support;

namespace {

Semaforo semaforo(Riga riga, const Zone& zone, const DominioMittente& chi = mittente()) {
    const RigaControllo contenuto = rigaDi(riga, chi, zone);
    EXPECT_FALSE(contenuto.frase.isEmpty());
    return contenuto.semaforo;
}

bool dice(const RigaControllo& riga, const char* testo) {
    const QString tutto = riga.frase + '\n' + riga.dettagli.join('\n');
    EXPECT_TRUE(tutto.contains(testo)) << tutto.toStdString();
    return tutto.contains(testo);
}

TEST(RigaMX, ServerWithAnAddressIsInOrder) {
    const Zone zone = Zone().mx("example.it", "mx.example.it").address("mx.example.it", "203.0.113.2");
    const RigaControllo riga = rigaDi(RigaMX, mittente(), zone);
    EXPECT_EQ(riga.semaforo, Semaforo::Verde);
    EXPECT_TRUE(dice(riga, "10 mx.example.it: 203.0.113.2"));
}

TEST(RigaMX, ServersAreListedInTheOrderTheyAreTried) {
    const Zone zone = Zone()
                          .mx("example.it", "riserva.example.it", 20)
                          .mx("example.it", "mx.example.it", 5)
                          .address("mx.example.it", "203.0.113.2")
                          .address("riserva.example.it", "203.0.113.3");
    const RigaControllo riga = rigaDi(RigaMX, mittente(), zone);
    EXPECT_TRUE(dice(riga, "5 mx.example.it: 203.0.113.2\n20 riserva.example.it: 203.0.113.3"));
}

TEST(RigaMX, WhatKeepsRepliesFromComingIsReportedByItsWeight) {
    EXPECT_EQ(semaforo(RigaMX, Zone()), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaMX, Zone().address("example.it", "203.0.113.2")), Semaforo::Giallo);
    EXPECT_EQ(semaforo(RigaMX, Zone().mx("example.it", "")), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaMX, Zone().mx("example.it", "mx.niente.example")), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaMX, Zone().fails("example.it", dns::Type::Mx)), Semaforo::Giallo);
}

TEST(RigaIndirizzo, IsNeededOnlyWithoutAnExchanger) {
    EXPECT_EQ(semaforo(RigaIndirizzo, Zone().address("example.it", "203.0.113.2")), Semaforo::Verde);
    EXPECT_EQ(semaforo(RigaIndirizzo, Zone().address("example.it", "2001:db8::2")), Semaforo::Verde);
    EXPECT_EQ(semaforo(RigaIndirizzo, Zone().mx("example.it", "mx.example.it")), Semaforo::Verde);
    EXPECT_EQ(semaforo(RigaIndirizzo, Zone()), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaIndirizzo, Zone().fails("example.it", dns::Type::A)), Semaforo::Giallo);
}

TEST(RigaMX, LookUpThatFailedIsNoFaultOfTheDomain) {
    const Zone mx = Zone().mx("example.it", "mx.example.it").fails("mx.example.it", dns::Type::A);
    EXPECT_EQ(semaforo(RigaMX, mx), Semaforo::Giallo);
    EXPECT_EQ(semaforo(RigaMX, Zone(mx).address("mx.example.it", "2001:db8::2")), Semaforo::Verde);
    EXPECT_EQ(semaforo(RigaIndirizzo, Zone().fails("example.it", dns::Type::Mx)), Semaforo::Giallo);
    const Zone inverso =
        Zone().ptr("203.0.113.25", "posta.example.it").fails("posta.example.it", dns::Type::A);
    EXPECT_EQ(semaforo(RigaNomeInverso, inverso, mittenteDiretto()), Semaforo::Giallo);
}

TEST(RigaSpf, CoveredServerIsInOrder) {
    const RigaControllo riga =
        rigaDi(RigaSpf, mittente(), conServer().txt("example.it", "v=spf1 ip4:203.0.113.0/24 -all"));
    EXPECT_EQ(riga.semaforo, Semaforo::Verde);
    EXPECT_TRUE(dice(riga, "203.0.113.25: autorizzato da \"ip4:203.0.113.0/24\" di example.it, 0 ricerche"));
}

TEST(RigaSpf, ServerOfWhichOnlySomeAddressesAreCoveredWantsAttention) {
    const Zone zone = conServer()
                          .address("posta.example.it", "2001:db9::25")
                          .txt("example.it", "v=spf1 ip4:203.0.113.25 -all");
    EXPECT_EQ(semaforo(RigaSpf, zone), Semaforo::Giallo);
    EXPECT_EQ(semaforo(RigaSpf, conServer().txt("example.it", "v=spf1 -all")), Semaforo::Giallo);
}

TEST(RigaSpf, MissingAndFaultyRecordsAreToBeFixed) {
    EXPECT_EQ(semaforo(RigaSpf, conServer()), Semaforo::Rosso);
    const RigaControllo riga =
        rigaDi(RigaSpf, mittente(), conServer().txt("example.it", "v=spf1 ipv4:1.2.3.4 -all"));
    EXPECT_EQ(riga.semaforo, Semaforo::Rosso);
    EXPECT_TRUE(dice(riga, "ipv4:1.2.3.4"));
}

TEST(RigaSpf, EachFaultOfARecordHasASentenceThatNamesItsTerm) {
    const auto detto = [](const Zone& zone, const char* testo) {
        const RigaControllo riga = rigaDi(RigaSpf, mittente(), zone);
        EXPECT_EQ(riga.semaforo, Semaforo::Rosso) << testo;
        dice(riga, testo);
    };
    const auto record = [](const QByteArray& terms) {
        return conServer().txt("example.it", "v=spf1 " + terms);
    };
    detto(record("-all").txt("example.it", "v=spf1 ~all"), "example.it ha più di un record SPF");
    detto(record(QByteArray("ip4:192.0.2.1 ").repeated(2000) + "-all"),
          "Il record SPF di example.it è troppo lungo");
    QByteArray molti;
    Zone indirizzi = conServer();
    for (int i = 1; i <= 11; ++i) {
        const QByteArray nome = "a" + QByteArray::number(i) + ".example";
        molti += "a:" + nome + ' ';
        indirizzi.address(nome, "192.0.2.1");
    }
    detto(indirizzi.txt("example.it", "v=spf1 " + molti + "-all"),
          "più di 10 ricerche nel DNS e non vale: togliere meccanismi, per esempio a:a11.example.");
    detto(record("a:uno.example a:due.example a:tre.example -all"),
          "più di 2 domini senza record e non vale: togliere quelli che non esistono più, per esempio "
          "a:tre.example.");
    Zone scambi = record("mx:molti.example -all");
    for (int i = 1; i <= 11; ++i)
        scambi.mx("molti.example", "mx" + QByteArray::number(i) + ".example");
    detto(scambi, "\"mx:molti.example\" porta a più di 10 server");
    detto(record("include:niente.example -all"),
          "\"include:niente.example\" porta a un dominio senza record SPF");
    detto(record("redirect=niente.example"),
          "\"redirect=niente.example\" porta a un dominio senza record SPF");
}

TEST(RigaSpf, ResultOfEachAddressIsAWord) {
    const auto detto = [](const char* terms, const char* testo) {
        dice(rigaDi(RigaSpf, mittenteDiretto(), Zone().txt("example.it", QByteArray("v=spf1 ") + terms)),
             testo);
    };
    detto("+all", "203.0.113.25: autorizzato");
    detto("-all", "203.0.113.25: vietato");
    detto("~all", "203.0.113.25: non autorizzato");
    detto("?all", "203.0.113.25: né autorizzato né vietato");
}

TEST(RigaSpf, FaultyRecordShowsAlsoWhereTheServerIsUnknown) {
    EXPECT_EQ(semaforo(RigaSpf, Zone().txt("example.it", "v=spf1 a/99")), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaSpf, Zone()), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaSpf, Zone().txt("example.it", "v=spf1 -all")), Semaforo::Giallo);
    const Zone inside = Zone().address("posta.example.it", "192.168.1.9").txt("example.it", "v=spf1 -all");
    EXPECT_EQ(semaforo(RigaSpf, inside), Semaforo::Giallo);
}

TEST(RigaSpf, ServerThatIsAnAddressNeedsNoName) {
    DominioMittente chi = mittente();
    chi.server = "203.0.113.25";
    EXPECT_EQ(semaforo(RigaSpf, Zone().txt("example.it", "v=spf1 ip4:203.0.113.25 -all"), chi),
              Semaforo::Verde);
}

TEST(RigaSpf, DirectRouteIsJudgedByThisMachinesAddress) {
    const auto record = [](const char* terms) {
        return Zone().txt("example.it", QByteArray("v=spf1 ") + terms);
    };
    EXPECT_EQ(semaforo(RigaSpf, record("ip4:203.0.113.25 -all"), mittenteDiretto()), Semaforo::Verde);
    EXPECT_EQ(semaforo(RigaSpf, record("-all"), mittenteDiretto()), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaSpf, record("~all"), mittenteDiretto()), Semaforo::Giallo);
    EXPECT_EQ(semaforo(RigaSpf, record("-all"), mittenteDiretto(nullptr)), Semaforo::Giallo);
}

TEST(RigaSpf, NameServerThatFailsIsNoFaultOfTheRecord) {
    EXPECT_EQ(semaforo(RigaSpf, conServer().fails("example.it", dns::Type::Txt)), Semaforo::Giallo);
}

TEST(RigaSpf, TextOfTheDomainIsShownWithoutItsControlCharacters) {
    const Zone zone =
        conServer().txt("example.it", "v=spf1 exp=e.example -all").txt("e.example", "hello %{d}");
    const RigaControllo riga = rigaDi(RigaSpf, mittente(), zone);
    EXPECT_TRUE(dice(riga, "hello example.it"));
    EXPECT_FALSE(Mostrabile("a\x1b[31m\r\nb").contains(QChar(0x1b)));
    EXPECT_LE(Mostrabile(QByteArray(100000, 'x')).size(), 2001);
}

TEST(RigaNomeInverso, IPv6AddressHasItsNameToo) {
    const Zone good = Zone().ptr("2001:db9::25", "pc.example.it").address("pc.example.it", "2001:db9::25");
    EXPECT_EQ(semaforo(RigaNomeInverso, good, mittenteDiretto("2001:db9::25")), Semaforo::Verde);
}

TEST(RigaNomeInverso, NameAndAddressHaveToConfirmEachOther) {
    const Zone good = Zone().ptr("203.0.113.25", "pc.example.it").address("pc.example.it", "203.0.113.25");
    EXPECT_EQ(semaforo(RigaNomeInverso, good, mittenteDiretto()), Semaforo::Verde);
    const Zone lies = Zone().ptr("203.0.113.25", "pc.example.it").address("pc.example.it", "203.0.113.1");
    EXPECT_EQ(semaforo(RigaNomeInverso, lies, mittenteDiretto()), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaNomeInverso, Zone(), mittenteDiretto()), Semaforo::Rosso);
    EXPECT_EQ(semaforo(RigaNomeInverso, Zone(), mittenteDiretto(nullptr)), Semaforo::Giallo);
}

}  // namespace
}  // namespace dominio_mittente_test
