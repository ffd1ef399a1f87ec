// SPDX-License-Identifier: GPL-3.0-or-later
// Where a password may go without TLS, and which servers have offered TLS.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/ClearPassword.h"
#include "platform/mail/DomainName.h"
#include "platform/mail/TlsMemory.h"

namespace server_list_test {

namespace {

class ServerList : public testing::Test {
  protected:
    QString path() const { return m_folder.filePath(QStringLiteral("elenco.txt")); }
    void write(const QByteArray& text) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QByteArray content() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Whether a password may be sent to the server, as read from an account's text.
    bool mayGo(const char* server) const {
        return mail::passwordMayGoInTheClear(mail::connectableHost(QString::fromUtf8(server)), path());
    }

    const QString m_host = QStringLiteral("smtp.example.it");
    QTemporaryDir m_folder;
};

TEST_F(ServerList, PasswordMayGoInTheClearToTheMachineItselfAndToPrivateAddresses) {
    for (const char* server :
         {"localhost", "LocalHost", " localhost ", "127.0.0.1", "127.255.255.254", "::1", "10.0.0.1",
          "10.255.255.255", "172.16.0.1", "172.31.255.255", "192.168.0.1", "192.168.255.255", "169.254.0.1",
          "fc00::1", "fdff:ffff::1", "fe80::1", "fe80::1%lo", "febf:ffff::1"})
        EXPECT_TRUE(mayGo(server)) << server;
}

TEST_F(ServerList, PasswordDoesNotGoInTheClearToAnyOtherServer) {
    for (const char* server : {"smtp.example.it",
                               "localhost.example.it",
                               "localhost.localdomain",
                               "mail",
                               "8.8.8.8",
                               "9.255.255.255",
                               "11.0.0.0",
                               "126.255.255.255",
                               "128.0.0.1",
                               "172.15.255.255",
                               "172.32.0.0",
                               "192.167.255.255",
                               "192.169.0.0",
                               "169.253.255.255",
                               "169.255.0.0",
                               "0.0.0.0",
                               "255.255.255.255",
                               "224.0.0.1",
                               "100.64.0.1",
                               "::",
                               "::2",
                               "2001:db8::1",
                               "fbff::1",
                               "fe00::1",
                               "fec0::1",
                               "ff02::1",
                               "::ffff:8.8.8.8",
                               "127.0.0.1.example.it",
                               "10.0.0.1.nip.io",
                               ""})
        EXPECT_FALSE(mayGo(server)) << server;
}

TEST_F(ServerList, PasswordMayGoInTheClearToListedServers) {
    write(
        "\xEF\xBB\xBF"
        "smtp.example.it\r\n"
        "# posta.example.it\n"
        "\r\n"
        "  Relay.Example.IT.  \r"
        "caffè.example\n"
        "203.0.113.5");
    for (const char* server :
         {"smtp.example.it", "SMTP.example.it.", "relay.example.it", "caffè.example", "203.0.113.5"})
        EXPECT_TRUE(mayGo(server)) << server;
    for (const char* server : {"posta.example.it", "example.it", "smtp.example", "x.smtp.example.it",
                               "203.0.113.50", "# posta.example.it"})
        EXPECT_FALSE(mayGo(server)) << server;
    write("");
    EXPECT_FALSE(mayGo("smtp.example.it"));
}

TEST_F(ServerList, ListThatIsALinkOrTooLargeIsNotRead) {
    const QString target = m_folder.filePath(QStringLiteral("altro.txt"));
    write("smtp.example.it\r\n");
    ASSERT_TRUE(QFile::rename(path(), target));
    ASSERT_TRUE(QFile::link(target, path()));
    EXPECT_FALSE(mayGo("smtp.example.it"));
    QFile::remove(path());
    write("smtp.example.it\r\n" + QByteArray(1024 * 1024, '#'));
    EXPECT_FALSE(mayGo("smtp.example.it"));
}

TEST_F(ServerList, ServerThatOfferedTlsIsRememberedInTheFile) {
    mail::TlsMemory memory;
    EXPECT_FALSE(memory.knows(path(), m_host, 587));
    EXPECT_TRUE(memory.remember(path(), m_host, 587).ok());
    EXPECT_TRUE(memory.remember(path(), QStringLiteral("SMTP.example.it"), 587).ok());
    EXPECT_TRUE(memory.remember(path(), QStringLiteral("fd00::1"), 25).ok());
    EXPECT_EQ(content(), "smtp.example.it 587\r\nfd00::1 25\r\n");

    const mail::TlsMemory next;
    EXPECT_TRUE(next.knows(path(), QStringLiteral("SMTP.Example.IT"), 587));
    EXPECT_FALSE(next.knows(path(), m_host, 25));
    EXPECT_FALSE(next.knows(path(), m_host, 58));
    EXPECT_FALSE(next.knows(path(), QStringLiteral("example.it"), 587));
}

TEST_F(ServerList, WhoDeletesALineHasTheServerForgotten) {
    mail::TlsMemory memory;
    ASSERT_TRUE(memory.remember(path(), m_host, 587).ok());
    write("# nessuno");
    EXPECT_FALSE(memory.knows(path(), m_host, 587));
    ASSERT_TRUE(memory.remember(path(), m_host, 25).ok());
    EXPECT_EQ(content(), "# nessuno\r\nsmtp.example.it 25\r\n");
    QFile::remove(path());
    EXPECT_FALSE(memory.knows(path(), m_host, 25));
}

TEST_F(ServerList, EntriesOfAnyHandAreRead) {
    write("\xEF\xBB\xBFSMTP.example.it\t 587 \npippo\n\n0 0\n");
    const mail::TlsMemory memory;
    EXPECT_TRUE(memory.knows(path(), m_host, 587));
    EXPECT_FALSE(memory.knows(path(), QStringLiteral("pippo"), 0));
}

TEST_F(ServerList, ServerIsKnownForTheRunWhereTheFileCannotBeWritten) {
    for (const QString& file :
         {QString(), m_folder.filePath(QStringLiteral("manca/tls.txt")), m_folder.path()}) {
        mail::TlsMemory memory;
        EXPECT_FALSE(memory.remember(file, m_host, 587).ok());
        EXPECT_TRUE(memory.knows(file, m_host, 587));
        EXPECT_FALSE(memory.knows(file, m_host, 25));
    }
}

}  // namespace

}  // namespace server_list_test
