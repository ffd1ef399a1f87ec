// SPDX-License-Identifier: GPL-3.0-or-later
// A stop in each state of a run, and what can happen before the pending tick.
#include <QApplication>
#include <QDialog>
#include <QThread>

#include "modules/message/MessaggioMss.h"
#include "platform/ui/Unattended.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_ferma_test {

using namespace testing_support;

class TestFrmInviaFerma : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void stopWhileTheTimerCountsLetsOneMoreTickFailThatSendsNothing() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.click("cmdInvia");
        QVERIFY(stage.timer().isActive());
        stage.click("cmdFerma");
        QVERIFY(stage.timer().isActive());
        QVERIFY(stage.enabled("cmdInvia"));
        QVERIFY(!stage.enabled("cmdFerma"));
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 0}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        // A message that was already passed on would arrive before those of the next run.
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
    }

    void stopTakenWhileATickPreparesCountsThatRecipientAsFailed() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.start();
        EventWatch beforeTick(&stage.timer(), QEvent::Timer, [&] {
            QMetaObject::invokeMethod(stage.control<QPushButton>("cmdFerma"), "click", Qt::QueuedConnection);
        });
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 0}));
        QCOMPARE(stage.smtp().ToAddress.text(), "a@x.it");
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
    }

    void stopDuringADeliveryAbortsItAndCountsItAsFailed() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        QObject::connect(
            &stage.sink, &SmtpSink::attempted, &stage.sink, [&] { stage.click("cmdFerma"); },
            Qt::QueuedConnection);
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 0}));
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        QVERIFY(stage.enabled("cmdChiudi"));
        QVERIFY(!stage.timer().isActive());
    }

    void stopTogetherWithTheOutcomeCountsAsDeliveredAndEndsTheRun() {
        SendStage stage({"a@x.it", "b@x.it"});
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendDone, [&] { stage.click("cmdFerma"); });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{1, 0, 1}));
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void stopBeforeTheEndOfATickLeavesTheBlockStepOut() {
        TestClock clock;
        SendStage stage({"a@x.it", "b@x.it"});
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoNum")->setText("1");
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendDone, [&] { stage.click("cmdFerma"); });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{1, 0, 1}));
        QCOMPARE(clock.slept(), 0);
    }

    void stopPressedDuringTheBlockWaitIsTakenOnlyAfterIt() {
        TestClock clock;
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoNum")->setText("1");
        stage.control<QLineEdit>("txtBloccoMin")->setText("1");
        bool pressed = false;
        bool takenDuringTheWait = false;
        clock.onSleep([&] {
            if (!pressed)
                QMetaObject::invokeMethod(stage.control<QPushButton>("cmdFerma"), "click",
                                          Qt::QueuedConnection);
            pressed = true;
            takenDuringTheWait |= stage.enabled("cmdInvia");
        });
        QVERIFY(stage.run());
        QVERIFY(pressed);
        QVERIFY(!takenDuringTheWait);
        QCOMPARE(clock.slept(), 60000);
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 1}));
    }

    void newRunBeforeThePendingTickSimplyTakesItOver() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.click("cmdInvia");
        stage.click("cmdFerma");
        QVERIFY(stage.timer().isActive());
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void stopAndNewStartWithinATickLetNoSecondTickInto() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        stage.pick();
        stage.start();
        EventWatch beforeTick(&stage.timer(), QEvent::Timer, [&] {
            for (const char* name : {"cmdFerma", "cmdInvia"})
                QMetaObject::invokeMethod(stage.control<QPushButton>(name), "click", Qt::QueuedConnection);
        });
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    // Both clicks are taken in one turn of the wait, as after a look-up that kept the window from responding.
    void stopAndNewStartDuringADeliveryMakeItsTickTheNewRunsFirst_data() {
        QTest::addColumn<QStringList>("recipients");
        QTest::addColumn<QList<double>>("counters");
        QTest::newRow("others follow") << QStringList{"a@x.it", "b@x.it"} << QList<double>{0, 1, 1};
        QTest::newRow("the last one") << QStringList{"a@x.it"} << QList<double>{0, 1, 0};
    }
    void stopAndNewStartDuringADeliveryMakeItsTickTheNewRunsFirst() {
        QFETCH(QStringList, recipients);
        QFETCH(QList<double>, counters);
        SendStage stage(recipients);
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        QObject::connect(
            &stage.sink, &SmtpSink::attempted, &stage.sink,
            [&] {
                stage.click("cmdFerma");
                stage.click("cmdInvia");
            },
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), recipients);
        QCOMPARE(stage.counters(), counters);
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
        QVERIFY(!stage.timer().isActive());
    }

    // The machine stalls for longer than the pause in the very turn in which both clicks were taken.
    void timerOfANewRunThatIsDueInTheSameTurnBeginsNoSecondTick() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        QTimer another;  // is always due, so that the turn looks at the timers too
        another.callOnTimeout([] { QThread::msleep(2); });
        another.start(1);
        QObject::connect(
            &stage.sink, &SmtpSink::attempted, &stage.sink,
            [&] {
                stage.click("cmdFerma");
                stage.start();
                QThread::msleep(50);
            },
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void pendingTickThatEndsDuringTheQuestionOfANewRunLeavesItItsRoom() {
        SendStage stage({"a@x.it", "b@x.it"});
        ScriviMessaggio(stage.folder.path("ricevuto.mss"),
                        {"Offerta", "NR", {"/etc/passwd"}, "<html><body><p>Buongiorno</p></body></html>"});
        stage.pick(stage.folder.path("ricevuto.mss"));
        ui::MessageDialog::queue(ui::MessageDialog::Yes);
        stage.click("cmdInvia");
        QVERIFY(stage.timer().isActive());
        stage.click("cmdFerma");
        stage.timer().setInterval(1);
        QTimer answer;
        answer.callOnTimeout([&] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!box || stage.timer().isActive() || !stage.enabled("cmdInvia")) return;
            answer.stop();
            ui::setUnattended(true);
            box->accept();
        });
        answer.start(1);
        ui::setUnattended(false);
        stage.start();
        QVERIFY(!answer.isActive());
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void pendingTickRunsWithTheWindowHidden() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.click("cmdInvia");
        stage.click("cmdFerma");
        stage.click("cmdChiudi");
        QVERIFY(!stage.window->isVisible());
        QCOMPARE(stage.counters(), (QList<double>{2, 0, 0}));
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{1, 1, 0}));
        QVERIFY(!stage.window->isVisible());
    }

    void stopWithNoRunIsForgottenByTheNextStart() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.pick();
        stage.click("cmdInvia");
        stage.click("cmdFerma");
        QVERIFY(stage.waitForEnd());
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void messageThatAStopEndedIsSentByTheNextRun() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        QObject::connect(
            &stage.sink, &SmtpSink::attempted, &stage.sink, [&] { stage.click("cmdFerma"); },
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        int outcomes = 0;
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendDone, [&] { ++outcomes; });
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendError, [&] { ++outcomes; });
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Accept);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(outcomes, 2);
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void windowLivesDuringADelivery() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        bool repainted = false;
        QObject::connect(&stage.sink, &SmtpSink::attempted, &stage.sink, [&] {
            EventWatch* watch = new EventWatch(stage.window.get(), QEvent::Paint, [&] { repainted = true; });
            watch->setParent(stage.window.get());
            stage.window->update();
            QTimer::singleShot(50, stage.window.get(), [&] { stage.click("cmdFerma"); });
        });
        QVERIFY(stage.run());
        QVERIFY(repainted);
    }
};

TEST_CLASS(TestFrmInviaFerma);

}  // namespace frminvia_ferma_test

#include "frminvia_ferma_test.moc"
