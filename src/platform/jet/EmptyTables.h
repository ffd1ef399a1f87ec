#pragma once

#include "platform/jet/DefinitionWriter.h"

namespace jet::empty {

/// Pages of an empty database. Only those up to 5 stand where they stand in every file.
inline constexpr uint32_t acesPage = 3;
inline constexpr uint32_t queriesPage = 4;
inline constexpr uint32_t relationshipsPage = 5;
inline constexpr uint32_t systemMapsPage = 6;
inline constexpr uint32_t objectsByNameRoot = 7;
inline constexpr uint32_t objectsByIdRoot = 8;
inline constexpr uint32_t acesRoot = 9;
inline constexpr uint32_t objectRowsPage = 14;
inline constexpr uint32_t aceRowsPage = 15;
inline constexpr uint32_t groupsPage = 16;
inline constexpr uint32_t recipientsPage = 19;
inline constexpr uint32_t propertiesPage = 22;

/// A column of a user's table.
struct UserColumn {
    const char* name;
    Type type;
    uint16_t characters = 0;
    bool autoNumber = false;
};

/// Columns of tb_gruppi and tb_destinatari, in their order.
extern const std::vector<UserColumn> groupColumns;
extern const std::vector<UserColumn> recipientColumns;

TablePlan objectsPlan(uint32_t rows);
/// `objects` is the number of objects that the rows are about.
TablePlan acesPlan(uint32_t rows, uint32_t objects);
TablePlan queriesPlan();
TablePlan relationshipsPlan();
/// A user's table with the primary key on its first column. Definition, map page and index root stand on
/// three pages in a row from `page` on.
TablePlan userPlan(uint32_t page, const std::vector<UserColumn>& columns);

/// Property list of a table's catalogue row: every text column may hold empty text.
Bytes propertyList(const std::vector<UserColumn>& columns);

}  // namespace jet::empty
