// SPDX-License-Identifier: GPL-3.0-or-later
// The message file and the files it sends: what is picked, asked about, and read for the run.
#include <algorithm>
#include <QLineEdit>
#include <QPushButton>

#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "modules/send/FileInPartenza.h"
#include "platform/mail/DeliveryControl.h"
#include "platform/text/Words.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "windows/core/DomandaFile.h"
#include "windows/send/frmInvia.h"

using ui::MessageDialog;

namespace {

FonteMss FonteDi(const FileMss& file) {
    FonteMss fonte{file.percorso, {}, std::nullopt};
    if (!file.intero) return fonte;
    fonte.impronta = messaggiNoti::Impronta(file.byte);
    fonte.noto = messaggiNoti::Cerca(fonte.percorso, fonte.impronta);
    return fonte;
}

bool Stessa(const FonteMss& una, const FonteMss& altra) {
    return una.percorso == altra.percorso && una.impronta == altra.impronta;
}

/// The user agreed to send these files with a message file, for as long as that is unchanged. What else it
/// names is asked about when it is there. `nominati`: all that it names.
void Ricorda(FonteMss& fonte, const QList<FileInPartenza>& concessi, const QStringList& nominati) {
    if (fonte.impronta.isEmpty()) return;
    messaggiNoti::Noto noto =
        fonte.noto.value_or(messaggiNoti::Noto{nominati, messaggiNoti::Confermati(fonte.percorso)});
    for (const FileInPartenza& uno : concessi) {
        noto.daConfermare.removeAll(uno.percorso);
        if (uno.riposto && !noto.confermati.contains(uno.risolto)) noto.confermati << uno.risolto;
    }
    messaggiNoti::Annota(fonte.percorso, fonte.impronta, noto);
    fonte.noto = noto;
}

}  // namespace

void frmInvia::cmdFile_Click() {
    const auto percorso = ui::FileDialog::open(bVAR::goApriEmail, "Message File (*.mss)|*.mss");
    if (!percorso) fallisci(ErrorCode::CancelSelected);
    const FileMss file = LeggiFileMss(*percorso);
    if (const Status messo = goDHTML.setDocumentHTML(LeggiCorpoMss(file)); !messo.ok()) {
        const QString prima = txtFile->text().isEmpty()
                                  ? Words::tr("Nessun messaggio è stato scelto.")
                                  : Words::tr("Il messaggio scelto resta ") + txtFile->text();
        MessageDialog::show(messo.text() + "\r\n" + prima, MessageDialog::Notice, bVAR::Attenzione);
        return;
    }
    fonteCorpo = FonteDi(file);
    allegatiCorpo = LeggiMss(file).nominati();
    txtFile->setText(*percorso);
    cmdInvia->setDefault(true);
}

QString frmInvia::FileMessaggio() const {
    return txtFile->text();
}

/// Asks about the files that the run would carry away and that the user has not agreed to yet; false where he
/// does not. What is checked is what the run then uses: the bytes of the message file as they were read, the
/// body of goDHTML, and the files that their links lead to now.
bool frmInvia::ChiediFile(const FileMss& file, const MessaggioLetto& letto) {
    const QString corpo = goDHTML.documentHTML();
    FonteMss fonte = FonteDi(file);
    const auto allegati = AllegatiInPartenza(letto.presenti(), fonte.noto);
    const auto immagini = ImmaginiInPartenza(corpo, fonteCorpo.noto);
    filePermessi.clear();
    for (const FileInPartenza& uno : allegati + immagini)
        filePermessi << uno.risolto;
    const auto chiesti = DaChiedere(allegati), chieste = DaChiedere(immagini);
    if (chiesti.isEmpty() && chieste.isEmpty()) return true;

    // In a file that is known they are asked about because of where they lie, once. Of any other the user
    // says how long his answer counts.
    const bool unaVolta = (chiesti.isEmpty() || fonte.noto) && (chieste.isEmpty() || fonteCorpo.noto) &&
                          std::ranges::all_of(chiesti + chieste, &FileInPartenza::riposto);
    ui::ListQuestion::Content domanda = DomandaFile(
        chiesti + chieste,
        Words::tr("Ogni destinatario riceverà, insieme al messaggio, questi file di questo computer.\r\n"
                  "Vuoi inviarli?"));
    if (!unaVolta) domanda.remember = Words::tr("Non chiederlo &più per questo messaggio");
    const int risposta = MessageDialog::askAbout(domanda);
    if (risposta == MessageDialog::No) return false;
    if (risposta != MessageDialog::YesAlways && !unaVolta) return true;
    if (Stessa(fonte, fonteCorpo)) {
        Ricorda(fonte, chiesti + chieste, messaggiNoti::FileNominati(letto.nominati(), corpo));
        fonteCorpo.noto = fonte.noto;
        return true;
    }
    if (!chieste.isEmpty()) Ricorda(fonteCorpo, chieste, messaggiNoti::FileNominati(allegatiCorpo, corpo));
    if (!chiesti.isEmpty())
        Ricorda(fonte, chiesti, messaggiNoti::FileNominati(letto.nominati(), letto.corpo));
    return true;
}

void frmInvia::UsaMessaggio(const MessaggioLetto& letto) {
    oggettoMail = letto.oggetto;
    SMTP->Priority = NumeroPriorita(letto.priorita);
    SMTP->Attachments.Clear();
    for (const AllegatoMss& allegato : letto.allegati) {
        if (allegato.presente) {
            SMTP->Attachments.Add(allegato.percorso, allegato.nome);
        } else {
            MessageDialog::show(AvvisoAllegatoMancante(allegato.nome), MessageDialog::Notice, "Attenzione");
        }
    }
    SMTP->FilesToCarry = filePermessi;
}
