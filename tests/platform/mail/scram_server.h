// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <QPasswordDigestor>

#include "support/ScriptedServer.h"

/// The server's side of SCRAM-SHA-256 (RFC 5802, RFC 7677) for the scripts of a server, written from the
/// standard: whole, or with one fault. Its answers are "first", to the AUTH command that contains the
/// client's first message or to that message alone, and "final", to the client's proof.
class ScramServer {
  public:
    struct Fault {
        QByteArray nonce;       ///< instead of the client's nonce and the server's addition
        QByteArray iterations;  ///< instead of their number
        QByteArray first;       ///< instead of the whole first answer, not encoded
        bool signature = false;
    };

    explicit ScramServer(QByteArray password) : ScramServer(std::move(password), Fault()) {}
    ScramServer(QByteArray password, Fault fault)
        : m_password(std::move(password)), m_fault(std::move(fault)) {}

    QHash<QByteArray, testing_support::ScriptedServer::Answer> answers() {
        return {{"first", [this](const QByteArray& line) { return first(line); }},
                {"final", [this](const QByteArray& line) { return final(line); }}};
    }

    /// Every token of the dialogue, bare and encoded; after it.
    const QByteArrayList& tokens() const { return m_tokens; }

  private:
    static constexpr int iterations = 4096;
    const QByteArray m_salt = "sale marino";

    QByteArray first(const QByteArray& line) {
        const QByteArray client = received(line.mid(line.lastIndexOf(' ') + 1));
        m_clientFirst = client.mid(3);  // after "n,,": no channel is bound
        const QByteArray nonce = m_clientFirst.mid(m_clientFirst.indexOf(",r=") + 3);
        m_serverFirst = "r=" + (m_fault.nonce.isEmpty() ? nonce + "aggiunta" : m_fault.nonce) +
                        ",s=" + m_salt.toBase64() + ",i=" +
                        (m_fault.iterations.isEmpty() ? QByteArray::number(iterations) : m_fault.iterations);
        if (!m_fault.first.isEmpty()) m_serverFirst = m_fault.first;
        return "334 " + sent(m_serverFirst);
    }

    QByteArray final(const QByteArray& line) {
        const QByteArray client = received(line);
        const qsizetype proofAt = client.lastIndexOf(",p=");
        const QByteArray salted = QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha256, m_password,
                                                                     m_salt, iterations, 32);
        const QByteArray transcript = m_clientFirst + ',' + m_serverFirst + ',' + client.left(proofAt);
        const QByteArray stored =
            QCryptographicHash::hash(hmac(salted, "Client Key"), QCryptographicHash::Sha256);
        QByteArray key = QByteArray::fromBase64(client.mid(proofAt + 3));
        const QByteArray mask = hmac(stored, transcript);
        for (qsizetype i = 0; i < key.size() && i < mask.size(); ++i)
            key[i] = static_cast<char>(key[i] ^ mask[i]);
        if (QCryptographicHash::hash(key, QCryptographicHash::Sha256) != stored)
            return "535 " + line + " proves nothing";
        QByteArray signature = hmac(hmac(salted, "Server Key"), transcript);
        if (m_fault.signature) signature[0] = static_cast<char>(~signature[0]);
        return "334 " + sent("v=" + signature.toBase64());
    }

    static QByteArray hmac(const QByteArray& key, const QByteArray& text) {
        return QMessageAuthenticationCode::hash(text, key, QCryptographicHash::Sha256);
    }

    QByteArray received(const QByteArray& encoded) {
        QByteArray bare = QByteArray::fromBase64(encoded);
        m_tokens += {encoded, bare};
        return bare;
    }
    QByteArray sent(const QByteArray& bare) {
        m_tokens += {bare.toBase64(), bare};
        return bare.toBase64();
    }

    QByteArray m_password;
    Fault m_fault;
    QByteArray m_clientFirst, m_serverFirst;
    QByteArrayList m_tokens;
};
