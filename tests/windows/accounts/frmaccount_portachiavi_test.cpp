// SPDX-License-Identifier: GPL-3.0-or-later
// The account window over a keyring of its own.
#include <unistd.h>

#include "modules/accounts/Portachiavi.h"
#include "modules/core/bImpostazioni.h"
#include "support/PrivateKeyring.h"
#include "support/TestClass.h"
#include "windows/accounts/frmaccount_stage.h"

namespace frmaccount_portachiavi_test {

using testing_support::AccountStage;

class TestFrmAccountPortachiavi : public QObject {
    Q_OBJECT

    static Account written() {
        TabellaAccount found;
        CaricaAccount(cartellaDati() + "Account.imp", found, [](const Account&, int) {});
        return found.empty() ? Account() : found.front();
    }
    static void fill(AccountStage& stage) {
        stage.fill({"Ada", "ada@x.it", "mail.x.it", "25", "1", "ada", "segreta", "EHLO", "0", "1"});
    }
    static bool offered(const AccountStage& stage) {
        return stage.control<QCheckBox>("chkPortachiavi")->isVisibleTo(stage.window.get());
    }

  private Q_SLOTS:
    void withoutAKeyringNothingIsOffered() {
        const QByteArray bus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        AccountStage stage;
        stage.window->show();
        const bool shown = offered(stage);
        if (!bus.isNull()) qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
        QVERIFY(!shown);
        fill(stage);
        stage.click("cmdNuovo");
        QCOMPARE(written().txtPassword, "segreta");
    }

    void passwordGoesIntoTheKeyringAndBackByTheBoxAndTheButton() {
        const PrivateKeyring keyring;
        QVERIFY(keyring.runs());
        AccountStage stage;
        stage.window->show();
        QVERIFY(offered(stage));
        fill(stage);
        stage.check("chkPortachiavi", true);
        stage.click("cmdNuovo");
        const Account marked = written();
        QVERIFY(sys::keyring::isMarker(marked.txtPassword));
        QCOMPARE(portachiavi::PasswordDi(marked), "segreta");
        QVERIFY(stage.checked("chkPortachiavi"));

        stage.type("txtNomeVisual", "Ada Rossi");
        stage.click("cmdModifica");
        QCOMPARE(written().txtNomeVisual, "Ada Rossi");
        QCOMPARE(written().txtPassword, marked.txtPassword);

        stage.check("chkPortachiavi", false);
        stage.click("cmdModifica");
        QCOMPARE(written().txtPassword, "segreta");
        QCOMPARE(stage.text("txtPassword"), "segreta");
        QVERIFY(!sys::keyring::lookUp(marked.txtPassword, {"mail.x.it", "ada"}).ok());

        stage.check("chkPortachiavi", true);
        stage.click("cmdModifica");
        const Account again = written();
        QCOMPARE(portachiavi::PasswordDi(again), "segreta");
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.entries(), QStringList());
        QVERIFY(!sys::keyring::lookUp(again.txtPassword, {"mail.x.it", "ada"}).ok());
        QVERIFY(ui::MessageDialog::shown().isEmpty());
    }

    void fileOfAnotherUserTakesNothingAndThatIsReported() {
        AccountStage stage;
        const QByteArray path = QFile::encodeName(cartellaDati() + "Account.imp");
        if (::chown(path.constData(), 65534, static_cast<gid_t>(-1)) != 0)
            QSKIP("only the administrator can give a file away");
        stage.window->show();
        fill(stage);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdNuovo");
        QCOMPARE(ui::MessageDialog::shown().size(), 1);
        QVERIFY(ui::MessageDialog::shown()[0].text.contains("appartiene a un altro utente"));
        QCOMPARE(stage.file(), QByteArray());
    }

    void markerThatTheKeyringDoesNotKnowIsReportedAndTheFileStays() {
        AccountStage stage({"0|Ada|ada@x.it|mail.x.it|25|1|ada|" + sys::keyring::newMarker() + "|EHLO|0|1"});
        const QString before = written().txtPassword;
        stage.window->show();
        QVERIFY(offered(stage));
        stage.press(0);
        QVERIFY(stage.checked("chkPortachiavi"));
        stage.check("chkPortachiavi", false);
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.click("cmdModifica");
        QCOMPARE(ui::MessageDialog::shown().size(), 1);
        QVERIFY(ui::MessageDialog::shown()[0].text.contains("Scrivere di nuovo la password."));
        QCOMPARE(written().txtPassword, before);
    }
};

TEST_CLASS(TestFrmAccountPortachiavi);

}  // namespace frmaccount_portachiavi_test

#include "frmaccount_portachiavi_test.moc"
