// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/PaintedWork.h"

#include <atomic>
#include <chrono>
#include <QEventLoop>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>
#include <stdexcept>
#include <thread>

#include "support/TestClass.h"

namespace painted_work_test {

namespace {

/// A window that asks to be painted again and again, and does something in the first paintings inside a
/// work.
class Window : public QWidget {
  public:
    Window() {
        auto* box = new QVBoxLayout(this);
        box->addWidget(&line);
        box->addWidget(&button);
        show();
        if (!QTest::qWaitForWindowExposed(this)) qFatal("the window does not show");
        activateWindow();
        line.setFocus();
        if (!QTest::qWaitFor([this] { return line.hasFocus(); })) qFatal("no focus");
    }

    /// Lasts until the window was painted `times` times; false where that does not happen.
    bool work(int times = 3) {
        update();
        inside = true;
        const bool painted = ui::painted([&] { return lastUntilPainted(times); });
        inside = false;
        return painted;
    }
    bool lastUntilPainted(int times) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (paintings < times && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return paintings >= times;
    }

    void paintEvent(QPaintEvent*) override {
        if (!inside) return;
        if (paintings++ == 0 && meanwhile) meanwhile();
        update();
    }

    void key(QEvent::Type type, Qt::Key key, const QString& text) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(windowHandle(), &event);
    }
    void click() {
        mouse(QEvent::MouseButtonPress);
        mouse(QEvent::MouseButtonRelease);
    }
    void mouse(QEvent::Type type) {
        const QPointF at = button.mapTo(this, button.rect().center());
        QMouseEvent event(type, at, mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(windowHandle(), &event);
    }

    QLineEdit line;
    QPushButton button;
    std::function<void()> meanwhile;
    std::atomic<int> paintings = 0;
    bool inside = false;
};

}  // namespace

class TestPaintedWork : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void workRunsInAThreadOfItsOwnAndReturnsItsResult() {
        const auto here = std::this_thread::get_id();
        QVERIFY(ui::painted([] { return std::this_thread::get_id(); }) != here);
        QCOMPARE(ui::painted([] { return QString("fatto"); }), QString("fatto"));
    }

    void whatTheWorkThrowsIsThrownInTheWindowsThread() {
        QVERIFY_EXCEPTION_THROWN(ui::paintWhile([] { throw std::runtime_error("guasto"); }),
                                 std::runtime_error);
        QCOMPARE(ui::painted([] { return 7; }), 7);
    }

    void workInsideWorkRunsWhereItIsBegun() {
        bool same = false;
        ui::paintWhile([&] {
            const auto outer = std::this_thread::get_id();
            same = ui::painted([] { return std::this_thread::get_id(); }) == outer;
        });
        QVERIFY(same);
    }

    void aCallGoesToTheWindowsThreadAndTheWorkWaitsForIt() {
        const auto here = std::this_thread::get_id();
        std::thread::id there;
        int calls = 0;
        ui::paintWhile([&] {
            for (int i = 0; i < 100; ++i)
                ui::inWindowThread([&] {
                    there = std::this_thread::get_id();
                    ++calls;
                });
        });
        QCOMPARE(calls, 100);
        QVERIFY(there == here);
    }

    void theWindowIsPaintedWhileTheWorkLasts() {
        Window window;
        QVERIFY(window.work());
        window.paintings = 0;
        QVERIFY2(window.work(), "and in the next work as well");
    }

    void timersAndPostedEventsComeAfterTheWork() {
        Window window;
        QStringList came;
        QTimer timer;
        timer.setSingleShot(true);
        timer.callOnTimeout([&] { came << (window.inside ? "timer inside" : "timer"); });
        window.meanwhile = [&] {
            timer.start(0);
            QMetaObject::invokeMethod(
                &window, [&] { came << (window.inside ? "slot inside" : "slot"); }, Qt::QueuedConnection);
        };
        QVERIFY(window.work(5));
        QCOMPARE(came, QStringList());
        QTRY_COMPARE(came.size(), 2);
        came.sort();
        QCOMPARE(came, QStringList({"slot", "timer"}));
    }

    void keysComeAfterTheWorkInTheirOrderAndClicksAreDropped() {
        Window window;
        int clicks = 0;
        connect(&window.button, &QPushButton::clicked, this, [&] { ++clicks; });
        window.meanwhile = [&] {
            window.click();
            for (const auto& [key, text] :
                 {std::pair(Qt::Key_A, "a"), std::pair(Qt::Key_B, "b"), std::pair(Qt::Key_C, "c")}) {
                window.key(QEvent::KeyPress, key, text);
                window.key(QEvent::KeyRelease, key, text);
            }
        };
        QVERIFY(window.work());
        QCOMPARE(window.line.text(), QString());
        QTRY_COMPARE(window.line.text(), QString("abc"));
        QCOMPARE(clicks, 0);
        window.click();
        QCOMPARE(clicks, 1);
    }

    void theEndOfAPressThatBeganBeforeTheWorkComesAfterIt() {
        Window window;
        int clicks = 0;
        connect(&window.button, &QPushButton::pressed, this, [&] {
            window.meanwhile = [&] { window.mouse(QEvent::MouseButtonRelease); };
            QVERIFY(window.work());
            QCOMPARE(clicks, 0);
        });
        connect(&window.button, &QPushButton::clicked, this, [&] { ++clicks; });
        window.mouse(QEvent::MouseButtonPress);
        QVERIFY(window.button.isDown());
        QTRY_COMPARE(clicks, 1);
        QVERIFY(!window.button.isDown());
    }

    void keysDoNotComeInAnEventLoopOfTheCommand() {
        Window window;
        window.meanwhile = [&] { window.key(QEvent::KeyPress, Qt::Key_A, "a"); };
        QVERIFY(window.work());
        QEventLoop loop;
        // Kept keys are looked at in the first of these turns.
        QTimer turns;
        int turned = 0;
        turns.callOnTimeout([&] {
            if (++turned == 3) loop.quit();
        });
        turns.start(0);
        loop.exec();
        QCOMPARE(window.line.text(), QString());
        QTRY_COMPARE(window.line.text(), QString("a"));
    }

    void aWindowThatIsAskedToCloseClosesAfterTheWork() {
        Window window;
        window.meanwhile = [&] {
            QCloseEvent close;
            QCoreApplication::sendEvent(window.windowHandle(), &close);
        };
        QVERIFY(window.work());
        QVERIFY(window.isVisible());
        QTRY_VERIFY(!window.isVisible());
    }

    void aWindowThatIsGoneGetsNoKeys() {
        auto window = std::make_unique<Window>();
        window->meanwhile = [&] {
            window->key(QEvent::KeyPress, Qt::Key_A, "a");
            QCloseEvent close;
            QCoreApplication::sendEvent(window->windowHandle(), &close);
        };
        QVERIFY(window->work());
        window.reset();
        QCoreApplication::processEvents();
        QCOMPARE(ui::painted([] { return 1; }), 1);
    }
};

TEST_CLASS(TestPaintedWork);

}  // namespace painted_work_test

#include "painted_work_test.moc"
