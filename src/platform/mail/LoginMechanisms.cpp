// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/LoginMechanisms.h"

#include <algorithm>
#include <QString>

namespace mail {

namespace {

const QByteArrayList& sendingThePassword() {
    static const QByteArrayList names{"PLAIN", "LOGIN"};
    return names;
}

/// Best first. CRAM-MD5 needs a server that stores the password itself, and many that offer it do not;
/// without TLS it is still better than the password.
QByteArrayList inOrder(const LoginTerms& terms) {
    // Of the two that use a token, early providers support only the older one.
    if (terms.bearer && !terms.offered) return {"XOAUTH2", "OAUTHBEARER"};
    if (terms.bearer) return {"OAUTHBEARER", "XOAUTH2"};
    const QByteArrayList digests{"SCRAM-SHA-256", "SCRAM-SHA-1"};
    const QByteArrayList oldDigest{"CRAM-MD5"};
    if (!terms.verifiedTls) return digests + oldDigest + sendingThePassword();
    // Nearly every server knows PLAIN and LOGIN, and some refuse the password where they do not know SCRAM.
    if (!terms.offered) return sendingThePassword() + digests + oldDigest;
    return digests + sendingThePassword() + oldDigest;
}

/// The reply is about the mechanism, or about how well the connection is protected for it.
bool isAboutMechanism(const SmtpReply& reply) {
    switch (reply.code) {
        case 500:
        case 501:
        case 502:
        case 504:
        case 534:
        case 538:
            return true;
        case 535:
            break;
        default:
            return false;
    }
    const QString text = QString::fromUtf8(reply.text);
    for (const char16_t* word : {u"mechanis", u"mecanis", u"meccanism", u"mécanism"})
        if (text.contains(QStringView(word), Qt::CaseInsensitive)) return true;
    return false;
}

}  // namespace

LoginMechanisms::LoginMechanisms(const LoginTerms& terms)
    : m_left(inOrder(terms)), m_guessed(!terms.offered) {
    if (terms.offered)
        m_left.removeIf([&](const QByteArray& name) { return !terms.offered->contains(name); });
    if (terms.verifiedTls || terms.clearAllowed) return;
    m_leftOutInTheClear =
        m_left.removeIf([](const QByteArray& name) { return sendingThePassword().contains(name); }) > 0;
}

bool LoginMechanisms::refused(const SmtpReply& reply) {
    const bool lastTry = m_credentialsRefusal.has_value();
    if (reply.code < 500) return false;
    bool goesOn = isAboutMechanism(reply);
    if (!goesOn) {
        if (!lastTry) m_credentialsRefusal = reply;
        goesOn = m_guessed && reply.code == 535;
    }
    if (!goesOn || lastTry) return false;
    skip();
    return !isEmpty();
}

}  // namespace mail
