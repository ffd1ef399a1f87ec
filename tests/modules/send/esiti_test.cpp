// SPDX-License-Identifier: GPL-3.0-or-later
// The reasons of outcomes in plain words, addresses that do not exist, and the book for spreadsheets.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "modules/send/Esiti.h"
#include "platform/system/ProgramFolder.h"

namespace esiti_test {

using mail::DeliveryCause;
using mail::DeliveryStage;
using mail::OutcomeKind;

namespace {

mail::OutcomeLine refused(DeliveryStage stage, int code, const QString& words) {
    return mail::OutcomeLine::of({false, code, words, false, stage, DeliveryCause::Server}, words);
}

mail::OutcomeLine silent(DeliveryStage stage, DeliveryCause cause) {
    return mail::OutcomeLine::of({false, 0, "x", false, stage, cause}, "x");
}

esiti::Riga row(const mail::OutcomeLine& line, const QString& address = "a@x.it") {
    esiti::Riga one{line, MotivoDi(line), true};
    one.esito.address = address;
    one.esito.number = 1;
    one.esito.time = QDateTime(QDate(2026, 11, 22), QTime(10, 5, 3));
    return one;
}

}  // namespace

TEST(Esiti, ReasonOfARefusal) {
    struct Case {
        DeliveryStage stage;
        int code;
        const char* words;
        MotivoEsito reason;
    };
    using enum DeliveryStage;
    using M = MotivoEsito;
    for (const auto& [stage, code, words, reason] : std::initializer_list<Case>{
             {Recipient, 550, "5.1.1 <x>: Recipient address rejected: User unknown", M::Inesistente},
             {Recipient, 550, "5.1.2 bad domain", M::Inesistente},
             {Recipient, 556, "5.1.10 null MX", M::Inesistente},
             {Recipient, 550, "No such user here", M::Inesistente},
             {Recipient, 551, "User not local", M::Altro},
             {Recipient, 550, "Utente sconosciuto", M::Inesistente},
             {Recipient, 550, "5.2.1 The account is disabled", M::Disattivata},
             {Recipient, 452, "4.2.2 The account is over quota", M::Piena},
             {Recipient, 552, "Mailbox full", M::Piena},
             {Body, 552, "5.3.4 message too big", M::TroppoGrande},
             {Body, 552, "Message size exceeds fixed limit", M::TroppoGrande},
             {Body, 550, "5.7.1 Message refused as spam", M::Regole},
             {Body, 554, "blocked using a blocklist", M::Regole},
             {Greeting, 554, "5.7.1 client host blocked", M::Regole},
             {Recipient, 550, "5.1.1 blocked for spam", M::Inesistente},
             {Sender, 550, "5.1.8 Sender address rejected: Domain not found", M::Mittente},
             {Sender, 553, "not owned by user", M::Mittente},
             {Recipient, 554, "5.7.1 <x>: Relay access denied", M::Mittente},
             {Sender, 530, "5.7.0 Authentication required", M::Accesso},
             {Login, 535, "5.7.8 bad password", M::Accesso},
             {Login, 454, "temporary", M::Accesso},
             {Recipient, 450, "4.2.0 Greylisted, try again later", M::Temporaneo},
             {Recipient, 451, "4.3.0 whatever", M::Temporaneo},
             {Body, 550, "5.1.1 odd", M::Altro},
             {Recipient, 550, "no", M::Altro},
         })
        EXPECT_EQ(int(MotivoDi(refused(stage, code, words))), int(reason)) << code << ' ' << words;
}

TEST(Esiti, ReasonWithoutAnAnswer) {
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::Greeting, DeliveryCause::TimedOut)), MotivoEsito::TempoScaduto);
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::NotTried, DeliveryCause::NoServer)), MotivoEsito::SenzaServer);
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::Connecting, DeliveryCause::Server)), MotivoEsito::NonRaggiunto);
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::Recipient, DeliveryCause::Server)), MotivoEsito::Caduta);
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::Body, DeliveryCause::Stopped)), MotivoEsito::Fermato);
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::NotTried, DeliveryCause::Program)), MotivoEsito::NonSpedito);
    EXPECT_EQ(MotivoDi(silent(DeliveryStage::Login, DeliveryCause::Program)), MotivoEsito::Accesso);
}

TEST(Esiti, EachReasonHasWordsOfItsOwn) {
    QSet<QString> texts;
    for (int reason = 0; reason < numeroMotivi; ++reason)
        texts.insert(TestoMotivo(static_cast<MotivoEsito>(reason)));
    EXPECT_EQ(texts.size(), numeroMotivi);
    EXPECT_TRUE(TestoMotivo(MotivoEsito::Nessuno).isEmpty());
}

TEST(Esiti, OnlyARefusedRecipientDoesNotExist) {
    for (const char* status : {"5.1.1", "5.1.2", "5.1.3", "5.1.6", "5.1.10"}) {
        EXPECT_TRUE(IndirizzoInesistente(refused(DeliveryStage::Recipient, 550, status))) << status;
        EXPECT_FALSE(IndirizzoInesistente(refused(DeliveryStage::Body, 550, status))) << status;
        EXPECT_FALSE(IndirizzoInesistente(refused(DeliveryStage::Sender, 550, status))) << status;
    }
    for (const char* words : {"5.1.0 x", "5.2.1 x", "5.7.1 x", "5.1.100 x", "5.1.4 x", "unknown user"})
        EXPECT_FALSE(IndirizzoInesistente(refused(DeliveryStage::Recipient, 550, words))) << words;
    EXPECT_FALSE(IndirizzoInesistente(refused(DeliveryStage::Recipient, 450, "4.1.1 x")));
    EXPECT_FALSE(IndirizzoInesistente(refused(DeliveryStage::Recipient, 421, "5.1.1 x")));
}

TEST(Esiti, MoreThanHalfIsTooMany) {
    const auto gone = row(refused(DeliveryStage::Recipient, 550, "5.1.1 x"));
    const auto there = row(refused(DeliveryStage::Recipient, 450, "x"));
    EXPECT_FALSE(esiti::CercaInesistenti({gone, there}).troppi());
    EXPECT_TRUE(esiti::CercaInesistenti({gone, there, gone}).troppi());
    EXPECT_EQ(esiti::CercaInesistenti({gone, there, gone}).righe.size(), 2);
    EXPECT_FALSE(esiti::CercaInesistenti({}).troppi());
}

TEST(Esiti, CsvHasAMarkAHeadAndQuotedFields) {
    const QByteArray csv =
        esiti::Csv({row(refused(DeliveryStage::Recipient, 550, "5.1.1 \"x\"; perché"), "a;b@x.it")});
    EXPECT_TRUE(csv.startsWith("\xEF\xBB\xBF\"Data e ora\";"));
    const QList<QByteArray> lines = csv.split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[1],
              "\"22/11/2026 10:05:03\";\"a;b@x.it\";\"Rifiutato\";\"Casella o indirizzo inesistente\";"
              "\"550\";\"5.1.1\";\"5.1.1 \"\"x\"\"; perch\xC3\xA9\"\r");
}

TEST(Esiti, NoFieldIsAFormula) {
    for (const char* field :
         {"=1+1", "+39", "-1", "@SUM(A1)", "|cmd", "%x", " =1", "\t=1", "\r=1", "\nx", "＝1"})
        EXPECT_EQ(esiti::SenzaFormule(QString::fromUtf8(field)), '\'' + QString::fromUtf8(field));
    for (const char* field : {"", "a=1", "ada@x.it", "5.1.1 no", "'=1", "(x)"})
        EXPECT_EQ(esiti::SenzaFormule(field), field);
    const auto evil = row(refused(DeliveryStage::Body, 550, "=HYPERLINK(\"http://x\")"), "=cmd@x.it");
    EXPECT_TRUE(esiti::Csv({evil}).contains(";\"'=cmd@x.it\";"));
    EXPECT_TRUE(esiti::Csv({evil}).contains("\"'=HYPERLINK(\"\"http://x\"\")\""));
    EXPECT_TRUE(esiti::Tabella({evil}).contains("\t'=cmd@x.it\t"));
}

TEST(Esiti, EachOutcomeHasWordsOfItsOwn) {
    QSet<QString> texts;
    for (const OutcomeKind kind :
         {OutcomeKind::Delivered, OutcomeKind::Refused, OutcomeKind::NoAnswer, OutcomeKind::NotSent})
        texts.insert(TestoEsito(kind));
    EXPECT_EQ(texts.size(), 4);
    EXPECT_FALSE(texts.contains(QString()));
}

TEST(Esiti, BookThatCannotBeReadHasAReason) {
    const QTemporaryDir folder;
    const auto why = [](const QString& path) { return esiti::Leggi(path).status().text().toStdString(); };
    EXPECT_EQ(why(folder.filePath("niente.txt")), "Il registro di questo invio non c'è più.");
    QFile large(folder.filePath("grande.txt"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(mail::outcomes::largestFile + 1));
    EXPECT_EQ(why(large.fileName()), "Il registro di questo invio è troppo grande per essere letto.");
    QDir(folder.path()).mkpath("cartella.txt");
    EXPECT_TRUE(
        why(folder.filePath("cartella.txt")).starts_with("Il registro di questo invio non si può leggere. "));
}

TEST(Esiti, SwitchThatCannotBeTurnedIsAFailure) {
    const QTemporaryDir folder;
    sys::setProgramFolder(folder.path());
    QDir(folder.path()).mkpath("data/esiti");
    ASSERT_TRUE(esiti::Accendi(false).ok());
    EXPECT_FALSE(esiti::Acceso());
    ASSERT_TRUE(esiti::Accendi(true).ok());
    EXPECT_TRUE(esiti::Acceso());
    QDir(folder.path()).mkpath("data/esiti/disattivato.txt");  // a folder is in its place
    const Status on = esiti::Accendi(true);
    EXPECT_EQ(on.code(), ErrorCode::PathAccess);
    EXPECT_TRUE(on.text().contains("data/esiti/")) << on.text().toStdString();
    EXPECT_FALSE(esiti::Accendi(false).ok());
}

TEST(Esiti, LinesOfAnotherDatabaseOrWithoutAnAddressSelectNobody) {
    esiti::Riga foreign = row(refused(DeliveryStage::Recipient, 550, "5.1.1 x"));
    foreign.delDatabase = false;
    const esiti::Riga nameless = row(refused(DeliveryStage::Recipient, 550, "5.1.1 x"), QString());
    const esiti::Cambiati changed = esiti::Seleziona({foreign, nameless}, false);
    EXPECT_EQ(changed.nonTrovati, 2);
    EXPECT_EQ(changed.cambiati + changed.giaCosi, 0);
}

}  // namespace esiti_test
