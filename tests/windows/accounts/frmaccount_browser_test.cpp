// SPDX-License-Identifier: GPL-3.0-or-later
// The login by the browser in the account window, with a browser and an authorization server of the test.
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "platform/oauth/TokenFile.h"
#include "platform/ui/LinkLabel.h"
#include "support/AsInTheProgram.h"
#include "support/AuthorizationServer.h"
#include "support/LookCheck.h"
#include "support/TestClass.h"
#include "windows/accounts/frmaccount_stage.h"

namespace frmaccount_browser_test {

using namespace testing_support;

namespace {

const QString linkText = "Accedi con il browser...";
const QString waitingText = "In attesa del browser: annulla l'accesso";
const QString account = "0|Rossi|rossi@example.it|smtp.prova.example|587|0|rossi@example.it||EHLO|0|1";
const QString other = "1|Verdi|verdi@example.it|smtp.altro.example|25|1|verdi|parola|EHLO|0|1";

/// The account window over a data folder with one provider; the desktop's opener only notes the
/// address.
class BrowserStage : public AccountStage {
  public:
    explicit BrowserStage(const QStringList& records = {}) : AccountStage(records) {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QDir().mkpath(folder.path("data/oauth"));
        QDir().mkpath(folder.path("data/certificati"));
        QFile::copy(TestCertificates::get().trustFolder() + "/ca.pem",
                    folder.path("data/certificati/ca.pem"));
        writeProviders(server.providers({"smtp.prova.example"}));
        write(m_bin.filePath("xdg-open"),
              "#!/bin/sh\nprintf %s \"$1\" > " + m_bin.filePath("aperta").toUtf8() + ".parte && mv " +
                  m_bin.filePath("aperta").toUtf8() + ".parte " + m_bin.filePath("aperta").toUtf8() + "\n");
        QFile::setPermissions(m_bin.filePath("xdg-open"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", m_bin.path().toUtf8() + ":/usr/bin:/bin");
    }
    ~BrowserStage() { qputenv("PATH", m_pathBefore); }

    void writeProviders(const QByteArray& content) const {
        write(folder.path("data/oauth/providers.json"), content);
    }
    ui::LinkLabel& link() const { return *control<ui::LinkLabel>("lnkBrowser"); }
    void clickLink() const { QTest::mouseClick(&link(), Qt::LeftButton, {}, QPoint(8, 8)); }
    void noOpener() const { qputenv("PATH", "/nonexistent"); }

    /// The address that the desktop was asked to open since the last call.
    QUrl opened() const {
        QFile noted(m_bin.filePath("aperta"));
        if (!QTest::qWaitFor([&] { return noted.exists(); }, 60000)) qFatal("nothing was opened");
        if (!noted.open(QIODevice::ReadOnly)) qFatal("cannot read the address");
        const QUrl address(QString::fromUtf8(noted.readAll()));
        noted.remove();
        return address;
    }
    bool openedNothing() const { return !QFile::exists(m_bin.filePath("aperta")); }
    static void browse(const QUrl& address) {
        QTcpSocket browser;
        browser.connectToHost(QHostAddress::LocalHost, quint16(address.port()));
        browser.write("GET " + address.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority) +
                      " HTTP/1.1\r\n\r\n");
        if (!QTest::qWaitFor([&] { return browser.state() == QAbstractSocket::UnconnectedState; }, 60000))
            qFatal("the listener does not answer");
    }
    bool waiting() const { return link().text() == waitingText; }
    QString tokenPath() const {
        return oauth::tokenPath(folder.path("data/oauth"), "prova", "rossi@example.it");
    }

    AuthorizationServer server;

  private:
    static void write(const QString& path, const QByteArray& content) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) qFatal("cannot write %s", qPrintable(path));
        file.write(content);
    }
    QTemporaryDir m_bin;
    const QByteArray m_pathBefore = qgetenv("PATH");
};

}  // namespace

class TestFrmAccountBrowser : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void linkIsUnderThePasswordWhereTheServerBelongsToAProvider() {
        BrowserStage stage;
        QVERIFY(!stage.link().isVisible());
        for (const char* server : {"smtp.prova.example", "SMTP.Prova.Example", "smtp.prova.example."}) {
            stage.type("txtServerSMTP", server);
            QVERIFY2(stage.link().isVisible(), server);
            stage.type("txtServerSMTP", "smtp.prova.example.it");
            QVERIFY(!stage.link().isVisible());
        }
        stage.type("txtServerSMTP", "smtp.prova.example");
        QCOMPARE(stage.link().text(), linkText);
        const auto* password = stage.control<QLineEdit>("txtPassword");
        QVERIFY(stage.link().mapTo(stage.window.get(), QPoint()).y() >=
                password->mapTo(stage.window.get(), QPoint(0, password->height())).y());
        stage.check("chkUsaSMTP", false);
        QVERIFY(!stage.link().isVisible());
        stage.check("chkUsaSMTP", true);
        QVERIFY(stage.link().isVisible());
    }

    void linkFollowsTheAccountThatIsChosen() {
        BrowserStage stage({account, other});
        stage.press(0);
        QVERIFY(stage.link().isVisible());
        stage.press(1);
        QVERIFY(!stage.link().isVisible());
    }

    void noProvidersNoLink() {
        BrowserStage stage;
        stage.writeProviders("{");
        stage.type("txtServerSMTP", "smtp.prova.example");
        QVERIFY(!stage.link().isVisible());
        QVERIFY(stage.ends.isEmpty());
    }

    void consentSetsBoxAndWordAndTheUserSaves() {
        BrowserStage stage({account});
        stage.press(0);
        stage.clickLink();
        QVERIFY(stage.waiting());
        QVERIFY(!stage.checked("chkAutentick"));
        const QUrl page = stage.opened();
        QCOMPARE(QUrlQuery(page).queryItemValue("login_hint", QUrl::FullyDecoded), "rossi@example.it");
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.browse(stage.server.consent(page));
        QTRY_VERIFY(!stage.waiting());
        QVERIFY2(stage.box().startsWith("Accesso riuscito."), qPrintable(stage.box()));
        QVERIFY(stage.checked("chkAutentick"));
        QVERIFY(stage.enabled("txtPassword"));
        QCOMPARE(stage.text("txtPassword"), "OAuth2");
        QCOMPARE(stage.link().text(), linkText);
        QVERIFY(oauth::readToken(stage.tokenPath()).ok());
        QCOMPARE(stage.records(), QStringList(account));
        stage.type("txtServerPORT", "587");
        stage.click("cmdModifica");
        QCOMPARE(stage.records(),
                 QStringList(
                     "0|Rossi|rossi@example.it|smtp.prova.example|587|1|rossi@example.it|OAuth2|EHLO|0|1"));
    }

    void windowLivesWhileTheBrowserIsWaitedFor() {
        BrowserStage stage({account, other});
        stage.press(0);
        stage.clickLink();
        stage.opened();
        QTest::keyClicks(stage.control<QLineEdit>("txtNomeVisual"), "X");
        QCOMPARE(stage.text("txtNomeVisual"), "RossiX");
        stage.click("chkAvanzate");
        QVERIFY(stage.enabled("cmbSaluto"));
        QVERIFY(stage.waiting());
    }

    void linkCancelsTheWaitAndBeginsAgain() {
        BrowserStage stage({account});
        stage.press(0);
        stage.clickLink();
        const QUrl first = stage.opened();
        stage.clickLink();
        QCOMPARE(stage.link().text(), linkText);
        QTcpSocket late;
        late.connectToHost(QHostAddress::LocalHost, quint16(stage.server.consent(first).port()));
        QVERIFY(!late.waitForConnected());
        stage.clickLink();
        QVERIFY(stage.waiting());
        QVERIFY(stage.opened() != first);
        QVERIFY(ui::MessageDialog::shown().isEmpty());
    }

    void changeOfUserServerOrAccountAndClosingDropTheConsent() {
        const QList<std::function<void(BrowserStage&)>> changes{
            [](BrowserStage& stage) { stage.type("txtUsername", "bianchi@example.it"); },
            [](BrowserStage& stage) { stage.type("txtServerSMTP", "smtp.altro.example"); },
            [](BrowserStage& stage) { stage.press(1); },
            [](BrowserStage& stage) { stage.check("chkUsaSMTP", false); },
            [](BrowserStage& stage) { stage.click("cmdChiudi"); }};
        for (const auto& change : changes) {
            BrowserStage stage({account, other});
            stage.press(0);
            stage.clickLink();
            const QUrl redirect = stage.server.consent(stage.opened());
            change(stage);
            QVERIFY(!stage.waiting());
            QTcpSocket late;
            late.connectToHost(QHostAddress::LocalHost, quint16(redirect.port()));
            QVERIFY(!late.waitForConnected());
            QVERIFY(ui::MessageDialog::shown().isEmpty());
        }
    }

    void withoutAUserNameAsksForOne() {
        BrowserStage stage;
        stage.type("txtServerSMTP", "smtp.prova.example");
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.clickLink();
        QVERIFY2(stage.box().contains("username"), qPrintable(stage.box()));
        QVERIFY(stage.enabled("txtUsername"));
        QCOMPARE(stage.window->focusWidget()->objectName(), "txtUsername");
        QVERIFY(!stage.waiting());
        QVERIFY(stage.openedNothing());
    }

    void withoutAnIdSaysWhereOneGoes() {
        BrowserStage stage({account});
        stage.writeProviders(
            stage.server.providers({"smtp.prova.example"}).replace("programma-di-prova", ""));
        stage.press(0);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.clickLink();
        QVERIFY2(stage.box().contains("client_id"), qPrintable(stage.box()));
        QVERIFY2(stage.box().contains(stage.folder.path("data/oauth/providers.json")),
                 qPrintable(stage.box()));
        QVERIFY(!stage.waiting());
        QVERIFY(stage.openedNothing());
    }

    void refusedConsentIsReportedAndChangesNothing() {
        BrowserStage stage({account});
        stage.press(0);
        stage.clickLink();
        QUrl redirect = stage.server.consent(stage.opened());
        redirect.setQuery("error=access_denied&state=" + QUrlQuery(redirect).queryItemValue("state"));
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.browse(redirect);
        QTRY_VERIFY(!stage.waiting());
        QCOMPARE(stage.box(), "Il consenso non è stato dato.");
        QVERIFY(!stage.checked("chkAutentick"));
        QCOMPARE(stage.text("txtPassword"), "");
    }

    void withoutABrowserTheWaitEndsAtOnce() {
        BrowserStage stage({account});
        stage.press(0);
        stage.noOpener();
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.clickLink();
        QVERIFY2(stage.box().startsWith("Impossibile aprire"), qPrintable(stage.box()));
        QVERIFY(!stage.waiting());
    }

    void keyboardReachesTheLinkAfterThePassword() {
        BrowserStage stage({account});
        stage.press(0);
        stage.check("chkAutentick", true);
        auto* password = stage.control<QLineEdit>("txtPassword");
        password->setFocus();
        QTest::keyClick(password, Qt::Key_Tab);
        QCOMPARE(stage.window->focusWidget(), &stage.link());
        QTest::keyClick(&stage.link(), Qt::Key_Return);
        QVERIFY(stage.waiting());
        stage.opened();
        QTest::keyClick(&stage.link(), Qt::Key_Return);
        QVERIFY(!stage.waiting());
        QTest::keyClick(&stage.link(), Qt::Key_Tab);
        QCOMPARE(stage.window->focusWidget()->objectName(), "chkAvanzate");
    }

    void assistiveProgramsFindALinkWithItsText() {
        BrowserStage stage({account});
        stage.press(0);
        QAccessibleInterface* link = QAccessible::queryAccessibleInterface(&stage.link());
        QCOMPARE(link->role(), QAccessible::Link);
        QCOMPARE(link->text(QAccessible::Name), linkText);
        link->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(stage.waiting());
        QCOMPARE(link->text(QAccessible::Name), waitingText);
        stage.opened();
    }

    void nothingIsCutWhereTheLinkShows() {
        BrowserStage stage({account});
        stage.press(0);
        stage.check("chkAutentick", true);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(faultsOfLayout(*stage.window), QStringList());
        keepPicture(*stage.window, "account_browser");
    }
};

TEST_CLASS_WITH(TestFrmAccountBrowser, asInTheProgram);

}  // namespace frmaccount_browser_test

#include "frmaccount_browser_test.moc"
