// SPDX-License-Identifier: GPL-3.0-or-later
// What the design view leaves to windows: image, link, properties of an element, search.
#include "modules/message/variabili.h"
#include "platform/mail/LocalImages.h"
#include "platform/ui/ElementDialog.h"
#include "platform/ui/FindDialog.h"
#include "platform/ui/ImageDialog.h"
#include "platform/ui/LinkDialog.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"
#include "windows/message/frmEditor.h"

void frmEditor::DialogoImmagine() {
    const auto scelta = DHTML->selectedImage();
    if (!Riuscita(scelta.status())) return;
    ui::ImageDialog dialogo(this, scelta.value().value_or(HtmlView::ImageInfo()));
    if (dialogo.exec() == QDialog::Accepted) {
        const QString percorso = mail::localImagePath(dialogo.image().source.toUtf8());
        const bool nuova = !scelta.value() || dialogo.image().source != scelta.value()->source;
        if (nuova && !percorso.isEmpty()) propri << percorso;
        Riuscita(DHTML->insertImage(dialogo.image()).status());
    }
    DHTML->setFocus();
}

void frmEditor::DialogoCollegamento() {
    ui::LinkDialog::Offers variabili;
    for (const Variabile& variabile : VariabiliMessaggio())
        variabili.emplace_back(variabile.didascalia, variabile.testo);
    const auto collegamento = DHTML->link();
    const auto testo = DHTML->selectedText();
    const auto immagine = DHTML->selectedImage();
    if (!Riuscita(collegamento.status()) || !Riuscita(testo.status()) || !Riuscita(immagine.status())) return;
    const bool conTesto =
        collegamento.value().address.isEmpty() && testo.value().isEmpty() && !immagine.value();
    ui::LinkDialog dialogo(this, collegamento.value(), conTesto, variabili);
    if (dialogo.exec() == QDialog::Accepted)
        Riuscita(DHTML->setLink(dialogo.link(), dialogo.text()).status());
    DHTML->setFocus();
}

void frmEditor::DialogoProprietaElemento() {
    const auto elementi = DHTML->elementsAtCaret();
    if (!Riuscita(elementi.status()) || elementi.value().isEmpty()) return;
    ui::ElementDialog dialogo(this, elementi.value());
    if (dialogo.exec() == QDialog::Accepted)
        for (const auto& [livello, attributi] : dialogo.changes())
            if (!Riuscita(DHTML->setElementAttributes(livello, attributi).status())) break;
    DHTML->setFocus();
}

void frmEditor::Trova() {
    if (!ricerca)
        ricerca = new ui::FindDialog(
            this, [this](const QString& testo, bool maiuscole, bool indietro) -> Result<bool> {
                if (tb->currentIndex() == Origine) return CODE->find(testo, maiuscole, indietro);
                const unsigned opzioni = (maiuscole ? HtmlView::FindCaseSensitive : 0U) |
                                         (indietro ? HtmlView::FindBackwards : 0U);
                Result<bool> trovato = DHTML->find(testo, opzioni);
                Riuscita(trovato.status());
                return trovato;
            });
    ricerca->present();
}
