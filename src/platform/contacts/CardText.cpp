// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/CardText.h"

#include <algorithm>
#include <QStringDecoder>

#include "platform/text/AnsiCodec.h"

namespace contacts {

QString cardText(QByteArrayView bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8(bytes);
    return utf8.hasError() ? text::fromAnsi(bytes) : text;
}

QString cardText(QByteArrayView bytes, const QByteArray& charset) {
    if (charset.isEmpty() || charset.compare("windows-1252", Qt::CaseInsensitive) == 0) {
        return charset.isEmpty() ? cardText(bytes) : text::fromAnsi(bytes);
    }
    QStringDecoder decoder(charset.constData());
    return decoder.isValid() ? QString(decoder(bytes)) : cardText(bytes);
}

QByteArray withoutByteOrderMark(const QByteArray& file) {
    if (file.startsWith("\xEF\xBB\xBF")) return file.mid(3);
    const bool utf16 = file.startsWith("\xFF\xFE") || file.startsWith("\xFE\xFF");
    return utf16 ? QString(QStringDecoder(QStringDecoder::Utf16)(file)).toUtf8() : file;
}

QString withLineBreaks(const QString& text) {
    QString result = text;
    result.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    result.replace(u'\r', u'\n');
    return result.replace(QLatin1String("\n"), QLatin1String("\r\n"));
}

QByteArrayView takeLine(QByteArrayView& rest) {
    const auto end = std::find_if(rest.begin(), rest.end(), [](char c) { return c == '\r' || c == '\n'; });
    const QByteArrayView line(rest.begin(), end);
    rest = rest.sliced(line.size());
    if (rest.startsWith("\r\n")) {
        rest = rest.sliced(2);
    } else if (!rest.isEmpty()) {
        rest = rest.sliced(1);
    }
    return line;
}

}  // namespace contacts
