// SPDX-License-Identifier: GPL-3.0-or-later
// A consent from the first click to the token's file, with honest servers and others.
#include "platform/oauth/Consent.h"
#include "oauth_fixture.h"
#include "platform/oauth/TokenFile.h"

namespace consent_test {

namespace {

using oauth::Consent;
using testing_support::AuthorizationServer;
using testing_support::TestCertificates;
using testing_support::TlsIdentity;

class OAuthConsent : public OAuth {
  protected:
    OAuthConsent() {
        consent.limits.request = 15000;
        QObject::connect(&consent, &Consent::finished, [this](const Status& status) { ends.append(status); });
    }

    /// The user consents; returns the result.
    Status login() {
        const auto address = consent.start(provider(), user);
        if (!address.ok()) return address.status();
        browse(server.consent(address.value()));
        EXPECT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
        EXPECT_EQ(ends.size(), 1);
        EXPECT_FALSE(consent.waiting());
        return ends.isEmpty() ? Status() : ends.takeFirst();
    }
    void expectNothingWritten() const { EXPECT_FALSE(QFile::exists(tokenFile)); }

    Consent consent{folder, trust()};
    QList<Status> ends;
};

TEST_F(OAuthConsent, EndsWithTheTokenInItsFile) {
    const Status status = login();
    ASSERT_TRUE(status.ok()) << qPrintable(status.text());
    const auto token = oauth::readToken(tokenFile);
    ASSERT_TRUE(token.ok());
    EXPECT_EQ(token.value().access, "accesso-1");
    EXPECT_EQ(token.value().refresh, "rinnovo-1");
    EXPECT_TRUE(token.value().usableAt(QDateTime::currentDateTime()));
}

TEST_F(OAuthConsent, EachOneHasItsOwnStateAndVerifier) {
    QSet<QString> seen;
    for (int i = 0; i < 3; ++i) {
        const QUrlQuery query(consent.start(provider(), user).value());
        for (const char* name : {"state", "code_challenge"})
            seen.insert(query.queryItemValue(QString::fromLatin1(name)));
    }
    EXPECT_EQ(seen.size(), 6);
    EXPECT_TRUE(login().ok());
    EXPECT_TRUE(login().ok());
    EXPECT_EQ(oauth::readToken(tokenFile).value().access, "accesso-2");
    EXPECT_NE(server.requests()[0].queryItemValue("code_verifier"),
              server.requests()[1].queryItemValue("code_verifier"));
}

TEST_F(OAuthConsent, AddressKeepsTheParametersOfTheFile) {
    QByteArray content = server.providers();
    content.replace("\"client_id\"", R"("authorization_parameters":{"prompt":"a&b=c"},"client_id")");
    writeProviders(content);
    const QUrl address = consent.start(provider(), "rossi+x@example.it").value();
    EXPECT_EQ(QUrlQuery(address).queryItemValue("prompt", QUrl::FullyDecoded), "a&b=c");
    EXPECT_EQ(QUrlQuery(address).queryItemValue("login_hint", QUrl::FullyDecoded), "rossi+x@example.it");
    EXPECT_TRUE(address.toEncoded().contains("rossi%2Bx%40example.it"));
    EXPECT_TRUE(QUrlQuery(address)
                    .queryItemValue("redirect_uri", QUrl::FullyDecoded)
                    .startsWith("http://127.0.0.1:"));
}

TEST_F(OAuthConsent, SecretOfTheProgramGoesToTheTokenEndpointAlone) {
    writeProviders(server.providers().replace("\"client_id\"", R"("client_secret":"s&e=c","client_id")"));
    const auto address = consent.start(provider(), user);
    EXPECT_FALSE(address.value().toEncoded().contains("s%26e"));
    EXPECT_TRUE(login().ok());
    EXPECT_EQ(server.requests().last().queryItemValue("client_secret", QUrl::FullyDecoded), "s&e=c");
}

TEST_F(OAuthConsent, WithoutAnIdSaysWhereOneGoes) {
    writeProviders(server.providers().replace("programma-di-prova", ""));
    const Status status = login();
    EXPECT_TRUE(status.text().contains("client_id")) << qPrintable(status.text());
    EXPECT_TRUE(status.text().contains(folder + "/providers.json"));
    EXPECT_FALSE(consent.waiting());
}

TEST_F(OAuthConsent, RefusedByTheUserIsReportedAndAsksForNoToken) {
    const QUrl address = consent.start(provider(), user).value();
    QUrl redirect = server.consent(address);
    redirect.setQuery("error=access_denied&state=" + QUrlQuery(redirect).queryItemValue("state"));
    browse(redirect);
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_EQ(ends.first().text(), "Il consenso non è stato dato.");
    EXPECT_TRUE(server.requests().isEmpty());
    expectNothingWritten();
}

TEST_F(OAuthConsent, ErrorOfTheProvidersPageIsReportedInItsOwnWords) {
    const QUrl address = consent.start(provider(), user).value();
    QUrl redirect = server.consent(address);
    redirect.setQuery("error=server_error&state=" + QUrlQuery(redirect).queryItemValue("state"));
    browse(redirect);
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_EQ(ends.first().code(), ErrorCode::NotSupported);
    EXPECT_EQ(ends.first().text(), "Il fornitore ha rifiutato la richiesta: server_error");
    EXPECT_TRUE(server.requests().isEmpty());
    expectNothingWritten();
}

TEST_F(OAuthConsent, AnswerOfAnotherLoginIsNotTaken) {
    const QUrl first = server.consent(consent.start(provider(), user).value());
    const QUrl second = server.consent(consent.start(provider(), user).value());
    QUrl mixed = second;
    mixed.setQuery(first.query());
    EXPECT_TRUE(browse(mixed).startsWith("HTTP/1.1 400 "));
    EXPECT_TRUE(consent.waiting());
    EXPECT_TRUE(browse(second).startsWith("HTTP/1.1 200 "));
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_TRUE(ends.first().ok());
}

/// Somebody has put his own code into the answer: the verifier does not belong to it.
TEST_F(OAuthConsent, CodeOfSomebodyElseIsRefusedByTheProvider) {
    Consent other(folder, trust());
    const QUrl foreign = server.consent(other.start(provider(), user).value());
    QUrl redirect = server.consent(consent.start(provider(), user).value());
    QUrlQuery query(redirect);
    const QString state = query.queryItemValue("state");
    redirect.setQuery("code=" + QUrlQuery(foreign).queryItemValue("code", QUrl::FullyEncoded) +
                      "&state=" + state);
    browse(redirect);
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_FALSE(ends.first().ok());
    expectNothingWritten();
}

TEST_F(OAuthConsent, BrowserThatNeverAnswersEndsAfterTheLimit) {
    consent.limits.answer = 20;
    const quint16 port = quint16(
        QUrl(QUrlQuery(consent.start(provider(), user).value()).queryItemValue("redirect_uri")).port());
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_TRUE(ends.first().text().contains("in tempo"));
    QTcpSocket late;
    late.connectToHost(QHostAddress::LocalHost, port);
    EXPECT_FALSE(late.waitForConnected());
    EXPECT_EQ(Consent::Limits().answer, 5 * 60 * 1000);
}

TEST_F(OAuthConsent, CancelledOneEmitsNoSignalAtAnyStage) {
    consent.start(provider(), user).value();
    consent.cancel();
    EXPECT_FALSE(consent.waiting());
    server.hold();
    const QUrl redirect = server.consent(consent.start(provider(), user).value());
    browse(redirect);
    ASSERT_TRUE(turnUntil([&] { return !server.requests().isEmpty(); }));
    consent.cancel();
    // What comes later ends only the next consent.
    Consent next(folder, trust());
    next.limits.answer = 20;
    bool ended = false;
    QObject::connect(&next, &Consent::finished, [&] { ended = true; });
    next.start(provider(), user).value();
    ASSERT_TRUE(turnUntil([&] { return ended; }));
    EXPECT_TRUE(ends.isEmpty());
    expectNothingWritten();
}

TEST_F(OAuthConsent, AnswerThatWasReceivedBeforeTheCancelIsNotTaken) {
    const QUrl redirect = server.consent(consent.start(provider(), user).value());
    auto* listener = consent.findChild<oauth::RedirectListener*>();
    ASSERT_NE(listener, nullptr);
    bool received = false;
    QObject::connect(listener, &oauth::RedirectListener::answered, [&] { received = true; });
    QTcpSocket browser;
    browser.connectToHost(QHostAddress::LocalHost, quint16(redirect.port()));
    browser.write("GET " + redirect.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority) +
                  " HTTP/1.1\r\nHost: x\r\n\r\n");
    const QDeadlineTimer patience(20000);
    while (!received && !patience.hasExpired())
        QCoreApplication::processEvents();  // what the last turn received is reported in the next one
    ASSERT_TRUE(received);
    consent.cancel();
    const auto next = consent.start(provider(), user);
    ASSERT_TRUE(next.ok());
    turnUntil([&, turns = 0]() mutable { return ++turns > 20; });
    EXPECT_TRUE(consent.waiting());
    EXPECT_TRUE(ends.isEmpty());
    EXPECT_TRUE(server.requests().isEmpty());
    browse(server.consent(next.value()));
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_TRUE(ends.first().ok());
}

TEST_F(OAuthConsent, AnotherScopeIsRefused) {
    server.setScope("posta.lettura");
    EXPECT_TRUE(login().text().contains("non comprende l'invio"));
    expectNothingWritten();
}

struct BadAnswer {
    const char* name;
    QByteArray bytes;
    const char* why;
};

class OAuthBadAnswer : public OAuthConsent, public testing::WithParamInterface<BadAnswer> {};

TEST_P(OAuthBadAnswer, IsReportedAndNothingIsWritten) {
    server.answerWith(GetParam().bytes);
    const Status status = login();
    EXPECT_FALSE(status.ok());
    EXPECT_TRUE(status.text().contains(GetParam().why)) << qPrintable(status.text());
    expectNothingWritten();
}

const QByteArray goodBody = R"({"access_token":"a","token_type":"Bearer","expires_in":3600})";

/// The same body by gzip: it was requested uncompressed, since a short one may expand to a huge one.
const QByteArray compressedBody =
    "1f8b0800000000000203ab564a4c4e4e2d2e8e2fc9cf4ecd53b2524a54d2"
    "5102b3e34b2a0b5281024ea98945a94540d1d48a82cca2d4e2f84ca03263"
    "3303835a000ca79ae23c000000";

INSTANTIATE_TEST_SUITE_P(
    All, OAuthBadAnswer,
    testing::Values(
        BadAnswer{
            "Html",
            "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 20\r\n\r\n<html>Accedi</html>\n",
            "non è valida"},
        BadAnswer{"TokenWithABadStatus", "HTTP/1.1 403 No\r\nContent-Length: 60\r\n\r\n" + goodBody,
                  "non è valida"},
        BadAnswer{"Redirect",
                  "HTTP/1.1 307 Go\r\nLocation: https://localhost:1/token\r\nContent-Length: 0\r\n\r\n",
                  "altro indirizzo"},
        BadAnswer{"RedirectWithAToken",
                  "HTTP/1.1 302 Go\r\nLocation: /token\r\nContent-Length: 60\r\n\r\n" + goodBody,
                  "altro indirizzo"},
        BadAnswer{"ServerError", "HTTP/1.1 503 Later\r\nContent-Length: 0\r\n\r\n", "503"},
        BadAnswer{"NoHttp", "220 smtp.example ESMTP\r\n", "non è raggiungibile"},
        BadAnswer{"Cut", "HTTP/1.1 200 OK\r\nContent-Length: 90\r\n\r\n" + goodBody, "non è raggiungibile"},
        BadAnswer{"Empty", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", "non è valida"},
        BadAnswer{"Compressed",
                  "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nConnection: close\r\n\r\n" +
                      QByteArray::fromHex(compressedBody),
                  "non è valida"}),
    [](const auto& row) { return row.param.name; });

TEST_F(OAuthConsent, RedirectOfTheTokenEndpointIsNotFollowed) {
    AuthorizationServer elsewhere;
    for (const char* status : {"302 Found", "307 Temporary Redirect", "308 Permanent Redirect"}) {
        server.answerWith(QByteArray("HTTP/1.1 ") + status + "\r\nLocation: https://localhost:" +
                          QByteArray::number(elsewhere.serverPort()) + "/token\r\nContent-Length: 0\r\n\r\n");
        EXPECT_TRUE(login().text().contains("altro indirizzo")) << status;
    }
    EXPECT_TRUE(elsewhere.requests().isEmpty());
    EXPECT_FALSE(elsewhere.hasBeenAsked());
    expectNothingWritten();
}

TEST_F(OAuthConsent, AnswerWithoutEndIsBounded) {
    server.answerWith("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(8 * 1024 * 1024, ' '));
    EXPECT_TRUE(login().text().contains("troppo grande"));
    server.answerWith("HTTP/1.1 200 OK\r\n\r\n");
    server.hold(QByteArray(64 * 1024, ' '));
    EXPECT_TRUE(login().text().contains("troppo grande"));
    EXPECT_LT(server.taken(), 16 * 1024 * 1024);
    expectNothingWritten();
}

TEST_F(OAuthConsent, HeadWithoutEndEndsAfterTheLimit) {
    server.answerWith("HTTP/1.1 200 OK\r\n");
    server.hold("X-Field: " + QByteArray(100000, 'x') + "\r\n");
    consent.limits.request = 300;
    EXPECT_FALSE(login().ok());
    expectNothingWritten();
}

TEST_F(OAuthConsent, SilentTokenEndpointEndsAfterTheLimit) {
    server.hold();
    consent.limits.request = 50;
    EXPECT_TRUE(login().text().contains("tempo scaduto"));
    expectNothingWritten();
}

TEST_F(OAuthConsent, DribbledAnswerEndsAfterTheLimitToo) {
    server.answerWith("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
    server.hold(" ");
    consent.limits.request = 300;
    EXPECT_FALSE(login().ok());
    expectNothingWritten();
}

TEST_F(OAuthConsent, FailureNeverShowsWhatWasSent) {
    server.answerJson(R"({"error":"x","error_description":"codice-1/+ non va"})", "400 Bad Request");
    EXPECT_EQ(login().text(), "Il fornitore ha rifiutato la richiesta.");
}

struct BadIdentity {
    const char* name;
    TlsIdentity (*identity)();
};

class OAuthBadCertificate : public OAuthConsent, public testing::WithParamInterface<BadIdentity> {};

TEST_P(OAuthBadCertificate, GetsNoCode) {
    AuthorizationServer other(GetParam().identity());
    writeProviders(other.providers());
    const auto address = consent.start(provider(), user);
    browse(other.consent(address.value()));
    ASSERT_TRUE(turnUntil([&] { return !ends.isEmpty(); }));
    EXPECT_TRUE(ends.first().text().contains("non è raggiungibile")) << qPrintable(ends.first().text());
    EXPECT_TRUE(other.requests().isEmpty());
    expectNothingWritten();
}

INSTANTIATE_TEST_SUITE_P(
    All, OAuthBadCertificate,
    testing::Values(BadIdentity{"SelfSigned", [] { return TestCertificates::get().selfSigned(); }},
                    BadIdentity{"Expired", [] { return TestCertificates::get().expired(); }},
                    BadIdentity{"WrongName", [] { return TestCertificates::get().wrongName(); }},
                    BadIdentity{"NoTls", [] { return TlsIdentity(); }}),
    [](const auto& row) { return row.param.name; });

TEST_F(OAuthConsent, FolderThatCannotBeWrittenIsReported) {
    ASSERT_TRUE(QFile::link(temporary.path(), folder + "/prova"));
    EXPECT_TRUE(login().text().startsWith("Impossibile scrivere il file " + tokenFile));
}

}  // namespace

}  // namespace consent_test
