// SPDX-License-Identifier: GPL-3.0-or-later
// The file of the providers: what is installed, and what is refused.
#include "oauth_fixture.h"

namespace provider_test {

namespace {

using oauth::parseProviders;
using oauth::Provider;

const QString path = QStringLiteral("providers.json");

/// One provider with a field changed; "" takes the field away.
QByteArray changed(const QByteArray& field, const QByteArray& value) {
    QHash<QByteArray, QByteArray> fields{{"authorization_endpoint", R"("https://a.example/authorize")"},
                                         {"token_endpoint", R"("https://a.example/token")"},
                                         {"scopes", R"(["mail"])"},
                                         {"smtp_hosts", R"(["smtp.a.example"])"},
                                         {"client_id", R"("id")"}};
    fields[field] = value;
    QByteArrayList all;
    for (auto it = fields.begin(); it != fields.end(); ++it)
        if (!it.value().isEmpty()) all << '"' + it.key() + "\":" + it.value();
    return "{\"a\":{" + all.join(',') + "}}";
}

TEST(OAuthProviders, InstalledFileNamesGoogleAndMicrosoftWithoutAnId) {
    QFile file(QStringLiteral(TEST_DATA_DIR "/../../assets/templates/data/oauth/providers.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto providers = parseProviders(file.readAll(), path);
    ASSERT_TRUE(providers.ok()) << qPrintable(providers.status().text());
    ASSERT_EQ(providers.value().size(), 2);
    for (const Provider& provider : providers.value())
        EXPECT_EQ(provider.clientId, QString());
    EXPECT_EQ(oauth::providerOf(providers.value(), "SMTP.gmail.com. ")->name, "Google");
    EXPECT_EQ(oauth::providerOf(providers.value(), "smtp.office365.com")->name, "Microsoft");
}

TEST(OAuthProviders, OnlyAWholeHostNameBelongsToAProvider) {
    const auto providers = parseProviders(changed("name", R"("A")"), path).value();
    EXPECT_TRUE(oauth::providerOf(providers, "smtp.a.example"));
    for (const char* host : {"", ".", "a.example", "x.smtp.a.example", "smtp.a.example.evil.example",
                             "smtp.a.example..", "smtpXa.example", "smtp.a.example:25", "127.0.0.1"})
        EXPECT_FALSE(oauth::providerOf(providers, QString::fromLatin1(host))) << host;
}

TEST(OAuthProviders, MissingFieldsHaveTheirDefaults) {
    const Provider provider = parseProviders(changed("client_id", ""), path).value().first();
    EXPECT_EQ(provider.name, "a");
    EXPECT_EQ(provider.clientId, "");
    EXPECT_EQ(provider.clientSecret, "");
    EXPECT_EQ(provider.redirectHost, "127.0.0.1");
}

TEST(OAuthProviders, ScopesOfOpenIdNeedNoConfirmation) {
    const QByteArray scopes = R"(["openid","mail","offline_access","profile","email"])";
    const Provider provider = parseProviders(changed("scopes", scopes), path).value().first();
    EXPECT_EQ(provider.mailScopes(), QStringList("mail"));
    EXPECT_EQ(provider.scopes.size(), 5);
}

struct BadField {
    const char* field;
    const char* value;
    const char* why;
};

class OAuthBadField : public testing::TestWithParam<BadField> {};

TEST_P(OAuthBadField, IsNamedInTheFailureOfTheFile) {
    const auto providers = parseProviders(changed(GetParam().field, GetParam().value), path);
    ASSERT_FALSE(providers.ok());
    EXPECT_EQ(providers.status().code(), ErrorCode::SyntaxError);
    const QString text = providers.status().text();
    EXPECT_TRUE(text.startsWith("Il file providers.json non è valido: ")) << qPrintable(text);
    EXPECT_TRUE(text.contains(GetParam().field)) << qPrintable(text);
    EXPECT_TRUE(text.contains(GetParam().why)) << qPrintable(text);
}

INSTANTIATE_TEST_SUITE_P(
    All, OAuthBadField,
    testing::Values(BadField{"token_endpoint", R"("http://a.example/token")", "https://"},
                    BadField{"authorization_endpoint", R"("http://a.example/")", "https://"},
                    BadField{"authorization_endpoint", R"("file:///etc/passwd")", "indirizzo"},
                    BadField{"token_endpoint", R"("https://user@a.example/")", "utente"},
                    BadField{"token_endpoint", R"("https://a.example/#x")", "frammento"},
                    BadField{"token_endpoint", R"("https:///token")", "indirizzo"},
                    BadField{"token_endpoint", "", "indirizzo"}, BadField{"token_endpoint", "7", "testo"},
                    BadField{"scopes", "[]", "vuoto"}, BadField{"scopes", R"("mail")", "elenco"},
                    BadField{"scopes", R"(["a b"])", "caratteri"}, BadField{"scopes", "[1]", "testo"},
                    BadField{"smtp_hosts", R"(["*.a.example"])", "nome di un server"},
                    BadField{"smtp_hosts", R"(["a\u0000.example"])", "caratteri"},
                    BadField{"smtp_hosts", R"(["a.example","A.example"])", "due volte"},
                    BadField{"client_id", R"("a\r\nb")", "caratteri"},
                    BadField{"client_secret", "{}", "testo"},
                    BadField{"redirect_host", R"("evil.example")", "127.0.0.1"},
                    BadField{"redirect_host", R"("0.0.0.0")", "127.0.0.1"},
                    BadField{"authorization_parameters", R"({"redirect_uri":"x"})", "del programma"},
                    BadField{"authorization_parameters", R"({"state":"x"})", "del programma"},
                    BadField{"authorization_parameters", "[]", "oggetto"}));

TEST(OAuthProviders, FileThatIsNoListOfProvidersIsRefused) {
    for (const QByteArray& content :
         {QByteArray(), QByteArray("[]"), QByteArray("{"), QByteArray("<html>"),
          QByteArray("\xEF\xBB\xBF{}x"), QByteArray(R"({"a":7})"), QByteArray(R"({"../x":{}})"),
          QByteArray(R"({"A":{}})"), QByteArray(10000, '[')})
        EXPECT_EQ(parseProviders(content, path).status().code(), ErrorCode::SyntaxError)
            << content.left(20).constData();
}

TEST_F(OAuth, ProvidersFileThatIsMissingIsReportedWithItsPath) {
    QFile::remove(folder + "/providers.json");
    EXPECT_TRUE(oauth::readProviders(folder).status().text().contains("Manca il file " + folder));
}

TEST_F(OAuth, ProvidersFileThatOthersCanWriteIsRefused) {
    const QString file = folder + "/providers.json";
    ASSERT_TRUE(QFile::setPermissions(file, QFile::permissions(file) | QFile::WriteOther));
    EXPECT_TRUE(oauth::readProviders(folder).status().text().contains("altri utenti possono scrivere"));
}

TEST_F(OAuth, HugeProvidersFileIsRefused) {
    writeProviders(server.providers() + QByteArray(300 * 1024, ' '));
    EXPECT_FALSE(oauth::readProviders(folder).ok());
}

}  // namespace

}  // namespace provider_test
