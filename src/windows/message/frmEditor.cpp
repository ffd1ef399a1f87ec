// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/message/frmEditor.h"

#include <cassert>
#include <QCloseEvent>
#include <QEventLoop>
#include <QTreeWidget>
#include <QWindow>

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/system/ProgramFolder.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogFrame.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/WindowOwner.h"
#include "windows/core/bTheme.h"
#include "windows/message/frmAllegati.h"

namespace {

const QString pagineVuote = QStringLiteral("<HTML>\r\n<BODY>\r\n</BODY>\r\n</HTML>");

QString fileDisposizione() {
    return cartellaDati() + "LayoutEditor.imp";
}

}  // namespace

frmEditor::frmEditor(Vicini intorno, QWidget* parent)
    : QMainWindow(parent),
      DHTML(ui::named(new HtmlView(HtmlView::Mode::Design), "DHTML")),
      CODE(ui::named(new ui::SourceEdit, "CODE")),
      WEB(ui::named(new HtmlView(HtmlView::Mode::Browse), "WEB")),
      tb(ui::named(new ui::TabStrip(this), "tb")),
      vicini(std::move(intorno)),
      barre(new ui::CommandBars(this)),
      pannelli(this) {
    setObjectName("frmEditor");
    setWindowModality(Qt::ApplicationModal);
    ui::withoutCloseButton(*this);
    DHTML->setAccessibleName(Words::tr("Messaggio"));
    CODE->setSpokenName(Words::tr("Origine del messaggio"));
    WEB->setAccessibleName(Words::tr("Anteprima del messaggio"));
    tb->addView(DHTML, "Modifica", "document-edit");
    tb->addView(CODE, "Origine", "text-html");
    tb->addView(WEB, "Anteprima", "view-visible");
    tb->setTabToolTip(Modifica, "Modifica il messaggio");
    tb->setTabToolTip(Origine, "Modifica il codice HTML del messaggio");
    tb->setTabToolTip(Anteprima, "Mostra il messaggio come lo vede il destinatario");
    setCentralWidget(tb);
    CreaComandi();
    CreaMenu();
    CreaBarre();
    CreaTasti();
    pannelli.addPane("dckAllegati", "Allegati", Qt::BottomDockWidgetArea, 120);
    CollegaViste();
    CollegaCopia();
    resize(1000, 680);
}

void frmEditor::Carica() {
    RilevaTema(this);
    // Without a readable layout the bars and panes keep their design.
    static_cast<void>(pannelli.loadLayout(fileDisposizione()));
    vicini.posizione.carica(*this);
    if (sys::programFolderIsNew()) ui::bringIntoReach(*this);
    tb->setColours({coloreTema(9), coloreTema(10), coloreTema(1)});
    tb->setCurrentIndex(Modifica);
    RiempiFont();
    CODE->setFontName("Courier New");
    CODE->setColours({coloreTema(0), coloreTema(20), coloreTema(13), coloreTema(1)});
    NuovoMessaggio();
    auto* allegati = new frmAllegati(*barre);
    pannelli.DockWindows("dckAllegati")->setContent(allegati);
    barre->offerPopup(allegati->LIST, [] { return QStringLiteral("popAllegati"); });
}

void frmEditor::MostraModale() {
    assert(!attesa);
    QEventLoop finoAllaChiusura;
    attesa = &finoAllaChiusura;
    // The browser is of another kind than the other controls: a window that gets it while on the screen
    // is recreated there. A recreated window loses its state, even before it is shown.
    const Qt::WindowStates stato = windowState();
    DHTML->wake();
    winId();
    windowHandle()->setWindowStates(stato);
    show();
    if (parentWidget()) ui::setWindowOwner(*this, *parentWidget());
    barre->GetEdit("txtOggetto")->setFocus();
    finoAllaChiusura.exec();
    attesa = nullptr;
}

frmAllegati& frmEditor::Allegati() {
    QWidget* contenuto = pannelli.DockWindows("dckAllegati")->content();
    if (!contenuto) fallisci(ErrorCode::ItemNotFound);
    return static_cast<frmAllegati&>(*contenuto);
}

// fileAperto and percorsoFile stay: a new document is saved over the file that was opened or saved last.
void frmEditor::NuovoMessaggio() {
    LasciaCopia();
    Prosegui prosegui;
    static_cast<void>(DHTML->setDocumentHTML(pagineVuote));
    ScriviOrigine(pagineVuote);
    static_cast<void>(WEB->setDocumentHTML(pagineVuote));
    titoloFile = "[NuovoFile.mss]";
    barre->GetEdit("txtOggetto")->setText({});
    for (const char* spento : {"cmdPriBassa", "cmdPriAlta", "cmdShowDetails"})
        barre->GetToolButton(spento)->setChecked(0);
    barre->GetToolButton("cmdShowBorder")->setChecked(1);
    DHTML->setShowDetails(false);
    DHTML->setShowBorders(true);
    ImpostaTitolo();
    prosegui([this] { Allegati().ClearList(); });
    estraneo = false;
    propri.clear();
    assert(!IsModificato());
}

void frmEditor::ImpostaTitolo() {
    setWindowTitle("Editor Messaggi - " + titoloFile);
}

void frmEditor::SegnaModificato() {
    if (titoloFile.isEmpty()) return;
    if (!IsModificato()) titoloFile = titoloFile.chopped(1) + "*]";
    ImpostaTitolo();
    assert(IsModificato());
}

bool frmEditor::IsModificato() const {
    return titoloFile.size() > 1 && titoloFile[titoloFile.size() - 2] == '*';
}

void frmEditor::ImpostaBarre(bool attive) {
    for (const char* barra : {"HTML", "Message", "View"})
        barre->setBarEnabled(barra, attive);
}

void frmEditor::ChiudiEditor() {
    vicini.posizione.salva(*this);
    static_cast<void>(pannelli.saveLayout(fileDisposizione()));
    hide();
}

void frmEditor::closeEvent(QCloseEvent* chiusura) {
    chiusura->ignore();
}

void frmEditor::hideEvent(QHideEvent* nascosta) {
    QMainWindow::hideEvent(nascosta);
    if (nascosta->spontaneous()) return;
    // Otherwise the desktop may focus no window, when a question over the editor closed just
    // before it.
    if (parentWidget()) parentWidget()->activateWindow();
    if (attesa) attesa->quit();
}
