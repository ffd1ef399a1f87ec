#pragma once

#include <QFile>
#include <QString>

#include "platform/Status.h"
#include "platform/system/OutputFile.h"

namespace sys {

/// Writes a text file of Windows-1252 (AnsiCodec.h), in lines that end in CR LF. What was written stays when
/// a later line fails. Closes the file with itself, but only close() tells whether the last lines arrived.
class TextWriter {
  public:
    ~TextWriter();

    /// As openForWriting() says.
    Status open(const QString& path, WriteMode mode, FileKind kind);
    Status print(QStringView line);
    /// A Secret is on the disk when it has succeeded.
    Status close();

  private:
    Status writeFailed() const;

    QFile m_file;
    QString m_path;
    FileKind m_kind = FileKind::Document;
};

}  // namespace sys
