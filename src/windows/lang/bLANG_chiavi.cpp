#include "windows/lang/bLANG_chiavi.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QLineEdit>

#include "modules/core/Fallimento.h"
#include "modules/import/campi.h"
#include "modules/lang/bVAR_elenco.h"
#include "platform/ui/Controls.h"
#include "platform/ui/PropertyList.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Finestre.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/lang/bLANG_chiavi_barre.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/store/frmDestinatario.h"

namespace {

using bLANG::Chiavi;

/// A window, how it is reached, and its controls that have a caption.
struct Finestra {
    const char* nome;
    QWidget& (*istanza)();
    bool conTitolo;  ///< whether the window's own caption has a key
    std::initializer_list<const char*> didascalie;
    bool conCampi = false;  ///< the labels of the 19 boxes, and the name of a new group
};

const Finestra finestreTradotte[] = {
    {"frmAccount",
     []() -> QWidget& { return finestre::Account(); },
     true,
     {"lbl(0)",       "lbl(1)",      "lbl(2)",    "lbl(3)",   "lbl(4)",      "lbl(5)",    "lbl(6)",
      "lbl(7)",       "lbl(8)",      "lbl(9)",    "lbl(10)",  "lbl(11)",     "lbl(12)",   "chkUsaSMTP",
      "chkAutentick", "chkAvanzate", "cmdChiudi", "cmdNuovo", "cmdModifica", "mnuElimina"}},
    {"frmInvia",
     []() -> QWidget& { return finestre::Invia(); },
     true,
     {"lblFile", "lblMittente", "lblPausa", "lblTimeOut", "lblDaInviare", "lblFallite", "lblInviate",
      "chkLog", "chkBlocco", "lblBlocco1", "lblBlocco2", "cmdChiudi", "cmdFerma", "cmdInvia"}},
    {"frmPropBody",
     []() -> QWidget& { return finestre::PropBody(); },
     true,
     {"lbl", "cmdAnnulla", "cdmSalva"}},
    {"frmDestinatario",
     []() -> QWidget& { return finestre::Destinatario(); },
     false,
     {"cmdAnnulla", "cdmSalva"}},
    {"frmScelta",
     []() -> QWidget& { return finestre::Scelta(); },
     true,
     {"lbl", "opt(0)", "opt(1)", "cmdOK", "cmdAnnulla"}},
    {"frmImpDB",
     []() -> QWidget& { return finestre::ImpDB(); },
     true,
     {"lbl(0)", "lbl(1)", "lbl(2)", "lbl(3)", "opt(0)", "opt(1)", "cmdSfoglia", "cmdApri", "cmdImportaDB",
      "cmdChiudi"},
     true},
    {"frmImpTXT",
     []() -> QWidget& { return finestre::ImpTXT(); },
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

void aggiungiVariabili(Chiavi& chiavi) {
    for (const bVAR::Testo& variabile : bVAR::elenco)
        chiavi[QStringLiteral("bVAR.%1").arg(variabile.nome)] = [variabile](const QString& testo) {
            *variabile.testo = testo;
        };
}

void aggiungiFinestra(Chiavi& chiavi, const Finestra& finestra) {
    for (const char* nome : finestra.didascalie)
        chiavi[QStringLiteral("%1.%2.Caption").arg(finestra.nome, nome)] = [istanza = finestra.istanza,
                                                                            nome](const QString& testo) {
            impostaDidascalia(istanza(), nome, testo);
        };
    if (finestra.conTitolo)
        chiavi[QStringLiteral("%1.Caption").arg(finestra.nome)] =
            [istanza = finestra.istanza](const QString& testo) { istanza().setWindowTitle(testo); };
}

/// What the windows of the imports have in common.
void aggiungiCampi(Chiavi& chiavi, const Finestra& finestra) {
    for (int i = 0; i < campi::quanti; ++i) {
        const QString nome = QStringLiteral("lblcmp(%1)").arg(i);
        chiavi[QStringLiteral("%1.%2.Caption").arg(finestra.nome, nome)] = [istanza = finestra.istanza,
                                                                            nome](const QString& testo) {
            impostaDidascalia(istanza(), nome, testo);
        };
    }
    chiavi[QStringLiteral("%1.txtCartella.Text").arg(finestra.nome)] =
        [istanza = finestra.istanza](const QString& testo) {
            istanza().findChild<QLineEdit*>("txtCartella")->setText(testo);
        };
}

void aggiungiVoci(Chiavi& chiavi) {
    const auto aggiungi = [&chiavi](const char* finestra, const char* voce, ui::PropertyList* (*prp)()) {
        chiavi[QStringLiteral("%1.prp.Item(\"%2\").Caption").arg(finestra, voce)] =
            [voce, prp](const QString& testo) { prp()->Item(voce)->setCaption(testo); };
    };
    for (const char* voce : {"Datidestinatario", "altro"})
        aggiungi("frmDestinatario", voce, [] { return finestre::Destinatario().prp; });
    for (const char* voce :
         {"Margini pagina", "Sinistra", "Superiore", "Larghezza", "Altezza", "Colori", "Sfondo", "Testo",
          "Link", "LinkAttivi", "LinkVisitati", "Immagini", "Immaginedisfondo"})
        aggiungi("frmPropBody", voce, [] { return finestre::PropBody().prp; });
}

const Chiavi& tutteLeChiavi() {
    static const Chiavi chiavi = [] {
        Chiavi nuove;
        aggiungiVariabili(nuove);
        bLANG::aggiungiMain(nuove);
        bLANG::aggiungiEditor(nuove);
        for (const Finestra& finestra : finestreTradotte) {
            aggiungiFinestra(nuove, finestra);
            if (finestra.conCampi) aggiungiCampi(nuove, finestra);
        }
        aggiungiVoci(nuove);
        return nuove;
    }();
    return chiavi;
}

}  // namespace

bLANG::Destinazione bLANG::DestinazioneDi(const QString& chiave) {
    return tutteLeChiavi().value(chiave);
}

QStringList bLANG::ChiaviNote() {
    return tutteLeChiavi().keys();
}
