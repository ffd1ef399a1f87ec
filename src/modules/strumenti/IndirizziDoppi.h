// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <QString>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ado/TableWalk.h"
#include "platform/ado/Waiting.h"
#include "platform/Status.h"

/// The addresses that occur more than once among the selected recipients of a database. Case makes no
/// difference, nor blanks at the ends; recipients without an address are left out.
class IndirizziDoppi {
  public:
    struct Destinatario {
        std::int32_t id;
        std::int32_t gruppo;
        bool senzaGruppo;  ///< id_grp is Null
    };
    struct Doppio {
        QString indirizzo;                      ///< as the first of them has it, without blanks at the ends
        std::vector<Destinatario> destinatari;  ///< by rising number: the first stays selected
    };

    explicit IndirizziDoppi(const QString& connessione)
        : giro(connessione, "tb_destinatari", ado::recordsetSeconds) {}

    /// Runs for about that long; true when the whole table was seen. Another program is waited for as a
    /// recordset waits for it. Fails like ado::TableWalk.
    Result<bool> Avanza(std::chrono::microseconds tempo);
    /// By address; what is found so far.
    std::vector<Doppio> Doppi() const;

  private:
    struct Trovato {
        QString indirizzo;
        std::vector<Destinatario> destinatari;
    };

    ado::TableWalk giro;
    std::unordered_map<std::string, Trovato> trovati;
    std::string testo;
};

/// Deselects all recipients of each address but the first, in the current database. Unguarded.
void DeselezionaDoppi(const std::vector<IndirizziDoppi::Doppio>& doppi);
