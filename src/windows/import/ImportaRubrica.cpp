// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/import/ImportaRubrica.h"

#include <QScopeGuard>
#include <vector>

#include "modules/import/bWab.h"
#include "modules/import/UltimaImportazione.h"
#include "platform/text/Words.h"
#include "windows/core/Puntatore.h"
#include "windows/import/ImportaContatti.h"

void ImportaRubrica(const ViciniContatti& vicini) {
    ImportaContatti importa(vicini);
    if (!importa.Comincia(Words::tr("rubrica"))) return;
    contacts::AddressBook rubrica;
    if (!rubrica.open().ok()) return;

    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    importa.Conta(rubrica.entryCount());
    std::vector<contacts::Entry> voci(static_cast<std::size_t>(rubrica.entryCount()));
    const int lette = rubrica.entries(voci);
    for (int i = 0; i < lette; ++i) {
        QString rifiutato;
        if (const auto valori = LeggiVoceWab(rubrica, voci[static_cast<std::size_t>(i)], &rifiutato))
            importa.Inserisci(i + 1, *valori);
        else
            ultimaImportazione().Rifiutata(i + 1, rifiutato, MotivoIndirizzo(rifiutato));
        importa.Avanza();
    }
    importa.Finisci();
    rubrica.freeEntries(voci);
    rubrica.close();
}
