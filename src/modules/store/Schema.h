// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The two tables of a recipient database, as the program expects them, and what it knows of each text of a
/// recipient. The program never makes a table; the build does (NuovoDatabase.h).

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace schema {

inline constexpr std::u16string_view tabellaGruppi = u"tb_gruppi";
inline constexpr std::u16string_view tabellaDestinatari = u"tb_destinatari";

enum class Tipo {
    Contatore,  ///< auto-number, long, primary key
    Lungo,
    Testo,
    SiNo,
};

struct Colonna {
    std::u16string_view nome;
    Tipo tipo;
    int massimo = 0;  ///< most characters of a text; 0 for no limit of the program's own
};

/// Characters of the one text without a limit of the program's own, a group's name, in a new database.
inline constexpr int larghezzaNomeGruppo = 255;

inline constexpr std::array<Colonna, 3> colonneGruppi{{
    {u"id", Tipo::Contatore},
    {u"id_up", Tipo::Lungo},
    {u"nome", Tipo::Testo},
}};

/// The texts of a recipient, in the order of the table.
enum Campo : std::size_t {
    rgs,
    nom,
    piva,
    ind,
    cap,
    loc,
    prov,
    tel,
    fax,
    email,
    campo1,
    campo2,
    campo3,
    campo4,
    campo5,
    campo6,
    campo7,
    campo8,
    campo9,
    numeroCampi
};

/// What statements, windows, imports and placeholders know of one.
struct TestoDestinatario {
    std::u16string_view colonna;  ///< of the table, and the name between the colons of its placeholder
    int massimo;                  ///< most characters that are kept, counted from the left
    std::u16string_view
        didascalia;                 ///< in the editor's menu and, before a colon, over the boxes of an import
    std::string_view chiaveLingua;  ///< of bVAR, its heading in grid and form; "": the caption, untranslated
};

inline constexpr std::array<TestoDestinatario, numeroCampi> testi{{
    {u"rgs", 70, u"Ragione Sociale", "xxxRagioneSociale"},
    {u"nom", 70, u"Nome", "xxxNome"},
    {u"piva", 15, u"P.Iva o Cod.Fis.", "xxxPIva"},
    {u"ind", 255, u"Indirizzo", "xxxIndirizzo"},
    {u"cap", 10, u"CAP", "xxxCAP"},
    {u"loc", 70, u"Località", "xxxLocalita"},
    {u"prov", 2, u"Provincia", "xxxProvincia"},
    {u"tel", 15, u"Telefono", "xxxTelefono"},
    {u"fax", 15, u"Fax", "xxxFax"},
    {u"email", 255, u"Email", ""},
    {u"campo1", 255, u"Campo 1", "xxxCampo1"},
    {u"campo2", 255, u"Campo 2", "xxxCampo2"},
    {u"campo3", 255, u"Campo 3", "xxxCampo3"},
    {u"campo4", 255, u"Campo 4", "xxxCampo4"},
    {u"campo5", 255, u"Campo 5", "xxxCampo5"},
    {u"campo6", 255, u"Campo 6", "xxxCampo6"},
    {u"campo7", 255, u"Campo 7", "xxxCampo7"},
    {u"campo8", 255, u"Campo 8", "xxxCampo8"},
    {u"campo9", 255, u"Campo 9", "xxxCampo9"},
}};

using Ordine = std::array<Campo, numeroCampi>;

consteval Ordine OrdineTabella() {
    Ordine ordine{};
    for (std::size_t i = 0; i < ordine.size(); ++i)
        ordine[i] = static_cast<Campo>(i);
    return ordine;
}

/// The order with one field moved to that place.
consteval Ordine Sposta(Ordine ordine, Campo campo, std::size_t posto) {
    const auto da = std::ranges::find(ordine, campo);
    const auto a = ordine.begin() + static_cast<std::ptrdiff_t>(posto);
    if (da < a)
        std::rotate(da, da + 1, a + 1);
    else
        std::rotate(a, da, da + 1);
    return ordine;
}

/// The table: what a copy of a group takes along, and the columns of the grid but for the address.
inline constexpr Ordine ordineTabella = OrdineTabella();
/// The form, and the statements that write one recipient.
inline constexpr Ordine ordineIstruzioni = Sposta(ordineTabella, email, 0);
/// The editor's menu, and in turn the replacements in a message.
inline constexpr Ordine ordineSegnaposto = Sposta(ordineTabella, email, 2);

/// The columns of the table. The grid shows and labels them by position: number and order are part of the
/// design.
inline constexpr auto colonneDestinatari = [] {
    std::array<Colonna, numeroCampi + 3> colonne{{{u"id", Tipo::Contatore}, {u"id_grp", Tipo::Lungo}}};
    for (std::size_t i = 0; i < numeroCampi; ++i)
        colonne[i + 2] = {testi[i].colonna, Tipo::Testo, testi[i].massimo};
    colonne.back() = {u"sel", Tipo::SiNo};
    return colonne;
}();

}  // namespace schema
