// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Recordset.h"

#include <algorithm>
#include <optional>

#include "platform/ado/FieldValue.h"
#include "platform/ado/RawValue.h"
#include "platform/ado/Rows.h"
#include "platform/ado/RowsAhead.h"
#include "platform/ado/Waiting.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

Status noCurrentRecord() {
    return {ErrorCode::NoCurrentRecord, Words::tr("Nessun record corrente.")};
}

Status notOpen() {
    return {ErrorCode::NotSupported, Words::tr("Operazione non consentita se l'oggetto è chiuso.")};
}

Status notUpdatable() {
    return {ErrorCode::NotSupported, Words::tr("Il recordset corrente non supporta l'aggiornamento.")};
}

Status unknownField(const QString& name) {
    return {ErrorCode::ItemNotFound, Words::tr("Impossibile trovare il campo \"%1\".").arg(name)};
}

using Changes = std::vector<std::pair<size_t, jet::Value>>;

/// Sets `column` to its new value, in place of one that was set before.
void setChange(Changes& changes, size_t column, jet::Value value) {
    const auto known =
        std::find_if(changes.begin(), changes.end(), [&](const auto& c) { return c.first == column; });
    if (known != changes.end()) {
        known->second = std::move(value);
    } else {
        changes.emplace_back(column, std::move(value));
    }
}

}  // namespace

struct Recordset::Data {
    QString connection;
    CursorType cursorType = CursorType::ForwardOnly;
    LockType lockType = LockType::ReadOnly;
    QString source;

    std::shared_ptr<Session> session;
    std::unique_ptr<Rows> rows;  ///< null when closed
    size_t current = 0;          ///< as many as there are rows: the end mark
    bool beforeFirst = false;
    bool lost = false;  ///< the last move failed: no row is the current one, nor any mark
    StoredRow row;      ///< the current one, where rows have identities
    std::vector<const jet::Column*> columns;  ///< of the recordset, where rows have identities
    std::vector<jet::StoredField> fields;     ///< of these in that row
    size_t parsed = 0;                     ///< all of them, once one of a row without changes was asked for
    std::vector<jet::StoredField> others;  ///< of the whole row, where the recordset has some columns only
    RowsAhead ahead;

    Changes changes;
    bool adding = false;
    jet::RowId added;  ///< the row that was posted last

    /// Whether there is a current row; it may have been deleted.
    bool onRow() const { return rows && !lost && !beforeFirst && current < rows->known(); }
    bool pending() const { return adding || !changes.empty(); }
    void drop() {
        adding = false;
        changes.clear();
    }
    Status goTo(size_t number);
    Status read(size_t number, size_t count);
    Status load();
    Result<Value> field(size_t column);
    Result<Value> storedField(size_t column);
    Result<Value> longField(size_t column);
    Result<Value> valueAt(int index);
    void parse();
    Status updatable() const;
    Status sameRow();
    Status post();
    std::optional<size_t> find(QStringView name) const;
};

Recordset::Recordset() : m_data(std::make_unique<Data>()) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

Status Recordset::setActiveConnection(const QString& connectionText) {
    m_data->connection = connectionText;
    return Session::attach(connectionText);
}

void Recordset::setCursorType(CursorType type) {
    m_data->cursorType = type;
}
void Recordset::setCursorLocation(CursorLocation) {}
void Recordset::setLockType(LockType type) {
    m_data->lockType = type;
}
void Recordset::setSource(const QString& statement) {
    m_data->source = statement;
}

Status Recordset::open() {
    close();
    const Waiting waiting(recordsetSeconds);
    const Result<Session::Reading> reading = Session::read(m_data->connection);
    if (!reading.ok()) return reading.status();
    const std::shared_ptr<Session>& session = reading.value().session;
    const Result<StatementText> statement = StatementText::read(m_data->source);
    if (!statement.ok()) return statement.status();
    if (statement.value().verb != StatementText::Verb::Select)
        return {ErrorCode::NotSupported, Words::tr("L'origine di un recordset deve essere una SELECT.")};
    auto rows = Rows::run(session, statement.value());
    if (!rows.ok()) return rows.status();
    m_data->session = session;
    m_data->rows = std::move(rows).value();
    m_data->columns.clear();
    m_data->columns.reserve(m_data->rows->names().size());
    for (size_t i = 0; m_data->rows->table() && i < m_data->rows->names().size(); ++i)
        m_data->columns.push_back(&m_data->rows->table()->definition().columns[m_data->rows->column(i)]);
    Status status = m_data->goTo(0);
    if (!status.ok()) close();
    return status;
}

void Recordset::close() {
    m_data->parsed = 0;
    m_data->drop();
    m_data->rows.reset();
    m_data->session.reset();
}

bool Recordset::isOpen() const {
    return m_data->rows != nullptr;
}

bool Recordset::isBof() const {
    return !m_data->rows || m_data->lost || m_data->beforeFirst || m_data->rows->known() == 0;
}

bool Recordset::isEof() const {
    return !m_data->rows || (!m_data->beforeFirst && !m_data->onRow());
}

Status Recordset::moveFirst() {
    if (!isOpen()) return notOpen();
    if (m_data->pending())
        if (Status status = update(); !status.ok()) return status;
    if (m_data->rows->known() == 0) return noCurrentRecord();
    return m_data->goTo(0);
}

Status Recordset::move(qint64 rows) {
    Data& data = *m_data;
    if (!isOpen()) return notOpen();
    if (data.pending())
        if (Status status = update(); !status.ok()) return status;
    if (rows == 0) return data.lost ? noCurrentRecord() : Status();
    if ((rows > 0 && isEof()) || (rows < 0 && isBof())) return noCurrentRecord();
    const qint64 from = data.beforeFirst ? -1 : static_cast<qint64>(data.current);
    if (rows < 0 && -rows > from) {
        data.beforeFirst = true;
        data.parsed = 0;
        return {};
    }
    return data.goTo(static_cast<size_t>(from + rows));
}

qint64 Recordset::recordCount() {
    if (!isOpen() || m_data->cursorType == CursorType::ForwardOnly) return -1;
    const Waiting waiting(recordsetSeconds);
    if (!m_data->session->refresh().ok() || !m_data->rows->finish().ok()) return -1;
    return static_cast<qint64>(m_data->rows->known());
}

int Recordset::fieldCount() const {
    return isOpen() ? static_cast<int>(m_data->rows->names().size()) : 0;
}

QString Recordset::fieldName(int index) const {
    return index >= 0 && index < fieldCount() ? m_data->rows->names()[static_cast<size_t>(index)] : QString();
}

std::optional<size_t> Recordset::Data::find(QStringView name) const {
    const auto& names = rows->names();
    // Comparing without regard to case costs ten times as much. A table has no two columns of the same name.
    auto found = rows->table() ? std::find(names.begin(), names.end(), name) : names.end();
    if (found == names.end())
        found = std::find_if(names.begin(), names.end(), [&](const QString& n) {
            return name.size() == n.size() && name.compare(n, Qt::CaseInsensitive) == 0;
        });
    if (found == names.end()) return std::nullopt;
    return static_cast<size_t>(found - names.begin());
}

/// Makes that row the current one, or the end mark when there are not so many. After a failure there is no
/// current row.
Status Recordset::Data::goTo(size_t number) {
    const bool onward = !lost && !beforeFirst && number == current + 1;
    parsed = 0;
    if (!onward || !ahead.take(number, session->epoch(), RowsAhead::Clock::now(), row)) {
        const Waiting waiting(recordsetSeconds);
        lost = true;
        if (Status status = read(number, ahead.wanted(onward)); !status.ok()) return status;
    }
    current = std::min(number, rows->known());
    beforeFirst = false;
    lost = false;
    return {};
}

/// Reads that row and those after it, `count` in all, as they are at one moment.
Status Recordset::Data::read(size_t number, size_t count) {
    ahead.drop();
    row.present = false;
    const RowsAhead::Clock::time_point begun = RowsAhead::Clock::now();
    const jet::ReadScope reading(session->database());
    if (!reading.status().ok()) return reading.status();
    if (Status status = session->refresh(); !status.ok()) return status;
    // A failure at another row is reported when it is reached.
    if (Status status = rows->reach(number + 1); !status.ok()) return status;
    if (count > 1) (void)rows->reach(number + count);
    if (!rows->table()) return {};
    ahead.begin(number + 1, session->epoch(), begun);
    size_t taken = 0;
    Status status = rows->table()->read(rows->ids(number, count),
                                        [&]() -> StoredRow& { return taken++ == 0 ? row : ahead.add(); });
    return taken == 0 ? status : Status();
}

Status Recordset::Data::load() {
    ahead.drop();
    parsed = 0;
    row.present = false;
    return onRow() && rows->table() ? rows->table()->read(rows->id(current), row) : Status();
}

Result<Value> Recordset::Data::field(size_t column) {
    if (pending()) {
        const auto change =
            std::find_if(changes.begin(), changes.end(), [&](const auto& c) { return c.first == column; });
        if (change != changes.end())
            return Value(readable(rows->table()->definition().columns[column], change->second));
    }
    if (adding)
        return rows->table()->definition().columns[column].type == jet::Type::YesNo ? Value(false) : Value();
    if (!onRow()) return noCurrentRecord();
    if (!rows->table()) return rows->values(current)[column];
    if (!row.present) return Status(ErrorCode::NoCurrentRecord, Words::tr("Il record è stato eliminato."));
    if (parsed == 0) parse();
    return storedField(column);
}

void Recordset::Data::parse() {
    const jet::RowView view(&rows->table()->definition(), row.bytes);
    view.fields(rows->whole() ? fields : others);
    if (!rows->whole()) {
        fields.resize(columns.size());
        for (size_t i = 0; i < fields.size(); ++i)
            fields[i] = others[rows->column(i)];
    }
    parsed = pending() ? 0 : fields.size();
}

/// Once the row is parsed.
Result<Value> Recordset::Data::storedField(size_t column) {
    const jet::Column& definition = *columns[column];
    if (definition.type == jet::Type::Memo || definition.type == jet::Type::Ole) return longField(column);
    Result<Value> value{Value()};
    takeFieldValue(definition, fields[column], value.value());
    return value;
}

Result<Value> Recordset::Data::longField(size_t column) {
    const Waiting waiting(recordsetSeconds);
    Result<jet::Value> value = rows->table()->longValue(rows->id(current), rows->column(column));
    if (!value.ok()) return value.status();
    return Value(std::move(value).value());
}

Result<Value> Recordset::value(QStringView name) const {
    if (!isOpen()) return notOpen();
    const std::optional<size_t> column = m_data->find(name);
    if (!column) return unknownField(name.toString());
    return m_data->field(*column);
}

Result<Value> Recordset::value(int index) const {
    const auto column = static_cast<size_t>(index);
    return column < m_data->parsed ? m_data->storedField(column) : m_data->valueAt(index);
}

Result<Value> Recordset::Data::valueAt(int index) {
    if (!rows) return notOpen();
    const auto column = static_cast<size_t>(index);
    if (index < 0 || column >= rows->names().size()) return unknownField(QString::number(index));
    return field(column);
}

Status Recordset::Data::updatable() const {
    if (!rows) return notOpen();
    if (lockType == LockType::ReadOnly || !rows->whole() || !rows->table()->definition().longPrimaryKey())
        return notUpdatable();
    return {};
}

Status Recordset::setValue(QStringView name, const Value& value) {
    Data& data = *m_data;
    if (Status status = data.updatable(); !status.ok()) return status;
    const std::optional<size_t> column = data.find(name);
    if (!column) return unknownField(name.toString());
    if (!data.adding) {
        if (!data.onRow()) return noCurrentRecord();
        const Waiting waiting(recordsetSeconds);
        const size_t changed = *column;
        if (Status status = data.rows->table()->updatable({&changed, 1}); !status.ok()) return status;
    }
    Result<jet::Value> fitted = fitToColumn(value.raw(), data.rows->table()->definition().columns[*column]);
    if (!fitted.ok()) return fitted.status();
    setChange(data.changes, *column, std::move(fitted).value());
    data.parsed = 0;
    return {};
}

Status Recordset::addNew() {
    Data& data = *m_data;
    if (Status status = data.updatable(); !status.ok()) return status;
    if (data.pending())
        if (Status status = update(); !status.ok()) return status;
    const Waiting waiting(recordsetSeconds);
    JetTable& table = *data.rows->table();
    Changes fixed;
    Status status = data.session->write([&]() -> Status {
        if (Status refused = table.writable(); !refused.ok()) return refused;
        const auto& columns = table.definition().columns;
        for (size_t i = 0; i < columns.size(); ++i) {
            if (!columns[i].autoNumber) continue;
            const Result<int32_t> number = table.takeAutoNumber();
            if (!number.ok()) return number.status();
            fixed.emplace_back(i, static_cast<int64_t>(number.value()));
        }
        return {};
    });
    if (!status.ok()) return status;
    data.changes = std::move(fixed);
    data.adding = true;
    data.parsed = 0;
    return {};
}

/// Whether the current row still is the one that was read. Where one was deleted another may be in the
/// end.
Status Recordset::Data::sameRow() {
    Status gone(ErrorCode::NoCurrentRecord, Words::tr("Il record è stato eliminato."));
    const jet::TableDefinition& definition = rows->table()->definition();
    const std::optional<size_t> key = definition.longPrimaryKey();
    StoredRow now;
    if (Status status = rows->table()->read(rows->id(current), now); !status.ok()) return status;
    if (!row.present || !now.present) return gone;
    const auto keyIn = [&](const StoredRow& one) { return jet::RowView(&definition, one.bytes).value(*key); };
    return !key || keyIn(now) == keyIn(row) ? Status() : gone;
}

Status Recordset::Data::post() {
    if (!adding) {
        if (Status status = sameRow(); !status.ok()) return status;
        return rows->table()->update(rows->id(current), changes);
    }
    const auto& all = rows->table()->definition().columns;
    std::vector<jet::Value> values(all.size());
    for (size_t i = 0; i < all.size(); ++i)
        if (all[i].type == jet::Type::YesNo) values[i] = false;
    for (const auto& [column, value] : changes)
        values[column] = value;
    const Result<jet::RowId> id = rows->table()->insert(values);
    if (!id.ok()) return id.status();
    added = id.value();
    return {};
}

Status Recordset::update() {
    Data& data = *m_data;
    if (Status status = data.updatable(); !status.ok()) return status;
    if (!data.pending()) return data.onRow() ? Status() : noCurrentRecord();
    const Waiting waiting(recordsetSeconds);
    if (Status status = data.session->write([&] { return data.post(); }); !status.ok()) return status;
    if (data.adding) {
        data.rows->append(data.added);
        data.current = data.rows->known() - 1;
        data.beforeFirst = false;
        data.lost = false;
    }
    data.drop();
    return data.load();
}

}  // namespace ado
