// play_waits --editor SIZE: opens a body of so many characters, types, changes the view, saves, searches.
// play_waits --lists FILE: copies a database with a long list and works on it.
//
// Prints, for each operation, the longest time in which the window's thread neither turned its event loop nor
// showed the hourglass ("wait"), and the longest without a turn at all ("turn"), both in milliseconds.

#include <algorithm>
#include <cstdio>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include "platform/html/ViewFixture.h"
#include "windows/message/editor_stage.h"

using namespace testing_support;

namespace {

/// Follows the turns of the event loop and the hourglass.
class Watch {
  public:
    Watch() {
        m_clock.start();
        QObject::connect(&m_tick, &QTimer::timeout, [this] { turn(); });
        m_tick.start(5);
    }

    void begin() {
        turn();
        m_wait = m_turn = 0;
    }
    void turn() {
        const double now = ms();
        if (!m_hourglass) m_wait = std::max(m_wait, now - m_bare);
        m_turn = std::max(m_turn, now - m_last);
        m_last = m_bare = now;
    }
    void hourglass(bool on) {
        const double now = ms();
        if (on && !m_hourglass) m_wait = std::max(m_wait, now - m_bare);
        if (!on) m_bare = now;
        m_hourglass = on;
    }
    double wait() const { return m_wait; }
    double longestTurn() const { return m_turn; }

  private:
    double ms() const { return static_cast<double>(m_clock.nsecsElapsed()) / 1e6; }

    QElapsedTimer m_clock;
    QTimer m_tick;
    bool m_hourglass = false;
    double m_last = 0;
    double m_bare = 0;  ///< since when there is no hourglass
    double m_wait = 0;
    double m_turn = 0;
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
    std::printf("{\"name\": \"%s\", \"wait\": %.1f, \"turn\": %.1f}\n", name, watch->wait(),
                watch->longestTurn());
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

void playLists(const QString& file) {
    StoreStage stage;
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
}

}  // namespace

// Replace the toolkit's two routines of the pointer at link time.
extern "C" {
void __real__Z15PuntatoreAttesav();
void __real__Z20PuntatorePredefinitov();
void __wrap__Z15PuntatoreAttesav() {
    __real__Z15PuntatoreAttesav();
    if (watch) watch->hourglass(true);
}
void __wrap__Z20PuntatorePredefinitov() {
    if (watch) watch->hourglass(false);
    __real__Z20PuntatorePredefinitov();
}
}

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3) qFatal("play_waits --editor SIZE | --lists FILE");
    Watch following;
    watch = &following;
    if (qstrcmp(argv[1], "--editor") == 0)
        playEditor(QByteArray(argv[2]).toLongLong());
    else
        playLists(QString::fromLocal8Bit(argv[2]));
    std::_Exit(0);
}
