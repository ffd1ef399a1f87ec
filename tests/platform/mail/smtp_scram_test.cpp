// SPDX-License-Identifier: GPL-3.0-or-later
// The whole dialogue of SCRAM-SHA-256 with a server that computes its part, or falsifies it.
#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/scram_server.h"
#include "platform/mail/smtp_fixture.h"

namespace smtp_scram_test {

using testing_support::ScriptedServer;
using testing_support::TlsIdentity;

namespace {

const QByteArrayList helloScram{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH SCRAM-SHA-256"};
const QByteArrayList helloOld{"S: 220 ready", "C: HELO *", "S: 250 ready", "C: STARTTLS", "S: 502 what"};
const QByteArrayList proved{"A: final", "C: ", "S: 235 welcome"};
const QByteArrayList loginByPlain{"S: 220 ready",      "C: EHLO *",       "S: 250-ready",
                                  "S: 250 AUTH PLAIN", "C: AUTH PLAIN *", "S: 235 welcome"};
constexpr qsizetype shortestToken = 8;  // what is shorter may be in the log by chance
const char* const unfinished = "Il server non ha completato l'autenticazione.";

/// A client that logs in and keeps a log, and its server.
class SmtpScram : public testing::Test {
  protected:
    /// Sends two messages to a server that plays these dialogues.
    QList<Heard> sendTwo(const QList<QByteArrayList>& dialogues, ScramServer& scram, int heloMode = 0,
                         const char* password = "segreto-più") {
        ScriptedServer server(dialogues, TlsIdentity(), 0, scram.answers());
        Client client(server.port());
        client.smtp.UseAuth = true;
        client.smtp.UserName = QStringLiteral("utente=uno,due");
        client.smtp.UserPassword = QString::fromUtf8(password);
        client.smtp.HeloMode = heloMode;
        client.smtp.LogFile = m_folder.filePath(QStringLiteral("prova.xt1"));
        client.smtp.LogEnabled = true;
        QList<Heard> heard;
        for (int i = 0; i < 2; ++i)
            heard.append(client.send());
        EXPECT_EQ(server.remainder(), "");
        QFile file(client.smtp.LogFile);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        m_log = file.readAll();
        expectNoSecret(scram, password);
        return heard;
    }

    void delivers(const QByteArrayList& login, int heloMode = 0) {
        ScramServer scram("segreto-più");
        const auto heard = sendTwo({login + message + message}, scram, heloMode);
        for (const Heard& outcome : heard)
            EXPECT_TRUE(outcome.done) << qPrintable(outcome.text);
        EXPECT_EQ(scram.tokens().size(), 8);
    }

    /// The first message fails, its connection is dropped at once, and a sound server serves the next one.
    void refuses(const QByteArrayList& login, const ScramServer::Fault& fault) {
        ScramServer spoilt("segreto-più", fault);
        const auto heard = sendTwo({login + QByteArrayList{"WAIT"}, loginByPlain + message}, spoilt);
        EXPECT_FALSE(heard[0].done);
        EXPECT_EQ(heard[0].code, 0);
        EXPECT_EQ(heard[0].text, QString::fromUtf8(unfinished));
        EXPECT_TRUE(heard[1].done) << qPrintable(heard[1].text);
    }

    void expectNoSecret(const ScramServer& scram, const QByteArray& password) const {
        EXPECT_TRUE(m_log.contains("> AUTH SCRAM-SHA-256\r\n")) << m_log.constData();
        EXPECT_FALSE(m_log.contains(password)) << m_log.constData();
        for (const QByteArray& token : scram.tokens())
            EXPECT_TRUE(token.size() < shortestToken || !m_log.contains(token)) << token.constData() << '\n'
                                                                                << m_log.constData();
    }

    QTemporaryDir m_folder;
    QByteArray m_log;
};

TEST_F(SmtpScram, LogsInWithAnInitialResponse) {
    delivers(helloScram + QByteArrayList{"A: first"} + proved);
}

TEST_F(SmtpScram, LogsInWhereTheInitialResponseIsIgnored) {
    delivers(helloScram + QByteArrayList{"C: AUTH SCRAM-SHA-256 *", "S: 334 ", "A: first"} + proved);
}

TEST_F(SmtpScram, LogsInWhereTheInitialResponseIsRefused) {
    delivers(helloScram +
             QByteArrayList{"C: AUTH SCRAM-SHA-256 *", "S: 501 no initial response", "C: AUTH SCRAM-SHA-256",
                            "S: 334 ", "A: first"} +
             proved);
}

TEST_F(SmtpScram, LogsInAfterAHelo) {
    delivers(helloOld + QByteArrayList{"A: first"} + proved, 1);
}

TEST_F(SmtpScram, LogsInAfterAHeloWithoutAnInitialResponse) {
    delivers(helloOld +
                 QByteArrayList{"C: AUTH SCRAM-SHA-256 *", "S: 501 what", "C: AUTH SCRAM-SHA-256", "S: 334 ",
                                "A: first"} +
                 proved,
             1);
}

TEST_F(SmtpScram, LogsInAfterAnEhloThatIsRefused) {
    delivers(QByteArrayList{"S: 220 ready", "C: EHLO *", "S: 502 what"} + helloOld.mid(1) +
             QByteArrayList{"A: first"} + proved);
}

TEST_F(SmtpScram, WrongPasswordIsRefusedByTheServer) {
    ScramServer scram("segreto-più");
    const QByteArrayList refused =
        helloScram + QByteArrayList{"A: first", "A: final", "C: QUIT", "S: 221 bye"};
    const auto heard = sendTwo({refused}, scram, 0, "un altro segreto");
    for (const Heard& outcome : heard) {
        EXPECT_FALSE(outcome.done);
        EXPECT_EQ(outcome.code, 535);
    }
}

TEST_F(SmtpScram, WrongSignatureOfTheServerIsRefused) {
    ScramServer::Fault fault;
    fault.signature = true;
    refuses(helloScram + QByteArrayList{"A: first", "A: final"}, fault);
}

TEST_F(SmtpScram, ServerWithoutAProofIsOfferedNoOtherMechanism) {
    QByteArrayList hello = helloScram;
    hello.last() += " SCRAM-SHA-1 PLAIN LOGIN CRAM-MD5";
    ScramServer::Fault fault;
    fault.signature = true;
    refuses(hello + QByteArrayList{"A: first", "A: final"}, fault);
    refuses(hello + QByteArrayList{"A: first", "C: *", "S: 235 welcome"}, {});
    refuses(hello + QByteArrayList{"C: AUTH SCRAM-SHA-256 *", "S: 235 welcome"}, {});
}

TEST_F(SmtpScram, NonceThatIsNotTheClientsIsRefused) {
    ScramServer::Fault fault;
    fault.nonce = "fyko+d2lbbFgONRv9qkxdawL3rfcNHYJY1ZVvWVs7j";
    refuses(helloScram + QByteArrayList{"A: first"}, fault);
}

TEST_F(SmtpScram, NonceThatIsCutIsRefused) {
    ScramServer::Fault fault;
    fault.nonce = "f";
    refuses(helloScram + QByteArrayList{"A: first"}, fault);
}

TEST_F(SmtpScram, AbsurdIterationCountIsRefusedAtOnce) {
    for (const char* count : {"1000001", "4294967295", "99999999999999999999", "-1", "0", "", "x"}) {
        SCOPED_TRACE(count);
        ScramServer::Fault fault;
        fault.iterations = *count ? count : " ";
        refuses(helloScram + QByteArrayList{"A: first"}, fault);
    }
}

TEST_F(SmtpScram, BrokenFirstMessageIsRefused) {
    for (const char* text :
         {"r", "r=", "r=x", "s=x,i=1", "m=x,r=y,s=eA==,i=4096", "e=unknown-user", ",,,", "v=x"}) {
        SCOPED_TRACE(text);
        ScramServer::Fault fault;
        fault.first = text;
        refuses(helloScram + QByteArrayList{"A: first"}, fault);
    }
}

TEST_F(SmtpScram, BrokenBase64IsRefused) {
    for (const char* text : {"!!!!", "cj1=eA", "cj14LHM9\\0", "c", "=", "è"}) {
        SCOPED_TRACE(text);
        refuses(helloScram + QByteArrayList{"C: AUTH SCRAM-SHA-256 *", QByteArray("S: 334 ") + text}, {});
        refuses(helloScram + QByteArrayList{"A: first", "C: *", QByteArray("S: 334 ") + text}, {});
    }
}

TEST_F(SmtpScram, SuccessWithoutTheServersSignatureIsRefused) {
    refuses(helloScram + QByteArrayList{"A: first", "C: *", "S: 235 welcome"}, {});
}

TEST_F(SmtpScram, ErrorInThePlaceOfTheSignatureIsRefused) {
    refuses(
        helloScram + QByteArrayList{"A: first", "C: *", "S: 334 " + QByteArray("e=invalid-proof").toBase64()},
        {});
}

TEST_F(SmtpScram, ChallengeThatComesTwiceIsRefusedAndNotLogged) {
    const QByteArray twice = "334 " + QByteArray("r=a,s=eA==,i=4096").toBase64() + "\\r\\n";
    ScramServer scram("segreto-più");
    const auto heard = sendTwo(
        {helloScram + QByteArrayList{"C: AUTH*", "S- " + twice + twice, "WAIT"}, loginByPlain + message},
        scram);
    EXPECT_FALSE(heard[0].done);
    EXPECT_TRUE(heard[1].done);
    EXPECT_FALSE(m_log.contains(twice.mid(4, 20))) << m_log.constData();
}

}  // namespace

}  // namespace smtp_scram_test
