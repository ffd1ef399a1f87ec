// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>

#include "platform/Status.h"
#include "platform/system/OutputFile.h"

namespace sys {

/// The writer of a text file in Windows-1252 (AnsiCodec.h), in lines that end in CR LF. The lines come into
/// the file all at once, by close(); where that fails, or is not called, the file keeps what it contained, as
/// far as replaceContent() can promise it.
class TextWriter {
  public:
    /// As openForWriting() says.
    Status open(const QString& path, WriteMode mode, FileKind kind);
    /// DeviceIo where no file is open.
    Status print(QStringView line);
    /// Writes the lines. After success a Document or a Secret is synced to the disk.
    Status close();

  private:
    Status writeFailed() const;
    Status append();

    QFile m_file;
    QString m_path;
    QByteArray m_bytes;
    WriteMode m_mode = WriteMode::Output;
    FileKind m_kind = FileKind::Document;
};

}  // namespace sys
