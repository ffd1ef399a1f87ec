// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Database.h"
#include "platform/jet/Format.h"
#include "platform/jet/Row.h"
#include "platform/jet/ValueCodec.h"

namespace jet {

bool RowView::isNull(size_t column) const {
    const Column& c = m_definition->columns[column];
    return c.type != Type::YesNo && storedField(*m_definition, c, m_bytes).null;
}

bool RowView::yesNo(size_t column) const {
    return maskBit(*m_definition, m_definition->columns[column], m_bytes);
}

int64_t RowView::integer(size_t column) const {
    return wholeNumber(m_definition->columns[column], field(column));
}

bool RowView::text(size_t column, std::string& out) const {
    const Column& c = m_definition->columns[column];
    const StoredField field = storedField(*m_definition, c, m_bytes);
    if (!field.null) appendStoredText(c, field.bytes, out);
    return !field.null;
}

StoredField RowView::field(size_t column) const {
    return storedField(*m_definition, m_definition->columns[column], m_bytes);
}

void RowView::fields(std::vector<StoredField>& all) const {
    storedFields(*m_definition, m_bytes, all);
}

Value RowView::value(size_t column) const {
    const Column& c = m_definition->columns[column];
    if (c.type == Type::YesNo) return maskBit(*m_definition, c, m_bytes);
    const StoredField field = storedField(*m_definition, c, m_bytes);
    if (field.null) return {};
    if (c.type == Type::Memo || c.type == Type::Ole) {
        // 12 bytes: length, place, pointer; the bytes themselves only follow at place 2.
        if (field.bytes.size() < 12 || (field.bytes[3] & 0x80) == 0) return {};
        const size_t length = load32(field.bytes.data()) & 0x3FFFFFFF;
        const auto rest = field.bytes.subspan(12);
        return decodeValue(c, rest.first(std::min(rest.size(), length)));
    }
    return decodeValue(c, field.bytes);
}

}  // namespace jet
