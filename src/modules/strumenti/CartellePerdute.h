// SPDX-License-Identifier: GPL-3.0-or-later
// The groups that are unreachable from the root, and how they are recovered.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <QString>

#include "modules/store/AlberoCartelle.h"
#include "platform/ado/TableWalk.h"
#include "platform/ado/Waiting.h"
#include "platform/Status.h"

/// The count of the recipients of each group of a database.
class ContaPerCartella {
  public:
    explicit ContaPerCartella(const QString& connessione)
        : giro(connessione, "tb_destinatari", ado::recordsetSeconds) {}

    /// Runs for about that long; true when the whole table was seen. Another program is waited for as a
    /// recordset waits for it. Fails like ado::TableWalk.
    Result<bool> Avanza(std::chrono::microseconds tempo);
    /// By the number of the group, whether there is such a group or not.
    const std::map<std::int32_t, qint64>& PerCartella() const { return perCartella; }
    /// Those whose group is Null.
    qint64 SenzaCartella() const { return senzaCartella; }

  private:
    ado::TableWalk giro;
    std::map<std::int32_t, qint64> perCartella;
    qint64 senzaCartella = 0;
};

/// What is unreachable from the root: the tree does not show it, yet its selected recipients get mail.
struct CartellePerdute {
    struct Voce {
        QString nome;
        qint64 destinatari;
        QString motivo;
    };
    CartellePerdute(const AlberoCartelle& albero, const ContaPerCartella& conta);

    std::vector<Voce> voci;  ///< lost groups first, then what the recipients' missing groups were
    qint64 cartelle = 0;
    qint64 destinatari = 0;
    std::vector<std::int32_t> mancanti;  ///< numbers of groups that recipients name and that are not there
    bool senzaCartella = false;          ///< some recipients name none
};

/// Puts lost groups of the current database, with all below them, and the recipients of groups that are not
/// there under the root. What was repaired meanwhile stays. Unguarded.
void RecuperaCartelle(const CartellePerdute& perdute);
