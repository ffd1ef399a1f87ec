// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace mail {

/// Where and how a message is handed over. Two messages may share a connection when their routes are equal.
struct Route {
    QString host;                ///< see connectableHost()
    quint16 port = 25;           ///< 465 is TLS from the start (RFC 8314), any other port STARTTLS (RFC 3207)
    quint16 localPort = 0;       ///< 0: any
    bool greetWithHelo = false;  ///< HELO instead of EHLO: no extensions
    /// False: TLS is used whenever it is offered, its certificate has to be valid, and there is no
    /// fallback to plain text, now or later. True: TLS is used unverified, and left out where it is not
    /// available.
    bool opportunisticTls = false;
    QString certificateFolder;  ///< its *.pem files are trusted besides the system's; empty: none
    QString tlsListFile;        ///< see TlsMemory; not used where TLS is opportunistic
    QString clearListFile;      ///< see passwordMayGoInTheClear()
    /// Only servers of the public internet (see isPublicAddress) are connected to, by the very address that
    /// was checked. The names in `insideHosts` (lower case, no final dot) are exempt from that.
    bool publicOnly = false;
    QStringList insideHosts;
    bool login = false;
    QString user;
    QString password;
    /// `password` is an access token of OAuth 2.0. Without TLS and a valid certificate the login fails before
    /// it is sent.
    bool bearer = false;

    bool operator==(const Route&) const = default;
};

}  // namespace mail
