// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/strumenti/CopiaProva.h"

#include "modules/core/bImpostazioni.h"
#include "modules/core/Fallimento.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/LocalImages.h"
#include "platform/mail/TextPart.h"

CopiaProva LeggiCopia(const ModelloProva& modello, const ado::Recordset& destinatari) {
    const LeggiColonna leggi = ColonneDi(destinatari);
    CopiaProva copia;
    copia.testi = PersonalizzaTesti(modello.testi, LeggiValori(leggi));
    Prosegui prosegui;
    prosegui([&] { copia.indirizzo = esigi(esigi(destinatari.value(u"email")).toText()); });
    prosegui([&] { copia.nome = esigi(NomeDestinatario(leggi)); });
    return copia;
}

mail::MessageData DatiMessaggio(const ModelloProva& modello, const CopiaProva& copia, const Account& mittente,
                                const mail::CarriedFiles& concessi) {
    mail::MessageData dati;
    dati.FromName = mittente.txtNomeVisual;
    dati.FromAddress = mittente.txtEmail;
    dati.ToName = copia.nome;
    dati.ToAddress = copia.indirizzo;
    dati.Subject = copia.testi.oggetto;
    dati.BodyHtml = copia.testi.corpoHtml;
    dati.BodyText = copia.testi.corpoTesto;
    dati.TemplateHtml = modello.testi.corpoHtml;
    dati.UnsubscribeLink = copia.testi.disiscrizione;
    dati.Priority = modello.priorita;
    for (const AllegatoMss& allegato : modello.allegati)
        if (allegato.presente) dati.Attachments.Add(allegato.percorso, allegato.nome);
    dati.FilesToCarry = concessi;
    dati.DkimFolder = cartellaDkim();
    return dati;
}

QString FormaTesto(const TestiMessaggio& testi) {
    return mail::textPart(testi.corpoTesto, mail::findReferences(testi.corpoHtml.toUtf8()), testi.oggetto);
}

QString FormaHtml(const ModelloProva& modello, const TestiMessaggio& testi) {
    const QStringList propri = mail::localImagePaths(modello.testi.corpoHtml);
    const QByteArray html = testi.corpoHtml.toUtf8();
    QByteArray forma;
    qsizetype fin = 0;
    for (const auto& posto : mail::findReferences(html).images) {
        const QString percorso = mail::localImagePath(posto.value);
        if (percorso.isEmpty() || propri.contains(percorso) || posto.from < fin) continue;
        forma += html.sliced(fin, posto.from - fin);
        fin = posto.from + posto.length;
    }
    return QString::fromUtf8(forma + html.sliced(fin));
}
