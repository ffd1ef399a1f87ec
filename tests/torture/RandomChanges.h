// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>
#include <string>

#include "platform/jet/Database.h"

/// A database of recipients with a second table of many kinds of indexes and memo values, and random
/// transactions on it. The same seed and file always give the same transaction.
namespace changes {

using Random = std::mt19937;

/// Makes the file, with up to `mostRows` rows.
void makeDatabase(const std::string& path, unsigned seed, int mostRows);

/// Opens the file and runs one transaction of 1 to `most` changes: rows are added, deleted, made longer,
/// shorter, moved; one for all rows now and then. Returns the first failure, whose changes are undone.
Status runTransaction(const std::string& path, unsigned seed, int most,
                      const jet::Database::Options& options);

}  // namespace changes
