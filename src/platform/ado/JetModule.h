// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sqlite3.h>

namespace ado {

/// The virtual table that lets SQLite read and write the rows of a Jet table. Its client data is the Session,
/// whose declared() finds the table by the name with which SQLite connects it.
///
/// A comparison with a constant on the primary key uses the file's index. One on another whole number or
/// yes/no, and ORDER BY, come from an order of rows (RowOrder), so SQLite neither filters nor sorts for them.
extern const sqlite3_module jetModule;

}  // namespace ado
