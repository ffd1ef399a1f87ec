#pragma once

#include <QSet>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// Account servers that have offered TLS and so must offer it again: whoever stands between could otherwise
/// take the offer away and read everything. They are kept in a text file, host and port, one a line
/// (docs/formats/tls.md); who deletes a line has that server forgotten.
class TlsMemory {
  public:
    /// `file` is read at each call; an empty name stands for a file that cannot be written.
    bool knows(const QString& file, const QString& host, quint16 port) const;

    /// Adds the server where it is missing. Where the file cannot be written, the server is known as long as
    /// this object lives.
    Status remember(const QString& file, const QString& host, quint16 port);

  private:
    QSet<QString> m_unwritten;
};

}  // namespace mail
