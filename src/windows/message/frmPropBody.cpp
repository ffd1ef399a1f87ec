// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/message/frmPropBody.h"

#include <array>
#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>

#include "modules/core/bFunctions.h"
#include "platform/html/HtmlView.h"
#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PropertyList.h"
#include "platform/ui/SourceEdit.h"
#include "windows/core/bTheme.h"
#include "windows/core/Evento.h"
#include "windows/core/SchedaProprieta.h"

namespace {

struct Attributo {
    const char* chiave;  ///< of the item in the list
    const char* nome;    ///< of the body element
};

constexpr std::array margini{
    Attributo{"Sinistra", "leftmargin"},
    Attributo{"Superiore", "topmargin"},
    Attributo{"Larghezza", "marginwidth"},
    Attributo{"Altezza", "marginheight"},
};

struct ColorePagina {
    const char* chiave;
    HtmlView::PageColor quale;
};

constexpr std::array colori{
    ColorePagina{"Sfondo", HtmlView::PageColor::Background},
    ColorePagina{"Testo", HtmlView::PageColor::Text},
    ColorePagina{"Link", HtmlView::PageColor::Link},
    ColorePagina{"LinkAttivi", HtmlView::PageColor::ActiveLink},
    ColorePagina{"LinkVisitati", HtmlView::PageColor::VisitedLink},
};

constexpr Attributo sfondo{"Immaginedisfondo", "background"};

}  // namespace

frmPropBody::frmPropBody(HtmlView& vista, ui::SourceEdit& origine, QWidget* parent)
    : LateDialog(parent), DHTML(vista), CODE(origine) {
    RilevaTema(this);
    setObjectName("frmPropBody");
    setWindowTitle("Proprietà messaggio");
}

void frmPropBody::makeControls() {
    lbl = ui::named(new QLabel("Proprietà messaggio", this), "lbl");
    prp = ui::named(new ui::PropertyList(this), "prp");
    cdmSalva = ui::commandButton("&Salva", "cdmSalva", this);
    cmdAnnulla = ui::commandButton("&Annulla", "cmdAnnulla", this);
    prp->focusProxy()->setAccessibleName(Words::tr("Proprietà del messaggio"));
    lbl->setBuddy(prp);
    prp->addGroup("Margini pagina", "Margini pagina");
    prp->addText("Sinistra", "Sinistra", Words::tr("Margine sinistro della pagina, in pixel"));
    prp->addText("Superiore", "Superiore", Words::tr("Margine superiore della pagina, in pixel"));
    prp->addText("Larghezza", "Larghezza",
                 Words::tr("Margine orizzontale per altri programmi di posta, in pixel"));
    prp->addText("Altezza", "Altezza", Words::tr("Margine verticale per altri programmi di posta, in pixel"));
    prp->addGroup("Colori", "Colori");
    prp->addColour("Sfondo", "Sfondo", Words::tr("Colore di sfondo della pagina"));
    prp->addColour("Testo", "Testo", Words::tr("Colore del testo"));
    prp->addColour("Link", "Link", Words::tr("Colore dei collegamenti"));
    prp->addColour("LinkAttivi", "Link attivi", Words::tr("Colore dei collegamenti mentre si premono"));
    prp->addColour("LinkVisitati", "Link visitati", Words::tr("Colore dei collegamenti già visitati"));
    prp->addGroup("Immagini", "Immagini");
    prp->addText(sfondo.chiave, "Immagine di sfondo",
                 Words::tr("Percorso o indirizzo dell'immagine di sfondo"));
    DisponiScheda(*this, {lbl, prp, cdmSalva, cmdAnnulla}, "document-properties");
    alClick(cdmSalva, this, &frmPropBody::cdmSalva_Click);
    alClick(cmdAnnulla, this, &QWidget::hide);
    resize(440, 460);
    ui::setUpDialog(*this);
}

Status frmPropBody::PrendiValori() {
    for (const auto& [chiave, nome] : margini) {
        const Result<QString> valore = DHTML.bodyAttribute(nome);
        if (!valore.ok()) return valore.status();
        prp->Item(chiave)->setValue(valore.value());
    }
    for (const auto& [chiave, quale] : colori) {
        const Result<QString> valore = DHTML.pageColor(quale);
        if (!valore.ok()) return valore.status();
        prp->Item(chiave)->setValue(ColoreDaHex(valore.value()));
    }
    const Result<QString> valore = DHTML.bodyAttribute(sfondo.nome);
    if (!valore.ok()) return valore.status();
    prp->Item(sfondo.chiave)->setValue(valore.value());
    return {};
}

/// Ends at the first call that the design view does not answer.
Status frmPropBody::Scrivi() {
    for (const char* margine : {"leftmargin", "topmargin"})
        if (Status tolto = DHTML.removeBodyAttribute(margine); !tolto.ok()) return tolto;
    for (const auto& [chiave, nome] : margini)
        if (Status messo = DHTML.setBodyAttribute(nome, prp->Item(chiave)->Value().toString()); !messo.ok())
            return messo;
    for (const auto& [chiave, quale] : colori)
        if (Status messo = DHTML.setPageColor(quale, HexDaColore(prp->Item(chiave)->Value().toUInt()));
            !messo.ok())
            return messo;
    const QString immagine = prp->Item(sfondo.chiave)->Value().toString();
    if (Status messo = DHTML.setBodyAttribute(sfondo.nome, immagine); !messo.ok()) return messo;
    const Result<QString> corpo = DHTML.documentHTML();
    if (!corpo.ok()) return corpo.status();
    CODE.setText(corpo.value());
    static_cast<void>(DHTML.setDocumentHTML(CODE.Text()));
    DHTML.update();
    return {};
}

void frmPropBody::cdmSalva_Click() {
    const Status scritte = Scrivi();
    if (scritte.ok()) return hide();
    ui::MessageDialog::show(scritte.text() + "\r\n" + Words::tr("Riprova fra qualche istante."),
                            ui::MessageDialog::Notice, Words::tr("Attenzione"));
}

void frmPropBody::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmPropBody::showEvent(QShowEvent* mostra) {
    QDialog::showEvent(mostra);
    prp->setFocus();
    prp->setCurrentItem("Sinistra");
}
