// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/Blocchi.h"

QStringList strumenti::Blocchi(const std::vector<std::int32_t>& numeri) {
    constexpr std::size_t perBlocco = 1000;
    QStringList blocchi;
    for (std::size_t inizio = 0; inizio < numeri.size(); inizio += perBlocco) {
        QStringList blocco;
        for (std::size_t i = inizio; i < numeri.size() && i < inizio + perBlocco; ++i)
            blocco << QString::number(numeri[i]);
        blocchi << blocco.join(", ");
    }
    return blocchi;
}
