// SPDX-License-Identifier: GPL-3.0-or-later
// The description of a new database, and the routine that writes it.
#pragma once

#include <string>
#include <vector>

#include "platform/jet/Value.h"
#include "platform/PlainStatus.h"

namespace jet {

/// A column of a table that a new database gets.
struct NewColumn {
    std::string name;  ///< up to 64 letters and digits of ASCII and "_"; no two alike, whatever the case
    Type type = Type::Long;     ///< Long, Text or YesNo
    uint16_t characters = 0;    ///< most characters of a text, 1 to 255
    bool autoNumber = false;    ///< of one Long: the engine numbers the rows
    bool emptyAllowed = false;  ///< of a Text: it may be empty ("AllowZeroLength")
};

/// A table that a new database gets. Its first column, a Long, is the primary key.
struct NewTable {
    std::string name;  ///< as that of a column; not beginning with "MSys"
    std::vector<NewColumn> columns;
};

/// Whether the description is of the form above.
bool canBeMade(const std::vector<NewTable>& tables);

/// Writes a database with these tables, all without rows, to `path`, given as for Database::open(). Fails
/// when the file exists (PathAccess), and for a description that is not of the form above or does not fit on
/// the pages of an empty database, some dozen tables (Internal).
Status createDatabase(const std::string& path, const std::vector<NewTable>& tables);

}  // namespace jet
