// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows do while a statement waits for another program that locks the database, in their thread or
// aside.
#include <atomic>
#include <optional>
#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QWindow>
#include <thread>

#include "platform/ado/Command.h"
#include "platform/ado/Waiting.h"
#include "platform/ui/DatabaseWait.h"
#include "platform/ui/PaintedWork.h"
#include "support/LockedFile.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/store/griglia_stage.h"

namespace attesa_test {

using namespace testing_support;
using std::chrono::milliseconds;

namespace {

const QString waitingWords = "In attesa del database, usato da un altro programma… Esc per rinunciare";

/// Runs `act` each time a widget is painted inside a wait, so at the point where the window system's events
/// are delivered.
class DuringWait : public QObject {
  public:
    DuringWait(QWidget& painted, std::function<void()> act) : m_painted(painted), m_act(std::move(act)) {
        painted.installEventFilter(this);
        auto before = ado::setWaitHook({});
        ado::setWaitHook({[this, before](milliseconds waited) {
                              bool goOn = false;
                              ui::inWindowThread([&] {
                                  ++asked;
                                  m_painted.update();
                                  m_waiting = true;
                                  goOn = before.goOn(waited);
                                  m_waiting = false;
                              });
                              return goOn;
                          },
                          before.over});
        m_before = std::move(before);
    }
    ~DuringWait() override { ado::setWaitHook(std::move(m_before)); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint || !m_waiting) return false;
        ++paints;
        m_act();
        return false;
    }

    int asked = 0;
    int paints = 0;

  private:
    QWidget& m_painted;
    std::function<void()> m_act;
    ado::WaitHook m_before;
    bool m_waiting = false;
};

Status unselectAll() {
    ado::Command command;
    if (Status status = command.setActiveConnection(connDB); !status.ok()) return status;
    command.setCommandTimeout(0);
    command.setCommandText("UPDATE [tb_destinatari] SET sel = False;");
    return command.execute().status();
}

void press(QObject* receiver, int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(receiver, &event);
}

void click(QWidget* widget) {
    const QPointF at = widget->rect().center();
    const QPointF global = widget->mapToGlobal(at);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, widget->mapTo(widget->window(), at), global, Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget->window()->windowHandle(), &event);
    }
}

}  // namespace

class TestAttesa : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void timersSocketsAndPostedEventsComeAfterAWait() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        QStringList came;
        bool inside = false;
        const auto note = [&](const char* what) { came << (inside ? QString("inside ") + what : what); };

        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        QTcpSocket client;
        client.connectToHost(QHostAddress::LocalHost, server.serverPort());
        QVERIFY(client.waitForConnected() && server.waitForNewConnection());
        std::unique_ptr<QTcpSocket> peer(server.nextPendingConnection());
        connect(&client, &QTcpSocket::readyRead, this, [&] { note("socket"); });
        QTimer timer;
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, this, [&] { note("timer"); });

        LockedFile lock(stage.folder.database());
        int waits = 0;
        DuringWait during(*stage.grd().viewport(), [&] {
            if (waits++ == 0) {
                timer.start(0);
                QMetaObject::invokeMethod(
                    this, [&] { note("slot"); }, Qt::QueuedConnection);
                peer->write("250 ok\r\n");
                peer->flush();
            }
            if (stage.help() == waitingWords) lock.release();
        });
        inside = true;
        const Status status = unselectAll();
        inside = false;
        QVERIFY2(status.ok(), qPrintable(status.text()));
        QVERIFY(waits > 1);
        QCOMPARE(came, QStringList());
        QTRY_COMPARE(came.size(), 3);
        came.sort();
        QCOMPARE(came, QStringList({"slot", "socket", "timer"}));
    }

    void aWaitThatLastsIsShownInTheStatusBarAndTheWindowIsPainted() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        const QString before = stage.help();
        LockedFile lock(stage.folder.database());
        int shown = 0;
        DuringWait during(*stage.window().Commands().GetStatic("stcHelp"), [&] {
            if (stage.help() != waitingWords) QCOMPARE(stage.help(), before);
            if (stage.help() == waitingWords && ++shown == 3) lock.release();
        });
        QVERIFY(unselectAll().ok());
        QCOMPARE(shown, 3);
        QCOMPARE(stage.help(), before);
        QVERIFY2(during.paints < during.asked / 2, "between two paintings the program sleeps");
    }

    void toolsThatGoOverAllRecipientsWaitAndCanBeGivenUp() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa", "uno@x.it");
        stage.addRecipient(1, "Beta", "uno@x.it");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        for (const char* tool : {"cmdStrumentiDoppi", "cmdStrumentiPerdute"}) {
            DuringWait during(*stage.grd().viewport(),
                              [&] { press(stage.window().windowHandle(), Qt::Key_Escape); });
            ui::MessageDialog::queue(ui::MessageDialog::Ok);
            stage.window().findChild<QAction*>(tool)->trigger();
            QVERIFY(during.asked > 0);
            QVERIFY(ui::MessageDialog::shown().constLast().text.startsWith("Impossibile "));
        }
        DuringWait during(*stage.grd().viewport(), [&] { lock.release(); });
        ui::MessageDialog::queue(ui::MessageDialog::No);
        stage.window().findChild<QAction*>("cmdStrumentiDoppi")->trigger();
        QVERIFY(ui::MessageDialog::shown().constLast().text.startsWith("1 indirizzo"));
        QCOMPARE(StoreStage::count("tb_destinatari", "sel = True"), 2);
        QVERIFY(stage.ends.isEmpty());
    }

    void escCancelsAWaitOnceItIsShown() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        int early = 0;
        DuringWait during(*stage.grd().viewport(), [&] {
            early += stage.help() != waitingWords;
            press(stage.window().windowHandle(), Qt::Key_Escape);
        });
        const Status status = unselectAll();
        QCOMPARE(status.code(), ErrorCode::FileInUse);
        QVERIFY(early > 0);
        QVERIFY(stage.help() != waitingWords);
        lock.release();
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 1);
        QVERIFY(unselectAll().ok());
    }

    void clicksAndKeysDuringAWaitAreDropped() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        auto* button = stage.window().findChild<QToolButton*>("cmdPopMailingNew");
        QVERIFY(button && button->isEnabled());
        DuringWait during(*stage.grd().viewport(), [&] {
            click(button);
            press(stage.window().windowHandle(), Qt::Key_F5);
            if (stage.help() == waitingWords) lock.release();
        });
        QVERIFY(unselectAll().ok());
        QCoreApplication::processEvents();
        QCOMPARE(stage.count("tb_gruppi", "id > 0"), 1);
    }

    void aWindowThatIsAskedToCloseDuringAWaitClosesAfterIt() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        DuringWait during(*stage.grd().viewport(), [&] {
            QCloseEvent close;
            QCoreApplication::sendEvent(stage.window().windowHandle(), &close);
            if (stage.help() == waitingWords) lock.release();
        });
        QVERIFY(unselectAll().ok());
        QVERIFY(stage.ends.isEmpty());
        QTRY_COMPARE(stage.ends, QList<int>{0});
    }

    void aStatementDuringAWaitIsRefused() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        std::optional<ErrorCode> inner;
        DuringWait during(*stage.grd().viewport(), [&] {
            inner = unselectAll().code();
            lock.release();
        });
        QVERIFY(unselectAll().ok());
        QCOMPARE(inner, ErrorCode::FileInUse);
    }

    void aStatementOfAHandlerIsRefusedWhileAnotherThreadHasTheDatabase() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        struct Painted : QObject {
            std::atomic<int> times = 0;
            std::optional<ErrorCode> inner;
            bool eventFilter(QObject* watched, QEvent* event) override {
                if (event->type() != QEvent::Paint) return false;
                if (times++ == 0) inner = unselectAll().code();
                static_cast<QWidget*>(watched)->update();
                return false;
            }
        } painted;
        QWidget* grid = stage.grd().viewport();
        grid->update();
        grid->installEventFilter(&painted);
        const Status own = ui::painted([&] {
            for (int i = 0; painted.times < 2 && i < 20'000; ++i)
                std::this_thread::sleep_for(milliseconds(1));
            return unselectAll();
        });
        grid->removeEventFilter(&painted);
        QVERIFY2(own.ok(), qPrintable(own.text()));
        QCOMPARE(painted.inner, ErrorCode::FileInUse);
        QVERIFY(unselectAll().ok());
    }

    void aCommandOverAllRecipientsThatWaitsIsShownAndDone() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        bool hourglass = true;
        DuringWait during(*stage.grd().viewport(), [&] {
            const QCursor* pointer = QApplication::overrideCursor();
            hourglass = hourglass && pointer && pointer->shape() == Qt::WaitCursor;
            if (stage.help() == waitingWords) lock.release();
        });
        stage.command("cmdPopMailingSelNotDB");
        QVERIFY(during.paints > 0);
        QVERIFY(hourglass);
        QVERIFY(stage.ends.isEmpty());
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 0);
    }

    void aCommandThatIsGivenUpFailsAsBefore() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        LockedFile lock(stage.folder.database());
        DuringWait during(*stage.grd().viewport(),
                          [&] { press(stage.window().windowHandle(), Qt::Key_Escape); });
        ui::MessageDialog::queue(ui::MessageDialog::Ok);
        stage.command("cmdPopMailingSelNotDB");
        QVERIFY2(stage.failure().startsWith("Errore 3045"), qPrintable(stage.failure()));
        lock.release();
        QCOMPARE(stage.count("tb_destinatari", "sel = True"), 1);
    }

    void aModalWindowShowsTheWaitItself() {
        StoreStage stage;
        stage.addRecipient(1, "Alfa");
        stage.clickNode("K1");
        bool shown = false;
        stage.whenFormOpens([&](frmDestinatario& form) {
            LockedFile lock(stage.folder.database());
            DuringWait during(form, [&] {
                const auto* notice = form.findChild<QLabel*>("AvvisoAttesa");
                if (!notice) return;
                shown = notice->isVisible() && notice->text() == waitingWords;
                lock.release();
            });
            QVERIFY(unselectAll().ok());
            QVERIFY(!form.findChild<QLabel*>("AvvisoAttesa"));
            form.close();
        });
        stage.command("cmdPopMailingUserNew");
        QVERIFY(shown);
    }

    void theStopButtonCancelsTheTicksWaitAndThenStopsTheRun_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("mouse") << false;
        QTest::newRow("key") << true;
    }
    void theStopButtonCancelsTheTicksWaitAndThenStopsTheRun() {
        QFETCH(bool, byKey);
        SendStage stage({"a@x.it", "b@x.it"});
        ui::DatabaseWait wait([](const QString&) {}, nullptr);
        stage.pick();
        LockedFile lock(stage.folder.database());
        lock.release();
        auto* cmdFerma = stage.control<QPushButton>("cmdFerma");
        int handled = 0;
        bool inside = false;
        connect(cmdFerma, &QPushButton::clicked, this, [&] { handled += inside ? 100 : 1; });
        std::optional<LockedFile> held;
        DuringWait during(*stage.window, [&] {
            inside = true;
            byKey ? press(cmdFerma, Qt::Key_Space) : click(cmdFerma);
            inside = false;
        });
        stage.start();
        stage.window->activateWindow();
        cmdFerma->setFocus();
        held.emplace(stage.folder.database());
        QTRY_COMPARE(handled, 1);
        held.reset();
        QVERIFY(stage.waitForEnd());
        QVERIFY(stage.enabled("cmdInvia"));
        QVERIFY(!stage.enabled("cmdFerma"));
        QCOMPARE(stage.counter("prgInviate"), 0.0);
        QCOMPARE(SampleFolder::selected(), QStringList({"a@x.it", "b@x.it"}));
    }
};

TEST_CLASS(TestAttesa);

}  // namespace attesa_test

#include "attesa_test.moc"
