// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAction>
#include <QFile>

#include "modules/accounts/bBinary.h"
#include "platform/ui/CommandBars.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/entry/Finestre.h"
#include "windows/shell/frmMain.h"

namespace main_test {

using namespace testing_support;
using ui::MessageDialog;

namespace {

QAction* command(const char* name) {
    auto* action = finestre::Main().findChild<QAction*>(name);
    if (!action) qFatal("no command %s", name);
    return action;
}

}  // namespace

class TestMain : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theSendWindowIsOneInstanceThatKeepsItsContent() {
        SendStage stage({"a@x.it"});
        finestre::Main();
        frmInvia* first = nullptr;
        for (int opening = 0; opening < 2; ++opening) {
            QTimer::singleShot(0, this, [&] {
                frmInvia& window = finestre::Invia();
                if (first) {
                    QCOMPARE(&window, first);
                    QCOMPARE(window.findChild<QLineEdit*>("txtFile")->text(), "prova");
                }
                first = &window;
                window.findChild<QLineEdit*>("txtFile")->setText("prova");
                window.findChild<QPushButton*>("cmdChiudi")->click();
            });
            command("cmdInvia")->trigger();
        }
        QVERIFY(first);
    }

    void brokenAccountFileIsAnUnhandledFailureOfSending_data() {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QString>("failure");
        QTest::newRow("missing file") << QString() << "Errore 53:";
        QTest::newRow("too few fields") << "1|corto"
                                        << "Errore 9:";
        QTest::newRow("no number") << "x|a|a@b.it||25|0|||EHLO|0|0"
                                   << "Errore 13:";
        QTest::newRow("number beyond 16 bits") << "32768|a|a@b.it||25|0|||EHLO|0|0"
                                               << "Errore 6:";
        QTest::newRow("empty line") << ""
                                    << "Errore 9:";
    }
    void brokenAccountFileIsAnUnhandledFailureOfSending() {
        QFETCH(QString, record);
        QFETCH(QString, failure);
        SendStage stage({"a@x.it"});
        QFile file(stage.folder.path("data/Account.imp"));
        if (record.isNull()) {
            QVERIFY(file.remove());
        } else {
            QVERIFY(file.open(QIODevice::Append));
            file.write(TestoInBit(record).toLatin1() + "\r\n");
            file.close();
        }
        MessageDialog::queue(1);
        command("cmdInvia")->trigger();
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY2(MessageDialog::shown().constFirst().text.startsWith(failure),
                 qPrintable(MessageDialog::shown().constFirst().text));
        QVERIFY(!finestre::Invia().isVisible());
    }
};

TEST_CLASS(TestMain);

}  // namespace main_test

#include "main_test.moc"
