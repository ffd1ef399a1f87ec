// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/contacts/VCardProperty.h"

#include <algorithm>
#include <cstring>

#include "platform/contacts/CardText.h"

namespace contacts {

namespace {

/// Position of the first of `characters` outside double quotes, from `start` on; the size where there is
/// none.
qsizetype findUnquoted(const QByteArray& line, const char* characters, qsizetype start = 0) {
    bool quoted = false;
    for (qsizetype i = start; i < line.size(); ++i) {
        if (line[i] == '"') quoted = !quoted;
        if (!quoted && std::strchr(characters, line[i]) != nullptr && line[i] != '\0') return i;
    }
    return line.size();
}

/// A colon that comes later than this does not matter to isQuotedPrintable().
constexpr qsizetype longestHeader = 1000;

/// The part of a line in front of its value.
struct Header {
    QByteArray name;
    QByteArrayList types;
    int rank = 101;
    QByteArray encoding;
    QByteArray charset;
    qsizetype valueStart = -1;  ///< -1 where there is no colon
};

void addTypes(Header& header, QByteArray values) {
    values.replace('"', "");
    for (const QByteArray& type : values.toUpper().split(',')) {
        if (type == "PREF") header.rank = std::min(header.rank, 1);
        header.types.append(type.trimmed());
    }
}

void addParameter(Header& header, const QByteArray& parameter) {
    const qsizetype equals = parameter.indexOf('=');
    const QByteArray key = parameter.left(std::max<qsizetype>(equals, 0)).trimmed().toUpper();
    QByteArray value = parameter.mid(equals + 1).trimmed();
    if (equals < 0) {
        const QByteArray bare = value.toUpper();
        if (bare == "QUOTED-PRINTABLE" || bare == "BASE64") {
            header.encoding = bare;
        } else {
            addTypes(header, value);
        }
    } else if (key == "TYPE") {
        addTypes(header, value);
    } else if (key == "ENCODING") {
        header.encoding = value.toUpper();
    } else if (key == "CHARSET") {
        header.charset = value.replace('"', "");
    } else if (key == "PREF") {
        bool number = false;
        const int rank = value.toInt(&number);
        if (number && rank >= 1 && rank <= 100) header.rank = std::min(header.rank, rank);
    }
}

Header readHeader(const QByteArray& line) {
    Header header;
    const qsizetype colon = findUnquoted(line, ":");
    if (colon == line.size()) return header;
    header.valueStart = colon + 1;
    qsizetype end = findUnquoted(line, ";:");
    header.name = line.left(end).trimmed().toUpper();
    header.name.remove(0, header.name.lastIndexOf('.') + 1);
    while (end < colon) {
        const qsizetype start = end + 1;
        end = std::min(findUnquoted(line, ";:", start), colon);
        addParameter(header, line.mid(start, end - start));
    }
    return header;
}

/// The character that an escape stands for, or nothing where the backslash is literal.
QString unescaped(QChar escaped, VCardStyle style) {
    const bool lineBreak = escaped == u'n' || escaped == u'N';
    if (style == VCardStyle::New) return lineBreak ? QStringLiteral("\r\n") : QString(escaped);
    return QStringLiteral(";,:\\").contains(escaped) ? QString(escaped) : QString();
}

/// The parts of a value between unescaped ";", without their escapes; the whole as one where `divided` is
/// false.
QStringList partsOf(const VCardProperty& property, bool divided) {
    QStringList parts(QString{});
    const QString& value = property.value;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QString character =
            value[i] == u'\\' && i + 1 < value.size() ? unescaped(value[i + 1], property.style) : QString();
        if (!character.isEmpty()) {
            parts.last() += character;
            ++i;
        } else if (divided && value[i] == u';') {
            parts.append(QString());
        } else {
            parts.last() += value[i];
        }
    }
    return parts;
}

}  // namespace

QString VCardProperty::text() const {
    return partsOf(*this, false).constFirst();
}

QString VCardProperty::part(int index) const {
    return partsOf(*this, true).value(index);
}

bool isQuotedPrintable(const QByteArray& line) {
    return readHeader(line.left(longestHeader)).encoding == "QUOTED-PRINTABLE";
}

VCardProperty readProperty(const QByteArray& line, VCardStyle style) {
    Header header = readHeader(line);
    VCardProperty property;
    property.style = style;
    if (header.valueStart < 0) return property;
    QByteArray bytes = line.mid(header.valueStart);
    if (header.encoding == "QUOTED-PRINTABLE") {
        bytes = QByteArray::fromPercentEncoding(bytes, '=');
    } else if (header.encoding == "BASE64" || header.encoding == "B") {
        bytes = QByteArray::fromBase64(bytes);
    }
    property.name = std::move(header.name);
    property.types = std::move(header.types);
    property.rank = header.rank;
    property.value = withLineBreaks(cardText(bytes, header.charset));
    return property;
}

}  // namespace contacts
