#include "platform/mail/DotStuffing.h"

#include <algorithm>
#include <cstring>

namespace mail {

QByteArray stuffedPiece(const QByteArray& data, qsizetype& offset, qsizetype limit) {
    const char* const begin = data.constData();
    const char* at = begin + offset;
    const char* const end = at + std::min(limit, data.size() - offset);
    offset = end - begin;

    QByteArray piece;
    piece.reserve(end - at + 64);
    for (const char* from = at; from < end;) {
        const char* const dot = static_cast<const char*>(std::memchr(from, '.', size_t(end - from)));
        if (!dot) break;
        if (dot == begin || dot[-1] == '\n') {
            piece.append(at, dot - at);
            piece.append('.');
            at = dot;
        }
        from = dot + 1;
    }
    piece.append(at, end - at);
    return piece;
}

}  // namespace mail
