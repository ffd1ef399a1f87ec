// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <QString>

#include "modules/store/Schema.h"

/// The 19 boxes in which the user says what feeds which column, the same in both windows that have them.
namespace campi {

inline constexpr int quanti = schema::numeroCampi;
/// The box of the address, the one that has to be filled.
inline constexpr int boxEmail = 2;

/// What a box shows while nothing feeds its column.
inline const QString nessuno = QStringLiteral(" ---------- ");

/// The column of each box: as the placeholders, the street after the province.
inline constexpr schema::Ordine colonne = schema::Sposta(schema::ordineSegnaposto, schema::ind, 7);

/// The number of the label above each box, its place among the placeholders: four of them have another number
/// than their box.
inline constexpr auto etichette = [] {
    std::array<int, quanti> numeri{};
    std::ranges::transform(colonne, numeri.begin(), [](schema::Campo colonna) {
        const auto& ordine = schema::ordineSegnaposto;
        return static_cast<int>(std::ranges::find(ordine, colonna) - ordine.begin());
    });
    return numeri;
}();

}  // namespace campi
