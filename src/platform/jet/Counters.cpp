// SPDX-License-Identifier: GPL-3.0-or-later
// The counters in the definition of a table.
#include <cassert>

#include "platform/jet/Engine.h"
#include "platform/jet/Format.h"

namespace jet {

int32_t TableState::lastAutoNumber() {
    return static_cast<int32_t>(load32(&(*file.page(definition.page))[definition::autoNumber]));
}

void TableState::setAutoNumber(int32_t last) {
    store32(&file.change(definition.page)[definition::autoNumber], static_cast<uint32_t>(last));
}

void TableState::addToRowCount(int change) {
    assert(change == 1 || change == -1);  // D1
    uint8_t* count = &file.change(definition.page)[definition::rowCount];
    if (change > 0 || load32(count) > 0) store32(count, load32(count) + static_cast<uint32_t>(change));
}

// The number of different keys is exact in a unique index only; elsewhere it is not kept so, and stays.
void TableState::addToKeyCount(size_t index, int change) {
    const size_t at = definition::indexCounts + index * definition::indexCountLength + 4;
    if (!definition.indexes[index].unique || at + 4 > pageSize) return;
    uint8_t* count = &file.change(definition.page)[at];
    if (change > 0 || load32(count) > 0) store32(count, load32(count) + static_cast<uint32_t>(change));
}

}  // namespace jet
