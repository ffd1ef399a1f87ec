// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of one line of a text import.
#pragma once

#include <array>
#include <optional>

#include "modules/import/campi.h"
#include "modules/store/Destinatario.h"

/// The progress of an import: the line that is read, counted from 1, and the recipients it has inserted.
struct PuntoImportazione {
    qint64 riga = 1;
    qint64 inseriti = 0;
};

/// One line of a delimited text file. Quotes around fields are not recognised: a separator splits wherever
/// it occurs.
struct RigaTesto {
    /// How many fields of a line can be chosen.
    static constexpr int campiOfferti = 18;

    /// The separator of fields, case-sensitive; an empty one does not split the line.
    QString separatore;
    /// For each box the field that feeds its column, counted from 1; 0 for none.
    std::array<int, campi::quanti> posizioni{};

    /// The cleaned values of a line, cut to their limits beforehand. None when its address is refused.
    /// Unguarded: fails with SubscriptOutOfRange when the line has no field for the address; an empty line
    /// has no field at all. The text then contains the line, the field and the number inserted.
    /// A refused address goes into `rifiutato`.
    std::optional<destinatario::Valori> Leggi(const QString& riga, const PuntoImportazione& punto = {},
                                              QString* rifiutato = nullptr) const;
};
