#include "platform/ado/ConnectionText.h"

#include <optional>

namespace ado {

namespace {

Status malformed() {
    return {ErrorCode::SyntaxError, QStringLiteral("Formato della stringa di connessione non valido.")};
}

/// Cuts the value that begins at `at`, quoted or not, and moves `at` behind its closing semicolon.
std::optional<QString> takeValue(const QString& text, qsizetype& at) {
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
    const qsizetype end = text.indexOf(u';', at);
    value = text.mid(at, end < 0 ? -1 : end - at).trimmed();
    at = end < 0 ? text.size() : end + 1;
    return value;
}

}  // namespace

Result<ConnectionText> ConnectionText::parse(const QString& text) {
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
        const std::optional<QString> value = takeValue(text, at);
        if (key.isEmpty() || !value) return malformed();
        if (key == QLatin1String("data source")) {
            result.path = *value;
        } else if (key == QLatin1String("jet oledb:database password")) {
            result.password = *value;
        } else if (key == QLatin1String("provider") &&
                   value->compare(QLatin1String("Microsoft.Jet.OLEDB.4.0"), Qt::CaseInsensitive) != 0) {
            return Status(ErrorCode::NotSupported,
                          QStringLiteral("Impossibile trovare il provider \"%1\".").arg(*value));
        }
    }
    if (result.path.isEmpty())
        return Status(ErrorCode::FileNotFound, QStringLiteral("Nessun file di database indicato."));
    return result;
}

}  // namespace ado
