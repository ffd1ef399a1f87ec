// SPDX-License-Identifier: GPL-3.0-or-later
// A recipient who was served though his row could not be marked: when he leaves the selection, and what
// prevents the start of a run.
#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "modules/send/Accettati.h"
#include "platform/mail/RunLock.h"
#include "platform/ui/Unattended.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/send/Accettati_avviso.h"

namespace frminvia_accettati_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

mail::DatabaseFile database() {
    return mail::DatabaseFile::at(percorsoDB);
}

/// Notes a recipient as accepted, as an earlier run does.
void remember(int number, const QString& address) {
    esigi(accettati().reserve(database(), 1));
    accettati().add(database(), number, address);
}

QString boxes() {
    QStringList texts;
    for (const auto& box : MessageDialog::shown())
        texts << box.text;
    return texts.join("|");
}

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class TestFrmInviaAccettati : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void rememberedLeaveTheSelectionBeforeTheBarsAreSet() {
        SendStage stage({"a@x.it", "b'c@x.it", "d@x.it"});
        remember(1, "a@x.it");
        remember(2, "b'c@x.it");
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"d@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
        QVERIFY(accettati().of(database()).isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void rowWithAnotherAddressIsUnchangedAndTheLogSaysSo() {
        SendStage stage({"a@x.it", "b@x.it"});
        remember(1, "vecchio@x.it");
        remember(9, "nessuno@x.it");
        SampleFolder::run("UPDATE [tb_destinatari] SET [email] = Null WHERE [id] = 2;");
        remember(2, "b@x.it");
        const QString log = stage.folder.path("registro.xt1");
        stage.pick();
        ui::FileDialog::queue(log);
        stage.click("chkLog");
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QVERIFY(accettati().of(database()).isEmpty());
        for (const char* number : {"numero 1:", "numero 9:", "numero 2:"})
            QVERIFY2(content(log).contains(number), number);
    }

    void anotherDatabasesEntriesAreKept() {
        SendStage stage({"a@x.it"});
        const auto other = mail::DatabaseFile::at(stage.folder.path("altro.mdb"));
        esigi(accettati().reserve(other, 1));
        accettati().add(other, 1, "a@x.it");
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(accettati().of(other).size(), 1);
    }

    void databaseThatCannotBeChangedEndsTheClickWithABox() {
        SendStage stage({"a@x.it", "b@x.it"});
        remember(1, "a@x.it");
        stage.pick();
        const auto before = stage.counters();
        MessageDialog::queue(MessageDialog::Ok);
        stage.folder.hideDatabase();
        stage.click("cmdInvia");
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY2(boxes().contains("L'invio non è iniziato"), qPrintable(boxes()));
        QVERIFY(!stage.timer().isActive());
        QVERIFY(stage.enabled("cmdInvia") && !stage.enabled("cmdFerma"));
        QCOMPARE(stage.counters(), before);
        stage.folder.showDatabase();
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"b@x.it"});
    }

    void databaseThatAnotherProcessKeepsLockedEndsTheClickWithABox() {
        SendStage stage({"a@x.it", "b@x.it"});
        remember(1, "a@x.it");
        stage.pick();
        const int held = ::open(QFile::encodeName(percorsoDB).constData(), O_RDWR | O_CLOEXEC);
        struct flock whole {};
        whole.l_type = F_WRLCK;
        whole.l_whence = SEEK_SET;
        whole.l_len = (off_t{1} << 62) + 16;
        QCOMPARE(::fcntl(held, F_OFD_SETLK, &whole), 0);
        MessageDialog::queue(MessageDialog::Ok);
        stage.click("cmdInvia");
        QVERIFY2(boxes().contains("L'invio non è iniziato"), qPrintable(boxes()));
        QVERIFY(!stage.timer().isActive());
        ::close(held);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"b@x.it"});
    }

    void closingTakesThemOutToo() {
        SendStage stage({"a@x.it", "b@x.it"});
        remember(1, "a@x.it");
        stage.click("cmdChiudi");
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
        QVERIFY(accettati().of(database()).isEmpty());
    }

    void closingRemembersOnWhatCannotBeTakenOut() {
        SendStage stage({"a@x.it"});
        remember(1, "a@x.it");
        stage.folder.hideDatabase();
        stage.click("cmdChiudi");
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
        stage.folder.showDatabase();
        QCOMPARE(accettati().of(database()).size(), 1);
    }

    void rowThatIsRememberedIsNotServedInMidRun() {
        SendStage stage({"a@x.it", "b@x.it"});
        // Arrives during the run, as a late acceptance does.
        stage.sink.onMessage([](const SmtpSink::Message& message) {
            if (message.recipient == "a@x.it") remember(2, "b@x.it");
        });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
        stage.click("cmdChiudi");
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void cancelledLogLeavesTheDatabaseUntouched() {
        SendStage stage({"a@x.it", "b@x.it"});
        remember(1, "a@x.it");
        stage.pick();
        stage.click("chkLog");
        const QByteArray before = content(percorsoDB);
        QVERIFY(!before.isEmpty());
        ui::FileDialog::queueCancel();
        stage.click("cmdInvia");
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        QVERIFY(content(percorsoDB) == before);
        QCOMPARE(accettati().of(database()).size(), 1);
        QVERIFY(!stage.timer().isActive());
    }

    void anotherProcessesRunEndsTheClickWithANotice() {
        SendStage stage({"a@x.it"});
        mail::RunLock other;
        QVERIFY(other.take(percorsoDB));
        MessageDialog::queue(MessageDialog::Ok);
        stage.pick();
        stage.click("cmdInvia");
        QCOMPARE(MessageDialog::shown().size(), 1);
        QVERIFY2(boxes().contains("sta inviando"), qPrintable(boxes()));
        QVERIFY(!stage.timer().isActive());
        QVERIFY(stage.enabled("cmdInvia"));
        other.release();
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(MessageDialog::shown().size(), 1);
    }

    void clickThatEndsThereLeavesTheLogAsItWas() {
        SendStage stage({"a@x.it"});
        mail::RunLock other;
        QVERIFY(other.take(percorsoDB));
        MessageDialog::queue(MessageDialog::Ok);
        stage.pick();
        stage.click("chkLog");
        ui::FileDialog::queue(stage.folder.path("registro.xt1"));
        stage.click("cmdInvia");
        auto* control = stage.window->findChild<mail::DeliveryControl*>("SMTP");
        QVERIFY(control);
        QCOMPARE(control->LogFile, QString());
        QVERIFY(!control->LogEnabled);
    }

    void runIsSeenByOthersFromTheClickToItsEnd() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        QList<bool> had;
        const auto look = [&] { had << mail::RunLock().take(percorsoDB); };
        QObject::connect(&stage.sink, &SmtpSink::attempted, look);
        look();
        stage.start();
        look();
        QVERIFY(stage.waitForEnd());
        look();
        QCOMPARE(had, (QList<bool>{true, false, false, false, true}));
    }

    void runThatIsStoppedIsSeenUntilItsLastTick() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.click("cmdInvia");
        stage.click("cmdFerma");
        QVERIFY(!mail::RunLock().take(percorsoDB));
        QVERIFY(stage.waitForEnd());
        QVERIFY(mail::RunLock().take(percorsoDB));
    }

    void stopThatUnlocksAfterAMissingMessageLetsOthersSend() {
        SendStage stage({"a@x.it"});
        const QString message = stage.folder.writeMessage();
        stage.pick(message);
        QVERIFY(QFile::remove(message));
        MessageDialog::queue(MessageDialog::Ok);
        stage.click("cmdInvia");
        QVERIFY(!mail::RunLock().take(percorsoDB));
        stage.click("cmdFerma");
        QVERIFY(mail::RunLock().take(percorsoDB));
    }

    void withoutRoomToRememberNothingIsSent() {
        SendStage stage({"a@x.it"});
        for (int number = 1; number <= 16; ++number)
            QVERIFY(QDir(cartellaDati()).mkdir(QString("Accettati%1.imp").arg(number)));
        stage.pick();
        MessageDialog::queue(MessageDialog::Ok);
        stage.click("cmdInvia");
        QVERIFY2(boxes().contains("L'invio non è iniziato"), qPrintable(boxes()));
        QVERIFY(!stage.timer().isActive());
        QVERIFY(QDir(cartellaDati()).rmdir("Accettati1.imp"));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
    }

    void damagedFileIsReportedOnce() {
        SendStage stage({"a@x.it"});
        QFile file(cartellaDati() + "Accettati1.imp");
        QVERIFY(file.open(QFile::WriteOnly));
        file.write("something else");
        file.close();
        MessageDialog::queue(MessageDialog::Ok);
        QVERIFY(stage.run());
        QVERIFY2(boxes().contains("Accettati1.imp.scartato"), qPrintable(boxes()));
        AvvisaAccettatiScartati();
        QCOMPARE(MessageDialog::shown().size(), 1);
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
    }

    // 0 is a valid number of a row; the next one cannot be read at all.
    void rowWithTheNumberZeroIsServedAndMarked() {
        SendStage stage({"a@x.it"});
        SampleFolder::run("UPDATE [tb_destinatari] SET [sel] = False;");
        SampleFolder::run(
            "INSERT INTO [tb_destinatari] (id, id_grp, email, sel) VALUES (0, 1, 'zero@x.it', True);");
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"zero@x.it"});
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void tickThatABoxOfTheSetUpLetsRunSendsNothing() {
        SendStage stage({"a@x.it", "b@x.it"});
        const QString message = stage.folder.writeMessage();
        stage.pick(message);
        stage.click("cmdInvia");
        stage.click("cmdFerma");
        QVERIFY(QFile::remove(message));
        ui::setUnattended(false);
        QTimer answer;
        answer.callOnTimeout([&] {
            QWidget* box = QApplication::activeModalWidget();
            if (box && stage.counter("prgFallite") > 0) box->close();
        });
        answer.start(5);
        stage.click("cmdInvia");
        ui::setUnattended(true);
        QVERIFY(stage.counter("prgFallite") > 0);
        stage.click("cmdFerma");
        QVERIFY(stage.waitForEnd());
        QVERIFY(stage.sink.attempts().isEmpty());
        stage.folder.writeMessage();
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
    }
};

TEST_CLASS(TestFrmInviaAccettati);

}  // namespace frminvia_accettati_test

#include "frminvia_accettati_test.moc"
