// What the three views and the tabs report, and the state of the tools that follows from it.
#include <QTabBar>

#include "core/Evento.h"
#include "message/frmEditor.h"
#include "message/frmEditor_comandi.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/TabStrip.h"

void frmEditor::CollegaViste() {
    const auto quando = [this](auto* mittente, auto segnale, auto&& fai) {
        connect(mittente, segnale, this,
                [fai](const auto&... argomenti) { evento([&] { fai(argomenti...); }); });
    };
    setTabOrder(barre->GetEdit("txtOggetto")->focusProxy(), DHTML);
    setTabOrder(DHTML, tb->tabBar());
    quando(DHTML, &HtmlView::documentComplete, [this] {
        DHTML->execCommand(HtmlView::SetFontName, "Verdana");
        DHTML->execCommand(HtmlView::SetFontSize, "2");
    });
    quando(DHTML, &HtmlView::displayChanged, [this] {
        if (tb->currentIndex() == Modifica) AggiornaStatoDesign();
    });
    quando(DHTML, &HtmlView::keyReleased, [this] { SegnaModificato(); });
    quando(DHTML, &HtmlView::dropped, [this] { SegnaModificato(); });
    quando(DHTML, &HtmlView::validated, [this] {
        // A font is chosen for the document from outside of it, which changes nothing by itself.
        const QWidget* ora = focusWidget();
        if (ora != barre->GetComboBox("cmbFontName") && ora != barre->GetComboBox("cmbFontSize"))
            SegnaModificato();
    });
    quando(DHTML, &HtmlView::contextMenuRequested, [this](const QPoint& punto) { MenuModifica(punto); });
    quando(DHTML, &HtmlView::doubleClicked, [this] { EseguiDesign(HtmlView::Properties); });
    quando(CODE, &ui::SourceEdit::selectionChanged, [this] { AggiornaStatoCodice(); });
    quando(CODE, &ui::SourceEdit::mouseUp, [this] { AggiornaStatoCodice(); });
    quando(CODE, &ui::SourceEdit::contextMenuRequested, [this](const QPoint& punto) { MenuModifica(punto); });
    for (HtmlView* vista : {DHTML, WEB})
        quando(vista, &HtmlView::pointerEntered, [this] { MostraSchedaInStato(); });
    quando(CODE, &ui::SourceEdit::pointerEntered, [this] { MostraSchedaInStato(); });
    quando(tb, &ui::TabStrip::pointerEntered, [this] { MostraSchedaInStato(); });
    quando(tb, &ui::TabStrip::tabChanged, [this](int da, int a) { CambiaScheda(da, a); });
}

void frmEditor::MenuModifica(const QPoint& punto) {
    barre->showPopup("popModifica", punto);
}

void frmEditor::MostraSchedaInStato() {
    barre->GetStatic("stcHelp")->setText("Mod. " + tb->TabCaption(tb->currentIndex()));
}

void frmEditor::CambiaScheda(int da, int a) {
    if (da == Modifica) MostraBody(a);
    if (da == Origine) {
        DHTML->setDocumentHTML(CODE->Text());
        if (a == Anteprima) WEB->setDocumentHTML(CODE->Text());
    }
    ImpostaBarre(a == Modifica);
    if (a == Modifica) AggiornaStatoDesign();
    if (a == Origine) AggiornaStatoCodice();
    if (!tb->tabBar()->hasFocus()) tb->currentWidget()->setFocus();
}

/// Hands the body of the design view to the view of another tab.
void frmEditor::MostraBody(int scheda) {
    if (scheda == Modifica) return;
    const QString corpo = DHTML->documentHTML();
    CODE->setText(corpo);
    if (scheda == Anteprima) WEB->setDocumentHTML(corpo);
}

void frmEditor::AggiornaStatoDesign() {
    barre->GetComboBox("cmbFontName")->setText(DHTML->execCommand(HtmlView::GetFontName).toString());
    barre->GetComboBox("cmbFontSize")->setText(DHTML->execCommand(HtmlView::GetFontSize).toString());
    for (const SoloDesign& comando : comandiDesign) {
        ui::Command& strumento = *barre->GetToolButton(comando.nome);
        if (comando.segue == SoloDesign::Formato)
            strumento.setChecked(DHTML->commandState(comando.numero) ? 1 : 0);
        if (comando.segue == SoloDesign::Tabella)
            strumento.setEnabled(DHTML->queryStatus(comando.numero) == HtmlView::Enabled);
    }
    for (const DueViste& comando : comandiDueViste)
        if (comando.segue)
            barre->GetToolButton(comando.nome)->setEnabled(DHTML->commandEnabled(comando.design));
}

void frmEditor::AggiornaStatoCodice() {
    barre->GetToolButton("cmdTaglia")->setEnabled(CODE->CanCut());
    barre->GetToolButton("cmdCopia")->setEnabled(CODE->CanCopy());
    barre->GetToolButton("cmdIncolla")->setEnabled(CODE->CanPaste());
    barre->GetToolButton("cmdUndo")->setEnabled(CODE->CanUndo());
    barre->GetToolButton("cmdRedo")->setEnabled(CODE->CanRedo());
    barre->GetToolButton("cmdSelezionaTutto")->setEnabled(true);
    for (const SoloDesign& comando : comandiDesign)
        if (comando.segue == SoloDesign::Tabella) barre->GetToolButton(comando.nome)->setEnabled(false);
}
