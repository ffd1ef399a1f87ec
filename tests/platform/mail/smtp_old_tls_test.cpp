// SPDX-License-Identifier: GPL-3.0-or-later
// A server that knows nothing newer than TLS 1.1. The system's own settings would refuse it as well, so these
// tests run under settings that allow everything: what refuses is the client's minimum.
#include <QFile>
#include <QSslConfiguration>
#include <QTemporaryDir>

#include "platform/mail/smtp_fixture.h"

namespace smtp_old_tls_test {

using testing_support::ScriptedServer;
using testing_support::TestCertificates;
using testing_support::TlsIdentity;

namespace {

const char* const lenientSettings = R"(openssl_conf = all
[all]
ssl_conf = ssl
[ssl]
system_default = lenient
[lenient]
MinProtocol = TLSv1
CipherString = ALL:@SECLEVEL=0
[req]
distinguished_name = name
[name]
)";

/// OpenSSL reads its settings when it is first used.
const bool lenient = [] {
    static QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("openssl.cnf")));
    return file.open(QIODevice::WriteOnly) && file.write(lenientSettings) > 0 &&
           qputenv("OPENSSL_CONF", file.fileName().toLocal8Bit());
}();

const QByteArrayList offer{"S: 220 ready",    "C: EHLO *",   "S: 250-ready",
                           "S: 250 STARTTLS", "C: STARTTLS", "S: 220 go ahead"};
const QByteArrayList refused = offer + QByteArrayList{"TLSFAIL"};

TlsIdentity old() {
    TlsIdentity identity = TestCertificates::get().good();
    identity.newestProtocol = "TLSv1.1";
    return identity;
}

class OldTls : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(lenient); }

    static void prepare(Client& client) {
        client.smtp.ServerName = QStringLiteral("localhost");
        client.smtp.CertificateFolder = TestCertificates::get().trustFolder();
    }
};

TEST_F(OldTls, AnotherClientGetsThrough) {
    ScriptedServer server({{"TLS", "S: 220 ready", "C: QUIT"}}, old());
    QSslSocket socket;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::AnyProtocol);
    configuration.setCaCertificates(
        QSslCertificate::fromPath(TestCertificates::get().trustFolder() + QStringLiteral("/ca.pem")));
    socket.setSslConfiguration(configuration);
    socket.connectToHostEncrypted(QStringLiteral("localhost"), server.port());
    EXPECT_TRUE(socket.waitForEncrypted()) << qPrintable(socket.errorString());
    EXPECT_EQ(int(socket.sessionProtocol()), 1) << "another protocol than TLS 1.1";
    socket.write("QUIT\r\n");
    EXPECT_TRUE(socket.waitForBytesWritten());
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(OldTls, ServerIsRefusedForEachRecipientAndNothingIsSentInTheClear) {
    ScriptedServer server({refused, refused}, old());
    Client client(server.port());
    prepare(client);
    for (int i = 0; i < 2; ++i) {
        const Heard heard = client.send();
        EXPECT_FALSE(heard.done);
        EXPECT_EQ(heard.code, 0);
        EXPECT_TRUE(heard.text.startsWith(QStringLiteral("Connessione TLS non riuscita")))
            << qPrintable(heard.text);
    }
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(OldTls, RecipientOfAnotherServerIsServedNext) {
    ScriptedServer server({refused}, old());
    ScriptedServer newer({offer + QByteArrayList{"TLS", "C: EHLO *", "S: 250 ready"} + message},
                         TestCertificates::get().good());
    Client client(server.port());
    prepare(client);
    EXPECT_FALSE(client.send().done);
    client.smtp.ServerPort = newer.port();
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
    EXPECT_EQ(newer.remainder(), "");
}

TEST_F(OldTls, OpportunisticRouteContinuesWithOnePlainAttempt) {
    ScriptedServer server(
        {refused, QByteArrayList{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS"} + message},
        old());
    Client client(server.port());
    prepare(client);
    client.smtp.OpportunisticTls = true;
    EXPECT_TRUE(client.send().done);
    EXPECT_EQ(server.remainder(), "");
}

}  // namespace

}  // namespace smtp_old_tls_test
