// SPDX-License-Identifier: GPL-3.0-or-later
// The reasons why a message did not reach its recipient, in plain words.
#pragma once

#include <QString>

#include "platform/mail/OutcomeLine.h"

enum class MotivoEsito {
    Nessuno,  ///< delivered
    Inesistente,
    Disattivata,
    Piena,
    Regole,  ///< spam, blocks, limits
    Mittente,
    Accesso,
    TempoScaduto,
    SenzaServer,
    NonRaggiunto,
    Caduta,
    TroppoGrande,
    Temporaneo,
    Fermato,
    NonSpedito,
    Altro,
};
inline constexpr int numeroMotivi = static_cast<int>(MotivoEsito::Altro) + 1;

/// By the enhanced status code (RFC 3463, RFC 5248, RFC 7505) and the command that was refused; without such
/// a code by the server's words, which are English with most servers.
MotivoEsito MotivoDi(const mail::OutcomeLine& riga);

/// A sentence; empty for Nessuno.
QString TestoMotivo(MotivoEsito motivo);

/// "Consegnato" and so on.
QString TestoEsito(mail::OutcomeKind esito);

/// The server has said for good that the address does not exist: 5.1.1, 5.1.2, 5.1.3, 5.1.6 or 5.1.10 in
/// answer to RCPT TO. What it says at another moment may be about the message or the sender.
bool IndirizzoInesistente(const mail::OutcomeLine& riga);
