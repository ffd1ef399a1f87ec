// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the send window over a program folder made by demo_make, as demo_send plays it, but with a short
// message and, unless the real timer is asked for, each tick right after the other.
//
//     torture_send_run FOLDER TIMER EVERY
//
// TIMER is "real" or "none". After each EVERY recipients one line says how many are done, the milliseconds
// since the one before, the memory in KiB and the open descriptors.
#include <cstdio>
#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include "controls.h"
#include "modules/message/MessaggioMss.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/ProgressCounter.h"
#include "unattended.h"
#include "windows/entry/Finestre.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmMain.h"

namespace {

QString writeMessage(const QString& folder) {
    MessaggioMss message;
    message.Oggetto = ":::nom:::, le novità per :::rgs:::";
    message.Priorita = "NR";
    message.CorpoHTML = "<html><body><p>Gentile :::nom:::,</p><p>le novità del mese.</p></body></html>";
    const QString path = folder + "/breve.mss";
    ScriviMessaggio(path, message);
    return path;
}

long memoryKiB() {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').first().toLong();
    return 0;
}

void tellState(int done, qint64 milliseconds) {
    std::printf("%d %lld %ld %lld\n", done, static_cast<long long>(milliseconds), memoryKiB(),
                static_cast<long long>(QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size()));
    std::fflush(stdout);
}

void runOnce(const QString& message, bool realTimer, int every) {
    frmInvia& window = finestre::Invia();
    if (!window.isVisible()) qFatal("the send window is not open");
    ui::FileDialog::queue(message);
    click(window, "cmdFile");
    ui::MessageDialog::queue(ui::MessageDialog::Yes);  // to the question about a message from elsewhere
    click(window, "cmdInvia");
    if (!realTimer) find<QTimer>(window, "tmr")->setInterval(0);
    auto* start = find<QAbstractButton>(window, "cmdInvia");
    auto* left = find<ui::ProgressCounter>(window, "prgDaInviare");
    const int all = static_cast<int>(left->maximum());
    int told = 0;
    QElapsedTimer clock;
    clock.start();
    while (!start->isEnabled()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        const int done = all - static_cast<int>(left->value());
        if (done < told + every) continue;
        tellState(done, clock.restart());
        told = done;
    }
    click(window, "cmdChiudi");
}

}  // namespace

int main(int argc, char** argv) {
    return runUnattended(argc, argv, "torture_send_run FOLDER TIMER EVERY", [](const QStringList& arguments) {
        const QString message = writeMessage(arguments[0]);
        const bool realTimer = arguments[1] == "real";
        auto* command = finestre::Main().findChild<QAction*>("cmdInvia");
        if (!command) qFatal("the main window has no command cmdInvia");
        QTimer::singleShot(0, [&] { runOnce(message, realTimer, arguments[2].toInt()); });
        command->trigger();
    });
}
