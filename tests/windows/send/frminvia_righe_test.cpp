// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the selection in a run: what is read from each, when it leaves the queue, and what other
// programs do to the rows meanwhile.
#include <QDirIterator>
#include <QScopeGuard>

#include "modules/core/bGlobal.h"
#include "modules/send/Esiti.h"
#include "platform/system/Clock.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_righe_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

QStringList filesIn(const QString& folder) {
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << walk.next();
    files.sort();
    return files;
}

}  // namespace

class TestFrmInviaRighe : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void deliveredRowIsOutOfTheQueueBeforeTheNextIsTried() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        QList<QStringList> queues;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] { queues << SampleFolder::selected(); });
        QVERIFY(stage.run());
        QCOMPARE(queues,
                 (QList<QStringList>{{"a@x.it", "b@x.it", "c@x.it"}, {"b@x.it", "c@x.it"}, {"c@x.it"}}));
    }

    void rowsEqualInEverySortColumnAreServedOnceEach() {
        QList<SampleFolder::Columns> rows;
        for (const char* one : {"1", "2", "3", "4", "5"})
            rows.append({{"rgs", "Uguale"}, {"email", "a@x.it"}, {"campo1", one}});
        SendStage stage(rows);
        QStringList served;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] {
            served << stage.smtp().Subject;
            stage.sink.treat("a@x.it",
                             served.size() % 2 ? SmtpSink::Treatment::Refuse : SmtpSink::Treatment::Accept);
        });
        stage.pick(stage.folder.writeMessage("u.mss", {":::campo1:::", "NR", {}, "<p>x</p>"}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 2, 3}));
        served.sort();
        QCOMPARE(served, (QStringList{"1", "2", "3", "4", "5"}));
        QCOMPARE(SampleFolder::selected().size(), 2);
    }

    // The walk is past the end: no row is read, and nothing is sent.
    void rowDeselectedDuringARunIsNotServedAndTheCountsContinue() {
        SendStage stage({"a@x.it", "b@x.it"});
        stage.sink.onMessage([](const SmtpSink::Message&) {
            SampleFolder::run("UPDATE [tb_destinatari] SET [sel] = False WHERE [email] = 'b@x.it';");
        });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), QStringList{"a@x.it"});
        QCOMPARE(stage.smtp().Subject, ":::rgs:::");
        QCOMPARE(stage.smtp().ToName, "Ditta 0000");
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void failedRowDeselectedDuringARunLetsAnotherBeSteppedOver() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendError, [] {
            SampleFolder::run("UPDATE [tb_destinatari] SET [sel] = False WHERE [email] = 'a@x.it';");
        });
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.attempts(), (QStringList{"a@x.it", "c@x.it"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 2, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"b@x.it"});
    }

    void addressIsPassedOnUnchanged() {
        SendStage stage({"  a@x.it ", "Rossi <b@x.it>"});
        QStringList handed;
        const auto note = [&] { handed << stage.smtp().ToAddress.text(); };
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendDone, note);
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendError, note);
        QVERIFY(stage.run());
        QCOMPARE(handed, (QStringList{"  a@x.it ", "Rossi <b@x.it>"}));
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList{"Rossi <b@x.it>"});
    }

    void nullKeepsThePlaceholderInAllThreeTextsAndAnEmptyTextRemovesIt() {
        SendStage stage(QList<SampleFolder::Columns>{{{"rgs", "A"}, {"nom", QString()}, {"email", "a@x.it"}},
                                                     {{"rgs", "B"}, {"nom", ""}, {"email", "b@x.it"}}});
        QStringList texts;
        QObject::connect(&stage.sink, &SmtpSink::attempted, [&] {
            texts << stage.smtp().BodyHtml << stage.smtp().BodyText << stage.smtp().Subject;
        });
        stage.pick(stage.folder.writeMessage(
            "n.mss", {"per :::nom:::!", "NR", {}, "<html><body><p>Gentile :::nom:::!</p></body></html>"}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(texts.size(), 6);
        QVERIFY2(texts[0].contains("<p>Gentile :::nom:::!</p>"), qPrintable(texts[0]));
        QVERIFY2(texts[1].contains("Gentile :::nom:::!"), qPrintable(texts[1]));
        QCOMPARE(texts[2], "per :::nom:::!");
        QVERIFY2(texts[3].contains("<p>Gentile !</p>"), qPrintable(texts[3]));
        QVERIFY2(texts[4].contains("Gentile !"), qPrintable(texts[4]));
        QCOMPARE(texts[5], "per !");
    }

    void normalFormAndVisibleTextGoOutWithTheValuesUnchanged() {
        SendStage stage(QList<SampleFolder::Columns>{{{"nom", "Anna & <b>"}, {"email", "a@x.it"}}});
        stage.pick(stage.folder.writeMessage(
            "n.mss", {"x", "NR", {}, "<P CLASS=a>Gentile <I>:::nom:::</I><BR><A HREF=?:::nom:::>qui"}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        const QString html = stage.smtp().BodyHtml;
        QVERIFY2(html.startsWith("<html><head></head><body><p class=\"a\">Gentile <i>Anna & <b></i><br>"
                                 "<a href=\"?Anna & <b>\">qui"),
                 qPrintable(html));
        QVERIFY2(html.endsWith("</a></p></body></html>"), qPrintable(html));
        QCOMPARE(stage.smtp().BodyText.simplified(), "Gentile Anna & <b> qui");
    }

    void rowWithoutNameAndAddressKeepsBothOfTheRecipientBefore() {
        SendStage stage(QList<SampleFolder::Columns>{
            {{"rgs", ""}, {"nom", "Anna"}, {"email", "a@x.it"}},
            {{"rgs", ""}, {"nom", QString()}, {"email", QString()}, {"ind", "Via Roma"}}});
        // The Null address sorts before the other.
        QList<std::pair<QString, QString>> handed;
        const auto note = [&] { handed.append({stage.smtp().ToName, stage.smtp().ToAddress.text()}); };
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendDone, note);
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendError, note);
        stage.smtp().ToName = "Prima";
        stage.smtp().ToAddress = "prima@x.it";
        QVERIFY(stage.run());
        QCOMPARE(handed, (QList<std::pair<QString, QString>>{{"Prima", "prima@x.it"}, {"Anna", "a@x.it"}}));
    }

    // The server never answers: the recipient is counted as delivered only if an outcome is seen at once.
    void outcomeThatComesBeforeSendReturnsEndsTheWait() {
        SendStage stage({"a@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Hang);
        stage.pick();
        stage.start();
        const auto restored = qScopeGuard([] { sys::clock() = sys::systemClock(); });
        bool insideSend = false;
        // Composing a message asks for the time.
        sys::clock().now = [&] {
            insideSend = true;
            Q_EMIT stage.smtp().SendDone();
            return QDateTime::currentDateTime();
        };
        QVERIFY(stage.waitForEnd());
        QVERIFY(insideSend);
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void runWithoutTheBookWritesNoFileOfItsOwn() {
        SendStage stage({"a@x.it", "b@x.it"});
        QVERIFY(esiti::Accendi(false).ok());
        stage.sink.treat("b@x.it", SmtpSink::Treatment::Refuse);
        stage.pick();
        const QStringList before = filesIn(stage.folder.path({}));
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 1}));
        QCOMPARE(filesIn(stage.folder.path({})), before);
    }
};

TEST_CLASS(TestFrmInviaRighe);

}  // namespace frminvia_righe_test

#include "frminvia_righe_test.moc"
