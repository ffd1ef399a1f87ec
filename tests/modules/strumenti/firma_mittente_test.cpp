// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of DKIM and DMARC.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "modules/strumenti/mittente_support.h"
#include "modules/strumenti/RecordChiave.h"

namespace firma_mittente_test {

using namespace testing_support;

namespace {

const mail::DkimKey& chiave(const char* dominio = "example.it") {
    static const QTemporaryDir cartella;
    static std::map<QByteArray, mail::DkimKey> fatte;
    if (!fatte.contains(dominio)) fatte[dominio] = mail::createDkimKey(cartella.path(), dominio).value();
    return fatte[dominio];
}

DominioMittente firmatario() {
    DominioMittente chi = mittente();
    chi.chiave = chiave();
    return chi;
}

Zone conRecord(const QByteArray& testo) {
    return conServer().txt(RecordDi("example.it", chiave()).nome.toLatin1(), testo);
}

QByteArray record(const char* dominio = "example.it") {
    return RecordDi(dominio, chiave(dominio)).valore.toLatin1();
}

Semaforo dkim(const Zone& zone, const DominioMittente& chi = firmatario()) {
    return rigaDi(RigaDkim, chi, zone).semaforo;
}

Semaforo dmarc(const Zone& zone, const DominioMittente& chi = firmatario()) {
    return rigaDi(RigaDmarc, chi, zone).semaforo;
}

TEST(RigaDkim, PublishedKeyOfTheFolderIsInOrder) {
    EXPECT_EQ(dkim(conRecord(record())), Semaforo::Verde);
}

TEST(RigaDkim, NoKeyWantsAttentionAndAnUnusableOneIsToBeFixed) {
    EXPECT_EQ(dkim(Zone(), mittente()), Semaforo::Giallo);
    DominioMittente chi = mittente();
    chi.chiave = Status(ErrorCode::NotSupported, QStringLiteral("la chiave non va"));
    EXPECT_EQ(dkim(Zone(), chi), Semaforo::Rosso);
    EXPECT_EQ(rigaDi(RigaDkim, chi, Zone()).frase, "la chiave non va");
}

TEST(RigaDkim, LookUpThatFailedIsNoFaultOfTheRecord) {
    const QByteArray nome = RecordDi("example.it", chiave()).nome.toLatin1();
    EXPECT_EQ(dkim(Zone().fails(nome, dns::Type::Txt)), Semaforo::Giallo);
}

TEST(RigaDkim, RecordThatInvalidatesTheSignatureIsToBeFixed) {
    EXPECT_EQ(dkim(Zone()), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord("v=DKIM1; p=")), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord("v=DKIM1; p=AQID")), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord("hello")), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord(record("altro.example"))), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord(record() + "; h=sha1")), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord(record() + "; s=tlsrpt")), Semaforo::Rosso);
    EXPECT_EQ(dkim(conRecord(record()).txt(RecordDi("example.it", chiave()).nome.toLatin1(), record())),
              Semaforo::Rosso);
}

TEST(RigaDkim, KeyInTestWantsAttention) {
    EXPECT_EQ(dkim(conRecord(record() + "; t=y")), Semaforo::Giallo);
}

TEST(RigaDmarc, PolicyThatTheMessagesMeetIsInOrder) {
    const QByteArray rifiuta = "v=DMARC1; p=reject";
    EXPECT_EQ(dmarc(conRecord(record()).txt("_dmarc.example.it", rifiuta)), Semaforo::Verde);
    const Zone perSpf =
        conServer().txt("example.it", "v=spf1 ip4:203.0.113.25 -all").txt("_dmarc.example.it", rifiuta);
    EXPECT_EQ(dmarc(perSpf, mittente()), Semaforo::Verde);
}

TEST(RigaDmarc, PolicyThatTheMessagesFailIsToBeFixed) {
    const Zone zone =
        conServer().txt("example.it", "v=spf1 -all").txt("_dmarc.example.it", "v=DMARC1; p=quarantine");
    EXPECT_EQ(dmarc(zone, mittente()), Semaforo::Rosso);
    EXPECT_EQ(dmarc(Zone(zone), firmatario()), Semaforo::Rosso);
}

TEST(RigaDmarc, WhatOnlyWatchesOrCannotBeKnownWantsAttention) {
    EXPECT_EQ(dmarc(conRecord(record())), Semaforo::Giallo);
    EXPECT_EQ(dmarc(conRecord(record()).txt("_dmarc.example.it", "v=DMARC1; p=none")), Semaforo::Giallo);
    const Zone ignoto =
        Zone().txt("example.it", "v=spf1 -all").txt("_dmarc.example.it", "v=DMARC1; p=reject");
    EXPECT_EQ(dmarc(ignoto, mittenteDiretto(nullptr)), Semaforo::Giallo);
    EXPECT_EQ(dmarc(Zone().fails("_dmarc.example.it", dns::Type::Txt)), Semaforo::Giallo);
}

TEST(RigaDmarc, FaultyOrMissingSpfDoesNotPassWhereverTheMailComesFrom) {
    const Zone senza = Zone().txt("_dmarc.example.it", "v=DMARC1; p=reject");
    EXPECT_EQ(dmarc(senza, mittenteDiretto(nullptr)), Semaforo::Rosso);
    EXPECT_EQ(dmarc(Zone(senza).txt("example.it", "v=spf1 a/99"), mittenteDiretto(nullptr)), Semaforo::Rosso);
    EXPECT_EQ(dmarc(Zone(senza).fails("example.it", dns::Type::Txt), mittenteDiretto(nullptr)),
              Semaforo::Giallo);
}

TEST(RigaDmarc, RecordThatOnlyWatchesSaysThatNothingPassesYet) {
    const Zone zone = Zone().txt("_dmarc.example.it", "v=DMARC1; p=none").txt("example.it", "v=spf1 -all");
    const RigaControllo riga = rigaDi(RigaDmarc, mittenteDiretto(), zone);
    EXPECT_EQ(riga.semaforo, Semaforo::Giallo);
    EXPECT_TRUE(riga.frase.contains("per ora non passano né SPF né DKIM")) << riga.frase.toStdString();
}

TEST(RigaDmarc, RecordsThatDoNotCountAreToBeFixed) {
    EXPECT_EQ(dmarc(conServer().txt("_dmarc.example.it", "v=DMARC1; x=y")), Semaforo::Rosso);
    EXPECT_EQ(dmarc(conServer()
                        .txt("_dmarc.example.it", "v=DMARC1; p=none")
                        .txt("_dmarc.example.it", "v=DMARC1; p=none")),
              Semaforo::Rosso);
}

TEST(RecordChiave, ZoneFileHasPiecesThatANameServerTakes) {
    const RecordChiave da = RecordDi("example.it", chiave());
    QString insieme;
    const QStringList pezzi = da.rigaDiZona.split('"');
    for (qsizetype i = 1; i < pezzi.size(); i += 2) {
        EXPECT_LE(pezzi[i].size(), 255);
        insieme += pezzi[i];
    }
    EXPECT_EQ(insieme, da.valore);
    EXPECT_TRUE(da.rigaDiZona.startsWith(da.nome + ". IN TXT ("));
}

}  // namespace
}  // namespace firma_mittente_test
