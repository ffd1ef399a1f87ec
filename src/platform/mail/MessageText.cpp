// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/MessageText.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/mail/DotStuffing.h"

namespace mail {
namespace {

// Shorter pieces are copied: a message of ordinary size is sent in one write
constexpr qsizetype leastShared = 64 * 1024;

}  // namespace

SharedLines::SharedLines(QByteArray octets)
    : m_octets(std::move(octets)), m_hasPoints(hasPointLines(m_octets)) {
    assert(m_octets.isEmpty() || m_octets.endsWith("\r\n"));
}

void MessageText::append(const SharedLines& lines) {
    assert(m_end.isEmpty() || m_end.endsWith("\r\n"));
    if (lines.octets().size() < leastShared) {
        m_end += lines.octets();
        return;
    }
    if (!m_end.isEmpty()) m_shared.emplace_back(std::exchange(m_end, {}));
    m_shared.push_back(lines);
}

void MessageText::prepend(const QByteArray& lines) {
    assert(lines.isEmpty() || lines.endsWith("\r\n"));
    if (m_shared.empty())
        m_end.prepend(lines);
    else
        m_shared.front() = SharedLines(lines + m_shared.front().octets());
}

std::vector<QByteArrayView> MessageText::pieces() const {
    std::vector<QByteArrayView> all;
    for (const SharedLines& lines : m_shared)
        all.emplace_back(lines.octets());
    if (!m_end.isEmpty()) all.emplace_back(m_end);
    return all;
}

qsizetype MessageText::size() const {
    qsizetype size = 0;
    for (const QByteArrayView piece : pieces())
        size += piece.size();
    return size;
}

bool MessageText::endsLine() const {
    const auto all = pieces();
    return !all.empty() && all.back().endsWith("\r\n");
}

QByteArray MessageText::stuffed(Place& place, qsizetype limit) const {
    if (place.piece == m_shared.size()) return stuffedPiece(m_end, place.offset, limit);
    const SharedLines& lines = m_shared[place.piece];
    QByteArray octets;
    if (lines.hasPoints()) {
        octets = stuffedPiece(lines.octets(), place.offset, limit);
    } else {
        const qsizetype length = std::min(limit, lines.octets().size() - place.offset);
        octets = QByteArray::fromRawData(lines.octets().constData() + place.offset, length);
        place.offset += length;
    }
    if (place.offset == lines.octets().size()) place = {place.piece + 1, 0};
    return octets;
}

}  // namespace mail
