// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "platform/jet/TableDefinition.h"

namespace jet {

/// Sets `required` and `allowZeroLength` of a table's columns from its property list, the value of LvProp in
/// the catalogue:
///   "MR2" NUL, then chunks: u32 length (itself included) · u16 type
///   type 0x80  names: u16 byte length, UTF-16LE, one after the other
///   type 1     a column: u32 length of the name block (itself included) · u16 byte length, name; then for
///              each property: u16 length (itself included) · u8 · u8 data type · u16 which name · u16 data
///              length · data
/// From where a list contradicts itself nothing more is taken: columns without a property accept everything.
void applyProperties(std::span<const uint8_t> list, TableDefinition& table);

}  // namespace jet
