// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/BearerTokens.h"

#include <algorithm>

#include "platform/text/Words.h"

namespace mail {

namespace {

const QByteArray oauthBearer = "OAUTHBEARER";
constexpr char separator = '\x01';

}  // namespace

Result<QByteArray> bearerResponse(const QByteArray& mechanism, const QString& user, const QByteArray& token,
                                  const QString& host, quint16 port) {
    QByteArray name = user.toUtf8();
    if (std::any_of(name.begin(), name.end(), [](char c) { return (c >= 0 && c < 0x20) || c == 0x7F; }))
        return Status(ErrorCode::TypeMismatch,
                      Words::tr("Il nome utente contiene un carattere non ammesso."));
    const QByteArray credentials = "auth=Bearer " + token + separator + separator;
    if (mechanism != oauthBearer) return "user=" + name + separator + credentials;
    name.replace('=', "=3D").replace(',', "=2C");  // RFC 5801 4
    return "n,a=" + name + ',' + separator + "host=" + host.toLatin1() + separator +
           "port=" + QByteArray::number(port) + separator + credentials;
}

QByteArray bearerFarewell(const QByteArray& mechanism) {
    return mechanism == oauthBearer ? QByteArray(1, separator) : QByteArray();
}

}  // namespace mail
