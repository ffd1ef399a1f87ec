// SPDX-License-Identifier: GPL-3.0-or-later
// What the three views and the tabs report, and the state of the tools that follows from it.
#include <initializer_list>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QUrl>

#include "platform/mail/LocalImages.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/PaintedWork.h"
#include "platform/ui/TabStrip.h"
#include "windows/core/Evento.h"
#include "windows/core/Puntatore.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmEditor_comandi.h"

namespace {

const QString fontPredefinito = QStringLiteral("Verdana");

void AvvisaLasciatiFuori(const QStringList& indirizzi) {
    constexpr qsizetype mostrati = 5;
    QString testo = Words::tr(
        "Il testo incollato nominava file di questo computer, che sarebbero partiti con il messaggio. "
        "Sono stati lasciati fuori:");
    for (const QString& indirizzo : indirizzi.first(qMin(mostrati, indirizzi.size())))
        testo += "\r\n" + QUrl(indirizzo).toDisplayString().left(200);
    if (indirizzi.size() > mostrati)
        testo += "\r\n" + Words::tr("e altri %n", nullptr, static_cast<int>(indirizzi.size() - mostrati));
    testo += "\r\n" + Words::tr("Per mettere un'immagine nel messaggio usa \"Inserisci immagine\".");
    ui::MessageDialog::show(testo, ui::MessageDialog::Notice, Words::tr("Attenzione"));
}

/// The remote content that readers of the message will load, by the hosts that then learn of it.
QString RestaSulWeb(const QStringList& indirizzi) {
    constexpr qsizetype mostrati = 3;
    QStringList siti;
    for (const QString& indirizzo : indirizzi)
        siti << QUrl(indirizzo.trimmed()).host();
    siti.removeAll(QString());
    siti.removeDuplicates();
    const QString elenco = siti.first(qMin(mostrati, siti.size())).join(", ");
    const QString testo = Words::tr("Nel testo incollato %n elementi restano sul web", nullptr,
                                    static_cast<int>(indirizzi.size()));
    return elenco.isEmpty() ? testo : testo + ": " + elenco;
}

}  // namespace

void frmEditor::CollegaViste() {
    const auto quando = [this](auto* mittente, auto segnale, auto&& fai) {
        connect(mittente, segnale, this,
                [fai](const auto&... argomenti) { evento([&] { fai(argomenti...); }); });
    };
    for (HtmlView* vista : {DHTML, WEB}) {
        vista->setDefaultFont(fontPredefinito);
        vista->setLongWork(ui::paintWhile);
    }
    setTabOrder(barre->GetEdit("txtOggetto")->focusProxy(), DHTML);
    setTabOrder(DHTML, tb->tabBar());
    quando(DHTML, &HtmlView::documentComplete, [this] {
        static_cast<void>(DHTML->execCommand(HtmlView::SetFontName, fontPredefinito));
        static_cast<void>(DHTML->execCommand(HtmlView::SetFontSize, "2"));
    });
    quando(DHTML, &HtmlView::displayChanged, [this] {
        if (tb->currentIndex() == Modifica) AggiornaStatoDesign();
    });
    quando(DHTML, &HtmlView::keyReleased, [this] { SegnaModificato(); });
    quando(DHTML, &HtmlView::dropped, [this] { SegnaModificato(); });
    quando(DHTML, &HtmlView::filesInserted, [this](const QStringList& indirizzi) {
        for (const QString& indirizzo : indirizzi)
            propri << mail::localImagePath(indirizzo.toUtf8());
    });
    quando(DHTML, &HtmlView::leftOut, [](const QStringList& indirizzi) { AvvisaLasciatiFuori(indirizzi); });
    quando(DHTML, &HtmlView::staysOnTheWeb, [this](const QStringList& indirizzi) {
        barre->GetStatic("stcHelp")->setText(RestaSulWeb(indirizzi));
    });
    quando(DHTML, &HtmlView::refused,
           [this](const QString& motivo) { barre->GetStatic("stcHelp")->setText(motivo); });
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

/// Signals of the views during their destruction reach no editor.
frmEditor::~frmEditor() {
    for (QObject* mittente : std::initializer_list<QObject*>{DHTML, WEB, CODE, tb})
        mittente->disconnect(this);
}

void frmEditor::MenuModifica(const QPoint& punto) {
    barre->showPopup("popModifica", punto);
}

void frmEditor::MostraSchedaInStato() {
    barre->GetStatic("stcHelp")->setText("Mod. " + tb->TabCaption(tb->currentIndex()));
}

void frmEditor::CambiaScheda(int da, int a) {
    if (tornaIndietro) return;
    if (const Status spostato = conAttesa([&] { return SpostaBody(da, a); }); !spostato.ok()) {
        {
            const QScopedValueRollback indietro(tornaIndietro, true);
            tb->setCurrentIndex(da);
        }
        return AvvisaVista(spostato,
                           spostato.code() == ErrorCode::Overflow
                               ? Words::tr("Il testo resta nell'origine, il messaggio è quello di prima.")
                               : Words::tr("Riprova fra qualche istante."));
    }
    ImpostaBarre(a == Modifica);
    if (a == Modifica) AggiornaStatoDesign();
    if (a == Origine) AggiornaStatoCodice();
    if (!tb->tabBar()->hasFocus()) tb->currentWidget()->setFocus();
}

/// Fails, with every view as it was, where the design view does not answer or refuses the text.
Status frmEditor::SpostaBody(int da, int a) {
    if (da == Modifica) return MostraBody(a);
    if (da != Origine) return {};
    if (Status pronta = DHTML->responds(); !pronta.ok()) return pronta;
    const QString testo = CODE->Text();
    if (Status messo = DHTML->setDocumentHTML(testo); !messo.ok()) return messo;
    if (a == Anteprima) static_cast<void>(WEB->setDocumentHTML(testo));
    return {};
}

/// Passes the body of the design view to the view of another tab.
Status frmEditor::MostraBody(int scheda) {
    if (scheda == Modifica) return {};
    const Result<QString> corpo = DHTML->documentHTML();
    if (!corpo.ok()) return corpo.status();
    if (scheda == Anteprima) {
        // A missing answer does not prevent the change of tab; a body too large to be shown does.
        Status mostrato = WEB->setDocumentHTML(corpo.value());
        if (mostrato.code() == ErrorCode::Overflow) return mostrato;
    }
    ScriviOrigine(corpo.value());
    return {};
}

void frmEditor::ScriviOrigine(const QString& testo) {
    const QScopedValueRollback scrive(scriveOrigine, true);
    CODE->setText(testo);
}

/// False, with the reason in the status bar, where a call of the design view failed.
bool frmEditor::Riuscita(const Status& stato) {
    if (!stato.ok()) barre->GetStatic("stcHelp")->setText(stato.text());
    return stato.ok();
}

void frmEditor::AvvisaVista(const Status& stato, const QString& seguito) {
    ui::MessageDialog::show(stato.text() + "\r\n" + seguito, ui::MessageDialog::Notice,
                            Words::tr("Attenzione"));
}

void frmEditor::AggiornaStatoDesign() {
    barre->GetComboBox("cmbFontName")->setText(DHTML->queryFontName());
    barre->GetComboBox("cmbFontSize")->setText(DHTML->queryFontSize());
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
