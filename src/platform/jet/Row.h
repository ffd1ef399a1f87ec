// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/jet/TableDefinition.h"

namespace jet {

/// A parsed row, for changing and writing. Row layout:
///   u16 column count · fixed area · variable values · u16 offsets, backwards, one more than values ·
///   u16 number of variable values · null mask, bit c = column number c is not Null
/// The offsets and their number are missing in tables without variable columns. A yes/no column is its mask
/// bit. In files of Jet 3 those numbers are single bytes; such rows are only read, by storedField().
class Row {
  public:
    /// A row of that table in which everything is Null.
    explicit Row(const TableDefinition& definition);
    /// Parses stored bytes, keeping also what belongs to columns that are not understood or no longer
    /// there. Throws Failure when the row contradicts itself.
    Row(const TableDefinition& definition, std::span<const uint8_t> bytes);

    bool isNull(const Column& column) const;
    /// A column's stored bytes, valid until the row is changed.
    StoredField field(const Column& column) const;
    /// The value of a long, nothing for Null.
    std::optional<int32_t> longValue(const Column& column) const;
    /// Stores a value; false when nothing changed by it. Throws Failure, naming the column, for a value that
    /// the column cannot contain.
    bool set(const Column& column, const Value& value);
    /// Stores the bytes of a memo or OLE column, as in LongValue.h; nothing for Null.
    void setStored(const Column& column, std::optional<Bytes> bytes);
    /// The bytes to store. Throws Failure (RecordTooLarge) beyond the limit of a row.
    std::vector<uint8_t> bytes() const;

  private:
    void setMask(const Column& column, bool present);

    const TableDefinition* m_definition;
    std::vector<uint8_t> m_fixed;
    std::vector<Bytes> m_variable;
    std::vector<uint8_t> m_mask;
};

/// Null for whatever the row does not contain or what lies outside it.
StoredField storedField(const TableDefinition& definition, const Column& column,
                        std::span<const uint8_t> row);
/// The same of all columns, by position: for a caller that reads many of them, since the row is parsed once.
void storedFields(const TableDefinition& definition, std::span<const uint8_t> row,
                  std::vector<StoredField>& fields);
/// Where in a row the byte with the mask bit of a column is; nothing in a row that is older than the
/// column. Throws Failure when the row contradicts itself.
std::optional<size_t> maskByte(const TableDefinition& definition, const Column& column,
                               std::span<const uint8_t> row);
/// The mask bit of a column.
bool maskBit(const TableDefinition& definition, const Column& column, std::span<const uint8_t> row);

}  // namespace jet
