// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The reason why a look-up found no exchanger. It is only shown to the user: what a look-up does and
/// returns does not depend on it.
enum class MotivoMX {
    Nessuno,         ///< there is an exchanger
    SenzaDNS,        ///< no name server is known
    NonValido,       ///< the text is no domain that can be asked for
    NonInterrogato,  ///< the name server could not be asked, or refused the datagram
    Silenzio,        ///< it did not answer in time
    ErroreServer,    ///< SERVFAIL
    Rifiuto,         ///< REFUSED
    Troncata,        ///< the answer did not fit into a datagram
    Alias,           ///< its first record is a CNAME
    NonCompressa,    ///< its first owner's name is written out
    AltraForma,      ///< it cannot be read for another reason
    SenzaPosta,      ///< null MX (RFC 7505): the domain takes no mail
    Inesistente,     ///< NXDOMAIN
    Vuota,           ///< the domain has no MX record
};

/// Another try may succeed.
bool MotivoTemporaneo(MotivoMX motivo);

/// The reason in a reply (RFC 1035 4.1) without an exchanger. Accepts any bytes.
MotivoMX MotivoDiRisposta(QByteArrayView risposta);

/// One sentence for the transcript; empty for Nessuno.
QString TestoMotivo(MotivoMX motivo);
