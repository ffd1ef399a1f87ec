// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/policy/SpfCheck.h"
#include "platform/policy/Zone.h"

namespace testing_support {

/// The result of check() for ada@`domain` from that address.
inline policy::spf::Verdict spfVerdict(const Zone& zone, const char* address, const QByteArray& domain,
                                       const QByteArray& sender = {}) {
    policy::spf::Client client;
    client.address = QHostAddress(QString::fromLatin1(address));
    client.sender = sender.isEmpty() ? "ada@" + domain : sender;
    client.helo = "posta.example.it";
    client.when = QDateTime::fromSecsSinceEpoch(1700000000, Qt::UTC);
    dns::Answers known;
    return zone.follow<policy::spf::Verdict>(
        [&](const dns::Answers& answers) { return policy::spf::check(client, domain, answers); }, known);
}

}  // namespace testing_support
