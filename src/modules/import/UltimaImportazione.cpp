// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/import/UltimaImportazione.h"

#include "platform/system/Clock.h"
#include "platform/text/Words.h"

UltimaImportazione& ultimaImportazione() {
    static UltimaImportazione unica;
    return unica;
}

void UltimaImportazione::Comincia(const QString& nuovaOrigine) {
    *this = {};
    origine = nuovaOrigine;
    quando = sys::clock().now();
}

void UltimaImportazione::Importata(qint64 numero, const QString& indirizzo) {
    if (static_cast<std::size_t>(importate++) < massimo)
        righe.push_back({numero, true, indirizzo.left(massimoTesto), {}});
}

void UltimaImportazione::Rifiutata(qint64 numero, const QString& testo, const QString& motivo) {
    if (static_cast<std::size_t>(rifiutate++) < massimo)
        righe.push_back({numero, false, testo.left(massimoTesto), motivo.left(massimoTesto)});
}

void UltimaImportazione::Finisci(qint64 righeScritte) {
    scritte = righeScritte;
}

QString MotivoIndirizzo(const QString& indirizzo) {
    constexpr qsizetype ultimaEtichetta = 4;
    if (indirizzo.isEmpty()) return Words::tr("Manca l'indirizzo");
    const qsizetype chiocciola = indirizzo.indexOf('@');
    if (chiocciola < 0) return Words::tr("Nell'indirizzo manca \"@\"");
    if (chiocciola == 0) return Words::tr("Nell'indirizzo manca il nome prima di \"@\"");
    const QString dominio = indirizzo.mid(chiocciola + 1);
    const qsizetype punto = dominio.lastIndexOf('.');
    if (punto <= 0) return Words::tr("Nell'indirizzo manca il dominio dopo \"@\"");
    if (dominio.size() - punto - 1 > ultimaEtichetta)
        return Words::tr("L'ultima parte dell'indirizzo ha più di quattro caratteri");
    return Words::tr("L'indirizzo non è valido");
}
