// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/Snapshot.h"

#include <algorithm>
#include <cstring>

#include "platform/ado/FieldValue.h"
#include "platform/ado/Rows.h"
#include "platform/ado/Waiting.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

// A row is in one block, after its length in two bytes.
constexpr int blockBits = 16;
constexpr size_t blockSize = size_t{1} << blockBits;
constexpr size_t lengthSize = sizeof(uint16_t);
constexpr size_t mostBlocks = (size_t{1} << (32 - blockBits)) - 1;
constexpr uint32_t noRow = 0xffffffff;

}  // namespace

Snapshot::Snapshot() : m_definition(std::make_shared<jet::TableDefinition>()) {}

Result<Snapshot> Snapshot::take(const QString& connectionText, const QString& statement) {
    const Waiting waiting(recordsetSeconds);
    const auto session = Session::open(connectionText);
    if (!session.ok()) return session.status();
    const Result<StatementText> text = StatementText::read(statement);
    if (!text.ok()) return text.status();
    const jet::ReadScope reading(session.value()->database());
    if (!reading.status().ok()) return reading.status();
    if (Status status = session.value()->refresh(); !status.ok()) return status;
    auto run = text.value().verb == StatementText::Verb::Select
                   ? Rows::run(session.value(), text.value())
                   : Status(ErrorCode::NotSupported, Words::tr("L'istruzione non è una SELECT."));
    if (!run.ok()) return run.status();
    Rows& rows = *run.value();
    if (!rows.whole())
        return Status(ErrorCode::NotSupported,
                      Words::tr("L'istruzione deve leggere tutte le colonne di una tabella."));
    if (Status status = rows.finish(); !status.ok()) return status;

    Snapshot snapshot;
    snapshot.m_definition = std::make_shared<jet::TableDefinition>(rows.table()->definition());
    snapshot.m_rows.resize(rows.known(), noRow);
    if (Status status = snapshot.copy(rows); !status.ok()) return status;
    std::erase(snapshot.m_rows, noRow);
    return snapshot;
}

Status Snapshot::copy(const Rows& rows) {
    std::vector<size_t> memos;
    for (size_t i = 0; i < columns().size(); ++i)
        if (columns()[i].type == jet::Type::Memo) memos.push_back(i);
    // In the order in which they are in the file, so that each page is visited once.
    std::vector<uint64_t> places(rows.known());  // the row id above, the number among `rows` below
    for (size_t i = 0; i < places.size(); ++i)
        places[i] = static_cast<uint64_t>(rows.id(i).toInteger()) << 32 | i;
    std::sort(places.begin(), places.end());
    StoredRow stored;
    for (const uint64_t packed : places) {
        const jet::RowId id = jet::RowId::fromInteger(static_cast<int64_t>(packed >> 32));
        const auto row = static_cast<uint32_t>(packed);
        if (Status status = rows.table()->read(id, stored); !status.ok()) return status;
        if (!stored.present) continue;
        const Result<uint32_t> place = append(stored.bytes);
        if (!place.ok()) return place.status();
        m_rows[row] = place.value();
        for (const size_t column : memos) {
            Result<jet::Value> memo = rows.table()->longValue(id, column);
            if (!memo.ok()) return memo.status();
            m_memos[{place.value(), column}] = std::move(memo).value();
        }
    }
    return {};
}

Result<uint32_t> Snapshot::append(std::span<const uint8_t> bytes) {
    const auto length = static_cast<uint16_t>(bytes.size());
    if (bytes.size() > blockSize - lengthSize)
        return Status(ErrorCode::RecordTooLarge, Words::tr("Il record è troppo lungo."));
    if (m_blocks.empty() || m_used + lengthSize + length > blockSize) {
        if (m_blocks.size() == mostBlocks)
            return Status(ErrorCode::RecordTooLarge, Words::tr("Troppi record per essere mostrati."));
        m_blocks.push_back(std::make_unique_for_overwrite<uint8_t[]>(blockSize));
        m_used = 0;
    }
    uint8_t* place = m_blocks.back().get() + m_used;
    std::memcpy(place, &length, lengthSize);
    if (length) std::memcpy(place + lengthSize, bytes.data(), length);
    const auto begin = static_cast<uint32_t>((m_blocks.size() - 1) << blockBits | m_used);
    m_used += lengthSize + length;
    return begin;
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
            return fieldValue(view(row), column);
    }
}

void Snapshot::appendText(size_t row, size_t column, std::string& out) const {
    if (columns()[column].type == jet::Type::Text) {
        static_cast<void>(view(row).text(column, out));
    } else {
        out += value(row, column).toTextOrEmpty().toStdString();
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
