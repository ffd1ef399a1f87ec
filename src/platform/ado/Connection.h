// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "platform/Status.h"

namespace ado {

/// A connection to one database file, named by its connection text. It keeps the text, not the file: the
/// file is opened and read once by open(), so that its errors are known, and is afterwards reached like any
/// other through the shared pool of open files.
class Connection {
  public:
    /// Longest wait of open() for other programs, in seconds; 0 is without limit.
    void setConnectionTimeout(int seconds) { m_timeout = seconds; }
    int connectionTimeout() const { return m_timeout; }
    /// Fails for a text that cannot be understood, a missing, unreadable, damaged or foreign file, a wrong
    /// password. The text of the failure can be shown to the user.
    Status open(const QString& connectionText);
    void close() { m_text.clear(); }
    bool isOpen() const { return !m_text.isEmpty(); }
    const QString& text() const { return m_text; }
    /// Whether a row can be updated even when the disk gets full; see jet::Database::roomReserved().
    bool roomReserved() const;

  private:
    QString m_text;
    int m_timeout = 15;
};

/// Closes every open database file. For the moment before a file is replaced or removed; any use of it
/// afterwards opens it again. Recordsets that are still open keep their file until they are closed.
void closeAll();

/// Commits what every GroupedInserts of this program has taken. For the moment before the process ends; it
/// does nothing where that is decided while a statement waits.
void commitAll();

}  // namespace ado
