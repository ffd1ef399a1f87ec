#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include "core/Evento.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/Unattended.h"

using ui::MessageDialog;

class TestEvento : public QObject {
    Q_OBJECT

    QList<int> ends;

  private Q_SLOTS:
    void init() {
        ui::setUnattended(true);
        MessageDialog::reset();
        ends.clear();
        sostituisciTermine([this](int status) { ends.append(status); });
    }
    void cleanup() { sostituisciTermine({}); }

    void handlerWithoutFailureRunsToItsEnd() {
        bool done = false;
        evento([&] { done = true; });
        QVERIFY(done);
        QVERIFY(ends.isEmpty());
        QVERIFY(MessageDialog::shown().isEmpty());
    }

    void failureShowsTheCriticalBoxAndEndsTheProgramWithStatusOne() {
        MessageDialog::queue(MessageDialog::Ok);
        bool behind = false;
        evento([&] {
            fallisci(ErrorCode::InputPastEnd);
            behind = true;
        });
        QVERIFY(!behind);
        QCOMPARE(MessageDialog::shown().size(), 1);
        const auto& box = MessageDialog::shown().constFirst();
        QCOMPARE(box.text, "Errore 62:\r\n\r\nInput oltre la fine del file");
        QCOMPARE(box.title, "Vestrola");
        QCOMPARE(box.icon, QMessageBox::Critical);
        QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
        QCOMPARE(ends, QList<int>{1});
    }

    void carryOnTakesTheFailureBeforeTheEdge() {
        bool behind = false;
        evento([&] {
            Prosegui prosegui;
            prosegui([] { fallisci(ErrorCode::FileNotFound); });
            behind = prosegui.numero() == 53;
        });
        QVERIFY(behind);
        QVERIFY(ends.isEmpty());
    }

    void fallBackTakesTheFailureBeforeTheEdge() {
        int value = 0;
        evento([&] { value = ripiega(7, []() -> int { fallisci(ErrorCode::FileNotFound); }); });
        QCOMPARE(value, 7);
        QVERIFY(ends.isEmpty());
    }

    void failureInANestedLoopStopsAtItsOwnHandler() {
        MessageDialog::queue(MessageDialog::Ok);
        bool outerWentOn = false;
        evento([&] {
            QEventLoop nested;
            QTimer::singleShot(0, this, [&] {
                evento([] { fallisci(ErrorCode::TypeMismatch); });
                nested.quit();
            });
            nested.exec();
            outerWentOn = true;
        });
        QVERIFY(outerWentOn);
        QCOMPARE(ends, QList<int>{1});
    }

    void carryOnAboveANestedLoopDoesNotSeeTheInnerFailure() {
        MessageDialog::queue(MessageDialog::Ok);
        evento([&] {
            Prosegui prosegui;
            prosegui([&] {
                QEventLoop nested;
                QTimer::singleShot(0, this, [&] {
                    evento([] { fallisci(ErrorCode::TypeMismatch); });
                    nested.quit();
                });
                nested.exec();
            });
            QCOMPARE(prosegui.numero(), 0);
        });
        QCOMPARE(ends, QList<int>{1});
    }

    void whileTheFailureIsOnShowNoFurtherEventRuns() {
        ui::setUnattended(false);
        bool ran = false;
        QTimer::singleShot(0, this, [&] { evento([&] { ran = true; }); });
        QTimer::singleShot(0, this, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            box->accept();
        });
        evento([] { fallisci(ErrorCode::TypeMismatch); });
        QVERIFY(!ran);
        QCOMPARE(ends, QList<int>{1});
        evento([&] { ran = true; });
        QVERIFY(ran);
    }

    void endOfTheProgramLeavesItsHandlerThroughCarryOnProcedures() {
        bool behind = false;
        evento([&] {
            Prosegui prosegui;
            prosegui([] { TerminaProgramma(0); });
            behind = true;
        });
        QVERIFY(!behind);
        QCOMPARE(ends, QList<int>{0});
        QVERIFY(MessageDialog::shown().isEmpty());
    }
};

QTEST_MAIN(TestEvento)
#include "test_gui_evento.moc"
