// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Limiti.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "modules/core/Fallimento.h"
#include "platform/system/Clock.h"
#include "platform/text/NumberText.h"

namespace {

constexpr qsizetype caratteriNumero = 3;
constexpr int pausaMinima = 200;

// Milliseconds from now to the next whole second of the clock.
std::chrono::milliseconds finoAlSecondo() {
    return std::chrono::milliseconds(1000 - sys::clock().now().time().msec());
}

// A clock that was set a lifetime away counts as far as the number goes.
std::int32_t secondiDa(const QDateTime& inizio) {
    using Numero = std::numeric_limits<std::int32_t>;
    const qint64 secondi = sys::clock().now().toSecsSinceEpoch() - inizio.toSecsSinceEpoch();
    return static_cast<std::int32_t>(std::clamp<qint64>(secondi, Numero::min(), Numero::max()));
}

}  // namespace

int MillisecondiPausa(const QString& testo) {
    const double millisecondi = text::leadingNumber(testo.left(caratteriNumero)) * 1000;
    return millisecondi == 0 ? pausaMinima : static_cast<int>(std::nearbyint(millisecondi));
}

int SecondiTimeout(const QString& testo) {
    return static_cast<int>(std::nearbyint(text::leadingNumber(testo.left(caratteriNumero))));
}

void LimiteBlocco::avvia(const QString& txtBloccoMin, const QString& txtBloccoNum) {
    Prosegui prosegui;
    prosegui([&] { bloccoSecondi = esigi(text::toInt32(esigi(text::numberFromText(txtBloccoMin)) * 60)); });
    prosegui([&] { bloccoMax = esigi(text::int32FromText(txtBloccoNum)); });
    bloccoInizio = sys::clock().now();
    bloccoConta = 1;
}

void LimiteBlocco::applica() {
    if (!bloccoAttivo) return;
    bloccoTrascorsi = secondiDa(bloccoInizio);
    if (bloccoTrascorsi <= bloccoSecondi && bloccoConta >= bloccoMax) {
        while (bloccoTrascorsi < bloccoSecondi) {
            sys::clock().sleep(finoAlSecondo());
            bloccoTrascorsi = secondiDa(bloccoInizio);
        }
        bloccoInizio = sys::clock().now();
        bloccoConta = 0;
    }
    ++bloccoConta;
}
