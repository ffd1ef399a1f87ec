#pragma once

#include <optional>

#include "platform/jet/TableDefinition.h"

namespace jet {

/// Index key of a long: Null is 00 (descending FF); else 7F and the value, big endian with its sign bit
/// flipped (descending 80 and those bytes inverted).
Bytes longKey(std::optional<int32_t> value, bool ascending);
/// The value of an ascending key of a long; nothing for Null or another key.
std::optional<int32_t> longOfKey(const Bytes& key);

/// The column of an index that the engine can keep right, one on a single long; null for every other index.
const Column* keptColumn(const TableDefinition& definition, const Index& index);

}  // namespace jet
