// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/DefinitionWriter.h"
#include "platform/jet/NewDatabase.h"

namespace jet::empty {

/// Pages of an empty database. Only those up to 5 have the same numbers in every file.
inline constexpr uint32_t acesPage = 3;
inline constexpr uint32_t queriesPage = 4;
inline constexpr uint32_t relationshipsPage = 5;
inline constexpr uint32_t systemMapsPage = 6;
inline constexpr uint32_t objectsByNameRoot = 7;
inline constexpr uint32_t objectsByIdRoot = 8;
inline constexpr uint32_t acesRoot = 9;
inline constexpr uint32_t objectRowsPage = 14;
inline constexpr uint32_t aceRowsPage = 15;
inline constexpr uint32_t firstUserPage = 16;
inline constexpr uint32_t pagesOfUserTable = 3;

TablePlan objectsPlan(uint32_t rows);
/// `objects` is the number of objects that the rows are about.
TablePlan acesPlan(uint32_t rows, uint32_t objects);
TablePlan queriesPlan();
TablePlan relationshipsPlan();
/// A user's table with the primary key on its first column. Definition, map page and index root are on
/// three pages in a row from `page` on.
TablePlan userPlan(uint32_t page, const std::vector<NewColumn>& columns);

/// Property list of a table's catalogue row: which texts may be empty. Empty where none may.
Bytes propertyList(const std::vector<NewColumn>& columns);

}  // namespace jet::empty
