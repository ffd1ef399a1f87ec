// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Rows.h"

#include <cmath>
#include <cstring>
#include <numeric>

#include "platform/ado/RawValue.h"

namespace ado {

namespace {

/// A name for a row's identity that no column of the table hides.
const char* identityName(const jet::TableDefinition& table) {
    for (const char* name : {"rowid", "oid", "_rowid_"})
        if (!table.find(name)) return name;
    return nullptr;
}

/// The order that those clauses ask for; nothing where SQLite has to see to it.
std::optional<OrderSpec> orderOf(const StatementText::Plain& plain, const jet::TableDefinition& table) {
    OrderSpec order;
    if (plain.group) {
        order.group = table.find(*plain.group);
        if (!order.group || order.group == table.longPrimaryKey()) return std::nullopt;
        const jet::Type type = table.columns[*order.group].type;
        if (!OrderSpec::canGroup(type)) return std::nullopt;
        const bool yesNo = type == jet::Type::YesNo;
        if (yesNo && plain.number != 0 && plain.number != -1) return std::nullopt;
        order.number = yesNo ? plain.number != 0 : plain.number;
    }
    for (const StatementText::Plain::Part& part : plain.order) {
        const std::optional<size_t> column = table.find(part.column);
        if (!column || !OrderSpec::canSort(table.columns[*column].type)) return std::nullopt;
        order.parts.push_back({*column, part.ascending});
    }
    return order;
}

}  // namespace

Result<std::unique_ptr<Rows>> Rows::run(const std::shared_ptr<Session>& session, StatementText statement) {
    const Result<JetTable*> table = session->table(statement.table);
    if (!table.ok()) return table.status();
    std::unique_ptr<Rows> rows(new Rows(session));
    rows->m_literals = std::move(statement.values);
    const jet::TableDefinition& definition = table.value()->definition();
    if (const char* identity = identityName(definition);
        identity && statement.list && rows->takeColumns(*table.value(), *statement.list)) {
        rows->m_table = table.value();
        if (statement.plain) rows->m_wanted = orderOf(*statement.plain, definition);
        if (rows->m_wanted) {
            session->enlist(rows.get());
            return rows;
        }
        statement.sql.replace(statement.list->at, statement.list->size, QByteArray(identity) + ' ');
    }
    Result<Prepared> prepared = session->prepare(statement.sql, rows->m_literals);
    if (!prepared.ok()) return prepared.status();
    rows->m_statement = std::move(prepared).value();
    if (!rows->m_table)
        for (int i = 0; i < sqlite3_column_count(rows->m_statement.get()); ++i)
            rows->m_names.push_back(QString::fromUtf8(sqlite3_column_name(rows->m_statement.get(), i)));
    session->enlist(rows.get());
    return rows;
}

/// False where the list names something that is no column.
bool Rows::takeColumns(const JetTable& table, const StatementText::List& list) {
    m_whole = list.columns.empty();
    if (m_whole) {
        m_names = table.names();
        m_columns.resize(m_names.size());
        std::iota(m_columns.begin(), m_columns.end(), size_t{0});
        return true;
    }
    for (const std::string& name : list.columns) {
        const std::optional<size_t> column = table.definition().find(name);
        if (!column) return false;
        m_columns.push_back(*column);
        m_names.push_back(table.names()[*column]);
    }
    return true;
}

Rows::~Rows() {
    m_session->delist(this);
}

Status Rows::reach(size_t count) {
    if (known() >= count) return {};
    if (ended()) return m_failure;
    const jet::ReadScope reading(m_session->database());
    if (!reading.status().ok()) return reading.status();
    return m_wanted ? follow(count) : step(count);
}

Status Rows::follow(size_t count) {
    if (!m_order) {
        auto order = m_table->order(*m_wanted);
        if (!order.ok()) {
            m_wanted.reset();
            return m_failure = order.status();
        }
        m_order = std::move(order).value();
        m_next = m_order->begin();
    }
    const RowOrder::Place end = m_order->end();
    for (; m_next != end && known() < count; m_next = m_order->next(m_next))
        m_ids.push_back(m_order->at(m_next));
    if (m_next != end) return {};
    m_order.reset();
    m_wanted.reset();
    return {};
}

Status Rows::step(size_t count) {
    while (m_statement && known() < count) {
        const int code = sqlite3_step(m_statement.get());
        if (code == SQLITE_DONE) {
            m_statement.reset();
            break;
        }
        if (code != SQLITE_ROW) {
            m_failure = m_session->takeFailure();
            m_statement.reset();
            return m_failure;
        }
        if (m_table) {
            m_ids.push_back(jet::RowId::fromInteger(sqlite3_column_int64(m_statement.get(), 0)));
            continue;
        }
        std::vector<Value>& row = m_values.emplace_back();
        for (size_t i = 0; i < m_names.size(); ++i)
            row.push_back(valueOf(static_cast<int>(i)));
    }
    return {};
}

Value Rows::valueOf(int column) const {
    sqlite3_stmt* statement = m_statement.get();
    const char* declared = sqlite3_column_decltype(statement, column);
    const auto is = [&](const char* type) { return declared && std::strcmp(declared, type) == 0; };
    const int type = sqlite3_column_type(statement, column);
    if (type == SQLITE_NULL) return {};
    if (is("YESNO")) return sqlite3_column_int(statement, column) != 0;
    if (is("DATE")) return Value(jet::Value(jet::Date{sqlite3_column_double(statement, column)}));
    if (is("CURRENCY")) {
        const double amount = sqlite3_column_double(statement, column);
        return Value(jet::Value(jet::Currency{std::llround(amount * 10000)}));
    }
    if (is("NUMERIC") && type == SQLITE_FLOAT)
        return Value(jet::Value(jet::Decimal{plainDecimal(sqlite3_column_double(statement, column))}));
    if (type == SQLITE_INTEGER) return static_cast<qint64>(sqlite3_column_int64(statement, column));
    if (type == SQLITE_FLOAT) return sqlite3_column_double(statement, column);
    const auto size = static_cast<size_t>(sqlite3_column_bytes(statement, column));
    if (type == SQLITE_TEXT) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        if (is("NUMERIC")) return Value(jet::Value(jet::Decimal{std::string(text, size)}));
        return Value(jet::Value(std::string(text, size)));
    }
    const auto* bytes = static_cast<const uint8_t*>(sqlite3_column_blob(statement, column));
    return Value(jet::Value(jet::Bytes(bytes, bytes + size)));
}

}  // namespace ado
