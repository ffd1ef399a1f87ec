// SPDX-License-Identifier: GPL-3.0-or-later
// The check of a sender through its window, in a network without a name server or with a silent one.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QNetworkDatagram>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QUdpSocket>

#include "platform/ui/MessageDialog.h"
#include "platform/ui/Unattended.h"
#include "support/PrivateNetwork.h"
#include "support/SampleFolder.h"
#include "support/TestClass.h"
#include "windows/strumenti/frmControlloMittente.h"

namespace frmcontrollomittente_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

const bool isolated = enterPrivateNetwork(__FILE__);

struct Stage {
    explicit Stage(bool withAccount = true) {
        if (!replaceResolverConfiguration("nameserver 127.0.0.1\n")) qFatal("no name servers can be set");
        Account account = SampleFolder::loopbackAccount(9);
        account.txtEmail = "ada@example.it";
        if (withAccount) folder.addAccount(account);
        ui::setUnattended(true);
        MessageDialog::reset();
        window.CaricaDati();
        window.show();
    }

    template <class Control>
    Control* control(const char* name) {
        return window.findChild<Control*>(name);
    }
    QString said() { return control<QLabel>("lblEsito")->text(); }
    QTableWidget* lines() { return control<QTableWidget>("grdRighe"); }
    void click(const char* name) { QTest::mouseClick(control<QPushButton>(name), Qt::LeftButton); }
    bool check() {
        click("cmdControlla");
        return QTest::qWaitFor([this] { return said().startsWith("Controllo finito"); }, 60000);
    }

    /// Operates the window of the key once it is shown.
    template <class Work>
    void inKeyWindow(Work work) {
        QTimer::singleShot(10, &window, [this, work] {
            auto* const modal = QApplication::activeModalWidget();
            if (modal && modal->objectName() == "frmChiaveDkim")
                work(modal);
            else
                inKeyWindow(work);
        });
    }

    SampleFolder folder;
    frmControlloMittente window;
};

}  // namespace

class TestFrmControlloMittente : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        if (!isolated) QSKIP("the system allows no private network");
    }

    void withoutAnAccountItSaysSoAndOffersNothing() {
        Stage stage(false);
        QVERIFY(stage.said().startsWith("Nessun account"));
        QVERIFY(!stage.control<QPushButton>("cmdControlla")->isEnabled());
        QVERIFY(!stage.control<QPushButton>("cmdChiave")->isEnabled());
        QVERIFY(stage.control<QPushButton>("cmdChiudi")->isEnabled());
    }

    void damagedAccountFileIsReported() {
        Stage stage;
        QFile file(stage.folder.path("data/Account.imp"));
        QVERIFY(file.open(QIODevice::Append));
        file.write("01010101\r\n");
        file.close();
        stage.window.CaricaDati();
        QVERIFY2(stage.said().contains("danneggiato"), qPrintable(stage.said()));
        QCOMPARE(stage.control<QComboBox>("cmbAccount")->count(), 1);
        QVERIFY(stage.control<QPushButton>("cmdControlla")->isEnabled());
    }

    void eachLineHasAWordAndASentence() {
        Stage stage;
        QVERIFY(stage.check());
        QTableWidget* const lines = stage.lines();
        QCOMPARE(lines->rowCount(), 10);
        for (int row = 0; row < lines->rowCount(); ++row) {
            QVERIFY(QStringList({"In ordine", "Attenzione", "Da correggere"})
                        .contains(lines->item(row, 1)->text()));
            QVERIFY(!lines->item(row, 1)->icon().isNull());
            QVERIFY(!lines->item(row, 2)->text().isEmpty());
        }
        lines->setCurrentCell(6, 0);
        QVERIFY(stage.control<QPlainTextEdit>("txtDettagli")
                    ->toPlainText()
                    .startsWith(lines->item(6, 2)->text()));
    }

    void eachLineIsShownWhole() {
        Stage stage;
        QVERIFY(stage.check());
        const QAbstractItemView& lines = *stage.lines();
        for (int width = 700; width <= 1000; width += 4) {
            stage.window.resize(width, 900);
            QTRY_VERIFY(!lines.verticalScrollBar()->isVisible());
            stage.window.resize(width, 380);
            QTRY_VERIFY(lines.verticalScrollBar()->isVisible());
            for (int row = 0; row < stage.lines()->rowCount(); ++row)
                QTRY_VERIFY2(stage.lines()->rowHeight(row) >= lines.sizeHintForRow(row),
                             qPrintable(QString("row %1 at %2").arg(row).arg(width)));
        }
    }

    void nameServerThatFailsIsReportedAsWhatItIs() {
        QUdpSocket failing;
        QVERIFY(failing.bind(QHostAddress::LocalHost, 53));
        connect(&failing, &QUdpSocket::readyRead, &failing, [&failing] {
            while (failing.hasPendingDatagrams()) {
                QNetworkDatagram asked = failing.receiveDatagram();
                QByteArray answer = asked.data();
                answer[2] = '\x81';
                answer[3] = '\x82';  // SERVFAIL
                failing.writeDatagram(asked.makeReply(answer));
            }
        });
        Stage stage;
        QVERIFY(stage.check());
        const auto sentence = [&](int row) { return stage.lines()->item(row, 2)->text(); };
        const QString why =
            " nel DNS non riuscita: il DNS risponde con un guasto (SERVFAIL). Riprovare più tardi.";
        for (int row : {0, 1, 2}) {
            QCOMPARE(sentence(row), "Ricerca di example.it" + why);
            QCOMPARE(stage.lines()->item(row, 1)->text(), "Attenzione");
        }
        QCOMPARE(sentence(4), "Ricerca di _dmarc.example.it" + why);
    }

    void escapeEndsACheckAndLeavesTheWindow() {
        QUdpSocket silent;
        QVERIFY(silent.bind(QHostAddress::LocalHost, 53));
        Stage stage;
        stage.click("cmdControlla");
        QVERIFY(!stage.control<QPushButton>("cmdControlla")->isEnabled());
        QVERIFY(stage.control<QPushButton>("cmdInterrompi")->isEnabled());
        QTest::keyClick(&stage.window, Qt::Key_Escape);
        QCOMPARE(stage.said(), "Controllo interrotto.");
        QVERIFY(stage.window.isVisible());
        QCOMPARE(stage.lines()->item(0, 1)->text(), "Interrotto");
        QVERIFY(stage.control<QPushButton>("cmdControlla")->isEnabled());
        QTest::keyClick(&stage.window, Qt::Key_Escape);
        QVERIFY(stage.window.isVisible());
        stage.click("cmdChiudi");
        QVERIFY(!stage.window.isVisible());
    }

    void reportGoesToTheClipboard() {
        Stage stage;
        QVERIFY(!stage.control<QPushButton>("cmdCopia")->isEnabled());
        QVERIFY(stage.check());
        stage.click("cmdCopia");
        const QString report = QApplication::clipboard()->text();
        QVERIFY(report.contains("ada@example.it"));
        QVERIFY(report.contains("SPF: Attenzione."));
    }

    void keyIsMadeOnceShownAndNeverReplaced() {
        Stage stage;
        MessageDialog::queue(MessageDialog::Yes);
        QString shown;
        stage.inKeyWindow([&](QWidget* window) {
            shown = window->findChild<QPlainTextEdit*>("txtValore")->toPlainText();
            QTest::mouseClick(window->findChild<QPushButton*>("cmdCopiaValore"), Qt::LeftButton);
            QTest::mouseClick(window->findChild<QPushButton*>("cmdChiudi"), Qt::LeftButton);
        });
        stage.click("cmdChiave");
        QVERIFY(shown.startsWith("v=DKIM1; k=rsa; p="));
        QCOMPARE(QApplication::clipboard()->text(), shown);
        QFile key(stage.folder.path("data/dkim/example.it.pem"));
        QVERIFY(key.open(QIODevice::ReadOnly));
        const QByteArray before = key.readAll();
        key.close();
        QCOMPARE(
            key.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
            QFile::Permissions());
        QString again;
        stage.inKeyWindow([&](QWidget* window) {
            again = window->findChild<QPlainTextEdit*>("txtValore")->toPlainText();
            QTest::keyClick(window, Qt::Key_Escape);
        });
        stage.click("cmdChiave");  // no question
        QCOMPARE(again, shown);
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY(key.open(QIODevice::ReadOnly));
        QCOMPARE(key.readAll(), before);
    }

    void noToTheQuestionMakesNoKey() {
        Stage stage;
        MessageDialog::queue(MessageDialog::No);
        stage.click("cmdChiave");
        QVERIFY(!QFile::exists(stage.folder.path("data/dkim/example.it.pem")));
    }

    void keyThatCannotBeUsedIsReportedAndKept() {
        Stage stage;
        QVERIFY(QDir().mkpath(stage.folder.path("data/dkim")));
        QFile key(stage.folder.path("data/dkim/example.it.pem"));
        QVERIFY(key.open(QIODevice::WriteOnly));
        key.write("rubbish");
        key.close();
        MessageDialog::queue(MessageDialog::Ok);
        stage.click("cmdChiave");
        QVERIFY(MessageDialog::shown().last().text.contains("non sono stati cambiati"));
        QVERIFY(key.open(QIODevice::ReadOnly));
        QCOMPARE(key.readAll(), QByteArray("rubbish"));
    }

    void controlsAreNamedForAssistivePrograms() {
        Stage stage;
        QCOMPARE(stage.control<QComboBox>("cmbAccount")->accessibleName(), "Account mittente");
        QCOMPARE(stage.lines()->accessibleName(), "Righe del controllo");
        QCOMPARE(stage.control<QPlainTextEdit>("txtDettagli")->accessibleName(), "Dettagli");
    }
};

TEST_CLASS(TestFrmControlloMittente);

}  // namespace frmcontrollomittente_test

#include "frmcontrollomittente_test.moc"
