// SPDX-License-Identifier: GPL-3.0-or-later
// The client's side of each mechanism with the server's side of the same library.
#include <gsasl.h>
#include <gtest/gtest.h>

#include "platform/mail/Sasl.h"

namespace smtp_sasl_test {

namespace {

const char* const user = "utente";

/// A server that knows one password.
class Server {
  public:
    Server(const QByteArray& mechanism, QByteArray password) : m_password(std::move(password)) {
        gsasl_init(&m_context);
        gsasl_callback_hook_set(m_context, this);
        gsasl_callback_set(m_context, [](Gsasl* context, Gsasl_session* session, Gsasl_property property) {
            const auto* self = static_cast<Server*>(gsasl_callback_hook_get(context));
            switch (property) {
                case GSASL_PASSWORD:
                    return gsasl_property_set(session, property, self->m_password.constData());
                case GSASL_VALIDATE_SIMPLE:
                    return gsasl_property_get(session, GSASL_PASSWORD) == self->m_password &&
                                   gsasl_property_get(session, GSASL_AUTHID) == QByteArray(user)
                               ? int(GSASL_OK)
                               : int(GSASL_AUTHENTICATION_ERROR);
                default:
                    return int(GSASL_NO_CALLBACK);
            }
        });
        gsasl_server_start(m_context, mechanism.constData(), &m_session);
    }
    ~Server() {
        gsasl_finish(m_session);
        gsasl_done(m_context);
    }

    /// The next challenge; `state` is GSASL_OK once the client is authenticated.
    QByteArray step(const QByteArray& answer) {
        char* output = nullptr;
        size_t size = 0;
        state = gsasl_step(m_session, answer.constData(), size_t(answer.size()), &output, &size);
        const QByteArray challenge(output, qsizetype(size));
        gsasl_free(output);
        return challenge;
    }

    int state = GSASL_NEEDS_MORE;

  private:
    const QByteArray m_password;
    Gsasl* m_context = nullptr;
    Gsasl_session* m_session = nullptr;
};

/// Plays a whole login. True: each side has authenticated the other.
bool login(const QByteArray& mechanism, const QByteArray& serverPassword, const QString& clientPassword) {
    Server server(mechanism, serverPassword);
    auto client = mail::SaslExchange::start(mechanism, QString::fromLatin1(user), clientPassword,
                                            QStringLiteral("localhost"));
    EXPECT_TRUE(client.ok());
    QByteArray challenge = client.value().clientFirst() ? QByteArray() : server.step({});
    for (int steps = 0; steps < 10; ++steps) {
        const auto answer = client.value().step(challenge);
        if (!answer.ok()) return false;
        if (server.state == GSASL_OK) break;
        challenge = server.step(answer.value());
        if (server.state != GSASL_OK && server.state != GSASL_NEEDS_MORE) return false;
        if (server.state == GSASL_OK && challenge.isEmpty()) break;
    }
    return server.state == GSASL_OK && client.value().complete();
}

class SaslMechanism : public testing::TestWithParam<const char*> {};

TEST_P(SaslMechanism, LogsInWithTheRightPassword) {
    EXPECT_TRUE(login(GetParam(), "segreto", QStringLiteral("segreto")));
}

TEST_P(SaslMechanism, LogsInWithAnAccentedPassword) {
    EXPECT_TRUE(login(GetParam(), "perché", QStringLiteral("perché")));
}

TEST_P(SaslMechanism, FailsWithAWrongPassword) {
    EXPECT_FALSE(login(GetParam(), "segreto", QStringLiteral("altro")));
}

TEST_P(SaslMechanism, RefusesNulInUserAndPassword) {
    const QString nul(QChar::Null);
    EXPECT_FALSE(mail::SaslExchange::start(GetParam(), nul, QStringLiteral("x"), {}).ok());
    EXPECT_FALSE(mail::SaslExchange::start(GetParam(), QStringLiteral("x"), nul, {}).ok());
}

INSTANTIATE_TEST_SUITE_P(All, SaslMechanism,
                         testing::Values("SCRAM-SHA-256", "SCRAM-SHA-1", "CRAM-MD5", "PLAIN", "LOGIN"),
                         [](const auto& row) {
                             return QByteArray(row.param).replace('-', "").toStdString();
                         });

TEST(Sasl, WhatCannotBeDigestedIsRefusedAtTheStart) {
    for (const char* mechanism : {"SCRAM-SHA-256", "SCRAM-SHA-1", "CRAM-MD5"}) {
        for (const QString& text :
             {QStringLiteral("👍"), QStringLiteral("a\r\nb"), QStringLiteral("x\u202E")}) {
            EXPECT_FALSE(mail::SaslExchange::start(mechanism, QStringLiteral("x"), text, {}).ok());
            EXPECT_FALSE(mail::SaslExchange::start(mechanism, text, QStringLiteral("x"), {}).ok());
        }
    }
}

TEST(Sasl, ServerThatCannotProveItselfIsRefused) {
    Server server("SCRAM-SHA-256", "segreto");
    auto client = mail::SaslExchange::start("SCRAM-SHA-256", QString::fromLatin1(user),
                                            QStringLiteral("segreto"), QStringLiteral("localhost"));
    const QByteArray first = client.value().step({}).value();
    const QByteArray proof = client.value().step(server.step(first)).value();
    server.step(proof);
    EXPECT_FALSE(client.value().complete());
    EXPECT_FALSE(client.value().step("v=AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA=").ok());
    EXPECT_FALSE(client.value().complete());
}

}  // namespace

}  // namespace smtp_sasl_test
