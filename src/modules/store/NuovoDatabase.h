// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "modules/store/Schema.h"
#include "platform/jet/NewDatabase.h"

/// An empty recipient database: the installed one, and those of the tests. It needs no Qt.
namespace schema {

/// The definition of a table for the storage engine. Its texts may be empty, where the description says so.
template <std::size_t colonne>
jet::NewTable TabellaNuova(std::u16string_view nome, const std::array<Colonna, colonne>& descritte,
                           bool testiVuoti = true) {
    const auto ascii = [](std::u16string_view testo) { return std::string(testo.begin(), testo.end()); };
    jet::NewTable tabella{ascii(nome), {}};
    for (const Colonna& colonna : descritte) {
        jet::NewColumn nuova{.name = ascii(colonna.nome)};
        nuova.autoNumber = colonna.tipo == Tipo::Contatore;
        if (colonna.tipo == Tipo::SiNo) nuova.type = jet::Type::YesNo;
        if (colonna.tipo == Tipo::Testo) {
            nuova.type = jet::Type::Text;
            nuova.characters = static_cast<uint16_t>(colonna.massimo ? colonna.massimo : larghezzaNomeGruppo);
            nuova.emptyAllowed = testiVuoti;
        }
        tabella.columns.push_back(std::move(nuova));
    }
    return tabella;
}

/// The two tables.
inline std::vector<jet::NewTable> TabelleNuove() {
    return {TabellaNuova(tabellaGruppi, colonneGruppi), TabellaNuova(tabellaDestinatari, colonneDestinatari)};
}

/// Writes the database to `percorso`, the bytes of a file name. Fails as jet::createDatabase().
inline Status CreaDatabase(const std::string& percorso) {
    return jet::createDatabase(percorso, TabelleNuove());
}

}  // namespace schema
