// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/oauth/Pkce.h"

#include <array>
#include <QCryptographicHash>
#include <QRandomGenerator>

namespace oauth {

namespace {

QByteArray urlText(const QByteArray& bytes) {
    return bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

}  // namespace

QByteArray newSecret() {
    std::array<quint32, 8> words{};
    QRandomGenerator::system()->fillRange(words.data(), qsizetype(words.size()));
    return urlText({reinterpret_cast<const char*>(words.data()), qsizetype(sizeof words)});
}

QByteArray codeChallenge(const QByteArray& verifier) {
    return urlText(QCryptographicHash::hash(verifier, QCryptographicHash::Sha256));
}

}  // namespace oauth
