// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ado/RowOrder.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <string>

#include "platform/ado/KeySort.h"
#include "platform/text/Words.h"

namespace ado {

namespace {

// Blocks are filled with room for some more, and split in two when that is used.
constexpr size_t rowsOfFullBlock = 384;
constexpr size_t mostRowsOfBlock = 512;

// So many rows with the same first bytes are looked at for an identity before keys are compared: a run of
// the program takes the first ones.
constexpr size_t rowsLookedAt = 64;

uint32_t packed(jet::RowId id) {
    return static_cast<uint32_t>(id.toInteger());
}

Status lostItsPlace() {
    return {ErrorCode::Internal, Words::tr("Errore interno del database: una riga ha perso il suo posto.")};
}

}  // namespace

Status RowOrder::walk(jet::Table& table,
                      const std::function<bool(jet::RowId, const jet::RowView&)>& visit) const {
    return m_spec.group ? table.scanGroup(*m_spec.group, m_spec.number, visit) : table.scan(visit);
}

void RowOrder::append(const Entry& entry) {
    if (m_blocks.empty() || m_blocks.back().size() == rowsOfFullBlock)
        m_blocks.emplace_back().reserve(rowsOfFullBlock);
    m_blocks.back().push_back(entry);
}

Status RowOrder::fill(jet::Table& table) {
    m_blocks.clear();
    if (m_spec.parts.empty())  // the walk meets them in the order of their identities
        return walk(table, [&](jet::RowId id, const jet::RowView&) {
            append({0, packed(id)});
            return true;
        });
    KeySort rows;
    std::string key;
    Status status = walk(table, [&](jet::RowId id, const jet::RowView& row) {
        key.clear();
        m_spec.appendKey(key, row);
        rows.add(key, packed(id));
        return true;
    });
    if (!status.ok()) return status;
    rows.sort();
    m_blocks.reserve(rows.count() / rowsOfFullBlock + 1);
    for (size_t i = 0; i < rows.count(); ++i)
        append({KeySort::word(rows.key(i), 0), rows.id(i)});
    return {};
}

size_t RowOrder::size() const {
    return std::accumulate(m_blocks.begin(), m_blocks.end(), size_t{0},
                           [](size_t sum, const Block& block) { return sum + block.size(); });
}

void RowOrder::drop(const std::vector<bool>& pages) {
    for (Block& block : m_blocks)
        std::erase_if(block, [&](const Entry& entry) {
            const uint32_t page = entry.row().page;
            return page < pages.size() && pages[page];
        });
    std::erase_if(m_blocks, [](const Block& block) { return block.empty(); });
}

/// Whether an entry is before that key and identity.
Result<bool> RowOrder::before(jet::Table& table, const Entry& entry, std::string_view key,
                              uint32_t id) const {
    const uint64_t prefix = KeySort::word(key, 0);
    if (entry.prefix() != prefix) return entry.prefix() < prefix;
    if (entry.id == id) return false;
    if (m_spec.parts.empty()) return entry.id < id;
    const Result<std::optional<jet::RowView>> row = table.row(entry.row());
    if (!row.ok()) return row.status();
    if (!row.value()) return lostItsPlace();
    const int order = m_spec.keyOf(*row.value()).compare(key);
    return order < 0 || (order == 0 && entry.id < id);
}

/// The place of a row, or the one before which it would be, which may be after the last row of a block.
Result<RowOrder::Place> RowOrder::find(jet::Table& table, std::string_view key, uint32_t id) const {
    if (m_blocks.empty()) return end();
    const uint64_t prefix = KeySort::word(key, 0);
    const auto least = std::partition_point(
        m_blocks.begin(), m_blocks.end(), [&](const Block& block) { return block.back().prefix() < prefix; });
    if (least != m_blocks.end()) {
        const auto first = std::partition_point(least->begin(), least->end(),
                                                [&](const Entry& entry) { return entry.prefix() < prefix; });
        const auto last = first + std::min<std::ptrdiff_t>(rowsLookedAt, least->end() - first);
        const auto known = std::find_if(first, last, [&](const Entry& entry) { return entry.id == id; });
        if (known != last && known->prefix() == prefix)
            return Place{static_cast<size_t>(least - m_blocks.begin()),
                         static_cast<size_t>(known - least->begin())};
    }
    // By hand, since comparing may fail: the first block whose last row is not before, and in it.
    const auto search = [&](size_t from, size_t to, const auto& entryAt) -> Result<size_t> {
        while (from < to) {
            const size_t middle = from + (to - from) / 2;
            const Result<bool> stands = before(table, entryAt(middle), key, id);
            if (!stands.ok()) return stands.status();
            (stands.value() ? from : to) = stands.value() ? middle + 1 : middle;
        }
        return from;
    };
    const Result<size_t> block =
        search(0, m_blocks.size() - 1, [&](size_t i) -> const Entry& { return m_blocks[i].back(); });
    if (!block.ok()) return block.status();
    const Block& entries = m_blocks[block.value()];
    const Result<size_t> row =
        search(0, entries.size(), [&](size_t i) -> const Entry& { return entries[i]; });
    if (!row.ok()) return row.status();
    return Place{block.value(), row.value()};
}

Status RowOrder::add(jet::Table& table, std::string_view key, jet::RowId id) {
    const Entry entry(KeySort::word(key, 0), packed(id));
    if (m_blocks.empty()) {
        m_blocks.emplace_back().push_back(entry);
        return {};
    }
    const Result<Place> place = find(table, key, entry.id);
    if (!place.ok()) return place.status();
    Block& block = m_blocks[place.value().block];
    const auto at = block.begin() + static_cast<std::ptrdiff_t>(place.value().row);
    if (at != block.end() && at->id == entry.id) return {};
    block.insert(at, entry);
    if (block.size() <= mostRowsOfBlock) return {};
    const auto half = block.begin() + static_cast<std::ptrdiff_t>(block.size() / 2);
    Block second(half, block.end());
    block.erase(half, block.end());
    block.shrink_to_fit();
    m_blocks.insert(m_blocks.begin() + static_cast<std::ptrdiff_t>(place.value().block) + 1,
                    std::move(second));
    return {};
}

Status RowOrder::remove(jet::Table& table, std::string_view key, jet::RowId id) {
    const Result<Place> place = find(table, key, packed(id));
    if (!place.ok()) return place.status();
    if (place.value() == end()) return lostItsPlace();
    Block& block = m_blocks[place.value().block];
    const auto at = block.begin() + static_cast<std::ptrdiff_t>(place.value().row);
    if (at == block.end() || at->id != packed(id)) return lostItsPlace();
    block.erase(at);
    if (block.empty()) m_blocks.erase(m_blocks.begin() + static_cast<std::ptrdiff_t>(place.value().block));
    return {};
}

RowOrder::Place RowOrder::next(Place place) const {
    return place.row + 1 < m_blocks[place.block].size() ? Place{place.block, place.row + 1}
                                                        : Place{place.block + 1, 0};
}

}  // namespace ado
