// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/TextFile.h"

#include <QFileInfo>
#include <QStringConverter>

#include "platform/text/AnsiCodec.h"
#include "platform/text/Words.h"

namespace text {

namespace {

constexpr qsizetype blockSize = 64 * 1024;

Status failed(ErrorCode code, const QString& text, const QString& path) {
    return Status(code, text).about(path.toStdU16String());
}
Status pathAccess(const QString& path) {
    return failed(ErrorCode::PathAccess, Words::tr("Errore di accesso al percorso/file"), path);
}
Status deviceIo(const QFile& file) {
    return failed(ErrorCode::DeviceIo, Words::tr("Errore di I/O del dispositivo"), file.fileName());
}

qsizetype findLineEnd(QByteArrayView bytes, LineEnds ends) {
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\r' || (bytes[i] == '\n' && ends == LineEnds::Any)) return i;
    }
    return bytes.size();
}

/// Whether the file is valid UTF-8 from its start to its end. A line that is too long for the reader ends the
/// check: reading stops there.
bool isUtf8(QFile& file) {
    QStringDecoder decoder(QStringConverter::Utf8);
    QByteArray block(blockSize, Qt::Uninitialized);
    QString decoded(decoder.requiredSpace(blockSize), Qt::Uninitialized);
    qsizetype lineLength = 0;
    for (;;) {
        const qint64 count = file.read(block.data(), blockSize);
        if (count <= 0) break;
        const QByteArrayView bytes(block.constData(), count);
        decoder.appendToBuffer(decoded.data(), bytes);
        if (decoder.hasError()) return false;
        const qsizetype lineEnd = qMax(bytes.lastIndexOf('\n'), bytes.lastIndexOf('\r'));
        lineLength = lineEnd < 0 ? lineLength + count : count - lineEnd - 1;
        if (lineLength > LineReader::longestLine) return true;
    }
    // A character that the end of the file cuts off is not valid.
    decoder.appendToBuffer(decoded.data(), QByteArrayView("\n"));
    return !decoder.hasError();
}

}  // namespace

Status openForInput(QFile& file, const QString& path) {
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        return failed(ErrorCode::FileNotFound, Words::tr("Impossibile trovare il file"), path);
    }
    if (!info.isFile()) return pathAccess(path);
    file.setFileName(path);
    return file.open(QIODevice::ReadOnly) ? Status() : pathAccess(path);
}

Status LineReader::open(const QString& path, LineEnds ends, Encoding encoding) {
    if (m_file.isOpen()) m_file.close();
    m_block.clear();
    m_position = 0;
    m_ends = ends;
    m_encoding = encoding;
    m_utf8 = false;
    m_fromUtf16 = QStringDecoder();
    m_status = openForInput(m_file, path);
    if (m_status.ok() && encoding == Encoding::Detected) detect();
    return m_status;
}

void LineReader::openBytes(const QByteArray& bytes, LineEnds ends, const QString& name) {
    if (m_file.isOpen()) m_file.close();
    m_file.setFileName(name);
    m_block = bytes;
    m_position = 0;
    m_ends = ends;
    m_encoding = Encoding::Ansi;
    m_utf8 = false;
    m_fromUtf16 = QStringDecoder();
    m_status = {};
}

// Leaves the file after its byte order mark. A file that cannot be read fails later, as its lines are.
void LineReader::detect() {
    const QByteArray start = m_file.peek(3);
    if (start.startsWith("\xff\xfe") || start.startsWith("\xfe\xff")) {
        m_fromUtf16 =
            QStringDecoder(start[0] == '\xff' ? QStringConverter::Utf16LE : QStringConverter::Utf16BE);
        m_toUtf8 = QStringEncoder(QStringConverter::Utf8);
        m_file.skip(2);
        m_utf8 = true;
        return;
    }
    m_utf8 = isUtf8(m_file);
    m_file.seek(m_utf8 && start == "\xef\xbb\xbf" ? 3 : 0);
}

QString LineReader::decoded(const QByteArray& bytes) const {
    QString line = m_utf8 ? QString::fromUtf8(bytes) : fromAnsi(bytes);
    if (m_encoding == Encoding::Detected) line.remove(QChar(QChar::Null));
    return line;
}

// Makes at least one byte available; false at the end of the file or after a failure.
bool LineReader::fill() {
    if (m_position < m_block.size()) return true;
    if (!m_file.isOpen() || !m_status.ok()) return false;
    m_block.resize(blockSize);
    m_position = 0;
    const qint64 count = m_file.read(m_block.data(), blockSize);
    m_block.resize(qMax<qint64>(count, 0));
    if (count < 0) m_status = deviceIo(m_file);
    if (m_fromUtf16.isValid() && count > 0) {
        m_block = m_toUtf8(m_fromUtf16(m_block));
        return !m_block.isEmpty() || fill();
    }
    return count > 0;
}

bool LineReader::atEnd() {
    return !fill();
}

bool LineReader::nextLine(QString& line) {
    if (!fill()) return false;
    QByteArray bytes;
    while (fill()) {
        const QByteArrayView rest = QByteArrayView(m_block).sliced(m_position);
        const qsizetype length = findLineEnd(rest, m_ends);
        if (bytes.size() + length > longestLine) {
            m_status = deviceIo(m_file);
            m_block.clear();
            return false;
        }
        bytes.append(rest.data(), length);
        m_position += length;
        if (length == rest.size()) continue;
        const bool carriageReturn = rest[length] == '\r';
        ++m_position;
        if (carriageReturn && fill() && m_block[m_position] == '\n') ++m_position;
        break;
    }
    if (!m_status.ok()) return false;
    line = decoded(bytes);
    return true;
}

Status LineReader::readLine(QString& line) {
    if (nextLine(line)) return {};
    if (!m_status.ok()) return m_status;
    return failed(ErrorCode::InputPastEnd, Words::tr("Input oltre la fine del file"), m_file.fileName());
}

}  // namespace text
