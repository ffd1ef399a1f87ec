// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/SmtpReply.h"

#include <algorithm>
#include <QList>

namespace mail {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int numberOf(QByteArrayView digits) {
    return (digits[0] - '0') * 100 + (digits[1] - '0') * 10 + (digits[2] - '0');
}

/// Controls, line separators, and what changes the direction of a text or is invisible.
bool steersDisplay(uint character) {
    switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Other_Format:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            return true;
        default:
            return false;
    }
}

/// Code at the head of a line, 0 where there is none.
int codeOf(QByteArrayView line) {
    if (line.size() < 3 || line[0] < '2' || line[0] > '5' || !isDigit(line[1]) || !isDigit(line[2])) return 0;
    if (line.size() > 3 && line[3] != ' ' && line[3] != '-') return 0;
    return numberOf(line);
}

}  // namespace

ReplyParse parseSmtpReply(QByteArrayView bytes, qsizetype offset) {
    ReplyParse parse;
    for (qsizetype at = offset;;) {
        const qsizetype end = bytes.indexOf('\n', at);
        const qsizetype size = (end < 0 ? bytes.size() : end + 1) - at;
        if (size > maxReplyLine || at + size - offset > maxReplySize) {
            parse.state = ReplyParse::State::Malformed;
            return parse;
        }
        if (end < 0) return parse;

        QByteArrayView line = bytes.sliced(at, end - at);
        if (line.endsWith('\r')) line.chop(1);
        const int code = codeOf(line);
        if (code == 0 || line.contains('\0')) {
            parse.state = ReplyParse::State::Malformed;
            return parse;
        }
        if (at != offset) parse.reply.text += '\n';
        at = end + 1;
        parse.reply.text += line.size() > 4 ? line.sliced(4) : QByteArrayView("");
        if (line.size() > 3 && line[3] == '-') continue;

        parse.state = ReplyParse::State::Complete;
        parse.reply.code = code;
        parse.next = at;
        return parse;
    }
}

bool isAcceptance(QByteArrayView reply) {
    return reply.size() >= 3 && reply[0] == '2' && isDigit(reply[1]) && isDigit(reply[2]);
}

int acceptanceCode(QByteArrayView reply) {
    return numberOf(reply);
}

QString printable(QByteArrayView text) {
    if (std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        return QString::fromLatin1(text);
    QList<uint> shown = QString::fromUtf8(text).toUcs4();
    std::replace_if(shown.begin(), shown.end(), steersDisplay, uint{' '});
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(shown.constData()), shown.size());
}

}  // namespace mail
