// SPDX-License-Identifier: GPL-3.0-or-later
// Pause, time-out and block limit of a run, and its log.
#include <limits>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QScopeGuard>

#include "modules/lang/bVAR.h"
#include "platform/ui/Unattended.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_limiti_test {

using namespace testing_support;
using ui::FileDialog;
using ui::MessageDialog;

namespace {

QStringList addresses(int count) {
    QStringList list;
    for (int i = 0; i < count; ++i)
        list << QString("r%1@x.it").arg(i);
    return list;
}

/// Notes which widget is being painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(std::function<void(QWidget*)> painted) : m_painted(std::move(painted)) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) m_painted(static_cast<QWidget*>(watched));
        return false;
    }

  private:
    std::function<void(QWidget*)> m_painted;
};

}  // namespace

class TestFrmInviaLimiti : public QObject {
    Q_OBJECT

    void useBlock(SendStage& stage, const QString& number, const QString& minutes) {
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoNum")->setText(number);
        stage.control<QLineEdit>("txtBloccoMin")->setText(minutes);
    }

  private Q_SLOTS:
    void everyPauseHasItsInterval_data() {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("interval");
        const int intervals[] = {200,  500,  1000, 1500,  2000,  2500,  3000, 3500,
                                 4000, 4500, 5000, 10000, 20000, 30000, 60000};
        int entry = 0;
        for (const int interval : intervals)
            QTest::newRow(qPrintable(QString::number(interval))) << entry++ << interval;
    }
    void everyPauseHasItsInterval() {
        QFETCH(int, entry);
        QFETCH(int, interval);
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.control<QComboBox>("cmbPausa")->setCurrentIndex(entry);
        stage.click("cmdInvia");
        QCOMPARE(stage.timer().interval(), interval);
    }

    void everyTimeoutGoesToTheDelivery_data() {
        QTest::addColumn<int>("entry");
        QTest::addColumn<int>("seconds");
        int entry = 0;
        for (const int seconds : {5, 10, 20, 30, 60})
            QTest::newRow(qPrintable(QString::number(seconds))) << entry++ << seconds;
    }
    void everyTimeoutGoesToTheDelivery() {
        QFETCH(int, entry);
        QFETCH(int, seconds);
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.control<QComboBox>("cmbTimeout")->setCurrentIndex(entry);
        stage.click("cmdInvia");
        QCOMPARE(int(stage.smtp().TimeoutSecs), seconds);
    }

    void pausesAreReadWithoutALanguageToo() {
        SendStage stage({"a@x.it"});
        bVAR::goSecondi.clear();
        stage.window->CaricaDati();
        stage.pick();
        stage.control<QComboBox>("cmbPausa")->setCurrentIndex(11);
        stage.click("cmdInvia");
        QCOMPARE(stage.timer().interval(), 10000);
        QCOMPARE(int(stage.smtp().TimeoutSecs), 5);
    }

    void limitReachedWaitsOutTheWindowAndStartsANewOne() {
        TestClock clock;
        SendStage stage(addresses(7));
        useBlock(stage, "3", "5");
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 7}));
        QCOMPARE(clock.slept(), 600000);  // after the third and the sixth
    }

    void whatIsSeenDuringTheWaitIsTrue() {
        TestClock clock;
        SendStage stage(addresses(5));
        stage.sink.treat("r1@x.it", SmtpSink::Treatment::Refuse);
        QHash<QObject*, QString> painted;
        PaintWatch watch([&](QWidget* widget) {
            const auto* label = qobject_cast<QLabel*>(widget);
            painted[widget] =
                label ? label->text() : QString::number(qobject_cast<ui::ProgressCounter*>(widget)->value());
        });
        for (const char* name :
             {"lblDaInviare", "lblFallite", "lblInviate", "prgDaInviare", "prgFallite", "prgInviate"})
            stage.control<QWidget>(name)->installEventFilter(&watch);
        QStringList seen;
        clock.onSleep([&] {
            if (!seen.isEmpty()) return;
            for (const char* name :
                 {"lblDaInviare", "lblFallite", "lblInviate", "prgDaInviare", "prgFallite", "prgInviate"})
                seen << painted[stage.control<QWidget>(name)];
        });
        useBlock(stage, "3", "5");
        QVERIFY(stage.run());
        QCOMPARE(seen, QStringList({"Email da inviare: 2", "Email non inviate: 1", "Email inviate: 2", "2",
                                    "1", "2"}));
    }

    void failedRecipientsCountToo() {
        TestClock clock;
        SendStage stage(addresses(3));
        for (const char* one : {"r0@x.it", "r1@x.it"})
            stage.sink.treat(one, SmtpSink::Treatment::Refuse);
        useBlock(stage, "2", "1");
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 2, 1}));
        QCOMPARE(clock.slept(), 60000);
    }

    void limitOfOneAndOfNoneWaitAfterEveryMessage_data() {
        QTest::addColumn<QString>("number");
        QTest::newRow("one") << "1";
        QTest::newRow("none") << "0";
    }
    void limitOfOneAndOfNoneWaitAfterEveryMessage() {
        QFETCH(QString, number);
        TestClock clock;
        SendStage stage(addresses(3));
        useBlock(stage, number, "1");
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 120000);
    }

    void noWaitAfterTheLastMessage() {
        TestClock clock;
        SendStage stage(addresses(2));
        useBlock(stage, "2", "1");
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 0);
    }

    void zeroMinutesHardlyLimit() {
        TestClock clock;
        SendStage stage(addresses(3));
        useBlock(stage, "1", "0");
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 0);
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 3}));
    }

    void fractionOfMinutesIsReadAsTheUserWritesItAndOfMessagesIsRounded() {
        TestClock clock;
        SendStage stage(addresses(3));
        useBlock(stage, "1,6", "2,5");
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 150000);
    }

    void windowThatRunsOutBelowTheLimitEndsTheLimiting() {
        TestClock clock;
        SendStage stage(addresses(6));
        useBlock(stage, "2", "1");
        bool first = true;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            if (first) clock.advance(61);
            first = false;
        });
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 0);
    }

    void pauseBeginsAfterTheWaitOfTheBlock() {
        TestClock clock;
        SendStage stage(addresses(3));
        useBlock(stage, "1", "1");
        bool paused = false;
        clock.onSleep([&] { paused |= stage.timer().isActive(); });
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 120000);
        QVERIFY(!paused);
    }

    void firstWindowBeginsWithTheStart() {
        TestClock clock;
        SendStage stage(addresses(2));
        useBlock(stage, "1", "1");
        stage.pick();
        stage.start();
        clock.advance(10);
        QVERIFY(stage.waitForEnd());
        QCOMPARE(clock.slept(), 50000);
    }

    // The two fields stay enabled during a run.
    void blockFieldsAreNotReadAgainDuringARun() {
        TestClock clock;
        SendStage stage(addresses(7));
        useBlock(stage, "3", "5");
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            stage.control<QLineEdit>("txtBloccoNum")->setText("1");
            stage.control<QLineEdit>("txtBloccoMin")->setText("9");
        });
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 600000);
    }

    void clockThatLeapsFartherThanSecondsAreCountedDoesNotEndTheRun() {
        TestClock clock;
        SendStage stage(addresses(3));
        useBlock(stage, "2", "1");
        bool first = true;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            for (int i = 0; first && i < 2; ++i)
                clock.advance(std::numeric_limits<int>::max());
            first = false;
        });
        QVERIFY(stage.run());
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 3}));
    }

    void uncheckedBoxDoesNotLimit() {
        TestClock clock;
        SendStage stage(addresses(3));
        useBlock(stage, "1", "1");
        stage.click("chkBlocco");
        QVERIFY(stage.run());
        QCOMPARE(clock.slept(), 0);
    }

    void logIsAskedForWithTheCaptionOfItsBox() {
        SendStage stage({"a@x.it"});
        stage.control<QCheckBox>("chkLog")->setText("Keep a log");
        stage.pick();
        stage.click("chkLog");
        FileDialog::queue(stage.folder.path("registro"));
        stage.start();
        const auto& asked = FileDialog::shown().constLast();
        QVERIFY(asked.save);
        QCOMPARE(asked.title, "Keep a log");
        QCOMPARE(asked.filter, "File assistenza (*.xt1)|*.xt1|");
        QCOMPARE(stage.smtp().LogFile, stage.folder.path("registro.xt1"));
        QVERIFY(stage.smtp().LogEnabled);
        QVERIFY(stage.waitForEnd());
        QFile log(stage.folder.path("registro.xt1"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(log.readAll().contains("a@x.it"));
    }

    void logThatCannotBeOpenedIsReportedAndTheRunContinues() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.click("chkLog");
        const QString path = stage.folder.path("manca/registro.xt1");
        FileDialog::queue(path);
        MessageDialog::reset();
        MessageDialog::queue(MessageDialog::Ok);
        stage.start();
        QVERIFY(stage.waitForEnd());
        const auto& boxes = MessageDialog::shown();
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(
            boxes[0].text.startsWith("Il file per l'assistenza non si può scrivere:\r\n" + path + "\r\n"),
            qPrintable(boxes[0].text));
        QVERIFY(boxes[0].text.endsWith("\r\nL'invio prosegue senza."));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
    }

    void cancellingTheLogLeavesEverythingUntouched() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.smtp().LogFile = "prima";
        stage.smtp().LogEnabled = true;
        stage.click("chkLog");
        stage.folder.addRecipient({{"rgs", "Z"}, {"email", "z@x.it"}});
        FileDialog::queueCancel();
        stage.click("cmdInvia");
        QCOMPARE(stage.smtp().LogFile, "");
        QVERIFY(!stage.smtp().LogEnabled);
        QVERIFY(!stage.timer().isActive());
        QCOMPARE(stage.counters(), (QList<double>{1, 0, 0}));
        QVERIFY(stage.enabled("cmdInvia"));
        QVERIFY(!stage.enabled("cmdFerma"));
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
    }

    void logOfAnEarlierRunStaysOnWithTheBoxUnchecked() {
        SendStage stage({"a@x.it"});
        stage.smtp().LogFile = stage.folder.path("prima.xt1");
        stage.smtp().LogEnabled = true;
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().LogFile, stage.folder.path("prima.xt1"));
        QVERIFY(stage.smtp().LogEnabled);
        QVERIFY(QFile::exists(stage.folder.path("prima.xt1")));
    }

    void earlierLogIsTakenWithoutAQuestionAndContinued() {
        SendStage stage({"a@x.it"});
        QFile log(stage.folder.path("vecchio.xt1"));
        QVERIFY(log.open(QIODevice::WriteOnly));
        log.write("riga di prima\r\n");
        log.close();
        stage.pick();
        stage.click("chkLog");
        // The real dialog: a question about the existing file would be another modal window.
        ui::setUnattended(false);
        const auto unattended = qScopeGuard([] { ui::setUnattended(true); });
        QStringList asked;
        QTimer answer;
        answer.callOnTimeout([&] {
            QWidget* window = QApplication::activeModalWidget();
            if (auto* dialog = qobject_cast<QFileDialog*>(window)) {
                asked << "dialog";
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(log.fileName());
                QMetaObject::invokeMethod(dialog, "accept");
            } else if (auto* question = qobject_cast<QMessageBox*>(window)) {
                asked << question->text();
                question->reject();
            }
        });
        answer.start(0);
        stage.start();
        answer.stop();
        QCOMPARE(asked, QStringList("dialog"));
        QVERIFY(stage.waitForEnd());
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray text = log.readAll();
        QVERIFY(text.startsWith("riga di prima"));
        QVERIFY(text.contains("a@x.it"));
    }
};

TEST_CLASS(TestFrmInviaLimiti);

}  // namespace frminvia_limiti_test

#include "frminvia_limiti_test.moc"
