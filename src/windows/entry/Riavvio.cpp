// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/entry/Riavvio.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <optional>
#include <QFile>
#include <QProcess>
#include <utility>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/core/FileRiavvio.h"
#include "platform/system/Clock.h"
#include "platform/system/OwnProgram.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"
#include "windows/entry/Posizione.h"
#include "windows/message/frmEditor.h"
#include "windows/shell/frmMain.h"
#include "windows/store/frmGruppi.h"

namespace riavvio {

namespace {

// Milliseconds; a loaded machine may take many seconds to end a browser.
constexpr int attesaMassima = 30000;
constexpr qint64 primaOfferta = 10;  // seconds

std::optional<QDateTime> avvio;
bool finestraMostrata = false;
std::function<void()> partenzaSostituita;

fileRiavvio::Raccolto raccolto;

QStringList chiaviAperte() {
    QStringList chiavi;
    if (!nodoCorrente) return chiavi;
    ui::GroupNodeRef nodo = finestre::Main().Gruppi().TREE->Node(nodoCorrente->Key);
    for (; nodo; nodo = nodo->Parent())
        chiavi.prepend(nodo->Key());
    return chiavi;
}

void lascia() {
    const Rettangolo posizione = PosizioneDi(finestre::Main());
    esigi(fileRiavvio::LasciaStato(
        {::getpid(),
         sys::clock().now(),
         {posizione.sinistra, posizione.alto, posizione.larghezza, posizione.altezza, posizione.stato},
         percorsoDB,
         chiaviAperte()}));
}

void parti() {
    QStringList comando = sys::commandOf(sys::programFile());
    const QString programma = comando.takeFirst();
    QProcess::startDetached(programma, comando);
}

void attendiFine(qint64 processo) {
    const int fine = static_cast<int>(::syscall(SYS_pidfd_open, static_cast<pid_t>(processo), 0));
    if (fine < 0) return;  // it has ended
    pollfd attesa{fine, POLLIN, 0};
    ::poll(&attesa, 1, attesaMassima);
    ::close(fine);
}

}  // namespace

void SegnaAvvio() {
    avvio = sys::clock().now();
    finestraMostrata = false;
    OffriNuovoAvvio({Possibile, Avvia});
}

void SegnaFinestra() {
    finestraMostrata = true;
}

bool FinestraMostrata() {
    return finestraMostrata;
}

bool Possibile() {
    return avvio && finestraMostrata && avvio->secsTo(sys::clock().now()) >= primaOfferta;
}

void Avvia() {
    Prosegui prosegui;
    prosegui([] { lascia(); });
    if (partenzaSostituita)
        partenzaSostituita();
    else
        parti();
}

void sostituisciPartenza(std::function<void()> partenza) {
    partenzaSostituita = std::move(partenza);
}

void Raccogli() {
    raccolto = fileRiavvio::Raccogli();
    if (raccolto.stato) attendiFine(raccolto.stato->processo);
}

void RiprendiPosizione() {
    if (!raccolto.stato) return;
    const auto& [sinistra, alto, larghezza, altezza, stato] = raccolto.stato->posizione;
    MettiInPosizione(finestre::Main(), {sinistra, alto, larghezza, altezza, stato});
}

void RiprendiGruppo() {
    if (!raccolto.stato || raccolto.stato->database != percorsoDB) return;
    Prosegui prosegui;
    prosegui([] { finestre::Main().Gruppi().Apri(raccolto.stato->gruppi); });
}

void ApriMessaggio() {
    const QByteArray byte = std::exchange(raccolto.messaggio, QByteArray());
    if (byte.isEmpty()) return;
    const QString percorso = QFile::decodeName(byte);
    if (QFile::encodeName(percorso) != byte) {
        ui::MessageDialog::show(
            Words::tr("Il nome di questo file contiene caratteri sconosciuti, rinominalo:\r\n%1")
                .arg(percorso),
            ui::MessageDialog::Notice, Words::tr("Attenzione"));
        return;
    }
    frmEditor& editor = finestre::Editor();
    editor.NuovoMessaggio();
    editor.LeggiMessaggio(percorso);
    editor.MostraModale();
}

}  // namespace riavvio
