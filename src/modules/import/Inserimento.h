// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "modules/store/Destinatario.h"
#include "platform/ado/GroupedInserts.h"

/// The prepared command of one import: an INSERT for each recipient, selected for sending. Rows are written
/// to disk in groups: a crash of the program loses at most those of the last moments, while everything else
/// uses the database in this program sees them all.
class Inserimento {
  public:
    /// Prepares the command on the current database. Unguarded.
    void Prepara();
    /// Inserts one recipient. Unguarded: a row that is refused leaves those before it and the database as
    /// they are.
    void Inserisci(const QString& gruppo, const destinatario::Valori& valori);
    /// Rows that are in the database for good.
    qint64 Scritti() const { return comando.committed(); }
    /// Writes the last rows to disk, as the destructor does. Unguarded.
    void Conferma();

  private:
    ado::GroupedInserts comando;
};
