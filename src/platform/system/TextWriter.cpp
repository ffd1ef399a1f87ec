#include "platform/system/TextWriter.h"

#include <unistd.h>

#include "platform/text/AnsiCodec.h"
#include "platform/text/Words.h"

namespace sys {

TextWriter::~TextWriter() {
    if (m_file.isOpen()) m_file.close();
}

Status TextWriter::writeFailed() const {
    return Status(ErrorCode::DeviceIo, Words::tr("Errore di I/O del dispositivo"))
        .about(m_path.toStdU16String());
}

Status TextWriter::open(const QString& path, WriteMode mode, FileKind kind) {
    if (m_file.isOpen()) m_file.close();
    m_path = path;
    m_kind = kind;
    return openForWriting(m_file, path, mode, kind);
}

Status TextWriter::print(QStringView line) {
    const QByteArray bytes = text::toAnsi(line) + "\r\n";
    if (!m_file.isOpen() || m_file.write(bytes) != bytes.size()) return writeFailed();
    return {};
}

Status TextWriter::close() {
    if (!m_file.isOpen()) return writeFailed();
    const bool flushed = m_file.flush() && (m_kind != FileKind::Secret || ::fsync(m_file.handle()) == 0);
    m_file.close();
    return flushed && m_file.error() == QFileDevice::NoError ? Status() : writeFailed();
}

}  // namespace sys
