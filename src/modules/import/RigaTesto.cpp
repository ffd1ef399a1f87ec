// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/import/RigaTesto.h"

#include <algorithm>
#include <vector>

#include "modules/core/bFunctions.h"
#include "modules/core/Fallimento.h"
#include "platform/text/Words.h"

namespace {

/// The first `quanti` fields of the line: what follows them is not searched.
std::vector<QStringView> primiCampi(QStringView riga, QStringView separatore, int quanti) {
    std::vector<QStringView> trovati;
    if (riga.isEmpty()) return trovati;
    while (static_cast<int>(trovati.size()) < quanti) {
        const qsizetype fine = separatore.isEmpty() ? -1 : riga.indexOf(separatore);
        trovati.push_back(fine < 0 ? riga : riga.first(fine));
        if (fine < 0) break;
        riga = riga.sliced(fine + separatore.size());
    }
    return trovati;
}

QString pulito(QStringView campo, schema::Campo colonna) {
    return PulisciValore(destinatario::Taglia(campo, colonna));
}

[[noreturn]] void campoMancante(int posizione, const PuntoImportazione& punto) {
    fallisci(ErrorCode::SubscriptOutOfRange,
             Words::tr("Riga %1: il campo %2 non c'è; %3")
                 .arg(punto.riga)
                 .arg(posizione)
                 .arg(Words::tr("inseriti %n destinatari", nullptr, static_cast<int>(punto.inseriti))));
}

}  // namespace

std::optional<destinatario::Valori> RigaTesto::Leggi(const QString& riga, const PuntoImportazione& punto,
                                                     QString* rifiutato) const {
    const std::vector<QStringView> trovati =
        primiCampi(riga, separatore, *std::max_element(posizioni.begin(), posizioni.end()));
    const auto esiste = [&](int posizione) {
        return posizione >= 1 && posizione <= static_cast<int>(trovati.size());
    };
    const auto campo = [&](int box) {
        return pulito(trovati[static_cast<std::size_t>(posizioni[static_cast<std::size_t>(box)] - 1)],
                      campi::colonne[static_cast<std::size_t>(box)]);
    };
    if (!esiste(posizioni[campi::boxEmail])) campoMancante(posizioni[campi::boxEmail], punto);
    destinatario::Valori valori;
    valori[schema::email] = campo(campi::boxEmail);
    if (!EmailValida(valori[schema::email])) {
        if (rifiutato) *rifiutato = valori[schema::email];
        return std::nullopt;
    }
    for (int box = 0; box < campi::quanti; ++box) {
        const auto indice = static_cast<std::size_t>(box);
        if (box != campi::boxEmail && esiste(posizioni[indice])) valori[campi::colonne[indice]] = campo(box);
    }
    return valori;
}
