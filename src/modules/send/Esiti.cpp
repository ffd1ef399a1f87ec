// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/send/Esiti.h"

#include <QFile>
#include <utility>

#include "modules/core/bGlobal.h"
#include "modules/core/bImpostazioni.h"
#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace {

QString Interruttore() {
    return esiti::Cartella() + "disattivato.txt";
}

QString Perche(const Status& stato) {
    switch (stato.code()) {
        case ErrorCode::FileNotFound:
            return Words::tr("Il registro di questo invio non c'è più.");
        case ErrorCode::Overflow:
            return Words::tr("Il registro di questo invio è troppo grande per essere letto.");
        default:
            return Words::tr("Il registro di questo invio non si può leggere. %1").arg(stato.text());
    }
}

}  // namespace

QString esiti::Cartella() {
    return cartellaDati() + "esiti/";
}

bool esiti::Acceso() {
    return !QFile::exists(Interruttore());
}

Status esiti::Accendi(bool acceso) {
    Status stato = sys::makeOwnFolder(Cartella().chopped(1));
    if (stato.ok()) {
        if (!acceso)
            stato = sys::replaceOwnFile(Interruttore(), "Il registro degli esiti non viene tenuto.\r\n");
        else if (QFile::exists(Interruttore()) && !QFile::remove(Interruttore()))
            stato = {ErrorCode::PathAccess, QString()};
    }
    if (stato.ok()) return {};
    return {stato.code(), Words::tr("La cartella \"%1\" non si può scrivere.").arg(Cartella())};
}

Result<esiti::Invio> esiti::Leggi(const QString& percorso) {
    const auto letto = mail::outcomes::read(percorso);
    if (!letto.ok()) return Status(letto.status().code(), Perche(letto.status()));
    const auto corrente = mail::DatabaseFile::at(percorsoDB);
    QList<bool> suoi;
    for (const mail::DatabaseFile& database : letto.value().databases)
        suoi.append(!database.path.isEmpty() && database.same(corrente));
    Invio invio;
    invio.rovinate = letto.value().damaged;
    invio.interrotto = letto.value().cutOff;
    invio.righe.reserve(letto.value().rows.size());
    for (const auto& [riga, database] : letto.value().rows)
        invio.righe.append(
            {riga, MotivoDi(riga), riga.number.has_value() && database >= 0 && suoi[database]});
    return invio;
}

esiti::Inesistenti esiti::CercaInesistenti(const QList<Riga>& righe) {
    Inesistenti trovati;
    trovati.destinatari = righe.size();
    for (const Riga& riga : righe)
        if (IndirizzoInesistente(riga.esito)) trovati.righe.append(riga);
    return trovati;
}
