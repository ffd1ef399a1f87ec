// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/accounts/bBinary.h"

#include "platform/text/AnsiCodec.h"

namespace {

constexpr int cifrePerCarattere = 8;

}  // namespace

std::uint8_t CodiceCarattere(QStringView testo) {
    return testo.isEmpty() ? 0 : text::ansiCode(text::takeCharacter(testo)).value_or(0);
}

QString TestoInBit(QStringView testo) {
    QString cifre;
    cifre.reserve(testo.size() * cifrePerCarattere);
    while (!testo.isEmpty()) {
        const std::uint8_t codice = CodiceCarattere(testo);
        text::takeCharacter(testo);
        for (int peso = 128; peso > 0; peso /= 2)
            cifre += (codice & peso) != 0 ? u'1' : u'0';
    }
    return cifre;
}

QString BitInTesto(QStringView cifre) {
    QString testo;
    testo.reserve(cifre.size() / cifrePerCarattere + 1);
    do {
        const QStringView gruppo = cifre.left(cifrePerCarattere);
        int valore = 0;
        int peso = 128;
        for (const QChar cifra : gruppo) {
            if (cifra == u'1') valore += peso;
            peso /= 2;
        }
        testo += QChar(text::ansiCharacter(static_cast<std::uint8_t>(valore)));
        cifre = cifre.mid(gruppo.size());
    } while (!cifre.isEmpty());
    return testo;
}
