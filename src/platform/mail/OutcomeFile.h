// SPDX-License-Identifier: GPL-3.0-or-later
// The file in which the delivery control records the outcomes of the messages of one run.
#pragma once

#include <optional>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QString>

#include "platform/mail/OutcomeLine.h"
#include "platform/Status.h"

namespace mail {

/// One file of the book of outcomes (docs/formats/esiti.md): append-only, created with access for its owner
/// only when its first line is written. A file that cannot be written never harms a delivery.
class OutcomeFile {
  public:
    /// `folder` ends in "/" and is made where it is missing; its own folder must exist.
    OutcomeFile(QString folder, QString sender, QString title);

    /// Appends a line about a row of this database and flushes it. Where that fails status() says why; what
    /// could not be written is tried again with the next line. A recipient entered as delivered stays so: the
    /// run meets him again where his row could not be marked, and the control refuses him.
    void add(const DatabaseFile& database, const OutcomeLine& line);

    /// Why the last line could not be written, if it could not.
    const Status& status() const { return m_status; }

    /// The last line of a failed delivery, read from the file; none where there is none, or where the file is
    /// gone.
    std::optional<OutcomeLine> lastFailure() const;

  private:
    void open();
    void write();

    const QString m_folder;
    OutcomeHead m_head;
    QString m_path;
    QFile m_file;  ///< written by its descriptor, without a buffer
    Status m_status;
    QByteArray m_unwritten;                    ///< lines that are not in the file yet
    qint64 m_size = 0;                         ///< of the file, with what is unwritten
    QHash<QString, QSet<qint64>> m_delivered;  ///< numbers by the database's path
    std::optional<qint64> m_lastFailure;       ///< where its line begins
};

}  // namespace mail
