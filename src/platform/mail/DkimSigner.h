// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QByteArray>
#include <QString>

#include "platform/mail/MessageText.h"
#include "platform/Status.h"

namespace mail {

/// The DKIM signer for the sender's domain (RFC 6376): relaxed/relaxed, RSA with SHA-256, over From, To,
/// Subject, Date, Message-ID, MIME-Version, Content-Type, List-Unsubscribe, List-Unsubscribe-Post, List-Id
/// and the whole body. Each of these but List-Id, and Cc and Reply-To, is named once more than it occurs, so
/// that none can be added to a signed message (RFC 6376 8.15).
///
/// The key is a PEM file `<domain>.pem` of RSA with at least 2048 bits, the selector is the single word in
/// `<domain>.selector` in the same folder; the domain is in lower case and as A-labels. Nobody but the user
/// may read or write the key, nor write the selector. They are read again when their size or time of change
/// differ.
class DkimSigner {
  public:
    DkimSigner();
    ~DkimSigner();
    DkimSigner(const DkimSigner&) = delete;
    DkimSigner& operator=(const DkimSigner&) = delete;

    /// The header line DKIM-Signature, folded and with its line end, to be put in front of the message. Empty
    /// where the folder (empty: none) has neither file of the domain. Fails (NotSupported) when a file cannot
    /// be used; the text says which, and contains nothing of the key.
    Result<QByteArray> sign(const QString& folder, const QByteArray& domain, const MessageText& message);

    /// Whether messages of the domain are signed: both files are there and can be used.
    bool signs(const QString& folder, const QByteArray& domain);

    /// Why messages of that sender cannot be signed although the folder contains a file for it, or success.
    /// To inform the user before a run.
    static Status usable(const QString& folder, const QString& fromAddress);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

}  // namespace mail
