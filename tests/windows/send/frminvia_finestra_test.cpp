// SPDX-License-Identifier: GPL-3.0-or-later
// The window around a run: closing, opening again, focus and default button.
#include <QAccessible>
#include <QApplication>
#include <QScopeGuard>

#include "platform/ui/Announcer.h"
#include "support/SendStage.h"
#include "support/TestClass.h"
#include "windows/core/bTheme.h"

namespace frminvia_finestra_test {

using namespace testing_support;

class TestFrmInviaFinestra : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void windowIsLeftByItsOwnButtonOnly() {
        SendStage stage({"a@x.it"});
        QVERIFY(!stage.window->close());
        QVERIFY(stage.window->isVisible());
        QTest::keyClick(stage.window.get(), Qt::Key_Escape);
        QVERIFY(stage.window->isVisible());
        stage.pick();
        stage.click("cmdInvia");
        QVERIFY(!stage.enabled("cmdChiudi"));
        QVERIFY(!stage.window->close());
        QTest::keyClick(stage.window.get(), Qt::Key_Escape);
        QVERIFY(stage.window->isVisible());
        QVERIFY(stage.waitForEnd());
        stage.click("cmdChiudi");
        QVERIFY(!stage.window->isVisible());
    }

    void windowAndBothBoxesHaveTheThemesBackground() {
        const auto restored = qScopeGuard([] { sostituisciSchema({}); });
        for (const char* scheme : {"Metallic", "HomeStead"}) {
            sostituisciSchema(scheme);
            SendStage stage({"a@x.it"});
            const QImage picture = stage.window->grab().toImage();
            QCOMPARE(picture.pixelColor(1, 1), coloreTema(0));
            for (const char* name : {"chkLog", "chkBlocco"})
                QCOMPARE(picture.pixelColor(stage.control<QWidget>(name)->geometry().topRight()),
                         coloreTema(0));
        }
    }

    void reopeningShowsTheSelectionAsTheRunLeftItAndKeepsTheChoices() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it"});
        stage.sink.treat("b@x.it", SmtpSink::Treatment::Refuse);
        stage.click("chkBlocco");
        stage.control<QLineEdit>("txtBloccoNum")->setText("40");
        stage.control<QComboBox>("cmbTimeout")->setCurrentIndex(3);
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{0, 1, 2}));
        stage.click("cmdChiudi");
        stage.open();
        QCOMPARE(stage.counters(), (QList<double>{1, 0, 0}));
        QCOMPARE(stage.label("lblDaInviare"), "Email da inviare: 1");
        QVERIFY(stage.control<QLineEdit>("txtFile")->text().endsWith("prova.mss"));
        QVERIFY(stage.control<QCheckBox>("chkBlocco")->isChecked());
        QCOMPARE(stage.control<QLineEdit>("txtBloccoNum")->text(), "40");
        QCOMPARE(stage.control<QComboBox>("cmbTimeout")->currentIndex(), 0);
        stage.sink.treat("b@x.it", SmtpSink::Treatment::Accept);
        stage.start();
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.counters(), (QList<double>{0, 0, 1}));
        QCOMPARE(SampleFolder::selected(), QStringList());
    }

    void reopeningAfterAStopShowsTheFailedAndTheUnreached() {
        SendStage stage({"a@x.it", "b@x.it", "c@x.it", "d@x.it"});
        stage.sink.treat("a@x.it", SmtpSink::Treatment::Refuse);
        QObject::connect(&stage.smtp(), &mail::DeliveryControl::SendDone, [&] { stage.click("cmdFerma"); });
        QVERIFY(stage.run());
        QCOMPARE(stage.counters(), (QList<double>{2, 1, 1}));
        stage.click("cmdChiudi");
        stage.open();
        QCOMPARE(stage.counters(), (QList<double>{3, 0, 0}));
        QCOMPARE(SampleFolder::selected(), (QStringList{"a@x.it", "c@x.it", "d@x.it"}));
    }

    void focusAndDefaultButtonFollowTheRun() {
        SendStage stage({"a@x.it"});
        QVERIFY(stage.control<QPushButton>("cmdInvia")->isDefault());
        stage.pick();
        stage.window->activateWindow();
        stage.control<QLineEdit>("txtFile")->setFocus();
        QTest::keyClick(stage.control<QLineEdit>("txtFile"), Qt::Key_Return);
        QVERIFY(stage.timer().isActive());
        QCOMPARE(stage.window->focusWidget(), stage.control<QPushButton>("cmdFerma"));
        QVERIFY(stage.control<QPushButton>("cmdFerma")->isDefault());
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.window->focusWidget(), stage.control<QPushButton>("cmdChiudi"));
        QVERIFY(stage.control<QPushButton>("cmdChiudi")->isDefault());
    }

    void pressingSendMovesTheFocusOnce() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.control<QWidget>("cmdInvia")->setFocus();
        QStringList moves;
        connect(qApp, &QApplication::focusChanged, stage.window.get(), [&](QWidget*, const QWidget* now) {
            if (now) moves << now->objectName();
        });
        QTest::keyClick(stage.control<QWidget>("cmdInvia"), Qt::Key_Space);
        QCOMPARE(moves, QStringList("cmdFerma"));
        QVERIFY(stage.waitForEnd());
        QCOMPARE(moves, QStringList({"cmdFerma", "cmdChiudi"}));
    }

    void aRunDescribesItselfEveryFiveSecondsAndAtItsEnd() {
        TestClock clock;
        SendStage stage({"a@x.it", "b@x.it", "c@x.it", "d@x.it", "e@x.it", "f@x.it"});
        stage.sink.treat("b@x.it", SmtpSink::Treatment::Refuse);
        stage.pick();
        QStringList seen;
        // Six messages, of which each takes two seconds.
        const auto served = [&] {
            seen << stage.window->accessibleDescription();
            clock.advance(2);
        };
        connect(&stage.smtp(), &mail::DeliveryControl::SendDone, stage.window.get(), served);
        connect(&stage.smtp(), &mail::DeliveryControl::SendError, stage.window.get(), served);
        stage.start();
        QVERIFY(stage.waitForEnd());
        const QString first = "Email da inviare: 5, Email non inviate: 0, Email inviate: 1";
        const QString fourth = "Email da inviare: 2, Email non inviate: 1, Email inviate: 3";
        QCOMPARE(seen, QStringList({"", first, first, first, fourth, fourth}));
        QCOMPARE(stage.window->accessibleDescription(),
                 "Invio terminato, Email da inviare: 0, Email non inviate: 1, Email inviate: 5");
        const QAccessibleInterface* voice =
            QAccessible::queryAccessibleInterface(stage.window->findChild<ui::Announcer*>());
        QCOMPARE(voice->role(), QAccessible::Notification);
        QCOMPARE(voice->text(QAccessible::Name), stage.window->accessibleDescription());
        QVERIFY(!voice->state().invisible);
        for (const char* name : {"lblDaInviare", "lblFallite", "lblInviate"})
            QCOMPARE(
                QAccessible::queryAccessibleInterface(stage.control<QLabel>(name))->text(QAccessible::Name),
                stage.label(name));
        QCOMPARE(QAccessible::queryAccessibleInterface(stage.control<QWidget>("prgInviate"))
                     ->valueInterface()
                     ->currentValue(),
                 QVariant(5.0));
    }

    void focusMovesOnAtTheEndAlsoWhileAnotherWindowIsInFront() {
        SendStage stage({"a@x.it"});
        stage.pick();
        stage.click("cmdInvia");
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(stage.waitForEnd());
        QCOMPARE(stage.window->focusWidget(), stage.control<QPushButton>("cmdChiudi"));
    }
};

TEST_CLASS(TestFrmInviaFinestra);

}  // namespace frminvia_finestra_test

#include "frminvia_finestra_test.moc"
