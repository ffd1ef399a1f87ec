// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimForm.h"

#include <cstring>

namespace mail {
namespace {

bool isWsp(char c) {
    return c == ' ' || c == '\t';
}

QByteArrayView withoutBlanksAtEnd(QByteArrayView line) {
    while (!line.isEmpty() && isWsp(line.back()))
        line.chop(1);
    return line;
}

QByteArray withSingleBlanks(QByteArrayView text) {
    QByteArray out(text.size(), Qt::Uninitialized);
    char* to = out.data();
    bool afterBlank = false;
    for (const char c : text) {
        const bool blank = isWsp(c);
        if (!blank || !afterBlank) *to++ = blank ? ' ' : c;
        afterBlank = blank;
    }
    out.truncate(to - out.constData());
    return out;
}

bool hasSingleBlanks(QByteArrayView line) {
    if (std::memchr(line.data(), '\t', size_t(line.size()))) return false;
    const char* const end = line.data() + line.size();
    for (const char* at = line.data();
         (at = static_cast<const char*>(std::memchr(at, ' ', size_t(end - at)))) && at + 1 < end; at += 2) {
        // of two blanks in a row this finds the first or, after a single one, none
        if (at[1] == ' ') return false;
    }
    return true;
}

}  // namespace

QByteArray relaxedField(QByteArrayView field) {
    const qsizetype colon = field.indexOf(':');
    QByteArray value = field.sliced(colon + 1).toByteArray();
    value.replace("\r\n", "");
    return withoutBlanksAtEnd(field.first(colon)).toByteArray().toLower() + ':' +
           withSingleBlanks(QByteArrayView(value).trimmed());
}

void RelaxedBody::add(QByteArrayView lines) {
    // From `same` on the lines are in this form and were not passed on yet. Those after `shownEnd` are empty:
    // they count where another line follows.
    qsizetype same = 0, shownEnd = 0, emptyLines = 0;
    const auto passOn = [&](qsizetype end) {
        if (end > same) m_consumer(lines.sliced(same, end - same));
    };
    for (qsizetype from = 0, next = 0; from < lines.size(); from = next) {
        const qsizetype end = lines.indexOf('\n', from);
        next = end < 0 ? lines.size() : end + 1;
        const bool ended = end > from && lines[end - 1] == '\r';
        const QByteArrayView line = lines.sliced(from, (end < 0 ? next : end) - from - (ended ? 1 : 0));
        const QByteArrayView shown = withoutBlanksAtEnd(line);
        const bool empty = shown.isEmpty();
        if (ended && m_emptyLines == 0 && shown.size() == line.size() && hasSingleBlanks(line)) {
            emptyLines = empty ? emptyLines + 1 : 0;
            if (!empty) shownEnd = next;
            continue;
        }
        passOn(empty ? shownEnd : from);
        if (empty) m_emptyLines += emptyLines + 1;
        same = shownEnd = next;
        emptyLines = 0;
        if (empty) continue;
        m_consumer(QByteArray("\r\n").repeated(m_emptyLines) + withSingleBlanks(shown) + "\r\n");
        m_emptyLines = 0;
    }
    passOn(shownEnd);
    m_emptyLines += emptyLines;
}

}  // namespace mail
