// SPDX-License-Identifier: GPL-3.0-or-later
// The walk over the selection: order, outcomes, personalisation, failures in mid-run.
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_giro_test {

using namespace testing_support;
using ui::MessageDialog;

class TestFrmInviaGiro : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void deliveredRecipientsLeaveTheSelectionAndNothingIsSaidAtTheEnd() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 3}));
        QCOMPARE(stage.label("lblDaInviare"), "Email da inviare: 0");
        QCOMPARE(stage.label("lblFallite"), "Email non inviate: 0");
        QCOMPARE(stage.label("lblInviate"), "Email inviate: 3");
        QCOMPARE(SampleFolder::selected(), QStringList());
        QVERIFY(MessageDialog::shown().isEmpty());
        for (const char* name : {"chkLog", "txtFile", "cmdFile", "cmbAccount", "cmbPausa", "cmbTimeout",
                                 "chkBlocco", "cmdChiudi", "cmdInvia"})
            QVERIFY2(stage.enabled(name), name);
        QVERIFY(!stage.enabled("cmdFerma"));
        QVERIFY(!stage.timer().isActive());
    }

    void failedRecipientIsSteppedOverAndStaysSelected() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.treat("b@x.it", SmtpSink::Treatment::Refuse);
        QList<QStringList> queues;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { queues << SampleFolder::selected(); });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it"}));
        QCOMPARE(queues, (QList<QStringList>{
                             {"a@x.it", "b@x.it", "c@x.it"}, {"b@x.it", "c@x.it"}, {"b@x.it", "c@x.it"}}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 2}));
        QCOMPARE(stage.label("lblDaInviare"), "Email da inviare: 0");
        QCOMPARE(stage.label("lblFallite"), "Email non inviate: 1");
        QCOMPARE(stage.label("lblInviate"), "Email inviate: 2");
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void lastRecipientFailingEndsTheRunToo() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("b@x.it", SmtpSink::Treatment::RefuseData);
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void failuresOfAnEarlierRunAreTriedAgainInTheirPlace() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        stage.sink.treat("c@x.it", SmtpSink::Treatment::Refuse);
        QVERIFY(stage.run());
        stage.sink.treat("c@x.it", SmtpSink::Treatment::Accept);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it", "a@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void droppedLineFailsOneRecipientAndTheNextIsServed() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Drop);
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void serverThatStopsAnsweringFailsAfterTheTimeoutAndTheNextIsServed() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        QVERIFY(stage.run());
        QCOMPARE(stage.smtp().TimeoutSecs, qint16(5));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(stage.sink.messages().constFirst().recipient, "b@x.it");
    }

    void rowsAreServedByTheFiveSortColumns() {
        const auto row = [](const char* place, const char* rgs, const char* email, const char* nom,
                            const char* loc, const char* ind) {
            return SampleFolder::Columns{{"campo1", place}, {"rgs", rgs}, {"email", email},
                                         {"nom", nom},      {"loc", loc}, {"ind", ind}};
        };
        SendStage stage(QList<SampleFolder::Columns>{
            row("8", "b", "1@x.it", "", "", ""), row("6", "A", "3@x.it", "z", "", ""),
            row("1", "a", "2@x.it", "z", "z", "z"), row("7", "à", "1@x.it", "", "", ""),
            row("5", "a", "3@x.it", "m", "y", ""), row("4", "A", "3@x.it", "M", "x", "via B"),
            row("3", "a", "3@x.it", "m", "X", "Via A"), row("2", "a", "3@x.it", "", "z", "z")});
        stage.pick(stage.folder.writeMessage("o.mss", {":::campo1:::", "NR", {}, "<p>x</p>"}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QByteArray order;
        for (int i = 0; i < stage.sink.messages().size(); ++i)
            order += stage.header(i, "Subject");
        QCOMPARE(order, "12345678");
    }

    void twoRowsWithTheSameAddressBothGetACopy() {
        SendStage stage({"a@x.it", "a@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.messages().size(), 2);
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
    }

    void eachCopyIsPersonalisedFromTheTemplates() {
        SendStage stage(
            QList<SampleFolder::Columns>{{{"rgs", "Alfa"}, {"nom", "Anna"}, {"email", "a@x.it"}},
                                         {{"rgs", "Beta"}, {"nom", "Bruno"}, {"email", "b@x.it"}}});
        QVERIFY(stage.run());
        QCOMPARE(stage.header(0, "Subject"), "Alfa");
        QCOMPARE(stage.header(1, "Subject"), "Beta");
        QVERIFY(stage.sink.messages()[1].data.contains("Gentile Bruno"));
        QVERIFY(!stage.sink.messages()[1].data.contains("Anna"));
    }

    void nullColumnLeavesItsPlaceholderAndAnEmptyOneRemovesIt() {
        SendStage stage(QList<SampleFolder::Columns>{{{"rgs", "A"}, {"nom", QString()}, {"email", "a@x.it"}},
                                                     {{"rgs", "B"}, {"nom", ""}, {"email", "b@x.it"}}});
        QVERIFY(stage.run());
        QVERIFY(stage.sink.messages()[0].data.contains("Gentile :::nom:::"));
        QVERIFY(!stage.sink.messages()[1].data.contains(":::nom:::"));
    }

    void displayNameIsTheFirstOfCompanyNameAddressThatIsNotEmpty() {
        SendStage stage(
            QList<SampleFolder::Columns>{{{"rgs", QString()}, {"nom", QString()}, {"email", "1@x.it"}},
                                         {{"rgs", ""}, {"nom", "Nome"}, {"email", "2@x.it"}},
                                         {{"rgs", "Ragione"}, {"nom", "Nome"}, {"email", "3@x.it"}}});
        QStringList names;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { names << stage.smtp().ToName; });
        QVERIFY(stage.run());
        QCOMPARE(names, (QStringList{"1@x.it", "Nome", "Ragione"}));
    }

    void emptyAddressIsAttemptedFailsAndStaysSelected() {
        SendStage stage({"", "b@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{""});
    }

    void nullAddressFailsAndNobodyGetsThatCopy() {
        SendStage stage(QList<SampleFolder::Columns>{{{"rgs", "A"}, {"email", "a@x.it"}},
                                                     {{"rgs", "B"}, {"email", QString()}},
                                                     {{"rgs", "C"}, {"email", "c@x.it"}}});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "c@x.it"}));
        QCOMPARE(stage.header(1, "Subject"), "C");
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 2}));
        // Also as a run's first row: the address is the one of the run before.
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(stage.smtp().ToAddress.text(), "c@x.it");
    }

    void databaseThatVanishesInMidRunSendsNothingMore() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.onMessage([&](const SmtpSink::Message&) { stage.folder.hideDatabase(); });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QVERIFY(MessageDialog::shown().isEmpty());
        stage.folder.showDatabase();
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        // The first one is taken out of the selection by the next click, before anything is counted.
        stage.sink.onMessage({});
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void rowWhoseUpdateFailsIsMetAgainAndNotServedAgain() {
        SendStage stage({"a@x.it", "b@x.it"});
        bool first = true;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            if (first) stage.folder.hideDatabase();
            first = false;
        });
        QTimer back;
        QObject::connect(&back, &QTimer::timeout, [&] {
            if (stage.counter("prgInviate") < 1) return;
            stage.folder.showDatabase();
            back.stop();
        });
        back.start(1);
        stage.pick();
        stage.click("cmdInvia");  // the pause of 200 ms lets the database return between the two ticks
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "b@x.it"}));
        stage.click("cmdChiudi");
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void lateOutcomeOfAnEarlierMessageIsWipedBeforeTheNextSend() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        stage.pick();
        stage.start();
        Q_EMIT stage.smtp().SendDone();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void lateOutcomeInTheTurnBeforeTheSendIsWipedToo() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        stage.pick();
        stage.start();
        bool late = false;
        EventWatch beforeTick(&stage.timer(), QEvent::Timer, [&] {
            QMetaObject::invokeMethod(
                &stage.smtp(),
                [&] {
                    late = stage.sink.attempts().isEmpty();
                    Q_EMIT stage.smtp().SendDone();
                },
                Qt::QueuedConnection);
        });
        QVERIFY(stage.waitForEnd());
        QVERIFY(late);
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 0}));
        QCOMPARE(SampleFolder::selected(), QStringList{"a@x.it"});
    }

    void startWithNothingLeftToServeCountsOneFailureAndServesNobody() {
        SendStage stage({"a@x.it"});
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.counters(), (QList<double>{-1, 1, 0}));
        QVERIFY(MessageDialog::shown().isEmpty());
        QVERIFY(stage.ends.isEmpty());
    }

    void timerThatIsDueAgainDuringATickBeginsNoSecondOne() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.pick();
        stage.start();
        stage.timer().setInterval(0);
        bool active = false;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { active |= stage.timer().isActive(); });
        QVERIFY(stage.waitForEnd());
        QVERIFY(!active);
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "b@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 3}));
    }

    void bothOutcomesCountAsDelivered() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendError,
                         [&] { Q_EMIT stage.smtp().SendDone(); });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void rowsSelectedDuringARunDoNotChangeTheCounts() {
        SendStage stage({"a@x.it", "b@x.it"});
        bool first = true;
        stage.sink.onMessage([&](const SmtpSink::Message&) {
            if (first) stage.folder.addRecipient({{"rgs", "Z"}, {"email", "z@x.it"}});
            first = false;
        });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 2}));
        QCOMPARE(SampleFolder::selected(), QStringList{"z@x.it"});
    }
};

TEST_CLASS(TestFrmInviaGiro);

}  // namespace frminvia_giro_test

#include "frminvia_giro_test.moc"
