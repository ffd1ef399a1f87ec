// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/RigheServer.h"

#include <QLocale>

#include "platform/text/Words.h"

namespace {

constexpr qint64 giorniPrimaDellaFine = 21;
constexpr qint64 piccola = 5 * 1024 * 1024;  // what a message with some photographs takes

const char* const titoliServer[] = {
    QT_TRANSLATE_NOOP("Vestrola", "Server raggiunto"), "TLS", QT_TRANSLATE_NOOP("Vestrola", "Certificato"),
    QT_TRANSLATE_NOOP("Vestrola", "Accesso"), QT_TRANSLATE_NOOP("Vestrola", "Dimensione massima")};

RigaControllo rigaServer(int quale, Semaforo semaforo, const QString& frase,
                         const QStringList& dettagli = {}) {
    return {Words::tr(titoliServer[quale]), semaforo, frase, dettagli};
}

RigaControllo nonProvato(int quale) {
    return rigaServer(quale, Semaforo::Giallo,
                      Words::tr("Non si è potuto provare: correggere prima le righe sopra."));
}

RigaControllo rigaRaggiunto(const ServerProvato& provato) {
    // A handshake at once, as on port 465, comes before any greeting.
    if (provato.trovato.greeted || !provato.trovato.certificate.isNull())
        return rigaServer(0, Semaforo::Verde, Words::tr("Il server risponde."));
    return rigaServer(
        0, Semaforo::Rosso,
        provato.esito.text + u' ' + Words::tr("Verificare nome e porta del server nell'account."));
}

RigaControllo rigaTls(const ServerProvato& provato) {
    const auto& [esito, trovato, accesso] = provato;
    if (trovato.encrypted)
        return rigaServer(1, Semaforo::Verde, Words::tr("La connessione è protetta."), {trovato.security});
    if (!trovato.certificate.isNull()) return rigaServer(1, Semaforo::Rosso, esito.text);
    if (!trovato.greeted) return nonProvato(1);
    if (!esito.delivered && !esito.ofLogin) return rigaServer(1, Semaforo::Rosso, esito.text);
    return rigaServer(
        1, accesso ? Semaforo::Rosso : Semaforo::Giallo,
        Words::tr("Il server non offre una connessione protetta: usare la porta 587 o 465, o un altro "
                  "server."));
}

RigaControllo rigaCertificato(const ServerProvato& provato, const QDateTime& adesso) {
    const auto& [esito, trovato, accesso] = provato;
    if (trovato.certificate.isNull()) return nonProvato(2);
    const QDateTime fine = trovato.certificate.expiryDate();
    const QString data = Words::locale().toString(fine.date(), Words::tr("d MMMM yyyy", "form of a date"));
    const QStringList dettagli{
        Words::tr("Per: %1").arg(
            Mostrabile(trovato.certificate.subjectInfo(QSslCertificate::CommonName).join(", ").toUtf8())),
        Words::tr("Emesso da: %1").arg(Mostrabile(trovato.certificate.issuerDisplayName().toUtf8())),
        Words::tr("Vale fino al %1").arg(data)};
    if (fine < adesso)
        return rigaServer(2, Semaforo::Rosso,
                          Words::tr("Il certificato è scaduto il %1: chi gestisce il server deve "
                                    "rinnovarlo.")
                              .arg(data),
                          dettagli);
    if (!trovato.encrypted)
        return rigaServer(
            2, Semaforo::Rosso,
            Words::tr("Il certificato non è accettato: verificare il nome del server nell'account, o "
                      "chiedere a chi lo gestisce."),
            dettagli);
    if (adesso.daysTo(fine) < giorniPrimaDellaFine)
        return rigaServer(2, Semaforo::Giallo,
                          Words::tr("Il certificato scade il %1: chi gestisce il server deve rinnovarlo in "
                                    "tempo.")
                              .arg(data),
                          dettagli);
    return rigaServer(2, Semaforo::Verde, Words::tr("Il certificato è valido fino al %1.").arg(data),
                      dettagli);
}

RigaControllo rigaAccesso(const ServerProvato& provato) {
    const auto& [esito, trovato, accesso] = provato;
    if (!accesso) return rigaServer(3, Semaforo::Verde, Words::tr("L'account non chiede l'accesso."));
    if (trovato.loggedIn)
        return rigaServer(3, Semaforo::Verde, Words::tr("Il server accetta utente e password."));
    if (!esito.ofLogin) return nonProvato(3);
    return rigaServer(3, Semaforo::Rosso,
                      (esito.code ? QString::number(esito.code) + u' ' : QString()) + esito.text + u' ' +
                          Words::tr("Verificare utente e password nell'account."));
}

RigaControllo rigaDimensione(const ServerProvato& provato) {
    const qint64 limite = provato.trovato.sizeLimit;
    if (!provato.trovato.greeted) return nonProvato(4);
    if (limite <= 0) return rigaServer(4, Semaforo::Verde, Words::tr("Il server non dichiara un limite."));
    const QString quanto = Words::locale().formattedDataSize(limite, 0, QLocale::DataSizeTraditionalFormat);
    if (limite < piccola)
        return rigaServer(
            4, Semaforo::Giallo,
            Words::tr("Il server accetta messaggi fino a %1: tenere piccoli gli allegati.").arg(quanto));
    return rigaServer(4, Semaforo::Verde, Words::tr("Il server accetta messaggi fino a %1.").arg(quanto));
}

}  // namespace

std::vector<RigaControllo> RigheServerInAttesa() {
    std::vector<RigaControllo> righe;
    for (const char* titolo : titoliServer)
        righe.push_back({Words::tr(titolo), Semaforo::Attesa, {}, {}});
    return righe;
}

std::vector<RigaControllo> RigheServer(const ServerProvato& provato, const QDateTime& adesso) {
    return {rigaRaggiunto(provato), rigaTls(provato), rigaCertificato(provato, adesso), rigaAccesso(provato),
            rigaDimensione(provato)};
}
