// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QFile>
#include <QString>

#include "platform/Status.h"

namespace mail {

/// The support log (.xt1): UTF-8 text, lines ended by CR LF, each "date time direction text" in local time.
/// Directions: ">" to the server, "<" from the server, "*" a remark of the program. The file is appended to,
/// created for its owner only, and never opened through a link.
///
/// A log that cannot be opened or written is ignored silently: it never harms a delivery.
class Transcript {
  public:
    /// Writes to `path` from now on; an empty path ends the log.
    void setFile(const QString& path);

    /// Why the log could not be opened, if it could not.
    const Status& status() const { return m_status; }

    bool active() const { return m_file.isOpen(); }

    /// Texts that must never be written: a line from the server that contains one of them is reduced to its
    /// reply code.
    void setSecrets(const QByteArrayList& secrets) { m_secrets = secrets; }
    void addSecret(const QByteArray& secret);

    void sent(QByteArrayView line);
    void received(int code, QByteArrayView text);
    void remark(const QString& text);
    /// `text` came from the server and goes into a remark.
    QString withoutSecrets(const QString& text) const;
    /// Flushes what was written.
    void flush();

  private:
    void line(char direction, QByteArrayView text);
    bool holdsSecret(QByteArrayView text) const;

    QFile m_file;
    QString m_path;
    Status m_status;
    QByteArrayList m_secrets;
};

}  // namespace mail
