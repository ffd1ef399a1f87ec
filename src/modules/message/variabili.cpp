// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/message/variabili.h"

#include <algorithm>

#include "modules/store/Destinatario.h"

namespace {

Variabile variabileDi(schema::Campo campo) {
    QString nome = destinatario::NomeColonna(campo);
    nome[0] = nome[0].toUpper();
    return {campo, "cmdVar" + nome, destinatario::Didascalia(campo), destinatario::Segnaposto(campo)};
}

}  // namespace

const std::array<Variabile, schema::numeroCampi>& VariabiliMessaggio() {
    static const auto variabili = [] {
        std::array<Variabile, schema::numeroCampi> elenco;
        std::ranges::transform(schema::ordineSegnaposto, elenco.begin(), variabileDi);
        return elenco;
    }();
    return variabili;
}
