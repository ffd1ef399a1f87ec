// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/import/Inserimento.h"

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"

void Inserimento::Prepara() {
    esigi(comando.setActiveConnection(connDB));
}

void Inserimento::Inserisci(const QString& gruppo, const destinatario::Valori& valori) {
    esigi(comando.execute(destinatario::IstruzioneNuovo(gruppo, "True", valori)));
}

void Inserimento::Conferma() {
    esigi(comando.commit());
}
