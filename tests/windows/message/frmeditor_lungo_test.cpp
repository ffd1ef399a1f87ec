// SPDX-License-Identifier: GPL-3.0-or-later
// While a message is read for long, the editor is painted under the hourglass and nothing that is typed is
// lost.
#include <fcntl.h>
#include <unistd.h>
#include <atomic>
#include <csignal>
#include <QApplication>
#include <QWindow>
#include <thread>

#include "platform/html/ViewFixture.h"
#include "support/TestClass.h"
#include "windows/message/editor_stage.h"

namespace frmeditor_lungo_test {

using namespace testing_support;

namespace {

/// A file that nobody can open until the window was painted a few times: who tries waits in the system's
/// call.
class SlowFile {
  public:
    SlowFile(const QString& path, const std::atomic<int>& paintings)
        : m_file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)) {
        m_before = std::signal(SIGIO, SIG_IGN);  // says that somebody tries
        if (::fcntl(m_file, F_SETLEASE, F_WRLCK) != 0) qFatal("no lease");
        m_release = std::thread([this, &paintings] {
            for (int i = 0; paintings < 3 && i < 20'000; ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            m_painted = paintings >= 3;
            ::close(m_file);
        });
    }
    ~SlowFile() {
        m_release.join();
        std::signal(SIGIO, m_before);
    }
    SlowFile(const SlowFile&) = delete;

    /// Whether the window was painted before somebody could open it.
    bool painted() const { return m_painted; }

  private:
    int m_file;
    sighandler_t m_before;
    std::atomic<bool> m_painted = false;
    std::thread m_release;
};

/// Counts the paintings of a widget under the hourglass, and does something in the first one.
class Paintings : public QObject {
  public:
    explicit Paintings(QWidget& painted, std::function<void()> first = {})
        : m_painted(painted), m_first(std::move(first)) {
        painted.installEventFilter(this);
        painted.update();
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        m_painted.update();
        const QCursor* pointer = QApplication::overrideCursor();
        if (!pointer || pointer->shape() != Qt::WaitCursor) return false;
        if (times++ == 0 && m_first) m_first();
        return false;
    }

    std::atomic<int> times = 0;

  private:
    QWidget& m_painted;
    std::function<void()> m_first;
};

}  // namespace

class TestLungo : public QObject {
    Q_OBJECT

    std::unique_ptr<EditorStage> m_stage;
    EditorStage& stage() { return *m_stage; }
    QWidget& statusBar() { return *stage().editor().Commands().GetStatic("stcHelp"); }

  private Q_SLOTS:
    void initTestCase() {
        m_stage = std::make_unique<EditorStage>();
        stage().fill("<p>listino</p>");
        stage().saveAs("lento.mss");
    }
    void cleanupTestCase() { m_stage.reset(); }
    void init() { stage().begin(); }

    void anOpeningThatLastsPaintsTheEditorUnderTheHourglass() {
        const Paintings paintings(statusBar());
        {
            const SlowFile slow(stage().path("lento.mss"), paintings.times);
            stage().open("lento.mss");
            QVERIFY(slow.painted());
        }
        QVERIFY(stage().body().contains("<p>listino</p>"));
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(!stage().marked());
    }

    void whatIsTypedMeanwhileComesAfterItAndMarksTheMessage() {
        stage().design().setFocus();
        const Paintings paintings(statusBar(), [&] {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent key(type, Qt::Key_X, Qt::NoModifier, "x");
                QCoreApplication::sendEvent(stage().editor().windowHandle(), &key);
            }
        });
        {
            const SlowFile slow(stage().path("lento.mss"), paintings.times);
            stage().open("lento.mss");
            QVERIFY(slow.painted());
        }
        QTRY_VERIFY(stage().body().contains("x"));
        QVERIFY(stage().body().contains("listino"));
        QVERIFY(stage().marked());
    }

    void theEditorStaysWhenItIsAskedToCloseMeanwhile() {
        const Paintings paintings(statusBar(), [&] {
            QCloseEvent close;
            QCoreApplication::sendEvent(stage().editor().windowHandle(), &close);
        });
        {
            const SlowFile slow(stage().path("lento.mss"), paintings.times);
            stage().open("lento.mss");
            QVERIFY(slow.painted());
        }
        QCoreApplication::processEvents();
        QVERIFY2(stage().editor().isVisible(), "it is left by its command only");
        QVERIFY(stage().ends.isEmpty());
        QVERIFY(stage().body().contains("<p>listino</p>"));
    }
};

TEST_CLASS(TestLungo);

}  // namespace frmeditor_lungo_test

#include "frmeditor_lungo_test.moc"
