// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/OutcomeFile.h"

#include <unistd.h>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/mail/OutcomeBook.h"
#include "platform/system/Clock.h"
#include "platform/system/OutputFile.h"
#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace mail {

OutcomeFile::OutcomeFile(QString folder, QString sender, QString title) : m_folder(std::move(folder)) {
    m_head.sender = std::move(sender);
    m_head.title = std::move(title);
    m_head.begun = sys::clock().now().toUTC();
}

void OutcomeFile::add(const DatabaseFile& database, const OutcomeLine& line) {
    if (line.number) {
        QSet<qint64>& delivered = m_delivered[database.path];
        if (delivered.contains(*line.number)) return;
        if (line.kind == OutcomeKind::Delivered) delivered.insert(*line.number);
    }
    QByteArray lines;
    if (m_size == 0 || !m_head.database.same(database)) {
        m_head.database = database;
        lines = m_head.bytes();
    }
    if (line.kind != OutcomeKind::Delivered) m_lastFailure = m_size + lines.size();
    lines += line.bytes();
    m_size += lines.size();
    m_unwritten += lines;
    if (!m_file.isOpen()) open();
    if (m_file.isOpen()) write();
}

void OutcomeFile::open() {
    m_status = sys::makeOwnFolder(m_folder.chopped(1));
    if (!m_status.ok()) {
        m_status = {ErrorCode::PathAccess, Words::tr("La cartella \"%1\" non si può creare.").arg(m_folder)};
        return;
    }
    m_path = m_folder + outcomes::newFileName(m_head.begun);
    m_status = sys::openForWriting(m_file, m_path, sys::WriteMode::Append, sys::FileKind::Secret);
    if (m_status.ok()) outcomes::removeOld(m_folder);
}

void OutcomeFile::write() {
    m_status = {};
    while (!m_unwritten.isEmpty()) {
        const ssize_t wrote =
            ::write(m_file.handle(), m_unwritten.constData(), static_cast<size_t>(m_unwritten.size()));
        if (wrote < 0 && errno == EINTR) continue;
        if (wrote < 0) {
            m_status = {ErrorCode::DeviceIo, Words::tr("Il file \"%1\" non si può scrivere: %2")
                                                 .arg(m_path, QString::fromLocal8Bit(std::strerror(errno)))};
            return;
        }
        m_unwritten.remove(0, wrote);
    }
}

std::optional<OutcomeLine> OutcomeFile::lastFailure() const {
    if (!m_lastFailure) return std::nullopt;
    const auto part = sys::readOwnFilePart(m_path, *m_lastFailure, longestOutcomeLine);
    if (!part.ok()) return std::nullopt;
    const qsizetype end = part.value().indexOf('\n');
    if (end < 0) return std::nullopt;
    return parseOutcomeLine(QByteArrayView(part.value()).first(end));
}

}  // namespace mail
