#include "platform/ado/Snapshot.h"

#include <cstring>

#include "platform/ado/Rows.h"

namespace ado {

namespace {

// A row stands in one block, behind its length in two bytes.
constexpr int blockBits = 17;
constexpr size_t blockSize = size_t{1} << blockBits;
constexpr size_t lengthSize = sizeof(uint16_t);
constexpr size_t mostBlocks = size_t{1} << (32 - blockBits);

}  // namespace

Snapshot::Snapshot() : m_definition(std::make_shared<jet::TableDefinition>()) {}

Result<Snapshot> Snapshot::take(const QString& connectionText, const QString& statement) {
    const auto session = Session::open(connectionText);
    if (!session.ok()) return session.status();
    const Result<StatementText> text = StatementText::read(statement);
    if (!text.ok()) return text.status();
    const jet::ReadScope reading(session.value()->database());
    if (!reading.status().ok()) return reading.status();
    if (Status status = session.value()->refresh(); !status.ok()) return status;
    auto run = text.value().verb == StatementText::Verb::Select
                   ? Rows::run(session.value(), text.value())
                   : Status(ErrorCode::NotSupported, QStringLiteral("L'istruzione non è una SELECT."));
    if (!run.ok()) return run.status();
    Rows& rows = *run.value();
    if (!rows.table())
        return Status(ErrorCode::NotSupported,
                      QStringLiteral("L'istruzione deve leggere tutte le colonne di una tabella."));
    if (Status status = rows.finish(); !status.ok()) return status;

    Snapshot snapshot;
    snapshot.m_definition = std::make_shared<jet::TableDefinition>(rows.table()->definition());
    snapshot.m_rows.reserve(rows.known());
    std::vector<size_t> memos;
    for (size_t i = 0; i < snapshot.columns().size(); ++i)
        if (snapshot.columns()[i].type == jet::Type::Memo) memos.push_back(i);
    jet::Bytes bytes;
    for (size_t i = 0; i < rows.known(); ++i) {
        const Result<bool> found = rows.table()->read(rows.id(i), bytes);
        if (!found.ok()) return found.status();
        if (!found.value()) continue;
        if (Status status = snapshot.append(bytes); !status.ok()) return status;
        for (const size_t column : memos) {
            Result<jet::Value> memo = rows.table()->longValue(rows.id(i), column);
            if (!memo.ok()) return memo.status();
            snapshot.m_memos[{snapshot.m_rows.back(), column}] = std::move(memo).value();
        }
    }
    return snapshot;
}

Status Snapshot::append(std::span<const uint8_t> bytes) {
    const auto length = static_cast<uint16_t>(bytes.size());
    if (length != bytes.size())
        return {ErrorCode::RecordTooLarge, QStringLiteral("Il record è troppo lungo.")};
    if (m_blocks.empty() || m_used + lengthSize + length > blockSize) {
        if (m_blocks.size() == mostBlocks)
            return {ErrorCode::RecordTooLarge, QStringLiteral("Troppi record per essere mostrati.")};
        m_blocks.push_back(std::make_unique_for_overwrite<uint8_t[]>(blockSize));
        m_used = 0;
    }
    uint8_t* place = m_blocks.back().get() + m_used;
    std::memcpy(place, &length, lengthSize);
    if (length) std::memcpy(place + lengthSize, bytes.data(), length);
    m_rows.push_back(static_cast<uint32_t>((m_blocks.size() - 1) << blockBits | m_used));
    m_used += lengthSize + length;
    return {};
}

jet::RowView Snapshot::view(size_t row) const {
    const uint8_t* place = m_blocks[m_rows[row] >> blockBits].get() + (m_rows[row] & (blockSize - 1));
    uint16_t length = 0;
    std::memcpy(&length, place, lengthSize);
    return {m_definition.get(), {place + lengthSize, length}};
}

Value Snapshot::value(size_t row, size_t column) const {
    switch (columns()[column].type) {
        case jet::Type::Ole:
            return {};
        case jet::Type::Memo:
            return Value(m_memos.at({m_rows[row], column}));
        default:
            return Value(view(row).value(column));
    }
}

void Snapshot::remove(size_t row) {
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(row));
}

void Snapshot::clear() {
    m_rows = {};
    m_blocks.clear();
    m_memos.clear();
    m_used = 0;
}

}  // namespace ado
