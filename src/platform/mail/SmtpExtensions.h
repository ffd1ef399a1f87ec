// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace mail {

/// Service extensions that a server offered in its answer to EHLO (RFC 5321 4.1.1.1).
struct SmtpExtensions {
    bool pipelining = false;    ///< RFC 2920
    bool chunking = false;      ///< RFC 3030
    bool size = false;          ///< RFC 1870
    qint64 sizeLimit = 0;       ///< octets of the largest message; 0: none given
    bool eightBitMime = false;  ///< RFC 6152
    bool smtputf8 = false;      ///< RFC 6531
    bool startTls = false;      ///< RFC 3207
    QByteArrayList auth;        ///< mechanisms (RFC 4954), in upper case

    /// `text` is the text of a reply to EHLO; its first line is the greeting. Unknown keywords are
    /// skipped.
    static SmtpExtensions read(const QByteArray& text);
};

}  // namespace mail
