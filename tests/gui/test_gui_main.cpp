#include <QAction>
#include <QFile>

#include "core/Finestre.h"
#include "platform/ui/CommandBars.h"
#include "shell/frmMain.h"
#include "support/SendStage.h"

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

    void missingAccountFileIsAnUnhandledFailureOfSending() {
        SendStage stage({"a@x.it"});
        QVERIFY(QFile::remove(stage.folder.path("data/Account.imp")));
        MessageDialog::queue(1);
        command("cmdInvia")->trigger();
        QCOMPARE(stage.ends, QList<int>{1});
        QVERIFY(MessageDialog::shown().constFirst().text.startsWith("Errore 53:"));
        QVERIFY(!finestre::Invia().isVisible());
    }
};

QTEST_MAIN(TestMain)
#include "test_gui_main.moc"
