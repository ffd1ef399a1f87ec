// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QString>

#include "modules/store/Schema.h"

/// The texts of a recipient as values, and the statements that write them. Values go into a statement
/// unquoted: a single quote in one makes it invalid.
namespace destinatario {

/// By schema::Campo. What a source has nothing for stays empty.
using Valori = std::array<QString, schema::numeroCampi>;

QString NomeColonna(schema::Campo campo);
/// "Ragione Sociale".
QString Didascalia(schema::Campo campo);
/// ":::rgs:::", which a message has in place of the value.
QString Segnaposto(schema::Campo campo);

/// The value, cut to the size of its column.
QString Taglia(QStringView valore, schema::Campo campo);

/// Inserts a recipient into the group of that number. `spedire`: "True" or "False".
QString IstruzioneNuovo(const QString& gruppo, const QString& spedire, const Valori& valori);
/// Changes the recipient of the number `id`.
QString IstruzioneModifica(const QString& id, const QString& gruppo, const QString& spedire,
                           const Valori& valori);
/// Copies all recipients of a group into another.
QString IstruzioneCopia(const QString& daGruppo, const QString& aGruppo);

}  // namespace destinatario
