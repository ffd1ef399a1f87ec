// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/MotivoMX.h"

#include <cstdint>

#include "platform/text/Words.h"

namespace {

constexpr qsizetype inizioDomanda = 12;
constexpr std::uint8_t maschera = 0x0F;      // of the response code
constexpr std::uint8_t troncata = 0x02;      // among the flags
constexpr std::uint8_t bitPuntatore = 0xC0;  // both bits: the name continues elsewhere
constexpr int recordCNAME = 5;
constexpr int recordMX = 15;

/// Reads a reply forward; after its end there are zeros.
class Lettore {
  public:
    explicit Lettore(QByteArrayView risposta) : m_risposta(risposta) {}

    std::uint8_t byte(qsizetype posizione) const {
        return posizione < m_risposta.size() ? static_cast<std::uint8_t>(m_risposta.at(posizione)) : 0;
    }
    int parola(qsizetype posizione) const { return byte(posizione) * 256 + byte(posizione + 1); }

    /// The position after the name at this one.
    qsizetype dopoNome(qsizetype posizione) const {
        for (;;) {
            const std::uint8_t lunghezza = byte(posizione);
            if (lunghezza == 0) return posizione + 1;
            if (lunghezza >= bitPuntatore) return posizione + 2;
            posizione += 1 + lunghezza;
        }
    }

  private:
    QByteArrayView m_risposta;
};

MotivoMX MotivoDiPrimaRisposta(const Lettore& lettore) {
    qsizetype posizione = inizioDomanda;
    for (int domande = lettore.parola(4); domande > 0; --domande)
        posizione = lettore.dopoNome(posizione) + 4;
    const bool compressa = lettore.byte(posizione) >= bitPuntatore;
    posizione = lettore.dopoNome(posizione);
    const int tipo = lettore.parola(posizione);
    if (tipo == recordCNAME) return MotivoMX::Alias;
    if (tipo != recordMX) return MotivoMX::AltraForma;
    const qsizetype nome = posizione + 12;  // over type, class, time to live, length and preference
    if (lettore.parola(posizione + 8) == 3 && lettore.byte(nome) == 0) return MotivoMX::SenzaPosta;
    return compressa ? MotivoMX::AltraForma : MotivoMX::NonCompressa;
}

}  // namespace

bool MotivoTemporaneo(MotivoMX motivo) {
    switch (motivo) {
        case MotivoMX::NonInterrogato:
        case MotivoMX::Silenzio:
        case MotivoMX::ErroreServer:
        case MotivoMX::Rifiuto:
            return true;
        default:
            return false;
    }
}

MotivoMX MotivoDiRisposta(QByteArrayView risposta) {
    const Lettore lettore(risposta);
    switch (lettore.byte(3) & maschera) {
        case 0:
            break;
        case 2:
            return MotivoMX::ErroreServer;
        case 3:
            return MotivoMX::Inesistente;
        case 5:
            return MotivoMX::Rifiuto;
        default:
            return MotivoMX::AltraForma;
    }
    if (lettore.byte(2) & troncata) return MotivoMX::Troncata;
    if (lettore.parola(6) == 0) return MotivoMX::Vuota;
    return MotivoDiPrimaRisposta(lettore);
}

QString TestoMotivo(MotivoMX motivo) {
    const auto temporaneo = [](const QString& dettaglio) {
        return Words::tr("Ricerca del server di posta non riuscita per un problema temporaneo: %1.")
            .arg(dettaglio);
    };
    const auto inutile = [](const QString& dettaglio) {
        return Words::tr("La risposta del DNS sul dominio del destinatario non si può usare: %1.")
            .arg(dettaglio);
    };
    const auto senzaServer = [](const QString& dettaglio) {
        return Words::tr("Il dominio del destinatario non ha un server di posta: %1.").arg(dettaglio);
    };
    switch (motivo) {
        case MotivoMX::Nessuno:
            return {};
        case MotivoMX::SenzaDNS:
            return Words::tr("Su questo computer non è configurato un server DNS.");
        case MotivoMX::NonValido:
            return Words::tr("Il dominio del destinatario non è valido.");
        case MotivoMX::NonInterrogato:
            return temporaneo(Words::tr("il server DNS non si può interrogare"));
        case MotivoMX::Silenzio:
            return temporaneo(Words::tr("il server DNS non ha risposto in tempo"));
        case MotivoMX::ErroreServer:
            return temporaneo(Words::tr("il server DNS segnala un errore (SERVFAIL)"));
        case MotivoMX::Rifiuto:
            return temporaneo(Words::tr("il server DNS rifiuta la domanda (REFUSED)"));
        case MotivoMX::Troncata:
            return inutile(Words::tr("è troncata"));
        case MotivoMX::Alias:
            return inutile(Words::tr("comincia con un alias (CNAME)"));
        case MotivoMX::NonCompressa:
            return inutile(Words::tr("i suoi nomi non sono compressi"));
        case MotivoMX::AltraForma:
            return inutile(Words::tr("ha un'altra forma"));
        case MotivoMX::SenzaPosta:
            return Words::tr("Il dominio del destinatario non accetta posta (null MX).");
        case MotivoMX::Inesistente:
            return senzaServer(Words::tr("non esiste (NXDOMAIN)"));
        case MotivoMX::Vuota:
            return senzaServer(Words::tr("il DNS non ne indica"));
    }
    return {};
}
