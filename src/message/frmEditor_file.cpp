// The document and its file.
#include "core/bFunctions.h"
#include "core/Fallimento.h"
#include "message/frmAllegati.h"
#include "message/frmEditor.h"
#include "message/MessaggioMss.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/TabStrip.h"

namespace {

const QString filtro = QStringLiteral("Message File (*.mss)|*.mss");
const QString fineRiga = QStringLiteral("\r\n");

/// The lines of a file end in CR LF, also inside the body.
QString conFiniRiga(QString testo) {
    return testo.replace(fineRiga, "\n").replace('\r', '\n').replace('\n', fineRiga);
}

/// The file name in a caption such as "[offerta.mss*]".
QString nomeDel(const QString& titolo) {
    QString nome = titolo.mid(1).chopped(titolo.size() > 1 ? 1 : 0);
    if (nome.endsWith(u'*')) nome.chop(1);
    return nome;
}

}  // namespace

// There is no cancel: whatever is answered, here or in the file dialog, the command goes on.
void frmEditor::ChiediSalvataggio() {
    if (!IsModificato()) return;
    const int risposta =
        ui::MessageDialog::show("Il messaggio non è stato salvato.\r\nVuoi salvarlo prima di continuare?",
                                ui::MessageDialog::AskNotice, "Attenzione");
    if (risposta != ui::MessageDialog::Yes) return;
    fileAperto ? SalvaMessaggio() : SalvaMessaggioCome();
}

/// The body is that of the design view, whatever view is on show.
void frmEditor::Scrivi(const QString& percorso) {
    MessaggioMss messaggio;
    messaggio.Oggetto = barre->GetEdit("txtOggetto")->Text();
    messaggio.Priorita = "NR";
    if (barre->GetToolButton("cmdPriBassa")->Checked() == 1) messaggio.Priorita = "LW";
    if (barre->GetToolButton("cmdPriAlta")->Checked() == 1) messaggio.Priorita = "HI";
    messaggio.Allegati = Allegati().Percorsi();
    messaggio.CorpoHTML = conFiniRiga(DHTML->documentHTML());
    ScriviMessaggio(percorso, messaggio);
}

void frmEditor::ImpostaFile(const QString& percorso) {
    titoloFile = '[' + NomeDaPercorso(percorso) + ']';
    ImpostaTitolo();
}

void frmEditor::SalvaMessaggio() {
    Scrivi(percorsoFile);
    ImpostaFile(percorsoFile);
}

void frmEditor::SalvaMessaggioCome() {
    const auto percorso = ui::FileDialog::save("Salva messaggio", filtro, nomeDel(titoloFile));
    if (!percorso) return;
    Prosegui prosegui;
    prosegui([&] { Scrivi(*percorso); });
    ImpostaFile(*percorso);
    fileAperto = true;
    percorsoFile = *percorso;
}

void frmEditor::ApriMessaggio() {
    const auto percorso = ui::FileDialog::open("Apri messaggio", filtro);
    if (!percorso) return;
    NuovoMessaggio();
    LeggiMessaggio(*percorso);
}

void frmEditor::LeggiMessaggio(const QString& percorso) {
    Prosegui prosegui;
    LettoreMss lettore(percorso);
    barre->GetEdit("txtOggetto")->setText(lettore.oggetto());
    const QString priorita = lettore.priorita();
    barre->GetToolButton("cmdPriBassa")->setChecked(priorita == "LW" ? 1 : 0);
    barre->GetToolButton("cmdPriAlta")->setChecked(priorita == "HI" ? 1 : 0);
    bool lasciato = false;
    while (const auto allegato = lettore.allegato()) {
        if (allegato->presente) {
            prosegui([&] { Allegati().InsFile(allegato->percorso); });
        } else {
            ui::MessageDialog::show(AvvisoAllegatoMancante(allegato->nome), ui::MessageDialog::Notice,
                                    "Attenzione");
            lasciato = true;
        }
    }
    // The end of the body's last row is the file's. Left in, it would become one more line of the body each
    // time the message is opened.
    QString corpo = lettore.corpo();
    if (corpo.endsWith(fineRiga)) corpo.chop(fineRiga.size());
    DHTML->setDocumentHTML(corpo);
    // Whichever view is on show shows the message that was opened.
    MostraBody(tb->currentIndex());
    ImpostaFile(percorso);
    fileAperto = true;
    percorsoFile = percorso;
    if (lasciato) SegnaModificato();
}
