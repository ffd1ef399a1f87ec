// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/ConnectionText.h"

#include <optional>
#include <QStringList>

#include "platform/text/SameText.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

Status malformed() {
    return {ErrorCode::SyntaxError, Words::tr("Formato della stringa di connessione non valido.")};
}

/// Whether a text begins with a key of a connection text and its equal sign.
bool beginsWithKey(QStringView text) {
    static const QStringList keys{"provider",
                                  "data source",
                                  "mode",
                                  "user id",
                                  "password",
                                  "persist security info",
                                  "uid",
                                  "pwd",
                                  "extended properties",
                                  "file name",
                                  "initial catalog",
                                  "locale identifier",
                                  "prompt",
                                  "connect timeout",
                                  "general timeout",
                                  "ole db services",
                                  "cache authentication",
                                  "encrypt password",
                                  "mask password",
                                  "window handle"};
    const qsizetype equal = text.indexOf(u'=');
    if (equal < 0) return false;
    const QString key = text.left(equal).toString().simplified().toLower();
    return keys.contains(key) || key.startsWith(QLatin1String("jet oledb:"));
}

/// Where a path that begins at `at` without quotes ends: it may have semicolons.
qsizetype endOfPath(const QString& text, qsizetype at) {
    for (qsizetype end = text.indexOf(u';', at); end >= 0; end = text.indexOf(u';', end + 1)) {
        qsizetype next = end;
        while (next < text.size() && (text[next] == u';' || text[next].isSpace()))
            ++next;
        if (next == text.size() || beginsWithKey(QStringView(text).mid(next))) return end;
    }
    return -1;
}

/// Cuts the value that begins at `at`, quoted or not, and moves `at` past its closing semicolon.
std::optional<QString> takeValue(const QString& text, qsizetype& at, bool path) {
    while (at < text.size() && text[at].isSpace())
        ++at;
    QString value;
    if (at < text.size() && (text[at] == u'"' || text[at] == u'\'')) {
        const QChar quote = text[at++];
        for (;; ++at) {
            if (at >= text.size()) return std::nullopt;
            if (text[at] == quote && (at + 1 >= text.size() || text[at + 1] != quote)) break;
            if (text[at] == quote) ++at;
            value += text[at];
        }
        const qsizetype end = text.indexOf(u';', ++at);
        const QString rest = text.mid(at, end < 0 ? -1 : end - at);
        if (!rest.trimmed().isEmpty()) return std::nullopt;
        at = end < 0 ? text.size() : end + 1;
        return value;
    }
    const qsizetype end = path ? endOfPath(text, at) : text.indexOf(u';', at);
    value = text.mid(at, end < 0 ? -1 : end - at).trimmed();
    at = end < 0 ? text.size() : end + 1;
    return value;
}

Result<ConnectionText> readParts(const QString& text) {
    ConnectionText result;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype equal = text.indexOf(u'=', at);
        const qsizetype semicolon = text.indexOf(u';', at);
        if (semicolon >= 0 && (equal < 0 || semicolon < equal)) {
            if (!text.mid(at, semicolon - at).trimmed().isEmpty()) return malformed();
            at = semicolon + 1;
            continue;
        }
        if (equal < 0) {
            if (!text.mid(at).trimmed().isEmpty()) return malformed();
            break;
        }
        const QString key = text.mid(at, equal - at).simplified().toLower();
        at = equal + 1;
        const std::optional<QString> value = takeValue(text, at, key == QLatin1String("data source"));
        if (key.isEmpty() || !value) return malformed();
        if (key == QLatin1String("data source")) {
            result.path = *value;
        } else if (key == QLatin1String("jet oledb:database password")) {
            result.password = *value;
        } else if (key == QLatin1String("provider") &&
                   value->compare(QLatin1String("Microsoft.Jet.OLEDB.4.0"), Qt::CaseInsensitive) != 0) {
            return Status(ErrorCode::NotSupported,
                          Words::tr("Impossibile trovare il provider \"%1\".").arg(*value));
        }
    }
    if (result.path.isEmpty())
        return Status(ErrorCode::FileNotFound, Words::tr("Nessun file di database indicato."));
    return result;
}

}  // namespace

Result<ConnectionText> ConnectionText::parse(const QString& text) {
    // Each recordset and each command of a program names the same database.
    static thread_local QString knownText;
    static thread_local ConnectionText known;
    if (!text.isEmpty() && text::sameText(text, knownText)) return known;
    Result<ConnectionText> result = readParts(text);
    if (!result.ok()) return result;
    knownText = text;
    known = result.value();
    return result;
}

}  // namespace ado
