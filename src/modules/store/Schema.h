#pragma once

#include <array>
#include <string_view>

/// The two tables of a recipient database, as the program expects them. It never creates one; the build does
/// (NuovoDatabase.h).
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

/// Characters that the column of a group's name holds in a new database.
inline constexpr int larghezzaNomeGruppo = 255;

inline constexpr std::array<Colonna, 3> colonneGruppi{{
    {u"id", Tipo::Contatore},
    {u"id_up", Tipo::Lungo},
    {u"nome", Tipo::Testo},
}};

/// The grid shows and labels the recipients' columns by position: number and order are part of the design.
inline constexpr std::array<Colonna, 22> colonneDestinatari{{
    {u"id", Tipo::Contatore},      {u"id_grp", Tipo::Lungo},      {u"rgs", Tipo::Testo, 70},
    {u"nom", Tipo::Testo, 70},     {u"piva", Tipo::Testo, 15},    {u"ind", Tipo::Testo, 255},
    {u"cap", Tipo::Testo, 10},     {u"loc", Tipo::Testo, 70},     {u"prov", Tipo::Testo, 2},
    {u"tel", Tipo::Testo, 15},     {u"fax", Tipo::Testo, 15},     {u"email", Tipo::Testo, 255},
    {u"campo1", Tipo::Testo, 255}, {u"campo2", Tipo::Testo, 255}, {u"campo3", Tipo::Testo, 255},
    {u"campo4", Tipo::Testo, 255}, {u"campo5", Tipo::Testo, 255}, {u"campo6", Tipo::Testo, 255},
    {u"campo7", Tipo::Testo, 255}, {u"campo8", Tipo::Testo, 255}, {u"campo9", Tipo::Testo, 255},
    {u"sel", Tipo::SiNo},
}};

}  // namespace schema
