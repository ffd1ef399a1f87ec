// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/RigheServer.h"

#include <gtest/gtest.h>

#include <QScopeGuard>

#include "platform/text/Language.h"
#include "support/TestCertificates.h"

namespace righe_server_test {

using testing_support::TestCertificates;

namespace {

enum { Raggiunto, Tls, Certificato, Accesso, Dimensione };

ServerProvato buono() {
    ServerProvato provato;
    provato.esito.delivered = true;
    provato.accesso = true;
    provato.trovato.greeted = provato.trovato.encrypted = provato.trovato.loggedIn = true;
    provato.trovato.security = QStringLiteral("TLSv1.3");
    provato.trovato.certificate = TestCertificates::get().good().certificate;
    provato.trovato.sizeLimit = 50 * 1024 * 1024;
    return provato;
}

QList<Semaforo> semafori(const ServerProvato& provato,
                         const QDateTime& adesso = QDateTime::currentDateTimeUtc()) {
    QList<Semaforo> tutti;
    for (const RigaControllo& riga : RigheServer(provato, adesso)) {
        EXPECT_FALSE(riga.frase.isEmpty()) << riga.controllo.toStdString();
        tutti.append(riga.semaforo);
    }
    EXPECT_EQ(static_cast<std::size_t>(tutti.size()), RigheServerInAttesa().size());
    return tutti;
}

QDateTime primaDellaFine(int giorni) {
    return TestCertificates::get().good().certificate.expiryDate().addDays(-giorni);
}

TEST(RigheServer, GoodServerIsInOrder) {
    EXPECT_EQ(semafori(buono(), primaDellaFine(60)), QList<Semaforo>(5, Semaforo::Verde));
}

TEST(RigheServer, CertificateIsReportedBeforeItEndsAndAfter) {
    EXPECT_EQ(semafori(buono(), primaDellaFine(60))[Certificato], Semaforo::Verde);
    EXPECT_EQ(semafori(buono(), primaDellaFine(5))[Certificato], Semaforo::Giallo);
    EXPECT_EQ(semafori(buono(), primaDellaFine(-1))[Certificato], Semaforo::Rosso);
}

TEST(RigheServer, ServerThatIsNotReachedLeavesTheRestOpen) {
    ServerProvato provato;
    provato.accesso = true;
    provato.esito.text = QStringLiteral("Connessione rifiutata.");
    const auto tutti = semafori(provato);
    EXPECT_EQ(tutti, (QList{Semaforo::Rosso, Semaforo::Giallo, Semaforo::Giallo, Semaforo::Giallo,
                            Semaforo::Giallo}));
    EXPECT_TRUE(
        RigheServer(provato, QDateTime::currentDateTimeUtc())[0].frase.startsWith("Connessione rifiutata."));
}

TEST(RigheServer, CertificateThatIsNotAcceptedIsToBeFixed) {
    ServerProvato provato = buono();
    provato.esito = {false, 0, QStringLiteral("Connessione TLS non riuscita."), false};
    provato.trovato.encrypted = provato.trovato.loggedIn = false;
    const auto tutti = semafori(provato, primaDellaFine(60));
    EXPECT_EQ(tutti[Raggiunto], Semaforo::Verde);
    EXPECT_EQ(tutti[Tls], Semaforo::Rosso);
    EXPECT_EQ(tutti[Certificato], Semaforo::Rosso);
    EXPECT_EQ(tutti[Accesso], Semaforo::Giallo);
}

TEST(RigheServer, ServerWithoutTlsIsToBeFixedWhereAPasswordIsSent) {
    ServerProvato provato = buono();
    provato.trovato.encrypted = false;
    provato.trovato.certificate = QSslCertificate();
    EXPECT_EQ(semafori(provato)[Tls], Semaforo::Rosso);
    provato.accesso = provato.trovato.loggedIn = false;
    EXPECT_EQ(semafori(provato)[Tls], Semaforo::Giallo);
    EXPECT_EQ(semafori(provato)[Accesso], Semaforo::Verde);
}

TEST(RigheServer, RefusedLoginIsReportedInTheServersWords) {
    ServerProvato provato = buono();
    provato.trovato.loggedIn = false;
    provato.esito = {false, 535, QStringLiteral("5.7.8 wrong"), true};
    EXPECT_EQ(semafori(provato, primaDellaFine(60))[Accesso], Semaforo::Rosso);
    EXPECT_TRUE(RigheServer(provato, primaDellaFine(60))[Accesso].frase.startsWith("535 5.7.8 wrong"));
}

TEST(RigheServer, LinesHaveTheirTitlesInTheLanguageInUseFromTheStart) {
    text::setLanguage(QStringLiteral("en"));
    const auto italiano = qScopeGuard([] { text::setLanguage(QStringLiteral("it")); });
    const auto attese = RigheServerInAttesa(), note = RigheServer(buono(), primaDellaFine(60));
    ASSERT_EQ(attese.size(), note.size());
    for (std::size_t i = 0; i < note.size(); ++i)
        EXPECT_EQ(attese[i].controllo.toStdString(), note[i].controllo.toStdString());
    EXPECT_NE(attese[Raggiunto].controllo, "Server raggiunto");
}

TEST(RigheServer, SmallLimitWantsAttention) {
    ServerProvato provato = buono();
    provato.trovato.sizeLimit = 1024;
    EXPECT_EQ(semafori(provato)[Dimensione], Semaforo::Giallo);
    provato.trovato.sizeLimit = 0;
    EXPECT_EQ(semafori(provato)[Dimensione], Semaforo::Verde);
}

}  // namespace
}  // namespace righe_server_test
