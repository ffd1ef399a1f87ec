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
    QByteArray out;
    out.reserve(text.size());
    for (const char c : text) {
        if (!isWsp(c))
            out += c;
        else if (!out.endsWith(' '))
            out += ' ';
    }
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
    qsizetype same = 0;  // from here on the lines are in this form, and were not passed on yet
    for (qsizetype from = 0, next = 0; from < lines.size(); from = next) {
        const qsizetype end = lines.indexOf('\n', from);
        next = end < 0 ? lines.size() : end + 1;
        const bool ended = end > from && lines[end - 1] == '\r';
        const QByteArrayView line = lines.sliced(from, (end < 0 ? next : end) - from - (ended ? 1 : 0));
        const QByteArrayView shown = withoutBlanksAtEnd(line);
        if (ended && !shown.isEmpty() && m_emptyLines == 0 && shown.size() == line.size() &&
            hasSingleBlanks(line))
            continue;
        if (from > same) m_consumer(lines.sliced(same, from - same));
        same = next;
        if (shown.isEmpty()) {
            ++m_emptyLines;
            continue;
        }
        m_consumer(QByteArray("\r\n").repeated(m_emptyLines) + withSingleBlanks(shown) + "\r\n");
        m_emptyLines = 0;
    }
    if (lines.size() > same) m_consumer(lines.sliced(same));
}

}  // namespace mail
