#pragma once

#include <random>
#include <string>

#include "platform/jet/Database.h"

/// A database of recipients with a second table of many kinds of indexes and memo values, and random
/// transactions on it. From one seed and one file a transaction always does the same.
namespace changes {

using Random = std::mt19937;

/// Makes the file, with up to `mostRows` rows.
void makeDatabase(const std::string& path, unsigned seed, int mostRows);

/// Opens the file and runs one transaction of 1 to `most` changes: rows that come, go, grow, shrink and move,
/// one for all rows now and then. Gives the first failure; what it left is undone.
Status runTransaction(const std::string& path, unsigned seed, int most,
                      const jet::Database::Options& options);

}  // namespace changes
