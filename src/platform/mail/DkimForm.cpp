// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/DkimForm.h"

#include <algorithm>

#include "platform/mail/OctetGroup.h"

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

/// Whether the octet cannot be in a relaxed body, `next` following it; a blank before a CR alone could.
bool isOdd(char c, char next) {
    return c == '\t' || (c == ' ' && (next == ' ' || next == '\r')) || (next == '\n' && c != '\r');
}

/// The number of octets before the first odd one, or before the last one.
qsizetype evenLength(QByteArrayView lines) {
    qsizetype at = 0;
    for (; at + groupSize < lines.size(); at += groupSize) {
        const Group here = groupAt(lines.data() + at), next = groupAt(lines.data() + at + 1);
        const Group odd = (here == Group{} + '\t') |
                          ((here == Group{} + ' ') & ((next == Group{} + ' ') | (next == Group{} + '\r'))) |
                          ((next == Group{} + '\n') & (here != Group{} + '\r'));
        const auto halves = halvesOf(odd);
        if ((halves[0] | halves[1]) != 0) break;
    }
    while (at + 1 < lines.size() && !isOdd(lines[at], lines[at + 1]))
        ++at;
    return at;
}

/// The length of the lines at the start that are in their relaxed form.
qsizetype relaxedLength(QByteArrayView lines) {
    if (lines.startsWith('\n')) return 0;
    // The octet that follows may be the last one's line end.
    const qsizetype even = std::min(evenLength(lines) + 1, lines.size());
    return lines.first(even).lastIndexOf('\n') + 1;
}

}  // namespace

void appendRelaxedField(QByteArray& out, QByteArrayView field) {
    const qsizetype colon = field.indexOf(':'), before = out.size();
    out.resize(before + field.size());
    char* to = out.data() + before;
    for (const char c : withoutBlanksAtEnd(field.first(colon)))
        *to++ = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    *to++ = ':';
    const char* const value = to;
    bool afterBlank = false;
    for (qsizetype at = colon + 1; at < field.size(); ++at) {
        const char c = field[at];
        if (c == '\r' && at + 1 < field.size() && field[at + 1] == '\n') {
            ++at;
        } else if (isWsp(c)) {
            afterBlank = true;
        } else {
            if (afterBlank && to != value) *to++ = ' ';
            afterBlank = false;
            *to++ = c;
        }
    }
    out.truncate(to - out.constData());
}

void RelaxedBody::add(QByteArrayView lines) {
    while (!lines.isEmpty()) {
        const qsizetype relaxed = relaxedLength(lines);
        if (relaxed > 0) addRelaxed(lines.first(relaxed));
        lines = lines.sliced(relaxed > 0 ? relaxed : addLine(lines));
    }
}

void RelaxedBody::addRelaxed(QByteArrayView lines) {
    qsizetype end = lines.size(), emptyLines = 0;
    for (; end == 2 || (end > 2 && lines[end - 3] == '\n'); end -= 2)
        ++emptyLines;
    if (end > 0) {
        passOnEmptyLines();
        m_consumer(lines.first(end));
    }
    m_emptyLines += emptyLines;
}

/// The first line, in whatever form; returns its length.
qsizetype RelaxedBody::addLine(QByteArrayView lines) {
    const qsizetype lineFeed = lines.indexOf('\n');
    const qsizetype next = lineFeed < 0 ? lines.size() : lineFeed + 1;
    QByteArrayView line = lines.first(lineFeed < 0 ? next : lineFeed);
    if (lineFeed >= 0 && line.endsWith('\r')) line.chop(1);
    line = withoutBlanksAtEnd(line);
    if (line.isEmpty()) {
        ++m_emptyLines;
    } else {
        passOnEmptyLines();
        m_consumer(withSingleBlanks(line) + "\r\n");
    }
    return next;
}

void RelaxedBody::passOnEmptyLines() {
    if (m_emptyLines > 0) m_consumer(QByteArray("\r\n").repeated(m_emptyLines));
    m_emptyLines = 0;
}

}  // namespace mail
