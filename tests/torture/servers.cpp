// SPDX-License-Identifier: GPL-3.0-or-later
// Mail servers that misbehave: silent, dropping, half replies, endless ones, wrong codes, broken TLS, odd
// logins; one thing in each case, at any stage, against the delivery control. Each message has one outcome,
// "delivered" never without the server's acceptance, none comes whole a second time, the wait ends in time,
// the password is in no file and never unencrypted where TLS was offered, memory stays bounded.
//
//     torture_servers SEED CASES [FIRST]
#include <sys/resource.h>
#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "platform/mail/DeliveryControl.h"
#include "support/MemoryFolder.h"
#include "torture/Crowd.h"
#include "torture/OddServer.h"
#include "torture/Tally.h"

namespace {

using testing_support::TestCertificates;

constexpr int messagesPerCase = 3;
constexpr size_t casesTogether = 40;
// The longest stage below has 1.5 s, which are 30 ticks.
constexpr long longestTicks = 120;
constexpr long mostKiB = 300 * 1024;
constexpr mail::SmtpTimes stageTimes{
    .greeting = 1200, .hello = 1100, .login = 1300, .finalReply = 1500, .farewell = 20, .refusedLogin = 100};

/// What the cases have in common.
struct Sum {
    Tally tally;
    long delivered = 0;
    long refused = 0;
    long untouched = 0;  ///< cases that never came to their misbehaviour
};

class Case : public CrowdedCase {
    Q_OBJECT
  public:
    Case(unsigned seed, int number, Sum& sum)
        : m_seed(seed),
          m_number(number),
          m_sum(sum),
          m_folder(memoryFolderPattern()),
          m_random([&] {
              std::seed_seq both{seed, static_cast<unsigned>(number)};
              return std::mt19937(both);
          }()),
          m_bad(Misbehaviour::any(m_random, messagesPerCase)),
          m_password("Segreto" + QByteArray::number(number) + "Pa55"),
          m_server(m_bad, offer()) {
        m_control = std::make_unique<mail::DeliveryControl>();
        m_control->ServerName = QStringLiteral("127.0.0.1");
        m_control->ServerPort = m_server.serverPort();
        m_control->FromName = QStringLiteral("Mittente");
        m_control->FromAddress = QStringLiteral("mittente@example.it");
        m_control->Subject = QStringLiteral("Prova");
        m_control->TimeoutSecs = 1;
        m_control->StageTimes = stageTimes;
        m_control->HeloMode = dice(12) == 0;
        m_control->LogEnabled = true;
        m_control->LogFile = m_folder.filePath(QStringLiteral("registro.txt"));
        m_control->BookFolder = m_folder.path() + u'/';
        m_control->Database = m_folder.filePath(QStringLiteral("data.mdb"));
        m_control->Accepted = &m_accepted;
        m_control->CertificateFolder = TestCertificates::get().trustFolder();
        m_control->TlsListFile = m_folder.filePath(QStringLiteral("tls.txt"));
        m_control->OpportunisticTls = dice(3) == 0 && !isAt(Misbehaviour::Stage::Login);
        m_control->UseAuth =
            !m_control->OpportunisticTls && (dice(3) != 0 || isAt(Misbehaviour::Stage::Login));
        m_control->UserName = QStringLiteral("utente");
        m_control->UserPassword = QString::fromLatin1(m_password);
        m_aborted = dice(12) == 0 ? dice(messagesPerCase) : -1;
        connect(m_control.get(), &mail::DeliveryControl::SendDone, this, [this] { hear(true, 0); });
        connect(m_control.get(), &mail::DeliveryControl::SendError, this,
                [this](int code) { hear(false, code); });
        m_control->BeginRun();
        QTimer::singleShot(0, this, &Case::next);
    }

    void tick() override {
        if (m_server.activity() != m_activity) {
            m_activity = m_server.activity();
            m_quietTicks = 0;
        }
        if (++m_quietTicks <= longestTicks) return;
        wrong(m_sum.tally.damaged, "no outcome in time");
        end();
    }

  private:
    int dice(int sides) { return int(m_random() % unsigned(sides)); }

    bool isAt(Misbehaviour::Stage stage) const { return m_bad.stage == stage; }

    // Half of the offers let the case come to its stage.
    OddServer::Offer offer() {
        using Stage = Misbehaviour::Stage;
        OddServer::Offer offer;
        offer.startTls = dice(2) || isAt(Stage::Handshake) || isAt(Stage::StartTls);
        offer.pipelining = dice(3) || isAt(Stage::Chunk);
        offer.chunking = offer.pipelining && (dice(2) || isAt(Stage::Chunk));
        for (const char* mechanism : {"PLAIN", "LOGIN", "CRAM-MD5", "SCRAM-SHA-256"})
            if (dice(2)) offer.login += ' ' + QByteArray(mechanism);
        if (isAt(Stage::Login)) offer.login += " LOGIN PLAIN";
        offer.login = offer.login.trimmed();
        if (isAt(Stage::Reset) || dice(5) == 0) offer.refused = m_bad.message - 1;
        const TestCertificates& made = TestCertificates::get();
        offer.identity = dice(8) ? made.good() : dice(2) ? made.selfSigned() : made.wrongName();
        offer.secret = m_password;
        return offer;
    }

    QString body() {
        QString text = QStringLiteral("<html><body>");
        const int lines = dice(40) == 0 ? 20000 : dice(200);
        for (int i = 0; i < lines; ++i)
            text += QStringLiteral("<p>Riga %1 di prova, con qualche parola è più</p>\r\n.\r\n").arg(i);
        return text + QStringLiteral("</body></html>");
    }

    void next() {
        m_outcomes.push_back(0);
        const int message = int(m_outcomes.size()) - 1;
        m_server.expect(message);
        m_control->BeginTick();
        m_control->RecipientNumber = message + 1;
        m_control->ToAddress = QStringLiteral("r%1@example.it").arg(message);
        m_control->BodyText = QStringLiteral("Prova");
        m_control->BodyHtml = m_control->TemplateHtml = body();
        m_control->Send();
        if (message == m_aborted)
            QTimer::singleShot(dice(400), this, [this, message] {
                if (m_outcomes.size() != size_t(message) + 1 || m_outcomes.back() != 0) return;
                m_control->Abort();
                if (m_outcomes[size_t(message)] != 1) wrong(m_sum.tally.damaged, "no outcome of a stop");
                m_control->BeginRun();
            });
    }

    void hear(bool delivered, int) {
        const int message = int(m_outcomes.size()) - 1;
        if (++m_outcomes.back() > 1) {
            wrong(m_sum.tally.damaged, "a second outcome");
            return;
        }
        ++(delivered ? m_sum.delivered : m_sum.refused);
        if (delivered && !m_server.account(message).accepted)
            wrong(m_sum.tally.lost, "delivered, and not accepted");
        if (delivered) m_control->Marked(message + 1);
        // the next tick of a run follows later, and the server may do something meanwhile
        m_server.idle();
        QTimer::singleShot(dice(2) ? 0 : dice(30), this,
                           message + 1 < messagesPerCase ? &Case::next : &Case::end);
    }

    void end() {
        if (m_ended) return;
        m_ended = true;
        m_control.reset();
        for (int message = 0; message < int(m_outcomes.size()); ++message)
            if (m_server.account(message).whole > 1) wrong(m_sum.tally.duplicates, "came whole twice");
        if (m_server.gotSecretInTheClear()) wrong(m_sum.tally.damaged, "password unencrypted");
        lookForSecrets();
        ++m_sum.tally.cases;
        if (m_wrong)
            tellLog();
        else
            ++m_sum.tally.survived;
        if (!m_server.misbehaved()) ++m_sum.untouched;
        Q_EMIT ended();
    }

    void lookForSecrets() {
        const QByteArray secrets[] = {
            m_password, m_password.toBase64(),
            (QByteArray(1, '\0') + "utente" + QByteArray(1, '\0') + m_password).toBase64()};
        QDirIterator files(m_folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly)) continue;
            const QByteArray text = file.readAll();
            for (const QByteArray& secret : secrets)
                if (text.contains(secret)) wrong(m_sum.tally.damaged, "password in a file");
        }
    }

    void tellLog() {
        QFile file(m_folder.filePath(QStringLiteral("registro.txt")));
        if (file.open(QIODevice::ReadOnly)) m_sum.tally.tell("%s", file.readAll().right(4000).constData());
    }

    void wrong(long& count, const char* what) {
        m_wrong = true;
        ++count;
        m_sum.tally.tell("seed %u, case %d, message %d (%s, message %d): %s", m_seed, m_number,
                         int(m_outcomes.size()) - 1, m_bad.name().constData(), m_bad.message, what);
    }

    const unsigned m_seed;
    const int m_number;
    Sum& m_sum;
    QTemporaryDir m_folder;
    std::mt19937 m_random;
    const Misbehaviour m_bad;
    const QByteArray m_password;
    OddServer m_server;
    mail::AcceptedList m_accepted;
    std::unique_ptr<mail::DeliveryControl> m_control;
    std::vector<int> m_outcomes;  ///< how many each message had
    int m_aborted = -1;           ///< message that the user stops
    long m_activity = 0;
    long m_quietTicks = 0;
    bool m_ended = false;
    bool m_wrong = false;
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const Wanted wanted(argc, argv, Wanted::Cases::StandAlone);
    TestCertificates::get();
    Sum sum;
    playCrowd(wanted.first, wanted.cases, casesTogether,
              [&](int number) { return std::make_unique<Case>(wanted.seed, number, sum); });
    struct rusage used {};
    ::getrusage(RUSAGE_SELF, &used);
    if (!sanitized && used.ru_maxrss > mostKiB) {
        ++sum.tally.damaged;
        sum.tally.tell("seed %u: %ld KiB were used", wanted.seed, used.ru_maxrss);
    }
    sum.tally.more = std::to_string(sum.delivered) + " delivered, " + std::to_string(sum.refused) + " not, " +
                     std::to_string(sum.untouched) + " cases without their fault, at most " +
                     std::to_string(used.ru_maxrss / 1024) + " MiB";
    return sum.tally.report("servers", wanted.seed);
}

#include "servers.moc"
