// SPDX-License-Identifier: GPL-3.0-or-later
// The rescue copy of the document: when it is written, when it goes away, how it is offered.
#include <algorithm>
#include <QLocale>
#include <QPointer>
#include <utility>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "platform/html/HtmlDocument.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PaintedWork.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/message/frmEditor.h"

void frmEditor::CollegaCopia() {
    tempoCopia.setObjectName("tempoCopia");
    tempoCopia.setSingleShot(true);
    connect(&tempoCopia, &QTimer::timeout, this, [this] { ScriviCopia(); });
    connect(DHTML, &HtmlView::followed, this, [this] { DocumentoMutato(); });
    connect(barre, &ui::CommandBars::textEdited, this, [this] { DocumentoMutato(); });
    connect(CODE, &ui::SourceEdit::textChanged, this, [this] {
        if (tb->currentIndex() == Origine && !scriveOrigine) DocumentoMutato();
    });
    PrimaDellaFine([questo = QPointer(this)] {
        if (questo && questo->copiaDovuta) questo->ScriviCopia();
    });
}

void frmEditor::DocumentoMutato() {
    if (rinunciato) return;
    if (!std::exchange(copiaDovuta, true)) primaMutazione.start();
    tempoCopia.start(
        AttesaCopia(std::max(DHTML->knownHTML().size(), CODE->length()), primaMutazione.elapsed()));
}

MessaggioRecuperato frmEditor::DaRecuperare(const QString& corpo) {
    const MessaggioMss testata = Testata();
    MessaggioRecuperato messaggio{titoloFile.mid(1).chopped(IsModificato() ? 2 : 1),
                                  testata.Oggetto,
                                  testata.Priorita,
                                  testata.Allegati,
                                  corpo,
                                  {},
                                  estraneo,
                                  propri};
    if (tb->currentIndex() != Origine) return messaggio;
    const QString origine = CODE->Text();
    if (origine == corpo) return messaggio;
    HtmlDocument spostata;
    const bool spostabile = ui::painted([&] { return spostata.setDocumentHTML(origine).ok(); });
    if (!spostabile || spostata.documentHTML() != corpo) messaggio.Origine = origine;
    return messaggio;
}

/// Writes what is known of the document without waiting for the browser: a copy must not stop the user.
void frmEditor::ScriviCopia() {
    tempoCopia.stop();
    copiaDovuta = false;
    const MessaggioRecuperato messaggio = DaRecuperare(DHTML->knownHTML());
    // The last change before a save may become known after it.
    if (messaggio == salvato) return copia.Togli();
    Prosegui prosegui;
    prosegui([&] { inDisparte([&] { copia.Scrivi(messaggio); }); });
}

void frmEditor::CopiaPrimaDiScrivere(const QString& corpo) {
    Prosegui prosegui;
    prosegui([&] {
        const MessaggioRecuperato messaggio = DaRecuperare(corpo);
        inDisparte([&] { copia.Scrivi(messaggio); });
    });
}

/// The file contains all of the copy, unless a text of the source view was not taken over yet.
void frmEditor::CopiaDopoScrittura(const QString& corpo) {
    tempoCopia.stop();
    copiaDovuta = false;
    MessaggioRecuperato scritto = DaRecuperare(corpo);
    const bool tutto = !std::exchange(scritto.Origine, std::nullopt);
    salvato = std::move(scritto);
    if (tutto) copia.Togli();
}

void frmEditor::ButtaCopia() {
    rinunciato = true;
    tempoCopia.stop();
    copiaDovuta = false;
    copia.Togli();
}

/// The document is replaced. Its unsaved changes stay in its copy, which is not offered before this program
/// has ended.
void frmEditor::LasciaCopia() {
    static_cast<void>(DHTML->documentHTML());  // takes in the last change, if it can be had
    if (copiaDovuta) ScriviCopia();
    if (copia.Esiste()) lasciate.push_back(std::exchange(copia, CopiaRecupero()));
    salvato.reset();
    rinunciato = false;
}

bool frmEditor::OffriRecupero() {
    QStringList danneggiate;
    std::vector<CopiaTrovata> trovate = CopiaTrovata::Cerca(danneggiate);
    for (const QString& copiaDanneggiata : std::as_const(danneggiate))
        ui::MessageDialog::show(
            Words::tr("Una copia di recupero è danneggiata e non si può leggere.\r\nIl file resta in ") +
                copiaDanneggiata,
            ui::MessageDialog::Notice, Words::tr("Attenzione"));
    for (CopiaTrovata& trovata : trovate) {
        const MessaggioRecuperato& messaggio = trovata.Messaggio();
        const int risposta = ui::MessageDialog::show(
            Words::tr("Il messaggio %1 non è stato salvato prima della fine del programma.\r\nOggetto: %2\r\n"
                      "Ultima modifica: %3\r\nVuoi recuperarlo?")
                .arg(messaggio.titolo, messaggio.Oggetto,
                     QLocale().toString(trovata.Quando(), QLocale::ShortFormat)),
            ui::MessageDialog::AskNotice, Words::tr("Attenzione"));
        if (risposta == ui::MessageDialog::Yes) {
            RiprendiCopia(trovata);
            MostraModale();
            return true;
        }
        trovata.MettiDaParte();
    }
    return false;
}

void frmEditor::RiprendiCopia(CopiaTrovata& trovata) {
    const MessaggioRecuperato messaggio = trovata.Messaggio();
    NuovoMessaggio();
    ImpostaTestata(messaggio.Oggetto, messaggio.Priorita);
    for (const QString& percorso : messaggio.Allegati)
        AggiungiAllegato({percorso, NomeDaPercorso(percorso), FileEsiste(percorso)});
    const Status messo = DHTML->setDocumentHTML(messaggio.CorpoHTML);
    static_cast<void>(MostraBody(tb->currentIndex()));
    const bool rifiutato = messo.code() == ErrorCode::Overflow;
    if (messaggio.Origine || rifiutato) {
        tb->setCurrentIndex(Origine);
        CODE->setText(messaggio.Origine.value_or(messaggio.CorpoHTML));
    }
    if (rifiutato) AvvisaVista(messo, Words::tr("Il testo recuperato è nell'origine."));
    fileAperto = false;
    estraneo = messaggio.estraneo;
    propri = messaggio.propri;
    SegnaModificato();
    copia = trovata.Prendi();
}
