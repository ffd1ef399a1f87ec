// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>

namespace policy {

/// A public key as it is in the DNS (RFC 6376 3.6.1).
struct DkimRecord {
    QByteArray keyType = "rsa";  ///< in lower case
    QByteArray key;              ///< decoded; empty: the key was withdrawn
    bool forMail = true;
    bool takesSha256 = true;
    bool testing = false;  ///< verifiers treat messages as if they were not signed
};

/// The name of a selector's record.
QByteArray dkimRecordName(const QByteArray& selector, const QByteArray& domain);

/// Reads the text of a TXT record; none where it is not a valid key record.
std::optional<DkimRecord> readDkimRecord(const QByteArray& text);

/// The text to publish for a public RSA key (SubjectPublicKeyInfo in DER).
QByteArray dkimRecordText(const QByteArray& publicKey);

}  // namespace policy
