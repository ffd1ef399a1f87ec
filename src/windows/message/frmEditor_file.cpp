// SPDX-License-Identifier: GPL-3.0-or-later
// The document and its file.
#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "modules/message/MessaggiNoti.h"
#include "modules/message/MessaggioMss.h"
#include "platform/html/Bounds.h"
#include "platform/html/SourceText.h"
#include "platform/text/AnsiCodec.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/TabStrip.h"
#include "windows/core/Puntatore.h"
#include "windows/message/frmAllegati.h"
#include "windows/message/frmEditor.h"

namespace {

const QString filtro = QStringLiteral("Message File (*.mss)|*.mss");
const QString fineRiga = QStringLiteral("\r\n");

/// The lines of a file end in CR LF, also inside the body.
MessaggioMss conFiniRiga(MessaggioMss messaggio) {
    messaggio.CorpoHTML.replace(fineRiga, "\n").replace('\r', '\n').replace('\n', fineRiga);
    return messaggio;
}

/// The file name in a caption such as "[offerta.mss*]".
QString nomeDel(const QString& titolo) {
    QString nome = titolo.mid(1).chopped(titolo.size() > 1 ? 1 : 0);
    if (nome.endsWith(u'*')) nome.chop(1);
    return nome;
}

/// Reports what the file has lost, before every recipient sees it. The body loses nothing.
void AvvisaCaratteri(const MessaggioMss& messaggio) {
    const QStringList oggetto = text::outsideAnsi(messaggio.Oggetto);
    const QStringList allegati = text::outsideAnsi(messaggio.Allegati.join(QString()));
    if (oggetto.isEmpty() && allegati.isEmpty()) return;
    QString testo =
        Words::tr("Il file del messaggio non può contenere questi caratteri, al loro posto c'è \"?\":");
    if (!oggetto.isEmpty()) testo += "\r\n" + Words::tr("Oggetto: ") + oggetto.join(' ');
    if (!allegati.isEmpty())
        testo += "\r\n" + Words::tr("Percorsi degli allegati: ") + allegati.join(' ') + "\r\n" +
                 Words::tr("Questi allegati non saranno trovati: rinomina i file.");
    ui::MessageDialog::show(testo, ui::MessageDialog::Notice, Words::tr("Attenzione"));
}

/// Reports a body larger than its readers accept, while it is still in the editor.
void AvvisaLimiti(const QString& corpo) {
    const Status leggibile = inDisparte([&] { return html::readable(corpo); });
    if (!leggibile.ok())
        ui::MessageDialog::show(
            Words::tr("Il messaggio è stato salvato, ma così non si potrà né aprire né inviare.") + "\r\n" +
                leggibile.text(),
            ui::MessageDialog::Notice, Words::tr("Attenzione"));
}

}  // namespace

// There is no cancel: whatever the answer, here or in the file dialog, the command continues.
void frmEditor::ChiediSalvataggio() {
    if (!IsModificato()) return;
    const int risposta =
        ui::MessageDialog::show("Il messaggio non è stato salvato.\r\nVuoi salvarlo prima di continuare?",
                                ui::MessageDialog::AskNotice, "Attenzione");
    if (risposta != ui::MessageDialog::Yes) return ButtaCopia();
    fileAperto ? SalvaMessaggio() : SalvaMessaggioCome();
}

/// The message without its body.
MessaggioMss frmEditor::Testata() {
    MessaggioMss messaggio;
    messaggio.Oggetto = barre->GetEdit("txtOggetto")->Text();
    messaggio.Priorita = "NR";
    if (barre->GetToolButton("cmdPriBassa")->Checked() == 1) messaggio.Priorita = "LW";
    if (barre->GetToolButton("cmdPriAlta")->Checked() == 1) messaggio.Priorita = "HI";
    messaggio.Allegati = Allegati().Percorsi();
    return messaggio;
}

/// The current message; none, after a notice, where the design view does not answer. The body is that of
/// the design view, whatever view is on show.
std::optional<MessaggioMss> frmEditor::PrendiMessaggio() {
    const Result<QString> corpo = conAttesa([this] { return DHTML->documentHTML(); });
    if (!corpo.ok()) {
        AvvisaVista(corpo.status(),
                    Words::tr("Il messaggio non è stato salvato: riprova fra qualche istante."));
        return std::nullopt;
    }
    MessaggioMss messaggio = Testata();
    messaggio.CorpoHTML = corpo.value();
    return messaggio;
}

void frmEditor::ImpostaFile(const QString& percorso) {
    titoloFile = '[' + NomeDaPercorso(percorso) + ']';
    ImpostaTitolo();
}

void frmEditor::SalvaMessaggio() {
    const auto messaggio = PrendiMessaggio();
    if (!messaggio) return;
    const MessaggioMss daScrivere = inDisparte([&] { return conFiniRiga(*messaggio); });
    CopiaPrimaDiScrivere(messaggio->CorpoHTML);
    const QByteArray scritto = inDisparte([&] { return ScriviMessaggio(percorsoFile, daScrivere); });
    ImpostaFile(percorsoFile);
    AnnotaNoto(scritto, *messaggio);
    CopiaDopoScrittura(messaggio->CorpoHTML);
    AvvisaCaratteri(*messaggio);
    AvvisaLimiti(daScrivere.CorpoHTML);
}

void frmEditor::SalvaMessaggioCome() {
    const auto percorso = ui::FileDialog::save("Salva messaggio", filtro, nomeDel(titoloFile));
    if (!percorso) return;
    const auto messaggio = PrendiMessaggio();
    if (!messaggio) return;
    Prosegui prosegui;
    const MessaggioMss daScrivere = inDisparte([&] { return conFiniRiga(*messaggio); });
    CopiaPrimaDiScrivere(messaggio->CorpoHTML);
    QByteArray byte;
    const bool scritto =
        prosegui([&] { byte = inDisparte([&] { return ScriviMessaggio(*percorso, daScrivere); }); });
    ImpostaFile(*percorso);
    fileAperto = true;
    percorsoFile = *percorso;
    if (scritto) {
        AnnotaNoto(byte, *messaggio);
        CopiaDopoScrittura(messaggio->CorpoHTML);
        AvvisaCaratteri(*messaggio);
        return AvvisaLimiti(daScrivere.CorpoHTML);
    }
    SegnaModificato();
    ui::MessageDialog::show(Words::tr("Il messaggio non è stato salvato in %1:").arg(*percorso) + "\r\n" +
                                prosegui.testo() + "\r\n" + Words::tr("Salvalo con un altro nome."),
                            ui::MessageDialog::Notice, Words::tr("Attenzione"));
}

/// Names that came from an unknown file still need confirmation. A file that is written again keeps what
/// was confirmed for its path.
void frmEditor::AnnotaNoto(const QByteArray& scritto, const MessaggioMss& messaggio) const {
    inDisparte([&] {
        messaggiNoti::Noto noto{{}, messaggiNoti::Confermati(percorsoFile)};
        if (estraneo)
            for (const QString& nominato :
                 messaggiNoti::FileNominati(messaggio.Allegati, messaggio.CorpoHTML))
                if (!propri.contains(nominato)) noto.daConfermare << nominato;
        messaggiNoti::Annota(percorsoFile, messaggiNoti::Impronta(scritto), noto);
    });
}

void frmEditor::ApriMessaggio() {
    const auto percorso = ui::FileDialog::open("Apri messaggio", filtro);
    if (percorso) LeggiMessaggio(*percorso);
}

void frmEditor::ImpostaTestata(const QString& oggetto, const QString& priorita) {
    barre->GetEdit("txtOggetto")->setText(oggetto);
    barre->GetToolButton("cmdPriBassa")->setChecked(priorita == "LW" ? 1 : 0);
    barre->GetToolButton("cmdPriAlta")->setChecked(priorita == "HI" ? 1 : 0);
}

/// False, after a notice, for one that is not there.
bool frmEditor::AggiungiAllegato(const AllegatoMss& allegato) {
    if (allegato.presente) {
        Prosegui prosegui;
        prosegui([&] { Allegati().InsFile(allegato.percorso); });
        return true;
    }
    ui::MessageDialog::show(AvvisoAllegatoMancante(allegato.nome), ui::MessageDialog::Notice, "Attenzione");
    return false;
}

void frmEditor::RiconosciFile(const FileMss& file, const MessaggioLetto& letto) {
    const auto noto =
        file.intero ? messaggiNoti::Cerca(file.percorso, messaggiNoti::Impronta(file.byte)) : std::nullopt;
    estraneo = !noto || !noto->daConfermare.isEmpty();
    if (!noto || !estraneo) return;
    for (const QString& nominato : messaggiNoti::FileNominati(letto.nominati(), letto.corpo))
        if (!noto->daConfermare.contains(nominato)) propri << nominato;
}

/// The document on show is replaced only once the file is known to contain a valid one.
void frmEditor::LeggiMessaggio(const QString& percorso) {
    const FileMss file = inDisparte([&] { return LeggiFileMss(percorso); });
    const MessaggioLetto letto = inDisparte([&] { return LeggiMss(file); });
    // The end of the body's last row is the file's. Left in, it would become one more line of the body each
    // time the message is opened.
    const QString corpo = html::sourceText(letto.corpo);
    if (const Status leggibile = inDisparte([&] { return html::readable(corpo); }); !leggibile.ok())
        return AvvisaVista(leggibile, Words::tr("Il messaggio nella finestra resta quello di prima."));
    NuovoMessaggio();
    ImpostaTestata(letto.oggetto, letto.priorita);
    bool lasciato = false;
    for (const AllegatoMss& allegato : letto.allegati)
        if (!AggiungiAllegato(allegato)) lasciato = true;
    conAttesa([&] {
        static_cast<void>(DHTML->setDocumentHTML(corpo));
        // Whichever view is on show shows the message that was opened.
        if (!MostraBody(tb->currentIndex()).ok()) ScriviOrigine(corpo);
        ImpostaFile(percorso);
        fileAperto = true;
        percorsoFile = percorso;
        ui::painted([&] { RiconosciFile(file, letto); });
    });
    if (lasciato) SegnaModificato();
}
