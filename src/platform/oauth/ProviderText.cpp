// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the file of the providers.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include "platform/oauth/Provider.h"
#include "platform/text/Words.h"

namespace oauth {

namespace {

constexpr qsizetype longestText = 2048;

/// The entry of one provider. The first error is kept.
class EntryReader {
  public:
    EntryReader(const QString& id, const QJsonObject& entry) : m_id(id), m_entry(entry) {}

    const QString& fault() const { return m_fault; }
    void blame(const QString& field, const QString& why) {
        if (m_fault.isEmpty()) m_fault = QStringLiteral("%1, %2: %3").arg(m_id, field, why);
    }

    QString text(const QString& field, const QString& missing = {}) {
        const QJsonValue value = m_entry.value(field);
        if (value.isUndefined()) return missing;
        return text(field, value);
    }

    QStringList texts(const QString& field) {
        QStringList all;
        if (!m_entry.value(field).isArray()) blame(field, Words::tr("non è un elenco"));
        const QJsonArray values = m_entry.value(field).toArray();
        for (const auto& value : values)
            all.append(text(field, value));
        if (all.isEmpty()) blame(field, Words::tr("l'elenco è vuoto"));
        if (all.contains(QString())) blame(field, Words::tr("una voce è vuota"));
        return all;
    }

    QUrl endpoint(const QString& field) {
        QUrl url(text(field), QUrl::StrictMode);
        if (!url.isValid() || url.host().isEmpty())
            blame(field, Words::tr("non è un indirizzo"));
        else if (url.scheme() != QLatin1String("https"))
            blame(field, Words::tr("deve cominciare con https://"));
        else if (!url.userInfo().isEmpty() || url.hasFragment())
            blame(field, Words::tr("non può contenere né un utente né un frammento"));
        return url;
    }

    QList<QPair<QString, QString>> parameters(const QString& field) {
        QList<QPair<QString, QString>> all;
        const QJsonValue value = m_entry.value(field);
        if (!value.isUndefined() && !value.isObject()) blame(field, Words::tr("non è un oggetto"));
        const QJsonObject entries = value.toObject();
        for (auto it = entries.begin(); it != entries.end(); ++it) {
            if (ownParameters().contains(it.key())) blame(field, it.key() + Words::tr(" è del programma"));
            all.append({it.key(), text(field, it.value())});
        }
        return all;
    }

  private:
    /// What the program sets itself; see Consent.
    static const QSet<QString>& ownParameters() {
        static const QSet<QString> names{
            QStringLiteral("response_type"), QStringLiteral("client_id"),
            QStringLiteral("redirect_uri"),  QStringLiteral("scope"),
            QStringLiteral("state"),         QStringLiteral("code_challenge"),
            QStringLiteral("login_hint"),    QStringLiteral("code_challenge_method")};
        return names;
    }

    QString text(const QString& field, const QJsonValue& value) {
        static const QRegularExpression printable(QStringLiteral("\\A[\\x20-\\x7E]*\\z"));
        QString all = value.toString();
        if (!value.isString())
            blame(field, Words::tr("non è un testo"));
        else if (all.size() > longestText || !printable.match(all).hasMatch())
            blame(field, Words::tr("il testo è troppo lungo o contiene caratteri non ammessi"));
        return all;
    }

    const QString m_id;
    const QJsonObject m_entry;
    QString m_fault;
};

Provider provider(const QString& id, EntryReader& entry) {
    static const QRegularExpression scope(QStringLiteral("\\A[\\x21\\x23-\\x5B\\x5D-\\x7E]+\\z"));
    static const QRegularExpression host(
        QStringLiteral("\\A[a-z0-9]([a-z0-9-]*[a-z0-9])?(\\.[a-z0-9]([a-z0-9-]*[a-z0-9])?)*\\z"));
    Provider made;
    made.id = id;
    made.name = entry.text(QStringLiteral("name"), id);
    made.authorizationEndpoint = entry.endpoint(QStringLiteral("authorization_endpoint"));
    made.tokenEndpoint = entry.endpoint(QStringLiteral("token_endpoint"));
    made.scopes = entry.texts(QStringLiteral("scopes"));
    for (const QString& one : made.scopes)
        if (!scope.match(one).hasMatch())
            entry.blame(QStringLiteral("scopes"), Words::tr("una voce contiene caratteri non ammessi"));
    for (const QString& name : entry.texts(QStringLiteral("smtp_hosts"))) {
        made.smtpHosts.append(name.toLower());
        if (!host.match(made.smtpHosts.last()).hasMatch())
            entry.blame(QStringLiteral("smtp_hosts"), Words::tr("una voce non è il nome di un server"));
    }
    made.clientId = entry.text(QStringLiteral("client_id")).trimmed();
    made.clientSecret = entry.text(QStringLiteral("client_secret")).trimmed();
    made.redirectHost = entry.text(QStringLiteral("redirect_host"), QStringLiteral("127.0.0.1"));
    if (!QStringList{QStringLiteral("127.0.0.1"), QStringLiteral("localhost"), QStringLiteral("[::1]")}
             .contains(made.redirectHost))
        entry.blame(QStringLiteral("redirect_host"),
                    Words::tr("sono ammessi solo 127.0.0.1, localhost e [::1]"));
    made.authorizationParameters = entry.parameters(QStringLiteral("authorization_parameters"));
    return made;
}

}  // namespace

Result<QList<Provider>> parseProviders(const QByteArray& bytes, const QString& path) {
    static const QRegularExpression safeId(QStringLiteral("\\A[a-z0-9-]{1,32}\\z"));
    const auto fault = [&path](const QString& why) {
        return Status(ErrorCode::SyntaxError, Words::tr("Il file %1 non è valido: %2.").arg(path, why));
    };
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (!document.isObject())
        return fault(error.error == QJsonParseError::NoError
                         ? Words::tr("non contiene un oggetto")
                         : Words::tr("non è JSON dal byte %1").arg(error.offset));
    const QJsonObject entries = document.object();
    QList<Provider> providers;
    QSet<QString> hosts;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        if (!safeId.match(it.key()).hasMatch())
            return fault(Words::tr("il nome di un fornitore può contenere solo a-z, 0-9 e \"-\""));
        if (!it.value().isObject()) return fault(it.key() + Words::tr(" non è un oggetto"));
        EntryReader entry(it.key(), it.value().toObject());
        providers.append(provider(it.key(), entry));
        for (const QString& host : providers.last().smtpHosts) {
            if (hosts.contains(host))
                entry.blame(QStringLiteral("smtp_hosts"), host + Words::tr(" è scritto due volte"));
            hosts.insert(host);
        }
        if (!entry.fault().isEmpty()) return fault(entry.fault());
    }
    return providers;
}

}  // namespace oauth
