// SPDX-License-Identifier: GPL-3.0-or-later
// play_waits --editor SIZE: opens a body of so many characters, types, changes the view, saves, searches.
// play_waits --lists FILE TEXT: copies a database with a long list, works on it and imports a text file.
//
// Prints, for each operation, the longest time in which the window's thread neither turned its event loop nor
// showed the hourglass ("wait"), and the longest in which it did not paint what a window asked for ("paint"),
// both in milliseconds; and the processor's time of that thread in that one ("busy"), which other programs on
// the machine do not lengthen.

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include "platform/html/ViewFixture.h"
#include "windows/import/imptxt_stage.h"
#include "windows/message/editor_stage.h"

using namespace testing_support;

namespace {

/// Follows the turns of the event loop, the paintings while work lasts, and the hourglass.
class Watch : public QObject {
  public:
    Watch() {
        m_clock.start();
        QObject::connect(&m_tick, &QTimer::timeout, [this] { turn(); });
        m_tick.start(5);
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (m_asked && event->type() == QEvent::Paint && watched == QApplication::activeWindow()) painted();
        return false;
    }
    /// Asks the window in front to paint itself, and looks for the painting in what `turn` does.
    template <class Turn>
    void duringTurn(Turn&& turn) {
        if (QWidget* window = QApplication::activeWindow()) window->update();
        m_asked = true;
        turn();
        m_asked = false;
    }

    void begin() {
        turn();
        m_wait = m_paint = m_busy = 0;
    }
    void turn() {
        const double now = ms();
        if (!m_hourglass) m_wait = std::max(m_wait, now - m_bare);
        m_bare = now;
        painted();
    }
    void hourglass(bool on) {
        const double now = ms();
        if (on && !m_hourglass) m_wait = std::max(m_wait, now - m_bare);
        if (!on) m_bare = now;
        m_hourglass = on;
    }
    double wait() const { return m_wait; }
    double paint() const { return m_paint; }
    double busy() const { return m_busy; }

  private:
    void painted() {
        const double now = ms();
        const double used = processor();
        m_paint = std::max(m_paint, now - m_last);
        m_busy = std::max(m_busy, used - m_used);
        m_last = now;
        m_used = used;
    }
    static double processor() {
        timespec used{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
        return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
    }
    double ms() const { return static_cast<double>(m_clock.nsecsElapsed()) / 1e6; }

    QElapsedTimer m_clock;
    QTimer m_tick;
    bool m_hourglass = false;
    bool m_asked = false;
    double m_last = 0;
    double m_used = 0;
    double m_bare = 0;  ///< since when there is no hourglass
    double m_wait = 0;
    double m_paint = 0;
    double m_busy = 0;
};

Watch* watch = nullptr;

/// Runs an operation and the events that it causes.
template <class Operation>
void play(const char* name, Operation&& operation) {
    constexpr int afterwards = 2000;
    watch->begin();
    operation();
    watch->turn();
    QElapsedTimer since;
    since.start();
    while (since.elapsed() < afterwards)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    std::printf("{\"name\": \"%s\", \"wait\": %.1f, \"paint\": %.1f, \"busy\": %.1f}\n", name, watch->wait(),
                watch->paint(), watch->busy());
    std::fflush(stdout);
}

QByteArray newsletter(qsizetype size) {
    QByteArray html = "<html><body>\r\n";
    for (int i = 0; html.size() < size; ++i)
        html += "<p>Gentile :::nom:::, il prezzo dell'articolo " + QByteArray::number(i) +
                " resta quello dell'anno passato: in settimana le scriviamo.</p>\r\n";
    return html + "</body></html>";
}

void playEditor(qsizetype size) {
    EditorStage stage;
    stage.begin();
    MessaggioMss message;
    message.Oggetto = "Notizie";
    message.CorpoHTML = QString::fromLatin1(newsletter(size));
    stage.folder.writeMessage("notizie.mss", message);
    play("open", [&] { stage.open("notizie.mss"); });
    play("type", [&] { stage.type("abc"); });
    play("to the source", [&] { stage.chooseTab(1); });
    play("to the design", [&] { stage.chooseTab(0); });
    play("to the preview", [&] { stage.chooseTab(2); });
    play("back to the design", [&] { stage.chooseTab(0); });
    play("save", [&] { stage.start("cmdSalva"); });
    play("search", [&] { static_cast<void>(stage.design().find("non c'entra")); });
}

void playLists(const QString& file, const QString& text) {
    TxtStage stage;
    QFile::remove(stage.folder.database());
    if (!QFile::copy(file, stage.folder.database())) qFatal("no list");
    play("start", [&] { stage.window(); });
    play("open a group", [&] { stage.clickNode("K1"); });
    play("select the group", [&] { stage.command("cmdPopMailingSelAllGRP"); });
    play("deselect the group", [&] { stage.command("cmdPopMailingSelNotGRP"); });
    play("select all", [&] { stage.command("cmdPopMailingSelAllDB"); });
    play("deselect all", [&] { stage.command("cmdPopMailingSelNotDB"); });
    ui::MessageDialog::queue(ui::MessageDialog::Yes);
    play("empty the group", [&] { stage.command("cmdPopMailingSvuotaCartella"); });
    play("the empty group", [&] { stage.clickNode("K1"); });
    stage.dialog();
    stage.map(text, 3, 1);
    play("import a text", [&] { stage.click("cmdImportaTXT"); });
}

}  // namespace

// Replace the routines at link time.
extern "C" {
void __real__Z15PuntatoreAttesav();
void __real__Z20PuntatorePredefinitov();
void __real__ZN2ui11turnWindowsEv();
void __wrap__Z15PuntatoreAttesav() {
    __real__Z15PuntatoreAttesav();
    if (watch) watch->hourglass(true);
}
void __wrap__Z20PuntatorePredefinitov() {
    if (watch) watch->hourglass(false);
    __real__Z20PuntatorePredefinitov();
}
void __wrap__ZN2ui11turnWindowsEv() {
    if (watch) watch->duringTurn(__real__ZN2ui11turnWindowsEv);
}
}

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 3) qFatal("play_waits --editor SIZE | --lists FILE TEXT");
    Watch following;
    watch = &following;
    if (qstrcmp(argv[1], "--editor") == 0)
        playEditor(QByteArray(argv[2]).toLongLong());
    else
        playLists(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    std::_Exit(0);
}
