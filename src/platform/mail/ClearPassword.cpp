// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/ClearPassword.h"

#include <algorithm>
#include <QHostAddress>
#include <utility>

#include "platform/mail/DomainName.h"
#include "platform/mail/ServerList.h"

namespace mail {

namespace {

bool isNearby(const QHostAddress& address) {
    static const std::pair<QHostAddress, int> nets[] = {
        QHostAddress::parseSubnet(QStringLiteral("127.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8")),
        QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12")),
        QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("169.254.0.0/16")),
        QHostAddress::parseSubnet(QStringLiteral("::1/128")),
        QHostAddress::parseSubnet(QStringLiteral("fc00::/7")),
        QHostAddress::parseSubnet(QStringLiteral("fe80::/10")),
    };
    return std::any_of(std::begin(nets), std::end(nets),
                       [&](const auto& net) { return address.isInSubnet(net); });
}

}  // namespace

bool passwordMayGoInTheClear(const QString& host, const QString& listFile) {
    if (host.compare(u"localhost", Qt::CaseInsensitive) == 0) return true;
    if (const QHostAddress address(host); !address.isNull() && isNearby(address)) return true;
    const Result<QStringList> list = readServerList(listFile);
    return list.ok() && std::any_of(list.value().begin(), list.value().end(), [&](const QString& entry) {
               return connectableHost(entry).compare(host, Qt::CaseInsensitive) == 0;
           });
}

}  // namespace mail
