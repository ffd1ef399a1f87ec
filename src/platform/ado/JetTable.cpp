// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/JetTable.h"

#include <algorithm>
#include <utility>

#include "platform/ado/FieldValue.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

Status rowGone() {
    return {ErrorCode::NoCurrentRecord, Words::tr("Il record è stato eliminato.")};
}

}  // namespace

JetTable::JetTable(jet::Database& database, const jet::Table& table)
    : m_database(database), m_definition(table.definition()) {
    for (const jet::Column& column : m_definition.columns)
        m_names.push_back(QString::fromStdString(column.name));
}

Result<jet::Table*> JetTable::table() {
    if (!m_table) {
        const Result<jet::Table*> found = m_database.table(m_definition.name);
        if (!found.ok()) return found.status();
        m_table = found.value();
    }
    return m_table;
}

Status JetTable::read(jet::RowId id, StoredRow& row) {
    row.present = false;
    return read({&id, 1}, [&]() -> StoredRow& { return row; });
}

Status JetTable::read(std::span<const jet::RowId> ids, const std::function<StoredRow&()>& next) {
    const Result<jet::Table*> source = table();
    if (!source.ok()) return source.status();
    return source.value()->rows(ids, [&](const std::optional<jet::RowView>& found) {
        StoredRow& row = next();
        row.present = found.has_value();
        if (found) row.bytes.assign(found->bytes().begin(), found->bytes().end());
    });
}

Result<jet::Value> JetTable::longValue(jet::RowId id, size_t column) {
    const Result<jet::Table*> source = table();
    if (!source.ok()) return source.status();
    return source.value()->value(id, column);
}

Result<std::optional<jet::RowId>> JetTable::findByPrimaryKey(int32_t key) {
    const Result<jet::Table*> source = table();
    if (!source.ok()) return source.status();
    return source.value()->findByPrimaryKey(key);
}

Result<std::shared_ptr<const RowOrder>> JetTable::order(const OrderSpec& spec) {
    const Result<jet::Table*> source = table();
    if (!source.ok()) return source.status();
    renew(*source.value());
    const auto known =
        std::find_if(m_orders.begin(), m_orders.end(), [&](const auto& o) { return o->spec() == spec; });
    if (known != m_orders.end()) {
        std::rotate(known, known + 1, m_orders.end());
        return std::shared_ptr<const RowOrder>(m_orders.back());
    }
    auto made = std::make_shared<RowOrder>(spec);
    if (Status status = made->fill(*source.value()); !status.ok()) return status;
    // What was not sorted is made again in the time that it takes to compare the pages.
    if (m_prints.empty() && made->isSorted() && made->size() >= longOrder &&
        !source.value()->scanChanged(m_prints, [](jet::RowId, const jet::RowView&) { return false; }).ok())
        m_prints = {};
    if (m_orders.size() == keptOrders) m_orders.erase(m_orders.begin());
    m_orders.push_back(made);
    return std::shared_ptr<const RowOrder>(made);
}

Status JetTable::writable() {
    const Result<jet::Table*> target = table();
    return target.ok() ? target.value()->writable() : target.status();
}

Status JetTable::updatable(std::span<const size_t> columns) {
    const Result<jet::Table*> target = table();
    return target.ok() ? target.value()->updatable(columns) : target.status();
}

Result<int32_t> JetTable::takeAutoNumber() {
    const Result<jet::Table*> target = table();
    if (!target.ok()) return target.status();
    return target.value()->takeAutoNumber();
}

/// Before a row moves in the orders for which `affected` is true.
template <class Affected>
void JetTable::countMove(Affected affected) {
    if (++m_moves > mostMoves) std::erase_if(m_orders, [&](const auto& order) { return affected(*order); });
}

/// Updates the orders after a change; one that cannot be updated is made again when it is needed.
template <class Mend>
void JetTable::mend(Mend mend) {
    std::erase_if(m_orders, [&](const auto& order) { return !mend(*order).ok(); });
}

Status JetTable::insertFitted(std::vector<jet::Value> values) {
    for (size_t i = 0; i < values.size(); ++i) {
        Result<jet::Value> fitted = fitToColumn(std::move(values[i]), m_definition.columns[i]);
        if (!fitted.ok()) return fitted.status();
        values[i] = std::move(fitted).value();
    }
    return insert(values).status();
}

Result<jet::RowId> JetTable::insert(std::span<const jet::Value> values) {
    const Result<jet::Table*> target = table();
    if (!target.ok()) return target.status();
    countMove([](const RowOrder&) { return true; });
    Result<jet::RowId> id = target.value()->insert(values);
    if (id.ok()) m_prints.forget(id.value().page);
    if (!id.ok() || m_orders.empty()) return id;
    StoredRow row;
    if (Status status = read(id.value(), row); !status.ok()) return status;
    if (!row.present) return rowGone();
    mend([&](RowOrder& order) {
        const jet::RowView view(&m_definition, row.bytes);
        if (!order.spec().holds(view)) return Status();
        return order.add(*target.value(), order.spec().keyOf(view), id.value());
    });
    return id;
}

Status JetTable::update(jet::RowId id, std::span<const std::pair<size_t, jet::Value>> changes) {
    const Result<jet::Table*> target = table();
    if (!target.ok()) return target.status();
    const auto affected = [&](const RowOrder& order) {
        return std::any_of(changes.begin(), changes.end(),
                           [&](const auto& change) { return order.spec().uses(change.first); });
    };
    countMove(affected);
    m_prints.forget(id.page);
    const bool moves =
        std::any_of(m_orders.begin(), m_orders.end(), [&](const auto& order) { return affected(*order); });
    StoredRow old;
    if (moves) {
        if (Status status = read(id, old); !status.ok()) return status;
        if (!old.present) return rowGone();
    }
    Status status = target.value()->update(id, changes);
    if (!status.ok() || !moves) return status;
    StoredRow now;
    if (Status failed = read(id, now); !failed.ok()) return failed;
    if (!now.present) return rowGone();
    mend([&](RowOrder& order) -> Status {
        if (!affected(order)) return {};
        const jet::RowView before(&m_definition, old.bytes);
        const jet::RowView after(&m_definition, now.bytes);
        const OrderSpec& spec = order.spec();
        if (spec.holds(before))
            if (Status lost = order.remove(*target.value(), spec.keyOf(before), id); !lost.ok()) return lost;
        if (!spec.holds(after)) return {};
        return order.add(*target.value(), spec.keyOf(after), id);
    });
    return {};
}

Result<std::optional<int64_t>> JetTable::setYesNo(size_t column, bool value,
                                                  const std::function<bool()>& goOn) {
    const Result<jet::Table*> target = table();
    if (!target.ok()) return target.status();
    m_before.clear();
    m_prints = {};
    auto rows = target.value()->setYesNo(column, value, goOn);
    if (!rows.ok() || rows.value())
        std::erase_if(m_orders, [&](const auto& order) { return order->spec().uses(column); });
    return rows;
}

Status JetTable::erase(jet::RowId id) {
    const Result<jet::Table*> target = table();
    if (!target.ok()) return target.status();
    countMove([](const RowOrder&) { return true; });
    m_prints.forget(id.page);
    if (!m_orders.empty()) {
        StoredRow row;
        if (Status status = read(id, row); !status.ok()) return status;
        if (!row.present) return rowGone();
        mend([&](RowOrder& order) {
            const jet::RowView view(&m_definition, row.bytes);
            if (!order.spec().holds(view)) return Status();
            return order.remove(*target.value(), order.spec().keyOf(view), id);
        });
    }
    return target.value()->erase(id);
}

void JetTable::forget() {
    m_table = nullptr;
    m_orders.clear();
    m_before.clear();
    m_prints = {};
}

/// What was made before the last change and not needed since stays as it was; pages that were changed here
/// meanwhile count as changed.
void JetTable::changedOutside() {
    m_table = nullptr;
    m_before.insert(m_before.end(), m_orders.begin(), m_orders.end());
    m_orders.clear();
    if (m_prints.empty()) m_before.clear();
    if (m_before.empty()) m_prints = {};
}

/// Before an order is looked for: brings those of before a change from outside in line with the table. One
/// that cannot be, or in which too many rows may have moved, is made again when it is needed.
void JetTable::renew(jet::Table& table) {
    const auto before = std::exchange(m_before, {});
    if (before.empty()) return;
    std::vector<std::pair<jet::RowId, jet::Bytes>> rows;
    const auto pages = table.scanChanged(m_prints, [&](jet::RowId id, const jet::RowView& row) {
        rows.emplace_back(id, jet::Bytes(row.bytes().begin(), row.bytes().end()));
        return rows.size() <= mostMoves;
    });
    if (!pages.ok()) m_prints = {};
    if (!pages.ok() || rows.size() > mostMoves) return;
    for (const auto& order : before) {
        // A recordset that is open goes on in the order as it was.
        const bool read = order.use_count() > 1;
        const auto renewed = read ? std::make_shared<RowOrder>(*order) : order;
        renewed->drop(pages.value());
        const bool right = std::all_of(rows.begin(), rows.end(), [&](const auto& row) {
            return renewed->take(table, jet::RowView(&m_definition, row.second), row.first).ok();
        });
        if (right) m_orders.push_back(renewed);
    }
}

bool JetTable::stillTheSame() {
    const Result<jet::Table*> source = table();
    if (!source.ok()) return false;
    const auto& now = source.value()->definition().columns;
    return std::equal(now.begin(), now.end(), m_definition.columns.begin(), m_definition.columns.end(),
                      [](const jet::Column& a, const jet::Column& b) {
                          return a.name == b.name && a.type == b.type && a.number == b.number &&
                                 a.length == b.length && a.variableIndex == b.variableIndex &&
                                 a.fixedOffset == b.fixedOffset;
                      });
}

}  // namespace ado
