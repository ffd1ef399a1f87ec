// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/ModelloProva.h"

#include "modules/core/Fallimento.h"
#include "platform/html/HtmlDocument.h"
#include "platform/mail/Unsubscribe.h"
#include "platform/text/Words.h"

QList<FileInPartenza> ModelloProva::inPartenza() const {
    QStringList presenti;
    for (const AllegatoMss& allegato : allegati)
        if (allegato.presente) presenti << allegato.percorso;
    return AllegatiInPartenza(presenti, noto) + ImmaginiInPartenza(testi.corpoHtml, noto);
}

Result<ModelloProva> LeggiModelloProva(const QString& percorso) {
    const FileMss file = LeggiFileMss(percorso);
    if (!file.aperto.ok())
        return Status(file.aperto.code(), Words::tr("Il messaggio non si può aprire: ") + file.aperto.text());
    QString corpo;
    Prosegui prosegui;
    if (!prosegui([&] { corpo = LeggiCorpoMss(file); }))
        return Status(ErrorCode{prosegui.numero()},
                      Words::tr("Il file non contiene un messaggio intero: ") + prosegui.testo());
    HtmlDocument documento;
    if (const Status messo = documento.setDocumentHTML(corpo); !messo.ok()) return messo;

    const MessaggioLetto letto = LeggiMss(file);
    ModelloProva modello;
    modello.percorso = percorso;
    modello.testi = {documento.documentHTML(), documento.bodyInnerText(), letto.oggetto,
                     mail::markedUnsubscribe(documento.documentHTML())};
    modello.priorita = NumeroPriorita(letto.priorita);
    modello.allegati = letto.allegati;
    modello.nominati = messaggiNoti::FileNominati(letto.nominati(), documento.documentHTML());
    if (file.intero) {
        modello.impronta = messaggiNoti::Impronta(file.byte);
        modello.noto = messaggiNoti::Cerca(percorso, modello.impronta);
    }
    return modello;
}
