// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "modules/strumenti/DominioMittente.h"
#include "platform/policy/SpfCheck.h"

/// The addresses that mail of this sender leaves from, as far as they can be known; a question where the DNS
/// has to be asked for them.
std::variant<QList<QHostAddress>, dns::Question> IndirizziDiPartenza(const DominioMittente& mittente,
                                                                     const Risposte& risposte);

/// What SPF says of one address.
std::variant<policy::spf::Verdict, dns::Question> EsitoSpf(const DominioMittente& mittente,
                                                           const QHostAddress& indirizzo,
                                                           const Risposte& risposte);

/// A documentation address (RFC 5737): a missing or faulty record fails for any address.
QHostAddress IndirizzoDiNessuno();

/// Whether there is no record, or one that could not be used.
bool SenzaEsito(const policy::spf::Verdict& esito);

/// Why a record cannot be used, in a sentence for the user.
QString PercheSpf(const policy::spf::Verdict& esito, const Risposte& risposte);
