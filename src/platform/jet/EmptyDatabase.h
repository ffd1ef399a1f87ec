#pragma once

#include <vector>

#include "platform/jet/Format.h"

namespace jet {

/// How much an empty database holds.
enum class EmptyContent {
    SystemTables,     ///< 16 pages: what any file needs
    RecipientTables,  ///< and the two tables of the recipient list
    WithProperties,   ///< and the field properties that allow empty text
};

/// The pages of a new database, made from nothing. The same bytes at each call.
std::vector<Page> emptyDatabase(EmptyContent content);

}  // namespace jet
