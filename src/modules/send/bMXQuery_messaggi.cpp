// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <limits>

#include "modules/core/Fallimento.h"
#include "modules/send/bMXQuery.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Blanks.h"

namespace {

constexpr std::uint8_t puntatore = 0xC0;  // first byte of a pointer to the first 256 bytes
constexpr std::uint8_t tipoMX = 15;

// A pointer leads to one of 256 places, and from each of them on the way is fixed: after more than
// 256 pointers the reader is in a loop.
constexpr int puntatoriMassimi = 256;

std::uint8_t LeggiByte(QByteArrayView risposta, qsizetype posizione) {
    if (posizione >= risposta.size()) fallisci(ErrorCode::SubscriptOutOfRange);
    return static_cast<std::uint8_t>(risposta.at(posizione));
}

void LeggiNomeDa(QByteArrayView risposta, qsizetype& posizione, QString& nome, int puntatori) {
    for (;;) {
        const std::uint8_t lunghezza = LeggiByte(risposta, posizione);
        if (lunghezza == 0) return;
        if (lunghezza == puntatore) {
            if (puntatori == puntatoriMassimi) fallisci(ErrorCode::SubscriptOutOfRange);
            qsizetype meta = LeggiByte(risposta, posizione + 1);
            LeggiNomeDa(risposta, meta, nome, puntatori + 1);
            posizione += 2;
            return;
        }
        ++posizione;
        if (lunghezza > risposta.size() - posizione) fallisci(ErrorCode::SubscriptOutOfRange);
        nome += text::fromAnsi(risposta.sliced(posizione, lunghezza));
        posizione += lunghezza;
        if (LeggiByte(risposta, posizione) != 0) nome += u'.';
    }
}

}  // namespace

QByteArray NomeDNS(const QString& domain) {
    QByteArray nome;
    for (const QByteArray& etichetta : text::toAnsi(domain).split('.')) {
        if (etichetta.size() > std::numeric_limits<std::uint8_t>::max()) {
            motivoMX = MotivoMX::NonValido;
            fallisci(erroreMX, QStringLiteral("Problem sending MX query"), QStringLiteral("MXQuery"));
        }
        nome += static_cast<char>(etichetta.size());
        nome += etichetta;
    }
    return nome;
}

QByteArray ComponiQuery(const QString& domain) {
    static const QByteArray intestazione = QByteArray::fromHex("11df01000001000000000000");
    static const QByteArray tipoClasse = QByteArray::fromHex("000f0001");
    return intestazione + NomeDNS(domain) + '\0' + tipoClasse + '\0';
}

std::uint16_t LeggiParola(QByteArrayView risposta, qsizetype& posizione) {
    const int alto = LeggiByte(risposta, posizione);
    const int basso = LeggiByte(risposta, posizione + 1);
    posizione += 2;
    return static_cast<std::uint16_t>(alto * 256 + basso);
}

void LeggiNome(QByteArrayView risposta, qsizetype& posizione, QString& nome) {
    LeggiNomeDa(risposta, posizione, nome, 0);
}

QString LeggiRisposta(QByteArrayView risposta, qsizetype posizione, std::uint16_t risposte) {
    mxCount = 0;
    bestMX.clear();
    mxList.clear();
    int migliore = -1;

    QString domanda;
    LeggiNome(risposta, posizione, domanda);
    // Over the name's zero, type, class, the pointer that the owner's name is, and the high byte of the
    // answer's type.
    posizione += 8;
    for (; risposte > 0; --risposte) {
        if (LeggiByte(risposta, posizione) != tipoMX) break;
        // Over that byte, class, time to live and length.
        posizione += 9;
        const std::uint16_t preferenza = LeggiParola(risposta, posizione);
        QString nome;
        LeggiNome(risposta, posizione, nome);
        if (!text::trimBlanks(nome).isEmpty()) {
            mxList.push_back({nome, preferenza});
            mxCount = static_cast<std::int16_t>(mxList.size());
            if (migliore < 0 || preferenza < migliore) {
                migliore = preferenza;
                bestMX = nome;
            }
        }
        // Over the owner's pointer and the high byte of the next type.
        posizione += 3;
    }
    OrdinaMX(mxList);
    return bestMX;
}

void OrdinaMX(std::vector<MXRecord>& elenco) {
    std::ranges::stable_sort(elenco, {}, &MXRecord::preference);
}
