// SPDX-License-Identifier: GPL-3.0-or-later
// Tokens for logins: kept while they last, renewed when they do not, and given to nobody else.
#include "oauth_fixture.h"
#include "platform/oauth/TokenFile.h"
#include "platform/oauth/TokenSource.h"

namespace token_source_test {

namespace {

using oauth::Access;
using oauth::TokenSource;

class OAuthTokenSource : public OAuth {
  protected:
    OAuthTokenSource() {
        source.setFolders(folder, trust());
        sys::clock().now = [this] { return now; };
    }

    void giveToken(const QByteArray& refresh = "rinnovo-0", int secs = 3600) const {
        ASSERT_TRUE(oauth::writeToken(folder, tokenFile, {"accesso-0", refresh, now.addSecs(secs)}).ok());
    }
    Result<Access> get(const QString& host = "localhost", int limitMs = 15000) {
        std::optional<Result<Access>> got;
        source.get(host, user, limitMs, [&](const Result<Access>& access) {
            EXPECT_FALSE(got) << "told twice";
            got = access;
        });
        EXPECT_TRUE(turnUntil([&] { return got.has_value(); }));
        return *got;
    }
    QByteArray token() {
        const auto access = get();
        EXPECT_TRUE(access.ok()) << qPrintable(access.status().text());
        return access.ok() ? access.value().token : QByteArray();
    }

    QDateTime now = QDateTime::currentDateTimeUtc();
    TokenSource source;
};

TEST_F(OAuthTokenSource, TokenIsTakenFromItsFileWhileItLasts) {
    giveToken();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(token(), "accesso-0");
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(OAuthTokenSource, IsRenewedShortlyBeforeItExpiresAndKept) {
    giveToken("rinnovo-0", 60);
    const auto access = get();
    ASSERT_TRUE(access.ok()) << qPrintable(access.status().text());
    EXPECT_EQ(access.value().token, "accesso-1");
    EXPECT_EQ(access.value().remark, "Token di Prova rinnovato");
    EXPECT_EQ(token(), "accesso-1");
    EXPECT_EQ(server.requests().size(), 1);
    now = now.addSecs(3600);
    EXPECT_EQ(token(), "accesso-2");  // with the refresh token that came with the first renewal
    TokenSource next;
    next.setFolders(folder, trust());
    next.get("localhost", user, 1000,
             [](const Result<Access>& kept) { EXPECT_EQ(kept.value().token, "accesso-2"); });
}

TEST_F(OAuthTokenSource, RefreshTokenStaysWhereNoNewOneComes) {
    giveToken("vecchio", 0);
    server.answerJson(R"({"access_token":"nuovo","token_type":"Bearer","expires_in":10})");
    EXPECT_EQ(token(), "nuovo");
    EXPECT_EQ(oauth::readToken(tokenFile).value().refresh, "vecchio");
}

TEST_F(OAuthTokenSource, RefusedTokenIsRenewedWhateverItsFileSays) {
    giveToken();
    source.refuse(token());
    EXPECT_EQ(token(), "accesso-1");
    EXPECT_EQ(token(), "accesso-1");
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(OAuthTokenSource, HostOfNoProviderGetsNone) {
    giveToken();
    for (const char* host : {"mail.localhost", "localhost.example.it", "127.0.0.1", ""}) {
        const auto access = get(QString::fromLatin1(host));
        ASSERT_FALSE(access.ok()) << host;
        EXPECT_TRUE(access.status().text().contains("nessun token gli viene inviato"));
    }
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(OAuthTokenSource, ProvidersFileThatCannotBeReadGivesNone) {
    giveToken();
    ASSERT_TRUE(QFile::remove(folder + "/providers.json"));
    const auto access = get("localhost");
    ASSERT_FALSE(access.ok());
    EXPECT_TRUE(access.status().text().contains("providers.json")) << qPrintable(access.status().text());
}

TEST_F(OAuthTokenSource, TokenOfOneProviderDoesNotServeAnother) {
    giveToken();
    QByteArray both = server.providers();
    both.replace(
        0, both.indexOf('{') + 1,
        R"({"altro":{"authorization_endpoint":"https://x.example/a","token_endpoint":"https://x.example/t",)"
        R"("scopes":["m"],"smtp_hosts":["smtp.x.example"]},)");
    writeProviders(both);
    EXPECT_EQ(token(), "accesso-0");
    EXPECT_TRUE(get("smtp.x.example").status().text().contains("Manca il consenso"));
}

TEST_F(OAuthTokenSource, WithdrawnConsentIsAskedAboutOnce) {
    giveToken("rinnovo-0", 0);
    server.withdraw();
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(get().status().text().contains("scaduto o è stato ritirato"));
    EXPECT_EQ(server.requests().size(), 1);
    source.beginRun();
    EXPECT_FALSE(get().ok());
    EXPECT_EQ(server.requests().size(), 2);
}

TEST_F(OAuthTokenSource, NewConsentEndsWhatWasRememberedOfTheOldOne) {
    giveToken("vecchio", 0);
    EXPECT_FALSE(get().ok());
    giveToken("rinnovo-0", 0);
    EXPECT_EQ(token(), "accesso-1");
}

TEST_F(OAuthTokenSource, FailureOfTheProviderIsNotRemembered) {
    giveToken("rinnovo-0", 0);
    server.answerWith("HTTP/1.1 503 Later\r\nContent-Length: 0\r\n\r\n");
    EXPECT_TRUE(get().status().text().contains("503"));
    server.answerWith({});
    EXPECT_EQ(token(), "accesso-1");
}

TEST_F(OAuthTokenSource, ExpiredTokenWithoutRenewalSaysWhatToDo) {
    giveToken("", 0);
    EXPECT_TRUE(get().status().text().contains("accedere di nuovo con il browser"));
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(OAuthTokenSource, RenewedTokenServesAlsoWhereItsFileCannotTakeIt) {
    giveToken("rinnovo-0", 0);
    const QByteArray old = read(tokenFile);
    // The new file is made under this name first.
    ASSERT_TRUE(QDir().mkpath(tokenFile + ".nuovo/occupato"));
    const auto access = get();
    ASSERT_TRUE(access.ok()) << qPrintable(access.status().text());
    EXPECT_TRUE(access.value().remark.contains("Impossibile scrivere il file"));
    EXPECT_EQ(read(tokenFile), old);
    EXPECT_EQ(token(), "accesso-1");
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(OAuthTokenSource, SlowRenewalEndsAfterTheLimitAndCanBeCancelled) {
    giveToken("rinnovo-0", 0);
    server.hold();
    EXPECT_TRUE(get("localhost", 30).status().text().contains("tempo scaduto"));
    bool told = false;
    const auto before = server.requests().size();
    source.get("localhost", user, 15000, [&](const Result<Access>&) { told = true; });
    ASSERT_TRUE(turnUntil([&] { return server.requests().size() > before; }));
    source.cancel();
    EXPECT_TRUE(get("localhost", 30).status().text().contains("tempo scaduto"));
    EXPECT_FALSE(told);
}

TEST_F(OAuthTokenSource, NextRequestCanBeginFromWithinAnAnswer) {
    giveToken("rinnovo-0", 0);
    QByteArrayList tokens;
    const TokenSource::Done note = [&](const Result<Access>& access) {
        tokens.append(access.ok() ? access.value().token : "-");
    };
    source.get("localhost", user, 15000, [&](const Result<Access>& access) {
        note(access);
        now = now.addSecs(7200);
        source.get("localhost", user, 15000, note);
    });
    EXPECT_TRUE(turnUntil([&] { return tokens.size() == 2; }));
    EXPECT_EQ(tokens, (QByteArrayList{"accesso-1", "accesso-2"}));
}

}  // namespace

}  // namespace token_source_test
