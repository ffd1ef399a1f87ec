// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <QString>

namespace ado {
class Recordset;
}

/// Choosing the group ("cartella") that gets the rows of an import: the beginning of every import.
namespace cartella {

/// The user's answer.
struct Scelta {
    bool selezionata = true;  ///< the current node; otherwise a new group
    QString nuova;            ///< name of the new group
};

/// How an import handles the failure of one of its statements: `senzaGuardia`, or, for the carry-on kind,
/// std::ref of its Prosegui.
using Passo = std::function<void(const std::function<void()>& istruzione)>;
void senzaGuardia(const std::function<void()>& istruzione);

/// Puts the node of a new group of the top level on the tree. Unguarded.
using NuovoNodo = std::function<void(const QString& id, const QString& nome)>;

/// The number of the group that gets the rows, for the statement; `rs` is a recordset on the current database
/// as RecordsetDB() makes it. The current node's; or that of a new group
/// at the top level, which is in the table and on the tree when this returns. Empty, with nothing made, when
/// the current node is wanted and there is none; the user has then read `avviso`.
std::optional<QString> Scegli(const Scelta& scelta, ado::Recordset& rs, const QString& avviso,
                              const Passo& passo, const NuovoNodo& nuovoNodo);

/// The usual text of `avviso`.
inline const QString avvisoCartella =
    QStringLiteral("Selezionare una cartella dove aggiungere i destinatari.");

}  // namespace cartella
