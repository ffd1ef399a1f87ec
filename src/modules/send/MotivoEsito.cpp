// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/MotivoEsito.h"

#include <array>
#include <QRegularExpression>

#include "platform/text/Words.h"

using mail::DeliveryCause;
using mail::DeliveryStage;
using mail::OutcomeKind;
using mail::OutcomeLine;

namespace {

/// The meaning of the second and third part of a status code, "1.1"; Altro where they have none.
MotivoEsito PerStato(const QString& stato, DeliveryStage fase) {
    struct Significato {
        const char* stato;
        MotivoEsito motivo;
    };
    static constexpr std::array delDestinatario{
        Significato{"1.1", MotivoEsito::Inesistente}, Significato{"1.2", MotivoEsito::Inesistente},
        Significato{"1.3", MotivoEsito::Inesistente}, Significato{"1.6", MotivoEsito::Inesistente},
        Significato{"1.10", MotivoEsito::Inesistente}};
    static constexpr std::array significati{
        Significato{"1.7", MotivoEsito::Mittente},     Significato{"1.8", MotivoEsito::Mittente},
        Significato{"2.1", MotivoEsito::Disattivata},  Significato{"2.2", MotivoEsito::Piena},
        Significato{"2.3", MotivoEsito::TroppoGrande}, Significato{"3.4", MotivoEsito::TroppoGrande},
        Significato{"7.8", MotivoEsito::Accesso},      Significato{"7.9", MotivoEsito::Accesso},
        Significato{"7.11", MotivoEsito::Accesso},     Significato{"4.4", MotivoEsito::SenzaServer}};
    const QString senzaClasse = stato.mid(2);
    if (fase == DeliveryStage::Recipient)
        for (const auto& [codice, motivo] : delDestinatario)
            if (senzaClasse == QLatin1String(codice)) return motivo;
    for (const auto& [codice, motivo] : significati)
        if (senzaClasse == QLatin1String(codice)) return motivo;
    return senzaClasse.startsWith("7.") ? MotivoEsito::Regole : MotivoEsito::Altro;
}

MotivoEsito PerParole(const QString& parole, DeliveryStage fase) {
    struct Indizio {
        QRegularExpression forma;
        MotivoEsito motivo;
        bool soloDestinatario;
    };
    const auto forma = [](const char* testo) {
        return QRegularExpression(QString::fromUtf8(testo), QRegularExpression::CaseInsensitiveOption);
    };
    static const std::array indizi{
        Indizio{forma("relay|authenticat|autentica"), MotivoEsito::Mittente, false},
        Indizio{forma("over ?quota|quota exceeded|mailbox (is )?full|casella (è )?piena|insufficient "
                      "(system )?storage"),
                MotivoEsito::Piena, false},
        Indizio{
            forma("spam|junk|blocked|blacklist|blocklist|black list|rbl|dnsbl|reputation|policy|dmarc|spf|"
                  "\\brate\\b|too many|indesiderat"),
            MotivoEsito::Regole, false},
        Indizio{forma("size|too (big|large)|troppo grande"), MotivoEsito::TroppoGrande, false},
        Indizio{forma("gr[ae]ylist|try again|later|temporar"), MotivoEsito::Temporaneo, false},
        Indizio{forma("disabled|inactive|suspended|disattivat"), MotivoEsito::Disattivata, true},
        Indizio{forma("unknown|no such|not exist|doesn.t exist|not found|invalid (recipient|mailbox|address)|"
                      "no mailbox|mailbox unavailable|recipient rejected|sconosciut|inesistente|non esiste"),
                MotivoEsito::Inesistente, true}};
    for (const auto& [espressione, motivo, soloDestinatario] : indizi)
        if ((!soloDestinatario || fase == DeliveryStage::Recipient) && parole.contains(espressione))
            return motivo;
    return MotivoEsito::Altro;
}

MotivoEsito DelRifiuto(const OutcomeLine& riga) {
    const int codice = riga.code;
    if (riga.stage == DeliveryStage::Login || codice == 530 || codice == 534 || codice == 535 ||
        codice == 538)
        return MotivoEsito::Accesso;
    MotivoEsito motivo = PerStato(riga.status, riga.stage);
    // A server that requires a login to relay mail says so with a policy code.
    const bool incerto = motivo == MotivoEsito::Altro || motivo == MotivoEsito::Regole;
    const MotivoEsito detto = incerto ? PerParole(riga.words, riga.stage) : motivo;
    if (motivo == MotivoEsito::Altro || detto == MotivoEsito::Mittente) motivo = detto;
    if (motivo == MotivoEsito::Altro && riga.stage == DeliveryStage::Sender) motivo = MotivoEsito::Mittente;
    if (motivo == MotivoEsito::Altro && codice < 500) motivo = MotivoEsito::Temporaneo;
    return motivo;
}

}  // namespace

MotivoEsito MotivoDi(const OutcomeLine& riga) {
    if (riga.kind == OutcomeKind::Delivered) return MotivoEsito::Nessuno;
    if (riga.code != 0) return DelRifiuto(riga);
    if (riga.stage == DeliveryStage::Login) return MotivoEsito::Accesso;
    switch (riga.cause) {
        case DeliveryCause::TimedOut:
            return MotivoEsito::TempoScaduto;
        case DeliveryCause::NoServer:
            return MotivoEsito::SenzaServer;
        case DeliveryCause::Stopped:
            return MotivoEsito::Fermato;
        case DeliveryCause::Program:
            return MotivoEsito::NonSpedito;
        case DeliveryCause::Server:
            break;
    }
    return riga.stage <= DeliveryStage::Connecting ? MotivoEsito::NonRaggiunto : MotivoEsito::Caduta;
}

QString TestoMotivo(MotivoEsito motivo) {
    switch (motivo) {
        case MotivoEsito::Nessuno:
            break;
        case MotivoEsito::Inesistente:
            return Words::tr("Casella o indirizzo inesistente");
        case MotivoEsito::Disattivata:
            return Words::tr("Casella disattivata");
        case MotivoEsito::Piena:
            return Words::tr("Casella piena");
        case MotivoEsito::Regole:
            return Words::tr("Regole del server: spam, blocchi o limiti");
        case MotivoEsito::Mittente:
            return Words::tr("Mittente non accettato");
        case MotivoEsito::Accesso:
            return Words::tr("Accesso all'account non riuscito");
        case MotivoEsito::TempoScaduto:
            return Words::tr("Tempo scaduto senza risposta");
        case MotivoEsito::SenzaServer:
            return Words::tr("Nessun server di posta per il dominio");
        case MotivoEsito::NonRaggiunto:
            return Words::tr("Server non raggiunto");
        case MotivoEsito::Caduta:
            return Words::tr("Connessione caduta o risposta non valida");
        case MotivoEsito::TroppoGrande:
            return Words::tr("Messaggio troppo grande");
        case MotivoEsito::Temporaneo:
            return Words::tr("Rifiuto temporaneo: riprovare più tardi");
        case MotivoEsito::Fermato:
            return Words::tr("Invio fermato");
        case MotivoEsito::NonSpedito:
            return Words::tr("Non spedito dal programma");
        case MotivoEsito::Altro:
            return Words::tr("Altro rifiuto del server");
    }
    return {};
}

QString TestoEsito(OutcomeKind esito) {
    switch (esito) {
        case OutcomeKind::Delivered:
            return Words::tr("Consegnato");
        case OutcomeKind::Refused:
            return Words::tr("Rifiutato");
        case OutcomeKind::NoAnswer:
            return Words::tr("Senza risposta");
        case OutcomeKind::NotSent:
            return Words::tr("Non spedito");
    }
    return {};
}

bool IndirizzoInesistente(const OutcomeLine& riga) {
    return riga.kind == OutcomeKind::Refused && riga.stage == DeliveryStage::Recipient &&
           riga.code / 100 == 5 && riga.status.startsWith("5.") &&
           PerStato(riga.status, riga.stage) == MotivoEsito::Inesistente;
}
