// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// The signing key of a sender's domain, as DkimSigner finds it: `<domain>.pem` and `<domain>.selector`
/// of a folder.
struct DkimKey {
    QByteArray selector;
    QByteArray publicKey;  ///< SubjectPublicKeyInfo in DER
};

/// Whether the folder has a file for the domain, usable or not.
bool hasDkimFiles(const QString& folder, const QByteArray& domain);

/// FileNotFound where the folder has no file for the domain, NotSupported with an Italian text where one
/// cannot be used.
Result<DkimKey> readDkimKey(const QString& folder, const QByteArray& domain);

/// Makes an RSA key of 2048 bits and a selector of the form "vestrola" and the day, and the folder
/// where it is missing; only the user may read the key. Nothing is replaced: FileInUse where there is a
/// file for the domain. Other failures have an Italian text, and leave no file. `domain` is in
/// A-labels.
Result<DkimKey> createDkimKey(const QString& folder, const QByteArray& domain);

/// Whether two public keys, each as SubjectPublicKeyInfo or as RSAPublicKey (RFC 8017) in DER, are the same.
/// The second one may be anything.
bool isSameKey(const QByteArray& one, const QByteArray& published);

}  // namespace mail
