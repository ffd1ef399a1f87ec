// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// Account servers that have offered TLS and so must offer it again: an attacker in between could otherwise
/// remove the offer and read everything. They are kept in a text file, host and port, one a line
/// (docs/formats/tls.md); deleting a line forgets that server.
class TlsMemory {
  public:
    /// `file` is read at each call; an empty name is a file that cannot be written.
    bool knows(const QString& file, const QString& host, quint16 port) const;

    /// Adds the server where it is missing. Where the file cannot be written, the server is remembered for
    /// the lifetime of this object.
    Status remember(const QString& file, const QString& host, quint16 port);

  private:
    QSet<QString> m_unwritten;
};

}  // namespace mail
