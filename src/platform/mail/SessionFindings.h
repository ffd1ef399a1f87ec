#pragma once

#include <QSslCertificate>
#include <QString>

namespace mail {

/// What a server was found to be while a connection was set up, as far as that came.
struct SessionFindings {
    bool greeted = false;         ///< it answered, as a mail server does
    bool encrypted = false;       ///< the handshake of TLS succeeded
    QString security;             ///< protocol and cipher, where it is encrypted
    QSslCertificate certificate;  ///< its own, good or not; null: none was shown
    qint64 sizeLimit = 0;         ///< octets of a message that it takes (RFC 1870); 0: it told none
    bool loggedIn = false;
};

}  // namespace mail
