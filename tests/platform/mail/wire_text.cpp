// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/wire_text.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace wire {
namespace {

QString latin(const QByteArray& octets) {
    return QString::fromLatin1(octets);
}

void complain(QStringList& complaints, const char* what, const QByteArray& where) {
    complaints += QString::fromLatin1(what) + ": " + latin(where.left(200));
}

// The Q form (RFC 2047 4.2)
QByteArray qWord(const QByteArray& text, QStringList& complaints) {
    QByteArray out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '_') {
            out += ' ';
        } else if (text[i] == '=') {
            bool known = false;
            out += static_cast<char>(text.mid(i + 1, 2).toInt(&known, 16));
            if (!known || i + 2 >= text.size()) complain(complaints, "broken encoded word", text);
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

QByteArray strictBase64(const QByteArray& text, QStringList& complaints) {
    const auto read = QByteArray::fromBase64Encoding(
        text, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!read || text.size() % 4 != 0) complain(complaints, "broken base64", text);
    return read.decoded;
}

bool isPlainLine(const QByteArray& value) {
    return std::all_of(value.begin(), value.end(), [](char c) { return c >= 0x20 && c < 0x7F; });
}

// One parameter's name with the marks of RFC 2231: "name", "name*", "name*0", "name*0*"
struct ParameterName {
    QByteArray name;
    int section = -1;
    bool encoded = false;
};

ParameterName readName(QByteArray text) {
    ParameterName read;
    read.encoded = text.endsWith('*');
    if (read.encoded) text.chop(1);
    const qsizetype star = text.indexOf('*');
    if (star >= 0) read.section = text.mid(star + 1).toInt();
    read.name = (star < 0 ? text : text.left(star)).toLower();
    return read;
}

QByteArray unquoted(QByteArray value) {
    if (!value.startsWith('"')) return value;
    value = value.mid(1).chopped(1);
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == '\\') value.remove(i, 1);
    }
    return value;
}

}  // namespace

QString utf8(const QByteArray& octets, QStringList& complaints) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(octets);
    if (decoder.hasError()) complain(complaints, "broken character", octets);
    return text;
}

QString headerText(const QByteArray& value, QStringList& complaints) {
    if (!value.contains("=?")) {
        if (!isPlainLine(value)) complain(complaints, "bare header text", value);
        return latin(value);
    }
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern("=\\?utf-8\\?([QB])\\?([!->@-~]+)\\?="));
    QString text;
    for (const QByteArray& word : value.split(' ')) {
        const auto match = form.match(latin(word));
        if (!match.hasMatch()) complain(complaints, "no encoded word", word);
        if (word.size() > 75) complain(complaints, "encoded word of more than 75 octets", word);
        const QByteArray content = match.captured(2).toLatin1();
        // each word is complete in itself
        text +=
            utf8(match.captured(1) == "Q" ? qWord(content, complaints) : strictBase64(content, complaints),
                 complaints);
    }
    return text;
}

QByteArray quotedPrintable(const QByteArray& text, QStringList& complaints) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern("(?:[!-<>-~]|[ \\t](?!$)|=[0-9A-F]{2})*=?"));
    QByteArray out;
    const auto lines = QByteArray(text).replace("\r\n", "\n").split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QByteArray line = lines[i];
        if (line.size() > 76) complain(complaints, "quoted-printable line of more than 76 octets", line);
        if (!form.match(latin(line)).hasMatch()) complain(complaints, "broken quoted-printable", line);
        const bool soft = line.endsWith('=');
        if (soft) line.chop(1);
        for (qsizetype at = 0; at < line.size(); ++at) {
            if (line[at] != '=') {
                out += line[at];
                continue;
            }
            out += static_cast<char>(line.mid(at + 1, 2).toInt(nullptr, 16));
            at += 2;
        }
        if (!soft && i + 1 < lines.size()) out += "\r\n";
        if (soft && i + 1 == lines.size()) complain(complaints, "soft line break at the end", line);
    }
    return out;
}

QByteArray base64(const QByteArray& text, QStringList& complaints) {
    QByteArray all;
    const auto lines = QByteArray(text).replace("\r\n", "\n").split('\n');
    for (const QByteArray& line : lines) {
        if (line.size() > 76) complain(complaints, "base64 line of more than 76 octets", line);
        all += line;
    }
    return strictBase64(all, complaints);
}

QMap<QByteArray, QString> parameters(const QByteArray& text, QStringList& complaints) {
    static const QRegularExpression form(
        R"re(\G;[ \t]*([A-Za-z0-9-]+(?:\*\d+)?\*?)=("(?:[^"\\\r\n]|\\.)*"|[^ \t;"()<>@,:\\/\[\]?=]+))re");
    QMap<QByteArray, QByteArray> values;
    QMap<QByteArray, bool> encoded;
    const QString source = latin(text);
    qsizetype end = 0;
    for (auto matches = form.globalMatch(source); matches.hasNext();) {
        const auto match = matches.next();
        end = match.capturedEnd();
        const ParameterName name = readName(match.captured(1).toLatin1());
        const QByteArray value = unquoted(match.captured(2).toLatin1());
        if (values.contains(name.name) && name.section < 1) complain(complaints, "parameter twice", text);
        // sections are numbered from 0, in order, and none of them splits a character
        if (name.encoded) {
            QByteArray octets = value;
            if (name.section < 1 && octets.startsWith("utf-8''")) octets.remove(0, 7);
            utf8(QByteArray::fromPercentEncoding(octets), complaints);
        }
        values[name.name] += value;
        encoded[name.name] = encoded.value(name.name) || name.encoded;
    }
    if (end != source.size()) complain(complaints, "broken parameters", text);

    QMap<QByteArray, QString> read;
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        QByteArray octets = value.value();
        if (encoded[value.key()]) {
            if (!octets.startsWith("utf-8''")) complain(complaints, "no charset in a parameter", octets);
            octets = QByteArray::fromPercentEncoding(octets.mid(7));
        } else if (!isPlainLine(octets)) {
            complain(complaints, "bare parameter", octets);
        }
        read[value.key()] = utf8(octets, complaints);
    }
    return read;
}

}  // namespace wire
