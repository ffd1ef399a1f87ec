// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/TextWriter.h"

#include <unistd.h>

#include "platform/system/WriteAll.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Words.h"

namespace sys {

Status TextWriter::writeFailed() const {
    return Status(ErrorCode::DeviceIo, Words::tr("Errore di I/O del dispositivo"))
        .about(m_path.toStdU16String());
}

Status TextWriter::open(const QString& path, WriteMode mode, FileKind kind) {
    if (m_file.isOpen()) m_file.close();
    m_path = path;
    m_mode = mode;
    m_kind = kind;
    m_bytes.clear();
    return openForWriting(m_file, path, mode, kind);
}

Status TextWriter::print(QStringView line) {
    if (!m_file.isOpen()) return writeFailed();
    m_bytes += text::toAnsi(line) + "\r\n";
    return {};
}

Status TextWriter::close() {
    if (!m_file.isOpen()) return writeFailed();
    return m_mode == WriteMode::Append ? append() : replaceContent(m_file, m_path, m_kind, m_bytes);
}

/// A line that was written in part is taken back: the next one would continue it.
Status TextWriter::append() {
    const int file = m_file.handle();
    const qint64 before = m_file.size();
    const bool written = writeAll(file, m_bytes) && (m_kind == FileKind::Own || ::fsync(file) == 0);
    Status status = written ? Status() : writeFailed();
    if (!written && !m_file.isSequential() && ::ftruncate(file, before) != 0) status = writeFailed();
    m_file.close();
    return status;
}

}  // namespace sys
