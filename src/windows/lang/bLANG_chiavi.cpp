// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/lang/bLANG_chiavi.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>

#include "modules/core/Fallimento.h"
#include "modules/import/campi.h"
#include "modules/lang/bVAR_elenco.h"
#include "platform/ui/Controls.h"
#include "platform/ui/LateDialog.h"
#include "platform/ui/PropertyList.h"
#include "windows/lang/bLANG_chiavi_barre.h"
#include "windows/lang/bLANG_finestre.h"

namespace {

using bLANG::Chiavi;
using bLANG::FinestreTradotte;
using Istanza = std::function<ui::LateDialog&()>;

/// A window, how it is reached, and its controls that have a caption.
struct Finestra {
    const char* nome;
    Istanza FinestreTradotte::*istanza;
    bool conTitolo;  ///< whether the window's own caption has a key
    std::initializer_list<const char*> didascalie;
    bool conCampi = false;  ///< the labels of the 19 boxes, and the name of a new group
};

const Finestra finestreTradotte[] = {
    {"frmAccount",
     &FinestreTradotte::Account,
     true,
     {"lbl(0)",       "lbl(1)",      "lbl(2)",    "lbl(3)",   "lbl(4)",      "lbl(5)",    "lbl(6)",
      "lbl(7)",       "lbl(8)",      "lbl(9)",    "lbl(10)",  "lbl(11)",     "lbl(12)",   "chkUsaSMTP",
      "chkAutentick", "chkAvanzate", "cmdChiudi", "cmdNuovo", "cmdModifica", "mnuElimina"}},
    {"frmInvia",
     &FinestreTradotte::Invia,
     true,
     {"lblFile", "lblMittente", "lblPausa", "lblTimeOut", "lblDaInviare", "lblFallite", "lblInviate",
      "chkLog", "chkBlocco", "lblBlocco1", "lblBlocco2", "cmdChiudi", "cmdFerma", "cmdInvia"}},
    {"frmPropBody", &FinestreTradotte::PropBody, true, {"lbl", "cmdAnnulla", "cdmSalva"}},
    {"frmDestinatario", &FinestreTradotte::Destinatario, false, {"cmdAnnulla", "cdmSalva"}},
    {"frmScelta", &FinestreTradotte::Scelta, true, {"lbl", "opt(0)", "opt(1)", "cmdOK", "cmdAnnulla"}},
    {"frmImpDB",
     &FinestreTradotte::ImpDB,
     true,
     {"lbl(0)", "lbl(1)", "lbl(2)", "lbl(3)", "opt(0)", "opt(1)", "cmdSfoglia", "cmdApri", "cmdImportaDB",
      "cmdChiudi"},
     true},
    {"frmImpTXT",
     &FinestreTradotte::ImpTXT,
     true,
     {"lbl(0)", "lbl(1)", "lbl(2)", "opt(0)", "opt(1)", "cmdSfoglia", "cmdImportaTXT", "cmdChiudi"},
     true},
};

/// Sets the caption. The name for assistive programs follows, of the control itself or of the one that a
/// label belongs to, where it was the caption.
template <class Controllo>
void impostaDidascalia(Controllo& controllo, QWidget* nominato, const QString& testo) {
    const bool segue = nominato && nominato->accessibleName() == ui::spokenCaption(controllo.text());
    controllo.setText(testo);
    if (segue) nominato->setAccessibleName(ui::spokenCaption(testo));
}

void impostaDidascalia(QWidget& finestra, const QString& nome, const QString& testo) {
    if (auto* pulsante = finestra.findChild<QAbstractButton*>(nome))
        impostaDidascalia(*pulsante, pulsante, testo);
    else if (auto* etichetta = finestra.findChild<QLabel*>(nome))
        impostaDidascalia(*etichetta, etichetta->buddy(), testo);
    else if (auto* voce = finestra.findChild<QAction*>(nome))
        voce->setText(testo);
    else
        fallisci(ErrorCode::ItemNotFound);
}

/// The setter of a control's text: the window is made at once, the text waits for the control.
template <class Opera>
auto assegnazione(const Istanza& istanza, const Opera& opera) {
    return [istanza, opera](const QString& testo) {
        ui::LateDialog& finestra = istanza();
        finestra.whenComplete([&finestra, opera, testo] { opera(finestra, testo); });
    };
}

void aggiungiVariabili(Chiavi& chiavi) {
    for (const bVAR::Testo& variabile : bVAR::elenco)
        chiavi[QStringLiteral("bVAR.%1").arg(variabile.nome)] = [variabile](const QString& testo) {
            *variabile.testo = testo;
        };
}

void aggiungiDidascalia(Chiavi& chiavi, const Finestra& finestra, const Istanza& istanza,
                        const QString& nome) {
    chiavi[QStringLiteral("%1.%2.Caption").arg(finestra.nome, nome)] = assegnazione(
        istanza, [nome](ui::LateDialog& suo, const QString& testo) { impostaDidascalia(suo, nome, testo); });
}

void aggiungiFinestra(Chiavi& chiavi, const Finestra& finestra, const Istanza& istanza) {
    for (const char* nome : finestra.didascalie)
        aggiungiDidascalia(chiavi, finestra, istanza, nome);
    if (finestra.conTitolo)
        chiavi[QStringLiteral("%1.Caption").arg(finestra.nome)] = [istanza](const QString& testo) {
            istanza().setWindowTitle(testo);
        };
}

/// The keys that the windows of the imports have in common.
void aggiungiCampi(Chiavi& chiavi, const Finestra& finestra, const Istanza& istanza) {
    for (int i = 0; i < campi::quanti; ++i)
        aggiungiDidascalia(chiavi, finestra, istanza, QStringLiteral("lblcmp(%1)").arg(i));
    chiavi[QStringLiteral("%1.txtCartella.Text").arg(finestra.nome)] =
        assegnazione(istanza, [](ui::LateDialog& suo, const QString& testo) {
            suo.findChild<QLineEdit*>("txtCartella")->setText(testo);
        });
}

void aggiungiVoci(Chiavi& chiavi, const FinestreTradotte& finestre) {
    const auto aggiungi = [&chiavi](const char* finestra, const char* voce, const Istanza& istanza) {
        chiavi[QStringLiteral("%1.prp.Item(\"%2\").Caption").arg(finestra, voce)] =
            assegnazione(istanza, [voce](ui::LateDialog& suo, const QString& testo) {
                suo.findChild<ui::PropertyList*>("prp")->Item(voce)->setCaption(testo);
            });
    };
    for (const char* voce : {"Datidestinatario", "altro"})
        aggiungi("frmDestinatario", voce, finestre.Destinatario);
    for (const char* voce :
         {"Margini pagina", "Sinistra", "Superiore", "Larghezza", "Altezza", "Colori", "Sfondo", "Testo",
          "Link", "LinkAttivi", "LinkVisitati", "Immagini", "Immaginedisfondo"})
        aggiungi("frmPropBody", voce, finestre.PropBody);
}

}  // namespace

Chiavi bLANG::TutteLeChiavi(const FinestreTradotte& finestre) {
    Chiavi chiavi;
    aggiungiVariabili(chiavi);
    aggiungiMain(chiavi, finestre);
    aggiungiEditor(chiavi, finestre);
    for (const Finestra& finestra : finestreTradotte) {
        const Istanza& istanza = finestre.*finestra.istanza;
        aggiungiFinestra(chiavi, finestra, istanza);
        if (finestra.conCampi) aggiungiCampi(chiavi, finestra, istanza);
    }
    aggiungiVoci(chiavi, finestre);
    return chiavi;
}
