// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <QString>
#include <string>

#include "platform/ado/TableWalk.h"
#include "platform/Status.h"

/// A search for a text in every column that the grid shows, in all groups of a database, ignoring case
/// and accents. It goes over the table in parts and keeps a number for each group, not the recipients: those
/// are found once more when their group is on the screen.
class CercaOvunque {
  public:
    /// With an empty text every recipient counts.
    CercaOvunque(const QString& connessione, const QString& testo, bool soloSelezionati);

    /// Runs for about that long; true when the whole table was searched. FileInUse while another process
    /// writes: the same part can be tried again. After other failures the search cannot continue.
    Result<bool> Avanza(std::chrono::microseconds tempo);

    qint64 Trovati() const { return trovati; }
    /// How many each group has, 0 being the root; those whose group is Null are not among them.
    const std::map<std::int32_t, qint64>& PerCartella() const { return perCartella; }

  private:
    struct Colonne;
    void Guarda(const ado::WalkedRow& riga, const Colonne& colonne);
    bool Contiene(const ado::WalkedRow& riga, const Colonne& colonne);

    ado::TableWalk giro;
    const std::string cercato;  ///< folded
    const bool soloSelezionati;
    qint64 trovati = 0;
    std::map<std::int32_t, qint64> perCartella;
    std::string testo;
    std::string piegato;
};
