// SPDX-License-Identifier: GPL-3.0-or-later
// Inspection: a connection without a message.
#include "platform/mail/smtp_fixture.h"
#include "platform/mail/SmtpSession.h"

namespace smtp_inspect_test {

using testing_support::ScriptedServer;
using testing_support::TestCertificates;

namespace {

class Inspection {
  public:
    mail::DeliveryOutcome of(const mail::Route& route) {
        QEventLoop loop;
        mail::DeliveryOutcome outcome;
        QObject::connect(&session, &mail::SmtpSession::finished, &loop,
                         [&](const mail::DeliveryOutcome& told) {
                             outcome = told;
                             loop.quit();
                         });
        QTimer::singleShot(0, &session, [&] {
            session.inspect(route, {.stall = 10000, .greeting = 0, .hello = 0, .login = 0});
        });
        loop.exec();
        return outcome;
    }

    static mail::Route to(quint16 port) {
        mail::Route route;
        route.host = QStringLiteral("localhost");
        route.port = port;
        route.certificateFolder = TestCertificates::get().trustFolder();
        return route;
    }

    mail::Transcript transcript;
    mail::SmtpSession session{transcript};
};

TEST(SmtpInspect, FindsTlsCertificateSizeAndLoginAndSendsNothing) {
    ScriptedServer server({{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS", "C: STARTTLS",
                            "S: 220 go", "TLS", "C: EHLO *", "S: 250-ready", "S: 250-SIZE 20971520",
                            "S: 250 AUTH PLAIN", "C: AUTH PLAIN *", "S: 235 welcome", "C: QUIT"}},
                          TestCertificates::get().good());
    mail::Route route = Inspection::to(server.port());
    route.login = true;
    route.user = QStringLiteral("utente");
    route.password = QStringLiteral("segreto");
    auto inspection = std::make_unique<Inspection>();
    const auto outcome = inspection->of(route);
    EXPECT_TRUE(outcome.delivered) << outcome.text.toStdString();
    const mail::SessionFindings found = inspection->session.findings();
    EXPECT_TRUE(found.greeted);
    EXPECT_TRUE(found.encrypted);
    EXPECT_TRUE(found.loggedIn);
    EXPECT_EQ(found.sizeLimit, 20971520);
    EXPECT_EQ(found.certificate, TestCertificates::get().good().certificate);
    EXPECT_TRUE(found.security.contains("TLS")) << found.security.toStdString();
    inspection.reset();
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpInspect, KeepsTheCertificateThatWasNotAccepted) {
    ScriptedServer server({{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS", "C: STARTTLS",
                            "S: 220 go", "TLSFAIL"}},
                          TestCertificates::get().expired());
    Inspection inspection;
    const auto outcome = inspection.of(Inspection::to(server.port()));
    EXPECT_FALSE(outcome.delivered);
    const mail::SessionFindings& found = inspection.session.findings();
    EXPECT_TRUE(found.greeted);
    EXPECT_FALSE(found.encrypted);
    EXPECT_EQ(found.certificate, TestCertificates::get().expired().certificate);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpInspect, ServerWithoutAnythingIsFoundAndNoneIsReported) {
    ScriptedServer server({hello + QByteArrayList{"C: QUIT"}});
    Inspection inspection;
    EXPECT_TRUE(inspection.of(Inspection::to(server.port())).delivered);
    EXPECT_EQ(inspection.session.findings().sizeLimit, 0);
    EXPECT_FALSE(inspection.session.findings().encrypted);
    mail::Route nowhere = Inspection::to(1);
    EXPECT_FALSE(inspection.of(nowhere).delivered);
    EXPECT_FALSE(inspection.session.findings().greeted);
    EXPECT_EQ(server.remainder(), "");
}

TEST(SmtpInspect, SizeThatIsNoNumberIsNone) {
    for (const auto& [line, limit] : {std::pair<const char*, qint64>{"SIZE", 0},
                                      {"SIZE x", 0},
                                      {"SIZE -5", 0},
                                      {"SIZE 99999999999999999999999", 0},
                                      {"size 1000", 1000}}) {
        const auto offered = mail::SmtpExtensions::read(QByteArray("ready\n") + line);
        EXPECT_TRUE(offered.size) << line;
        EXPECT_EQ(offered.sizeLimit, limit) << line;
    }
}

}  // namespace
}  // namespace smtp_inspect_test
