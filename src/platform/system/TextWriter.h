#pragma once

#include <QFile>
#include <QString>

#include "platform/Status.h"
#include "platform/system/OutputFile.h"

namespace sys {

/// The writer of a text file in Windows-1252 (AnsiCodec.h), in lines that end in CR LF. What was written
/// stays when a later line fails. The destructor closes the file; only close() says if the last lines failed.
class TextWriter {
  public:
    ~TextWriter();

    /// As openForWriting() says.
    Status open(const QString& path, WriteMode mode, FileKind kind);
    Status print(QStringView line);
    /// After success a Secret is synced to the disk.
    Status close();

  private:
    Status writeFailed() const;

    QFile m_file;
    QString m_path;
    FileKind m_kind = FileKind::Document;
};

}  // namespace sys
