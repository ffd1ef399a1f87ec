// SPDX-License-Identifier: GPL-3.0-or-later
// The message and the recipient that are on show.
#include <QComboBox>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "modules/lang/bVAR.h"
#include "modules/send/Selezione.h"
#include "modules/store/RecordsetDB.h"
#include "platform/html/HtmlView.h"
#include "platform/mail/Composer.h"
#include "platform/text/NumberText.h"
#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/FileDialog.h"
#include "windows/strumenti/frmProva.h"

namespace {

constexpr std::chrono::milliseconds fetta{15};  // of a search, before the window processes events again

QString conta(qint64 n) {
    return text::formatGrouped(static_cast<double>(n));
}

}  // namespace

/// The entries: what the editor and the send window have, and what was chosen here before.
void frmProva::CaricaFile() {
    const QString scelto = modello ? modello->percorso : QString();
    QStringList voci;
    for (const QString& percorso : QStringList{vicini.FileEditor(), vicini.FileInvio()} + file)
        if (!percorso.isEmpty() && !voci.contains(percorso)) voci << percorso;
    file = voci;
    cmbFile->clear();
    for (const QString& percorso : file)
        cmbFile->addItem(NomeDaPercorso(percorso) + "  –  " + PercorsoMostrato(percorso));
    // The editor's current file takes precedence over the last one shown.
    cmbFile->setCurrentIndex(file.isEmpty() ? -1 : 0);
    if (vicini.FileEditor().isEmpty() && file.contains(scelto))
        cmbFile->setCurrentIndex(static_cast<int>(file.indexOf(scelto)));
}

void frmProva::cmdFile_Click() {
    const auto percorso =
        ui::FileDialog::open(bVAR::goApriEmail.isEmpty() ? Words::tr("Apri messaggio") : bVAR::goApriEmail,
                             "Message File (*.mss)|*.mss");
    if (!percorso) return;
    if (!file.contains(*percorso)) {
        file << *percorso;
        cmbFile->addItem(NomeDaPercorso(*percorso) + "  –  " + PercorsoMostrato(*percorso));
    }
    cmbFile->setCurrentIndex(static_cast<int>(file.indexOf(*percorso)));
    UsaFile();
}

/// Reads the file that is chosen, again each time, and shows it for the recipient on show.
void frmProva::UsaFile() {
    modello.reset();
    QString motivo =
        Words::tr("Nessun messaggio: salvarne uno nell'editor o sceglierlo con il pulsante \"...\".");
    if (cmbFile->currentIndex() >= 0) {
        Result<ModelloProva> letto = LeggiModelloProva(file.value(cmbFile->currentIndex()));
        if (letto.ok())
            modello = std::move(letto).value();
        else
            motivo = letto.status().text();
    }
    rilieviModello = modello ? RilieviModello(*modello) : QList<Rilievo>();
    copia.reset();
    if (!modello) {
        txtOggetto->clear();
        TESTO->clear();
        static_cast<void>(HTML->setDocumentHTML({}));
        lblAllegati->clear();
        txtDestinatario->clear();
        for (QPushButton* pulsante : {cmdPrecedente, cmdSuccessivo, cmdCerca})
            pulsante->setEnabled(false);
        Racconta(*lblStato, motivo);
    } else {
        lblStato->clear();
        MostraDestinatario(riga < 0 ? 0 : riga);
    }
    IniziaControllo();
    AbilitaInvio();
}

/// Shows the copy of the recipient at that position in the order of a run, the nearest one where there is
/// none; the template itself without a selection.
void frmProva::MostraDestinatario(qint64 nuova) {
    if (!modello) return;
    QString chi;
    Prosegui prosegui;
    copia.reset();
    const bool letto = prosegui([&] {
        ado::Recordset rs = RecordsetDB();
        rs.setSource(codaInvio);
        esigi(rs.open());
        selezionati = rs.recordCount();
        riga = qBound(qint64{-1}, nuova, selezionati - 1);
        if (selezionati > 0 && riga < 0) riga = 0;
        if (riga > 0) esigi(rs.move(riga));
        copia = LeggiCopia(*modello, rs);
    });
    if (!copia) copia = CopiaProva{modello->testi, {}, {}};
    if (!letto)
        Racconta(*lblStato, Words::tr("I destinatari non si possono leggere: %1").arg(prosegui.testo()));
    else if (selezionati < 1)
        Racconta(*lblStato,
                 Words::tr("Nessun destinatario è selezionato: il messaggio si vede con i suoi segnaposto."));
    else
        lblStato->clear();
    if (riga >= 0 && letto && selezionati > 0)
        chi = Words::tr("%1 di %2").arg(conta(riga + 1), conta(selezionati)) + ":  " + copia->nome + " <" +
              copia->indirizzo + '>';
    txtDestinatario->setText(chi);
    txtDestinatario->setCursorPosition(0);
    cmdPrecedente->setEnabled(riga > 0);
    cmdSuccessivo->setEnabled(riga + 1 < selezionati);
    cmdCerca->setEnabled(selezionati > 0);
    if (!chi.isEmpty()) voce->say(chi);
    MostraCopia(*copia);
}

void frmProva::MostraCopia(const CopiaProva& mostrata) {
    txtOggetto->setText(mostrata.testi.oggetto);
    txtOggetto->setCursorPosition(0);
    TESTO->setPlainText(FormaTesto(mostrata.testi));
    if (const Status messo = HTML->setDocumentHTML(FormaHtml(*modello, mostrata.testi)); !messo.ok())
        Racconta(*lblStato, Words::tr("Questa copia non si può mostrare: %1").arg(messo.text()));
    MostraAllegati(mostrata);
    if (controllo || controlloFinito) MostraRilievi();
}

void frmProva::MostraAllegati(const CopiaProva& mostrata) {
    QStringList voci;
    for (const AllegatoMss& allegato : modello->allegati)
        voci << PercorsoMostrato(allegato.nome) +
                    (allegato.presente
                         ? " (" + QLocale().formattedDataSize(QFileInfo(allegato.percorso).size()) + ')'
                         : " (" + Words::tr("non c'è") + ')');
    lblAllegati->setText(
        (voci.isEmpty() ? Words::tr("Nessun allegato.") : Words::tr("Allegati: %1.").arg(voci.join(", "))) +
        "  " + DimensioneMessaggio(mostrata));
}

/// The size of the whole mail as it travels; a sentence why there is none.
QString frmProva::DimensioneMessaggio(const CopiaProva& mostrata) const {
    const Account* mittente = MittenteScelto();
    if (!mittente) return Words::tr("Dimensione non nota: manca l'account mittente.");
    mail::MessageData dati = DatiMessaggio(*modello, mostrata, *mittente, {});
    if (riga < 0) dati.ToAddress = mittente->txtEmail;
    const auto composto = compositore->compose(dati);
    if (!composto.ok()) return Words::tr("Il messaggio non può partire: %1").arg(composto.status().text());
    return Words::tr("Messaggio intero: %1.").arg(QLocale().formattedDataSize(composto.value().text.size()));
}

/// Looks for the text in every column of the selected recipients, starting after the one on show, wrapping at
/// the end; case-insensitive.
void frmProva::Cerca() {
    if (!modello || selezionati < 1 || txtCerca->text().isEmpty()) return;
    Prosegui prosegui;
    if (!prosegui([this] {
            ricerca = RecordsetDB();
            ricerca->setSource(codaInvio);
            esigi(ricerca->open());
            rigaRicerca = riga + 1 < selezionati ? riga + 1 : 0;
            if (rigaRicerca > 0) esigi(ricerca->move(rigaRicerca));
        })) {
        ricerca.reset();
        return Racconta(*lblStato,
                        Words::tr("I destinatari non si possono leggere: %1").arg(prosegui.testo()));
    }
    vistiRicerca = 0;
    lblStato->setText(Words::tr("Ricerca in corso…"));
    tmrRicerca->start(0);
}

void frmProva::ContinuaRicerca() {
    const QDeadlineTimer fine(fetta);
    const QString cercato = txtCerca->text();
    Prosegui prosegui;
    bool trovato = false, finita = false;
    const bool letto = prosegui([&] {
        while (!trovato && !finita && !fine.hasExpired()) {
            if (ricerca->isEof()) {
                esigi(ricerca->moveFirst());
                rigaRicerca = 0;
            }
            for (int i = 0; i < ricerca->fieldCount() && !trovato; ++i) {
                const Result<ado::Value> valore = ricerca->value(i);
                trovato = valore.ok() && valore.value().type() == ado::Value::Type::Text &&
                          valore.value().toTextOrEmpty().contains(cercato, Qt::CaseInsensitive);
            }
            if (trovato) break;
            finita = ++vistiRicerca >= selezionati;
            if (finita) break;
            esigi(ricerca->moveNext());
            ++rigaRicerca;
        }
    });
    if (letto && !trovato && !finita) return;
    tmrRicerca->stop();
    ricerca.reset();
    if (!letto)
        return Racconta(*lblStato,
                        Words::tr("I destinatari non si possono leggere: %1").arg(prosegui.testo()));
    if (!trovato)
        return Racconta(*lblStato,
                        Words::tr("Nessun destinatario selezionato contiene \"%1\".").arg(cercato));
    MostraDestinatario(rigaRicerca);
}
