#pragma once

#include <array>

#include "modules/import/Inserimento.h"

/// The 19 boxes in which the user says what feeds which column, the same in both windows that have them.
namespace campi {

inline constexpr int quanti = inserimento::numeroColonne;
/// The box of the address, the one that has to be filled.
inline constexpr int boxEmail = 2;

/// What a box shows while nothing feeds its column.
inline const QString nessuno = QStringLiteral(" ---------- ");

/// The column of each box.
inline constexpr std::array<inserimento::Colonna, quanti> colonne{
    inserimento::rgs,    inserimento::nom,    inserimento::email,  inserimento::piva,   inserimento::cap,
    inserimento::loc,    inserimento::prov,   inserimento::ind,    inserimento::tel,    inserimento::fax,
    inserimento::campo1, inserimento::campo2, inserimento::campo3, inserimento::campo4, inserimento::campo5,
    inserimento::campo6, inserimento::campo7, inserimento::campo8, inserimento::campo9};

/// The label that stands above each box: four of them have another number than their box.
inline constexpr std::array<int, quanti> etichette{0,  1,  2,  3,  5,  6,  7,  4,  8, 9,
                                                   10, 11, 12, 13, 14, 15, 16, 17, 18};

}  // namespace campi
