#pragma once

#include <optional>
#include <QByteArray>

namespace policy {

/// A public key as it stands in the DNS (RFC 6376 3.6.1).
struct DkimRecord {
    QByteArray keyType = "rsa";  ///< in lower case
    QByteArray key;              ///< decoded; empty: the key was withdrawn
    bool forMail = true;
    bool takesSha256 = true;
    bool testing = false;  ///< verifiers treat messages as if they were not signed
};

/// Where the record of a selector stands.
QByteArray dkimRecordName(const QByteArray& selector, const QByteArray& domain);

/// Reads the text of a TXT record; none where it is no valid key record.
std::optional<DkimRecord> readDkimRecord(const QByteArray& text);

/// The text to publish for a public RSA key (SubjectPublicKeyInfo in DER).
QByteArray dkimRecordText(const QByteArray& publicKey);

}  // namespace policy
