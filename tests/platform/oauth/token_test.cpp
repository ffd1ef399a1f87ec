// SPDX-License-Identifier: GPL-3.0-or-later
// Answers of a token endpoint, and the files that keep tokens.
#include <QCryptographicHash>
#include <QFileInfo>

#include "oauth_fixture.h"
#include "platform/oauth/Pkce.h"
#include "platform/oauth/Token.h"
#include "platform/oauth/TokenFile.h"

namespace token_test {

namespace {

using oauth::parseTokenAnswer;
using oauth::readToken;
using oauth::Token;
using oauth::tokenPath;

const QDateTime now(QDate(2026, 11, 22), QTime(8, 0), Qt::UTC);
const QStringList mail{"mail"};

TEST(OAuthPkce, ChallengeIsTheOneOfTheStandard) {
    // RFC 7636, appendix B
    EXPECT_EQ(oauth::codeChallenge("dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk"),
              "E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM");
}

TEST(OAuthPkce, SecretsAreLongAndNeverTheSame) {
    QSet<QByteArray> secrets;
    for (int i = 0; i < 100; ++i) {
        secrets.insert(oauth::newSecret());
        EXPECT_EQ(oauth::newSecret().size(), 43);
    }
    EXPECT_EQ(secrets.size(), 100);
}

TEST(OAuthToken, AnswerIsRead) {
    const auto token = parseTokenAnswer(
        R"({"access_token":"a.b-c","token_type":"bearer","expires_in":3599,"refresh_token":"r","scope":"x mail"})",
        mail, now);
    ASSERT_TRUE(token.ok()) << qPrintable(token.status().text());
    EXPECT_EQ(token.value().access, "a.b-c");
    EXPECT_EQ(token.value().refresh, "r");
    EXPECT_EQ(token.value().expires, now.addSecs(3599));
}

TEST(OAuthToken, IsUsedUntilShortlyBeforeItExpires) {
    const Token token{"a", "r", now.addSecs(3600)};
    EXPECT_TRUE(token.usableAt(now.addSecs(3400)));
    EXPECT_FALSE(token.usableAt(now.addSecs(3500)));
    EXPECT_FALSE(token.usableAt(now.addSecs(7200)));
    EXPECT_FALSE(Token{}.usableAt(now));
}

struct Lifetime {
    const char* written;
    int secs;
};

TEST(OAuthToken, LifetimeMayBeATextAndIsBounded) {
    for (const auto& [written, secs] :
         {Lifetime{R"(,"expires_in":"600")", 600}, Lifetime{"", 3600}, Lifetime{R"(,"expires_in":-5)", 0},
          Lifetime{R"(,"expires_in":1e300)", 86400}, Lifetime{R"(,"expires_in":"nan")", 0},
          Lifetime{R"(,"expires_in":"inf")", 86400}, Lifetime{R"(,"expires_in":"x")", 0}}) {
        const auto token = parseTokenAnswer(
            QByteArray(R"({"access_token":"a","token_type":"Bearer")") + written + '}', mail, now);
        ASSERT_TRUE(token.ok());
        EXPECT_EQ(token.value().expires, now.addSecs(secs)) << written;
    }
}

TEST(OAuthToken, AnotherScopeIsRefused) {
    for (const char* scope : {"", "openid", "mail.readonly", "MAIL", "https://mail"}) {
        const auto token = parseTokenAnswer(
            QByteArray(R"({"access_token":"a","token_type":"Bearer","scope":")") + scope + "\"}", mail, now);
        ASSERT_FALSE(token.ok()) << scope;
        EXPECT_TRUE(token.status().text().contains("non comprende l'invio"));
    }
}

TEST(OAuthToken, WhatIsNoTokenIsRefused) {
    for (const QByteArray& body :
         {QByteArray(), QByteArray("<html><body>Accedi</body></html>"), QByteArray("[]"), QByteArray("{}"),
          QByteArray("{\"access_token\":\"a\""), QByteArray(5000, '['), QByteArray(R"({"access_token":"a"})"),
          QByteArray(R"({"access_token":"a","token_type":"mac"})"),
          QByteArray(R"({"access_token":7,"token_type":"Bearer"})"),
          QByteArray(R"({"access_token":"","token_type":"Bearer"})"),
          QByteArray(R"({"access_token":"a\u0001auth=Bearer b","token_type":"Bearer"})"),
          QByteArray(R"({"access_token":"a\r\nMAIL FROM:<x>","token_type":"Bearer"})"),
          QByteArray(R"({"access_token":"à","token_type":"Bearer"})"),
          QByteArray(R"({"access_token":"a","token_type":"Bearer","refresh_token":"b c"})"),
          QByteArray(R"({"token_type":"Bearer","access_token":")" + QByteArray(10000, 'a') + "\"}")}) {
        const auto token = parseTokenAnswer(body, mail, now);
        ASSERT_FALSE(token.ok()) << body.left(50).constData();
        EXPECT_EQ(token.status().text(), "La risposta del fornitore non è valida.");
    }
}

TEST(OAuthToken, ErrorsOfTheProviderAreReportedInOneLine) {
    const auto gone = parseTokenAnswer(R"({"error":"invalid_grant"})", mail, now);
    EXPECT_EQ(gone.status().code(), ErrorCode::InvalidPassword);
    EXPECT_TRUE(gone.status().text().contains("scaduto o è stato ritirato"));
    const auto client = parseTokenAnswer(R"({"error":"invalid_client"})", mail, now);
    EXPECT_TRUE(client.status().text().contains("client_id"));
    const auto other = parseTokenAnswer(
        R"({"error":"server\u0007_error","error_description":"a\r\n250 ok\u202Eb\u0000c"})", mail, now);
    EXPECT_EQ(other.status().text(), "Il fornitore ha rifiutato la richiesta: server _error a 250 ok b c");
}

TEST(OAuthTokenFile, PathContainsTheUserPercentEncoded) {
    EXPECT_EQ(tokenPath("/d/oauth", "google", "rossi@example.it"), "/d/oauth/google/rossi%40example.it.json");
    EXPECT_EQ(tokenPath("/d/oauth", "google", "../../x"), "/d/oauth/google/..%2F..%2Fx.json");
    EXPECT_EQ(tokenPath("/d/oauth", "google", ".."), "/d/oauth/google/...json");
    EXPECT_EQ(tokenPath("/d/oauth", "google", "àé%"), "/d/oauth/google/%C3%A0%C3%A9%25.json");
}

TEST_F(OAuth, TokenIsReadBackFromItsFileWhichIsTheOwnersAlone) {
    const Token token{"accesso", "rinnovo", now};
    ASSERT_TRUE(oauth::writeToken(folder, tokenFile, token).ok());
    ASSERT_TRUE(oauth::writeToken(folder, tokenFile, token).ok());
    EXPECT_EQ(QFileInfo(tokenFile).permissions() & 0xFFFF,
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    const auto again = readToken(tokenFile);
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again.value().access, "accesso");
    EXPECT_EQ(again.value().refresh, "rinnovo");
    EXPECT_EQ(again.value().expires, now);
    EXPECT_EQ(QDir(folder + "/prova").entryList(QDir::Files), QStringList("rossi%40example.it.json"));
}

TEST_F(OAuth, LinksAreNotFollowedToATokenNorFromOne) {
    const QString elsewhere = temporary.filePath("altrui.json");
    ASSERT_TRUE(oauth::writeToken(folder, tokenFile, {"altrui", "r", now}).ok());
    ASSERT_TRUE(QFile::rename(tokenFile, elsewhere));
    ASSERT_TRUE(readToken(elsewhere).ok());
    ASSERT_TRUE(QFile::link(elsewhere, tokenFile));
    EXPECT_FALSE(readToken(tokenFile).ok());
    EXPECT_TRUE(oauth::writeToken(folder, tokenFile, {"a", "r", now}).ok());
    EXPECT_EQ(readToken(elsewhere).value().access, "altrui");
    EXPECT_FALSE(QFileInfo(tokenFile).isSymLink());

    const QString other = folder + "/altro/x.json";
    QDir().mkpath(temporary.filePath("fuori"));
    ASSERT_TRUE(QFile::link(temporary.filePath("fuori"), folder + "/altro"));
    EXPECT_FALSE(oauth::writeToken(folder, other, {"a", "r", now}).ok());
    EXPECT_TRUE(QDir(temporary.filePath("fuori")).isEmpty());
}

TEST_F(OAuth, DamagedTokenFileSaysSo) {
    const QByteArray good = R"({"access_token":"a","expires_at":"2026-11-22T08:00:00Z","refresh_token":"r"})";
    writeToken(good);
    ASSERT_TRUE(readToken(tokenFile).ok());
    for (const QByteArray& content :
         {QByteArray(), good.chopped(1), QByteArray("[]"), QByteArray("{}"), QByteArray(100000, ' ') + good,
          QByteArray(good).replace("\"a\"", "\"a\\u0001b\""), QByteArray(good).replace("\"r\"", "\"\\n\""),
          QByteArray(good).replace("2026", "year"), QByteArray(good).replace("\"a\"", "[]")}) {
        writeToken(content);
        const auto token = readToken(tokenFile);
        ASSERT_FALSE(token.ok()) << content.left(80).constData();
        EXPECT_EQ(token.status().code(), ErrorCode::SyntaxError);
        EXPECT_TRUE(token.status().text().contains("è danneggiato")) << qPrintable(token.status().text());
        EXPECT_TRUE(token.status().text().contains("rossi%40example.it.json"));
    }
}

TEST_F(OAuth, TokenFileThatOthersCanReadIsRefused) {
    ASSERT_TRUE(oauth::writeToken(folder, tokenFile, {"a", "r", now}).ok());
    ASSERT_TRUE(QFile::setPermissions(tokenFile, QFile::permissions(tokenFile) | QFile::ReadOther));
    EXPECT_TRUE(readToken(tokenFile).status().text().contains("altri utenti possono leggere"));
}

TEST_F(OAuth, MissingTokenFileSaysWhatToDo) {
    EXPECT_TRUE(readToken(tokenFile).status().text().contains("accedere con il browser"));
}

TEST_F(OAuth, UserNameTooLongForAFileIsAClearError) {
    const QString path = tokenPath(folder, "prova", QString(255, u'à'));
    EXPECT_TRUE(oauth::writeToken(folder, path, {"a", "r", now}).text().startsWith("Impossibile scrivere"));
}

}  // namespace

}  // namespace token_test
