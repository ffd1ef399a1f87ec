// SPDX-License-Identifier: GPL-3.0-or-later
// What the buttons of the window do: copy, save, change the selection, delete, switch.
#include <algorithm>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QTableView>

#include "modules/core/bGlobal.h"
#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "platform/system/OutputFile.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/Puntatore.h"
#include "windows/strumenti/EsitiModello.h"
#include "windows/strumenti/frmEsiti.h"

using ui::MessageDialog;

namespace {

void Avvisa(const QString& testo) {
    MessageDialog::show(testo, MessageDialog::Notice, bVAR::Attenzione);
}

bool Chiedi(const QString& testo) {
    return MessageDialog::show(testo, MessageDialog::AskNotice, bVAR::Attenzione, MessageDialog::No) ==
           MessageDialog::Yes;
}

Status Scrivi(const QString& percorso, const QByteArray& byte) {
    QFile file;
    const sys::FileKind tipo = sys::kindByFolder(percorso);
    Status stato = sys::openForWriting(file, percorso, sys::WriteMode::Output, tipo);
    return stato.ok() ? sys::replaceContent(file, percorso, tipo, byte) : stato;
}

}  // namespace

QList<esiti::Riga> frmEsiti::Mostrate() const {
    QList<esiti::Riga> righe;
    righe.reserve(filtro->rowCount());
    for (int riga = 0; riga < filtro->rowCount(); ++riga)
        righe.append(modello->Righe()[filtro->mapToSource(filtro->index(riga, 0)).row()]);
    return righe;
}

QList<esiti::Riga> frmEsiti::Scelte() const {
    const QModelIndexList segnate = tabella->selectionModel()->selectedRows();
    if (segnate.size() < 2) return Mostrate();
    QList<int> numeri;
    for (const QModelIndex& una : segnate)
        numeri.append(una.row());
    std::ranges::sort(numeri);
    QList<esiti::Riga> righe;
    for (const int riga : numeri)
        righe.append(modello->Righe()[filtro->mapToSource(filtro->index(riga, 0)).row()]);
    return righe;
}

void frmEsiti::cmdCopia_Click() {
    QGuiApplication::clipboard()->setText(esiti::Tabella(Scelte()));
}

void frmEsiti::cmdSalva_Click() {
    const auto percorso = ui::FileDialog::save(Words::tr("Salva l'esito dell'invio"),
                                               Words::tr("File CSV (*.csv)|*.csv|"), "esito.csv");
    if (!percorso) return;
    const Status scritto = Scrivi(*percorso, esiti::Csv(Mostrate()));
    if (!scritto.ok())
        Avvisa(Words::tr("Il file non si può scrivere:") + "\r\n" + *percorso + "\r\n" + scritto.text());
}

void frmEsiti::cmdSeleziona_Click() {
    const QList<esiti::Riga> righe = Scelte();
    const auto serviti = std::ranges::count_if(
        righe, [](const esiti::Riga& riga) { return riga.esito.kind == mail::OutcomeKind::Delivered; });
    if (serviti > 0 && !Chiedi(Words::tr("%Ln di questi destinatari hanno già ricevuto il messaggio.",
                                         nullptr, static_cast<int>(serviti)) +
                               "\r\n" + Words::tr("Selezionarli tutti lo stesso?")))
        return;
    Cambia(righe, true);
}

void frmEsiti::cmdDeseleziona_Click() {
    const esiti::Inesistenti trovati = esiti::CercaInesistenti(modello->Righe());
    if (trovati.righe.isEmpty())
        return Avvisa(Words::tr("In questo invio nessun indirizzo è risultato inesistente."));
    if (trovati.troppi() &&
        !Chiedi(
            Words::tr("In questo invio %1 destinatari su %2 risultano inesistenti.\r\nQuando sono più della "
                      "metà la causa è spesso un'altra: un server che rifiuta ogni destinatario, o il "
                      "mittente bloccato.\r\nDeselezionarli lo stesso?")
                .arg(text::formatGrouped(double(trovati.righe.size())),
                     text::formatGrouped(double(trovati.destinatari)))))
        return;
    Cambia(trovati.righe, false);
}

void frmEsiti::Cambia(const QList<esiti::Riga>& righe, bool selezionati) {
    esiti::Cambiati cambiati;
    Prosegui prosegui;
    const bool riuscito =
        prosegui([&] { cambiati = inDisparte([&] { return esiti::Seleziona(righe, selezionati); }); });
    if (nodoCorrente) RiempiGriglia();
    if (!riuscito) return Avvisa(Words::tr("La selezione non si può cambiare:") + "\r\n" + prosegui.testo());
    QStringList frasi;
    frasi << (selezionati ? Words::tr("%Ln destinatari sono stati selezionati.", nullptr,
                                      static_cast<int>(cambiati.cambiati))
                          : Words::tr("%Ln destinatari sono stati deselezionati.", nullptr,
                                      static_cast<int>(cambiati.cambiati)));
    if (cambiati.giaCosi > 0)
        frasi << Words::tr("%Ln lo erano già.", nullptr, static_cast<int>(cambiati.giaCosi));
    if (cambiati.nonTrovati > 0)
        frasi << Words::tr("%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.",
                           nullptr, static_cast<int>(cambiati.nonTrovati));
    Avvisa(frasi.join("\r\n"));
}

void frmEsiti::cmdElimina_Click() {
    if (!Chiedi(Words::tr("Eliminare il registro di questo invio?\r\nI destinatari restano come sono.")))
        return;
    const Status tolto = mail::outcomes::remove(cmbInvio->currentData().toString());
    if (!tolto.ok()) Avvisa(tolto.text());
    Carica();
}

void frmEsiti::cmdEliminaTutti_Click() {
    if (!Chiedi(Words::tr("Eliminare il registro di tutti gli invii?\r\nI destinatari restano come sono.")))
        return;
    const Status tolti = mail::outcomes::removeAll(esiti::Cartella());
    if (!tolti.ok()) Avvisa(tolti.text());
    Carica();
}

void frmEsiti::chkRegistro_Click() {
    const Status stato = esiti::Accendi(chkRegistro->isChecked());
    if (!stato.ok()) Avvisa(stato.text());
    chkRegistro->setChecked(esiti::Acceso());
}
