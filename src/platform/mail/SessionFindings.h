// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSslCertificate>
#include <QString>

namespace mail {

/// What was learnt of a server while a connection was set up, as far as that got.
struct SessionFindings {
    bool greeted = false;         ///< it answered, as a mail server does
    bool encrypted = false;       ///< the handshake of TLS succeeded
    QString security;             ///< protocol and cipher, where it is encrypted
    QSslCertificate certificate;  ///< its own, valid or not; null: none was sent
    qint64 sizeLimit = 0;         ///< octets of a message that it accepts (RFC 1870); 0: none given
    bool loggedIn = false;
};

}  // namespace mail
