// SPDX-License-Identifier: GPL-3.0-or-later
#include "modules/store/CercaOvunque.h"

#include <optional>

#include "platform/text/Folding.h"

/// The positions of the columns in the table.
struct CercaOvunque::Colonne {
    explicit Colonne(const jet::TableDefinition& tabella)
        : id(tabella.find("id")), gruppo(tabella.find("id_grp")), sel(tabella.find("sel")) {
        for (std::size_t colonna = 0; colonna < tabella.columns.size(); ++colonna)
            if (colonna != id && colonna != gruppo && tabella.columns[colonna].type != jet::Type::YesNo)
                mostrate.push_back(colonna);
    }
    std::optional<std::size_t> id;
    std::optional<std::size_t> gruppo;
    std::optional<std::size_t> sel;
    std::vector<std::size_t> mostrate;
};

CercaOvunque::CercaOvunque(const QString& connessione, const QString& daCercare, bool soloSel)
    : giro(connessione, "tb_destinatari"), cercato(text::folded(daCercare)), soloSelezionati(soloSel) {}

Result<bool> CercaOvunque::Avanza(std::chrono::microseconds tempo) {
    std::optional<Colonne> colonne;
    return giro.step(tempo, [&](const ado::WalkedRow& riga) {
        if (!colonne) colonne.emplace(riga.definition());
        Guarda(riga, *colonne);
    });
}

void CercaOvunque::Guarda(const ado::WalkedRow& riga, const Colonne& colonne) {
    if (soloSelezionati && !(colonne.sel && riga.yesNo(*colonne.sel))) return;
    if (!cercato.empty() && !Contiene(riga, colonne)) return;
    ++trovati;
    if (colonne.gruppo && !riga.isNull(*colonne.gruppo))
        ++perCartella[static_cast<std::int32_t>(riga.integer(*colonne.gruppo))];
}

bool CercaOvunque::Contiene(const ado::WalkedRow& riga, const Colonne& colonne) {
    testo.clear();
    for (const std::size_t colonna : colonne.mostrate) {
        riga.appendText(colonna, testo);
        testo += '\n';  // in no text that is typed
    }
    piegato.clear();
    text::appendFolded(testo, piegato);
    return piegato.find(cercato) != std::string::npos;
}
