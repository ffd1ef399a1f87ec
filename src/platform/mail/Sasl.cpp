// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Sasl.h"

#include <gsasl.h>
#include <QByteArrayList>
#include <utility>

#include "platform/mail/BearerTokens.h"
#include "platform/text/Words.h"

namespace mail {

namespace {

/// The library's context: made once, it contains no state of any login.
Gsasl* context() {
    static Gsasl* const shared = [] {
        Gsasl* made = nullptr;
        return gsasl_init(&made) == GSASL_OK ? made : nullptr;
    }();
    return shared;
}

Status failure(int code) {
    return {ErrorCode::NotSupported,
            Words::tr("Autenticazione non riuscita: %1").arg(QString::fromUtf8(gsasl_strerror(code)))};
}

/// Whether a digest can be made of the text: it has to be a valid string of RFC 4013, without unassigned
/// characters. The flag makes the library refuse those, whatever its name says.
bool canBeDigested(const QString& text) {
    char* out = nullptr;
    const int code = gsasl_saslprep(text.toUtf8().constData(), GSASL_ALLOW_UNASSIGNED, &out, nullptr);
    gsasl_free(out);
    return code == GSASL_OK;
}

/// Rounds of a SCRAM server's key derivation (RFC 5802 5.1). A server may ask for any number of them, and
/// each delays the whole program: this many take about a second, while servers ask for some thousands.
constexpr qulonglong mostIterations = 1'000'000;

bool asksTooMuch(const QByteArray& challenge) {
    for (const QByteArray& attribute : challenge.split(',')) {
        bool known = false;
        if (attribute.startsWith("i=") && (attribute.mid(2).toULongLong(&known) > mostIterations || !known))
            return true;
    }
    return false;
}

bool sendsPassword(const QByteArray& mechanism) {
    return mechanism == "PLAIN" || mechanism == "LOGIN";
}

}  // namespace

struct SaslExchange::State {
    Gsasl_session* session = nullptr;  ///< null: a token is sent instead of an exchange by the library
    QByteArrayList answers;            ///< the answers that remain to be sent then
    bool clientFirst = false;
    bool derivesKey = false;
    bool complete = false;

    State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() {
        if (session) gsasl_finish(session);
    }
};

SaslExchange::SaslExchange(std::unique_ptr<State> state) : m_state(std::move(state)) {}
SaslExchange::SaslExchange(SaslExchange&&) noexcept = default;
SaslExchange& SaslExchange::operator=(SaslExchange&&) noexcept = default;
SaslExchange::~SaslExchange() = default;

Result<SaslExchange> SaslExchange::start(const QByteArray& mechanism, const QString& user,
                                         const QString& password, const QString& host) {
    if (user.contains(QChar::Null) || password.contains(QChar::Null))
        return Status(ErrorCode::TypeMismatch,
                      Words::tr("Il nome utente o la password contengono un carattere non ammesso."));
    if (!sendsPassword(mechanism) && !(canBeDigested(user) && canBeDigested(password)))
        return failure(GSASL_SASLPREP_ERROR);
    auto state = std::make_unique<State>();
    int code = context() ? gsasl_client_start(context(), mechanism.constData(), &state->session)
                         : GSASL_MALLOC_ERROR;
    const std::pair<Gsasl_property, QString> values[] = {{GSASL_AUTHID, user},
                                                         {GSASL_PASSWORD, password},
                                                         {GSASL_SERVICE, QStringLiteral("smtp")},
                                                         {GSASL_HOSTNAME, host}};
    for (const auto& [property, value] : values) {
        if (code == GSASL_OK) code = gsasl_property_set(state->session, property, value.toUtf8().constData());
    }
    if (code != GSASL_OK) return failure(code);
    state->derivesKey = mechanism.startsWith("SCRAM-");
    state->clientFirst = mechanism == "PLAIN" || state->derivesKey;
    return SaslExchange(std::move(state));
}

Result<SaslExchange> SaslExchange::startBearer(const QByteArray& mechanism, const QString& user,
                                               const QString& token, const QString& host, quint16 port) {
    const Result<QByteArray> response = bearerResponse(mechanism, user, token.toLatin1(), host, port);
    if (!response.ok()) return response.status();
    auto state = std::make_unique<State>();
    state->clientFirst = true;
    state->answers = {response.value(), bearerFarewell(mechanism)};
    return SaslExchange(std::move(state));
}

bool SaslExchange::clientFirst() const {
    return m_state->clientFirst;
}

Result<QByteArray> SaslExchange::step(const QByteArray& challenge) {
    if (m_state->derivesKey && asksTooMuch(challenge)) return failure(GSASL_MECHANISM_PARSE_ERROR);
    if (!m_state->session) {
        if (m_state->answers.isEmpty()) return failure(GSASL_MECHANISM_CALLED_TOO_MANY_TIMES);
        m_state->complete = m_state->answers.size() == 2;  // an error is reported after that
        return m_state->answers.takeFirst();
    }
    char* output = nullptr;
    size_t size = 0;
    const int code =
        gsasl_step(m_state->session, challenge.constData(), size_t(challenge.size()), &output, &size);
    if (code != GSASL_OK && code != GSASL_NEEDS_MORE) return failure(code);
    m_state->complete = code == GSASL_OK;
    const QByteArray answer(output, qsizetype(size));
    gsasl_free(output);
    return answer;
}

bool SaslExchange::complete() const {
    return m_state->complete;
}

}  // namespace mail
