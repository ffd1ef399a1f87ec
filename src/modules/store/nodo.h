// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The group's number in the key of its node, as statements need it: the key without its first letter. The
/// root reads as "0", which is what groups of the top level have for a parent.
QString NumeroNodo(const QString& chiave);

/// The number of nodoCorrente. Unguarded: fails while no node was ever clicked.
QString NumeroNodoCorrente();

/// Whether the group is in the table; the root ("0") always is. Where the table cannot be read the group
/// counts as existing, and the next statement fails.
bool GruppoEsiste(const QString& numero);

/// Characters that the column of a group's name has room for in the current database; those of a new database
/// where it cannot be read. Ignores every failure.
int LarghezzaNomeGruppo();
