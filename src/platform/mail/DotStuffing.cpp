// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DotStuffing.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace mail {
namespace {

// The next dot at the start of a line of text that begins at `begin`, or `end`
const char* nextPointLine(const char* begin, const char* from, const char* end) {
    while (from < end) {
        const char* const dot = static_cast<const char*>(std::memchr(from, '.', size_t(end - from)));
        if (!dot) break;
        if (dot == begin || dot[-1] == '\n') return dot;
        from = dot + 1;
    }
    return end;
}

}  // namespace

QByteArray stuffedPiece(const QByteArray& data, qsizetype& offset, qsizetype limit) {
    assert(limit > 0 && offset >= 0 && offset <= data.size());
    const char* const begin = data.constData();
    const char* at = begin + offset;
    const char* const end = at + std::min(limit, data.size() - offset);
    offset = end - begin;

    const char* const first = nextPointLine(begin, at, end);
    if (first == end) return QByteArray::fromRawData(at, end - at);
    QByteArray piece;
    piece.reserve(end - at + 64);
    for (const char* dot = first; dot != end; dot = nextPointLine(begin, at, end)) {
        piece.append(at, dot - at);
        piece.append("..", 2);
        at = dot + 1;
    }
    return piece.append(at, end - at);
}

bool hasPointLines(const QByteArray& data) {
    return nextPointLine(data.constBegin(), data.constBegin(), data.constEnd()) != data.constEnd();
}

}  // namespace mail
