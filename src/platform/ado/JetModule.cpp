// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/JetModule.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>

#include "platform/ado/FieldValue.h"
#include "platform/ado/RawValue.h"
#include "platform/ado/Session.h"
#include "platform/ado/SqlTokens.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

using jet::Type;

/// How xFilter finds its rows; what the orders are made by is in the text beside it.
enum Plan { AllRows = 0, ByPrimaryKey = 1, OneGroup = 2 };

struct Table {
    sqlite3_vtab base;
    Session* session;
    JetTable* rows;
};

struct Cursor {
    sqlite3_vtab_cursor base;
    std::shared_ptr<const RowOrder> order;  ///< null for a single row
    RowOrder::Place at;
    RowOrder::Place end;
    jet::RowId row;
    bool atEnd;
    StoredRow stored;  ///< the row's bytes, once one of its fields was asked for
    bool loaded;
};

Table& tableOf(sqlite3_vtab* table) {
    return *reinterpret_cast<Table*>(table);
}
Table& tableOf(Cursor& cursor) {
    return tableOf(cursor.base.pVtab);
}

/// The declared type determines SQLite's affinity, and for a recordset the type of a result column.
const char* declaredType(Type type) {
    switch (type) {
        case Type::YesNo:
            return "YESNO";
        case Type::Byte:
        case Type::Integer:
        case Type::Long:
            return "INTEGER";
        case Type::Currency:
            return "CURRENCY";
        case Type::Single:
        case Type::Double:
            return "REAL";
        case Type::Date:
            return "DATE";
        case Type::Text:
        case Type::Memo:
        case Type::Guid:
            return "TEXT COLLATE JET";
        case Type::Numeric:
            return "NUMERIC";
        default:
            return "BLOB";
    }
}

/// SQLite connects a table when it is declared, and again whenever it has dropped what it knew, as after a
/// declaration that failed; `arguments` are the module, the database and the table by name.
int connect(sqlite3* sqlite, void* client, int count, const char* const* arguments, sqlite3_vtab** result,
            char**) {
    constexpr int tableName = 2;
    auto& session = *static_cast<Session*>(client);
    JetTable* rows = count > tableName ? session.declared(arguments[tableName]) : nullptr;
    if (!rows) return SQLITE_ERROR;
    std::string declaration = "CREATE TABLE t(";
    for (const jet::Column& column : rows->definition().columns) {
        if (!declaration.ends_with('(')) declaration += ',';
        declaration += quotedName(column.name) + ' ' + declaredType(column.type);
    }
    declaration += ')';
    const int code = sqlite3_declare_vtab(sqlite, declaration.c_str());
    if (code != SQLITE_OK) return code;
    *result = reinterpret_cast<sqlite3_vtab*>(new Table{{}, &session, rows});
    return SQLITE_OK;
}

int disconnect(sqlite3_vtab* table) {
    delete &tableOf(table);
    return SQLITE_OK;
}

/// The order of rows that a statement needs, when it can be made.
std::optional<std::vector<OrderSpec::Part>> wantedOrder(const sqlite3_index_info& info,
                                                        const jet::TableDefinition& table) {
    std::vector<OrderSpec::Part> parts;
    for (int i = 0; i < info.nOrderBy; ++i) {
        const auto& term = info.aOrderBy[i];
        if (term.iColumn < 0) return std::nullopt;
        const auto column = static_cast<size_t>(term.iColumn);
        if (!OrderSpec::canSort(table.columns[column].type)) return std::nullopt;
        parts.push_back({column, term.desc == 0});
    }
    return parts;
}

int bestIndex(sqlite3_vtab* base, sqlite3_index_info* info) {
    const jet::TableDefinition& table = tableOf(base).rows->definition();
    const std::optional<size_t> key = table.longPrimaryKey();
    int keyTerm = -1;
    int groupTerm = -1;
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& term = info->aConstraint[i];
        if (!term.usable || term.op != SQLITE_INDEX_CONSTRAINT_EQ || term.iColumn < 0) continue;
        const auto column = static_cast<size_t>(term.iColumn);
        if (key == column) keyTerm = i;
        if (groupTerm < 0 && OrderSpec::canGroup(table.columns[column].type)) groupTerm = i;
    }
    OrderSpec spec;
    const int term = keyTerm >= 0 ? keyTerm : groupTerm;
    if (term >= 0) {
        info->aConstraintUsage[term].argvIndex = 1;
        info->aConstraintUsage[term].omit = 1;
        spec.group = static_cast<size_t>(info->aConstraint[term].iColumn);
    }
    if (keyTerm >= 0) {
        info->idxNum = ByPrimaryKey;
        info->idxFlags = SQLITE_INDEX_SCAN_UNIQUE;
        info->estimatedCost = 1;
        info->estimatedRows = 1;
        info->orderByConsumed = 1;
    } else {
        info->idxNum = groupTerm >= 0 ? OneGroup : AllRows;
        info->estimatedRows = groupTerm >= 0 ? 1000 : 100000;
        info->estimatedCost = static_cast<double>(info->estimatedRows);
        if (const auto parts = wantedOrder(*info, table)) {
            spec.parts = *parts;
            info->orderByConsumed = 1;
        }
    }
    info->idxStr = sqlite3_mprintf("%s", spec.toText().c_str());
    info->needToFreeIdxStr = 1;
    return info->idxStr ? SQLITE_OK : SQLITE_NOMEM;
}

int open(sqlite3_vtab*, sqlite3_vtab_cursor** result) {
    *result = reinterpret_cast<sqlite3_vtab_cursor*>(new Cursor{});
    return SQLITE_OK;
}

int close(sqlite3_vtab_cursor* base) {
    delete reinterpret_cast<Cursor*>(base);
    return SQLITE_OK;
}

/// Takes the row that the place in the order names.
void settle(Cursor& cursor) {
    cursor.loaded = false;
    cursor.atEnd = cursor.at == cursor.end;
    if (!cursor.atEnd) cursor.row = cursor.order->at(cursor.at);
}

/// The whole number that a constant means in a comparison; no row can equal anything else.
std::optional<int64_t> wantedNumber(sqlite3_value* value, Type type) {
    std::optional<int64_t> number;
    const int valueType = sqlite3_value_numeric_type(value);
    if (valueType == SQLITE_INTEGER) {
        number = sqlite3_value_int64(value);
    } else if (valueType == SQLITE_FLOAT) {
        const double real = sqlite3_value_double(value);
        if (real == std::trunc(real) && std::fabs(real) < 9e15) number = static_cast<int64_t>(real);
    }
    if (type == Type::YesNo && number && *number != 0 && *number != -1) return std::nullopt;
    return number;
}

int filter(sqlite3_vtab_cursor* base, int plan, const char* text, int, sqlite3_value** arguments) {
    auto& cursor = *reinterpret_cast<Cursor*>(base);
    Table& table = tableOf(cursor);
    OrderSpec spec = OrderSpec::fromText(text);
    cursor.order.reset();
    cursor.loaded = false;
    cursor.atEnd = true;
    std::optional<int64_t> number;
    const Type type = spec.group ? table.rows->definition().columns[*spec.group].type : Type::Long;
    if (plan != AllRows) {
        number = wantedNumber(arguments[0], type);
        if (!number) return SQLITE_OK;
    }
    if (plan == ByPrimaryKey) {
        if (*number < std::numeric_limits<int32_t>::min() || *number > std::numeric_limits<int32_t>::max())
            return SQLITE_OK;
        const auto id = table.rows->findByPrimaryKey(static_cast<int32_t>(*number));
        if (!id.ok()) return table.session->fail(id.status());
        cursor.atEnd = !id.value();
        if (id.value()) cursor.row = *id.value();
        return SQLITE_OK;
    }
    // Of a yes/no column everything but 0 is True.
    spec.number = number && type == Type::YesNo ? *number != 0 : number.value_or(0);
    const auto order = table.rows->order(spec);
    if (!order.ok()) return table.session->fail(order.status());
    cursor.order = order.value();
    cursor.at = cursor.order->begin();
    cursor.end = cursor.order->end();
    settle(cursor);
    return SQLITE_OK;
}

int next(sqlite3_vtab_cursor* base) {
    auto& cursor = *reinterpret_cast<Cursor*>(base);
    if (cursor.order) {
        cursor.at = cursor.order->next(cursor.at);
        settle(cursor);
    } else {
        cursor.atEnd = true;
    }
    return SQLITE_OK;
}

int atEnd(sqlite3_vtab_cursor* base) {
    return reinterpret_cast<Cursor*>(base)->atEnd;
}

int rowid(sqlite3_vtab_cursor* base, sqlite3_int64* id) {
    *id = reinterpret_cast<Cursor*>(base)->row.toInteger();
    return SQLITE_OK;
}

void giveText(sqlite3_context* context, const std::string& text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void give(sqlite3_context* context, const jet::Value& value) {
    if (const auto* yes = std::get_if<bool>(&value)) return sqlite3_result_int(context, *yes ? -1 : 0);
    if (const auto* number = std::get_if<int64_t>(&value)) return sqlite3_result_int64(context, *number);
    if (const auto* real = std::get_if<double>(&value)) return sqlite3_result_double(context, *real);
    if (const auto* date = std::get_if<jet::Date>(&value)) return sqlite3_result_double(context, date->days);
    if (const auto* amount = std::get_if<jet::Currency>(&value))
        return sqlite3_result_double(context, static_cast<double>(amount->tenThousandths) / 10000);
    if (const auto* decimal = std::get_if<jet::Decimal>(&value)) {
        // A comparison makes a number of the text, since the column is numeric.
        constexpr size_t digitsOfADouble = 15;
        if (decimal->text.size() > digitsOfADouble) return giveText(context, decimal->text);
        return sqlite3_result_double(context, std::strtod(decimal->text.c_str(), nullptr));
    }
    if (const auto* text = std::get_if<std::string>(&value)) return giveText(context, *text);
    if (const auto* bytes = std::get_if<jet::Bytes>(&value))
        return sqlite3_result_blob64(context, bytes->data(), bytes->size(), SQLITE_TRANSIENT);
    sqlite3_result_null(context);
}

int column(sqlite3_vtab_cursor* base, sqlite3_context* context, int number) {
    if (sqlite3_vtab_nochange(context)) return SQLITE_OK;
    auto& cursor = *reinterpret_cast<Cursor*>(base);
    Table& table = tableOf(cursor);
    const jet::TableDefinition& definition = table.rows->definition();
    const auto position = static_cast<size_t>(number);
    if (!cursor.loaded) {
        if (Status status = table.rows->read(cursor.row, cursor.stored); !status.ok())
            return table.session->fail(std::move(status));
        cursor.loaded = true;
    }
    if (!cursor.stored.present) return SQLITE_OK;  // deleted from outside since: all fields are Null
    const Type type = definition.columns[position].type;
    if (type == Type::Memo || type == Type::Ole) {
        const Result<jet::Value> value = table.rows->longValue(cursor.row, position);
        if (!value.ok()) return table.session->fail(value.status());
        give(context, value.value());
        return SQLITE_OK;
    }
    give(context, readable(definition.columns[position],
                           jet::RowView(&definition, cursor.stored.bytes).value(position)));
    return SQLITE_OK;
}

jet::Value taken(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return static_cast<int64_t>(sqlite3_value_int64(value));
        case SQLITE_FLOAT:
            return sqlite3_value_double(value);
        case SQLITE_TEXT: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
            return std::string(text, static_cast<size_t>(sqlite3_value_bytes(value)));
        }
        case SQLITE_BLOB: {
            const auto* bytes = static_cast<const uint8_t*>(sqlite3_value_blob(value));
            return jet::Bytes(bytes, bytes + sqlite3_value_bytes(value));
        }
        default:
            return {};
    }
}

Status insertRow(JetTable& rows, sqlite3_value** fields) {
    std::vector<jet::Value> values(rows.definition().columns.size());
    for (size_t i = 0; i < values.size(); ++i)
        values[i] = taken(fields[i]);
    return rows.insertFitted(std::move(values));
}

Status updateRow(JetTable& rows, jet::RowId id, sqlite3_value** fields) {
    std::vector<std::pair<size_t, jet::Value>> changes;
    for (size_t i = 0; i < rows.definition().columns.size(); ++i) {
        if (sqlite3_value_nochange(fields[i])) continue;
        Result<jet::Value> value = fitToColumn(taken(fields[i]), rows.definition().columns[i]);
        if (!value.ok()) return value.status();
        changes.emplace_back(i, std::move(value).value());
    }
    return rows.update(id, changes);
}

/// SQLite's convention: the row's old identity (Null for a new row), its new one, and all fields; the old one
/// alone for a delete.
int update(sqlite3_vtab* base, int count, sqlite3_value** arguments, sqlite3_int64*) {
    Table& table = tableOf(base);
    const auto old = jet::RowId::fromInteger(sqlite3_value_int64(arguments[0]));
    Status status;
    if (count == 1) {
        status = table.rows->erase(old);
    } else if (sqlite3_value_type(arguments[0]) == SQLITE_NULL &&
               sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        status = insertRow(*table.rows, arguments + 2);
    } else if (sqlite3_value_type(arguments[0]) != SQLITE_NULL &&
               sqlite3_value_int64(arguments[0]) == sqlite3_value_int64(arguments[1])) {
        status = updateRow(*table.rows, old, arguments + 2);
    } else {
        status = Status(ErrorCode::NotSupported, Words::tr("L'identità di un record non può essere scelta."));
    }
    if (!status.ok()) return table.session->fail(status);
    table.session->countChange();
    return SQLITE_OK;
}

sqlite3_module makeModule() {
    sqlite3_module module = {};
    module.xCreate = connect;
    module.xConnect = connect;
    module.xBestIndex = bestIndex;
    module.xDisconnect = disconnect;
    module.xDestroy = disconnect;
    module.xOpen = open;
    module.xClose = close;
    module.xFilter = filter;
    module.xNext = next;
    module.xEof = atEnd;
    module.xColumn = column;
    module.xRowid = rowid;
    module.xUpdate = update;
    return module;
}

}  // namespace

const sqlite3_module jetModule = makeModule();

}  // namespace ado
