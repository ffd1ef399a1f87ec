// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modules/strumenti/DominioMittente.h"
#include "platform/policy/Zone.h"

namespace testing_support {

/// A sender of example.it with the server posta.example.it.
inline DominioMittente mittente() {
    DominioMittente chi;
    chi.dominio = "example.it";
    chi.indirizzo = "ada@example.it";
    chi.server = "posta.example.it";
    return chi;
}

inline DominioMittente mittenteDiretto(const char* indirizzo = "203.0.113.25") {
    DominioMittente chi = mittente();
    chi.diretto = true;
    chi.server.clear();
    if (indirizzo) chi.questoComputer = {QHostAddress(QString::fromLatin1(indirizzo))};
    return chi;
}

using Riga = RigaODomanda (*)(const DominioMittente&, const Risposte&);

inline RigaControllo rigaDi(Riga riga, const DominioMittente& chi, const Zone& zone) {
    Risposte note;
    return zone.follow<RigaControllo>([&](const Risposte& risposte) { return riga(chi, risposte); }, note);
}

/// A zone in which the server has a public address.
inline Zone conServer() {
    return Zone().address("posta.example.it", "203.0.113.25");
}

}  // namespace testing_support
