// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/mail/DkimKey.h"

/// The TXT record that the owner of a domain has to publish for a DKIM key.
struct RecordChiave {
    QString nome;        ///< in full, without a final point
    QString valore;      ///< in one piece, as the pages of providers take it
    QString rigaDiZona;  ///< for the file of a name server, in strings of at most 255 octets
};

RecordChiave RecordDi(const QByteArray& dominio, const mail::DkimKey& chiave);
