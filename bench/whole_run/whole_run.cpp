// SPDX-License-Identifier: GPL-3.0-or-later
// whole_run <port> <messages> <octets> <authority.pem> <key.pem> [shown|paced]: the send window with a
// database of as many selected recipients, in a folder below TMPDIR, runs through them one tick after the
// other: row, placeholders, signature, delivery by TLS to 127.0.0.1, commit. Without "paced" there is no
// pause between the messages; without "shown" the window is not painted. Prints one line of JSON:
// microseconds a message, of the clock and of the processor.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

#include "modules/core/bGlobal.h"
#include "modules/lang/bVAR.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/ProgressCounter.h"
#include "platform/ui/Unattended.h"
#include "support/SampleFolder.h"
#include "windows/core/Evento.h"
#include "windows/send/frmInvia.h"

namespace {

using testing_support::SampleFolder;

double processorSeconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

void copy(const QString& from, const QString& folder, const QString& name) {
    QDir().mkpath(folder);
    if (!QFile::copy(from, folder + '/' + name)) qFatal("cannot copy %s", qPrintable(from));
    QFile::setPermissions(folder + '/' + name, QFile::ReadOwner | QFile::WriteOwner);
}

/// Folder, account, key and message of a run.
void furnish(SampleFolder& folder, quint16 port, int messages, int octets, const QString& authority,
             const QString& key) {
    QList<SampleFolder::Columns> rows;
    for (int i = 0; i < messages; ++i) {
        const QString number = QString("%1").arg(i, 6, 10, QChar('0'));
        rows.append({{"rgs", "Ditta " + number},
                     {"nom", "Rossi " + number},
                     {"email", "rossi" + number + "@cliente.example"},
                     {"loc", "Forlì"},
                     {"ind", "Via della Libertà " + number}});
    }
    folder.addRecipients(rows);
    Account account = SampleFolder::loopbackAccount(port);
    account.txtEmail = "notizie@mittente.example";
    folder.addAccount(account);
    copy(authority, folder.path("data/certificati"), "authority.pem");
    copy(key, folder.path("data/dkim"), "mittente.example.pem");
    QFile selector(folder.path("data/dkim/mittente.example.selector"));
    if (!selector.open(QIODevice::WriteOnly) || selector.write("bench") < 0)
        qFatal("cannot write the selector");
    selector.close();
    selector.setPermissions(QFile::ReadOwner | QFile::WriteOwner);

    QString html = "<html><head><title>Notizie</title></head><body>\n";
    while (html.size() < octets * 85 / 200)
        html += "<p>Gentile :::nom:::, l'offerta di questa settimana vale in ogni negozio.</p>\n";
    MessaggioMss message;
    message.Oggetto = "Notizie per :::nom:::";
    message.CorpoHTML = html + "</body></html>";
    ui::FileDialog::queue(folder.writeMessage("notizie.mss", message));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 6 && argc != 7) {
        std::fprintf(stderr,
                     "whole_run <port> <messages> <octets> <authority.pem> <key.pem> [shown|paced]\n");
        return 2;
    }
    const QByteArray how(argc == 7 ? argv[6] : "");
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale("it_IT"));
    ui::setUnattended(true);
    sostituisciTermine([](int) { std::_Exit(1); });
    const int messages = std::atoi(argv[2]);
    SampleFolder folder;
    furnish(folder, quint16(std::atoi(argv[1])), messages, std::atoi(argv[3]),
            QString::fromLocal8Bit(argv[4]), QString::fromLocal8Bit(argv[5]));
    bVAR::goSecondi = "secondi";

    frmInvia window([] {});
    window.complete();
    window.SetPrgBar();
    window.CaricaDati();
    if (how == "shown") window.show();
    window.findChild<QPushButton*>("cmdFile")->click();
    auto* const start = window.findChild<QPushButton*>("cmdInvia");
    auto* const timer = window.findChild<QTimer*>("tmr");
    double before = 0;
    QElapsedTimer
        clock;  // from the first delivery on: the peer does not measure opening the connection either
    auto* const smtp = window.findChild<mail::DeliveryControl*>("SMTP");
    QObject::connect(smtp, &mail::DeliveryControl::SendDone, &window, [&] {
        if (clock.isValid()) return;
        before = processorSeconds();
        clock.start();
    });
    start->click();
    if (how != "paced") timer->setInterval(0);
    while (!start->isEnabled() || timer->isActive())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    const double used = processorSeconds() - before;
    const double delivered = window.findChild<ui::ProgressCounter*>("prgInviate")->value();
    if (int(delivered) != messages) {
        std::fprintf(stderr, "%d of %d were delivered\n", int(delivered), messages);
        return 1;
    }
    std::printf("{\"microseconds\": %.1f, \"processorMicroseconds\": %.1f}\n", seconds * 1e6 / (messages - 1),
                used * 1e6 / (messages - 1));
    std::fflush(stdout);
    return 0;
}
