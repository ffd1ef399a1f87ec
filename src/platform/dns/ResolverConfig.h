// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace dns {

/// The configuration of the machine's resolver (resolv.conf(5)).
struct ResolverConfig {
    QStringList servers;  ///< the IPv4 addresses of the "nameserver" lines, as written and in their order
    QString domain;       ///< the machine's own domain without a final dot; empty where none is set
};

inline const QString resolverConfigPath = QStringLiteral("/etc/resolv.conf");

/// The own domain is what the "domain" line says, else the first name of the "search" line; of several such
/// lines the last one counts. The root domain ("search .") is no domain. A file that is missing or cannot be
/// read is an empty configuration.
ResolverConfig readResolverConfig(const QString& path = resolverConfigPath);

}  // namespace dns
