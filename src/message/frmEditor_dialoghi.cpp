// What the design view leaves to windows: image, link, properties of an element, search.
#include "message/frmEditor.h"
#include "message/variabili.h"
#include "platform/ui/ElementDialog.h"
#include "platform/ui/FindDialog.h"
#include "platform/ui/ImageDialog.h"
#include "platform/ui/LinkDialog.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"

void frmEditor::DialogoImmagine() {
    ui::ImageDialog dialogo(this, DHTML->selectedImage().value_or(HtmlView::ImageInfo()));
    if (dialogo.exec() == QDialog::Accepted) DHTML->insertImage(dialogo.image());
    DHTML->setFocus();
}

void frmEditor::DialogoCollegamento() {
    ui::LinkDialog::Offers variabili;
    for (const Variabile& variabile : variabiliMessaggio)
        variabili.emplace_back(variabile.didascalia, variabile.testo);
    const QString indirizzo = DHTML->linkAddress();
    const bool conTesto = indirizzo.isEmpty() && DHTML->selectedText().isEmpty() && !DHTML->selectedImage();
    ui::LinkDialog dialogo(this, indirizzo, conTesto, variabili);
    if (dialogo.exec() == QDialog::Accepted) DHTML->setLink(dialogo.address(), dialogo.text());
    DHTML->setFocus();
}

void frmEditor::DialogoProprietaElemento() {
    const QList<HtmlView::Element> elementi = DHTML->elementsAtCaret();
    if (elementi.isEmpty()) return;
    ui::ElementDialog dialogo(this, elementi);
    if (dialogo.exec() == QDialog::Accepted)
        for (const auto& [livello, attributi] : dialogo.changes())
            DHTML->setElementAttributes(livello, attributi);
    DHTML->setFocus();
}

void frmEditor::Trova() {
    if (!ricerca)
        ricerca = new ui::FindDialog(this, [this](const QString& testo, bool maiuscole, bool indietro) {
            if (tb->currentIndex() == Origine) return CODE->find(testo, maiuscole, indietro);
            const unsigned opzioni =
                (maiuscole ? HtmlView::FindCaseSensitive : 0U) | (indietro ? HtmlView::FindBackwards : 0U);
            return DHTML->find(testo, opzioni);
        });
    ricerca->present();
}
