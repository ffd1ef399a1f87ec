#include "import/ImportaRubrica.h"

#include <QScopeGuard>
#include <vector>

#include "core/Puntatore.h"
#include "import/bWab.h"
#include "import/ImportaContatti.h"

void ImportaRubrica() {
    ImportaContatti importa;
    if (!importa.Comincia()) return;
    contacts::AddressBook rubrica;
    if (!rubrica.open().ok()) return;

    PuntatoreAttesa();
    const auto fatto = qScopeGuard(PuntatorePredefinito);
    importa.Conta(rubrica.entryCount());
    std::vector<contacts::Entry> voci(static_cast<std::size_t>(rubrica.entryCount()));
    const int lette = rubrica.entries(voci);
    for (int i = 0; i < lette; ++i) {
        if (const auto valori = LeggiVoceWab(rubrica, voci[static_cast<std::size_t>(i)]))
            importa.Inserisci(*valori);
        importa.Avanza();
    }
    importa.Finisci();
    rubrica.freeEntries(voci);
    rubrica.close();
}
