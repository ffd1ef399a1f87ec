// SPDX-License-Identifier: GPL-3.0-or-later
// Signatures of a run, made with the keys in the data folder.
#include <QFile>

#include "platform/mail/dkim_support.h"
#include "platform/ui/MessageDialog.h"
#include "support/SendStage.h"
#include "support/TestClass.h"

namespace frminvia_firma_test {

using namespace testing_support;

class TestFrmInviaFirma : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void keyInTheDataFolderSignsEachMessage() {
        SendStage stage({"a@x.it", "b@x.it"});
        compose::makeDkimKey(stage.folder.path("data/dkim"), "klukla.example", "maggio");
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.messages().size(), 2);
        for (const SmtpSink::Message& message : stage.sink.messages()) {
            QVERIFY(message.data.startsWith("DKIM-Signature: "));
            QVERIFY(message.data.contains("d=klukla.example;"));
            QVERIFY(message.data.contains("s=maggio;"));
        }
    }

    void keyOfAnotherDomainSignsNothing() {
        SendStage stage({"a@x.it"});
        compose::makeDkimKey(stage.folder.path("data/dkim"), "x.it", "maggio");
        QVERIFY(stage.run());
        QCOMPARE(stage.sink.messages().size(), 1);
        QVERIFY(!stage.sink.messages()[0].data.contains("DKIM-Signature"));
    }

    void badKeyIsReportedBeforeTheRunAndInTheLogAndTheMessagesGoOutUnsigned() {
        SendStage stage({"a@x.it", "b@x.it"});
        compose::makeFile(stage.folder.path("data/dkim/klukla.example.pem"), "nessuna chiave segreta");
        compose::makeFile(stage.folder.path("data/dkim/klukla.example.selector"), "maggio\r\n");
        stage.pick();
        stage.click("chkLog");
        ui::FileDialog::queue(stage.folder.path("registro.xt1"));
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.start();
        const auto boxes = ui::MessageDialog::shown();
        QCOMPARE(boxes.size(), 1);
        QVERIFY2(boxes[0].text.contains("DKIM") && boxes[0].text.contains("senza firma"),
                 qPrintable(boxes[0].text));
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.sink.messages().size(), 2);
        for (const SmtpSink::Message& message : stage.sink.messages())
            QVERIFY(!message.data.contains("DKIM-Signature"));
        QCOMPARE(SampleFolder::selected(), QStringList());
        QFile log(stage.folder.path("registro.xt1"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray told = log.readAll();
        QCOMPARE(told.count("Messaggio non firmato (DKIM): "), 2);
        QVERIFY(!told.contains("segreta"));
    }
};

TEST_CLASS(TestFrmInviaFirma);

}  // namespace frminvia_firma_test

#include "frminvia_firma_test.moc"
