// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/TlsMemory.h"

#include <algorithm>

#include "platform/mail/ServerList.h"

namespace mail {

namespace {

QString entryOf(const QString& host, quint16 port) {
    return host.toLower() + u' ' + QString::number(port);
}

}  // namespace

bool TlsMemory::knows(const QString& file, const QString& host, quint16 port) const {
    const QString wanted = entryOf(host, port);
    if (m_unwritten.contains(wanted)) return true;
    const Result<QStringList> list = readServerList(file);
    return list.ok() && std::any_of(list.value().begin(), list.value().end(), [&](const QString& entry) {
               return entry.simplified().compare(wanted, Qt::CaseInsensitive) == 0;
           });
}

Status TlsMemory::remember(const QString& file, const QString& host, quint16 port) {
    if (knows(file, host, port)) return {};
    Status written = addToServerList(file, entryOf(host, port));
    if (!written.ok()) m_unwritten.insert(entryOf(host, port));
    return written;
}

}  // namespace mail
