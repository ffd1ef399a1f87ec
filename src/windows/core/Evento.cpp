// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/Evento.h"

#include <cstdio>
#include <cstdlib>
#include <QApplication>
#include <QWidget>

#include "modules/core/bGlobal.h"
#include "modules/core/Guasti.h"
#include "modules/core/Prodotto.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Notices.h"
#include "platform/text/Words.h"
#include "platform/ui/MessageDialog.h"

namespace {

std::function<void(int)> termineSostituito;
std::function<void()> azioneFinale;
NuovoAvvio nuovoAvvio;
bool fallimentoInMostra = false;

/// The process ends without destructors, and before that may stay for long below the box of a failure.
void salvaPrimaDellaFine() {
    if (azioneFinale) azioneFinale();
    ado::commitAll();
}

}  // namespace

void PrimaDellaFine(std::function<void()> azione) {
    azioneFinale = std::move(azione);
}

void TerminaProgramma(int stato) {
    salvaPrimaDellaFine();
    fallimentoInMostra = false;
    if (termineSostituito) {
        termineSostituito(stato);
        throw ProgrammaTerminato{stato};
    }
    std::fflush(nullptr);
    std::_Exit(stato);
}

void OffriNuovoAvvio(NuovoAvvio offerta) {
    nuovoAvvio = std::move(offerta);
}

void sostituisciTermine(std::function<void(int stato)> termine) {
    termineSostituito = std::move(termine);
}

namespace {

/// What was being done, the file, and what comes now.
QString dettagli(const Fallimento& fallimento) {
    const Circostanze& circostanze = fallimento.circostanze();
    QStringList righe;
    if (!circostanze.operazione.isEmpty())
        righe << Words::tr("Operazione: ") + circostanze.operazione;
    else if (const QWidget* finestra = QApplication::activeWindow())
        righe << Words::tr("Finestra: ") + finestra->windowTitle().trimmed();
    const bool diDatabase = fallimento.numero() >= 3000 && fallimento.numero() < 4000;
    const QString file = circostanze.file.isEmpty() && diDatabase ? percorsoDB : circostanze.file;
    if (!file.isEmpty()) righe << Words::tr("File: ") + file;
    if (!righe.isEmpty()) righe << QString();
    righe << Words::tr("Il programma viene chiuso");
    return righe.join(QStringLiteral("\r\n"));
}

}  // namespace

void mostraEtermina(const Fallimento& fallimento) {
    fallimentoInMostra = true;
    salvaPrimaDellaFine();
    guasti::Annota(fallimento);
    const int risposta = ui::MessageDialog::showFailure(
        Words::tr("Errore %1:\r\n\r\n%2").arg(QString::number(fallimento.numero()), fallimento.testo()),
        dettagli(fallimento), nuovoAvvio.possibile && nuovoAvvio.possibile(), prodotto::nome());
    if (risposta == ui::MessageDialog::Restart) nuovoAvvio.avvia();
    TerminaProgramma();
}

void mostraAvvisi() {
    for (const QString& testo : ado::takeNotices())
        ui::MessageDialog::show(testo, ui::MessageDialog::Notice, Words::tr("Attenzione"));
}

bool accettaEventi() {
    return !fallimentoInMostra;
}
