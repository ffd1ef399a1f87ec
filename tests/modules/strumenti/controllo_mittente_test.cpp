// SPDX-License-Identifier: GPL-3.0-or-later
// The whole check: a real name server, and a real mail server with TLS and login.
#include "modules/strumenti/ControlloMittente.h"

#include <gtest/gtest.h>

#include <optional>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QUdpSocket>

#include "modules/strumenti/RecordChiave.h"
#include "platform/oauth/TokenFile.h"
#include "platform/system/Keyring.h"
#include "platform/system/ProgramFolder.h"
#include "support/NameServer.h"
#include "support/Postfix.h"
#include "support/PrivateNetwork.h"
#include "support/ScriptedServer.h"
#include "support/TestCertificates.h"

namespace controllo_mittente_test {

using namespace testing_support;

namespace {

const bool isolated = enterPrivateNetwork(__FILE__);

class Controllo : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        if (!isolated) return;
        addLoopbackAddress("203.0.113.25");
        s_posta = new Postfix(2500);
    }
    static void TearDownTestSuite() {
        delete s_posta;
        s_posta = nullptr;
    }

    void SetUp() override {
        if (!isolated) GTEST_SKIP() << "the system allows no private network";
        ASSERT_TRUE(replaceResolverConfiguration("nameserver 127.0.0.1\n"));
        sys::setProgramFolder(cartella.path());
        QDir(cartella.path()).mkpath("data/certificati");
        const QDir fidati(TestCertificates::get().trustFolder());
        for (const QString& nome : fidati.entryList({"*.pem"}))
            QFile::copy(fidati.filePath(nome), cartella.filePath("data/certificati/" + nome));
    }

    static Account account() {
        Account chi;
        chi.txtNomeVisual = "Ada";
        chi.txtEmail = "ada@example.it";
        chi.txtServerSMTP = "localhost";
        chi.txtServerPORT = QString::number(Postfix::submission);
        chi.txtOutPort = "0";
        chi.chkAutentick = "1";
        chi.txtUsername = Postfix::user;
        chi.txtPassword = Postfix::password;
        chi.cmbSaluto = "EHLO";
        chi.chkUsaSMTP = "1";
        return chi;
    }

    static std::vector<RigaControllo> controlla(const Account& chi, int attesaDns = 60000) {
        QEventLoop giro;
        ControlloMittente controllo({[](int) {}, [&] { giro.quit(); }}, attesaDns);
        controllo.Avvia(chi, chi.txtPassword);
        if (controllo.InCorso()) giro.exec();
        return controllo.Righe();
    }

    static RigaControllo riga(const std::vector<RigaControllo>& righe, const char* controllo) {
        for (const RigaControllo& una : righe)
            if (una.controllo == QString::fromUtf8(controllo)) return una;
        ADD_FAILURE() << controllo;
        return {};
    }

    /// Expects this text as the reason of a red line.
    static void dice(const std::vector<RigaControllo>& righe, const char* controllo, const char* testo) {
        const RigaControllo una = riga(righe, controllo);
        EXPECT_EQ(una.semaforo, Semaforo::Rosso) << controllo;
        EXPECT_TRUE(una.frase.contains(QString::fromUtf8(testo))) << una.frase.toStdString();
    }

    static void aspetta(const std::vector<RigaControllo>& righe, const char* controllo, Semaforo semaforo) {
        const RigaControllo una = riga(righe, controllo);
        EXPECT_EQ(una.semaforo, semaforo) << controllo << ": " << una.frase.toStdString();
    }

    NameServer::Records records() const {
        return {{{"example.it", 10, "mx.example.it"}},
                {{"mx.example.it", "203.0.113.25"}, {"example.it", "203.0.113.25"}},
                {},
                altri};
    }

    QTemporaryDir cartella;
    QByteArrayList altri;
    static Postfix* s_posta;
};

Postfix* Controllo::s_posta = nullptr;

TEST_F(Controllo, DomainAndServerInOrderAreGreenLineByLine) {
    if (!s_posta->isPossible()) GTEST_SKIP() << "only the superuser can give a whole mail server its users";
    ASSERT_EQ(s_posta->problem().toStdString(), "");
    const auto chiave = mail::createDkimKey(cartella.filePath("data/dkim"), "example.it");
    ASSERT_TRUE(chiave.ok());
    altri = {RecordDi("example.it", chiave.value()).rigaDiZona.toLatin1().replace("( ", "").replace(" )", ""),
             R"(example.it. TXT "v=spf1 mx -all")", R"(_dmarc.example.it. TXT "v=DMARC1; p=reject")"};
    const NameServer nomi(NameServer::Program::Unbound, records());
    ASSERT_EQ(nomi.problem(), "");
    Account chi = account();
    const auto righe = controlla(chi);
    EXPECT_EQ(righe.size(), 10U);
    for (const char* quale : {"Posta in arrivo (MX)", "Indirizzo del dominio (A)", "Firma DKIM", "DMARC",
                              "Server raggiunto", "TLS", "Accesso", "Dimensione massima"})
        aspetta(righe, quale, Semaforo::Verde);
    // localhost has no public address
    aspetta(righe, "SPF", Semaforo::Giallo);
    EXPECT_NE(riga(righe, "Certificato").semaforo, Semaforo::Rosso);
}

TEST_F(Controllo, WrongPasswordIsTheLoginsFaultAlone) {
    if (!s_posta->isPossible()) GTEST_SKIP() << "only the superuser can give a whole mail server its users";
    const NameServer nomi(NameServer::Program::Unbound, records());
    Account chi = account();
    chi.txtPassword = "sbagliata";
    const auto righe = controlla(chi);
    aspetta(righe, "TLS", Semaforo::Verde);
    aspetta(righe, "Accesso", Semaforo::Rosso);
    for (const RigaControllo& una : righe)
        EXPECT_FALSE((una.frase + una.dettagli.join(' ')).contains("sbagliata"));
}

TEST_F(Controllo, PasswordGoesToNoServerWithoutTls) {
    ScriptedServer server(
        {{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 AUTH PLAIN LOGIN", "C: QUIT"}});
    NameServer::Records tutti = records();
    tutti.addresses.append(NameServer::Address{"smtp.example.it", "127.0.0.1"});
    const NameServer nomi(NameServer::Program::Unbound, tutti);
    Account chi = account();
    chi.txtServerSMTP = "smtp.example.it";
    chi.txtServerPORT = QString::number(server.port());
    const auto righe = controlla(chi);
    aspetta(righe, "Server raggiunto", Semaforo::Verde);
    aspetta(righe, "TLS", Semaforo::Rosso);
    aspetta(righe, "Accesso", Semaforo::Rosso);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(Controllo, DirectRouteIsJudgedByThisMachine) {
    altri = {R"(example.it. TXT "v=spf1 a -all")", "25.113.0.203.in-addr.arpa. PTR mx.example.it."};
    const NameServer nomi(NameServer::Program::Unbound, records());
    Account chi = account();
    chi.chkUsaSMTP = "0";
    const auto righe = controlla(chi);
    EXPECT_EQ(righe.size(), 6U);
    aspetta(righe, "SPF", Semaforo::Verde);
    aspetta(righe, "Nome inverso di questo computer", Semaforo::Verde);
}

TEST_F(Controllo, SwitchesOfTheAccountAreReadAsARunReadsThem) {
    Account chi = account();
    chi.txtServerPORT = "1";
    for (const char* server : {"1", "2", "-1"}) {
        chi.chkUsaSMTP = server;
        EXPECT_EQ(controlla(chi).size(), 10U) << server;
    }
    chi.chkUsaSMTP = "00";
    EXPECT_EQ(controlla(chi).size(), 6U);
    chi.chkUsaSMTP = "1";
    chi.chkAutentick = "01";
    aspetta(controlla(chi), "Accesso", Semaforo::Giallo);  // no server to try it with
    chi.chkAutentick = "2";
    aspetta(controlla(chi), "Accesso", Semaforo::Verde);
}

TEST_F(Controllo, EmptyDomainIsReportedLineByLine) {
    const NameServer nomi(NameServer::Program::Unbound, records());
    Account chi = account();
    chi.txtEmail = "ada@niente.example";
    chi.txtServerPORT = "1";
    const auto righe = controlla(chi);
    aspetta(righe, "Posta in arrivo (MX)", Semaforo::Rosso);
    aspetta(righe, "SPF", Semaforo::Rosso);
    aspetta(righe, "DMARC", Semaforo::Giallo);
    aspetta(righe, "Server raggiunto", Semaforo::Rosso);
    aspetta(righe, "Accesso", Semaforo::Giallo);
}

TEST_F(Controllo, NoNetworkLeavesAttentionAndNoHarm) {
    Account chi = account();
    chi.txtServerPORT = "1";
    const auto righe = controlla(chi);  // no name server listens
    for (const char* quale : {"Posta in arrivo (MX)", "Indirizzo del dominio (A)", "SPF", "DMARC"})
        aspetta(righe, quale, Semaforo::Giallo);
}

TEST_F(Controllo, AccountWithoutAnAddressOrAServerIsReported) {
    Account chi = account();
    chi.txtEmail = "nessuno";
    auto righe = controlla(chi);
    ASSERT_EQ(righe.size(), 1U);
    EXPECT_EQ(righe[0].semaforo, Semaforo::Rosso);
    const NameServer nomi(NameServer::Program::Unbound, records());
    chi = account();
    chi.txtServerSMTP = "";
    righe = controlla(chi);
    aspetta(righe, "Server raggiunto", Semaforo::Rosso);
    EXPECT_TRUE(riga(righe, "Server raggiunto").frase.startsWith("Manca il nome del server."));
}

TEST_F(Controllo, ServerThatCannotBeAskedForIsToldBeforeAnyConnection) {
    Account chi = account();
    chi.txtServerSMTP = "mail server";
    dice(controlla(chi), "Server raggiunto", "Il nome del server non è valido.");
    chi = account();
    for (const char* porta : {"0", "", "65536", "smtp"}) {
        chi.txtServerPORT = porta;
        dice(controlla(chi), "Server raggiunto", "La porta del server non è valida.");
    }
}

TEST_F(Controllo, MarkerOfTheKeyringIsNeverSentAsAPassword) {
    ScriptedServer server({{"DROP"}}, TestCertificates::get().good());
    Account chi = account();
    chi.txtServerPORT = QString::number(server.port());
    chi.txtPassword = sys::keyring::newMarker();
    dice(controlla(chi), "Accesso", "Il portachiavi non ha dato la password di questo account.");
    EXPECT_EQ(server.ended(), 0);  // nobody came
    chi.chkAutentick = "0";
    aspetta(controlla(chi), "Accesso", Semaforo::Verde);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(Controllo, TokenOfAConsentLogsIn) {
    QFile fornitori(cartella.filePath("data/oauth/providers.json"));
    QDir().mkpath(cartella.filePath("data/oauth"));
    ASSERT_TRUE(fornitori.open(QIODevice::WriteOnly));
    fornitori.write(R"({"prova": {"name": "Prova", "authorization_endpoint": "https://localhost:1/authorize",
                        "token_endpoint": "https://localhost:1/token", "scopes": ["posta.invio"],
                        "smtp_hosts": ["localhost"], "client_id": "programma"}})");
    fornitori.close();
    const QByteArray accesso = QByteArray(
                                   "user=ada\x01"
                                   "auth=Bearer accesso-7\x01\x01")
                                   .toBase64();
    ScriptedServer server({{"S: 220 ready", "C: EHLO *", "S: 250-ready", "S: 250 STARTTLS", "C: STARTTLS",
                            "S: 220 go ahead", "TLS", "C: EHLO *", "S: 250-ready", "S: 250 AUTH XOAUTH2",
                            "C: AUTH XOAUTH2 " + accesso, "S: 235 welcome", "C: QUIT"}},
                          TestCertificates::get().good());
    Account chi = account();
    chi.txtServerPORT = QString::number(server.port());
    chi.txtUsername = "ada";
    chi.txtPassword = "OAuth2";
    dice(controlla(chi), "Accesso", "Manca il consenso del fornitore");
    EXPECT_EQ(server.ended(), 0);  // nobody came
    const QString posto = oauth::tokenPath(cartella.filePath("data/oauth"), "prova", "ada");
    const QDateTime fine = QDateTime::currentDateTimeUtc().addSecs(3600);
    ASSERT_TRUE(oauth::writeToken(cartella.filePath("data/oauth"), posto, {"accesso-7", "", fine}).ok());
    aspetta(controlla(chi), "Accesso", Semaforo::Verde);
    EXPECT_EQ(server.remainder(), "");
}

TEST_F(Controllo, ProvidersFileThatCannotBeReadIsTheReason) {
    QDir().mkpath(cartella.filePath("data/oauth/providers.json"));
    Account chi = account();
    chi.txtPassword = "OAuth2";
    dice(controlla(chi), "Accesso", "providers.json");
}

TEST_F(Controllo, ServerThatNeverAnswersIsWaitedForUntilTheLimit) {
    ScriptedServer server({{"HOLD"}});
    Account chi = account();
    chi.txtServerPORT = QString::number(server.port());
    QEventLoop giro;
    std::optional<ServerProvato> provato;
    ProvaServer prova(200);
    prova.Avvia(chi, chi.txtPassword, [&](const ServerProvato& esito) {
        provato = esito;
        giro.quit();
    });
    EXPECT_FALSE(provato);
    giro.exec();
    EXPECT_EQ(provato->esito.text, "Tempo scaduto: il server non risponde.");
    EXPECT_FALSE(provato->esito.delivered);
    EXPECT_EQ(server.remainder(), "");  // the connection was closed
}

TEST_F(Controllo, NameServerThatNeverAnswersIsWaitedForUntilTheLimit) {
    QUdpSocket muto;
    ASSERT_TRUE(muto.bind(QHostAddress::LocalHost, 53));
    Account chi = account();
    chi.chkUsaSMTP = "0";
    const auto righe = controlla(chi, 200);
    EXPECT_TRUE(muto.hasPendingDatagrams());
    EXPECT_EQ(righe.size(), 6U);
    for (const RigaControllo& una : righe) {
        if (una.controllo == "Firma DKIM") continue;  // without a key there is nothing to ask for
        EXPECT_EQ(una.semaforo, Semaforo::Giallo) << qPrintable(una.controllo);
        EXPECT_TRUE(una.frase.startsWith("Il DNS è troppo lento")) << qPrintable(una.frase);
    }
}

TEST_F(Controllo, CancelledCheckReportsNothingMore) {
    const NameServer nomi(NameServer::Program::Unbound, records());
    int dette = 0;
    ControlloMittente controllo({[&](int) { ++dette; }, [&] { ++dette; }});
    Account chi = account();
    chi.txtServerPORT = "1";
    controllo.Avvia(chi, chi.txtPassword);
    const int subito = dette;
    EXPECT_TRUE(controllo.InCorso());
    controllo.Annulla();
    EXPECT_FALSE(controllo.InCorso());
    controlla(chi);  // another one passes meanwhile
    EXPECT_EQ(dette, subito);
}

}  // namespace
}  // namespace controllo_mittente_test
